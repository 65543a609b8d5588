#include "host/HostTable.h"

namespace qutav::host {
namespace {

TableHost& HostOf(void* context) { return *static_cast<TableHost*>(context); }

// Runs the call for a context that is ours; gives `failure` for a null one and for an exception.
template <typename Result, typename Call>
Result Guarded(void* context, Result failure, Call call) noexcept {
  if (context == nullptr) return failure;
  try {
    return call(HostOf(context));
  } catch (...) {
    return failure;
  }
}

std::int32_t DefineFunction(void* context, const char16_t* name, ScriptFunction function,
                            std::uint32_t argumentCount) {
  return Guarded<std::int32_t>(context, 0, [&](TableHost& host) {
    if (name == nullptr || function == nullptr) return 0;
    host.DefineFunction(name, function, argumentCount);
    return 1;
  });
}

std::int32_t ValueToInteger(void* context, std::uint64_t value, std::int32_t* integer) {
  return Guarded<std::int32_t>(context, 0, [&](TableHost& host) {
    if (integer == nullptr) return 0;
    host.ValueToInteger(value, *integer);
    return 1;
  });
}

std::int32_t ValueToBoolean(void* context, std::uint64_t value, std::int32_t* flag) {
  return Guarded<std::int32_t>(context, 0, [&](TableHost& host) {
    if (flag == nullptr) return 0;
    host.ValueToBoolean(value, *flag);
    return 1;
  });
}

const char16_t* ValueToString(void* context, std::uint64_t value, std::uint32_t* length) {
  return Guarded<const char16_t*>(context, nullptr, [&](TableHost& host) {
    std::uint32_t units = 0;
    const char16_t* text = host.ValueToString(value, units);
    if (length != nullptr) *length = units;
    return text;
  });
}

const char16_t* UriToPath(void* context, const char16_t* uri) {
  return Guarded<const char16_t*>(context, nullptr, [&](TableHost& host) -> const char16_t* {
    return uri == nullptr ? nullptr : host.UriToPath(uri);
  });
}

std::int32_t EvaluateScript(void* context, void* /*object*/, const char16_t* text,
                            std::uint32_t length, const char* sourceName, std::uint32_t line,
                            std::uint64_t* result) {
  return Guarded<std::int32_t>(context, 0, [&](TableHost& host) {
    std::uint64_t unused = 0;
    if (text == nullptr) return 0;
    const char* name = sourceName != nullptr ? sourceName : "";
    return host.EvaluateScript(text, length, name, line, result ? *result : unused) ? 1 : 0;
  });
}

template <typename Function>
void Put(HostTable& table, TableEntry entry, Function function) {
  table[static_cast<std::size_t>(entry)] = reinterpret_cast<std::uintptr_t>(function);
}

}  // namespace

HostTable MakeHostTable(TableHost& host) {
  HostTable table = {};
  Put(table, TableEntry::kLibraryObject, static_cast<void*>(&host));
  Put(table, TableEntry::kDefineFunction, DefineFunction);
  Put(table, TableEntry::kValueToInteger, ValueToInteger);
  Put(table, TableEntry::kValueToBoolean, ValueToBoolean);
  Put(table, TableEntry::kValueToString, ValueToString);
  Put(table, TableEntry::kUriToPath, UriToPath);
  Put(table, TableEntry::kEvaluateScript, EvaluateScript);
  return table;
}

}  // namespace qutav::host
