#pragma once

#include <cstdint>
#include <string>

#include "host/ConnectedDevices.h"
#include "host/Console.h"
#include "host/Document.h"
#include "host/ScriptEngine.h"

namespace qutav::host {

/// What the script objects work on. All of it outlives the engine.
struct HostState {
  Document& document;
  Console& console;
  std::string languageCode;
  /// The major number that exported movies carry.
  std::uint8_t runtimeLevel = 0;
  ConnectedDevices devices;
};

/// Defines the global object `qu`, whose `getDocumentDOM()` gives the document's object.
void DefineHostObjects(ScriptEngine& engine, HostState& state);

}  // namespace qutav::host
