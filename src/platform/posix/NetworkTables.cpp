#include "platform/NetworkTables.h"

#include <ifaddrs.h>
#include <net/if.h>
#include <netinet/in.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <memory>
#include <system_error>

#include "platform/Text.h"
#include "platform/posix/SystemServices.h"

namespace qutav {
namespace {

// What an adapter that is no loopback counts as (IF_TYPE_ETHERNET_CSMACD).
constexpr std::uint32_t kEthernetAdapter = 6;

using AddressList = std::unique_ptr<ifaddrs, decltype(&freeifaddrs)>;

AddressList ListAddresses(int& error) {
  ifaddrs* first = nullptr;
  error = getifaddrs(&first) == 0 ? 0 : errno;
  return {first, &freeifaddrs};
}

template <typename Row>
NetworkTable<Row> Failure(int error) {
  const TableStatus status = error == ENOMEM ? TableStatus::kOutOfMemory : TableStatus::kFailed;
  return {status,
          {},
          static_cast<std::uint32_t>(error),
          FromUtf8(std::generic_category().message(error))};
}

// One row for each IPv4 address whose adapter has an index.
template <typename Row, typename MakeRow>
NetworkTable<Row> ReadTable(MakeRow makeRow) {
  int error = 0;
  const AddressList list = ListAddresses(error);
  if (error != 0) return Failure<Row>(error);
  NetworkTable<Row> table;
  for (const ifaddrs* entry = list.get(); entry != nullptr; entry = entry->ifa_next) {
    if (entry->ifa_addr == nullptr || entry->ifa_addr->sa_family != AF_INET) continue;
    const std::uint32_t index = if_nametoindex(entry->ifa_name);
    if (index != 0) table.rows.push_back(makeRow(index, *entry));
  }
  return table;
}

std::uint32_t AddressOf(const ifaddrs& entry) {
  sockaddr_in address{};
  std::memcpy(&address, entry.ifa_addr, sizeof address);
  return address.sin_addr.s_addr;
}

// An entry's own name may be the label of one address, as "eth0:1", and not the adapter's. It
// stands for an adapter that has gone meanwhile.
std::u16string AdapterName(std::uint32_t index, const ifaddrs& entry) {
  std::array<char, IF_NAMESIZE> name{};
  const bool known = if_indextoname(index, name.data()) != nullptr;
  return FromUtf8(known ? name.data() : entry.ifa_name);
}

class PosixNetworkTables final : public NetworkTables {
 public:
  NetworkTable<InterfaceAddress> Addresses() override {
    return ReadTable<InterfaceAddress>([](std::uint32_t index, const ifaddrs& entry) {
      return InterfaceAddress{index, AddressOf(entry)};
    });
  }

  NetworkTable<NetworkAdapter> Adapters() override {
    return ReadTable<NetworkAdapter>([](std::uint32_t index, const ifaddrs& entry) {
      const bool loopback = (entry.ifa_flags & IFF_LOOPBACK) != 0;
      return NetworkAdapter{index, loopback ? kLoopbackAdapter : kEthernetAdapter,
                            AdapterName(index, entry)};
    });
  }
};

}  // namespace

NetworkTables& SystemNetworkTables() {
  static PosixNetworkTables tables;
  return tables;
}

}  // namespace qutav
