// What the Android deployment page does with devices.
#include "DigitalSigTest.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

class DigitalSigDevicesTest : public DigitalSigTest {
 protected:
  DigitalSigDevicesTest() { PutDevices(u"A:B:C:", u"device:offline:device:"); }

  // What is checked and enabled.
  struct Boxes {
    bool install;
    bool launchEnabled;
    bool launch;
    bool list;
    int afterPublish;
    bool operator==(const Boxes&) const = default;
  };
  Boxes Shown() {
    EXPECT_EQ(Devices().enabled, Refresh().enabled);
    return {Install().checked, Launch().enabled, Launch().checked, Devices().enabled,
            page.afterPublish};
  }

  // What adb will list next, as "serial<tab>state" lines.
  void PlayListing(const std::string& lines) {
    processes.play = [=](const std::u16string&) { return PlayedAnswer{lines, 0}; };
  }
};

// --- Loading ------------------------------------------------------------------------------------

TEST_F(DigitalSigDevicesTest, NothingIsDoneAfterPublishingUnlessItIsStored) {
  page.Create();

  EXPECT_EQ(Shown(), (Boxes{false, false, false, false, 0}));
  EXPECT_FALSE(page.listReady);
  EXPECT_THAT(Devices().Rows(), IsEmpty());
}

TEST_F(DigitalSigDevicesTest, AStoredNothingStandsBeforeTheRegistry) {
  SettingsSet(keys::kAdbOption, u"nothing");
  SetRegistryValue(u"Last ADB Opt", u"launch");

  page.Create();

  EXPECT_EQ(Shown(), (Boxes{false, false, false, false, 0}));
}

TEST_F(DigitalSigDevicesTest, AStoredInstallChecksItsBoxAndListsTheDevices) {
  SettingsSet(keys::kAdbOption, u"install");

  page.Create();

  EXPECT_EQ(Shown(), (Boxes{true, true, false, true, 1}));
  EXPECT_THAT(DeviceRowTexts(), ElementsAre(u"A", u"B", u"C"));
}

TEST_F(DigitalSigDevicesTest, AStoredLaunchChecksBothBoxes) {
  SettingsSet(keys::kAdbOption, u"launch");

  page.Create();

  EXPECT_EQ(Shown(), (Boxes{true, true, true, true, 2}));
}

TEST_F(DigitalSigDevicesTest, TheLastChoiceServesWhereNoneIsStored) {
  SetRegistryValue(u"Last ADB Opt", u"launch");

  page.Create();

  EXPECT_EQ(Shown(), (Boxes{true, true, true, true, 2}));
}

// --- Boxes --------------------------------------------------------------------------------------

TEST_F(DigitalSigDevicesTest, CheckingInstallEnablesTheRestAndListsTheDevices) {
  page.Create();

  Install().Click();

  EXPECT_EQ(Shown(), (Boxes{true, true, false, true, 1}));
  EXPECT_THAT(DeviceRowTexts(), ElementsAre(u"A", u"B", u"C"));
  EXPECT_FALSE(page.changed);
}

TEST_F(DigitalSigDevicesTest, ClearingInstallClearsLaunchAndDisablesTheRest) {
  SettingsSet(keys::kAdbOption, u"launch");
  page.Create();

  Install().Click();

  EXPECT_EQ(Shown(), (Boxes{false, false, false, false, 0}));
  EXPECT_FALSE(page.changed);
}

TEST_F(DigitalSigDevicesTest, CheckingInstallAgainLeavesLaunchClear) {
  SettingsSet(keys::kAdbOption, u"launch");
  page.Create();
  Install().Click();

  Install().Click();

  EXPECT_EQ(Shown(), (Boxes{true, true, false, true, 1}));
}

TEST_F(DigitalSigDevicesTest, LaunchSwitchesBetweenLaunchingAndInstalling) {
  SettingsSet(keys::kAdbOption, u"install");
  page.Create();

  Launch().Click();
  EXPECT_EQ(Shown(), (Boxes{true, true, true, true, 2}));

  Launch().Click();
  EXPECT_EQ(Shown(), (Boxes{true, true, false, true, 1}));
  EXPECT_FALSE(page.changed);
}

// --- The list -----------------------------------------------------------------------------------

TEST_F(DigitalSigDevicesTest, ChosenDevicesAreChecked) {
  SettingsSet(keys::kAdbOption, u"install");
  SettingsSet(keys::kInstallDevices, u"C:A:");

  page.Create();

  EXPECT_THAT(Devices().CheckedRows(), ElementsAre(u"A", u"C"));
}

TEST_F(DigitalSigDevicesTest, StatesAreKeptButNotShown) {
  SettingsSet(keys::kAdbOption, u"install");

  page.Create();

  EXPECT_THAT(page.deviceRows,
              ElementsAre(Pair(u"A", u"device"), Pair(u"B", u"offline"), Pair(u"C", u"device")));
}

TEST_F(DigitalSigDevicesTest, WhatFollowsTheLastColonIsADeviceToo) {
  SettingsSet(keys::kAdbOption, u"install");
  SettingsSet(keys::kInstallDevices, u"A: \tB\r\n");

  page.Create();

  EXPECT_THAT(page.checkedDevices, ElementsAre(u"A", u"B"));
  EXPECT_THAT(Devices().CheckedRows(), ElementsAre(u"A", u"B"));
}

TEST_F(DigitalSigDevicesTest, AColonCountsAtAnyPosition) {
  SettingsSet(keys::kAdbOption, u"install");
  SettingsSet(keys::kInstallDevices, u":A::B");

  page.Create();

  EXPECT_THAT(page.checkedDevices, ElementsAre(u"", u"A", u"", u"B"));
}

TEST_F(DigitalSigDevicesTest, ASerialIsComparedExactly) {
  SettingsSet(keys::kAdbOption, u"install");
  SettingsSet(keys::kInstallDevices, u"a:");

  page.Create();

  EXPECT_THAT(Devices().CheckedRows(), IsEmpty());
}

TEST_F(DigitalSigDevicesTest, TheListIsPreparedOnceInThePagesLife) {
  SettingsSet(keys::kAdbOption, u"install");
  page.Create();
  Devices().ToggleByUser(1);
  Install().Click();

  Install().Click();

  EXPECT_TRUE(page.listReady);
  EXPECT_THAT(Devices().CheckedRows(), ElementsAre(u"B"));
}

TEST_F(DigitalSigDevicesTest, DevicesThatTheHostHasListedAreNotListedAgain) {
  SettingsSet(keys::kAdbOption, u"install");

  page.Create();

  EXPECT_THAT(processes.CommandLines(), IsEmpty());
}

TEST_F(DigitalSigDevicesTest, DevicesAreListedWhenThatHasNotBeenDone) {
  DeviceListFetched = false;
  PlayListing("List of devices attached\nX\tdevice\n");
  SettingsSet(keys::kAdbOption, u"install");

  page.Create();

  EXPECT_THAT(DeviceRowTexts(), ElementsAre(u"X"));
}

TEST_F(DigitalSigDevicesTest, FillingAnewWithoutADeviceLeavesTheListEmpty) {
  SettingsSet(keys::kAdbOption, u"install");
  page.Create();
  PutDevices(u"", u"");

  page.FillDeviceList(false);

  EXPECT_THAT(Devices().Rows(), IsEmpty());
}

TEST_F(DigitalSigDevicesTest, FillingAnewChecksByWhatWasCheckedLast) {
  SettingsSet(keys::kAdbOption, u"install");
  SettingsSet(keys::kInstallDevices, u"B:");
  page.Create();
  Devices().ToggleByUser(0);

  page.FillDeviceList(false);

  EXPECT_THAT(Devices().CheckedRows(), ElementsAre(u"B"));
}

TEST_F(DigitalSigDevicesTest, RefreshListsTheDevicesAnewAndTellsTheHost) {
  SettingsSet(keys::kAdbOption, u"install");
  page.Create();
  AdbServerStarted = true;
  PlayListing("A\tdevice\nD\tdevice\n");

  ASSERT_TRUE(PressButton(page, u"Refresh"));

  EXPECT_THAT(DeviceRowTexts(), ElementsAre(u"A", u"D"));
  EXPECT_EQ(processes.CommandLines().size(), 1u);
  EXPECT_THAT(host.scripts.back(),
              u"qu.getDocumentDOM().updateConnectedDevices(\"A:D:\",\"android\");");
}

TEST_F(DigitalSigDevicesTest, AtRefreshDevicesThatStayKeepTheirCheckAndThoseThatWentLoseItForGood) {
  SettingsSet(keys::kAdbOption, u"install");
  SettingsSet(keys::kInstallDevices, u"A:B:");
  page.Create();
  AdbServerStarted = true;

  PlayListing("A\tdevice\n");
  ASSERT_TRUE(PressButton(page, u"Refresh"));
  EXPECT_THAT(Devices().CheckedRows(), ElementsAre(u"A"));

  PlayListing("A\tdevice\nB\tdevice\n");
  ASSERT_TRUE(PressButton(page, u"Refresh"));
  EXPECT_THAT(DeviceRowTexts(), ElementsAre(u"A", u"B"));
  EXPECT_THAT(Devices().CheckedRows(), ElementsAre(u"A"));
}

TEST_F(DigitalSigDevicesTest, DevicesThatAreNotConnectedStayChosenUntilRefresh) {
  SettingsSet(keys::kAdbOption, u"install");
  SettingsSet(keys::kInstallDevices, u"A:Z:");
  page.Create();
  EXPECT_THAT(page.checkedDevices, ElementsAre(u"A", u"Z"));

  PlayListing("A\tdevice\n");
  AdbServerStarted = true;
  ASSERT_TRUE(PressButton(page, u"Refresh"));

  EXPECT_THAT(page.checkedDevices, ElementsAre(u"A"));
}

TEST_F(DigitalSigDevicesTest, DevicesThatAreNotConnectedStayChosenUntilThePageIsSaved) {
  SettingsSet(keys::kAdbOption, u"install");
  SettingsSet(keys::kInstallDevices, u"A:Z:");
  page.Create();

  page.SaveToSettings(false);

  EXPECT_THAT(page.checkedDevices, ElementsAre(u"A"));
}

}  // namespace
}  // namespace qutav::test
