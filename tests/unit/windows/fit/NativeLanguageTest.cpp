// The language is switched to each row of the language table, and the right text is on the screen.
#include "AllDialogs.h"
#include "SheetTest.h"
#include "TranslatedTexts.h"
#include "framework/MessageBoxes.h"
#include "framework/Mnemonics.h"
#include "framework/windows/NativeFrontEnd.h"
#include "framework/windows/OpenWindows.h"
#include "packaging/DocumentDescriptor.h"
#include "platform/windows/Wide.h"
#include "settings_ui/SettingsPages.h"
#include "win/InterfaceLanguage.h"
#include "windows/ModalUser.h"

// behind the system's own header
#include <prsht.h>

namespace qutav::test {
namespace {

using ::testing::Contains;
using ::testing::IsSupersetOf;

// What a user reads in a control or beside it.
std::u16string ShownFor(const Control& control) {
  const ControlBinder* binder = OpenWindows::BinderOf(control);
  const HWND caption = binder->CaptionWindow();
  return WithoutMnemonic(TextOf(caption != nullptr ? caption : binder->Window()));
}

// The icons page writes the chosen icon's size itself, in figures.
void ExpectCatalogueTexts(const CDialog& dialog) {
  for (const auto& control : dialog.Controls()) {
    if (control->captionId == 0 || control->label == u"36x36") continue;
    EXPECT_EQ(ShownFor(*control), Message(control->captionId)) << ToUtf8(control->label);
  }
}

std::vector<std::u16string> TextsIn(HWND window) {
  std::vector<std::u16string> texts;
  for (HWND child = GetWindow(window, GW_CHILD); child != nullptr;
       child = GetWindow(child, GW_HWNDNEXT)) {
    texts.push_back(WithoutMnemonic(TextOf(child)));
  }
  return texts;
}

std::u16string TitleOfTab(HWND sheet, std::size_t index) {
  wchar_t text[260] = {};
  TCITEMW item{};
  item.mask = TCIF_TEXT;
  item.pszText = text;
  item.cchTextMax = 260;
  TabCtrl_GetItem(PropSheet_GetTabControl(sheet), index, &item);
  return FromWide(text);
}

class NativeLanguageTest : public SheetTest, public ::testing::WithParamInterface<TranslatedTexts> {
 protected:
  NativeLanguageTest() {
    host.languageCode = GetParam().code;
    EnterInterfaceLanguage(call);
    TheServices().frontEnd = &native;
  }

  // Looks at every page of the sheet.
  void ExpectTextsOfSheet(std::uint32_t titleId, bool ios) {
    ASSERT_EQ(LoadDocumentDescriptor(false), kLoaded);
    SettingsPages pages;
    CSettingsPropSheet sheet(titleId);
    sheet.AddPages(pages, ios);
    const ModalUser user(AnyDialog(), [&](HWND window) {
      EXPECT_EQ(TextOf(window), Message(titleId));
      EXPECT_THAT(TextsIn(window), IsSupersetOf({Message(messages::kPublishButton),
                                                 std::u16string(GetParam().cancel)}));
      for (std::size_t i = 0; i < sheet.Pages().size(); ++i) {
        PropSheet_SetCurSel(window, nullptr, i);
        EXPECT_EQ(TitleOfTab(window, i), sheet.Pages()[i]->Title());
        ExpectCatalogueTexts(*sheet.Pages()[i]);
      }
      Press(window, IDCANCEL);
    });
    sheet.DoModal();
  }

  HostCallContext call;
  NativeFrontEnd native;
};

TEST_P(NativeLanguageTest, AMessageBoxHasItsTextInTheLanguageOfTheHost) {
  const ModalUser user(AnyDialog(), [](HWND box) {
    EXPECT_THAT(TextsIn(box), Contains(GetParam().missingCertificate));
    Press(box, IDOK);
  });

  ShowWarning(Message(messages::kCertificateMissing));
}

TEST_P(NativeLanguageTest, ADialogHasItsTitleAndItsButtonsInTheLanguageOfTheHost) {
  CSignaturePasswordDlg dialog(nullptr);
  const ModalUser user(AnyDialog(), [](HWND window) {
    EXPECT_EQ(TextOf(window), GetParam().passwordTitle);
    EXPECT_THAT(TextsIn(window), Contains(GetParam().cancel));
    PostMessageW(window, WM_CLOSE, 0, 0);
  });

  dialog.DoModal();
}

TEST_P(NativeLanguageTest, EveryDialogHasAllItsTextsInTheLanguageOfTheHost) {
  for (const auto& dialog : DialogsAndPages()) {
    if (dynamic_cast<const CPropertyPage*>(dialog.get()) != nullptr) continue;
    const ModalUser user(AnyDialog(), [&](HWND window) {
      EXPECT_EQ(TextOf(window), dialog->Title());
      ExpectCatalogueTexts(*dialog);
      PostMessageW(window, WM_CLOSE, 0, 0);
    });
    dialog->DoModal();
  }
}

TEST_P(NativeLanguageTest, TheAndroidFormOfTheSheetHasAllItsTextsInTheLanguageOfTheHost) {
  ExpectTextsOfSheet(messages::kAndroidSettingsTitle, false);
}

TEST_P(NativeLanguageTest, TheIosFormOfTheSheetHasAllItsTextsInTheLanguageOfTheHost) {
  UseIosForm();

  ExpectTextsOfSheet(messages::kIosSettingsTitle, true);
}

INSTANTIATE_TEST_SUITE_P(OfEveryRow, NativeLanguageTest, ::testing::ValuesIn(kTranslatedTexts),
                         [](const auto& row) { return ToUtf8(row.param.code); });

}  // namespace
}  // namespace qutav::test
