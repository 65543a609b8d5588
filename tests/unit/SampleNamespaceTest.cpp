#include "DescriptorTest.h"
#include "descriptor/SampleNamespace.h"
#include "packaging/DescriptorGenerator.h"
#include "support/RuntimeVersion.h"
#include "win/DocumentChecks.h"
#include "win/DocumentPaths.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav::test {
namespace {

using ::testing::HasSubstr;
using ::testing::internal::CaptureStdout;
using ::testing::internal::GetCapturedStdout;

constexpr char16_t kSample[] = u"C:/sdk/samples/descriptor-sample.xml";
constexpr char kCurrent[] = "http://ns.zenvoka.example/tav/application/33.0";

class SampleNamespaceTest : public DescriptorTest {
 protected:
  SampleNamespaceTest() {
    SettingsSet(keys::kSdkPath, u"C:/sdk");
    SettingsSet(keys::kMovieFolder, u"C:/docs/");
    SettingsSet(keys::kMovieBaseName, u"Game");
    DocumentPaths.DescriptorPath = u"C:/docs/Game-app.xml";
  }

  void PutSample(const std::string& attributes) {
    files.Put(kSample, "<application" + attributes + "/>");
  }
  void PutCurrentSample() { PutSample(std::string(" xmlns=\"") + kCurrent + "\""); }

  static std::string Namespace() {
    std::string value = "unread";
    CurrentDescriptor.GetAttribute("application", "xmlns", value);
    return value;
  }

  std::string buffer = "old";
};

TEST_F(SampleNamespaceTest, TheSampleLiesInTheChosenSdk) {
  EXPECT_EQ(SampleDescriptorPath(), u"C:/sdk/samples/descriptor-sample.xml");
}

TEST_F(SampleNamespaceTest, WithoutAChosenSdkTheSampleLiesBehindTwoSlashes) {
  SettingsSet(keys::kSdkPath, u"");
  SettingsSet(keys::kLaunchPath, u"C:/host/");
  SettingsSet(keys::kRuntimeKit, u"TAV26.0");

  EXPECT_EQ(SampleDescriptorPath(), u"C:/host//TAV26.0/samples/descriptor-sample.xml");
}

TEST_F(SampleNamespaceTest, TheSamplesNamespaceIsRead) {
  PutCurrentSample();

  EXPECT_EQ(ReadSampleNamespace(buffer), 0);

  EXPECT_EQ(buffer, kCurrent);
}

TEST_F(SampleNamespaceTest, ASampleWithoutNamespaceGivesAnEmptyText) {
  PutSample("");

  EXPECT_EQ(ReadSampleNamespace(buffer), 0);

  EXPECT_EQ(buffer, "");
}

TEST_F(SampleNamespaceTest, ASampleThatCannotBeLoadedLeavesTheBuffer) {
  CaptureStdout();
  EXPECT_EQ(ReadSampleNamespace(buffer), -1) << "missing";
  files.Put(kSample, "<application>");
  EXPECT_EQ(ReadSampleNamespace(buffer), -1) << "malformed";
  files.Put(kSample, "<sample/>");
  EXPECT_EQ(ReadSampleNamespace(buffer), -1) << "no application";
  PutSample(" xmlns=\"http://h/1.0.M6\"");
  EXPECT_EQ(ReadSampleNamespace(buffer), -1) << "a milestone format";
  GetCapturedStdout();

  EXPECT_EQ(buffer, "old");
  EXPECT_TRUE(frontEnd.messages.empty());
}

TEST_F(SampleNamespaceTest, ReadingTheSampleLeavesTheDescriptorInWorkAlone) {
  PutCurrentSample();
  Load("<application xmlns=\"own\"/>");

  ReadSampleNamespace(buffer);

  EXPECT_EQ(Namespace(), "own");
  EXPECT_TRUE(CurrentDescriptor.IsLoadedFrom(kDescriptorPath));
}

TEST_F(SampleNamespaceTest, AGeneratedDescriptorHasTheSamplesNamespaceOrFormatTwo) {
  files.PutFolder(u"C:/docs");
  CaptureStdout();
  GenerateDefaultDescriptor();
  GetCapturedStdout();
  EXPECT_THAT(files.BytesOf(u"C:/docs/Game-app.xml"),
              HasSubstr("<application xmlns=\"http://ns.zenvoka.example/tav/application/2.0\">"));

  PutCurrentSample();
  GenerateDefaultDescriptor();
  EXPECT_THAT(files.BytesOf(u"C:/docs/Game-app.xml"),
              HasSubstr("<application xmlns=\"http://ns.zenvoka.example/tav/application/33.0\">"));
}

TEST_F(SampleNamespaceTest, OpeningADescriptorWithTheSamplesNamespaceLeavesTheFile) {
  PutCurrentSample();
  const std::string text =
      std::string("<application xmlns=\"") + kCurrent + "\"><version>1.5</version></application>";
  files.Put(kDescriptorPath, text);

  EXPECT_TRUE(OpenDescriptor());

  EXPECT_EQ(files.BytesOf(kDescriptorPath), text);
}

TEST_F(SampleNamespaceTest, OpeningWritesTheNamespaceAtOnceAndLeavesTheVersion) {
  PutCurrentSample();
  files.Put(kDescriptorPath, "<application xmlns=\"old\"><version>1.5</version></application>");

  EXPECT_TRUE(OpenDescriptor());

  EXPECT_THAT(WithoutLayout(files.BytesOf(kDescriptorPath)),
              HasSubstr(std::string("<application xmlns=\"") + kCurrent +
                        "\"><version>1.5</version></application>"));
  EXPECT_FALSE(LaunchDescriptor.IsParserReady());
}

TEST_F(SampleNamespaceTest, WithoutASampleADescriptorKeepsItsNamespaceAndNothingIsShown) {
  const std::string text = "<application xmlns=\"old\"/>";
  files.Put(kDescriptorPath, text);

  CaptureStdout();
  EXPECT_TRUE(OpenDescriptor());
  GetCapturedStdout();

  EXPECT_EQ(files.BytesOf(kDescriptorPath), text);
  EXPECT_TRUE(frontEnd.messages.empty());
}

TEST_F(SampleNamespaceTest, WithoutANamedRuntimeAllGatesReadAsBelow) {
  SettingsSet(keys::kRuntimeKit, u"TAV1.0");

  for (const char16_t* level :
       {u"TAV3.7", u"TAV3.8", u"TAV14.0", u"TAV20.0", u"TAV26.0", u"TAV33.0"}) {
    EXPECT_EQ(CompareRuntimeVersion(level), 1);
    EXPECT_FALSE(RuntimeIsAtLeast(level));
  }
}

}  // namespace
}  // namespace qutav::test
