#pragma once

#include <string>
#include <vector>

namespace qutav {

/// Appends "name <address>" of every IPv4 interface that has both a friendly name and an address,
/// in the order of the interface indices; the loopback is left out, and of several addresses of one
/// interface the last one stands. Returns 0, also when nothing was found, -1 when the system gives
/// no address table (`GetIpAddrTable`) and -2 when the list of adapters fails
/// (`GetAdaptersAddresses`); a list without data, and a failure without words, count as no adapters
/// and give 0. The reason goes to the standard output.
int ListNetworkInterfaces(std::vector<std::u16string>& list);

}  // namespace qutav
