#include "host/HostObjects.h"

#include "host/DocumentObject.h"
#include "host/TextEncoding.h"

namespace qutav::host {
namespace {

std::string Utf8Of(const ScriptValue& value) { return ToUtf8(TextOf(value).value_or(u"")); }

}  // namespace

void DefineHostObjects(ScriptEngine& engine, HostState& state) {
  const ObjectId document = engine.AddObject(MakeDocumentObject(state));
  ScriptObject host;
  host.properties = {{"languageCode", [&state] { return FromUtf8(state.languageCode); }}};
  host.methods = {
      {"getDocumentDOM", 0, [document](const auto&) { return document; }},
      {"trace", 1,
       [&state](const auto& arguments) {
         state.console.Message(Utf8Of(arguments[0]));
         return ScriptValue();
       }},
      {"beginPortDebugSession", 1,
       [&state](const auto& arguments) {
         state.console.Message("Debug session open on port " + Utf8Of(arguments[0]) + ".");
         return ScriptValue();
       }},
      {"endDebugSession", 1,
       [&state](const auto&) {
         state.console.Message("Debug session closed.");
         return ScriptValue();
       }},
  };
  engine.DefineGlobal("qu", engine.AddObject(host));
}

}  // namespace qutav::host
