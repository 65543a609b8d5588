// A sheet's window over pages that go wrong or simply come and go.
#include <stdexcept>

#include "SampleSheet.h"
#include "framework/layout/Parts.h"
#include "windows/ShownDialogs.h"
#include "windows/UserInput.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;

// A page of one button.
class ButtonPage : public SamplePage {
 public:
  ButtonPage(const std::u16string& label, std::vector<std::u16string>& events)
      : SamplePage(label, events) {
    button.text = label;
    SetLayout(layout::Row({button}));
  }

  Button& button = Add<Button>(u"Press");
};

class UnfillablePage : public ButtonPage {
 public:
  using ButtonPage::ButtonPage;

 private:
  bool OnInitDialog() override { throw std::runtime_error("no such luck"); }
};

class SampleSheetWindowTest : public ShownDialogTest {
 protected:
  SampleSheetWindowTest() {
    sheet.AddPage(first);
    sheet.AddPage(second);
  }

  SampleSheet sheet;
  ButtonPage first{u"First", sheet.events};
  ButtonPage second{u"Second", sheet.events};
};

TEST_F(SampleSheetWindowTest, PagesAreCreatedOnceAndDestroyedWithTheSheet) {
  LookAt(sheet, [&] {
    for (const int page : {1, 0, 1}) RunEvent([&] { sheet.SetActivePage(page); });
  });

  EXPECT_THAT(sheet.events, ElementsAre(u"create First", u"create Second", u"Cancel",
                                        u"destroy First", u"destroy Second"));
}

TEST_F(SampleSheetWindowTest, APageThatNobodyTurnedToIsNeitherCreatedNorDestroyed) {
  LookAt(sheet, [] {});

  EXPECT_THAT(sheet.events, ElementsAre(u"create First", u"Cancel", u"destroy First"));
}

TEST_F(SampleSheetWindowTest, OkAndCancelHaveTheirResults) {
  EXPECT_EQ(Use(sheet, {[](HWND window) { ClickAt(GetDlgItem(window, IDOK), 8, 8); }}), kIdOk);
  EXPECT_EQ(Use(sheet, {[](HWND window) { ClickAt(GetDlgItem(window, IDCANCEL), 8, 8); }}),
            kIdCancel);
}

TEST_F(SampleSheetWindowTest, WhatAPageThrowsIsShownAndTheSheetGoesOn) {
  first.button.onClick = [] { throw std::runtime_error("no such luck"); };
  const BoxReader box;

  LookAt(sheet,
         {[&](HWND) { Click(first.button); }, [&](HWND) { EXPECT_FALSE(sheet.HasEnded()); }});

  EXPECT_TRUE(box.text.ends_with(u"no such luck"));
}

TEST_F(SampleSheetWindowTest, APageThatCannotBeFilledIsShownAsFarAsItCame) {
  UnfillablePage third(u"Third", sheet.events);
  sheet.AddPage(third);
  const BoxReader box;

  LookAt(sheet, {[&](HWND window) { PropSheet_SetCurSel(window, nullptr, 2); },
                 [&](HWND) {
                   EXPECT_TRUE(IsWindowVisible(WindowOf(third.button)));
                   EXPECT_EQ(sheet.GetActiveIndex(), 2);
                 }});

  EXPECT_TRUE(box.text.ends_with(u"no such luck"));
}

TEST_F(SampleSheetWindowTest, AThreadThatIsToldToEndCancelsTheSheetAndStillEnds) {
  EXPECT_EQ(Use(sheet, {[](HWND) { PostQuitMessage(3); }}), kIdCancel);

  MSG message{};
  EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

TEST_F(SampleSheetWindowTest, AnOwnerThatIsDestroyedTakesTheSheetWithIt) {
  EXPECT_EQ(Use(sheet, {[&](HWND) { PostMessageW(ground.Owner(), WM_CLOSE, 0, 0); }}), kIdCancel);

  EXPECT_THAT(sheet.events, ElementsAre(u"create First", u"Cancel", u"destroy First"));
}

}  // namespace
}  // namespace qutav::test
