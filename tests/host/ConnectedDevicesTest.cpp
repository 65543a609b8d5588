#include <gtest/gtest.h>

#include "host/ConnectedDevices.h"

namespace qutav::host {
namespace {

TEST(ConnectedDevicesTest, FirstDeviceOfThePlatformIsSelected) {
  ConnectedDevices devices;
  devices.Update(u"android", u"emulator-5554:R58M:");
  EXPECT_EQ(devices.Selected(u"android"), u"emulator-5554");
  EXPECT_EQ(devices.Selected(u"ios"), std::nullopt);
}

TEST(ConnectedDevicesTest, NoDeviceIsSelectedFromAnEmptyList) {
  ConnectedDevices devices;
  EXPECT_EQ(devices.Selected(u"android"), std::nullopt);
  devices.Update(u"android", u"a:");
  devices.Update(u"android", u"");
  EXPECT_EQ(devices.Selected(u"android"), std::nullopt);
}

TEST(ConnectedDevicesTest, ChosenDeviceIsSelectedWhateverIsConnected) {
  ConnectedDevices devices;
  devices.Choose(u"R58M");
  EXPECT_EQ(devices.Selected(u"android"), u"R58M");
  devices.Update(u"android", u"emulator-5554:");
  EXPECT_EQ(devices.Selected(u"android"), u"R58M");
}

}  // namespace
}  // namespace qutav::host
