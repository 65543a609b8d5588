#include "framework/windows/WindowRecord.h"

#include "framework/CStretchBitmapButton.h"
#include "framework/CheckList.h"
#include "framework/ComboBox.h"
#include "framework/ControlVisitor.h"
#include "framework/ListBox.h"
#include "framework/Mnemonics.h"
#include "framework/Picture.h"
#include "framework/scripted/ControlRecord.h"
#include "framework/windows/OpenWindows.h"
#include "framework/windows/WindowText.h"
#include "platform/Text.h"
#include "platform/windows/Wide.h"

namespace qutav {
namespace {

constexpr int kLongestItem = 512;

using Json = nlohmann::ordered_json;

std::string PlainText(HWND window) { return ToUtf8(WithoutMnemonic(WindowText(window))); }

bool IsSwitchedOn(HWND button) { return SendMessageW(button, BM_GETCHECK, 0, 0) == BST_CHECKED; }

// The messages by which a kind of list tells its rows.
struct RowMessages {
  UINT count;
  UINT length;
  UINT text;
};
constexpr RowMessages kOfCombo = {CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT};
constexpr RowMessages kOfListBox = {LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT};

std::string RowText(HWND list, const RowMessages& messages, WPARAM row) {
  std::u16string text(static_cast<std::size_t>(SendMessageW(list, messages.length, row, 0)), u'\0');
  SendMessageW(list, messages.text, row, reinterpret_cast<LPARAM>(WideBuffer(text)));
  return ToUtf8(text);
}

Json RowTexts(HWND list, const RowMessages& messages) {
  Json rows = Json::array();
  const auto count = static_cast<WPARAM>(SendMessageW(list, messages.count, 0, 0));
  for (WPARAM row = 0; row < count; ++row) rows.push_back(RowText(list, messages, row));
  return rows;
}

std::string ItemText(HWND list, int row) {
  std::u16string text(kLongestItem, u'\0');
  LVITEMW item{};
  item.pszText = WideBuffer(text);
  item.cchTextMax = kLongestItem;
  text.resize(static_cast<std::size_t>(SendMessageW(
      list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item))));
  return ToUtf8(text);
}

// Begins with what the model says.
class WindowRecorder final : public ControlVisitor {
 public:
  explicit WindowRecorder(Control& control)
      : record_(RecordControl(control)), binder_(*OpenWindows::BinderOf(control)) {
    control.Accept(*this);
    TellCaption();
    TellState("enabled", (Style() & WS_DISABLED) == 0);
    TellState("visible", (Style() & WS_VISIBLE) != 0);
  }
  Json Take() { return std::move(record_); }

  void Visit(Label&) override { record_["text"] = ToUtf8(WindowText(Window())); }
  void Visit(GroupBox&) override { record_["text"] = PlainText(Window()); }
  void Visit(Button&) override { record_["text"] = PlainText(Window()); }
  void Visit(CheckBox&) override { VisitSwitch(); }
  void Visit(RadioButton&) override { VisitSwitch(); }
  void Visit(Edit& edit) override {
    const std::string text = ToUtf8(WindowText(Window()));
    const bool masked = edit.style == EditStyle::kPassword && !text.empty();
    record_["text"] = masked ? "***" : text;
  }
  void Visit(ComboBox&) override {
    record_["text"] = ToUtf8(WindowText(Window()));
    record_["rows"] = RowTexts(Window(), kOfCombo);
    record_["selected"] = SendMessageW(Window(), CB_GETCURSEL, 0, 0);
  }
  void Visit(ListBox&) override {
    record_["rows"] = RowTexts(Window(), kOfListBox);
    record_["selected"] = SendMessageW(Window(), LB_GETCURSEL, 0, 0);
  }
  void Visit(CheckList&) override {
    record_["rows"] = Json::array();
    for (int row = 0; row < ListView_GetItemCount(Window()); ++row) {
      record_["rows"].push_back({{"text", ItemText(Window(), row)},
                                 {"checked", ListView_GetCheckState(Window(), row) == 1}});
    }
    record_["selected"] = ListView_GetNextItem(Window(), -1, LVNI_SELECTED);
  }
  void Visit(CStretchBitmapButton&) override {}
  void Visit(Picture&) override {}
  void Visit(ProgressBar&) override {}

 private:
  HWND Window() const { return binder_.Window(); }
  LONG Style() const { return GetWindowLongW(Window(), GWL_STYLE); }

  void VisitSwitch() {
    record_["text"] = PlainText(Window());
    record_["checked"] = IsSwitchedOn(Window());
  }

  void TellCaption() {
    if (binder_.CaptionWindow() != nullptr) record_["caption"] = PlainText(binder_.CaptionWindow());
  }

  void TellState(const char* member, bool holds) {
    record_.erase(member);
    if (!holds) record_[member] = false;
  }

  Json record_;
  const ControlBinder& binder_;
};

}  // namespace

Json RecordWindows(const CDialog& dialog) {
  Json records = Json::array();
  for (const auto& control : dialog.Controls()) records.push_back(WindowRecorder(*control).Take());
  return records;
}

}  // namespace qutav
