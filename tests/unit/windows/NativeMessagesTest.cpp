#include <gtest/gtest.h>

#include <vector>

#include "framework/windows/NativeFrontEnd.h"
#include "platform/FrontEnd.h"
#include "windows/ModalUser.h"
#include "windows/OwnerWindow.h"

namespace qutav::test {
namespace {

/// What a message box showed.
struct SeenBox {
  std::u16string text;
  HICON icon = nullptr;
  std::vector<int> buttons;
};

bool IsIcon(HWND label) { return (GetWindowLongW(label, GWL_STYLE) & SS_TYPEMASK) == SS_ICON; }

HICON IconOf(HWND label) { return reinterpret_cast<HICON>(SendMessageW(label, STM_GETICON, 0, 0)); }

SeenBox LookAtBox(HWND box) {
  SeenBox seen;
  for (HWND child = GetWindow(box, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    if (!IsWindowVisible(child)) continue;
    if (ClassOf(child) == u"Button") {
      seen.buttons.push_back(GetDlgCtrlID(child));
    } else if (IsIcon(child)) {
      seen.icon = IconOf(child);
    } else {
      seen.text = TextOf(child);
    }
  }
  return seen;
}

int ShowBox(MessageIcon icon, MessageButtons buttons, WindowHandle owner = nullptr) {
  return NativeFrontEnd().ShowMessage(
      {owner, u"Kestrow \u017C", u"Na\u00EFve \u3042 & more\nline two", icon, buttons});
}

/// Shows a box of the kind, looks at it and presses OK.
SeenBox Seen(MessageIcon icon, MessageButtons buttons) {
  SeenBox seen;
  const ModalUser user(WindowTitled(u"Kestrow \u017C"), [&](HWND box) {
    seen = LookAtBox(box);
    Press(box, IDOK);
  });
  ShowBox(icon, buttons);
  return seen;
}

int AnswerTo(MessageButtons buttons, const ModalUser::Action& action) {
  const ModalUser user(AnyDialog(), action);
  return ShowBox(MessageIcon::kWarning, buttons);
}

/// Strikes a key where the focus is.
ModalUser::Action Striking(WPARAM key) {
  return [key](HWND) { PostMessageW(GetFocus(), WM_KEYDOWN, key, 0); };
}

TEST(NativeMessagesTest, ABoxHasItsTextWhole) {
  const SeenBox box = Seen(MessageIcon::kWarning, MessageButtons::kOk);

  EXPECT_EQ(box.text, u"Na\u00EFve \u3042 & more\nline two");
}

TEST(NativeMessagesTest, AWarningAndAnInformationHaveTheirIcons) {
  EXPECT_EQ(Seen(MessageIcon::kWarning, MessageButtons::kOk).icon, LoadIconW(nullptr, IDI_WARNING));
  EXPECT_EQ(Seen(MessageIcon::kInformation, MessageButtons::kOk).icon,
            LoadIconW(nullptr, IDI_INFORMATION));
}

TEST(NativeMessagesTest, APlainBoxHasNoIcon) {
  EXPECT_EQ(Seen(MessageIcon::kPlain, MessageButtons::kOk).icon, nullptr);
}

TEST(NativeMessagesTest, AMessageHasOneButtonAndAQuestionTwo) {
  EXPECT_EQ(Seen(MessageIcon::kInformation, MessageButtons::kOk).buttons.size(), 1u);
  EXPECT_EQ(Seen(MessageIcon::kWarning, MessageButtons::kOkCancel).buttons,
            (std::vector<int>{IDOK, IDCANCEL}));
}

TEST(NativeMessagesTest, EnterConfirmsAQuestionAndEscapeCancelsIt) {
  EXPECT_EQ(AnswerTo(MessageButtons::kOkCancel, Striking(VK_RETURN)), kIdOk);
  EXPECT_EQ(AnswerTo(MessageButtons::kOkCancel, Striking(VK_ESCAPE)), kIdCancel);
}

TEST(NativeMessagesTest, TheAnswerIsTheButtonThatWasPressed) {
  EXPECT_EQ(AnswerTo(MessageButtons::kOkCancel, [](HWND box) { Press(box, IDOK); }), kIdOk);
  EXPECT_EQ(AnswerTo(MessageButtons::kOkCancel, [](HWND box) { Press(box, IDCANCEL); }), kIdCancel);
}

TEST(NativeMessagesTest, ClosingAQuestionIsACancel) {
  EXPECT_EQ(
      AnswerTo(MessageButtons::kOkCancel, [](HWND box) { SendMessageW(box, WM_CLOSE, 0, 0); }),
      kIdCancel);
}

TEST(NativeMessagesTest, TheWindowWithTheFocusIsDisabledWhileItsBoxIsShown) {
  const OwnerWindow host;
  ASSERT_EQ(NativeFrontEnd().FocusWindow(), host.Window());
  HWND owner = nullptr;
  bool enabled = true;
  const ModalUser user(AnyDialog(), [&](HWND box) {
    owner = GetWindow(box, GW_OWNER);
    enabled = IsWindowEnabled(host.Window()) != 0;
    Press(box, IDOK);
  });

  ShowBox(MessageIcon::kWarning, MessageButtons::kOk, NativeFrontEnd().FocusWindow());

  EXPECT_EQ(owner, host.Window());
  EXPECT_FALSE(enabled);
  EXPECT_TRUE(IsWindowEnabled(host.Window()));
  EXPECT_EQ(GetFocus(), host.Window());
}

TEST(NativeMessagesTest, ABoxWithoutAnOwnerTakesInputFromAllWindowsOfItsThread) {
  const OwnerWindow host;
  const OwnerWindow palette;
  bool hostEnabled = true;
  bool paletteEnabled = true;
  const ModalUser user(AnyDialog(), [&](HWND box) {
    hostEnabled = IsWindowEnabled(host.Window()) != 0;
    paletteEnabled = IsWindowEnabled(palette.Window()) != 0;
    Press(box, IDOK);
  });

  ShowBox(MessageIcon::kWarning, MessageButtons::kOk, nullptr);

  EXPECT_FALSE(hostEnabled);
  EXPECT_FALSE(paletteEnabled);
  EXPECT_TRUE(IsWindowEnabled(host.Window()));
  EXPECT_TRUE(IsWindowEnabled(palette.Window()));
}

TEST(NativeMessagesTest, TheMainWindowIsTheVisibleOneWithoutAnOwner) {
  const OwnerWindow host;

  EXPECT_EQ(NativeFrontEnd().MainWindow(), host.Window());
}

}  // namespace
}  // namespace qutav::test
