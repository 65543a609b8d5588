#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/DebugLauncher.h"

namespace qutav::host {
namespace {

using namespace std::string_literals;
using ::testing::ElementsAre;

std::vector<ScriptValue> Desktop() {
  return {u"/kit/bin/wep"s,
          u"/kit/runtimes/tav/win"s,
          u"\\g\\My Game-app.xml"s,
          u"false"s,
          u""s,
          u""s,
          u""s,
          u""s,
          -1.0,
          u""s,
          u""s,
          u""s,
          u""s};
}

TEST(DebugLauncherTest, TheDesktopNeedsDescriptorAndRuntimeAlone) {
  const ProgramCall call = LauncherCall(Desktop());
  EXPECT_EQ(call.program, "/kit/bin/wep");
  EXPECT_THAT(call.arguments,
              ElementsAre("/g/My Game-app.xml", "-runtime", "/kit/runtimes/tav/win"));
}

TEST(DebugLauncherTest, ADebugRunIsSaid) {
  std::vector<ScriptValue> arguments = Desktop();
  arguments[3] = u"true"s;
  EXPECT_EQ(LauncherCall(arguments).arguments.back(), "-debug");
}

TEST(DebugLauncherTest, WhatIsGivenBecomesAnOption) {
  std::vector<ScriptValue> arguments = Desktop();
  arguments[4] = u"extendedMobileDevice"s;
  arguments[7] = u"480x800:480x800"s;
  arguments[10] = u"/un zipped"s;
  arguments[12] = u"7836"s;
  EXPECT_THAT(LauncherCall(arguments).arguments,
              ElementsAre("/g/My Game-app.xml", "-runtime", "/kit/runtimes/tav/win", "-profile",
                          "extendedMobileDevice", "-extdir", "/un zipped", "-screensize",
                          "480x800:480x800", "-Xsimulation", "7836"));
}

}  // namespace
}  // namespace qutav::host
