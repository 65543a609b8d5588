// Labels, frames and fields in their windows.
#include "windows/SampleDialog.h"
#include "windows/ShownDialogs.h"
#include "windows/UserInput.h"

namespace qutav::test {
namespace {

class TextControlsTest : public ShownDialogTest {
 protected:
  // What the field's window shows of a text that it is given, for a style.
  DWORD EditStyleFor(EditStyle style) {
    dialog.edit.style = style;
    DWORD bits = 0;
    LookAt(dialog, [&] { bits = StyleOf(WindowOf(dialog.edit)); });
    return bits;
  }

  SampleDialog dialog;
};

TEST_F(TextControlsTest, AWindowShowsFromTheStartWhatItsModelSays) {
  dialog.edit.text = u"na\u00EFve \u3042";
  dialog.heading.text = u"A heading";

  LookAt(dialog, [&] {
    EXPECT_EQ(TextOf(WindowOf(dialog.edit)), u"na\u00EFve \u3042");
    EXPECT_EQ(TextOf(WindowOf(dialog.heading)), u"A heading");
  });
}

TEST_F(TextControlsTest, AWindowShowsWhatAHandlerHasChanged) {
  LookAt(dialog, [&] {
    RunEvent([&] {
      dialog.edit.text = u"later";
      dialog.heading.text = u"another";
    });

    EXPECT_EQ(TextOf(WindowOf(dialog.edit)), u"later");
    EXPECT_EQ(TextOf(WindowOf(dialog.heading)), u"another");
  });
}

TEST_F(TextControlsTest, AWindowIsDisabledAndHiddenAsItsModelIs) {
  dialog.edit.enabled = false;
  dialog.heading.visible = false;

  LookAt(dialog, [&] {
    EXPECT_FALSE(IsWindowEnabled(WindowOf(dialog.edit)));
    EXPECT_FALSE(IsWindowVisible(WindowOf(dialog.heading)));
    EXPECT_TRUE(IsWindowVisible(WindowOf(dialog.edit)));

    RunEvent([&] {
      dialog.edit.enabled = true;
      dialog.heading.visible = true;
    });

    EXPECT_TRUE(IsWindowEnabled(WindowOf(dialog.edit)));
    EXPECT_TRUE(IsWindowVisible(WindowOf(dialog.heading)));
  });
}

TEST_F(TextControlsTest, ACaptionIsHiddenWithItsField) {
  dialog.edit.visible = false;

  LookAt(dialog, [&] { EXPECT_FALSE(IsWindowVisible(CaptionOf(dialog.edit))); });
}

TEST_F(TextControlsTest, ACaptionStandsRightBeforeItsFieldSoThatScreenReadersReadIt) {
  LookAt(dialog, [&] {
    for (Control* field :
         {static_cast<Control*>(&dialog.edit), static_cast<Control*>(&dialog.editable),
          static_cast<Control*>(&dialog.dropList), static_cast<Control*>(&dialog.listBox)}) {
      EXPECT_EQ(GetWindow(WindowOf(*field), GW_HWNDPREV), CaptionOf(*field))
          << ToUtf8(field->label);
      EXPECT_EQ(ClassOf(CaptionOf(*field)), u"Static");
    }
    EXPECT_EQ(TextOf(CaptionOf(dialog.edit)), u"&Name:");
  });
}

TEST_F(TextControlsTest, TheWindowsStandInTheOrderOfTheModel) {
  LookAt(dialog, [&] {
    std::vector<HWND> windows;
    for (HWND child = GetWindow(WindowOf(dialog), GW_CHILD); child != nullptr;
         child = GetWindow(child, GW_HWNDNEXT)) {
      windows.push_back(child);
    }
    std::vector<HWND> wanted;
    for (const auto& control : dialog.Controls()) {
      if (CaptionOf(*control) != nullptr) wanted.push_back(CaptionOf(*control));
      wanted.push_back(WindowOf(*control));
    }
    EXPECT_EQ(windows, wanted);
  });
}

TEST_F(TextControlsTest, TypingReachesTheModelCharacterByCharacter) {
  LookAt(dialog, {[&](HWND) {
                    SetFocus(WindowOf(dialog.edit));
                    TypeText(u"a&\u00E9");
                  },
                  [&](HWND) {
                    EXPECT_EQ(dialog.edit.text, u"a&\u00E9");
                    Strike(VK_BACK);
                  },
                  [&](HWND) { EXPECT_EQ(dialog.edit.text, u"a&"); }});
}

TEST_F(TextControlsTest, TheCaretStaysWhereTheUserTypes) {
  dialog.edit.text = u"ad";
  LookAt(dialog, {[&](HWND) {
                    SetFocus(WindowOf(dialog.edit));
                    SendMessageW(WindowOf(dialog.edit), EM_SETSEL, 1, 1);
                    TypeText(u"bc");
                  },
                  [&](HWND) { EXPECT_EQ(dialog.edit.text, u"abcd"); }});
}

TEST_F(TextControlsTest, APasswordIsNotLegible) {
  dialog.edit.style = EditStyle::kPassword;
  dialog.edit.text = u"secret";

  LookAt(dialog, [&] {
    EXPECT_TRUE(StyleOf(WindowOf(dialog.edit)) & ES_PASSWORD);
    EXPECT_NE(SendMessageW(WindowOf(dialog.edit), EM_GETPASSWORDCHAR, 0, 0), 0);
  });
}

TEST_F(TextControlsTest, AFieldForDigitsTakesNothingElse) {
  dialog.edit.style = EditStyle::kDigits;

  LookAt(dialog, {[&](HWND) {
                    SetFocus(WindowOf(dialog.edit));
                    TypeText(u"1x2-3");
                  },
                  [&](HWND) { EXPECT_EQ(dialog.edit.text, u"123"); }});
}

TEST_F(TextControlsTest, AFieldToReadTakesNothing) {
  LookAt(dialog, {[&](HWND) {
                    SetFocus(WindowOf(dialog.fixed));
                    TypeText(u"x");
                  },
                  [&](HWND) { EXPECT_EQ(dialog.fixed.text, u"as it stands"); }});
}

TEST_F(TextControlsTest, FieldsOfSeveralLinesScroll) {
  EXPECT_EQ(EditStyleFor(EditStyle::kMultiLine) & (ES_MULTILINE | ES_WANTRETURN | WS_VSCROLL),
            static_cast<DWORD>(ES_MULTILINE | ES_WANTRETURN | WS_VSCROLL));
  EXPECT_EQ(EditStyleFor(EditStyle::kReadOnlyLines) & (ES_MULTILINE | ES_READONLY),
            static_cast<DWORD>(ES_MULTILINE | ES_READONLY));
  EXPECT_EQ(EditStyleFor(EditStyle::kPlain) & (ES_MULTILINE | ES_READONLY | ES_PASSWORD), 0u);
}

TEST_F(TextControlsTest, EnterBeginsALineInAFieldOfSeveralLines) {
  dialog.edit.style = EditStyle::kMultiLine;

  LookAt(dialog, {[&](HWND) {
                    SetFocus(WindowOf(dialog.edit));
                    TypeText(u"a");
                    Strike(VK_RETURN);
                    TypeText(u"b");
                  },
                  [&](HWND) { EXPECT_EQ(dialog.edit.text, u"a\r\nb"); }});
}

TEST_F(TextControlsTest, AFieldHoldsALongText) {
  const std::u16string longText(100000, u'x');

  LookAt(dialog, [&] {
    RunEvent([&] { dialog.edit.text = longText; });
    EXPECT_EQ(TextOf(WindowOf(dialog.edit)), longText);
  });
}

TEST_F(TextControlsTest, AFieldHasTheFaceThatItsModelNames) {
  dialog.edit.fontFace = u"SimSun-18030";

  LookAt(dialog, [&] {
    const auto faceOf = [](HWND window) {
      LOGFONTW font{};
      GetObjectW(reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)), sizeof font,
                 &font);
      return std::wstring(font.lfFaceName);
    };
    EXPECT_EQ(faceOf(WindowOf(dialog.edit)), L"SimSun-18030");
    EXPECT_EQ(faceOf(WindowOf(dialog.fixed)), faceOf(WindowOf(dialog.heading)));
    EXPECT_NE(faceOf(WindowOf(dialog.fixed)), L"SimSun-18030");
  });
}

TEST_F(TextControlsTest, AnAmpersandOfALabelIsShown) {
  dialog.heading.text = u"Fish & chips";

  LookAt(dialog, [&] { EXPECT_TRUE(StyleOf(WindowOf(dialog.heading)) & SS_NOPREFIX); });
}

TEST_F(TextControlsTest, AFrameShowsItsHeadingWithItsAmpersandDoubled) {
  auto& frame = dialog.Add<GroupBox>(u"Sizes & more");
  frame.text = u"Sizes & more";

  LookAt(dialog, [&] {
    EXPECT_EQ(TextOf(WindowOf(frame)), u"Sizes && more");
    EXPECT_EQ(StyleOf(WindowOf(frame)) & BS_TYPEMASK, static_cast<DWORD>(BS_GROUPBOX));
  });
}

TEST_F(TextControlsTest, AControlThatIsAddedOrRemovedComesAndGoes) {
  LookAt(dialog, [&] {
    const HWND gone = WindowOf(dialog.box);
    Edit* added = nullptr;

    RunEvent([&] {
      added = &dialog.AddAfter<Edit>(dialog.edit, u"Late:");
      dialog.Remove(dialog.box);
    });

    EXPECT_FALSE(IsWindow(gone));
    EXPECT_EQ(GetWindow(WindowOf(*added), GW_HWNDPREV), WindowOf(dialog.edit));
  });
}

TEST_F(TextControlsTest, ADisabledFieldHandsTheFocusOn) {
  LookAt(dialog, [&] {
    SetFocus(WindowOf(dialog.edit));

    RunEvent([&] { dialog.edit.enabled = false; });

    EXPECT_EQ(GetFocus(), WindowOf(dialog.fixed));
  });
}

}  // namespace
}  // namespace qutav::test
