#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <vector>

#include "host/CommandLine.h"
#include "host/ExitCodes.h"

namespace qutav::host {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

struct Parsed {
  CommandRequest request;
  std::string out;
  std::string error;
};

Parsed Parse(std::vector<const char*> arguments) {
  arguments.insert(arguments.begin(), "qutav");
  std::ostringstream out;
  std::ostringstream error;
  CommandRequest request =
      ParseCommandLine(static_cast<int>(arguments.size()), arguments.data(), out, error);
  return {std::move(request), out.str(), error.str()};
}

int ExitCodeOf(const Parsed& parsed) {
  const auto* exit = std::get_if<ExitRequest>(&parsed.request);
  return exit ? exit->exitCode : -1;
}

TEST(CommandLineTest, PublishTakesItsOptions) {
  const Parsed parsed =
      Parse({"publish", "/g/Game.qud.json", "--version", "26.0", "--certificate", "/k/my.p12",
             "--password-env", "PW", "--language", "de_DE", "--no-export", "--verbose"});
  const auto& options = std::get<PublishOptions>(parsed.request);
  EXPECT_EQ(options.common.document, "/g/Game.qud.json");
  EXPECT_EQ(options.common.runtimeLevel, "26.0");
  EXPECT_EQ(options.common.languageCode, "de_DE");
  EXPECT_EQ(options.certificate, "/k/my.p12");
  EXPECT_EQ(options.passwordVariable, "PW");
  EXPECT_FALSE(options.exportsMovie);
  EXPECT_TRUE(options.common.verbose);
}

TEST(CommandLineTest, PublishHasDefaults) {
  const Parsed parsed = Parse({"publish", "/g/Game.qud.json", "--version", "26.0"});
  const auto& options = std::get<PublishOptions>(parsed.request);
  EXPECT_EQ(options.common.languageCode, "en_US");
  EXPECT_TRUE(options.exportsMovie);
  EXPECT_TRUE(options.transcript.empty());
}

TEST(CommandLineTest, RelativePathsBecomeAbsolute) {
  const Parsed parsed =
      Parse({"publish", "a/../Game.qud.json", "--version", "26.0", "--transcript", "t.jsonl"});
  const auto& options = std::get<PublishOptions>(parsed.request);
  EXPECT_EQ(options.common.document, std::filesystem::current_path() / "Game.qud.json");
  EXPECT_EQ(options.transcript, std::filesystem::current_path() / "t.jsonl");
}

TEST(CommandLineTest, EvaluateTakesAScript) {
  const Parsed parsed = Parse({"evaluate", "/g/Game.qud.json", "1 + 1"});
  const auto& options = std::get<EvaluateOptions>(parsed.request);
  EXPECT_EQ(options.script, "1 + 1");
  EXPECT_FALSE(options.inside);
  EXPECT_EQ(options.common.runtimeLevel, "26.0");
}

TEST(CommandLineTest, TestAndDebugTakeAProfile) {
  const Parsed test = Parse({"test", "/g/G.json", "--version", "26.0", "--profile", "mobileDevice",
                             "--script", "/s.json"});
  EXPECT_EQ(std::get<LaunchOptions>(test.request).profile, "mobileDevice");
  EXPECT_EQ(std::get<LaunchOptions>(test.request).script, "/s.json");
  EXPECT_FALSE(std::get<LaunchOptions>(test.request).debugs);
  const Parsed debug = Parse({"debug", "/g/G.json", "--version", "26.0", "--no-export"});
  EXPECT_EQ(std::get<LaunchOptions>(debug.request).profile, std::nullopt);
  EXPECT_FALSE(std::get<LaunchOptions>(debug.request).exportsMovie);
  EXPECT_TRUE(std::get<LaunchOptions>(debug.request).debugs);
}

TEST(CommandLineTest, DevicesTakesADocumentAndALevel) {
  const Parsed parsed = Parse({"devices", "/g/G.json", "--version", "26.0"});
  EXPECT_EQ(std::get<DevicesOptions>(parsed.request).common.document, "/g/G.json");
  EXPECT_EQ(std::get<DevicesOptions>(parsed.request).common.runtimeLevel, "26.0");
}

TEST(CommandLineTest, RunsOnDevicesTakeSeveralAndACertificate) {
  const Parsed parsed =
      Parse({"test-on-device", "--device", "B2", "/g/G.json", "--version", "26.0", "--device", "A1",
             "--certificate", "/k/my.p12", "--password-env", "PW"});
  const auto& options = std::get<DeviceRunOptions>(parsed.request);
  EXPECT_EQ(options.devices, (std::vector<std::string>{"B2", "A1"}));
  EXPECT_EQ(options.common.document, "/g/G.json");
  EXPECT_EQ(options.certificate, "/k/my.p12");
  EXPECT_FALSE(options.debugs);
  const Parsed debug = Parse({"debug-on-device", "/g/G.json", "--version", "26.0"});
  EXPECT_TRUE(std::get<DeviceRunOptions>(debug.request).debugs);
}

TEST(CommandLineTest, EveryCommandsHelpTellsItsExitCodes) {
  for (const char* command :
       {"publish", "test", "debug", "devices", "test-on-device", "debug-on-device", "evaluate"}) {
    EXPECT_THAT(Parse({command, "--help"}).out, HasSubstr("Exit code: 0 ")) << command;
  }
}

TEST(CommandLineTest, RefusesAVersionThatIsNone) {
  const Parsed parsed = Parse({"publish", "/g/Game.qud.json", "--version", "TAV26"});
  EXPECT_EQ(ExitCodeOf(parsed), kRefused);
  EXPECT_THAT(parsed.error, HasSubstr("TAV26 is no runtime level"));
}

TEST(CommandLineTest, RefusesWhatIsMissing) {
  EXPECT_EQ(ExitCodeOf(Parse({})), kRefused);
  EXPECT_EQ(ExitCodeOf(Parse({"publish", "--version", "26.0"})), kRefused);
  EXPECT_EQ(ExitCodeOf(Parse({"publish", "/g/Game.qud.json"})), kRefused);
  EXPECT_EQ(ExitCodeOf(Parse({"unknown"})), kRefused);
}

TEST(CommandLineTest, RefusesAScriptBesideACertificate) {
  EXPECT_EQ(ExitCodeOf(Parse({"publish", "/g/G.json", "--version", "26.0", "--certificate", "/k",
                              "--script", "/s.json"})),
            kRefused);
}

TEST(CommandLineTest, RefusesTwoPasswordsAndOneWithoutACertificate) {
  EXPECT_EQ(ExitCodeOf(Parse({"publish", "/g/G.json", "--version", "26.0", "--certificate", "/k",
                              "--password-env", "A", "--password-file", "/p"})),
            kRefused);
  EXPECT_EQ(ExitCodeOf(Parse({"publish", "/g/G.json", "--version", "26.0", "--password-env", "A"})),
            kRefused);
}

TEST(CommandLineTest, TakesNoPasswordItself) {
  EXPECT_EQ(ExitCodeOf(Parse({"publish", "/g/G.json", "--version", "26.0", "--certificate", "/k",
                              "--password", "secret"})),
            kRefused);
}

TEST(CommandLineTest, HelpIsNoFailure) {
  const Parsed parsed = Parse({"publish", "--help"});
  EXPECT_EQ(ExitCodeOf(parsed), kDone);
  EXPECT_THAT(parsed.out, HasSubstr("--certificate"));
  EXPECT_THAT(parsed.error, Not(HasSubstr("--certificate")));
}

}  // namespace
}  // namespace qutav::host
