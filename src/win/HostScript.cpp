#include "win/HostScript.h"

#include "platform/Services.h"

namespace qutav {
namespace {

constexpr char kSourceName[] = "MoreshJSExtension";

struct HostTextView {
  const char16_t* text = nullptr;
  std::uint32_t length = 0;
};

HostTextView ConvertToText(const HostCallContext& call, HostValue value) {
  HostTextView view;
  if (const auto valueToString = HostEnvironment.ValueToString()) {
    view.text = valueToString(call.context, value, &view.length);
  }
  return view;
}

}  // namespace

HostResult EvaluateHostScript(const HostCallContext& call, const std::u16string& script) {
  HostResult result;
  const auto evaluate = HostEnvironment.EvaluateScript();
  if (evaluate == nullptr) return result;
  const std::u16string text(script.c_str());
  TheServices().frontEnd->CallHost([&] {
    result.status =
        evaluate(call.context, call.object, text.c_str(), static_cast<std::uint32_t>(text.size()),
                 kSourceName, __LINE__, &result.value);
  });
  return result;
}

std::optional<std::u16string> HostText(const HostCallContext& call, HostValue value) {
  const HostTextView view = ConvertToText(call, value);
  if (view.text == nullptr || view.length == 0) return {};
  return std::u16string(view.text);
}

std::optional<std::u16string> HostTextOrNull(const HostCallContext& call, HostValue value) {
  const HostTextView view = ConvertToText(call, value);
  if (view.text == nullptr) return {};
  return std::u16string(view.text);
}

std::optional<std::u16string> PresentHostText(const HostCallContext& call, HostValue value) {
  if (value == kHostZero) return {};
  return HostText(call, value);
}

// A host that cannot evaluate has no value to convert; its text for the word 0 would mean nothing.
std::optional<std::u16string> EvaluateToText(const HostCallContext& call,
                                             const std::u16string& script) {
  if (HostEnvironment.EvaluateScript() == nullptr) return {};
  return HostText(call, EvaluateHostScript(call, script).value);
}

std::optional<std::u16string> EvaluateToPresentText(const HostCallContext& call,
                                                    const std::u16string& script) {
  if (HostEnvironment.EvaluateScript() == nullptr) return {};
  return PresentHostText(call, EvaluateHostScript(call, script).value);
}

std::int32_t HostInteger(const HostCallContext& call, HostValue value, std::int32_t otherwise) {
  const auto valueToInteger = HostEnvironment.ValueToInteger();
  if (valueToInteger == nullptr) return otherwise;
  std::int32_t integer = otherwise;
  valueToInteger(call.context, value, &integer);
  return integer;
}

}  // namespace qutav
