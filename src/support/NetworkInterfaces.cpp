#include "support/NetworkInterfaces.h"

#include <array>
#include <cstdio>
#include <cstring>
#include <map>

#include "platform/Services.h"
#include "platform/Text.h"

namespace qutav {
namespace {

constexpr int kNoAddresses = -1;
constexpr int kNoAdapters = -2;

using InterfaceAddresses = std::map<std::uint32_t, std::uint32_t>;
using InterfaceNames = std::map<std::uint32_t, std::u16string>;

void PrintErrorText(const std::u16string& text) {
  if (!text.empty()) std::printf("\tError: %s", ToLocalCodePage(text).c_str());
}

bool ReadAddresses(InterfaceAddresses& addresses) {
  const auto table = TheServices().networkTables->Addresses();
  if (table.status == TableStatus::kOutOfMemory) {
    std::printf("Memory allocation failed for GetIpAddrTable\n");
    return false;
  }
  if (table.status != TableStatus::kDone) {
    std::printf("GetIpAddrTable failed with error %d\n", static_cast<int>(table.error));
    PrintErrorText(table.errorText);
    return false;
  }
  for (const InterfaceAddress& row : table.rows) addresses[row.index] = row.address;
  return true;
}

// An error for which the system has no words is passed over, as if there were no adapters.
bool ReadNames(InterfaceNames& names) {
  const auto table = TheServices().networkTables->Adapters();
  if (table.status == TableStatus::kOutOfMemory) {
    std::printf("Memory allocation failed for IP_ADAPTER_ADDRESSES struct\n");
    return false;
  }
  if (table.status != TableStatus::kDone) {
    std::printf("Call to GetAdaptersAddresses failed with error: %d\n",
                static_cast<int>(table.error));
    if (table.status == TableStatus::kNoData) {
      std::printf("\tNo addresses were found for the requested parameters\n");
      return true;
    }
    if (table.errorText.empty()) return true;
    PrintErrorText(table.errorText);
    return false;
  }
  for (const NetworkAdapter& adapter : table.rows) {
    if (adapter.type != kLoopbackAdapter) names[adapter.index] = adapter.friendlyName;
  }
  return true;
}

// As `inet_ntoa` writes it: the bytes in the order in which they travel.
std::u16string DottedText(std::uint32_t address) {
  std::array<unsigned char, sizeof address> bytes{};
  std::memcpy(bytes.data(), &address, sizeof address);
  std::u16string text = ToDecimal(bytes[0]);
  for (std::size_t i = 1; i < bytes.size(); ++i) text += u"." + ToDecimal(bytes[i]);
  return text;
}

}  // namespace

int ListNetworkInterfaces(std::vector<std::u16string>& list) {
  InterfaceAddresses addresses;
  InterfaceNames names;
  if (!ReadAddresses(addresses)) return kNoAddresses;
  if (!ReadNames(names)) return kNoAdapters;
  for (const auto& [index, address] : addresses) {
    const auto name = names.find(index);
    if (name == names.end()) continue;
    list.push_back(name->second + u" <" + DottedText(address) + u">");
  }
  return 0;
}

}  // namespace qutav
