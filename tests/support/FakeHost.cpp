#include "FakeHost.h"

#include <algorithm>

#include "platform/Text.h"

namespace qutav::test {
namespace {

FakeHost* theHost = nullptr;

// Integers are odd words, texts are even ones behind 0.
constexpr HostValue kUndefined = 0;

std::int32_t DefineFunction(void*, const char16_t* name, ScriptFunction function,
                            std::uint32_t argumentCount) {
  theHost->defined.push_back({name, function, argumentCount});
  return 1;
}

std::int32_t ValueToInteger(void* context, HostValue value, std::int32_t* integer) {
  theHost->conversionContexts.push_back(context);
  *integer = theHost->ToInteger(value);
  return 1;
}

const char16_t* ValueToString(void* context, HostValue value, std::uint32_t* length) {
  theHost->conversionContexts.push_back(context);
  return theHost->ToText(value, *length);
}

const char16_t* UriToPath(void* context, const char16_t* uri) {
  theHost->conversionContexts.push_back(context);
  return theHost->ToPath(uri);
}

std::int32_t EvaluateScript(void* context, void* object, const char16_t* script,
                            std::uint32_t length, const char*, std::uint32_t, HostValue* result) {
  theHost->evaluationWords.emplace_back(context, object);
  return theHost->Evaluate(std::u16string(script, length), *result);
}

constexpr char16_t kDom[] = u"qu.getDocumentDOM().";

// The text arguments of a call, read as the host's script engine would read them.
std::vector<std::u16string> QuotedArguments(const std::u16string& script) {
  std::vector<std::u16string> arguments;
  for (std::size_t open = script.find(u'"'); open != script.npos; open = script.find(u'"', open)) {
    const std::size_t close = script.find(u'"', open + 1);
    if (close == script.npos) break;
    arguments.push_back(script.substr(open + 1, close - open - 1));
    open = close + 1;
  }
  return arguments;
}

}  // namespace

FakeHost::FakeHost() {
  theHost = this;
  uriToPath = [](const std::u16string& uri) {
    std::u16string path = uri.starts_with(u"file:///") ? uri.substr(8) : uri;
    path = ReplaceAll(path, u"%20", u" ");
    std::replace(path.begin(), path.end(), u'/', u'\\');
    return path;
  };
}

FakeHost::~FakeHost() { theHost = nullptr; }

HostTable FakeHost::Table() const {
  HostTable table;
  table.words[0] = 0x1234;
  table.words[1] = reinterpret_cast<std::uintptr_t>(&DefineFunction);
  table.words[4] = reinterpret_cast<std::uintptr_t>(&ValueToInteger);
  table.words[6] = reinterpret_cast<std::uintptr_t>(&ValueToInteger);
  table.words[19] = reinterpret_cast<std::uintptr_t>(&ValueToString);
  table.words[50] = reinterpret_cast<std::uintptr_t>(&UriToPath);
  table.words[55] = reinterpret_cast<std::uintptr_t>(&EvaluateScript);
  return table;
}

HostValue FakeHost::Text(const std::u16string& text) {
  texts_.push_back(text);
  return 2 * static_cast<HostValue>(texts_.size());
}

HostValue FakeHost::Integer(std::int32_t number) {
  return (static_cast<HostValue>(static_cast<std::uint32_t>(number)) << 1) | 1;
}

std::int32_t FakeHost::ToInteger(HostValue value) const {
  return value % 2 == 1 ? static_cast<std::int32_t>(value >> 1) : 0;
}

const char16_t* FakeHost::ToText(HostValue value, std::uint32_t& length) {
  if (value == kUndefined) return nullptr;
  if (value % 2 == 1) value = Text(ToDecimal(ToInteger(value)));
  const std::u16string& text = texts_[value / 2 - 1];
  length = onLength ? onLength(text) : static_cast<std::uint32_t>(text.size());
  return text.c_str();
}

const char16_t* FakeHost::ToPath(const std::u16string& uri) {
  texts_.push_back(uriToPath(uri));
  return texts_.back().c_str();
}

std::int32_t FakeHost::Evaluate(const std::u16string& script, HostValue& result) {
  scripts.push_back(script);
  if (onScript) {
    if (const auto answer = onScript(script)) {
      result = *answer;
      return onStatus ? onStatus(script) : 1;
    }
  }
  result = Answer(script);
  return StatusOf(script);
}

std::int32_t FakeHost::StatusOf(const std::u16string& script) const {
  if (onStatus) return onStatus(script);
  return script.find(u"exportQMVPrivate") != script.npos ? exportStatus : 1;
}

HostValue FakeHost::Answer(const std::u16string& script) {
  if (script == u"qu.languageCode;") return Text(languageCode);
  if (!script.starts_with(kDom)) return kUndefined;
  const std::u16string member = script.substr(std::u16string_view(kDom).size());
  const auto arguments = QuotedArguments(member);
  if (member.starts_with(u"getDataFromDocument(")) {
    const auto value = data.find(arguments.at(0));
    return value == data.end() ? Integer(0) : Text(value->second);
  }
  if (member.starts_with(u"addDataToDocument(")) {
    // An unescaped quote in the value breaks the call, as in a real engine.
    if (arguments.size() != 3) return kUndefined;
    data[arguments[0]] = arguments[2];
    return Integer(0);
  }
  if (member.starts_with(u"removeDataFromDocument(")) {
    data.erase(arguments.at(0));
    return Integer(0);
  }
  if (member == u"playerTarget;") return Text(playerTarget);
  if (member == u"path;") return Text(documentPath);
  if (member == u"asVersion") return Text(scriptVersion);
  if (member == u"externalLibraryPath;") return Text(externalLibraryPath);
  if (member == u"width;") return Integer(width);
  if (member == u"height;") return Integer(height);
  if (member.starts_with(u"exportQMVPrivate(")) return Integer(exportResult);
  if (member.starts_with(u"exportQMV(")) return Integer(testExportResult);
  if (member.starts_with(u"getDebugForQmv(")) return Integer(debug ? 1 : 0);
  if (member.starts_with(u"setDebugForQmv(")) {
    debug = member.find(u"true,") != member.npos;
    return Integer(0);
  }
  if (member.starts_with(u"getSelectedDevice(")) return Text(selectedDevice);
  if (member.starts_with(u"debugTAVMovie(")) return Integer(launchResult);
  return kUndefined;
}

std::vector<std::u16string> FakeHost::ScriptsBeginning(const std::u16string& beginning) const {
  std::vector<std::u16string> found;
  for (const std::u16string& script : scripts) {
    if (script.starts_with(beginning)) found.push_back(script);
  }
  return found;
}

}  // namespace qutav::test
