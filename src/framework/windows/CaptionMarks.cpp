#include "framework/windows/CaptionMarks.h"

#include <algorithm>
#include <vector>

#include "framework/CStretchBitmapButton.h"
#include "framework/CheckList.h"
#include "framework/ComboBox.h"
#include "framework/ControlVisitor.h"
#include "framework/ListBox.h"
#include "framework/Mnemonics.h"
#include "framework/Picture.h"
#include "platform/Text.h"

namespace qutav {
namespace {

// The text by which the keyboard reaches a control; null for one that it does not reach in this
// way.
class KeyboardText final : public ControlVisitor {
 public:
  explicit KeyboardText(Control& control) { control.Accept(*this); }
  const std::u16string* Get() const { return text_; }

  void Visit(Label&) override {}
  void Visit(GroupBox&) override {}
  void Visit(Edit& edit) override { text_ = &edit.caption; }
  // Enter and Esc press these, and by custom nothing else does.
  void Visit(Button& button) override {
    if (button.label != u"OK" && button.label != u"Cancel") text_ = &button.text;
  }
  void Visit(CheckBox& box) override { text_ = &box.text; }
  void Visit(RadioButton& button) override { text_ = &button.text; }
  void Visit(ProgressBar&) override {}
  void Visit(ComboBox& combo) override { text_ = &combo.caption; }
  void Visit(ListBox& list) override { text_ = &list.caption; }
  void Visit(CheckList&) override {}
  void Visit(CStretchBitmapButton&) override {}
  void Visit(Picture&) override {}

 private:
  const std::u16string* text_ = nullptr;
};

// Every caption once: the second control of the same caption and label stands behind the first, and
// is reached from there.
class Captions {
 public:
  void Add(Control& control) {
    const std::u16string* text = KeyboardText(control).Get();
    if (text == nullptr || text->empty() || IsAddedAsRadio(control)) return;
    controls.push_back(&control);
    captions.push_back({*text, control.label});
  }

  std::vector<const Control*> controls;
  std::vector<MnemonicCaption> captions;

 private:
  bool IsAddedAsRadio(const Control& control) const {
    return std::any_of(controls.begin(), controls.end(), [&](const Control* other) {
      return other->label == control.label && dynamic_cast<const RadioButton*>(other) != nullptr;
    });
  }
};

// An "&" is drawn as the line under the letter behind it.
std::u16string AsDrawn(const std::u16string& marked) {
  std::u16string text;
  for (std::size_t i = 0; i < marked.size(); ++i) {
    if (marked[i] == u'&' && i + 1 < marked.size()) ++i;
    text += marked[i];
  }
  return text;
}

}  // namespace

CaptionMarks::CaptionMarks(const CDialog& dialog) {
  Captions all;
  for (const auto& control : dialog.Controls()) all.Add(*control);
  const std::vector<std::u16string> marked = WithMnemonics(all.captions);
  for (std::size_t i = 0; i < marked.size(); ++i) {
    bySerial_[all.controls[i]->serial] = marked[i];
    byText_[all.captions[i].text] = AsDrawn(marked[i]);
  }
}

const std::u16string& CaptionMarks::Of(const Control& control) const {
  static const std::u16string none;
  const auto found = bySerial_.find(control.serial);
  return found == bySerial_.end() ? none : found->second;
}

std::u16string CaptionMarks::Drawn(const std::u16string& text) const {
  const auto found = byText_.find(text);
  return found == byText_.end() ? text : found->second;
}

}  // namespace qutav
