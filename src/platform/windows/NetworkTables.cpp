#include "platform/NetworkTables.h"

#include <winsock2.h>
// behind winsock2.h
#include <iphlpapi.h>

#include <cstddef>
#include <new>
#include <vector>

#include "platform/windows/SystemServices.h"
#include "platform/windows/SystemText.h"
#include "platform/windows/Wide.h"

namespace qutav {
namespace {

using Buffer = std::vector<std::byte>;

constexpr ULONG kAddressesOfOne = 28;
constexpr ULONG kAdaptersOfOne = 448;

// Asks with a buffer for one entry, and again with one of the size that the system told.
template <typename Request>
DWORD Fill(Buffer& buffer, ULONG size, DWORD tooSmall, Request request) {
  buffer.resize(size);
  if (request(buffer.data(), &size) == tooSmall) buffer.resize(size);
  size = static_cast<ULONG>(buffer.size());
  return request(buffer.data(), &size);
}

template <typename Row>
NetworkTable<Row> Failure(DWORD error) {
  const TableStatus status = error == ERROR_NO_DATA ? TableStatus::kNoData : TableStatus::kFailed;
  return {status, {}, error, SystemTextOf(error)};
}

class WindowsNetworkTables final : public NetworkTables {
 public:
  NetworkTable<InterfaceAddress> Addresses() override {
    try {
      return ReadAddresses();
    } catch (const std::bad_alloc&) {
      return {TableStatus::kOutOfMemory, {}, ERROR_NOT_ENOUGH_MEMORY, {}};
    }
  }

  NetworkTable<NetworkAdapter> Adapters() override {
    try {
      return ReadAdapters();
    } catch (const std::bad_alloc&) {
      return {TableStatus::kOutOfMemory, {}, ERROR_NOT_ENOUGH_MEMORY, {}};
    }
  }

 private:
  static NetworkTable<InterfaceAddress> ReadAddresses() {
    Buffer buffer;
    const DWORD error =
        Fill(buffer, kAddressesOfOne, ERROR_INSUFFICIENT_BUFFER, [](void* table, ULONG* size) {
          return GetIpAddrTable(static_cast<MIB_IPADDRTABLE*>(table), size, FALSE);
        });
    if (error != NO_ERROR) return Failure<InterfaceAddress>(error);
    const auto* table = reinterpret_cast<const MIB_IPADDRTABLE*>(buffer.data());
    NetworkTable<InterfaceAddress> result;
    for (DWORD i = 0; i < table->dwNumEntries; ++i) {
      result.rows.push_back({table->table[i].dwIndex, table->table[i].dwAddr});
    }
    return result;
  }

  static NetworkTable<NetworkAdapter> ReadAdapters() {
    Buffer buffer;
    const DWORD error =
        Fill(buffer, kAdaptersOfOne, ERROR_BUFFER_OVERFLOW, [](void* adapters, ULONG* size) {
          return GetAdaptersAddresses(AF_INET, GAA_FLAG_INCLUDE_PREFIX, nullptr,
                                      static_cast<IP_ADAPTER_ADDRESSES*>(adapters), size);
        });
    if (error != NO_ERROR) return Failure<NetworkAdapter>(error);
    NetworkTable<NetworkAdapter> result;
    for (const auto* adapter = reinterpret_cast<const IP_ADAPTER_ADDRESSES*>(buffer.data());
         adapter != nullptr; adapter = adapter->Next) {
      result.rows.push_back({adapter->IfIndex, adapter->IfType, FromWide(adapter->FriendlyName)});
    }
    return result;
  }
};

}  // namespace

NetworkTables& SystemNetworkTables() {
  static WindowsNetworkTables tables;
  return tables;
}

}  // namespace qutav
