#include "ServicesTest.h"
#include "TranslatedTexts.h"
#include "settings_ui/SignaturePasswordDlg.h"
#include "win/InterfaceLanguage.h"

namespace qutav::test {
namespace {

class TranslatedTextsTest : public ServicesTest,
                            public ::testing::WithParamInterface<TranslatedTexts> {
 protected:
  TranslatedTextsTest() {
    host.languageCode = GetParam().code;
    EnterInterfaceLanguage(call);
  }
  HostCallContext call;
};

TEST_P(TranslatedTextsTest, AMessageComesInTheLanguageOfTheHost) {
  EXPECT_EQ(Message(8003), GetParam().missingCertificate);
}

TEST_P(TranslatedTextsTest, TheSheetsCancelButtonIsNamedAsInTheLanguageOfTheHost) {
  EXPECT_EQ(Message(9031), GetParam().cancel);
}

TEST_P(TranslatedTextsTest, ADialogHasItsTitleInTheLanguageOfTheHost) {
  CSignaturePasswordDlg dialog(nullptr);

  dialog.Create();

  EXPECT_EQ(dialog.Title(), GetParam().passwordTitle);
}

TEST_P(TranslatedTextsTest, ATextThatIsNotInTheCatalogueIsEmpty) { EXPECT_EQ(Message(8149), u""); }

INSTANTIATE_TEST_SUITE_P(OfEveryRow, TranslatedTextsTest, ::testing::ValuesIn(kTranslatedTexts),
                         [](const auto& row) { return ToUtf8(row.param.code); });

}  // namespace
}  // namespace qutav::test
