// What a script does to dialogs and to the pages of a sheet, and what the transcript tells of it.
#include "SampleControls.h"
#include "SampleSheet.h"
#include "ScriptedTest.h"
#include "framework/scripted/StepPlayer.h"

namespace qutav::test {
namespace {

using nlohmann::json;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class StepPlayerTest : public ScriptedTest {
 protected:
  StepPlayerTest() {
    sheet.AddPage(general);
    sheet.AddPage(icons);
    dialog.button.onClick = [this] { dialog.EndDialog(kIdOk); };
    dialog.Add<Button>(u"Cancel").onClick = [this] { dialog.OnCancel(); };
  }
  // Runs the dialog with one answer of these members.
  int RunDialog(const std::string& members) {
    Answers("{\"to\": \"dialog\", " + members + "}");
    return dialog.DoModal();
  }
  int RunSheet(const std::string& members) {
    Answers("{\"to\": \"sheet\", " + members + "}");
    return sheet.DoModal();
  }
  // The record of a control, by its label, in an event.
  static json RecordOf(const json& event, const std::string& label) {
    for (const json& control : event.at("controls")) {
      if (control.at("label") == label) return control;
    }
    return {};
  }

  ControlsDialog dialog;
  SampleSheet sheet{0};
  SamplePage general{u"General", sheet.events};
  SamplePage icons{u"Icons", sheet.events};
};

TEST_F(StepPlayerTest, EachKindOfControlTakesItsValue) {
  EXPECT_EQ(RunDialog(R"("set": {"Name:": "Game", "Certificate:": "C:\\c.p12",
                                 "Orientation:": "Portrait", "Full screen": true, "Debug": true,
                                 "CAMERA": true},
                         "press": "OK")"),
            kIdOk);

  EXPECT_EQ(dialog.edit.text, u"Game");
  EXPECT_EQ(dialog.editable.text, u"C:\\c.p12");
  EXPECT_EQ(dialog.dropList.text, u"Portrait");
  EXPECT_TRUE(dialog.box.checked);
  EXPECT_TRUE(dialog.debug.checked);
  EXPECT_THAT(dialog.checkList.CheckedRows(), ElementsAre(u"CAMERA"));
  EXPECT_THAT(Mistakes(), IsEmpty());
}

TEST_F(StepPlayerTest, EachKindOfListTakesARowsText) {
  EXPECT_EQ(RunDialog(R"("select": {"Sizes": "48x48", "Orientation:": "Auto",
                                    "Certificate:": "C:\\b.p12", "Permissions": "CAMERA"},
                         "press": "OK")"),
            kIdOk);

  EXPECT_EQ(dialog.listBox.GetCurSel(), 1);
  EXPECT_EQ(dialog.dropList.GetCurSel(), 0);
  EXPECT_EQ(dialog.editable.GetCurSel(), 1);
  EXPECT_EQ(dialog.checkList.FirstSelected(), 1);
  EXPECT_THAT(Mistakes(), IsEmpty());
}

TEST_F(StepPlayerTest, WithinAStepRowsComeBeforeValuesAndValuesBeforeButtons) {
  std::vector<std::string> order;
  dialog.listBox.onSelectionChange = [&] { order.push_back("select"); };
  dialog.box.onClick = [&] { order.push_back("set"); };
  dialog.browse.onClick = [&] { order.push_back("press"); };

  RunDialog(R"("press": "Browse", "set": {"Full screen": true}, "select": {"Sizes": "36x36"})");

  EXPECT_THAT(order, ElementsAre("select", "set", "press"));
}

TEST_F(StepPlayerTest, AnAnswersOwnMembersComeBeforeItsSteps) {
  std::vector<std::u16string> chosen;
  dialog.listBox.onSelectionChange = [&] {
    chosen.push_back(dialog.listBox.GetRow(dialog.listBox.GetCurSel()));
  };

  EXPECT_EQ(RunDialog(R"("steps": [{"select": {"Sizes": "48x48"}}, {"press": "OK"}],
                         "select": {"Sizes": "36x36"})"),
            kIdOk);

  EXPECT_THAT(chosen, ElementsAre(u"36x36", u"48x48"));
}

TEST_F(StepPlayerTest, ADialogThatHasEndedTakesNoFurtherStep) {
  RunDialog(R"("press": "OK", "steps": [{"set": {"Name:": "late"}, "show": true}])");

  EXPECT_EQ(dialog.edit.text, u"");
  EXPECT_THAT(Events("controls"), IsEmpty());
  EXPECT_THAT(Mistakes(), IsEmpty());
}

TEST_F(StepPlayerTest, ARowThatIsNotThereIsAMistake) {
  EXPECT_EQ(RunDialog(R"("select": {"Sizes": "1x1"}, "press": "OK")"), kIdCancel);

  EXPECT_THAT(Mistakes(), ElementsAre("CControls: no row \"1x1\" to choose in \"Sizes\""));
}

TEST_F(StepPlayerTest, AValueThatADropListDoesNotHaveIsAMistake) {
  EXPECT_EQ(RunDialog(R"("set": {"Orientation:": "Sideways"}, "press": "OK")"), kIdCancel);

  EXPECT_THAT(Mistakes(),
              ElementsAre("CControls: no control \"Orientation:\" that takes this value"));
}

TEST_F(StepPlayerTest, ADisabledControlIsRefused) {
  dialog.edit.enabled = false;

  EXPECT_EQ(RunDialog(R"("set": {"Name:": "x"}, "press": "OK")"), kIdCancel);

  EXPECT_EQ(dialog.edit.text, u"");
  EXPECT_THAT(Mistakes(), ElementsAre("CControls: no control \"Name:\" that takes this value"));
}

TEST_F(StepPlayerTest, ADisabledListIsRefused) {
  dialog.listBox.enabled = false;
  dialog.checkList.enabled = false;

  EXPECT_EQ(RunDialog(R"("select": {"Sizes": "48x48"})"), kIdCancel);
  EXPECT_EQ(RunDialog(R"("set": {"CAMERA": true})"), kIdCancel);

  EXPECT_THAT(Mistakes(), ElementsAre("CControls: no row \"48x48\" to choose in \"Sizes\"",
                                      "CControls: no control \"CAMERA\" that takes this value"));
}

TEST_F(StepPlayerTest, AfterAMistakeNothingMoreIsDone) {
  RunDialog(R"("set": {"Nome:": "x", "Zoo": "y"}, "press": ["OK", "Browse"])");

  EXPECT_THAT(Mistakes(), ElementsAre("CControls: no control \"Nome:\" that takes this value"));
}

TEST_F(StepPlayerTest, ADialogHasNoPagesToTurnTo) {
  EXPECT_EQ(RunDialog(R"("page": "General", "press": "OK")"), kIdCancel);

  EXPECT_THAT(Mistakes(), ElementsAre("CControls: no page \"General\""));
}

TEST_F(StepPlayerTest, WhatAHandlerLeavesUncaughtIsShownAndTheScriptGoesOn) {
  dialog.browse.onClick = [] { throw std::runtime_error("bad profile"); };

  EXPECT_EQ(RunDialog(R"("press": ["Browse", "OK"])"), kIdOk);

  ASSERT_EQ(Events("message").size(), 1u);
  EXPECT_EQ(Events("message").at(0).at("text"), "Unknown error.\n\nbad profile");
  EXPECT_EQ(Events("message").at(0).at("icon"), "warning");
  EXPECT_EQ(Events("closed").at(0).at("answer"), "OK");
}

TEST_F(StepPlayerTest, ControlsAreWrittenOnRequestAsTheyStandNow) {
  RunDialog(R"("set": {"Name:": "Game"}, "show": true, "press": "Browse")");

  ASSERT_EQ(Events("controls").size(), 1u);
  const json shown = Events("controls").at(0);
  EXPECT_EQ(shown.at("class"), "CControls");
  EXPECT_EQ(shown.at("title"), "");
  EXPECT_EQ(RecordOf(shown, "Name:").at("text"), "Game");
  EXPECT_EQ(RecordOf(Events("dialog").at(0), "Name:").at("text"), "");
}

TEST_F(StepPlayerTest, EachKindOfControlIsWrittenWithItsState) {
  dialog.editable.SetCurSel(1);
  dialog.listBox.SetCurSel(0);
  dialog.checkList.SetCheck(1, true);
  dialog.checkList.SetSelected(1, true);
  dialog.picture.Paint(std::make_shared<Image>(), {8, 9, 56, 57});
  dialog.browse.enabled = false;
  dialog.box.visible = false;

  dialog.DoModal();

  const json opened = Events("dialog").at(0);
  EXPECT_EQ(RecordOf(opened, "Heading"),
            (json{{"label", "Heading"}, {"kind", "text"}, {"text", ""}}));
  EXPECT_EQ(RecordOf(opened, "Path:"),
            (json{{"label", "Path:"}, {"kind", "read-only edit"}, {"text", "as it stands"}}));
  EXPECT_EQ(RecordOf(opened, "Certificate:"), (json{{"label", "Certificate:"},
                                                    {"kind", "combo box"},
                                                    {"text", "C:\\b.p12"},
                                                    {"rows", {"C:\\a.p12", "C:\\b.p12"}},
                                                    {"selected", 1}}));
  EXPECT_EQ(RecordOf(opened, "Orientation:"), (json{{"label", "Orientation:"},
                                                    {"kind", "drop list"},
                                                    {"text", ""},
                                                    {"rows", {"Auto", "Portrait"}},
                                                    {"selected", -1}}));
  EXPECT_EQ(RecordOf(opened, "Sizes"), (json{{"label", "Sizes"},
                                             {"kind", "list box"},
                                             {"text", ""},
                                             {"rows", {"36x36", "48x48"}},
                                             {"selected", 0}}));
  EXPECT_EQ(RecordOf(opened, "Permissions"),
            json::parse(R"({"label": "Permissions", "kind": "check list", "text": "",
                            "rows": [{"text": "INTERNET", "checked": false},
                                     {"text": "CAMERA", "checked": true}], "selected": 1})"));
  EXPECT_EQ(RecordOf(opened, "Full screen"), (json{{"label", "Full screen"},
                                                   {"kind", "check box"},
                                                   {"text", ""},
                                                   {"checked", false},
                                                   {"visible", false}}));
  EXPECT_EQ(
      RecordOf(opened, "Release"),
      (json{{"label", "Release"}, {"kind", "radio button"}, {"text", ""}, {"checked", true}}));
  EXPECT_EQ(
      RecordOf(opened, "Browse"),
      (json{{"label", "Browse"}, {"kind", "image button"}, {"text", ""}, {"enabled", false}}));
  EXPECT_EQ(
      RecordOf(opened, "Preview"),
      (json{{"label", "Preview"}, {"kind", "picture"}, {"text", ""}, {"painted", {8, 9, 56, 57}}}));
  EXPECT_EQ(RecordOf(opened, "Progress"),
            (json{{"label", "Progress"}, {"kind", "progress"}, {"text", ""}}));
}

TEST_F(StepPlayerTest, KindsOfEditFieldsAndGroupsHaveTheirNames) {
  dialog.Add<GroupBox>(u"Group");
  dialog.Add<Edit>(u"Lines").style = EditStyle::kMultiLine;
  dialog.Add<Edit>(u"Digits").style = EditStyle::kDigits;

  dialog.DoModal();

  const json opened = Events("dialog").at(0);
  EXPECT_EQ(RecordOf(opened, "Group").at("kind"), "group");
  EXPECT_EQ(RecordOf(opened, "Lines").at("kind"), "multi-line edit");
  EXPECT_EQ(RecordOf(opened, "Digits").at("kind"), "number edit");
}

TEST_F(StepPlayerTest, APictureWithoutAnImageIsNotPainted) {
  dialog.picture.Clear(kLightGrey);

  dialog.DoModal();

  EXPECT_FALSE(RecordOf(Events("dialog").at(0), "Preview").contains("painted"));
}

TEST_F(StepPlayerTest, AFieldIsWrittenWithItsCaptionAsShown) {
  language.SetThreadInterfaceLanguage(1062);
  dialog.Add<Edit>(u"Password:", 9021);

  dialog.DoModal();

  EXPECT_EQ(RecordOf(Events("dialog").at(0), "Password:"),
            (json{{"label", "Password:"},
                  {"kind", "edit"},
                  {"text", ""},
                  {"caption", "[su] $_Password:_#"}}));
}

TEST_F(StepPlayerTest, APasswordThatWasTypedIsMaskedWhenItIsShown) {
  dialog.Add<Edit>(u"Password:").style = EditStyle::kPassword;

  RunDialog(R"("set": {"Password:": "secret"}, "show": true)");

  EXPECT_EQ(RecordOf(Events("controls").at(0), "Password:").at("text"), "***");
  EXPECT_EQ(folder.BytesOf("transcript").find("secret"), std::string::npos);
}

TEST_F(StepPlayerTest, AListOfControlsThatIsNotAskedForIsNotWritten) {
  RunDialog(R"("press": "OK", "show": false)");

  EXPECT_THAT(Events("controls"), IsEmpty());
}

TEST_F(StepPlayerTest, APictureIsAMistakeWhereThereIsNoWindow) {
  EXPECT_EQ(RunDialog(R"("picture": "dialog.png", "steps": [{"press": "OK"}])"), kIdCancel);

  EXPECT_THAT(Mistakes(), ElementsAre("CControls: no picture can be written to dialog.png"));
}

TEST_F(StepPlayerTest, APictureIsTakenLast) {
  RunDialog(R"("picture": "dialog.png", "press": "Browse", "show": true)");

  EXPECT_THAT(Events("controls"), SizeIs(1));
  EXPECT_THAT(Mistakes(), SizeIs(1));
}

TEST_F(StepPlayerTest, ADialogThatHasEndedIsNotPictured) {
  EXPECT_EQ(RunDialog(R"("picture": "dialog.png", "press": "OK")"), kIdOk);

  EXPECT_THAT(Mistakes(), IsEmpty());
}

TEST_F(StepPlayerTest, ThePageInFrontIsWrittenWhenTheSheetOpens) {
  general.Add<Edit>(u"Version:").text = u"1.0.0";

  RunSheet(R"("press": "OK")");

  EXPECT_THAT(Events("page"),
              ElementsAre(json{
                  {"event", "page"},
                  {"index", 0},
                  {"class", "CSamplePageGeneral"},
                  {"title", ""},
                  {"controls", {{{"label", "Version:"}, {"kind", "edit"}, {"text", "1.0.0"}}}}}));
}

TEST_F(StepPlayerTest, APageIsTurnedToByItsEnglishTitleAndWritten) {
  RunSheet(R"("page": "Icons", "press": "OK")");

  ASSERT_EQ(Events("page").size(), 2u);
  EXPECT_EQ(Events("page").at(1).at("index"), 1);
  EXPECT_EQ(Events("page").at(1).at("class"), "CSamplePageIcons");
  EXPECT_THAT(sheet.events, ElementsAre(u"create General", u"create Icons", u"OK",
                                        u"destroy General", u"destroy Icons"));
}

TEST_F(StepPlayerTest, APageThatTheSheetDoesNotHaveIsAMistake) {
  EXPECT_EQ(RunSheet(R"("page": "Permissions", "press": "OK")"), kIdCancel);

  EXPECT_THAT(Mistakes(), ElementsAre("CSampleSheet: no page \"Permissions\""));
}

TEST_F(StepPlayerTest, ControlsOfASheetAreThoseOfThePageInFront) {
  const auto& first = general.Add<Edit>(u"Path:");
  const auto& second = icons.Add<Edit>(u"Path:");

  RunSheet(R"("set": {"Path:": "one"},
              "steps": [{"page": "Icons", "set": {"Path:": "two"}}, {"press": "OK"}])");

  EXPECT_EQ(first.text, u"one");
  EXPECT_EQ(second.text, u"two");
}

TEST_F(StepPlayerTest, AControlOfAPageBehindIsAMistake) {
  icons.Add<Edit>(u"Path:");

  EXPECT_EQ(RunSheet(R"("set": {"Path:": "x"}, "press": "OK")"), kIdCancel);

  EXPECT_THAT(Mistakes(), ElementsAre("CSampleSheet: no control \"Path:\" that takes this value"));
}

TEST_F(StepPlayerTest, ButtonsAreThoseOfThePageOrElseOfTheSheet) {
  general.Add<Button>(u"Browse...").onClick = [this] { sheet.events.push_back(u"browse"); };
  general.Add<Button>(u"Publish").onClick = [this] { sheet.events.push_back(u"page's publish"); };

  RunSheet(R"("press": ["Browse...", "Publish", "Help"],
              "steps": [{"page": "Icons", "press": ["Publish", "OK"]}])");

  EXPECT_THAT(sheet.events,
              ElementsAre(u"create General", u"browse", u"page's publish", u"Help", u"create Icons",
                          u"Publish", u"OK", u"destroy General", u"destroy Icons"));
}

TEST_F(StepPlayerTest, EachButtonOfASheetIsWritten) {
  RunSheet(R"("press": ["Publish", "OK"])");

  EXPECT_THAT(Events("pressed"),
              ElementsAre(json{{"event", "pressed"}, {"title", ""}, {"button", "Publish"}},
                          json{{"event", "pressed"}, {"title", ""}, {"button", "OK"}}));
}

TEST_F(StepPlayerTest, OnASheetThePageInFrontIsShown) {
  icons.Add<ListBox>(u"Sizes").AddString(u"icon 36x36");

  RunSheet(R"("page": "Icons", "select": {"Sizes": "icon 36x36"}, "show": true)");

  ASSERT_EQ(Events("controls").size(), 1u);
  EXPECT_EQ(Events("controls").at(0).at("class"), "CSamplePageIcons");
  EXPECT_EQ(RecordOf(Events("controls").at(0), "Sizes").at("selected"), 0);
}

TEST_F(StepPlayerTest, APageWhoseLoadingFailsIsToldAndTheScriptGoesOn) {
  class FailingPage : public SamplePage {
   public:
    using SamplePage::SamplePage;

   protected:
    bool OnInitDialog() override { throw std::out_of_range("short name"); }
  } failing(u"Permissions", sheet.events);
  sheet.AddPage(failing);

  EXPECT_EQ(RunSheet(R"("page": "Permissions", "press": "OK")"), kIdOk);

  EXPECT_EQ(Events("message").at(0).at("text"), "Unknown error.\n\nshort name");
}

}  // namespace
}  // namespace qutav::test
