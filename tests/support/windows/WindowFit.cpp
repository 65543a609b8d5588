#include "windows/WindowFit.h"

#include <algorithm>

#include "framework/windows/DialogFont.h"
#include "platform/Unicode.h"
#include "platform/windows/Wide.h"
#include "windows/ModalUser.h"

// behind the system's own header
#include <commctrl.h>

namespace qutav::test {
namespace {

// Pixels at 96 DPI: what the system draws beside a text.
constexpr int kChoiceMark = 13 + 3;
constexpr int kButtonSides = 2 * 4;
constexpr int kHeadingSides = 2 * 8;
constexpr int kColumnSides = 2 * 6;
constexpr int kTabSides = 2 * 2;

constexpr int kMargin = 7;  // in dialog units

std::string Written(const Size& size) {
  return std::to_string(size.width) + " by " + std::to_string(size.height);
}

Size SizeOf(const RECT& rect) { return {rect.right - rect.left, rect.bottom - rect.top}; }

bool IsEmpty(const RECT& rect) { return rect.right <= rect.left || rect.bottom <= rect.top; }

bool Overlap(const RECT& a, const RECT& b) {
  return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

bool Contains(const RECT& outer, const RECT& inner) {
  return outer.left <= inner.left && outer.top <= inner.top && outer.right >= inner.right &&
         outer.bottom >= inner.bottom;
}

RECT ClientOf(HWND window) {
  RECT client{};
  GetClientRect(window, &client);
  return client;
}

// Measures text in a window's own font, as the system breaks and draws it.
class Ruler {
 public:
  explicit Ruler(HWND window)
      : context_(GetDC(nullptr)),
        former_(SelectObject(context_,
                             reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)))) {}
  ~Ruler() {
    SelectObject(context_, former_);
    ReleaseDC(nullptr, context_);
  }
  Ruler(const Ruler&) = delete;
  Ruler& operator=(const Ruler&) = delete;

  Size OneLine(const std::u16string& text, UINT flags = 0) const {
    return Measured(text, 0, flags | DT_SINGLELINE);
  }
  Size Wrapped(const std::u16string& text, int width, UINT flags = 0) const {
    return Measured(text, width, flags | DT_WORDBREAK);
  }
  int LineHeight() const { return OneLine(u"Ag").height; }

 private:
  Size Measured(const std::u16string& text, int width, UINT flags) const {
    RECT place{0, 0, width, 0};
    DrawTextW(context_, Wide(text), static_cast<int>(text.size()), &place, DT_CALCRECT | flags);
    return SizeOf(place);
  }

  HDC context_;
  HGDIOBJ former_;
};

struct Child {
  HWND window;
  std::u16string className;
  std::u16string text;
  LONG style;
  RECT place;  ///< in its parent

  bool Is(const wchar_t* name) const { return lstrcmpiW(Wide(className), name) == 0; }
  bool IsButton(LONG type) const { return Is(WC_BUTTONW) && (style & BS_TYPEMASK) == type; }
  bool IsFrame() const { return IsButton(BS_GROUPBOX) || Is(WC_TABCONTROLW); }
  bool IsChoice() const {
    return IsButton(BS_CHECKBOX) || IsButton(BS_AUTOCHECKBOX) || IsButton(BS_RADIOBUTTON) ||
           IsButton(BS_AUTORADIOBUTTON);
  }
  // One of a sheet, which is looked at by itself.
  bool IsPage() const { return className == u"#32770"; }
  // Of a field that a radio button leads to: it names the field to a screen reader.
  bool IsUnshownCaption() const { return Is(WC_STATICW) && SizeOf(place).width == 0; }
  std::string Name() const {
    return "\"" + ToUtf8(text) + "\" (" + ToUtf8(className) + " " +
           std::to_string(GetDlgCtrlID(window)) + ")";
  }
};

std::vector<Child> ChildrenOf(HWND parent) {
  std::vector<Child> children;
  for (HWND window = GetWindow(parent, GW_CHILD); window != nullptr;
       window = GetWindow(window, GW_HWNDNEXT)) {
    Child child{window, ClassOf(window), TextOf(window), GetWindowLongW(window, GWL_STYLE), {}};
    GetWindowRect(window, &child.place);
    MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&child.place), 2);
    if (child.IsPage() || child.IsUnshownCaption()) continue;
    children.push_back(std::move(child));
  }
  return children;
}

class Inspection {
 public:
  Inspection(HWND parent, unsigned dpi, Size margin)
      : children_(ChildrenOf(parent)), dpi_(dpi), inside_(ClientOf(parent)) {
    InflateRect(&inside_, -margin.width, -margin.height);
  }

  std::vector<std::string> Faults() {
    for (const Child& child : children_) {
      if (IsEmpty(child.place)) Report(child, "is empty");
      if (!Contains(inside_, child.place)) Report(child, "stands on the margin or outside");
      CheckContent(child);
    }
    CheckOverlaps();
    return std::move(faults_);
  }

 private:
  int Scaled(int pixels) const { return MulDiv(pixels, static_cast<int>(dpi_), 96); }

  void Report(const Child& child, const std::string& fault) {
    faults_.push_back(child.Name() + " " + fault);
  }

  void Expect(const Child& child, const Size& needed, const Size& given) {
    if (needed.width <= given.width && needed.height <= given.height) return;
    Report(child, "needs " + Written(needed) + " and has " + Written(given));
  }

  void CheckContent(const Child& child) {
    if (child.Is(WC_STATICW)) return CheckLabel(child);
    if (child.Is(WC_BUTTONW)) return CheckButton(child);
    if (child.Is(WC_EDITW)) return CheckEdit(child);
    if (child.Is(WC_COMBOBOXW)) return CheckCombo(child);
    if (child.Is(WC_LISTBOXW)) return CheckHeight(child, SizeOf(ClientOf(child.window)).height);
    if (child.Is(WC_LISTVIEWW)) return CheckListView(child);
    if (child.Is(WC_TABCONTROLW)) return CheckTabs(child);
  }

  void CheckLabel(const Child& child) {
    if ((child.style & SS_TYPEMASK) != SS_LEFT) return;
    const UINT flags = (child.style & SS_NOPREFIX) != 0 ? DT_NOPREFIX : 0;
    const Size given = SizeOf(ClientOf(child.window));
    Expect(child, Ruler(child.window).Wrapped(child.text, given.width, flags), given);
  }

  void CheckButton(const Child& child) {
    const Ruler ruler(child.window);
    const Size given = SizeOf(ClientOf(child.window));
    if (child.IsButton(BS_PUSHBUTTON) || child.IsButton(BS_DEFPUSHBUTTON)) {
      const Size text = ruler.OneLine(child.text);
      Expect(child, {text.width + Scaled(kButtonSides), text.height}, given);
      CheckIdealSize(child, given);
    } else if (child.IsButton(BS_GROUPBOX)) {
      Expect(child, {ruler.OneLine(child.text).width + Scaled(kHeadingSides), 0}, given);
    } else if (child.IsChoice()) {
      const int mark = Scaled(kChoiceMark);
      const Size text = ruler.Wrapped(child.text, given.width - mark);
      Expect(child, {mark + text.width, std::max(text.height, mark - Scaled(3))}, given);
      CheckIdealSize(child, given);
    }
  }

  // What the system itself thinks of a button, where it has an opinion.
  void CheckIdealSize(const Child& child, const Size& given) {
    SIZE ideal{given.width, 0};
    if (SendMessageW(child.window, BCM_GETIDEALSIZE, 0, reinterpret_cast<LPARAM>(&ideal)) ==
        FALSE) {
      return;
    }
    Expect(child, {ideal.cx, ideal.cy}, given);
  }

  void CheckHeight(const Child& child, int height) {
    Expect(child, {0, Ruler(child.window).LineHeight()}, {0, height});
  }

  void CheckEdit(const Child& child) {
    RECT lines{};
    SendMessageW(child.window, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&lines));
    CheckHeight(child, SizeOf(lines).height);
  }

  // The rows of a list without a field are known when the dialog is made, and each may be chosen.
  void CheckCombo(const Child& child) {
    COMBOBOXINFO parts{};
    parts.cbSize = sizeof parts;
    GetComboBoxInfo(child.window, &parts);
    const Size field = SizeOf(parts.rcItem);
    CheckHeight(child, field.height);
    if ((child.style & 3) != CBS_DROPDOWNLIST) return;
    for (const std::u16string& row : RowsOf(child.window)) {
      const int needed = Ruler(child.window).OneLine(row, DT_NOPREFIX).width;
      if (needed <= field.width) continue;
      Report(child, "needs " + std::to_string(needed) + " for \"" + ToUtf8(row) + "\" and has " +
                        std::to_string(field.width));
    }
  }

  static std::vector<std::u16string> RowsOf(HWND combo) {
    std::vector<std::u16string> rows;
    const LRESULT count = SendMessageW(combo, CB_GETCOUNT, 0, 0);
    for (WPARAM i = 0; i < static_cast<WPARAM>(count); ++i) {
      std::u16string row(static_cast<std::size_t>(SendMessageW(combo, CB_GETLBTEXTLEN, i, 0)),
                         u'\0');
      SendMessageW(combo, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(WideBuffer(row)));
      rows.push_back(std::move(row));
    }
    return rows;
  }

  void CheckListView(const Child& child) {
    const Ruler ruler(child.window);
    wchar_t heading[260] = {};
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.pszText = heading;
    column.cchTextMax = 260;
    ListView_GetColumn(child.window, 0, &column);
    const int needed = ruler.OneLine(FromWide(heading), DT_NOPREFIX).width + Scaled(kColumnSides);
    const RECT header = ClientOf(ListView_GetHeader(child.window));
    Expect(child, {needed, SizeOf(header).height + ruler.LineHeight()},
           {column.cx, SizeOf(ClientOf(child.window)).height});
    if (column.cx > SizeOf(ClientOf(child.window)).width) {
      Report(child, "has a column that is wider than itself");
    }
  }

  void CheckTabs(const Child& child) {
    const Ruler ruler(child.window);
    const RECT client = ClientOf(child.window);
    for (int i = 0; i < TabCtrl_GetItemCount(child.window); ++i) {
      RECT tab{};
      TabCtrl_GetItemRect(child.window, i, &tab);
      const std::u16string text = TabText(child.window, i);
      const Size needed = ruler.OneLine(text);
      if (!Contains(client, tab)) Report(child, "does not show the tab \"" + ToUtf8(text) + "\"");
      Expect(child, {needed.width + Scaled(kTabSides), needed.height}, SizeOf(tab));
    }
  }

  static std::u16string TabText(HWND tabs, int index) {
    wchar_t text[260] = {};
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = text;
    item.cchTextMax = 260;
    TabCtrl_GetItem(tabs, index, &item);
    return FromWide(text);
  }

  // A frame has its content whole or not at all.
  void CheckOverlaps() {
    for (std::size_t i = 0; i < children_.size(); ++i) {
      for (std::size_t j = i + 1; j < children_.size(); ++j) {
        const Child& a = children_[i];
        const Child& b = children_[j];
        const bool enclosed = (a.IsFrame() && Contains(a.place, b.place)) ||
                              (b.IsFrame() && Contains(b.place, a.place));
        if (!enclosed && Overlap(a.place, b.place)) Report(a, "overlaps " + b.Name());
      }
    }
  }

  std::vector<Child> children_;
  unsigned dpi_;
  RECT inside_;
  std::vector<std::string> faults_;
};

}  // namespace

std::vector<std::string> FaultsOf(HWND parent, unsigned dpi, Size margin) {
  return Inspection(parent, dpi, margin).Faults();
}

std::vector<std::string> FaultsOfDialog(HWND dialog, unsigned dpi) {
  const DialogFont font(dpi);
  const FontMeasure measure(font.Handle(), dpi);
  return FaultsOf(dialog, dpi, {measure.Horizontal(kMargin), measure.Vertical(kMargin)});
}

}  // namespace qutav::test
