#include "DescriptorTest.h"
#include "packaging/DocumentDescriptor.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::internal::CaptureStdout;
using ::testing::internal::GetCapturedStdout;

// A descriptor that was copied from an earlier name of the document to "My Game-app.xml".
class RetargetDescriptorTest : public DescriptorTest {
 protected:
  RetargetDescriptorTest() {
    SettingsSet(keys::kMovieFolder, u"C:/docs/");
    SettingsSet(keys::kMovieBaseName, u"My Game");
  }

  void PutDescriptor(const std::string& children) {
    files.Put(kPath, "<application xmlns=\"n\">" + children + "</application>");
  }

  std::string WrittenChildren() {
    const std::string text = WithoutLayout(files.BytesOf(kPath));
    const std::size_t start = text.find('>', text.find("<application")) + 1;
    return text.substr(start, text.rfind("</application>") - start);
  }

  static constexpr char16_t kPath[] = u"C:\\docs\\My Game-app.xml";
};

TEST_F(RetargetDescriptorTest, TheNewNameGoesIntoContentNameAndFilename) {
  PutDescriptor(
      "<filename>Old</filename><name>Old</name>"
      "<initialWindow><content>Old.qmv</content></initialWindow>");

  EXPECT_TRUE(RetargetDescriptor());

  EXPECT_EQ(WrittenChildren(),
            "<filename>My Game</filename><name>My Game</name>"
            "<initialWindow><content>My%20Game.qmv</content></initialWindow>");
  EXPECT_FALSE(CurrentDescriptor.IsParserReady()) << "the document is closed at the end";
}

TEST_F(RetargetDescriptorTest, ALocalisedNameStays) {
  PutDescriptor("<name><text xml:lang=\"en\">Old</text></name><filename>Old</filename>");

  EXPECT_TRUE(RetargetDescriptor());

  EXPECT_EQ(WrittenChildren(),
            "<name><text xml:lang=\"en\">Old</text></name><filename>My Game</filename>");
}

TEST_F(RetargetDescriptorTest, MissingFieldsAreAddedNameFirst) {
  PutDescriptor("<initialWindow/>");

  EXPECT_TRUE(RetargetDescriptor());

  EXPECT_EQ(WrittenChildren(),
            "<initialWindow><content>My%20Game.qmv</content></initialWindow>"
            "<name>My Game</name><filename>My Game</filename>");
}

TEST_F(RetargetDescriptorTest, WhatIsLoadedFromThePathAlreadyIsNotReadAgain) {
  PutDescriptor("<id>a</id>");
  LoadDocumentDescriptor(false);
  CurrentDescriptor.SetText("id", u"edited");

  EXPECT_TRUE(RetargetDescriptor());

  EXPECT_EQ(WrittenChildren(), "<id>edited</id><name>My Game</name><filename>My Game</filename>");
}

TEST_F(RetargetDescriptorTest, AnEarlyFormatIsGeneratedAnew) {
  files.Put(kPath, "<application xmlns=\"http://h/1.0.M5\"><id>old</id></application>");

  EXPECT_TRUE(RetargetDescriptor());

  EXPECT_THAT(WrittenChildren(), ::testing::StartsWith("<id>MyGame</id>"));
  EXPECT_TRUE(frontEnd.messages.empty());
}

TEST_F(RetargetDescriptorTest, AFileThatCannotBeParsedIsShown) {
  files.Put(kPath, "<application>");

  CaptureStdout();
  EXPECT_FALSE(RetargetDescriptor());
  GetCapturedStdout();

  EXPECT_THAT(frontEnd.Texts(), ElementsAre(u"Application descriptor file cannot be parsed."));
  EXPECT_EQ(files.BytesOf(kPath), "<application>");
}

TEST_F(RetargetDescriptorTest, AFileThatCannotBeWrittenIsPassedOverAndClosed) {
  PutDescriptor("<name>Old</name>");
  const std::string old = files.BytesOf(kPath);
  files.readOnly.insert(u"C:/docs/My Game-app.xml");

  CaptureStdout();
  EXPECT_TRUE(RetargetDescriptor());
  GetCapturedStdout();

  EXPECT_FALSE(CurrentDescriptor.IsParserReady());
  EXPECT_EQ(files.BytesOf(kPath), old);
  EXPECT_TRUE(frontEnd.messages.empty());
}

TEST_F(RetargetDescriptorTest, AnEarlyFormatThatCannotBeReplacedIsShownOnce) {
  files.Put(kPath, "<application xmlns=\"http://h/1.0.M5\"><id>old</id></application>");
  files.readOnly.insert(u"C:/docs/My Game-app.xml");

  EXPECT_FALSE(RetargetDescriptor());

  EXPECT_THAT(frontEnd.Texts(), ElementsAre(u"Application descriptor file cannot be parsed."));
}

TEST_F(RetargetDescriptorTest, TheNameOfAFileTypeAheadGetsTheNewName) {
  PutDescriptor(
      "<fileTypes><fileType><name>Movie</name></fileType></fileTypes><name>Old</name>"
      "<filename>Old</filename>");

  EXPECT_TRUE(RetargetDescriptor());

  EXPECT_EQ(WrittenChildren(),
            "<fileTypes><fileType><name>My Game</name></fileType></fileTypes><name>Old</name>"
            "<filename>My Game</filename>");
}

}  // namespace
}  // namespace qutav::test
