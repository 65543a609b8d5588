// File and folder dialogs and links in the scripted front end.

#include "ScriptedTest.h"

namespace qutav::test {
namespace {

using nlohmann::json;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ScriptedChoosersTest : public ScriptedTest {
 protected:
  ScriptedChoosersTest() { files.Put(u"C:/keys/my.p12"); }

  // What a dialog to open a certificate gives.
  std::optional<std::u16string> Open() { return scripted->ChooseFile(request); }
  std::optional<std::u16string> Save() {
    request.kind = FileDialogKind::kSave;
    return scripted->ChooseFile(request);
  }

  FileDialogRequest request{
      nullptr,    FileDialogKind::kOpen, u"Select", u"P12 File (*.p12)|*.p12||", u"p12", u"start",
      u"C:\\keys"};
};

TEST_F(ScriptedChoosersTest, WithoutAnAnswerNothingIsChosen) {
  EXPECT_EQ(Open(), std::nullopt);
  EXPECT_EQ(Save(), std::nullopt);
  EXPECT_EQ(scripted->ChooseFolder({nullptr, u"Choose", 0}), std::nullopt);

  EXPECT_EQ(Events("file").at(0).at("answer"), nullptr);
  EXPECT_EQ(Events("folder").at(0).at("answer"), nullptr);
}

TEST_F(ScriptedChoosersTest, AFileIsChosenAndWrittenWithAllThatWasShown) {
  Answers(R"({"to": "file", "choose": "C:\\keys\\my.p12"})");

  EXPECT_EQ(Open(), u"C:\\keys\\my.p12");

  EXPECT_THAT(Events(), ElementsAre(json{{"event", "file"},
                                         {"kind", "open"},
                                         {"title", "Select"},
                                         {"filter", "P12 File (*.p12)|*.p12||"},
                                         {"extension", "p12"},
                                         {"name", "start"},
                                         {"folder", "C:\\keys"},
                                         {"answer", "C:\\keys\\my.p12"}}));
}

TEST_F(ScriptedChoosersTest, SlashesOfEitherKindNameTheSameFile) {
  Answers(R"({"to": "file", "choose": "C:/keys/my.p12"})");

  EXPECT_EQ(Open(), u"C:\\keys\\my.p12");
}

TEST_F(ScriptedChoosersTest, AFileToOpenMustExist) {
  Answers(R"({"to": "file", "choose": "C:/keys/gone.p12"})");

  EXPECT_EQ(Open(), std::nullopt);

  EXPECT_THAT(Mistakes(), ElementsAre("file dialog: no file C:\\keys\\gone.p12 to open"));
  EXPECT_EQ(Events("file").at(0).at("answer"), nullptr);
}

TEST_F(ScriptedChoosersTest, AFileToSaveNeedNotExist) {
  Answers(R"({"to": "file", "choose": "C:/keys/new.p12"})");

  EXPECT_EQ(Save(), u"C:\\keys\\new.p12");

  EXPECT_THAT(Mistakes(), IsEmpty());
  EXPECT_EQ(Events("file").at(0).at("kind"), "save");
}

TEST_F(ScriptedChoosersTest, AFileDialogIsMetByItsFilter) {
  Answers(R"({"to": "file", "contains": "*.png", "choose": "C:/keys/icon.png"},
             {"to": "file", "contains": "*.p12", "choose": "C:/keys/my.p12"})");

  EXPECT_EQ(Open(), u"C:\\keys\\my.p12");
}

TEST_F(ScriptedChoosersTest, AFileDialogIsMetByItsTitle) {
  Answers(R"({"to": "file", "title": "Another", "choose": "C:/keys/my.p12"})");

  EXPECT_EQ(Open(), std::nullopt);
}

TEST_F(ScriptedChoosersTest, AnAnswerThatChoosesNothingCancels) {
  Answers(R"({"to": "file"}, {"to": "file", "choose": "C:/keys/my.p12"})");

  EXPECT_EQ(Open(), std::nullopt);
  EXPECT_EQ(Open(), u"C:\\keys\\my.p12");
}

TEST_F(ScriptedChoosersTest, AFolderIsChosen) {
  Answers(R"({"to": "file", "choose": "C:/wrong"}, {"to": "folder", "choose": "C:/keys/all"})");

  EXPECT_EQ(scripted->ChooseFolder({nullptr, u"Choose a folder", 0}), u"C:\\keys\\all");

  EXPECT_THAT(Events(),
              ElementsAre(json{
                  {"event", "folder"}, {"title", "Choose a folder"}, {"answer", "C:\\keys\\all"}}));
}

TEST_F(ScriptedChoosersTest, AnEmptyPathStandsForAFolderWithoutOne) {
  Answers(R"({"to": "folder", "choose": ""})");

  EXPECT_EQ(scripted->ChooseFolder({}), u"");

  EXPECT_EQ(Events("folder").at(0).at("answer"), "");
}

TEST_F(ScriptedChoosersTest, ALinkIsWrittenAndNotOpened) {
  scripted->OpenLink(u"https://www.zenvoka.example/go/learn");

  EXPECT_THAT(Events(), ElementsAre(json{{"event", "link"},
                                         {"url", "https://www.zenvoka.example/go/learn"}}));
  EXPECT_THAT(processes.CommandLines(), IsEmpty());
}

TEST_F(ScriptedChoosersTest, TextsHaveAWidthWhereNothingIsDrawn) {
  const Edit field;

  EXPECT_EQ(scripted->TextWidth(field, u"four"), 4 * scripted->AverageCharacterWidth(field));
  EXPECT_GT(scripted->AverageCharacterWidth(field), 0);
}

}  // namespace
}  // namespace qutav::test
