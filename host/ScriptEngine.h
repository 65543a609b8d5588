#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "host/ScriptValue.h"

namespace qutav::host {

/// What a script calls. Missing arguments arrive as undefined; an exception of the standard
/// library becomes a script error with its text.
using NativeFunction = std::function<ScriptValue(const std::vector<ScriptValue>& arguments)>;

struct ScriptMethod {
  std::string name;
  int argumentCount = 0;
  NativeFunction call;
};

/// A member that is computed whenever a script reads it; writing it does nothing.
struct ScriptProperty {
  std::string name;
  std::function<ScriptValue()> read;
};

struct ScriptObject {
  std::vector<ScriptProperty> properties;
  std::vector<ScriptMethod> methods;
};

struct Evaluation {
  bool succeeded = false;
  ScriptValue value;
  std::u16string error;
};

/// A JavaScript engine with its own global object.
///
///     ScriptEngine engine;
///     engine.DefineFunction({"twice", 1, Twice});
///     engine.Evaluate(u"twice(21)", "example").value;  // the number 42
///
/// An evaluation may run inside a function that another evaluation called.
class ScriptEngine {
 public:
  ScriptEngine();
  ~ScriptEngine();
  ScriptEngine(const ScriptEngine&) = delete;
  ScriptEngine& operator=(const ScriptEngine&) = delete;

  ObjectId AddObject(const ScriptObject& object);
  void DefineGlobal(const std::string& name, const ScriptValue& value);
  void DefineFunction(ScriptMethod function);

  /// Runs a text. A script that throws or cannot be compiled gives its message in `error`.
  Evaluation Evaluate(std::u16string_view text, std::string_view sourceName);

 private:
  class Heap;
  std::unique_ptr<Heap> heap_;
};

}  // namespace qutav::host
