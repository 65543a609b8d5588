// Listing the attached devices, and the check of the chosen ones before a publish.

#include "PackagingTest.h"
#include "packaging/DeviceBridge.h"

namespace qutav::test {
namespace {

using std::chrono::milliseconds;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

constexpr char16_t kStartServer[] = u"\"C:/sdk\\lib\\android\\bin\\adb.exe\" start-server";
constexpr char16_t kAdbDevices[] = u"\"C:/sdk\\lib\\android\\bin\\adb.exe\" devices";
constexpr char16_t kToolDevices[] =
    u"\"C:\\Common\\Zenvoka\\Zenvoka Kestrow 2020\\jre\\bin\\java.exe\" -jar "
    u"\"C:/sdk\\lib\\KOB.jar\" -devices -platform android";
constexpr char16_t kNotConnected[] =
    u"Connection failure! Ensure that all selected devices are connected.";

class DeviceBridgeTest : public PackagingTest {
 protected:
  // What the listing command prints and gives; every other command succeeds in silence.
  void PlayListing(const std::string& output, std::uint32_t exitCode = 0) {
    processes.play = [=](const std::u16string& line) {
      return line.find(u"devices") == line.npos ? PlayedAnswer{} : PlayedAnswer{output, exitCode};
    };
  }
  void Choose(const std::u16string& serials) {
    SettingsSet(keys::kAdbOption, u"install");
    SettingsSet(keys::kInstallDevices, serials);
  }
  // The line that lists devices at a runtime level.
  std::u16string ListingAt(const std::u16string& level) {
    SettingsSet(keys::kRuntimeKit, level);
    ListDevices();
    return processes.CommandLines().back();
  }
  void ExpectCheck(int result, const std::u16string& expected) {
    std::u16string text;
    EXPECT_EQ(CheckSelectedDevices(text), result);
    EXPECT_EQ(text, expected);
  }
};

TEST_F(DeviceBridgeTest, ADeviceIsASerialATabAndAState) {
  EXPECT_THAT(ParseDeviceListing(u"A1\tdevice\nB2\toffline\n"),
              ElementsAre(Pair(u"A1", u"device"), Pair(u"B2", u"offline")));
}

TEST_F(DeviceBridgeTest, TheLastLineNeedsNoLineFeed) {
  EXPECT_THAT(ParseDeviceListing(u"A1\tdevice"), ElementsAre(Pair(u"A1", u"device")));
}

TEST_F(DeviceBridgeTest, ALineThatEndsWithItsTabIsSkipped) {
  EXPECT_THAT(ParseDeviceListing(u"A1\t\nB2\tdevice\n"), ElementsAre(Pair(u"B2", u"device")));
}

TEST_F(DeviceBridgeTest, ALineWithoutATabIsSkipped) {
  EXPECT_THAT(ParseDeviceListing(u"* daemon started *\n\nA1 device\n"), IsEmpty());
}

TEST_F(DeviceBridgeTest, ALineWithTheHeadingYieldsNoDevice) {
  EXPECT_THAT(ParseDeviceListing(u"List of devices attached\nList of devices attached\tx\n"),
              IsEmpty());
}

TEST_F(DeviceBridgeTest, ALineThatTellsOfNoDeviceYieldsNone) {
  EXPECT_THAT(ParseDeviceListing(u"there is no device\there\nA\tno devices\n"), IsEmpty());
}

TEST_F(DeviceBridgeTest, SerialAndStateAreTrimmedOfWhiteSpace) {
  EXPECT_THAT(ParseDeviceListing(u"  A1 \t device \r\n"), ElementsAre(Pair(u"A1", u"device")));
}

TEST_F(DeviceBridgeTest, AStateOfWhiteSpaceIsEmptyAndItsDeviceCounts) {
  EXPECT_THAT(ParseDeviceListing(u"A1\t\r\n"), ElementsAre(Pair(u"A1", u"")));
}

TEST_F(DeviceBridgeTest, ALineWithoutASerialIsSkipped) {
  EXPECT_THAT(ParseDeviceListing(u" \tdevice\n\tdevice\n"), IsEmpty());
}

TEST_F(DeviceBridgeTest, TheFirstTabDividesALine) {
  EXPECT_THAT(ParseDeviceListing(u"A1\tdevice\tusb\n"), ElementsAre(Pair(u"A1", u"device\tusb")));
}

TEST_F(DeviceBridgeTest, TheTailOfAColonListWithoutAColonIsDropped) {
  std::vector<std::u16string> items{u"before"};

  EXPECT_EQ(SplitColonList(u"A:B", items), 2);

  EXPECT_THAT(items, ElementsAre(u"before", u"A"));
}

TEST_F(DeviceBridgeTest, EmptyItemsOfAColonListCount) {
  std::vector<std::u16string> items;

  EXPECT_EQ(SplitColonList(u":A::", items), 3);

  EXPECT_THAT(items, ElementsAre(u"", u"A", u""));
}

TEST_F(DeviceBridgeTest, ListsOfDifferentLengthsGiveNoDevices) {
  SettingsSet(keys::kDeviceSerials, u"A:B:");
  SettingsSet(keys::kDeviceStates, u"device:");
  std::vector<DevicePair> devices{{u"old", u"device"}};

  EXPECT_FALSE(ReadDeviceList(devices));

  EXPECT_THAT(devices, IsEmpty());
}

TEST_F(DeviceBridgeTest, AListingIsStoredInTwoParallelLists) {
  PlayListing("List of devices attached\nA\tdevice\nB\toffline\n\n");

  EXPECT_TRUE(ListDevices());

  EXPECT_EQ(SettingsGet(keys::kDeviceSerials), u"A:B:");
  EXPECT_EQ(SettingsGet(keys::kDeviceStates), u"device:offline:");
  std::vector<DevicePair> devices;
  EXPECT_TRUE(ReadDeviceList(devices));
  EXPECT_THAT(devices, ElementsAre(Pair(u"A", u"device"), Pair(u"B", u"offline")));
}

TEST_F(DeviceBridgeTest, AListingWithoutDevicesEmptiesTheLists) {
  SettingsSet(keys::kDeviceSerials, u"A:");
  SettingsSet(keys::kDeviceStates, u"device:");
  PlayListing("List of devices attached\n");

  EXPECT_FALSE(ListDevices());

  EXPECT_EQ(SettingsGet(keys::kDeviceSerials), u"");
  EXPECT_EQ(SettingsGet(keys::kDeviceStates), u"");
}

TEST_F(DeviceBridgeTest, AFailedListingLeavesTheListsAsTheyWere) {
  SettingsSet(keys::kDeviceSerials, u"A:");
  SettingsSet(keys::kDeviceStates, u"device:");
  PlayListing("B\tdevice\n", 1);

  EXPECT_FALSE(ListDevices());

  EXPECT_EQ(SettingsGet(keys::kDeviceSerials), u"A:");
  EXPECT_EQ(SettingsGet(keys::kDeviceStates), u"device:");
}

TEST_F(DeviceBridgeTest, TheServerIsStartedAndWaitedForAtTheFirstListingOnly) {
  ListDevices();
  ListDevices();

  EXPECT_THAT(processes.CommandLines(), ElementsAre(kStartServer, kAdbDevices, kAdbDevices));
  EXPECT_THAT(clock.Sleeps(), ElementsAre(milliseconds(5000)));
}

TEST_F(DeviceBridgeTest, TheServerIsWaitedForBeforeTheListing) {
  std::vector<std::u16string> started;
  clock.onSleep = [&] { started = processes.CommandLines(); };

  ListDevices();

  EXPECT_THAT(started, ElementsAre(kStartServer));
}

TEST_F(DeviceBridgeTest, LevelsThatSortAsTextBeforeTav3Dot4AreListedByAdb) {
  EXPECT_EQ(ListingAt(u"TAV14.0"), kAdbDevices);
  EXPECT_EQ(ListingAt(u"TAV26.0"), kAdbDevices);
  EXPECT_EQ(ListingAt(u"TAV3.3"), kAdbDevices);
}

TEST_F(DeviceBridgeTest, LevelsThatSortAsTextFromTav3Dot4OnAreListedByTheTool) {
  EXPECT_EQ(ListingAt(u"TAV3.4"), kToolDevices);
  EXPECT_EQ(ListingAt(u"TAV33.0"), kToolDevices);
  EXPECT_EQ(ListingAt(u"TAV4.0"), kToolDevices);
}

TEST_F(DeviceBridgeTest, RefreshingTellsTheHostOnceUnlessItIsForced) {
  PlayListing("A\tdevice\n");

  RefreshDevices(false);
  RefreshDevices(false);
  EXPECT_THAT(host.scripts,
              ElementsAre(u"qu.getDocumentDOM().updateConnectedDevices(\"A:\",\"android\");"));

  RefreshDevices(true);
  EXPECT_EQ(host.scripts.size(), 2u);
}

TEST_F(DeviceBridgeTest, APublishThatInstallsNothingLooksForNoDevices) {
  SettingsSet(keys::kInstallDevices, u"A:");

  for (const char16_t* option : {u"", u"nothing", u"Install"}) {
    SettingsSet(keys::kAdbOption, option);
    ExpectCheck(1, u"");
  }

  EXPECT_THAT(processes.CommandLines(), IsEmpty());
}

TEST_F(DeviceBridgeTest, ARegistryOptionDoesNotAskForACheck) {
  SetRegistryValue(u"Last ADB Opt", u"install");

  ExpectCheck(1, u"");
}

TEST_F(DeviceBridgeTest, AnUnpluggedChosenDeviceStopsThePublishBeforePackaging) {
  Choose(u"A:B:");
  PlayListing("A\tdevice\n");

  EXPECT_EQ(Publish(), 0);

  ExpectInformation(kNotConnected);
  EXPECT_THAT(processes.CommandLines(), ElementsAre(kStartServer, kAdbDevices));
  EXPECT_THAT(frontEnd.dialogs, IsEmpty());
}

TEST_F(DeviceBridgeTest, AChoiceWithoutItsLastColonLeavesThatDeviceOut) {
  Choose(u"A:B");
  PlayListing("A\tdevice\n");

  ExpectCheck(1, u"");
}

TEST_F(DeviceBridgeTest, AnOfflineDeviceIsAttached) {
  Choose(u"A:");
  PlayListing("A\toffline\n");

  ExpectCheck(1, u"");
}

TEST_F(DeviceBridgeTest, SerialsAreComparedExactly) {
  Choose(u"a:");
  PlayListing("A\tdevice\nab\tdevice\n");

  ExpectCheck(0, kNotConnected);
}

TEST_F(DeviceBridgeTest, ARunOnADeviceLooksForTheHostsDeviceAlone) {
  for (const char16_t* run : {keys::kTestOnDevice, keys::kDebugOnDevice}) {
    SettingsMap.erase(keys::kTestOnDevice);
    SettingsSet(run, u"true");
    SettingsSet(keys::kInstallDevices, u"gone:");
    DebugDeviceSerial = u"A";
    PlayListing("A\tdevice\n");
    ExpectCheck(1, u"");

    DebugDeviceSerial = u"B";
    ExpectCheck(0, kNotConnected);
  }
}

TEST_F(DeviceBridgeTest, ARunOnADeviceWithoutANameFindsNone) {
  SettingsSet(keys::kTestOnDevice, u"true");
  PlayListing("A\tdevice\n");

  ExpectCheck(0, kNotConnected);
}

TEST_F(DeviceBridgeTest, ADeviceInTheNetworkKeepsTheOthersFromBeingFound) {
  Choose(u"A:");
  PlayListing("A\tdevice\n127.0.0.1:5555\tdevice");

  ExpectCheck(0, kNotConnected);
  EXPECT_EQ(SettingsGet(keys::kDeviceSerials), u"A:127.0.0.1:5555:");
}

TEST_F(DeviceBridgeTest, EachCheckListsAnew) {
  Choose(u"A:");
  DeviceListFetched = true;
  PlayListing("A\tdevice\n");

  ExpectCheck(1, u"");

  EXPECT_THAT(processes.CommandLines(), Contains(kAdbDevices));
}

}  // namespace
}  // namespace qutav::test
