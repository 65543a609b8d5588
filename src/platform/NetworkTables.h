// The machine's IPv4 addresses and its network adapters, as two tables that share an index.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace qutav {

/// The adapter type of the machine's own loopback (IF_TYPE_SOFTWARE_LOOPBACK).
inline constexpr std::uint32_t kLoopbackAdapter = 24;

struct InterfaceAddress {
  std::uint32_t index = 0;
  std::uint32_t address = 0;  ///< IPv4, in network byte order
};

struct NetworkAdapter {
  std::uint32_t index = 0;
  std::uint32_t type = 0;
  std::u16string friendlyName;
};

/// How a request for a table ended.
enum class TableStatus { kDone, kOutOfMemory, kNoData, kFailed };

template <typename Row>
struct NetworkTable {
  TableStatus status = TableStatus::kDone;
  std::vector<Row> rows;     ///< in the system's order
  std::uint32_t error = 0;   ///< the system's code where the table could not be had
  std::u16string errorText;  ///< the system's text for it; empty when it has none
};

class NetworkTables {
 public:
  virtual ~NetworkTables() = default;
  /// Every IPv4 address of the machine (`GetIpAddrTable`, unsorted; `getifaddrs` on POSIX).
  virtual NetworkTable<InterfaceAddress> Addresses() = 0;
  /// Every adapter with IPv4 (`GetAdaptersAddresses` with AF_INET and GAA_FLAG_INCLUDE_PREFIX). On
  /// POSIX an adapter has a row for each of its addresses (`getifaddrs`).
  virtual NetworkTable<NetworkAdapter> Adapters() = 0;
};

}  // namespace qutav
