#include <net/if.h>

#include <array>

#include "ServicesTest.h"
#include "platform/posix/SystemServices.h"
#include "support/NetworkInterfaces.h"

namespace qutav::test {
namespace {

using ::testing::Contains;
using ::testing::Field;

TEST(PosixNetworkTablesTest, TheMachineHasItsLoopbackAddress) {
  const auto table = SystemNetworkTables().Addresses();

  EXPECT_EQ(table.status, TableStatus::kDone);
  EXPECT_THAT(table.rows, Contains(Field(&InterfaceAddress::address, 0x0100007Fu)));
}

TEST(PosixNetworkTablesTest, TheLoopbackAdapterIsKnownByItsType) {
  const auto table = SystemNetworkTables().Adapters();

  EXPECT_EQ(table.status, TableStatus::kDone);
  EXPECT_THAT(table.rows, Contains(Field(&NetworkAdapter::type, kLoopbackAdapter)));
}

TEST(PosixNetworkTablesTest, EveryAdapterHasTheNameThatBelongsToItsIndex) {
  const auto table = SystemNetworkTables().Adapters();

  ASSERT_FALSE(table.rows.empty());
  for (const NetworkAdapter& adapter : table.rows) {
    std::array<char, IF_NAMESIZE> name{};
    EXPECT_NE(if_indextoname(adapter.index, name.data()), nullptr);
    EXPECT_EQ(adapter.friendlyName, FromUtf8(name.data()));
  }
}

TEST(PosixNetworkTablesTest, NoAddressStandsWithoutAnAdapter) {
  const auto table = SystemNetworkTables().Addresses();

  ASSERT_FALSE(table.rows.empty());
  for (const InterfaceAddress& row : table.rows) EXPECT_NE(row.index, 0u);
}

class PosixNetworkInterfacesTest : public ServicesTest {};

TEST_F(PosixNetworkInterfacesTest, TheListHasNoLoopback) {
  TheServices().networkTables = &SystemNetworkTables();
  std::vector<std::u16string> list;

  EXPECT_EQ(ListNetworkInterfaces(list), 0);

  for (const std::u16string& row : list) EXPECT_EQ(row.find(u"<127.0.0.1>"), row.npos);
}

}  // namespace
}  // namespace qutav::test
