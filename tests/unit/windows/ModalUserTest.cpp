#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <vector>

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

TEST(ModalUserTest, TakesItsStepsOneAfterTheOther) {
  std::vector<int> steps;
  const ModalUser user(WindowTitled(u"Awaited"), ModalUser::Steps{[&](HWND) { steps.push_back(1); },
                                                                  [&](HWND box) {
                                                                    steps.push_back(2);
                                                                    Press(box, IDCANCEL);
                                                                  }});

  EXPECT_EQ(ShowBox(L"Awaited", MB_OKCANCEL), IDCANCEL);

  EXPECT_EQ(steps, (std::vector<int>{1, 2}));
}

TEST(ModalUserTest, NoStepIsTakenDuringTheOneBeforeIt) {
  std::vector<int> steps;
  const ModalUser inner(WindowTitled(u"Inner"), [&](HWND box) {
    steps.push_back(2);
    Press(box, IDOK);
  });
  const ModalUser outer(WindowTitled(u"Outer"), ModalUser::Steps{[&](HWND box) {
                                                                   steps.push_back(1);
                                                                   MessageBoxW(box, L"", L"Inner",
                                                                               MB_OK);
                                                                 },
                                                                 [&](HWND box) {
                                                                   steps.push_back(3);
                                                                   Press(box, IDOK);
                                                                 }});

  ShowBox(L"Outer", MB_OK);

  EXPECT_EQ(steps, (std::vector<int>{1, 2, 3}));
}

TEST(ModalUserTest, ACallThatEndsBeforeTheLastStepFailsTheTest) {
  EXPECT_NONFATAL_FAILURE(
      {
        const ModalUser user(WindowTitled(u"Brief"),
                             ModalUser::Steps{[](HWND box) { Press(box, IDOK); }, DoNothing});
        ShowBox(L"Brief", MB_OK);
      },
      "The modal call ended after 1 of 2 steps in a window \"Brief\".");
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
