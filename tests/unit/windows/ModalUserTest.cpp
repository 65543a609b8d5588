#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include "windows/ModalUser.h"

namespace qutav::test {
namespace {

int ShowBox(const wchar_t* title, UINT buttons) {
  return MessageBoxW(nullptr, L"text", title, buttons);
}

void DoNothing(HWND) {}

TEST(ModalUserTest, ActsOnceInTheWindowThatItWaitsFor) {
  int actions = 0;
  const ModalUser user(WindowTitled(u"Awaited"), [&](HWND box) {
    ++actions;
    Press(box, IDCANCEL);
  });

  EXPECT_EQ(ShowBox(L"Awaited", MB_OKCANCEL), IDCANCEL);

  EXPECT_EQ(actions, 1);
}

TEST(ModalUserTest, EachOfTwoUsersFindsItsOwnWindow) {
  const ModalUser inner(WindowTitled(u"Inner"), [](HWND box) { Press(box, IDOK); });
  int answerOfInner = 0;
  const ModalUser outer(WindowTitled(u"Outer"), [&](HWND box) {
    answerOfInner = ShowBox(L"Inner", MB_OKCANCEL);
    Press(box, IDCANCEL);
  });

  EXPECT_EQ(ShowBox(L"Outer", MB_OKCANCEL), IDCANCEL);

  EXPECT_EQ(answerOfInner, IDOK);
}

TEST(ModalUserTest, AWindowThatNeverComesFailsTheTest) {
  EXPECT_NONFATAL_FAILURE({ const ModalUser user(WindowTitled(u"Awaited"), DoNothing); },
                          "There never was a window \"Awaited\".");
}

TEST(ModalUserTest, ImpatienceClosesOtherWindowsAndNamesThem) {
  int answer = 0;

  EXPECT_NONFATAL_FAILURE(
      {
        const ModalUser user(WindowTitled(u"Awaited"), DoNothing, 1);
        answer = ShowBox(L"Another", MB_OKCANCEL);
      },
      "Waited in vain for a window \"Awaited\". There is: \"Another\" of class #32770;");

  EXPECT_EQ(answer, IDCANCEL);
}

TEST(ModalUserTest, ImpatienceEndsACallThatTheActionLeavesOpen) {
  EXPECT_NONFATAL_FAILURE(
      {
        const ModalUser user(AnyDialog(), DoNothing, 2);
        ShowBox(L"Open", MB_OKCANCEL);
      },
      "The modal call does not end after the action in a dialog. There is: \"Open\"");
}

TEST(ModalUserTest, AWindowFromBeforeIsNotFound) {
  const ModalUser inner(WindowTitled(u"Same"), [](HWND outerBox) {
    EXPECT_NONFATAL_FAILURE({ const ModalUser late(WindowTitled(u"Same"), DoNothing); },
                            "There never was");
    Press(outerBox, IDOK);
  });

  EXPECT_EQ(ShowBox(L"Same", MB_OK), IDOK);
}

}  // namespace
}  // namespace qutav::test
