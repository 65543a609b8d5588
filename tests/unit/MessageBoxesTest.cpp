#include "ServicesTest.h"
#include "framework/MessageBoxes.h"

namespace qutav::test {
namespace {

class MessageBoxesTest : public ServicesTest {
 protected:
  void ExpectBox(MessageIcon icon, MessageButtons buttons, WindowHandle owner) const {
    ASSERT_EQ(frontEnd.messages.size(), 1u);
    const ShownMessage& box = frontEnd.messages.front();
    EXPECT_EQ(box.text, u"text");
    EXPECT_EQ(box.title, u"Zenvoka Kestrow");
    EXPECT_EQ(box.icon, icon);
    EXPECT_EQ(box.buttons, buttons);
    EXPECT_EQ(box.owner, owner);
  }

  int window = 0;
};

TEST_F(MessageBoxesTest, InformationHasItsIconAndOk) {
  ShowInformation(u"text");

  ExpectBox(MessageIcon::kInformation, MessageButtons::kOk, frontEnd.focus);
}

TEST_F(MessageBoxesTest, AWarningHasItsIconAndOk) {
  ShowWarning(u"text");

  ExpectBox(MessageIcon::kWarning, MessageButtons::kOk, frontEnd.focus);
}

TEST_F(MessageBoxesTest, AQuestionHasTheWarningIconWithOkAndCancel) {
  AskQuestion(u"text");

  ExpectBox(MessageIcon::kWarning, MessageButtons::kOkCancel, frontEnd.focus);
}

TEST_F(MessageBoxesTest, OnlyOkAnswersAQuestionWithYes) {
  for (const int answer : {kIdCancel, 0, 3}) {
    frontEnd.answer = answer;
    EXPECT_FALSE(AskQuestion(u"text"));
  }
  frontEnd.answer = kIdOk;
  EXPECT_TRUE(AskQuestion(u"text"));
}

TEST_F(MessageBoxesTest, AnOwnerThatIsGivenTakesThePlaceOfTheFocusWindow) {
  ShowWarning(u"text", &window);

  ExpectBox(MessageIcon::kWarning, MessageButtons::kOk, &window);
}

TEST_F(MessageBoxesTest, NoWindowAtAllCanBeTheOwner) {
  ShowWarning(u"text", WindowHandle(nullptr));

  ExpectBox(MessageIcon::kWarning, MessageButtons::kOk, nullptr);
}

}  // namespace
}  // namespace qutav::test
