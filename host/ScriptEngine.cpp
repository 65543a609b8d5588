#include "host/ScriptEngine.h"

#include <duktape.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <new>
#include <utility>

#include "host/TextEncoding.h"

namespace qutav::host {
namespace {

constexpr const char* kObjectsKey = "hostObjects";

void PushText(duk_context* context, std::u16string_view text) {
  const std::string bytes = ToScriptBytes(text);
  duk_push_lstring(context, bytes.data(), bytes.size());
}

void PushObject(duk_context* context, ObjectId id) {
  duk_push_heap_stash(context);
  duk_get_prop_string(context, -1, kObjectsKey);
  duk_get_prop_index(context, -1, static_cast<duk_uarridx_t>(id.index));
  duk_replace(context, -3);
  duk_pop(context);
}

void PushValue(duk_context* context, const ScriptValue& value) {
  if (const auto* text = std::get_if<std::u16string>(&value)) {
    PushText(context, *text);
  } else if (const auto* number = std::get_if<double>(&value)) {
    duk_push_number(context, *number);
  } else if (const auto* flag = std::get_if<bool>(&value)) {
    duk_push_boolean(context, *flag);
  } else if (const auto* id = std::get_if<ObjectId>(&value)) {
    PushObject(context, *id);
  } else {
    duk_push_undefined(context);
  }
}

// The safe conversion never throws, not even for an object whose own toString does: an error
// of the engine would jump over the destructors of our frames.
std::u16string ReadText(duk_context* context, duk_idx_t index) {
  duk_dup(context, index);
  duk_size_t length = 0;
  const char* bytes = duk_safe_to_lstring(context, -1, &length);
  std::u16string text = FromScriptBytes({bytes, length});
  duk_pop(context);
  return text;
}

ScriptValue ReadValue(duk_context* context, duk_idx_t index) {
  if (duk_is_null_or_undefined(context, index)) return std::monostate{};
  if (duk_is_boolean(context, index)) return duk_get_boolean(context, index) != 0;
  if (duk_is_number(context, index)) return duk_get_number(context, index);
  return ReadText(context, index);
}

std::vector<ScriptValue> ReadArguments(duk_context* context) {
  std::vector<ScriptValue> arguments;
  for (duk_idx_t i = 0; i < duk_get_top(context); ++i) arguments.push_back(ReadValue(context, i));
  return arguments;
}

[[noreturn]] void EndAfterFatalError(void*, const char* message) {
  std::fprintf(stderr, "qutav: the script engine failed: %s\n", message ? message : "no reason");
  std::abort();
}

}  // namespace

class ScriptEngine::Heap {
 public:
  Heap() : context_(duk_create_heap(nullptr, nullptr, nullptr, this, EndAfterFatalError)) {
    if (context_ == nullptr) throw std::bad_alloc();
    duk_push_heap_stash(context_);
    duk_push_array(context_);
    duk_put_prop_string(context_, -2, kObjectsKey);
    duk_pop(context_);
    RemoveEngineObject();
  }
  ~Heap() { duk_destroy_heap(context_); }
  Heap(const Heap&) = delete;
  Heap& operator=(const Heap&) = delete;

  duk_context* Context() { return context_; }

  void PushFunction(NativeFunction function, int argumentCount) {
    functions_.push_back(std::make_unique<NativeFunction>(std::move(function)));
    duk_push_c_function(context_, CallFunction, argumentCount);
    duk_set_magic(context_, -1, static_cast<duk_int_t>(functions_.size() - 1));
  }

  ObjectId KeepObjectOnTop() {
    duk_push_heap_stash(context_);
    duk_get_prop_string(context_, -1, kObjectsKey);
    const ObjectId id{duk_get_length(context_, -1)};
    duk_dup(context_, -3);
    duk_put_prop_index(context_, -2, static_cast<duk_uarridx_t>(id.index));
    duk_pop_3(context_);
    return id;
  }

 private:
  // Scripts see the language and the host, not the engine: its coroutines would call us on
  // another stack than the one that nested evaluations use.
  void RemoveEngineObject() {
    duk_push_global_object(context_);
    duk_del_prop_string(context_, -1, "Duktape");
    duk_pop(context_);
  }

  static Heap& HeapOf(duk_context* context) {
    duk_memory_functions functions;
    duk_get_memory_functions(context, &functions);
    return *static_cast<Heap*>(functions.udata);
  }

  // Holds nothing that needs a destructor: throwing a script error leaves it by a long jump.
  static duk_ret_t CallFunction(duk_context* context) {
    const auto index = static_cast<std::size_t>(duk_get_current_magic(context));
    if (HeapOf(context).Run(context, index)) return 1;
    return duk_throw(context);
  }

  // Leaves the result on the stack, or the error object that is to be thrown.
  bool Run(duk_context* context, std::size_t index) noexcept {
    try {
      PushValue(context, (*functions_[index])(ReadArguments(context)));
      return true;
    } catch (const std::exception& error) {
      duk_push_error_object(context, DUK_ERR_ERROR, "%s", error.what());
      return false;
    }
  }

  std::vector<std::unique_ptr<NativeFunction>> functions_;
  duk_context* context_;
};

ScriptEngine::ScriptEngine() : heap_(std::make_unique<Heap>()) {}

ScriptEngine::~ScriptEngine() = default;

ObjectId ScriptEngine::AddObject(const ScriptObject& object) {
  duk_context* context = heap_->Context();
  duk_push_object(context);
  for (const ScriptProperty& property : object.properties) {
    duk_push_lstring(context, property.name.data(), property.name.size());
    heap_->PushFunction([read = property.read](const auto&) { return read(); }, 0);
    duk_def_prop(context, -3, DUK_DEFPROP_HAVE_GETTER | DUK_DEFPROP_SET_ENUMERABLE);
  }
  for (const ScriptMethod& method : object.methods) {
    heap_->PushFunction(method.call, method.argumentCount);
    duk_put_prop_lstring(context, -2, method.name.data(), method.name.size());
  }
  return heap_->KeepObjectOnTop();
}

void ScriptEngine::DefineGlobal(const std::string& name, const ScriptValue& value) {
  PushValue(heap_->Context(), value);
  duk_put_global_lstring(heap_->Context(), name.data(), name.size());
}

void ScriptEngine::DefineFunction(ScriptMethod function) {
  heap_->PushFunction(std::move(function.call), function.argumentCount);
  duk_put_global_lstring(heap_->Context(), function.name.data(), function.name.size());
}

Evaluation ScriptEngine::Evaluate(std::u16string_view text, std::string_view sourceName) {
  duk_context* context = heap_->Context();
  if (!duk_check_stack(context, 8)) return {false, {}, u"the script stack is full"};
  PushText(context, text);
  duk_push_lstring(context, sourceName.data(), sourceName.size());
  const bool succeeded = duk_pcompile(context, DUK_COMPILE_EVAL) == DUK_EXEC_SUCCESS &&
                         duk_pcall(context, 0) == DUK_EXEC_SUCCESS;
  Evaluation evaluation;
  evaluation.succeeded = succeeded;
  if (succeeded) {
    evaluation.value = ReadValue(context, -1);
  } else {
    evaluation.error = ReadText(context, -1);
  }
  duk_pop(context);
  return evaluation;
}

}  // namespace qutav::host
