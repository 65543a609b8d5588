#include "DescriptorTest.h"
#include "descriptor/DescriptorDocument.h"
#include "packaging/DocumentDescriptor.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav::test {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;
using ::testing::internal::CaptureStdout;
using ::testing::internal::GetCapturedStdout;

constexpr char kPlain[] =
    "<application xmlns=\"http://ns.zenvoka.example/tav/application/33.0\"><id>a.b</id>"
    "</application>";

std::string WithNamespace(const std::string& format) {
  return "<application xmlns=\"http://ns.zenvoka.example/tav/application/" + format +
         "\"><id>a.b</id></application>";
}

class DescriptorDocumentTest : public DescriptorTest {
 protected:
  std::u16string Id() const {
    std::u16string id = u"unread";
    CurrentDescriptor.GetText("id", id);
    return id;
  }
};

TEST_F(DescriptorDocumentTest, TheParserIsReadyFromItsStartToTheClose) {
  EXPECT_FALSE(CurrentDescriptor.IsParserReady());

  EXPECT_EQ(CurrentDescriptor.InitParser(), 0);
  EXPECT_TRUE(CurrentDescriptor.IsParserReady());

  EXPECT_EQ(CurrentDescriptor.Close(), 0);
  EXPECT_FALSE(CurrentDescriptor.IsParserReady());
}

TEST_F(DescriptorDocumentTest, ClosingAClosedDocumentGivesZero) {
  EXPECT_EQ(CurrentDescriptor.Close(), 0);
}

TEST_F(DescriptorDocumentTest, ClosingForgetsPathAndDom) {
  Load(kPlain);

  CurrentDescriptor.Close();

  EXPECT_FALSE(CurrentDescriptor.IsLoadedFrom(kDescriptorPath));
  EXPECT_FALSE(CurrentDescriptor.IsLoadedFrom(u""));
  EXPECT_EQ(Id(), u"unread");
}

TEST_F(DescriptorDocumentTest, AfterAClosingAParseIsOfNoKnownPath) {
  Load(kPlain);
  CurrentDescriptor.Close();

  CurrentDescriptor.InitParser();
  CurrentDescriptor.ParseFile(kDescriptorPath);

  EXPECT_FALSE(CurrentDescriptor.IsLoadedFrom(kDescriptorPath));
}

TEST_F(DescriptorDocumentTest, ADescriptorOfACurrentFormatLoads) {
  EXPECT_EQ(Load(kPlain), kLoaded);
  EXPECT_TRUE(CurrentDescriptor.IsLoadedFrom(kDescriptorPath));
  EXPECT_EQ(Id(), u"a.b");
}

TEST_F(DescriptorDocumentTest, ADescriptorWithoutNamespaceLoads) {
  EXPECT_EQ(Load("<application><id>a.b</id></application>"), kLoaded);
  EXPECT_TRUE(CurrentDescriptor.IsLoadedFrom(kDescriptorPath));
}

TEST_F(DescriptorDocumentTest, TheFirstReleasedFormatsLoad) {
  EXPECT_EQ(Load(WithNamespace("1.0")), kLoaded);
  EXPECT_EQ(Load(WithNamespace("1.1")), kLoaded);
}

TEST_F(DescriptorDocumentTest, TheMilestoneFormatsAreRefusedWithFive) {
  EXPECT_EQ(Load(WithNamespace("1.0.M5")), kMilestoneFormat);
  EXPECT_EQ(Load(WithNamespace("1.0.M6")), kMilestoneFormat);
  EXPECT_EQ(Load(WithNamespace("1.0.M6.extra")), kMilestoneFormat);
}

TEST_F(DescriptorDocumentTest, OtherMilestonesAndOtherCasesLoad) {
  EXPECT_EQ(Load(WithNamespace("1.0.M4")), kLoaded);
  EXPECT_EQ(Load(WithNamespace("1.0.m5")), kLoaded);
}

TEST_F(DescriptorDocumentTest, AFileWithoutApplicationGivesOne) {
  EXPECT_EQ(Load("<Application xmlns=\"x\"/>"), kNoApplication);
}

TEST_F(DescriptorDocumentTest, AnApplicationBelowAnotherRootLoads) {
  EXPECT_EQ(Load("<root><application xmlns=\"x\"/></root>"), kLoaded);
}

TEST_F(DescriptorDocumentTest, ARefusedFormatLeavesItsDomUnderTheEarlierPath) {
  Load(kPlain);
  files.Put(u"C:/docs/Early-app.xml",
            "<application xmlns=\"http://h/1.0.M5\"><id>early</id></application>");

  EXPECT_EQ(CurrentDescriptor.Load(u"C:\\docs\\Early-app.xml"), kMilestoneFormat);

  EXPECT_TRUE(CurrentDescriptor.IsLoadedFrom(kDescriptorPath));
  EXPECT_FALSE(CurrentDescriptor.IsLoadedFrom(u"C:\\docs\\Early-app.xml"));
  EXPECT_EQ(Id(), u"early");
}

TEST_F(DescriptorDocumentTest, AForeignRootLeavesItsDomUnderTheEarlierPath) {
  Load(kPlain);
  files.Put(u"C:/docs/Other.xml", "<other><id>foreign</id></other>");

  EXPECT_EQ(CurrentDescriptor.Load(u"C:\\docs\\Other.xml"), kNoApplication);

  EXPECT_TRUE(CurrentDescriptor.IsLoadedFrom(kDescriptorPath));
  EXPECT_EQ(Id(), u"foreign");
}

TEST_F(DescriptorDocumentTest, AMissingFileGivesMinusOneAndClearsTheLoadedMark) {
  Load(kPlain);

  CaptureStdout();
  const int result = CurrentDescriptor.Load(u"C:\\docs\\Missing-app.xml");
  const std::string printed = GetCapturedStdout();

  EXPECT_EQ(result, kLoadFailed);
  EXPECT_THAT(printed, EndsWith("\n"));
  EXPECT_FALSE(CurrentDescriptor.IsLoadedFrom(kDescriptorPath));
  EXPECT_FALSE(CurrentDescriptor.IsLoadedFrom(u"C:\\docs\\Missing-app.xml"));
}

TEST_F(DescriptorDocumentTest, AFailedLoadKeepsThePathForALaterParse) {
  Load(kPlain);
  CurrentDescriptor.Load(u"C:\\docs\\Missing-app.xml");
  files.Put(u"C:/docs/Other.xml", "<other/>");

  EXPECT_EQ(CurrentDescriptor.ParseFile(u"C:\\docs\\Other.xml"), 0);

  EXPECT_TRUE(CurrentDescriptor.IsLoadedFrom(kDescriptorPath));
}

TEST_F(DescriptorDocumentTest, AMalformedFilePrintsOneFixedLine) {
  CaptureStdout();
  const int result = Load("<application><id></application>");
  const std::string printed = GetCapturedStdout();

  EXPECT_EQ(result, kLoadFailed);
  EXPECT_EQ(printed, "Unexpected Exception \n");
  EXPECT_FALSE(CurrentDescriptor.IsLoadedFrom(kDescriptorPath));
}

TEST_F(DescriptorDocumentTest, AFileCutOffAnywhereGivesMinusOne) {
  const std::string whole = kPlain;
  CaptureStdout();
  for (std::size_t length = 0; length < whole.size(); ++length) {
    EXPECT_EQ(Load(whole.substr(0, length)), kLoadFailed) << length;
  }
  GetCapturedStdout();

  EXPECT_EQ(Load(whole), kLoaded);
}

TEST_F(DescriptorDocumentTest, BytesThatAreNoTextGiveMinusOne) {
  CaptureStdout();
  EXPECT_EQ(Load("<application><id>\xFF\xFE\xC3(</id></application>"), kLoadFailed);
  EXPECT_EQ(Load(std::string_view("\0\0\0\0", 4)), kLoadFailed);
  GetCapturedStdout();
}

TEST_F(DescriptorDocumentTest, EntitiesThatMultiplyWithoutEndGiveMinusOne) {
  std::string bomb = "<!DOCTYPE application [<!ENTITY e0 \"lol\">";
  for (int i = 1; i < 30; ++i) {
    const std::string below = "&e" + std::to_string(i - 1) + ";";
    bomb += "<!ENTITY e" + std::to_string(i) + " \"" + below + below + below + below + "\">";
  }
  bomb += "]><application><name>&e29;</name></application>";

  CaptureStdout();
  const int result = Load(bomb);
  GetCapturedStdout();

  EXPECT_EQ(result, kLoadFailed);
}

TEST_F(DescriptorDocumentTest, AnEntityOfTheFileItselfIsExpanded) {
  Load("<!DOCTYPE application [<!ENTITY who \"Rho\">]><application><id>&who;</id></application>");

  EXPECT_EQ(Id(), u"Rho");
}

TEST_F(DescriptorDocumentTest, AFieldOfTwentyMegabytesIsReadWhole) {
  const std::size_t size = 20'000'000;
  EXPECT_EQ(LoadChildren("<description>" + std::string(size, 'd') + "</description>"), kLoaded);

  std::u16string text;
  EXPECT_EQ(CurrentDescriptor.GetText("description", text), 0);
  EXPECT_EQ(text.size(), size);
}

TEST_F(DescriptorDocumentTest, AnyXmlFileIsParsedWithoutADescriptorInIt) {
  files.Put(u"C:/config/Markets.xml", "<markets><id>m</id></markets>");
  CurrentDescriptor.InitParser();

  EXPECT_EQ(CurrentDescriptor.ParseFile(u"C:\\config\\Markets.xml"), 0);

  EXPECT_EQ(Id(), u"m");
}

TEST_F(DescriptorDocumentTest, ParsingAMissingFileGivesMinusOne) {
  CurrentDescriptor.InitParser();
  CaptureStdout();
  EXPECT_EQ(CurrentDescriptor.ParseFile(u"C:\\config\\Markets.xml"), -1);
  GetCapturedStdout();
}

TEST_F(DescriptorDocumentTest, ElementNamesAreComparedAsWritten) {
  LoadChildren("<ID>upper</ID><a:id>prefixed</a:id><id>plain</id>");

  EXPECT_EQ(Id(), u"plain");
}

TEST_F(DescriptorDocumentTest, SavingLaysTheFileOutAndKeepsWhatItDoesNotKnow) {
  Load(
      "<?xml version=\"1.0\" encoding=\"utf-8\"?><!-- top --><application xmlns=\"n\"><id>a.b</id>"
      "<strange kind=\"1\"><!-- inner --><![CDATA[<x>]]></strange></application>");

  EXPECT_EQ(CurrentDescriptor.Save(kDescriptorPath), 0);

  EXPECT_EQ(files.BytesOf(kDescriptorPath),
            "<?xml version=\"1.0\" encoding=\"utf-8\" standalone=\"no\" ?>\n"
            "<!-- top -->\n"
            "<application xmlns=\"n\">\n"
            "  <id>a.b</id>\n"
            "  <strange kind=\"1\"><!-- inner --><![CDATA[<x>]]></strange>\n"
            "</application>\n");
}

TEST_F(DescriptorDocumentTest, ADocumentWithoutEncodingIsSavedInUtf8) {
  LoadChildren("<name>Tr\xC3\xA4ume</name>");

  CurrentDescriptor.Save(kDescriptorPath);

  EXPECT_THAT(files.BytesOf(kDescriptorPath),
              StartsWith("<?xml version=\"1.0\" encoding=\"UTF-8\""));
  EXPECT_THAT(files.BytesOf(kDescriptorPath), HasSubstr("<name>Tr\xC3\xA4ume</name>"));
}

TEST_F(DescriptorDocumentTest, ADocumentIsSavedInItsOwnEncoding) {
  Load("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><application><id>\xE4</id></application>");
  CurrentDescriptor.SetText("name", u"\u3042\u00FC");

  CurrentDescriptor.Save(kDescriptorPath);

  EXPECT_THAT(files.BytesOf(kDescriptorPath), HasSubstr("encoding=\"ISO-8859-1\""));
  EXPECT_THAT(files.BytesOf(kDescriptorPath), HasSubstr("<id>\xE4</id>"));
  EXPECT_THAT(files.BytesOf(kDescriptorPath), HasSubstr("<name>&#x3042;\xFC</name>"));
}

TEST_F(DescriptorDocumentTest, ASavedFileLoadsWithTheSameTexts) {
  LoadChildren("<id>a&amp;b &lt;c&gt;</id>");
  CurrentDescriptor.SetText("name", u"<\"Quotes\" & 'more'> \U0001F600");

  CurrentDescriptor.Save(kDescriptorPath);
  CurrentDescriptor.Load(kDescriptorPath);

  std::u16string name;
  CurrentDescriptor.GetText("name", name);
  EXPECT_EQ(name, u"<\"Quotes\" & 'more'> \U0001F600");
  EXPECT_EQ(Id(), u"a&b <c>");
}

TEST_F(DescriptorDocumentTest, SavingWithoutParserOrDocumentGivesMinusOne) {
  EXPECT_EQ(CurrentDescriptor.Save(kDescriptorPath), -1);

  CurrentDescriptor.InitParser();
  EXPECT_EQ(CurrentDescriptor.Save(kDescriptorPath), -1);
  EXPECT_FALSE(files.HasFile(kDescriptorPath));
}

TEST_F(DescriptorDocumentTest, SavingToAMissingFolderPrintsALineAndShowsNothing) {
  Load(kPlain);
  CurrentDescriptor.SetText("id", u"new");

  CaptureStdout();
  const int result = CurrentDescriptor.Save(u"C:\\nowhere\\Game-app.xml");
  const std::string printed = GetCapturedStdout();

  EXPECT_EQ(result, -1);
  EXPECT_THAT(printed, StartsWith("Exception message is: "));
  EXPECT_THAT(printed, EndsWith("\n"));
  EXPECT_TRUE(frontEnd.messages.empty());
  EXPECT_EQ(Id(), u"new") << "the DOM stays as it was";
}

TEST_F(DescriptorDocumentTest, AFailedSaveLeavesTheOldFile) {
  Load(kPlain);
  CurrentDescriptor.SetText("id", u"new");
  files.readOnly.insert(u"C:/docs/Game-app.xml");

  CaptureStdout();
  EXPECT_EQ(CurrentDescriptor.Save(kDescriptorPath), -1);
  GetCapturedStdout();

  EXPECT_EQ(files.BytesOf(kDescriptorPath), kPlain);
}

TEST_F(DescriptorDocumentTest, LoadingAgainThrowsUnsavedEditsAway) {
  Load(kPlain);
  CurrentDescriptor.SetText("id", u"edited");

  CurrentDescriptor.Load(kDescriptorPath);

  EXPECT_EQ(Id(), u"a.b");
}

// The document's descriptor, as the commands and the sheet load it.
class LoadedDocumentDescriptorTest : public DescriptorDocumentTest {
 protected:
  LoadedDocumentDescriptorTest() { UseDocument(u"C:/docs/", u"Game"); }

  static void UseDocument(const std::u16string& folder, const std::u16string& baseName) {
    SettingsSet(keys::kMovieFolder, folder);
    SettingsSet(keys::kMovieBaseName, baseName);
  }

  void PutSample(const std::string& format) {
    SettingsSet(keys::kSdkPath, u"C:/sdk");
    files.Put(u"C:/sdk/samples/descriptor-sample.xml", WithNamespace(format));
  }
};

TEST_F(LoadedDocumentDescriptorTest, APathThatDiffersOnlyInCaseIsParsedAgain) {
  files.Put(u"C:/docs/Game-app.xml", kPlain);
  files.Put(u"C:/docs/GAME-app.xml", WithNamespace("32.0"));
  LoadDocumentDescriptor(false);
  CurrentDescriptor.SetText("id", u"edited");
  UseDocument(u"C:/docs/", u"GAME");

  EXPECT_FALSE(CurrentDescriptor.IsLoadedFrom(u"C:\\docs\\GAME-app.xml"));
  EXPECT_EQ(LoadDocumentDescriptor(false), kLoaded);

  EXPECT_EQ(Id(), u"a.b");
}

TEST_F(LoadedDocumentDescriptorTest, UnsavedEditsSurviveASecondLoadUnlessItIsForced) {
  files.Put(u"C:/docs/Game-app.xml", kPlain);
  LoadDocumentDescriptor(false);
  CurrentDescriptor.SetText("id", u"edited");

  EXPECT_EQ(LoadDocumentDescriptor(false), kLoaded);
  EXPECT_EQ(Id(), u"edited");

  EXPECT_EQ(LoadDocumentDescriptor(true), kLoaded);
  EXPECT_EQ(Id(), u"a.b");
}

TEST_F(LoadedDocumentDescriptorTest, AnEarlyFormatIsOverwrittenWithoutAQuestion) {
  files.Put(u"C:/docs/Game-app.xml", WithNamespace("1.0.M5"));
  PutSample("33.0");

  EXPECT_EQ(LoadDocumentDescriptor(false), kLoaded);

  EXPECT_TRUE(frontEnd.messages.empty());
  EXPECT_EQ(Id(), u"Game");
  EXPECT_THAT(files.BytesOf(u"C:/docs/Game-app.xml"), HasSubstr("/tav/application/33.0\""));
}

TEST_F(LoadedDocumentDescriptorTest, AnEarlyFormatTwiceIsShownAndTheEarlierFileStaysTheLoadedOne) {
  files.Put(u"C:/docs/Other-app.xml", kPlain);
  UseDocument(u"C:/docs/", u"Other");
  LoadDocumentDescriptor(false);
  UseDocument(u"C:/docs/", u"Game");
  files.Put(u"C:/docs/Game-app.xml", WithNamespace("1.0.M6"));
  files.Put(u"C:/sdk/samples/descriptor-sample.xml", "<application/>");
  SettingsSet(keys::kSdkPath, u"C:/sdk");
  files.readOnly.insert(u"C:/docs/Game-app.xml");

  EXPECT_EQ(LoadDocumentDescriptor(false), kMilestoneFormat);

  EXPECT_THAT(frontEnd.Texts(),
              ::testing::ElementsAre(u"Application descriptor file cannot be parsed."));
  EXPECT_TRUE(CurrentDescriptor.IsLoadedFrom(u"C:\\docs\\Other-app.xml"));
  EXPECT_FALSE(CurrentDescriptor.IsLoadedFrom(u"C:\\docs\\Game-app.xml"));
}

TEST_F(LoadedDocumentDescriptorTest, StoringToAFolderThatIsGoneShowsNothing) {
  files.Put(u"C:/docs/Game-app.xml", kPlain);
  LoadDocumentDescriptor(false);
  UseDocument(u"C:/gone/", u"Game");

  CaptureStdout();
  EXPECT_EQ(SaveDocumentDescriptor(), -1);
  GetCapturedStdout();

  EXPECT_TRUE(frontEnd.messages.empty());
}

}  // namespace
}  // namespace qutav::test
