#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <nlohmann/json.hpp>
#include <sstream>

#include "TestFolder.h"
#include "host/DeviceRunCommand.h"
#include "host/DevicesCommand.h"
#include "host/ExitCodes.h"

namespace qutav::host {
namespace {

namespace fs = std::filesystem;
using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::MatchesRegex;
using ::testing::Not;

// Runs on devices through the exercise library, which knows those that the document's data names.
class DeviceCommandsTest : public ::testing::Test {
 protected:
  DeviceCommandsTest() : console_(out_, error_, false) {
    run_.executable = QUTAV_COMMAND;
    run_.common.runtimeLevel = "26.0";
    run_.common.library = EXERCISE_LIBRARY;
  }

  int RunWith(const std::string& data) {
    run_.common.document = folder_.Write("Game.qud.json", DocumentText(data));
    return RunOnDevices(run_, console_);
  }

  TestFolder folder_;
  std::ostringstream out_;
  std::ostringstream error_;
  Console console_;
  DeviceRunOptions run_;
};

TEST_F(DeviceCommandsTest, ThePackageIsStartedOnTheFirstDeviceWhereNoneIsChosen) {
  EXPECT_EQ(RunWith(R"("exercise.devices": "A1:B2:")"), kDone);
  EXPECT_EQ(folder_.Read("devices.txt"), "A1\n");
  EXPECT_THAT(out_.str(),
              MatchesRegex("Started .*/Game.apk, 22 bytes, on the first device, .* s\n"));
}

TEST_F(DeviceCommandsTest, ChosenDevicesTakeTheirTurn) {
  run_.devices = {"C3", "A1"};
  EXPECT_EQ(RunWith(""), kDone);
  EXPECT_EQ(folder_.Read("devices.txt"), "C3\nA1\n");
  EXPECT_THAT(out_.str(), AllOf(HasSubstr("on C3, "), HasSubstr("on A1, ")));
  EXPECT_THAT(error_.str(),
              AllOf(HasSubstr("Device C3 (1 of 2)\n"), HasSubstr("Device A1 (2 of 2)\n")));
}

TEST_F(DeviceCommandsTest, ADeviceThatFailsDoesNotKeepTheOthersFromTheirTurn) {
  run_.devices = {"A1", "B2", "C3"};
  EXPECT_EQ(RunWith(R"("exercise.fails": "B2")"), kNotDone);
  EXPECT_EQ(folder_.Read("devices.txt"), "A1\nB2\nC3\n");
  EXPECT_THAT(out_.str(),
              AllOf(HasSubstr("on A1, "), Not(HasSubstr("on B2, ")), HasSubstr("on C3, ")));
  EXPECT_THAT(error_.str(), HasSubstr("The package was not started on B2.\n"));
}

TEST_F(DeviceCommandsTest, ACancelledRunLeavesTheRemainingDevicesAlone) {
  run_.devices = {"A1", "B2", "C3"};
  EXPECT_EQ(RunWith(R"("exercise.cancels": "B2")"), kNotDone);
  EXPECT_EQ(folder_.Read("devices.txt"), "A1\nB2\n");
  EXPECT_THAT(error_.str(), AllOf(HasSubstr("The package was not started on B2.\n"),
                                  HasSubstr("The package was not started on C3.\n")));
}

TEST_F(DeviceCommandsTest, ACancelThatComesTooLateForADeviceStopsTheRunBehindIt) {
  run_.devices = {"A1", "B2"};
  EXPECT_EQ(RunWith(R"("exercise.cancelsTooLate": "A1")"), kNotDone);
  EXPECT_EQ(folder_.Read("devices.txt"), "A1\n");
  EXPECT_THAT(out_.str(), AllOf(HasSubstr("on A1, "), Not(HasSubstr("on B2, "))));
  EXPECT_THAT(error_.str(), AllOf(Not(HasSubstr("not started on A1")),
                                  HasSubstr("The package was not started on B2.\n")));
}

TEST_F(DeviceCommandsTest, ACancelThatComesTooLateForTheLastDeviceLeavesNothingUndone) {
  run_.devices = {"A1", "B2"};
  EXPECT_EQ(RunWith(R"("exercise.cancelsTooLate": "B2")"), kDone);
  EXPECT_THAT(out_.str(), AllOf(HasSubstr("on A1, "), HasSubstr("on B2, ")));
}

TEST_F(DeviceCommandsTest, ADebugRunOnSeveralDevicesTellsThatTheyShareAPort) {
  const std::string told =
      "All devices use the same debug port: the debugger reaches the last one that is served.\n";
  run_.debugs = true;
  run_.devices = {"A1"};
  EXPECT_EQ(RunWith(""), kDone);
  EXPECT_THAT(error_.str(), Not(HasSubstr(told)));
  run_.devices = {"A1", "B2"};
  EXPECT_EQ(RunWith(""), kDone);
  EXPECT_THAT(error_.str(), HasSubstr(told));
}

TEST_F(DeviceCommandsTest, ACertificateIsGivenToTheSettingsBeforeTheRun) {
  run_.certificate = folder_.Write("my.p12", "key");
  run_.passwordFile = folder_.Write("password.txt", "secret words\n");
  run_.devices = {"A1"};
  EXPECT_EQ(RunWith(""), kDone);
  const auto answer = nlohmann::json::parse(folder_.Read("seen-script.json"))["answers"][0];
  EXPECT_EQ(answer["set"]["Remember password for this session"], true);
  EXPECT_EQ(answer["press"], nlohmann::json({"OK", "Cancel"}));
}

TEST_F(DeviceCommandsTest, ASerialThatTheListsCannotCarryIsRefused) {
  for (const char* serial : {"127.0.0.1:5555", ""}) {
    run_.devices = {serial};
    EXPECT_EQ(RunWith(""), kRefused);
  }
  EXPECT_THAT(error_.str(),
              AllOf(HasSubstr("--device \"127.0.0.1:5555\": a serial is not empty"),
                    HasSubstr("no other while it is attached: run \"adb disconnect\" first\n")));
  EXPECT_FALSE(fs::exists(folder_.Path() / "devices.txt"));
}

TEST_F(DeviceCommandsTest, ADocumentForThePhoneIsRefused) {
  run_.common.document = folder_.Write(
      "Game.qud.json", R"({"playerTarget": "iPhone OS", "stage": {"width": 1, "height": 1}})");
  EXPECT_EQ(RunOnDevices(run_, console_), kRefused);
}

TEST_F(DeviceCommandsTest, AMissingLibraryIsRefused) {
  run_.common.library = folder_.Path() / "gone.so";
  EXPECT_EQ(RunWith(""), kRefused);
}

// The command itself, as the list goes to its standard output.
class DevicesCommandTest : public ::testing::Test {
 protected:
  int List(const std::string& data) {
    const fs::path document = folder_.Write("Game.qud.json", DocumentText(data));
    const std::string line = std::string("'") + QUTAV_COMMAND + "' devices '" + document.string() +
                             "' --version 26.0 --library '" + EXERCISE_LIBRARY + "' >'" +
                             (folder_.Path() / "out").string() + "' 2>'" +
                             (folder_.Path() / "error").string() + "'";
    const int status = std::system(line.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

  TestFolder folder_;
};

TEST_F(DevicesCommandTest, EachSerialHasALine) {
  EXPECT_EQ(List(R"("exercise.devices": "emulator-5554:R58M:")"), kDone);
  EXPECT_EQ(folder_.Read("out"), "emulator-5554\nR58M\n");
  EXPECT_EQ(folder_.Read("error"), "");
}

TEST_F(DevicesCommandTest, ADeviceInTheNetworkIsOneLineAndToldToBeInTheWay) {
  EXPECT_EQ(List(R"("exercise.devices": "R58M:127.0.0.1:5555:")"), kDone);
  EXPECT_EQ(folder_.Read("out"), "R58M\n127.0.0.1:5555\n");
  EXPECT_EQ(folder_.Read("error"),
            "127.0.0.1:5555 is a device in the network: while it is attached, no device can be "
            "used. Run \"adb disconnect 127.0.0.1:5555\" first.\n");
}

TEST_F(DevicesCommandTest, WithoutADeviceThereIsNoLine) {
  EXPECT_EQ(List(""), kNotDone);
  EXPECT_EQ(folder_.Read("out"), "");
  EXPECT_EQ(folder_.Read("error"), "No device is connected.\n");
}

}  // namespace
}  // namespace qutav::host
