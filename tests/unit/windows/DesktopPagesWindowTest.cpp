// The pages of a desktop application, each shown alone in a window.
#include "GeneralPageTest.h"
#include "settings_ui/AdvancedSettingsDlg.h"
#include "settings_ui/AppSettingsDlg.h"
#include "windows/ShownDialogs.h"
#include "windows/UserInput.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

void SelectAllIn(const Edit& edit) {
  SetFocus(WindowOf(edit));
  SendMessageW(WindowOf(edit), EM_SETSEL, 0, -1);
}

// --- General -------------------------------------------------------------------------------------

class DesktopGeneralWindowTest : public GeneralPageTest<CAppSettingsDlg> {
 protected:
  DesktopGeneralWindowTest() { LoadChildren("<id>com.game</id><initialWindow/>"); }

  ModalUser::Action Typing(const std::u16string& label, const std::u16string& text) {
    return [this, label, text](HWND) {
      SelectAllIn(EditOf(label));
      TypeText(text);
    };
  }
  static void PressEnter(HWND) { Strike(VK_RETURN); }

  NativeGround ground;
};

TEST_F(DesktopGeneralWindowTest, FilledInByKeysItIsStoredAtEnter) {
  EXPECT_EQ(Use(page, {Typing(u"App name:", u"Chess"), Typing(u"Version:", u"2.5"),
                       Typing(u"App ID:", u"com.chess"), Typing(u"Copyright:", u"Us"),
                       [&](HWND) {
                         SetFocus(WindowOf(ComboOf(u"Window style:")));
                         Strike(VK_DOWN);
                       },
                       [&](HWND) {
                         SetFocus(WindowOf(BoxOf(u"Mobile Device")));
                         Strike(VK_SPACE);
                       },
                       PressEnter}),
            kIdOk);

  const std::string saved = SavedFile();
  EXPECT_THAT(saved, HasSubstr("<id>com.chess</id>"));
  EXPECT_THAT(saved, HasSubstr("<name>Chess</name>"));
  EXPECT_THAT(saved, HasSubstr("<filename>Chess</filename>"));
  EXPECT_THAT(saved, HasSubstr("<versionNumber>2.5</versionNumber>"));
  EXPECT_THAT(saved, HasSubstr("<copyright>Us</copyright>"));
  EXPECT_THAT(saved, HasSubstr("<systemChrome>none</systemChrome>"));
  EXPECT_THAT(saved, HasSubstr("<transparent>false</transparent>"));
  EXPECT_THAT(saved, HasSubstr("desktop extendedDesktop extendedMobileDevice"));
}

TEST_F(DesktopGeneralWindowTest, EnterInTheDescriptionBeginsALineThere) {
  EXPECT_EQ(Use(page, {Typing(u"Description:", u"one"), PressEnter, [](HWND) { TypeText(u"two"); },
                       [&](HWND) {
                         EXPECT_FALSE(page.HasEnded());
                         SetFocus(WindowOf(EditOf(u"App ID:")));
                         Strike(VK_RETURN);
                       }}),
            kIdOk);

  EXPECT_THAT(SavedFile(), HasSubstr("<description>one\ntwo</description>"));
}

TEST_F(DesktopGeneralWindowTest, AnIdThatIsRefusedKeepsItOpenAndStoresNothing) {
  const std::string before = SavedFile();
  const BoxReader box;

  EXPECT_EQ(LookAt(page, {Typing(u"App ID:", u"not_an_id"), PressEnter,
                          [&](HWND) {
                            EXPECT_FALSE(page.HasEnded());
                            EXPECT_EQ(test::TextOf(WindowOf(EditOf(u"App ID:"))), u"not_an_id");
                          }}),
            kIdCancel);

  EXPECT_TRUE(box.text.starts_with(u"Invalid application ID."));
  EXPECT_EQ(SavedFile(), before);
}

TEST_F(DesktopGeneralWindowTest, EscStoresNothing) {
  const std::string before = SavedFile();

  EXPECT_EQ(Use(page, {Typing(u"App ID:", u"com.other"), [](HWND) { Strike(VK_ESCAPE); }}),
            kIdCancel);

  EXPECT_EQ(SavedFile(), before);
}

// --- Advanced ------------------------------------------------------------------------------------

class DesktopAdvancedWindowTest : public DescriptorTest {
 protected:
  DesktopAdvancedWindowTest() { LoadChildren(""); }

  HWND List() { return WindowOf(Find<ListBox>(page, u"File types:")); }
  std::vector<std::u16string> Rows() {
    std::vector<std::u16string> rows;
    const auto count = static_cast<WPARAM>(SendMessageW(List(), LB_GETCOUNT, 0, 0));
    for (WPARAM i = 0; i < count; ++i) {
      wchar_t text[100] = {};
      SendMessageW(List(), LB_GETTEXT, i, reinterpret_cast<LPARAM>(text));
      const std::wstring row(text);
      rows.emplace_back(row.begin(), row.end());
    }
    return rows;
  }
  HWND ButtonOf(const std::u16string& label) {
    return WindowOf(Find<CStretchBitmapButton>(page, label));
  }
  bool IsEnabledOnScreen(const std::u16string& label) {
    return IsWindowEnabled(WindowOf(Find<Edit>(page, label))) != FALSE;
  }
  std::vector<bool> EnabledLimits() {
    return {IsEnabledOnScreen(u"Maximum width:"), IsEnabledOnScreen(u"Maximum height:"),
            IsEnabledOnScreen(u"Minimum width:"), IsEnabledOnScreen(u"Minimum height:")};
  }
  // What holds the caller until the dialog behind it has ended comes as a message of its own.
  ModalUser::Action Pressing(const std::u16string& label) {
    return [this, label](HWND) { PostMessageW(ButtonOf(label), BM_CLICK, 0, 0); };
  }

  NativeGround ground;
  CAdvancedSettingsDlg page;
};

TEST_F(DesktopAdvancedWindowTest, ResizableSwitchesTheFourLimitsAndNothingElse) {
  LookAt(page, [&] {
    EXPECT_THAT(EnabledLimits(), ElementsAre(true, true, true, true));

    Click(Find<CheckBox>(page, u"Resizable"));
    EXPECT_THAT(EnabledLimits(), ElementsAre(false, false, false, false));
    EXPECT_TRUE(IsEnabledOnScreen(u"Width:"));
    EXPECT_TRUE(IsEnabledOnScreen(u"Height:"));

    Click(Find<CheckBox>(page, u"Resizable"));
    EXPECT_THAT(EnabledLimits(), ElementsAre(true, true, true, true));
  });
}

TEST_F(DesktopAdvancedWindowTest, TheLimitsOfAWindowThatIsNotResizableAreDisabledFromTheStart) {
  LoadChildren("<initialWindow><resizable>false</resizable></initialWindow>");

  LookAt(page, [&] { EXPECT_THAT(EnabledLimits(), ElementsAre(false, false, false, false)); });
}

TEST_F(DesktopAdvancedWindowTest, ItsNumbersTakeDigitsAlone) {
  LookAt(page, {[&](HWND) {
                  SelectAllIn(Find<Edit>(page, u"Width:"));
                  TypeText(u"6a4-0");
                },
                [&](HWND) {
                  EXPECT_EQ(TextOf(WindowOf(Find<Edit>(page, u"Width:"))), u"640");
                  EXPECT_EQ(Find<Edit>(page, u"Width:").text, u"640");
                }});
}

TEST_F(DesktopAdvancedWindowTest, AddOpensTheFileTypeDialogWhoseTypeGetsARow) {
  ModalUser::Steps steps = Filling({u"Movie", u"mov", u"", u"video/mov"});
  steps.push_back([&](HWND dialog) {
    EXPECT_EQ(GetWindow(dialog, GW_OWNER), WindowOf(page));
    EXPECT_FALSE(IsWindowEnabled(WindowOf(page)));
    Strike(VK_RETURN);
  });
  const ModalUser typist(WindowTitled(u"File Type Settings"), steps);

  LookAt(page, {[&](HWND) {
                  EXPECT_THAT(Rows(), ElementsAre(u"<None>"));
                  EXPECT_FALSE(IsWindowEnabled(ButtonOf(u"Delete file type")));
                  EXPECT_FALSE(IsWindowEnabled(ButtonOf(u"Edit file type")));
                },
                Pressing(u"Add file type"),
                [&](HWND) {
                  EXPECT_THAT(Rows(), ElementsAre(u"Movie(mov)"));
                  EXPECT_TRUE(IsWindowEnabled(ButtonOf(u"Delete file type")));
                  EXPECT_TRUE(IsWindowEnabled(ButtonOf(u"Edit file type")));
                }});

  EXPECT_EQ(page.fileTypes[u"Movie"].contentType, u"video/mov");
}

TEST_F(DesktopAdvancedWindowTest, AnAdditionThatIsCancelledLeavesTheListAsItWas) {
  ModalUser::Steps steps = Filling({u"Movie", u"mov", u"", u"video/mov"});
  steps.push_back([](HWND) { Strike(VK_ESCAPE); });
  const ModalUser typist(WindowTitled(u"File Type Settings"), steps);

  LookAt(page,
         {Pressing(u"Add file type"), [&](HWND) { EXPECT_THAT(Rows(), ElementsAre(u"<None>")); }});
}

TEST_F(DesktopAdvancedWindowTest, TheLastTypeThatIsDeletedBringsThePlaceholderBack) {
  LoadChildren(
      "<fileTypes><fileType><name>Movie</name><extension>mov</extension>"
      "<contentType>video/mov</contentType></fileType></fileTypes>");

  LookAt(page, {[&](HWND) {
                  EXPECT_THAT(Rows(), ElementsAre(u"Movie(mov)"));
                  ClickAt(List(), 8, 6);
                },
                Pressing(u"Delete file type"),
                [&](HWND) {
                  EXPECT_THAT(Rows(), ElementsAre(u"<None>"));
                  EXPECT_FALSE(IsWindowEnabled(ButtonOf(u"Delete file type")));
                  EXPECT_FALSE(IsWindowEnabled(ButtonOf(u"Edit file type")));
                }});

  EXPECT_FALSE(page.fileTypes[u"Movie"].live);
}

}  // namespace
}  // namespace qutav::test
