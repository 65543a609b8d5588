#include "DocumentTest.h"
#include "descriptor/DescriptorDocument.h"
#include "win/DocumentChecks.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav::test {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

class ExtensionIdsTest : public DocumentTest {
 protected:
  // Prepares the document with these packages beside it.
  void PrepareWithPackages(const std::u16string& libraryPath) {
    for (const char16_t* name : {u"a.zux", u"b.zux"}) {
      files.Put(std::u16string(u"C:/docs/") + name);
    }
    host.externalLibraryPath = libraryPath;
    ASSERT_TRUE(Prepare());
  }

  std::string Descriptor() const { return files.BytesOf(descriptorPath); }

  // What stands in the element `extensions`, without the layout.
  std::string Extensions() const {
    std::string text = Descriptor();
    std::erase_if(text, [](char c) { return c == '\n' || c == '\r' || c == ' '; });
    const std::size_t start = text.find("<extensions");
    return start == text.npos ? "" : text.substr(start, text.find("</application>") - start);
  }
};

TEST_F(ExtensionIdsTest, TheIdsOfThePackagesAreWrittenInTheirOrder) {
  files.Put(descriptorPath, DescriptorText());
  host.data = {{u"zux.id.a.zux", u"com.sample.a"}, {u"zux.id.b.zux", u"com.sample.b"}};
  PrepareWithPackages(u"b.zux;a.zux");

  UpdateExtensionIds();

  EXPECT_EQ(Extensions(),
            "<extensions><extensionID>com.sample.b</extensionID>"
            "<extensionID>com.sample.a</extensionID></extensions>");
}

TEST_F(ExtensionIdsTest, APackageWithoutAnIdIsLeftOutWithoutAMessage) {
  files.Put(descriptorPath, DescriptorText());
  host.data = {{u"zux.id.b.zux", u"com.sample.b"}};
  PrepareWithPackages(u"a.zux;b.zux");

  UpdateExtensionIds();

  EXPECT_EQ(Extensions(), "<extensions><extensionID>com.sample.b</extensionID></extensions>");
  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(ExtensionIdsTest, TheElementStandsEvenWhenNoPackageHasAnId) {
  files.Put(descriptorPath, DescriptorText());
  PrepareWithPackages(u"a.zux");

  UpdateExtensionIds();

  EXPECT_EQ(Extensions(), "<extensions></extensions>");
}

TEST_F(ExtensionIdsTest, ADocumentWithoutALibraryPathLosesTheElement) {
  files.Put(descriptorPath, DescriptorText("26.0",
                                           "<extensions><extensionID>com.dropped"
                                           "</extensionID></extensions>"));
  ASSERT_TRUE(Prepare());

  UpdateExtensionIds();

  EXPECT_THAT(Descriptor(), AllOf(HasSubstr("<id>Old</id>"), Not(HasSubstr("extension"))));
}

TEST_F(ExtensionIdsTest, HandWrittenExtensionsAreOverwritten) {
  files.Put(descriptorPath, DescriptorText("26.0",
                                           "<extensions><extensionID>by.hand"
                                           "</extensionID></extensions>"));
  host.data = {{u"zux.id.a.zux", u"com.sample.a"}};
  PrepareWithPackages(u"a.zux");

  UpdateExtensionIds();

  EXPECT_EQ(Extensions(), "<extensions><extensionID>com.sample.a</extensionID></extensions>");
}

TEST_F(ExtensionIdsTest, TheIdsDoNotStayInTheMap) {
  files.Put(descriptorPath, DescriptorText());
  host.data = {{u"zux.id.a.zux", u"com.sample.a"}};
  PrepareWithPackages(u"a.zux");

  UpdateExtensionIds();

  EXPECT_FALSE(SettingsMap.contains(u"zux.id.a.zux"));
}

TEST_F(ExtensionIdsTest, TheDescriptorIsWrittenAlsoWhenNothingChanged) {
  files.Put(descriptorPath, DescriptorText());
  ASSERT_TRUE(Prepare());
  files.changes.clear();

  UpdateExtensionIds();

  EXPECT_THAT(files.changes, ElementsAre(u"write C:/m/Game-app.xml"));
  EXPECT_FALSE(LaunchDescriptor.IsParserReady());
}

TEST_F(ExtensionIdsTest, AMissingDescriptorIsGeneratedFirst) {
  ASSERT_TRUE(Prepare());

  UpdateExtensionIds();

  EXPECT_THAT(Descriptor(), HasSubstr("<filename>Game</filename>"));
  EXPECT_EQ(SettingsGet(keys::kOldTargetPlatform), u"Nothing");
}

TEST_F(ExtensionIdsTest, AMilestoneDescriptorIsReplacedByAGeneratedOne) {
  files.Put(descriptorPath, DescriptorText("1.0.M6"));
  ASSERT_TRUE(Prepare());

  UpdateExtensionIds();

  EXPECT_THAT(Descriptor(),
              AllOf(HasSubstr("<filename>Game</filename>"), HasSubstr("tav/application/2.0\"")));
  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(ExtensionIdsTest, AMilestoneDescriptorThatCannotBeReplacedIsTriedOnce) {
  files.Put(descriptorPath, DescriptorText("1.0.M5"));
  files.readOnly.insert(descriptorPath);
  ASSERT_TRUE(Prepare());

  UpdateExtensionIds();

  EXPECT_THAT(frontEnd.Texts(), ElementsAre(u"Application descriptor file cannot be parsed."));
  EXPECT_EQ(Descriptor(), DescriptorText("1.0.M5"));
}

TEST_F(ExtensionIdsTest, ADescriptorThatCannotBeParsedIsToldAndLeftAsItIs) {
  files.Put(descriptorPath, "<application");
  ASSERT_TRUE(Prepare());
  files.changes.clear();

  UpdateExtensionIds();

  ASSERT_EQ(frontEnd.messages.size(), 1u);
  EXPECT_EQ(frontEnd.messages[0].text, u"Application descriptor file cannot be parsed.");
  EXPECT_EQ(frontEnd.messages[0].icon, MessageIcon::kWarning);
  EXPECT_THAT(files.changes, IsEmpty());
}

}  // namespace
}  // namespace qutav::test
