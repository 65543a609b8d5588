#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "TestFolder.h"
#include "host/ExitCodes.h"
#include "host/LaunchCommand.h"

namespace qutav::host {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;

// Launches through the exercise library, which asks the host for a launcher that the test wrote.
class LaunchCommandTest : public ::testing::Test {
 protected:
  LaunchCommandTest() : console_(out_, error_, false) {
    options_.executable = QUTAV_COMMAND;
    options_.common.runtimeLevel = "26.0";
    options_.common.library = EXERCISE_LIBRARY;
  }

  int LaunchOf(const fs::path& launcher) {
    options_.common.document = folder_.Write(
        "Game.qud.json", DocumentText("\"exercise.launcher\": \"" + launcher.string() + "\""));
    return RunLaunch(options_, console_);
  }
  int Launch(const std::string& body) {
    const fs::path launcher = folder_.Write("wep", "#!/bin/sh\n" + body + "\n");
    fs::permissions(launcher, fs::perms::owner_all);
    return LaunchOf(launcher);
  }

  TestFolder folder_;
  std::ostringstream out_;
  std::ostringstream error_;
  Console console_;
  LaunchOptions options_;
};

TEST_F(LaunchCommandTest, TheLaunchersEndIsWaitedForAndTold) {
  EXPECT_EQ(Launch("echo ran >\"$0.txt\""), kDone);
  EXPECT_EQ(folder_.Read("wep.txt"), "ran\n");
  EXPECT_EQ(out_.str(), "The launcher has ended.\n");
}

TEST_F(LaunchCommandTest, TheMovieIsExportedFirstUnlessTheOptionsSayNo) {
  options_.exportsMovie = false;
  Launch("exit 0");
  EXPECT_EQ(folder_.Read("Game.qmv"), "");
  options_.exportsMovie = true;
  Launch("exit 0");
  EXPECT_THAT(folder_.Read("Game.qmv"), HasSubstr("QMV"));
}

TEST_F(LaunchCommandTest, ALauncherThatFailsIsTold) {
  EXPECT_EQ(Launch("exit 7"), kNotDone);
  EXPECT_EQ(error_.str(), "The launcher ended with code 7.\n");
}

TEST_F(LaunchCommandTest, ALauncherThatIsKilledIsTold) {
  EXPECT_EQ(Launch("kill -9 $$"), kNotDone);
  EXPECT_EQ(error_.str(), "The launcher was ended by signal 9.\n");
}

TEST_F(LaunchCommandTest, ALauncherThatCannotBeStartedIsNotDone) {
  EXPECT_EQ(LaunchOf("/gone/wep"), kNotDone);
  EXPECT_EQ(error_.str(), "The launcher was not started.\n");
}

TEST_F(LaunchCommandTest, WhatTheLauncherLeavesBehindIsEnded) {
  const std::string pipe = folder_.Path() / "pipe";
  EXPECT_EQ(Launch("mkfifo '" + pipe + "'; cat '" + pipe + "' & exit 0"), kDone);
}

TEST_F(LaunchCommandTest, ADebugRunIsLaunchedToo) {
  options_.debugs = true;
  EXPECT_EQ(Launch("exit 0"), kDone);
}

TEST_F(LaunchCommandTest, AMissingLibraryIsRefused) {
  options_.common.library = folder_.Path() / "gone.so";
  EXPECT_EQ(Launch("exit 0"), kRefused);
  EXPECT_THAT(error_.str(), HasSubstr("gone.so: the library is missing"));
}

}  // namespace
}  // namespace qutav::host
