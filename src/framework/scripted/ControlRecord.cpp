#include "framework/scripted/ControlRecord.h"

#include "framework/CStretchBitmapButton.h"
#include "framework/CheckList.h"
#include "framework/ComboBox.h"
#include "framework/ControlVisitor.h"
#include "framework/ListBox.h"
#include "framework/Picture.h"
#include "platform/Text.h"

namespace qutav {
namespace {

using Json = nlohmann::ordered_json;

const char* EditKind(EditStyle style) {
  switch (style) {
    case EditStyle::kPassword:
      return "password";
    case EditStyle::kMultiLine:
      return "multi-line edit";
    case EditStyle::kDigits:
      return "number edit";
    case EditStyle::kReadOnly:
    case EditStyle::kReadOnlyLines:
      return "read-only edit";
    case EditStyle::kPlain:
      break;
  }
  return "edit";
}

Json TextList(const std::vector<std::u16string>& texts) {
  Json list = Json::array();
  for (const std::u16string& text : texts) list.push_back(ToUtf8(text));
  return list;
}

class Recorder final : public ControlVisitor {
 public:
  explicit Recorder(Control& control) {
    control.Accept(*this);
    if (!control.enabled) record_["enabled"] = false;
    if (!control.visible) record_["visible"] = false;
  }
  Json Take() { return std::move(record_); }

  void Visit(Label& label) override { Begin(label, "text", label.text); }
  void Visit(GroupBox& box) override { Begin(box, "group", box.text); }
  void Visit(Button& button) override { Begin(button, "button", button.text); }
  void Visit(ProgressBar& bar) override { Begin(bar, "progress", bar.text); }
  void Visit(Edit& edit) override {
    const bool masked = edit.style == EditStyle::kPassword && !edit.text.empty();
    Begin(edit, EditKind(edit.style), masked ? u"***" : edit.text);
  }
  void Visit(CheckBox& box) override {
    Begin(box, "check box", box.text);
    record_["checked"] = box.checked;
  }
  void Visit(RadioButton& button) override {
    Begin(button, "radio button", button.text);
    record_["checked"] = button.checked;
  }
  void Visit(ComboBox& combo) override {
    Begin(combo, combo.style == ComboStyle::kDropList ? "drop list" : "combo box", combo.text);
    record_["rows"] = TextList(combo.Rows());
    record_["selected"] = combo.GetCurSel();
  }
  void Visit(ListBox& list) override {
    Begin(list, "list box", list.text);
    record_["rows"] = TextList(list.Rows());
    record_["selected"] = list.GetCurSel();
  }
  void Visit(CheckList& list) override {
    Begin(list, "check list", list.text);
    record_["rows"] = Json::array();
    for (const CheckList::Row& row : list.Rows()) {
      record_["rows"].push_back({{"text", ToUtf8(row.text)}, {"checked", row.checked}});
    }
    record_["selected"] = list.FirstSelected();
  }
  void Visit(CStretchBitmapButton& button) override { Begin(button, "image button", button.text); }
  void Visit(Picture& picture) override {
    Begin(picture, "picture", picture.text);
    if (picture.Painted() == nullptr) return;
    const Rectangle& target = picture.Target();
    record_["painted"] = {target.left, target.top, target.right, target.bottom};
  }

 private:
  void Begin(const Control& control, const char* kind, const std::u16string& text) {
    record_ = {{"label", ToUtf8(control.label)}, {"kind", kind}, {"text", ToUtf8(text)}};
    if (!control.caption.empty()) record_["caption"] = ToUtf8(control.caption);
  }

  Json record_;
};

}  // namespace

Json RecordControl(Control& control) { return Recorder(control).Take(); }

Json RecordControls(const CDialog& dialog) {
  Json records = Json::array();
  for (const auto& control : dialog.Controls()) records.push_back(RecordControl(*control));
  return records;
}

}  // namespace qutav
