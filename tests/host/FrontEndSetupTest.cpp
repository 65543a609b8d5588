#include <gtest/gtest.h>

#include <cstdlib>

#include "TestFolder.h"
#include "host/FrontEndSetup.h"

namespace qutav::host {
namespace {

namespace fs = std::filesystem;

std::string Variable(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

TEST(FrontEndSetupTest, ScriptForACertificateIsPrivateAndGoes) {
  PublishOptions options;
  options.certificate = "/keys/my.p12";
  options.passwordVariable = "MY_PASSWORD";
  fs::path script;
  {
    const FrontEndSetup setup(options, false, SheetUse::kPublish);
    script = Variable("QUTAV_SCRIPT");
    EXPECT_EQ(fs::status(script).permissions(), fs::perms::owner_read | fs::perms::owner_write);
  }
  EXPECT_FALSE(fs::exists(script));
  EXPECT_EQ(Variable("QUTAV_SCRIPT"), "");
}

TEST(FrontEndSetupTest, TranscriptOfOurOwnGoesAtTheEnd) {
  fs::path transcript;
  {
    const FrontEndSetup setup{CallOptions()};
    transcript = setup.Transcript();
    EXPECT_EQ(Variable("QUTAV_TRANSCRIPT"), transcript);
    EXPECT_TRUE(fs::exists(transcript));
  }
  EXPECT_FALSE(fs::exists(transcript));
}

TEST(FrontEndSetupTest, TranscriptOfTheUsersStays) {
  const TestFolder folder;
  PublishOptions options;
  options.transcript = folder.Write("t.jsonl", "earlier\n");
  options.script = folder.Write("answers.json", "{}");
  {
    const FrontEndSetup setup(options, false, SheetUse::kPublish);
    EXPECT_EQ(Variable("QUTAV_TRANSCRIPT"), options.transcript);
    EXPECT_EQ(Variable("QUTAV_SCRIPT"), options.script);
  }
  EXPECT_EQ(folder.Read("t.jsonl"), "earlier\n");
  EXPECT_EQ(folder.Read("answers.json"), "{}");
}

}  // namespace
}  // namespace qutav::host
