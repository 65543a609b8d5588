// What the host's script asks for when it wants the list of devices.

#include "PublishableDocumentTest.h"
#include "packaging/DeviceBridge.h"
#include "win/DeviceListCommand.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class DeviceListCommandTest : public PublishableDocumentTest {
 protected:
  std::int32_t List() { return RunDeviceListCommand(call, Arguments().data()); }

  std::vector<std::u16string> Updates() const {
    return host.ScriptsBeginning(u"qu.getDocumentDOM().updateConnectedDevices(");
  }
};

TEST_F(DeviceListCommandTest, TheHostIsTold) {
  EXPECT_EQ(List(), 1);

  EXPECT_THAT(Updates(),
              ElementsAre(u"qu.getDocumentDOM().updateConnectedDevices(\"SER1:\",\"android\");"));
  EXPECT_TRUE(DeviceListFetched);
}

TEST_F(DeviceListCommandTest, EveryCallFetchesTheListAnew) {
  List();
  processes.play = [](const std::u16string&) { return PlayedAnswer{"B2\tdevice\n"}; };

  List();

  EXPECT_EQ(Updates().back(), u"qu.getDocumentDOM().updateConnectedDevices(\"B2:\",\"android\");");
}

TEST_F(DeviceListCommandTest, AListingThatFailsTellsTheHostTheDevicesOfBefore) {
  SettingsSet(keys::kDeviceSerials, u"OLD:");
  processes.play = [](const std::u16string&) { return PlayedAnswer{"NEW\tdevice\n", 1}; };

  EXPECT_EQ(List(), 1);

  EXPECT_THAT(Updates(),
              ElementsAre(u"qu.getDocumentDOM().updateConnectedDevices(\"OLD:\",\"android\");"));
}

TEST_F(DeviceListCommandTest, WithoutDevicesTheHostIsToldAnEmptyList) {
  processes.play = [](const std::u16string&) { return PlayedAnswer{"List of devices attached\n"}; };

  EXPECT_EQ(List(), 1);

  EXPECT_THAT(Updates(),
              ElementsAre(u"qu.getDocumentDOM().updateConnectedDevices(\"\",\"android\");"));
}

TEST_F(DeviceListCommandTest, AContextThatCannotBePreparedListsNothingAndCountsAsSuccess) {
  movieUri = u"file:///C:/gone/Game.qmv";

  EXPECT_EQ(List(), 1);

  EXPECT_THAT(processes.CommandLines(), IsEmpty());
  EXPECT_THAT(Updates(), IsEmpty());
  EXPECT_FALSE(DeviceListFetched);
}

}  // namespace
}  // namespace qutav::test
