#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <regex>

#include "TestFolder.h"
#include "host/LibraryCall.h"

namespace qutav::host {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::MatchesRegex;
using ::testing::StartsWith;

// A folder with the document "100% Ü.qud.json" in it, and how its URIs end in scripts.
class LibraryCallTest : public ::testing::Test {
 protected:
  LibraryCallTest()
      : document_(Document::Load(folder_.Write("100% Ü.qud.json", DocumentText("")))) {}

  // The script with the URIs' folder left out.
  std::string Short(const std::string& script) const {
    return std::regex_replace(script, std::regex("file:///[^\"]*/"), "");
  }

  TestFolder folder_;
  Document document_;
};

constexpr char kDocument[] = "\"100%25%20%C3%9C.qud.json\"";
constexpr char kMovie[] = "\"100%25%20%C3%9C.qmv\"";

TEST_F(LibraryCallTest, PublishNamesDocumentMovieAndLevel) {
  CommonOptions options;
  options.runtimeLevel = "26.0";
  EXPECT_EQ(Short(PublishScript(options, document_)),
            std::string("Publish(") + kDocument + ", " + kMovie + ", \"26.0\");");
}

TEST_F(LibraryCallTest, ATestNamesTheMovieFirstAndADebugRunTheDocument) {
  LaunchOptions options;
  options.common.runtimeLevel = "26.0";
  options.profile = "mobileDevice";
  EXPECT_EQ(
      Short(LaunchScript(options, document_)),
      std::string("TestMovie(") + kMovie + ", " + kDocument + ", \"26.0\", \"mobileDevice\");");
  options.debugs = true;
  EXPECT_EQ(Short(LaunchScript(options, document_)), std::string("DebugMovie(") + kDocument + ", " +
                                                         kMovie + ", \"26.0\", \"mobileDevice\");");
}

TEST_F(LibraryCallTest, AProfileIsNoScriptAndNoneIsUndefined) {
  LaunchOptions options;
  options.profile = "\"); throw \"x";
  EXPECT_THAT(LaunchScript(options, document_), EndsWith(R"(, "\"); throw \"x");)"));
  options.profile.reset();
  EXPECT_THAT(LaunchScript(options, document_), EndsWith(", undefined);"));
}

TEST_F(LibraryCallTest, ARunOnAChosenDeviceIsOneCall) {
  DeviceRunOptions options;
  options.devices = {"A"};
  EXPECT_THAT(DeviceRunScript(options, document_), StartsWith("TestOnDevice(\"file:///"));
  options.debugs = true;
  EXPECT_THAT(DeviceRunScript(options, document_), StartsWith("DebugOnDevice(\"file:///"));
}

TEST_F(LibraryCallTest, ARunOnAnyDeviceListsThemAndACertificateOpensTheSettings) {
  DeviceRunOptions options;
  options.certificate = "/k/my.p12";
  EXPECT_THAT(DeviceRunScript(options, document_),
              MatchesRegex("GetConnectedDevices\\(.*\\); OpenSettingDialog\\(.*\\); "
                           "TestOnDevice\\(.*\\);"));
}

TEST_F(LibraryCallTest, ArgumentsCarryTheScriptAndTheOptions) {
  EvaluateOptions options;
  options.common.document = "/g/Game.qud.json";
  options.common.runtimeLevel = "26.0";
  options.common.languageCode = "ja_JP";
  options.common.library = "/lib/a b.so";
  options.common.verbose = true;
  options.script = "-1";
  options.device = "R58M";
  options.quiet = true;
  EXPECT_THAT(EvaluateArguments(options),
              ElementsAre("evaluate", "--inside", "--version=26.0", "--language=ja_JP",
                          "--library=/lib/a b.so", "--device=R58M", "--quiet", "--verbose", "--",
                          "/g/Game.qud.json", "-1"));
}

TEST_F(LibraryCallTest, OrdinaryEndsAreNotTold) {
  EXPECT_EQ(UnexpectedEndText({ChildEnd::Kind::kExited, 0}), "");
  EXPECT_EQ(UnexpectedEndText({ChildEnd::Kind::kExited, 1}), "");
  EXPECT_EQ(UnexpectedEndText({ChildEnd::Kind::kExited, 13}),
            "The library ended its host with code 13.");
  EXPECT_EQ(UnexpectedEndText({ChildEnd::Kind::kKilled, 11}),
            "The library was ended by signal 11.");
}

}  // namespace
}  // namespace qutav::host
