#include "ServicesTest.h"
#include "support/NetworkInterfaces.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::internal::CaptureStdout;
using ::testing::internal::GetCapturedStdout;

constexpr std::uint32_t kEthernet = 6;
constexpr std::uint32_t kWireless = 71;

// 192.168.1.20 and its neighbours, as the table gives them: the first byte is the lowest.
constexpr std::uint32_t Address(std::uint32_t a, std::uint32_t b, std::uint32_t c,
                                std::uint32_t d) {
  return a | b << 8 | c << 16 | d << 24;
}

class NetworkInterfacesTest : public ServicesTest {
 protected:
  NetworkInterfacesTest() {
    networkTables.addresses.rows = {{1, Address(127, 0, 0, 1)}};
    networkTables.adapters.rows = {{1, kLoopbackAdapter, u"Loopback"}};
  }

  void Add(std::uint32_t index, std::uint32_t address, const std::u16string& name,
           std::uint32_t type = kEthernet) {
    networkTables.addresses.rows.push_back({index, address});
    networkTables.adapters.rows.push_back({index, type, name});
  }

  // Lists to `list`; what was printed meanwhile is in `printed`.
  int List() {
    CaptureStdout();
    const int result = ListNetworkInterfaces(list);
    std::fflush(stdout);
    printed = GetCapturedStdout();
    return result;
  }

  std::vector<std::u16string> list;
  std::string printed;
};

TEST_F(NetworkInterfacesTest, AMachineWithOnlyTheLoopbackGivesAnEmptyList) {
  EXPECT_EQ(List(), 0);

  EXPECT_THAT(list, IsEmpty());
  EXPECT_EQ(printed, "");
}

TEST_F(NetworkInterfacesTest, AnInterfaceIsToldByNameAndAddress) {
  Add(4, Address(192, 168, 1, 20), u"Ethernet \u00DC");

  EXPECT_EQ(List(), 0);

  EXPECT_THAT(list, ElementsAre(u"Ethernet \u00DC <192.168.1.20>"));
}

TEST_F(NetworkInterfacesTest, TheOrderIsThatOfTheIndices) {
  Add(12, Address(10, 0, 0, 1), u"Wi-Fi", kWireless);
  Add(3, Address(10, 0, 0, 2), u"Ethernet");
  Add(7, Address(10, 0, 0, 3), u"Ethernet 2");

  List();

  EXPECT_THAT(list,
              ElementsAre(u"Ethernet <10.0.0.2>", u"Ethernet 2 <10.0.0.3>", u"Wi-Fi <10.0.0.1>"));
}

TEST_F(NetworkInterfacesTest, OfTwoAddressesTheLastOfTheTableStands) {
  Add(4, Address(10, 0, 0, 1), u"Ethernet");
  networkTables.addresses.rows.push_back({4, Address(10, 0, 0, 9)});

  List();

  EXPECT_THAT(list, ElementsAre(u"Ethernet <10.0.0.9>"));
}

TEST_F(NetworkInterfacesTest, AnAddressWithoutAnAdapterGivesNoRow) {
  networkTables.addresses.rows.push_back({9, Address(10, 0, 0, 1)});

  EXPECT_EQ(List(), 0);

  EXPECT_THAT(list, IsEmpty());
}

TEST_F(NetworkInterfacesTest, AnAdapterWithoutAnAddressGivesNoRow) {
  networkTables.adapters.rows.push_back({9, kEthernet, u"Ethernet"});

  EXPECT_EQ(List(), 0);

  EXPECT_THAT(list, IsEmpty());
}

TEST_F(NetworkInterfacesTest, AnUnconnectedAdapterStandsWithItsZeroAddress) {
  Add(5, 0, u"Unplugged");

  List();

  EXPECT_THAT(list, ElementsAre(u"Unplugged <0.0.0.0>"));
}

TEST_F(NetworkInterfacesTest, WhatStandsInTheListStays) {
  list = {u"Default"};
  Add(4, Address(255, 255, 255, 254), u"Ethernet");

  List();

  EXPECT_THAT(list, ElementsAre(u"Default", u"Ethernet <255.255.255.254>"));
}

TEST_F(NetworkInterfacesTest, AFailedAddressTableGivesMinusOneAndIsPrinted) {
  Add(4, Address(10, 0, 0, 1), u"Ethernet");
  networkTables.addresses = {TableStatus::kFailed, {}, 50, u"Not supported.\r\n"};

  EXPECT_EQ(List(), -1);

  EXPECT_THAT(list, IsEmpty());
  EXPECT_EQ(printed, "GetIpAddrTable failed with error 50\n\tError: Not supported.\r\n");
}

TEST_F(NetworkInterfacesTest, AFailedAddressTableWithoutATextPrintsItsNumberAlone) {
  networkTables.addresses = {TableStatus::kFailed, {}, 99999, u""};

  EXPECT_EQ(List(), -1);

  EXPECT_EQ(printed, "GetIpAddrTable failed with error 99999\n");
}

TEST_F(NetworkInterfacesTest, AnAddressTableWithoutDataIsAFailureToo) {
  networkTables.addresses = {TableStatus::kNoData, {}, 232, u"No data."};

  EXPECT_EQ(List(), -1);

  EXPECT_EQ(printed, "GetIpAddrTable failed with error 232\n\tError: No data.");
}

TEST_F(NetworkInterfacesTest, NoMemoryForTheAddressTableGivesMinusOne) {
  networkTables.addresses.status = TableStatus::kOutOfMemory;

  EXPECT_EQ(List(), -1);

  EXPECT_EQ(printed, "Memory allocation failed for GetIpAddrTable\n");
}

TEST_F(NetworkInterfacesTest, NoMemoryForTheAdaptersGivesMinusTwo) {
  networkTables.adapters.status = TableStatus::kOutOfMemory;

  EXPECT_EQ(List(), -2);

  EXPECT_EQ(printed, "Memory allocation failed for IP_ADAPTER_ADDRESSES struct\n");
}

TEST_F(NetworkInterfacesTest, NoDataOfAdaptersIsAnEmptyListAndIsPrinted) {
  Add(4, Address(10, 0, 0, 1), u"Ethernet");
  networkTables.adapters = {TableStatus::kNoData, {}, 232, u"No data."};

  EXPECT_EQ(List(), 0);

  EXPECT_THAT(list, IsEmpty());
  EXPECT_EQ(printed,
            "Call to GetAdaptersAddresses failed with error: 232\n"
            "\tNo addresses were found for the requested parameters\n");
}

TEST_F(NetworkInterfacesTest, AFailureOfTheAdaptersWithATextGivesMinusTwo) {
  networkTables.adapters = {TableStatus::kFailed, {}, 87, u"The parameter is incorrect."};

  EXPECT_EQ(List(), -2);

  EXPECT_EQ(printed,
            "Call to GetAdaptersAddresses failed with error: 87\n"
            "\tError: The parameter is incorrect.");
}

TEST_F(NetworkInterfacesTest, AFailureOfTheAdaptersWithoutATextIsAnEmptyList) {
  Add(4, Address(10, 0, 0, 1), u"Ethernet");
  networkTables.adapters = {TableStatus::kFailed, {}, 99999, u""};

  EXPECT_EQ(List(), 0);

  EXPECT_THAT(list, IsEmpty());
  EXPECT_EQ(printed, "Call to GetAdaptersAddresses failed with error: 99999\n");
}

}  // namespace
}  // namespace qutav::test
