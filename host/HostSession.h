#pragma once

#include <string_view>

#include "host/HostObjects.h"
#include "host/HostTable.h"
#include "host/ScriptEngine.h"
#include "host/SharedLibrary.h"
#include "host/ValueTable.h"

namespace qutav::host {

/// One run of the host: an engine with the `qu` object, and the library's functions in it.
///
///     HostSession session(state);
///     session.Enter(SharedLibrary(file));
///     session.Run(u"Publish('file:///g.qud.json', 'file:///g.qmv', '26.0')");
///
/// The library keeps the session's address, so that a session is neither copied nor moved, and
/// outlives every call into the library.
class HostSession : private TableHost {
 public:
  explicit HostSession(HostState& state);
  HostSession(const HostSession&) = delete;
  HostSession& operator=(const HostSession&) = delete;

  /// Hands the table to the library; throws LibraryError when it defines no functions.
  void Enter(const SharedLibrary& library);

  /// Runs a script of the user's. A function of the library gives its status as a number.
  Evaluation Run(std::u16string_view script);

 private:
  void DefineFunction(const char16_t* name, ScriptFunction function,
                      std::uint32_t argumentCount) override;
  void ValueToInteger(std::uint64_t value, std::int32_t& integer) override;
  void ValueToBoolean(std::uint64_t value, std::int32_t& flag) override;
  const char16_t* ValueToString(std::uint64_t value, std::uint32_t& length) override;
  const char16_t* UriToPath(const char16_t* uri) override;
  bool EvaluateScript(const char16_t* text, std::uint32_t length, const char* sourceName,
                      std::uint32_t line, std::uint64_t& result) override;

  ScriptValue Call(ScriptFunction function, const std::vector<ScriptValue>& arguments);

  HostState& state_;
  ValueTable values_;
  ScriptEngine engine_;
};

}  // namespace qutav::host
