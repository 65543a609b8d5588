// The package on its way to the devices, after the tool has made it.

#include <algorithm>

#include "PackagingTest.h"
#include "descriptor/DescriptorDocument.h"
#include "packaging/DeviceBridge.h"
#include "packaging/DocumentDescriptor.h"
#include "packaging/PublishCancelled.h"

namespace qutav::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::u16string kAdb = u"\"C:/sdk\\lib\\android\\bin\\adb.exe\"";
const std::u16string kTool =
    u"\"C:\\Common\\Zenvoka\\Zenvoka Kestrow 2020\\jre\\bin\\java.exe\" -jar "
    u"\"C:/sdk\\lib\\KOB.jar\" ";
constexpr char16_t kUnreachable[] =
    u"Unable to install the application. Ensure that the selected devices are connected.";

std::u16string Uninstall(const std::u16string& serial) {
  return kTool + u"-uninstallApp -platform android -device " + serial + u" -appid com.game";
}
std::u16string Install(const std::u16string& serial) {
  return kTool + u"-installApp -platform android -device " + serial + u" -package \"C:/m/G.apk\"";
}
std::u16string Launch(const std::u16string& serial) {
  return kTool + u"-launchApp -platform android -device " + serial + u" -appid com.game";
}
std::u16string Block(const std::u16string& serial, const std::u16string& error) {
  return u"Device Serial Number" + serial + u" : " + error + u"\n\n";
}

class DeviceInstallTest : public PackagingTest {
 protected:
  DeviceInstallTest() {
    LoadDocumentDescriptor(true);
    SettingsSet(keys::kAdbOption, u"install");
    SettingsSet(keys::kInstallDevices, u"A:");
  }

  bool InstallPackage() { return PostPublishInstall(u"C:/m/G.apk", nullptr, errors); }

  // That answer to one command line; the others succeed in silence.
  void Play(const std::u16string& command, const PlayedAnswer& answer) {
    processes.play = [=](const std::u16string& line) {
      return line == command ? answer : PlayedAnswer{};
    };
  }
  void ExpectInstallError(std::uint32_t exitCode, const std::u16string& error) {
    errors.clear();
    Play(Install(u"A"), {"the output", exitCode});
    EXPECT_FALSE(InstallPackage());
    EXPECT_EQ(errors, Block(u"A", error));
  }
  void RunOn(const std::u16string& serial) {
    SettingsSet(keys::kTestOnDevice, u"true");
    DebugDeviceSerial = serial;
  }

  std::u16string errors;
};

TEST_F(DeviceInstallTest, APackageIsInstalledThroughServerPortAndOldApplication) {
  EXPECT_TRUE(InstallPackage());

  EXPECT_THAT(processes.CommandLines(),
              ElementsAre(kAdb + u" start-server", kAdb + u" forward tcp:7936 tcp:7936",
                          Uninstall(u"A"), Install(u"A")));
  EXPECT_EQ(errors, u"");
}

TEST_F(DeviceInstallTest, TheApplicationIsLaunchedWhereTheSettingsSaySo) {
  SettingsSet(keys::kAdbOption, u"launch");

  EXPECT_TRUE(InstallPackage());

  EXPECT_EQ(processes.CommandLines().back(), Launch(u"A"));
}

TEST_F(DeviceInstallTest, ALaunchThatOnlyTheRegistryAsksForInstallsAndDoesNotLaunch) {
  SettingsSet(keys::kAdbOption, u"");
  SetRegistryValue(u"Last ADB Opt", u"launch");

  EXPECT_TRUE(InstallPackage());

  EXPECT_EQ(processes.CommandLines().back(), Install(u"A"));
}

TEST_F(DeviceInstallTest, TheSettingsComeBeforeTheRegistry) {
  SettingsSet(keys::kAdbOption, u"nothing");
  SetRegistryValue(u"Last ADB Opt", u"install");

  EXPECT_TRUE(InstallPackage());

  EXPECT_THAT(processes.CommandLines(), IsEmpty());
}

TEST_F(DeviceInstallTest, WithoutAnOptionThatInstallsNothingIsDone) {
  for (const char16_t* option : {u"", u"nothing", u"LAUNCH"}) {
    SettingsSet(keys::kAdbOption, option);
    EXPECT_TRUE(InstallPackage());
  }

  EXPECT_THAT(processes.CommandLines(), IsEmpty());
  EXPECT_FALSE(AdbServerStarted);
}

TEST_F(DeviceInstallTest, TheServerIsStartedEachTimeAndNeverWaitedFor) {
  InstallPackage();
  InstallPackage();
  ListDevices();

  const auto lines = processes.CommandLines();
  EXPECT_EQ(std::count(lines.begin(), lines.end(), kAdb + u" start-server"), 2);
  EXPECT_THAT(clock.Sleeps(), IsEmpty());
}

TEST_F(DeviceInstallTest, ThePortOfTheRegistryIsForwarded) {
  SetRegistryValue(u"usbPort", u"8000");

  EXPECT_TRUE(InstallPackage());

  EXPECT_THAT(processes.CommandLines(), Contains(kAdb + u" forward tcp:8000 tcp:8000"));
}

TEST_F(DeviceInstallTest, ARunOnADeviceForwardsAndInstallsThereAlone) {
  RunOn(u"X9");

  EXPECT_TRUE(InstallPackage());

  EXPECT_THAT(processes.CommandLines(),
              ElementsAre(kAdb + u" start-server", kAdb + u" -s X9 forward tcp:7936 tcp:7936",
                          Uninstall(u"X9"), Install(u"X9")));
}

TEST_F(DeviceInstallTest, ADeviceNameWithoutARunOnItPlaysNoPart) {
  DebugDeviceSerial = u"X9";

  EXPECT_TRUE(InstallPackage());

  EXPECT_THAT(processes.CommandLines(), Contains(kAdb + u" forward tcp:7936 tcp:7936"));
  EXPECT_EQ(processes.CommandLines().back(), Install(u"A"));
}

TEST_F(DeviceInstallTest, ARunOnADeviceWithoutANameTakesTheChosenOnes) {
  RunOn(u"");

  EXPECT_TRUE(InstallPackage());

  EXPECT_THAT(processes.CommandLines(), Contains(kAdb + u" forward tcp:7936 tcp:7936"));
  EXPECT_EQ(processes.CommandLines().back(), Install(u"A"));
}

TEST_F(DeviceInstallTest, ARunOnADeviceWithoutANameAndWithoutAChoiceHasNothingToDo) {
  RunOn(u"");
  SettingsSet(keys::kInstallDevices, u"");

  EXPECT_TRUE(InstallPackage());

  EXPECT_THAT(processes.CommandLines(),
              ElementsAre(kAdb + u" start-server", kAdb + u" forward tcp:7936 tcp:7936"));
  EXPECT_EQ(errors, u"");
}

TEST_F(DeviceInstallTest, AnIosPublishWithAnInstallOptionInstallsWhatTheAndroidDestinationNames) {
  SettingsSet(keys::kIpaDestination, u"G.ipa");
  SettingsSet(keys::kTavDestination, u"G.apk");

  EXPECT_EQ(Publish(PublishTargetIpa), 1);

  EXPECT_EQ(processes.CommandLines().back(), Install(u"A"));
}

TEST_F(DeviceInstallTest, ARunOnADeviceThatFailsHasItsBlock) {
  RunOn(u"X9");
  Play(Install(u"X9"), {"", 12});

  EXPECT_FALSE(InstallPackage());

  EXPECT_EQ(errors, Block(u"X9", kUnreachable));
}

TEST_F(DeviceInstallTest, WithoutAChosenDeviceTheServerIsStartedAndNothingInstalled) {
  SettingsSet(keys::kInstallDevices, u"");

  EXPECT_FALSE(InstallPackage());

  EXPECT_EQ(errors, u"No device selected. Select at least one device to continue.");
  EXPECT_THAT(processes.CommandLines(), ElementsAre(kAdb + u" start-server"));
}

TEST_F(DeviceInstallTest, AChoiceWithoutItsLastColonLeavesThatDeviceOut) {
  SettingsSet(keys::kInstallDevices, u"A:B");

  EXPECT_TRUE(InstallPackage());

  EXPECT_EQ(processes.CommandLines().back(), Install(u"A"));
}

TEST_F(DeviceInstallTest, AFailureDoesNotKeepTheOtherDevicesFromTheirTurn) {
  SettingsSet(keys::kInstallDevices, u"A:B:C:");
  Play(Install(u"A"), {"no room", 1});

  EXPECT_FALSE(InstallPackage());

  EXPECT_THAT(processes.CommandLines(), Contains(Install(u"B")));
  EXPECT_THAT(processes.CommandLines(), Contains(Install(u"C")));
  EXPECT_EQ(errors, Block(u"A", u"Unexpected error - unable to install the application.\nno room"));
}

TEST_F(DeviceInstallTest, EachFailedDeviceHasABlockOfItsOwnInTheirOrder) {
  SettingsSet(keys::kInstallDevices, u"A:B:C:");
  processes.play = [](const std::u16string& line) {
    if (line == Install(u"A")) return PlayedAnswer{"", 12};
    return line == Install(u"C") ? PlayedAnswer{"odd", 14} : PlayedAnswer{};
  };

  EXPECT_FALSE(InstallPackage());

  EXPECT_EQ(errors, Block(u"A", kUnreachable) +
                        Block(u"C", u"The device has encountered an unexpected error. odd"));
}

TEST_F(DeviceInstallTest, EachExitCodeOfTheInstallationHasItsText) {
  ExpectInstallError(12, kUnreachable);
  ExpectInstallError(15, kUnreachable);
  ExpectInstallError(14, u"The device has encountered an unexpected error. the output");
  ExpectInstallError(1, u"Unexpected error - unable to install the application.\nthe output");
  ExpectInstallError(13, u"Unexpected error - unable to install the application.\nthe output");
}

TEST_F(DeviceInstallTest, AnUninstallationThatFailsGoesOnToTheInstallation) {
  for (const std::uint32_t exitCode : {1u, 12u, 14u}) {
    Play(Uninstall(u"A"), {"not there", exitCode});

    EXPECT_TRUE(InstallPackage());

    EXPECT_EQ(processes.CommandLines().back(), Install(u"A"));
  }
  EXPECT_EQ(errors, u"");
}

TEST_F(DeviceInstallTest, ADeviceThatIsOutOfReachAtTheUninstallationGetsNoInstallation) {
  Play(Uninstall(u"A"), {"gone", 15});

  EXPECT_FALSE(InstallPackage());

  EXPECT_EQ(errors, Block(u"A", kUnreachable));
  EXPECT_EQ(processes.CommandLines().back(), Uninstall(u"A"));
}

TEST_F(DeviceInstallTest, TheOutputOfTheUninstallationIsNotToldForTheInstallation) {
  processes.play = [](const std::u16string& line) {
    if (line == Uninstall(u"A")) return PlayedAnswer{"not there", 1};
    return line == Install(u"A") ? PlayedAnswer{"no room", 1} : PlayedAnswer{};
  };

  EXPECT_FALSE(InstallPackage());

  EXPECT_EQ(errors, Block(u"A", u"Unexpected error - unable to install the application.\nno room"));
}

TEST_F(DeviceInstallTest, AFailedLaunchTellsItsOutputAlone) {
  SettingsSet(keys::kAdbOption, u"launch");
  processes.play = [](const std::u16string& line) {
    if (line == Install(u"A")) return PlayedAnswer{"installed", 0};
    return line == Launch(u"A") ? PlayedAnswer{"no such activity", 3} : PlayedAnswer{};
  };

  EXPECT_FALSE(InstallPackage());

  EXPECT_EQ(errors, Block(u"A", u"no such activity"));
}

TEST_F(DeviceInstallTest, AFailedInstallationIsNotLaunched) {
  SettingsSet(keys::kAdbOption, u"launch");
  Play(Install(u"A"), {"", 1});

  EXPECT_FALSE(InstallPackage());

  EXPECT_EQ(processes.CommandLines().back(), Install(u"A"));
}

TEST_F(DeviceInstallTest, ACancelBetweenTwoDevicesLeavesTheSecondAlone) {
  SettingsSet(keys::kInstallDevices, u"A:B:");
  processes.play = [](const std::u16string& line) {
    if (line == Uninstall(u"A")) PublishCancelled = 1;
    return PlayedAnswer{};
  };

  EXPECT_FALSE(InstallPackage());

  EXPECT_EQ(processes.CommandLines().back(), Install(u"A"));
  EXPECT_EQ(errors, u"");
}

TEST_F(DeviceInstallTest, ACancelKeepsTheErrorsOfTheDevicesBefore) {
  SettingsSet(keys::kInstallDevices, u"A:B:C:");
  processes.play = [](const std::u16string& line) {
    if (line == Uninstall(u"B")) PublishCancelled = 1;
    return PlayedAnswer{"", line == Install(u"A") ? 12u : 0u};
  };

  EXPECT_FALSE(InstallPackage());

  EXPECT_EQ(errors, Block(u"A", kUnreachable));
  EXPECT_EQ(processes.CommandLines().back(), Install(u"B"));
}

TEST_F(DeviceInstallTest, ACancelledPublishInstallsNothingAndTellsNothing) {
  PublishCancelled = 1;

  EXPECT_FALSE(InstallPackage());

  EXPECT_THAT(processes.CommandLines(), IsEmpty());
  EXPECT_EQ(errors, u"");
}

TEST_F(DeviceInstallTest, ADescriptorWithoutAnIdGivesAnEmptyOne) {
  PutDescriptor("<name>Game</name>");
  LoadDocumentDescriptor(true);

  EXPECT_TRUE(InstallPackage());

  EXPECT_THAT(processes.CommandLines(),
              Contains(kTool + u"-uninstallApp -platform android -device A -appid "));
}

TEST_F(DeviceInstallTest, HeadsTakeTheSeparatorsOfTheSystem) {
  processes.separator = u'/';
  processes.suffix = u"";

  EXPECT_TRUE(InstallPackage());

  const auto lines = processes.CommandLines();
  EXPECT_EQ(lines.front(), u"\"C:/sdk/lib/android/bin/adb\" start-server");
  EXPECT_EQ(lines.back(),
            u"\"C:/Common/Zenvoka/Zenvoka Kestrow 2020/jre/bin/java\" -jar "
            u"\"C:/sdk/lib/KOB.jar\" -installApp -platform android -device A -package "
            u"\"C:/m/G.apk\"");
}

}  // namespace
}  // namespace qutav::test
