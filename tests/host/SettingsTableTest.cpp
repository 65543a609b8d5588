#include <gtest/gtest.h>

#include "host/SettingsTable.h"

namespace qutav::host {
namespace {

std::string TableOf(const std::string& controls) {
  return SettingsTable({{"title", "Page"}, {"controls", nlohmann::json::parse(controls)}});
}

TEST(SettingsTableTest, FieldsStandWithTheirValuesInOneColumn) {
  EXPECT_EQ(TableOf(R"([{"label": "App name:", "kind": "edit", "text": "Game"},
                        {"label": "Password:", "kind": "password", "text": "***"},
                        {"label": "Render mode:", "kind": "drop list", "text": "CPU",
                         "rows": ["CPU"], "selected": 0}])"),
            "Page\n"
            "  App name:                                 Game\n"
            "  Password:                                 ***\n"
            "  Render mode:                              CPU\n");
}

TEST(SettingsTableTest, SwitchesShowWhetherTheyAreOn) {
  EXPECT_EQ(TableOf(R"([{"label": "Full screen", "kind": "check box", "text": "", "checked": true},
                        {"label": "Debug", "kind": "radio button", "text": "", "checked": false}])"),
            "Page\n"
            "  Full screen                               [x]\n"
            "  Debug                                     [ ]\n");
}

TEST(SettingsTableTest, ListsShowTheirRows) {
  EXPECT_EQ(TableOf(R"([{"label": "Files:", "kind": "list box", "text": "", "rows": ["a", "b"],
                         "selected": -1},
                        {"label": "Names", "kind": "check list", "text": "", "selected": -1,
                         "rows": [{"text": "French", "checked": true}]}])"),
            "Page\n"
            "  Files:\n"
            "    a\n"
            "    b\n"
            "  Names\n"
            "    French                                  [x]\n");
}

TEST(SettingsTableTest, ARepeatedLabelIsAddressedByItsNumber) {
  EXPECT_EQ(TableOf(R"([{"label": "Path:", "kind": "edit", "text": "a"},
                        {"label": "Path:", "kind": "edit", "text": "b"}])"),
            "Page\n"
            "  Path:                                     a\n"
            "  Path:#2                                   b\n");
}

TEST(SettingsTableTest, WhatCannotBeUsedNowIsMarked) {
  EXPECT_EQ(TableOf(R"([{"label": "Name:", "kind": "edit", "text": "a", "enabled": false},
                        {"label": "Id:", "kind": "edit", "text": "", "enabled": false}])"),
            "Page\n"
            "  Name:                                     a (off)\n"
            "  Id:                                       (off)\n");
}

TEST(SettingsTableTest, ButtonsAndTextsAreLeftOut) {
  EXPECT_EQ(TableOf(R"([{"label": "OK", "kind": "button", "text": "OK"},
                        {"label": "Hint", "kind": "text", "text": "Hint"},
                        {"label": "Kind", "kind": "group", "text": "Kind"}])"),
            "Page\n Kind\n");
}

}  // namespace
}  // namespace qutav::host
