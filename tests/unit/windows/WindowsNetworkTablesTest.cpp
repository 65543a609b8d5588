#include "ServicesTest.h"
#include "platform/windows/SystemServices.h"
#include "support/NetworkInterfaces.h"

namespace qutav::test {
namespace {

using ::testing::Contains;
using ::testing::Field;

TEST(WindowsNetworkTablesTest, TheMachineHasItsLoopbackAddress) {
  const auto table = SystemNetworkTables().Addresses();

  EXPECT_EQ(table.status, TableStatus::kDone);
  EXPECT_THAT(table.rows, Contains(Field(&InterfaceAddress::address, 0x0100007Fu)));
}

TEST(WindowsNetworkTablesTest, TheLoopbackAdapterIsKnownByItsType) {
  const auto table = SystemNetworkTables().Adapters();

  EXPECT_EQ(table.status, TableStatus::kDone);
  EXPECT_THAT(table.rows, Contains(Field(&NetworkAdapter::type, kLoopbackAdapter)));
}

class WindowsNetworkInterfacesTest : public ServicesTest {};

TEST_F(WindowsNetworkInterfacesTest, TheListHasNoLoopback) {
  TheServices().networkTables = &SystemNetworkTables();
  std::vector<std::u16string> list;

  EXPECT_EQ(ListNetworkInterfaces(list), 0);

  for (const std::u16string& row : list) EXPECT_EQ(row.find(u"<127.0.0.1>"), row.npos);
}

}  // namespace
}  // namespace qutav::test
