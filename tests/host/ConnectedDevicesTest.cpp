#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/ConnectedDevices.h"

namespace qutav::host {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(ConnectedDevicesTest, FirstDeviceOfThePlatformIsSelected) {
  ConnectedDevices devices;
  devices.Update(u"android", {u"emulator-5554", u"R58M"});
  EXPECT_EQ(devices.Selected(u"android"), u"emulator-5554");
  EXPECT_EQ(devices.Selected(u"ios"), std::nullopt);
}

TEST(ConnectedDevicesTest, NoDeviceIsSelectedFromAnEmptyList) {
  ConnectedDevices devices;
  EXPECT_EQ(devices.Selected(u"android"), std::nullopt);
  devices.Update(u"android", {u"a"});
  devices.Update(u"android", {});
  EXPECT_EQ(devices.Selected(u"android"), std::nullopt);
}

TEST(ConnectedDevicesTest, ChosenDeviceIsSelectedWhateverIsConnected) {
  ConnectedDevices devices;
  devices.Choose(u"R58M");
  EXPECT_EQ(devices.Selected(u"android"), u"R58M");
  devices.Update(u"android", {u"emulator-5554"});
  EXPECT_EQ(devices.Selected(u"android"), u"R58M");
}

TEST(ConnectedDevicesTest, AnUpdateTellsWhetherTheDevicesHaveChanged) {
  ConnectedDevices devices;
  EXPECT_TRUE(devices.Update(u"android", {u"a"}));
  EXPECT_FALSE(devices.Update(u"android", {u"a"}));
  EXPECT_TRUE(devices.Update(u"ios", {u"a"}));
  EXPECT_TRUE(devices.Update(u"android", {}));
}

TEST(SerialsInTest, EachSerialEndsInAColon) {
  EXPECT_THAT(SerialsIn(u"emulator-5554:R58M:"), ElementsAre(u"emulator-5554", u"R58M"));
  EXPECT_THAT(SerialsIn(u"A::B"), ElementsAre(u"A"));
  EXPECT_THAT(SerialsIn(u""), IsEmpty());
}

TEST(SerialsInTest, AnAddressAndItsPortAreOneDevice) {
  EXPECT_THAT(SerialsIn(u"A:127.0.0.1:5555:10.0.0.7:40123:12345:"),
              ElementsAre(u"A", u"127.0.0.1:5555", u"10.0.0.7:40123", u"12345"));
}

TEST(SerialsInTest, ASerialThatOnlyResemblesAPartOfThemStandsAlone) {
  EXPECT_THAT(
      SerialsIn(u"A:5555:adb-R58M._adb-tls-connect._tcp:0123456789:1.2:B5:"),
      ElementsAre(u"A", u"5555", u"adb-R58M._adb-tls-connect._tcp", u"0123456789", u"1.2", u"B5"));
}

TEST(NetworkDeviceTest, TheFirstDeviceWithAColonIsInTheNetwork) {
  EXPECT_EQ(NetworkDeviceAmong({u"A", u"127.0.0.1:5555", u"10.0.0.7:40123"}), u"127.0.0.1:5555");
  EXPECT_EQ(NetworkDeviceAmong({u"A"}), u"");
}

}  // namespace
}  // namespace qutav::host
