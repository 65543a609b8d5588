// The host's function table and the context of the latest script call.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace qutav {

/// The host's opaque script value. The word 1 is how it hands over the number 0.
using HostValue = std::uint64_t;

inline constexpr HostValue kHostZero = 1;

/// A script function as the host calls it; 1 for success, 0 for failure.
using ScriptFunction = std::int32_t (*)(void* context, void* object, std::uint32_t argumentCount,
                                        const HostValue* arguments, HostValue* result);

/// The table of 56 pointer-sized words that the host hands over. Seven are used; any may be null.
struct HostTable {
  static constexpr std::size_t kWordCount = 56;

  std::array<std::uintptr_t, kWordCount> words{};

  void* LibraryObject() const { return reinterpret_cast<void*>(words[0]); }
  auto DefineFunction() const {
    return Entry<std::int32_t (*)(void* library, const char16_t* name, ScriptFunction function,
                                  std::uint32_t argumentCount)>(1);
  }
  auto ValueToInteger() const {
    return Entry<std::int32_t (*)(void* context, HostValue value, std::int32_t* integer)>(4);
  }
  auto ValueToBoolean() const {
    return Entry<std::int32_t (*)(void* context, HostValue value, std::int32_t* boolean)>(6);
  }
  /// The length is in UTF-16 units; the text belongs to the host.
  auto ValueToString() const {
    return Entry<const char16_t* (*)(void* context, HostValue value, std::uint32_t* length)>(19);
  }
  auto UriToPath() const {
    return Entry<const char16_t* (*)(void* context, const char16_t* uri)>(50);
  }
  auto EvaluateScript() const {
    return Entry<std::int32_t (*)(void* context, void* object, const char16_t* script,
                                  std::uint32_t length, const char* source, std::uint32_t line,
                                  HostValue* result)>(55);
  }

 private:
  template <typename Function>
  Function Entry(std::size_t index) const {
    return reinterpret_cast<Function>(words[index]);
  }
};

extern HostTable HostEnvironment;

/// Context and object of the latest script call, for code that runs later without them.
struct HostCallContext {
  void* context = nullptr;
  void* object = nullptr;
};

extern HostCallContext HostContext;

}  // namespace qutav
