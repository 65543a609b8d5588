// Messages, dialogs and the sheet, answered by a script and written to a transcript.

#include "SampleSheet.h"
#include "ScriptedTest.h"
#include "platform/Text.h"
#include "settings_ui/ProgressDlg.h"
#include "settings_ui/TimestampRetryDlg.h"

namespace qutav::test {
namespace {

using nlohmann::json;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

// Two fields of one label, a password, a check box and buttons; no timer.
class SampleDialog : public CDialog {
 public:
  SampleDialog() : CDialog(u"CSample", 0, nullptr) {
    Add<Edit>(u"Name:");
    Add<Edit>(u"Name:");
    auto& secret = Add<Edit>(u"Secret:");
    secret.style = EditStyle::kPassword;
    secret.text = u"hidden";
    Add<Edit>(u"Empty:").style = EditStyle::kPassword;
    Add<CheckBox>(u"Remember");
    Add<Label>(u"Label");
    Add<Button>(u"OK").onClick = [this] { OnOK(); };
    Add<Button>(u"Cancel").onClick = [this] { OnCancel(); };
    auto& off = Add<Button>(u"Off");
    off.enabled = false;
    off.onClick = [this] { EndDialog(77); };
  }
  const Control& At(std::size_t index) const { return *Controls().at(index); }
  CheckBox& Remember() const { return Find<CheckBox>(*this, u"Remember"); }
};

class ScriptedFrontEndTest : public ScriptedTest {
 protected:
  int Show(MessageButtons buttons, const std::u16string& text = u"text") const {
    return scripted->ShowMessage({nullptr, u"T", text, MessageIcon::kWarning, buttons});
  }
  // The dialog is cancelled and the script's author told.
  void ExpectMistake(const std::string& answer, const std::string& text) {
    Answers(answer);
    SampleDialog dialog;
    EXPECT_EQ(dialog.DoModal(), kIdCancel);
    EXPECT_THAT(Mistakes(), ElementsAre(text));
    EXPECT_EQ(errors.str(), "The script is wrong. " + text + "\n");
  }
  // Runs a progress dialog whose work is done at a tick; its result.
  int RunProgress(std::size_t doneAt) {
    PolledByte done{0};
    clock.onSleep = [&] { done = clock.Sleeps().size() >= doneAt ? 1 : 0; };
    CProgressDlg dialog(nullptr);
    dialog.SetDoneFlag(&done);
    return dialog.DoModal();
  }
};

TEST_F(ScriptedFrontEndTest, WithoutAnAnswerAMessageGetsOkAndAQuestionCancel) {
  EXPECT_EQ(Show(MessageButtons::kOk), kIdOk);
  EXPECT_EQ(Show(MessageButtons::kOkCancel), kIdCancel);
}

TEST_F(ScriptedFrontEndTest, AMessageIsWrittenWithItsAnswer) {
  Answers(R"({"to": "message", "press": "OK"})");

  EXPECT_EQ(Show(MessageButtons::kOkCancel), kIdOk);

  EXPECT_THAT(Events(), ElementsAre(json{{"event", "message"},
                                         {"title", "T"},
                                         {"text", "text"},
                                         {"icon", "warning"},
                                         {"buttons", {"OK", "Cancel"}},
                                         {"answer", "OK"}}));
}

TEST_F(ScriptedFrontEndTest, IconsAndButtonsHaveTheirNames) {
  scripted->ShowMessage({nullptr, u"", u"", MessageIcon::kInformation, MessageButtons::kOk});
  scripted->ShowMessage({nullptr, u"", u"", MessageIcon::kPlain, MessageButtons::kOk});

  const auto events = Events("message");
  EXPECT_EQ(events.at(0).at("icon"), "information");
  EXPECT_EQ(events.at(0).at("buttons"), json{"OK"});
  EXPECT_EQ(events.at(1).at("icon"), "none");
}

TEST_F(ScriptedFrontEndTest, AMessageIsMetByItsText) {
  Answers(R"({"to": "message", "contains": "second", "press": "OK"})");

  EXPECT_EQ(Show(MessageButtons::kOkCancel, u"the first"), kIdCancel);
  EXPECT_EQ(Show(MessageButtons::kOkCancel, u"the second"), kIdOk);
  EXPECT_EQ(Show(MessageButtons::kOkCancel, u"the second"), kIdCancel);
}

TEST_F(ScriptedFrontEndTest, AButtonThatAMessageDoesNotHaveIsToldAndTheDefaultHolds) {
  Answers(R"({"to": "message", "press": "Cancel"}, {"to": "message", "press": "Yes"})");

  EXPECT_EQ(Show(MessageButtons::kOk), kIdOk);
  EXPECT_EQ(Show(MessageButtons::kOkCancel), kIdCancel);

  EXPECT_THAT(Mistakes(), ElementsAre("message \"text\": no button \"Cancel\" to press",
                                      "message \"text\": no button \"Yes\" to press"));
  EXPECT_THAT(errors.str(), HasSubstr("no button \"Yes\" to press"));
  EXPECT_EQ(Events("message").at(0).at("answer"), "OK");
  EXPECT_EQ(Events("message").at(1).at("answer"), "Cancel");
}

TEST_F(ScriptedFrontEndTest, ADialogWithoutATimerIsCancelledWithoutAnAnswer) {
  SampleDialog dialog;

  EXPECT_EQ(dialog.DoModal(), kIdCancel);

  EXPECT_THAT(Events("closed"), ElementsAre(json{{"event", "closed"},
                                                 {"class", "CSample"},
                                                 {"title", ""},
                                                 {"answer", "Cancel"},
                                                 {"result", 2}}));
}

TEST_F(ScriptedFrontEndTest, AFilledDialogIsPressed) {
  Answers(R"({"to": "dialog", "class": "CSample", "press": "OK",
              "set": {"Name:": "first", "Name:#2": "Tr\u00E4ume", "Secret:": "pw",
                      "Remember": true}})");
  SampleDialog dialog;

  EXPECT_EQ(dialog.DoModal(), kIdOk);

  EXPECT_EQ(dialog.At(0).text, u"first");
  EXPECT_EQ(dialog.At(1).text, u"Tr\u00E4ume");
  EXPECT_EQ(dialog.At(2).text, u"pw");
  EXPECT_TRUE(dialog.Remember().checked);
  EXPECT_EQ(Events("closed").at(0).at("answer"), "OK");
  EXPECT_THAT(Mistakes(), IsEmpty());
}

TEST_F(ScriptedFrontEndTest, ACheckBoxCanBeCleared) {
  Answers(R"({"to": "dialog", "set": {"Remember": false}, "press": "OK"})");
  SampleDialog dialog;
  dialog.Remember().checked = true;

  EXPECT_EQ(dialog.DoModal(), kIdOk);

  EXPECT_FALSE(dialog.Remember().checked);
}

TEST_F(ScriptedFrontEndTest, AFilledDialogWithoutAButtonToPressIsCancelled) {
  Answers(R"({"to": "dialog", "set": {"Name:": "first"}})");
  SampleDialog dialog;

  EXPECT_EQ(dialog.DoModal(), kIdCancel);

  EXPECT_EQ(dialog.At(0).text, u"first");
  EXPECT_THAT(Mistakes(), IsEmpty());
}

TEST_F(ScriptedFrontEndTest, ALabelThatNoControlHasIsAMistake) {
  ExpectMistake(R"({"to": "dialog", "set": {"Nome:": "x"}, "press": "OK"})",
                "CSample: no control \"Nome:\" that takes this value");
}

TEST_F(ScriptedFrontEndTest, AnOccurrenceThatIsNotThereIsAMistake) {
  ExpectMistake(R"({"to": "dialog", "set": {"Name:#3": "x"}, "press": "OK"})",
                "CSample: no control \"Name:#3\" that takes this value");
}

TEST_F(ScriptedFrontEndTest, ACheckBoxThatIsGivenATextIsAMistake) {
  ExpectMistake(R"({"to": "dialog", "set": {"Remember": "yes"}, "press": "OK"})",
                "CSample: no control \"Remember\" that takes this value");
}

TEST_F(ScriptedFrontEndTest, AValueForAButtonIsAMistake) {
  ExpectMistake(R"({"to": "dialog", "set": {"OK": "x"}, "press": "OK"})",
                "CSample: no control \"OK\" that takes this value");
}

TEST_F(ScriptedFrontEndTest, AValueForALabelIsAMistake) {
  ExpectMistake(R"({"to": "dialog", "set": {"Label": "x"}, "press": "OK"})",
                "CSample: no control \"Label\" that takes this value");
}

TEST_F(ScriptedFrontEndTest, AButtonThatADialogDoesNotHaveIsAMistake) {
  ExpectMistake(R"({"to": "dialog", "press": "Yes"})", "CSample: no button \"Yes\" to press");
}

TEST_F(ScriptedFrontEndTest, AButtonThatIsDisabledIsAMistake) {
  ExpectMistake(R"({"to": "dialog", "press": "Off"})", "CSample: no button \"Off\" to press");
}

TEST_F(ScriptedFrontEndTest, AControlThatIsNoButtonCannotBePressed) {
  ExpectMistake(R"({"to": "dialog", "press": "Remember"})",
                "CSample: no button \"Remember\" to press");
}

TEST_F(ScriptedFrontEndTest, AnOpenedDialogIsWrittenWithItsControlsAndMaskedPasswords) {
  SampleDialog dialog;

  dialog.DoModal();

  const json opened = Events("dialog").at(0);
  EXPECT_EQ(opened.at("class"), "CSample");
  EXPECT_EQ(opened.at("title"), "");
  const json& controls = opened.at("controls");
  ASSERT_EQ(controls.size(), 9u);
  EXPECT_EQ(controls[1], (json{{"label", "Name:"}, {"kind", "edit"}, {"text", ""}}));
  EXPECT_EQ(controls[2], (json{{"label", "Secret:"}, {"kind", "password"}, {"text", "***"}}));
  EXPECT_EQ(controls[3], (json{{"label", "Empty:"}, {"kind", "password"}, {"text", ""}}));
  EXPECT_EQ(controls[4],
            (json{{"label", "Remember"}, {"kind", "check box"}, {"text", ""}, {"checked", false}}));
  EXPECT_EQ(controls[6], (json{{"label", "OK"}, {"kind", "button"}, {"text", ""}}));
}

TEST_F(ScriptedFrontEndTest, ControlsAreAddressedInEnglishInWhateverLanguage) {
  language.SetThreadInterfaceLanguage(1062);
  Answers(R"({"to": "dialog", "press": "Disable Timestamping"})");

  EXPECT_EQ(CTimestampRetryDlg(nullptr).DoModal(), 12);

  const json control = Events("dialog").at(0).at("controls").at(2);
  EXPECT_EQ(control.at("label"), "Disable Timestamping");
  EXPECT_EQ(control.at("text"), "[su] $_Disable Timestamping_#");
}

TEST_F(ScriptedFrontEndTest, AProgressDialogRunsUntilItEndsItself) {
  EXPECT_EQ(RunProgress(3), 0);

  EXPECT_EQ(Events("tick").size(), 3u);
  EXPECT_EQ(Events("tick").at(2),
            (json{{"event", "tick"}, {"class", "CProgressDlg"}, {"count", 3}}));
  EXPECT_EQ(Events("closed").at(0).at("answer"), nullptr);
  EXPECT_EQ(Events("closed").at(0).at("result"), 0);
}

TEST_F(ScriptedFrontEndTest, AButtonAfterTwoTicksIsPressedAfterExactlyTwo) {
  Answers(R"({"to": "dialog", "class": "CProgressDlg", "after": 2, "press": "Cancel"})");

  EXPECT_EQ(RunProgress(9), kIdCancel);

  EXPECT_EQ(Events("tick").size(), 2u);
  EXPECT_EQ(clock.Sleeps().size(), 2u);
  EXPECT_EQ(Events("closed").at(0).at("answer"), "Cancel");
}

TEST_F(ScriptedFrontEndTest, AButtonAfterNoTickOrWithoutACountIsPressedAtOnce) {
  for (const char* after : {R"("after": 0, )", ""}) {
    Answers("{\"to\": \"dialog\", " + std::string(after) + "\"press\": \"Cancel\"}");

    EXPECT_EQ(RunProgress(9), kIdCancel);
  }

  EXPECT_THAT(Events("tick"), IsEmpty());
  EXPECT_THAT(clock.Sleeps(), IsEmpty());
}

TEST_F(ScriptedFrontEndTest, ADialogThatEndsBeforeItsButtonIsNotPressed) {
  Answers(R"({"to": "dialog", "after": 5, "press": "Cancel"})");

  EXPECT_EQ(RunProgress(2), 0);

  EXPECT_EQ(Events("closed").at(0).at("answer"), nullptr);
}

TEST_F(ScriptedFrontEndTest, TheButtonsOfASheetArePressedInTurn) {
  Answers(R"({"to": "sheet", "press": ["Publish", "OK"]})");
  SampleSheet sheet;

  EXPECT_EQ(sheet.DoModal(), kIdOk);

  EXPECT_THAT(sheet.events, ElementsAre(u"Publish", u"OK"));
}

TEST_F(ScriptedFrontEndTest, ASheetThatIsStillOpenIsCancelled) {
  Answers(R"({"to": "sheet", "press": "Publish"})");
  SampleSheet pressed;
  SampleSheet unanswered;

  EXPECT_EQ(pressed.DoModal(), kIdCancel);
  EXPECT_EQ(unanswered.DoModal(), kIdCancel);

  EXPECT_THAT(pressed.events, ElementsAre(u"Publish", u"Cancel"));
  EXPECT_THAT(unanswered.events, ElementsAre(u"Cancel"));
}

TEST_F(ScriptedFrontEndTest, ASheetThatHasEndedGetsNoFurtherButton) {
  Answers(R"({"to": "sheet", "press": ["OK", "Publish"]})");
  SampleSheet sheet;

  sheet.DoModal();

  EXPECT_THAT(sheet.events, ElementsAre(u"OK"));
}

TEST_F(ScriptedFrontEndTest, ASheetIsWrittenWithItsPageAndItsButtons) {
  Answers(R"({"to": "sheet", "press": "OK"})");
  SampleSheet sheet(3);

  sheet.DoModal();

  EXPECT_THAT(Events(), ElementsAre(json{{"event", "sheet"}, {"title", ""}, {"page", 3}},
                                    json{{"event", "pressed"}, {"title", ""}, {"button", "OK"}},
                                    json{{"event", "closed"},
                                         {"class", "CSampleSheet"},
                                         {"title", ""},
                                         {"answer", "OK"},
                                         {"result", 1}}));
}

TEST_F(ScriptedFrontEndTest, AButtonThatTheSheetDoesNotHaveIsToldAndTheSheetCancelled) {
  Answers(R"({"to": "sheet", "press": ["Save", "OK"]})");
  SampleSheet sheet;

  EXPECT_EQ(sheet.DoModal(), kIdCancel);

  EXPECT_THAT(Mistakes(), ElementsAre("CSampleSheet: no button \"Save\" to press"));
  EXPECT_THAT(sheet.events, ElementsAre(u"Cancel"));
}

}  // namespace
}  // namespace qutav::test
