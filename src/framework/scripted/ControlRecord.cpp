#include "framework/scripted/ControlRecord.h"

#include "platform/Text.h"

namespace qutav {
namespace {

using Json = nlohmann::ordered_json;

const char* KindName(ControlKind kind) {
  switch (kind) {
    case ControlKind::kText:
      return "text";
    case ControlKind::kEdit:
      return "edit";
    case ControlKind::kPassword:
      return "password";
    case ControlKind::kCheckBox:
      return "check box";
    case ControlKind::kButton:
      return "button";
    case ControlKind::kProgress:
      break;
  }
  return "progress";
}

std::string Masked(bool secret, const std::string& text) {
  return secret && !text.empty() ? "***" : text;
}

struct Address {
  std::u16string label;
  int occurrence;
};

Address ParseAddress(const std::u16string& text) {
  const std::size_t sign = text.rfind(u'#');
  const int occurrence = sign == text.npos ? 0 : ParseDecimal(text.substr(sign + 1));
  if (occurrence < 2) return {text, 1};
  return {text.substr(0, sign), occurrence};
}

}  // namespace

Control* FindControl(CDialog& dialog, const std::u16string& label) {
  Address address = ParseAddress(label);
  for (Control& control : dialog.Controls()) {
    if (control.label == address.label && --address.occurrence == 0) return &control;
  }
  return nullptr;
}

Json RecordControls(const CDialog& dialog) {
  Json records = Json::array();
  for (const Control& control : dialog.Controls()) {
    const bool secret = control.kind == ControlKind::kPassword;
    Json record{{"label", ToUtf8(control.label)},
                {"kind", KindName(control.kind)},
                {"text", Masked(secret, ToUtf8(control.text))}};
    if (control.kind == ControlKind::kCheckBox) record["checked"] = control.checked;
    records.push_back(std::move(record));
  }
  return records;
}

Json RecordValues(const ScriptValues& values) {
  Json record = Json::object();
  for (const auto& [key, value] : values) record[key] = Masked(key.ends_with("pwd"), value);
  return record;
}

}  // namespace qutav
