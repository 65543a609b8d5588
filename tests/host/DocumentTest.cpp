#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "TestFolder.h"
#include "host/Document.h"

namespace qutav::host {
namespace {

using ::testing::HasSubstr;

std::string ErrorOf(const std::filesystem::path& file) {
  try {
    Document::Load(file);
  } catch (const DocumentError& error) {
    return error.what();
  }
  return "";
}

TEST(DocumentTest, ReadsItsMembers) {
  const TestFolder folder;
  const auto file = folder.Write("Game.qud.json",
                                 R"({"playerTarget": "iPhone OS", "scriptVersion": "2",
                                     "stage": {"width": 320, "height": 480}, "movie": "out/G.qmv",
                                     "externalLibraryPath": "a.zux;b.zux", "debug": true})");
  const Document document = Document::Load(file);
  EXPECT_EQ(document.PlayerTarget(), "iPhone OS");
  EXPECT_EQ(document.ScriptVersion(), "2");
  EXPECT_EQ(document.Stage().width, 320);
  EXPECT_EQ(document.Stage().height, 480);
  EXPECT_EQ(document.MoviePath(), folder.Path() / "out" / "G.qmv");
  EXPECT_EQ(document.ExternalLibraryPath(), "a.zux;b.zux");
  EXPECT_TRUE(document.DebugFlag());
}

TEST(DocumentTest, MovieIsNamedAfterTheDocument) {
  const TestFolder folder;
  const Document game = Document::Load(folder.Write("My Game.qud.json", DocumentText("")));
  const Document other = Document::Load(folder.Write("Other.v2.json", DocumentText("")));
  EXPECT_EQ(game.MoviePath(), folder.Path() / "My Game.qmv");
  EXPECT_EQ(other.MoviePath(), folder.Path() / "Other.v2.qmv");
}

TEST(DocumentTest, OutputTypeIsFoundUnderItsDataKey) {
  const TestFolder folder;
  const auto file = folder.Write("a.qud.json",
                                 R"({"playerTarget": "Android", "outputType": "ipa",
                                     "stage": {"width": 1, "height": 1}})");
  const auto type = Document::Load(file).Data("com.zenvoka.quorl.lorvath.output.type");
  ASSERT_TRUE(type.has_value());
  EXPECT_EQ(*type, "ipa");
}

TEST(DocumentTest, SavingKeepsUnknownMembersAndTheOrder) {
  const TestFolder folder;
  const auto file = folder.Write("a.qud.json",
                                 R"({"zebra": [1, {"b": 1, "a": 2}], "playerTarget": "Android",
                                     "stage": {"height": 2, "width": 1},
                                     "data": {"z": "1", "a": "ü"}, "author": null})");
  Document document = Document::Load(file);
  document.AddData("new", "値");
  document.RemoveData("z");
  document.Save();
  const auto stored = Document::Json::parse(folder.Read("a.qud.json"));
  EXPECT_EQ(stored.dump(),
            R"({"zebra":[1,{"b":1,"a":2}],"playerTarget":"Android","stage":{"height":2,"width":1},)"
            R"("data":{"a":"ü","new":"値"},"author":null})");
}

TEST(DocumentTest, UnchangedDocumentIsNotWritten) {
  const TestFolder folder;
  const auto file = folder.Write("a.qud.json", DocumentText(R"("k":   "v")"));
  Document document = Document::Load(file);
  document.AddData("k", "other");
  document.AddData("k", "v");
  document.SetDebugFlag(false);
  document.Save();
  EXPECT_EQ(folder.Read("a.qud.json"), DocumentText(R"("k":   "v")"));
}

TEST(DocumentTest, FileThatAnotherProgramChangedIsNotOverwritten) {
  const TestFolder folder;
  const auto file = folder.Write("a.qud.json", DocumentText(""));
  Document document = Document::Load(file);
  document.AddData("k", "v");
  folder.Write("a.qud.json", DocumentText(R"("theirs": "1")"));
  EXPECT_THROW(document.Save(), DocumentError);
  EXPECT_EQ(folder.Read("a.qud.json"), DocumentText(R"("theirs": "1")"));
}

TEST(DocumentTest, SecondSaveFollowsTheFirst) {
  const TestFolder folder;
  Document document = Document::Load(folder.Write("a.qud.json", DocumentText("")));
  document.AddData("k", "1");
  document.Save();
  document.AddData("k", "2");
  document.Save();
  EXPECT_THAT(folder.Read("a.qud.json"), HasSubstr(R"("k": "2")"));
}

TEST(DocumentTest, SyntaxErrorNamesFileAndLine) {
  const TestFolder folder;
  const auto file = folder.Write("bad.qud.json", "{\n  \"playerTarget\": \"Android\",\n  oops\n}");
  EXPECT_THAT(ErrorOf(file), HasSubstr("bad.qud.json: line 3: "));
}

TEST(DocumentTest, EveryWrongMemberIsNamedAtOnce) {
  const TestFolder folder;
  const auto file = folder.Write("bad.qud.json",
                                 R"({"playerTarget": "", "stage": {"width": "800"},
                                     "debug": "yes", "data": {"k": [1]}})");
  const std::string error = ErrorOf(file);
  EXPECT_THAT(error, HasSubstr("member \"playerTarget\" must be a text that is not empty"));
  EXPECT_THAT(error, HasSubstr("member \"stage.width\" must be a whole number"));
  EXPECT_THAT(error, HasSubstr("member \"stage.height\" is missing"));
  EXPECT_THAT(error, HasSubstr("member \"debug\" must be true or false"));
  EXPECT_THAT(error, HasSubstr("member \"data.k\" must be a text or a number"));
}

TEST(DocumentTest, MissingStageIsToldOnce) {
  const TestFolder folder;
  const auto file = folder.Write("bad.qud.json", R"({"playerTarget": "Android"})");
  EXPECT_EQ(ErrorOf(file), file.string() + ": member \"stage\" is missing");
}

TEST(DocumentTest, FileOfAnotherKindIsRefused) {
  const TestFolder folder;
  EXPECT_THAT(ErrorOf(folder.Write("list.json", "[1, 2]")), HasSubstr("one JSON object"));
  EXPECT_THAT(ErrorOf(folder.Write("empty.json", "")), HasSubstr("line 1"));
  EXPECT_THAT(ErrorOf(folder.Path() / "gone.json"), HasSubstr("cannot be read"));
  EXPECT_THAT(ErrorOf(folder.Path()), HasSubstr("cannot be read"));
}

}  // namespace
}  // namespace qutav::host
