// A library that plays the other side of the table: it is loaded like the real one and tells
// what it was given in a log that the tests read.

#include "ExerciseLibrary.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

#include "ExercisePublish.h"
#include "host/HostTable.h"

namespace qutav::exercise {
namespace {

using host::ScriptFunction;
using host::TableEntry;

std::array<std::uintptr_t, host::kTableWords> g_table;
std::u16string g_log;
std::uint64_t g_rememberedWord = 0;

template <typename Function>
Function Entry(TableEntry entry) {
  return reinterpret_cast<Function>(g_table[static_cast<std::size_t>(entry)]);
}

std::u16string Decimal(std::uint64_t number) {
  const std::string digits = std::to_string(number);
  return {digits.begin(), digits.end()};
}

void Log(const std::u16string& line) { g_log += line + u"\n"; }

const char16_t* TextOf(void* context, std::uint64_t word, std::uint32_t& length) {
  using Convert = const char16_t* (*)(void*, std::uint64_t, std::uint32_t*);
  return Entry<Convert>(TableEntry::kValueToString)(context, word, &length);
}

std::int32_t NumberOf(TableEntry entry, void* context, std::uint64_t word) {
  using Convert = std::int32_t (*)(void*, std::uint64_t, std::int32_t*);
  std::int32_t number = -7;
  Entry<Convert>(entry)(context, word, &number);
  return number;
}

void LogValue(void* context, std::uint64_t word) {
  std::uint32_t length = 0;
  const char16_t* text = TextOf(context, word, length);
  Log(u"text " + (text ? std::u16string(text) : std::u16string(u"(null)")));
  Log(u"length " + Decimal(length));
  Log(u"integer " +
      Decimal(static_cast<std::uint32_t>(NumberOf(TableEntry::kValueToInteger, context, word))));
  Log(u"boolean " +
      Decimal(static_cast<std::uint32_t>(NumberOf(TableEntry::kValueToBoolean, context, word))));
  Log(word == 1 ? u"word one" : u"word other");
}

std::int32_t Echo(void* context, void*, std::uint32_t, std::uint64_t* arguments, std::uint64_t*) {
  LogValue(context, arguments[0]);
  return 1;
}

std::int32_t Ask(void* context, void* object, std::uint32_t, std::uint64_t* arguments,
                 std::uint64_t*) {
  std::uint32_t length = 0;
  const char16_t* script = TextOf(context, arguments[0], length);
  std::uint64_t result = 0;
  const std::int32_t status = Evaluate(context, object, script, result);
  Log(u"status " + Decimal(static_cast<std::uint32_t>(status)));
  if (status == 1) LogValue(context, result);
  return status;
}

// Takes a text's address, lets the host make many more, and looks whether it still holds.
std::int32_t HoldText(void* context, void* object, std::uint32_t, std::uint64_t* arguments,
                      std::uint64_t*) {
  std::uint32_t length = 0;
  const char16_t* text = TextOf(context, arguments[0], length);
  const std::u16string copy = text;
  for (int i = 0; i < 1000; ++i) {
    std::uint64_t result = 0;
    Evaluate(context, object, u"'another text of some length, number ' + Math.random()", result);
    TextOf(context, result, length);
  }
  return copy == text ? 1 : 0;
}

std::int32_t RememberWord(void*, void*, std::uint32_t, std::uint64_t* arguments, std::uint64_t*) {
  g_rememberedWord = arguments[0];
  return 1;
}

std::int32_t EchoRememberedWord(void* context, void*, std::uint32_t, std::uint64_t*,
                                std::uint64_t*) {
  LogValue(context, g_rememberedWord);
  return 1;
}

std::int32_t PathOf(void* context, void*, std::uint32_t, std::uint64_t* arguments, std::uint64_t*) {
  std::uint32_t length = 0;
  Log(NativePath(context, TextOf(context, arguments[0], length)));
  return 1;
}

std::int32_t Refuse(void*, void*, std::uint32_t, std::uint64_t*, std::uint64_t*) { return 0; }

std::int32_t Publish(void* context, void* object, std::uint32_t, std::uint64_t* arguments,
                     std::uint64_t*) {
  std::uint32_t length = 0;
  PlayPublish(context, object, TextOf(context, arguments[1], length));
  return 1;
}

// Lets the host launch what the document's data "exercise.launcher" names.
std::int32_t TestMovie(void* context, void* object, std::uint32_t, std::uint64_t*, std::uint64_t*) {
  EvaluateText(
      context, object,
      u"var dom = qu.getDocumentDOM(), path = dom.getDataFromDocument('exercise.launcher');"
      u"if (path) dom.debugTAVMovie(path, '/rt', '/g.xml', 'false', '', '', '', '', -1, '',"
      u"'', '', '');");
  return 1;
}

std::int32_t GetConnectedDevices(void* context, void* object, std::uint32_t, std::uint64_t*,
                                 std::uint64_t*) {
  EvaluateText(context, object,
               u"var dom = qu.getDocumentDOM(), list = dom.getDataFromDocument('exercise.devices');"
               u"dom.updateConnectedDevices(list || '', 'android');");
  return 1;
}

std::int32_t TestOnDevice(void* context, void* object, std::uint32_t, std::uint64_t*,
                          std::uint64_t*) {
  PlayDeviceRun(context, object);
  return 1;
}

std::int32_t OpenSettingDialog(void*, void*, std::uint32_t, std::uint64_t*, std::uint64_t*) {
  PlaySettings();
  return 1;
}

struct Definition {
  const char16_t* name;
  ScriptFunction function;
  std::uint32_t argumentCount;
};

constexpr std::array<Definition, 14> kDefinitions = {{
    {u"Publish", Publish, 3},
    {u"TestMovie", TestMovie, 4},
    {u"DebugMovie", TestMovie, 4},
    {u"TestOnDevice", TestOnDevice, 3},
    {u"DebugOnDevice", TestOnDevice, 3},
    {u"OpenSettingDialog", OpenSettingDialog, 3},
    {u"GetConnectedDevices", GetConnectedDevices, 3},
    {u"echo", Echo, 1},
    {u"ask", Ask, 1},
    {u"holdText", HoldText, 1},
    {u"rememberWord", RememberWord, 1},
    {u"echoRememberedWord", EchoRememberedWord, 0},
    {u"pathOf", PathOf, 1},
    {u"refuse", Refuse, 0},
}};

std::int32_t DefineAll() {
  using Define = std::int32_t (*)(void*, const char16_t*, ScriptFunction, std::uint32_t);
  const auto define = Entry<Define>(TableEntry::kDefineFunction);
  void* library = reinterpret_cast<void*>(g_table[0]);
  std::int32_t last = 0;
  for (const Definition& definition : kDefinitions) {
    last = define(library, definition.name, definition.function, definition.argumentCount);
  }
  return last;
}

}  // namespace

std::int32_t Evaluate(void* context, void* object, const std::u16string& script,
                      std::uint64_t& result) {
  using Run = std::int32_t (*)(void*, void*, const char16_t*, std::uint32_t, const char*,
                               std::uint32_t, std::uint64_t*);
  return Entry<Run>(TableEntry::kEvaluateScript)(context, object, script.c_str(),
                                                 static_cast<std::uint32_t>(script.size()),
                                                 "ExerciseLibrary", 12, &result);
}

std::u16string EvaluateText(void* context, void* object, const std::u16string& script) {
  std::uint64_t result = 0;
  std::uint32_t length = 0;
  if (Evaluate(context, object, script, result) != 1) return u"(thrown)";
  const char16_t* text = TextOf(context, result, length);
  return text ? text : u"";
}

std::u16string NativePath(void* context, const char16_t* uri) {
  using Map = const char16_t* (*)(void*, const char16_t*);
  return Entry<Map>(TableEntry::kUriToPath)(context, uri);
}

}  // namespace qutav::exercise

extern "C" std::int32_t KR_InitWrapper(const void* table, std::uint32_t size) {
  using namespace qutav::exercise;
  if (size != sizeof(g_table)) return 0;
  std::memcpy(g_table.data(), table, size);
  return DefineAll();
}

extern "C" const char16_t* TakeExerciseLog() {
  static std::u16string taken;
  taken = std::move(qutav::exercise::g_log);
  qutav::exercise::g_log.clear();
  return taken.c_str();
}
