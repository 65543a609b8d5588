#include "ServicesTest.h"
#include "descriptor/DescriptorDocument.h"
#include "packaging/DescriptorGenerator.h"
#include "platform/Text.h"
#include "win/ExtensionCache.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav::test {
namespace {

constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";

// What stands before the root element.
constexpr char kHeading[] =
    "<?xml version =\"1.0\" encoding=\"utf-8\" ?><!-- \n"
    "\tUsage:\n"
    "\n"
    "\tTo localize the description, use the following format for the description element.\n"
    "\t<description>\n"
    "\t<text xml:lang=\"en\">English App description goes here</text>\n"
    "\t<text xml:lang=\"fr\">French App description goes here</text>\n"
    "\t<text xml:lang=\"ja\">Japanese App description goes here</text>\n"
    "\t</description>\n"
    "\n"
    "\tTo localize the name, use the following format for the name element.\n"
    "\t<name>\n"
    "\t<text xml:lang=\"en\">English App name goes here</text>\n"
    "\t<text xml:lang=\"fr\">French App name goes here</text>\n"
    "\t<text xml:lang=\"ja\">Japanese App name goes here</text>\n"
    "\t</name>\n"
    "-->\n";

class DescriptorGeneratorTest : public ServicesTest {
 protected:
  DescriptorGeneratorTest() {
    files.PutFolder(u"C:/m");
    SettingsSet(keys::kMovieFolder, u"C:/m/");
    SetBaseName(u"Game");
    SettingsSet(keys::kSdkPath, u"C:/sdk");
  }

  void SetBaseName(const std::u16string& name) {
    SettingsSet(keys::kMovieBaseName, name);
    path = u"C:/m/" + name + u"-app.xml";
  }
  void PutSample(const std::string& xmlNamespace) {
    files.Put(u"C:/sdk/samples/descriptor-sample.xml",
              "<application xmlns=\"" + xmlNamespace + "\"/>");
  }
  std::string Generated() {
    GenerateDefaultDescriptor();
    return files.BytesOf(path);
  }
  // What a parser reads from the generated file.
  std::u16string GeneratedText(const char* tag) {
    Generated();
    CurrentDescriptor.InitParser();
    std::u16string text;
    EXPECT_EQ(CurrentDescriptor.Load(path), kLoaded);
    EXPECT_EQ(CurrentDescriptor.GetText(tag, text), 0) << "the element " << tag;
    return text;
  }
  // The generated file from that tag to its end.
  std::string GeneratedElement(const std::string& tag) {
    const std::string text = Generated();
    const std::size_t start = text.find("<" + tag + ">", text.find("-->"));
    const std::string end = "</" + tag + ">";
    if (start == text.npos) return {};
    return text.substr(start, text.find(end, start) + end.size() - start);
  }
  void UseExtensions(const std::vector<std::u16string>& names) {
    ExtensionFileNames = names;
    ExtensionCacheFolder = u"C:\\temp\\Game_ZUX_Cache\\";
  }

  std::u16string path;
};

TEST_F(DescriptorGeneratorTest, WithoutSettingsTheMoviesNameAndTheDefaultsFillTheTemplate) {
  EXPECT_EQ(Generated(),
            std::string(kByteOrderMark) + kHeading +
                "<application xmlns=\"http://ns.zenvoka.example/tav/application/2.0\">"
                "<id>Game</id><versionNumber>1.0.0</versionNumber><versionLabel></versionLabel>"
                "<filename>Game</filename><description></description><name>Game</name>"
                "<copyright></copyright><initialWindow><content>Game.qmv</content>"
                "<systemChrome>standard</systemChrome><transparent>false</transparent>"
                "<visible>true</visible><fullScreen>false</fullScreen>"
                "<aspectRatio>portrait</aspectRatio><renderMode>cpu</renderMode>"
                "</initialWindow><icon></icon><customUpdateUI>false</customUpdateUI>"
                "<allowBrowserInvocation>false</allowBrowserInvocation></application>");
}

TEST_F(DescriptorGeneratorTest, SettingsAndSampleFillTheTemplate) {
  PutSample("http://ns.zenvoka.example/tav/application/33.1");
  SettingsSet(keys::kApplicationId, u"com.game");
  SettingsSet(keys::kApplicationName, u"GameFile");
  SettingsSet(keys::kShortName, u"The Game");
  SettingsSet(keys::kVersion, u"2.5.0");
  SettingsSet(keys::kDescription, u"A game");
  SettingsSet(keys::kCopyright, u"(c) us");
  SettingsSet(keys::kWindowType, u"transparent");
  SettingsSet(keys::kProgramMenu, u"Games");
  host.data[u"zux.id.a.zux"] = u"ext.a";
  UseExtensions({u"a.zux"});

  EXPECT_EQ(Generated(),
            std::string(kByteOrderMark) + kHeading +
                "<application xmlns=\"http://ns.zenvoka.example/tav/application/33.1\">"
                "<id>com.game</id><versionNumber>2.5.0</versionNumber>"
                "<versionLabel></versionLabel><filename>GameFile</filename>"
                "<description>A game</description><name>The Game</name>"
                "<copyright>(c) us</copyright><initialWindow><content>Game.qmv</content>"
                "<systemChrome>none</systemChrome><transparent>true</transparent>"
                "<visible>true</visible><fullScreen>false</fullScreen>"
                "<aspectRatio>portrait</aspectRatio><renderMode>cpu</renderMode>"
                "</initialWindow><extensions><extensionID>ext.a</extensionID></extensions>"
                "<programMenuFolder>Games</programMenuFolder><icon></icon>"
                "<customUpdateUI>false</customUpdateUI>"
                "<allowBrowserInvocation>false</allowBrowserInvocation></application>");
}

TEST_F(DescriptorGeneratorTest, ABlankInTheMoviesNameIsWrittenSoThatAParserReadsItEncoded) {
  SetBaseName(u"My Movie");

  EXPECT_EQ(GeneratedElement("content"), "<content>My&#37;20Movie.qmv</content>");
  EXPECT_EQ(GeneratedText("content"), u"My%20Movie.qmv");
  EXPECT_EQ(GeneratedElement("id"), "<id>MyMovie</id>");
}

TEST_F(DescriptorGeneratorTest, WithoutAMoviesNameTheContentIsTheExtensionAlone) {
  SetBaseName(u"");

  EXPECT_EQ(GeneratedElement("content"), "<content>.qmv</content>");
}

TEST_F(DescriptorGeneratorTest, TheIdLosesItsUnderscoresBlanksAndHyphens) {
  SettingsSet(keys::kApplicationId, u"com.x_y z");
  EXPECT_EQ(GeneratedElement("id"), "<id>com.xyz</id>");

  SettingsSet(keys::kApplicationId, u"-com.a-b-");
  EXPECT_EQ(GeneratedElement("id"), "<id>com.ab</id>");
}

TEST_F(DescriptorGeneratorTest, TheIdIsTheFirstOfIdNameAndMovieThatHasText) {
  SettingsSet(keys::kApplicationName, u"App Name");
  EXPECT_EQ(GeneratedElement("id"), "<id>AppName</id>");

  SettingsSet(keys::kApplicationId, u"com.id");
  EXPECT_EQ(GeneratedElement("id"), "<id>com.id</id>");
}

TEST_F(DescriptorGeneratorTest, ANameOutsideTheLettersOfAnIdGivesNoName) {
  SetBaseName(u"Tr\u00E4ume");

  EXPECT_EQ(GeneratedElement("id"), "<id>noName</id>");
  EXPECT_EQ(GeneratedElement("name"), "<name>Tr\xC3\xA4ume</name>");
}

TEST_F(DescriptorGeneratorTest, AnIdOf213CharactersGivesNoName) {
  SettingsSet(keys::kApplicationId, std::u16string(213, u'a'));
  EXPECT_EQ(GeneratedElement("id"), "<id>noName</id>");

  SettingsSet(keys::kApplicationId, std::u16string(212, u'a'));
  EXPECT_EQ(GeneratedElement("id"), "<id>" + std::string(212, 'a') + "</id>");
}

TEST_F(DescriptorGeneratorTest, AnIdOfHyphensAloneGivesNoName) {
  SettingsSet(keys::kApplicationId, u"-_ ");

  EXPECT_EQ(GeneratedElement("id"), "<id>noName</id>");
}

TEST_F(DescriptorGeneratorTest, WithoutAWindowTypeTheWindowHasItsChrome) {
  EXPECT_EQ(GeneratedElement("systemChrome"), "<systemChrome>standard</systemChrome>");
  EXPECT_EQ(GeneratedElement("transparent"), "<transparent>false</transparent>");
}

TEST_F(DescriptorGeneratorTest, AnOpaqueWindowHasNoChromeAndIsNotTransparent) {
  SettingsSet(keys::kWindowType, u"opaque");

  EXPECT_EQ(GeneratedElement("systemChrome"), "<systemChrome>none</systemChrome>");
  EXPECT_EQ(GeneratedElement("transparent"), "<transparent>false</transparent>");
}

TEST_F(DescriptorGeneratorTest, WithoutPackagesThereIsNoExtensionsElement) {
  UseExtensions({});

  EXPECT_EQ(GeneratedElement("extensions"), "");
}

TEST_F(DescriptorGeneratorTest, PackagesWithoutAKnownIdLeaveAnEmptyExtensionsElement) {
  UseExtensions({u"a.zux", u"b.zux"});

  EXPECT_EQ(GeneratedElement("extensions"), "<extensions></extensions>");
}

TEST_F(DescriptorGeneratorTest, APackageWithoutAnIdIsLeftOut) {
  UseExtensions({u"a.zux", u"b.zux", u"c.zux"});
  host.data[u"zux.id.a.zux"] = u"ext.a";
  host.data[u"zux.id.c.zux"] = u"ext.c";

  EXPECT_EQ(GeneratedElement("extensions"),
            "<extensions><extensionID>ext.a</extensionID><extensionID>ext.c</extensionID>"
            "</extensions>");
}

TEST_F(DescriptorGeneratorTest, AFileNameMayHoldWhatAnIdMayNot) {
  SettingsSet(keys::kApplicationName, u"My_App 1");

  EXPECT_EQ(GeneratedElement("filename"), "<filename>My_App 1</filename>");
}

TEST_F(DescriptorGeneratorTest, ValuesAreNotEscaped) {
  SettingsSet(keys::kDescription, u"<text xml:lang=\"en\">a & b</text>");

  EXPECT_EQ(GeneratedElement("description"),
            "<description><text xml:lang=\"en\">a & b</text></description>");
}

TEST_F(DescriptorGeneratorTest, TheTextIsAFormatSoOfTwoPercentSignsOneIsLeft) {
  SettingsSet(keys::kDescription, u"100%% of 5%");

  EXPECT_EQ(GeneratedElement("description"), "<description>100% of 5%</description>");
}

TEST_F(DescriptorGeneratorTest, LineFeedsBecomeTheSystemsLineEnds) {
  files.lineEnd = "\r\n";
  std::string expected = std::string(kByteOrderMark) + kHeading;
  for (std::size_t at = 0; (at = expected.find('\n', at)) != expected.npos; at += 2) {
    expected.insert(at, "\r");
  }

  const std::string text = Generated();

  EXPECT_EQ(text.substr(0, expected.size()), expected);
  EXPECT_EQ(text.find('\n', expected.size()), std::string::npos);
}

TEST_F(DescriptorGeneratorTest, AnExistingFileIsOverwritten) {
  files.Put(path, "the author's own");

  EXPECT_EQ(Generated().find("the author's own"), std::string::npos);
}

TEST_F(DescriptorGeneratorTest, AFileThatCannotBeWrittenGivesOneInSilenceAndStays) {
  files.Put(path, "old");
  files.readOnly.insert(path);

  EXPECT_EQ(GenerateDefaultDescriptor(), 1);

  EXPECT_EQ(files.BytesOf(path), "old");
  EXPECT_TRUE(frontEnd.messages.empty());
}

TEST_F(DescriptorGeneratorTest, TheFormerTargetPlatformBecomesNothing) {
  SettingsSet(keys::kOldTargetPlatform, u"Android");

  EXPECT_EQ(GenerateDefaultDescriptor(), 1);

  EXPECT_EQ(SettingsGet(keys::kOldTargetPlatform), u"Nothing");
}

}  // namespace
}  // namespace qutav::test
