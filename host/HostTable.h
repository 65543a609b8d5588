#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace qutav::host {

/// A function that the library defines for scripts; gives 1 for success and 0 for failure.
using ScriptFunction = std::int32_t (*)(void* context, void* object, std::uint32_t argumentCount,
                                        std::uint64_t* arguments, std::uint64_t* result);

/// The library's one export. Gives 0 when it could not define its functions.
using EntryFunction = std::int32_t (*)(const void* table, std::uint32_t tableSize);

/// The entries of the table that the library uses.
enum class TableEntry : std::size_t {
  kLibraryObject = 0,
  kDefineFunction = 1,
  kValueToInteger = 4,
  kValueToBoolean = 6,
  kValueToString = 19,
  kUriToPath = 50,
  kEvaluateScript = 55,
};

constexpr std::size_t kTableWords = 56;

using HostTable = std::array<std::uintptr_t, kTableWords>;

/// What stands behind the table. No operation lets an exception out to the library: the table
/// turns each into the entry's failure.
class TableHost {
 public:
  virtual ~TableHost() = default;

  virtual void DefineFunction(const char16_t* name, ScriptFunction function,
                              std::uint32_t argumentCount) = 0;
  virtual void ValueToInteger(std::uint64_t value, std::int32_t& integer) = 0;
  virtual void ValueToBoolean(std::uint64_t value, std::int32_t& flag) = 0;

  /// Null for a value that has no text.
  virtual const char16_t* ValueToString(std::uint64_t value, std::uint32_t& length) = 0;
  virtual const char16_t* UriToPath(const char16_t* uri) = 0;

  /// False when the script throws.
  virtual bool EvaluateScript(const char16_t* text, std::uint32_t length, const char* sourceName,
                              std::uint32_t line, std::uint64_t& result) = 0;
};

/// The table for a host. The library object, the context and the object of all calls are the
/// host's own address, so that the entries find their way back. Unused entries are null.
HostTable MakeHostTable(TableHost& host);

}  // namespace qutav::host
