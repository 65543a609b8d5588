#include <gtest/gtest.h>

#include "host/Refusal.h"
#include "host/SettingsAnswers.h"

namespace qutav::host {
namespace {

using Json = nlohmann::ordered_json;

TEST(SettingsAnswersTest, WithoutChangesEveryPageOfTheFormIsShownAndTheSheetLeft) {
  EXPECT_EQ(SettingsAnswers({}, false), Json::parse(R"({"answers": [{"to": "sheet", "steps": [
      {"page": "General", "show": true}, {"page": "Deployment", "show": true},
      {"page": "Icons", "show": true}, {"page": "Permissions", "show": true},
      {"page": "Languages", "show": true}]}]})"));
  EXPECT_EQ(SettingsAnswers({}, true)["answers"][0]["steps"].size(), 4u);
}

TEST(SettingsAnswersTest, ChangesComeBeforeThePagesAndOkBehindThem) {
  const Json steps =
      SettingsAnswers({{"General", "Version:", SettingsChange::Kind::kText, "2.0.0"},
                       {"Deployment", "Password:", SettingsChange::Kind::kEnvironment, "PASS"},
                       {"Deployment", "Password:", SettingsChange::Kind::kFile, "/run/pass"}},
                      false)["answers"][0]["steps"];

  ASSERT_EQ(steps.size(), 9u);
  EXPECT_EQ(steps[0], Json::parse(R"({"page": "General", "set": {"Version:": "2.0.0"}})"));
  EXPECT_EQ(steps[1]["set"]["Password:"], Json::parse(R"({"environment": "PASS"})"));
  EXPECT_EQ(steps[2]["set"]["Password:"], Json::parse(R"({"file": "/run/pass"})"));
  EXPECT_EQ(steps[8], Json::parse(R"({"press": ["OK"]})"));
}

TEST(SettingsAnswersTest, AChangeIsReadUpToTheFirstDotAndTheFirstEqualSignBehindIt) {
  const SettingsChange change =
      ParseSettingsChange("General.Version label:=1.0=beta", SettingsChange::Kind::kText);

  EXPECT_EQ(change.page, "General");
  EXPECT_EQ(change.label, "Version label:");
  EXPECT_EQ(change.value, "1.0=beta");
}

TEST(SettingsAnswersTest, AValueMayBeEmpty) {
  EXPECT_EQ(ParseSettingsChange("General.Version label:=", SettingsChange::Kind::kText).value, "");
}

TEST(SettingsAnswersTest, ATextOfAnotherFormIsRefused) {
  for (const char* text : {"", "General", "General.", "General=1", ".Version:=1", "General.=1"}) {
    EXPECT_THROW(ParseSettingsChange(text, SettingsChange::Kind::kText), Refusal) << text;
  }
}

}  // namespace
}  // namespace qutav::host
