#include "host/HostSession.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/FileUri.h"
#include "host/TextEncoding.h"

namespace qutav::host {
namespace {

// The engine gives a function's arguments a place on its stack; no function needs more.
constexpr std::uint32_t kMostArguments = 32;

}  // namespace

HostSession::HostSession(HostState& state) : state_(state) { DefineHostObjects(engine_, state_); }

void HostSession::Enter(const SharedLibrary& library) {
  const auto entry = reinterpret_cast<EntryFunction>(library.Address("KR_InitWrapper"));
  const HostTable table = MakeHostTable(*this);
  const ValueTable::Scope scope(values_);
  if (entry(table.data(), sizeof(table)) == 0) {
    throw LibraryError("the library did not define its script functions");
  }
}

Evaluation HostSession::Run(std::u16string_view script) {
  return engine_.Evaluate(script, "qutav");
}

void HostSession::DefineFunction(const char16_t* name, ScriptFunction function,
                                 std::uint32_t argumentCount) {
  if (argumentCount > kMostArguments) throw LibraryError("a function with too many arguments");
  engine_.DefineFunction({ToScriptBytes(name), static_cast<int>(argumentCount),
                          [this, function](const std::vector<ScriptValue>& arguments) {
                            return Call(function, arguments);
                          }});
}

ScriptValue HostSession::Call(ScriptFunction function, const std::vector<ScriptValue>& arguments) {
  const ValueTable::Scope scope(values_);
  std::vector<std::uint64_t> words;
  for (const ScriptValue& argument : arguments) words.push_back(values_.WordFor(argument));
  std::uint64_t result = 0;
  void* self = static_cast<TableHost*>(this);
  const auto count = static_cast<std::uint32_t>(words.size());
  return static_cast<double>(function(self, self, count, words.data(), &result));
}

void HostSession::ValueToInteger(std::uint64_t value, std::int32_t& integer) {
  if (const auto found = values_.ValueOf(value)) integer = IntegerOf(*found);
}

void HostSession::ValueToBoolean(std::uint64_t value, std::int32_t& flag) {
  if (const auto found = values_.ValueOf(value)) flag = BooleanOf(*found) ? 1 : 0;
}

const char16_t* HostSession::ValueToString(std::uint64_t value, std::uint32_t& length) {
  const auto found = values_.ValueOf(value);
  std::optional<std::u16string> text = found ? TextOf(*found) : std::nullopt;
  if (!text) return nullptr;
  length = static_cast<std::uint32_t>(text->size());
  return values_.Keep(std::move(*text));
}

const char16_t* HostSession::UriToPath(const char16_t* uri) {
  return values_.Keep(PathOfFileUri(uri));
}

bool HostSession::EvaluateScript(const char16_t* text, std::uint32_t length, const char* sourceName,
                                 std::uint32_t line, std::uint64_t& result) {
  const std::u16string_view whole(text, length);
  const Evaluation evaluation = engine_.Evaluate(whole.substr(0, whole.find(u'\0')), sourceName);
  if (!evaluation.succeeded) {
    state_.console.Detail(std::string(sourceName) + ":" + std::to_string(line) + ": " +
                          ToUtf8(evaluation.error));
    return false;
  }
  result = values_.WordFor(evaluation.value);
  return true;
}

}  // namespace qutav::host
