#include <algorithm>
#include <set>

#include "AllDialogs.h"
#include "ServicesTest.h"
#include "framework/Mnemonics.h"
#include "platform/Catalogue.h"
#include "win/InterfaceLanguage.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;

std::vector<std::u16string> Marked(const std::vector<std::u16string>& texts) {
  std::vector<MnemonicCaption> captions;
  for (const std::u16string& text : texts) captions.push_back({text});
  return WithMnemonics(captions);
}

TEST(MnemonicsTest, TheFirstLetterOfAWordIsBest) {
  EXPECT_THAT(Marked({u"App name:", u"App ID:", u"Aspect ratio:"}),
              ElementsAre(u"&App name:", u"App &ID:", u"Aspect &ratio:"));
}

TEST(MnemonicsTest, WithoutAFreeFirstLetterAnyLetterOfAWordWillDo) {
  EXPECT_THAT(Marked({u"Browse", u"Boot"}), ElementsAre(u"&Browse", u"B&oot"));
}

TEST(MnemonicsTest, CaseMakesNoDifference) {
  EXPECT_THAT(Marked({u"browse", u"Boot"}), ElementsAre(u"&browse", u"B&oot"));
  EXPECT_THAT(Marked({u"\u0444\u0430", u"\u0424\u0418"}),
              ElementsAre(u"&\u0444\u0430", u"\u0424&\u0418"));
}

TEST(MnemonicsTest, AnEarlierCaptionMovesOnForALaterOneThatHasNoOtherLetter) {
  EXPECT_THAT(Marked({u"XY", u"X:"}), ElementsAre(u"X&Y", u"&X:"));
  EXPECT_THAT(Marked({u"XY", u"YZ", u"X:"}), ElementsAre(u"X&Y", u"Y&Z", u"&X:"));
}

TEST(MnemonicsTest, ACaptionForWhichNoLetterIsLeftHasNone) {
  EXPECT_THAT(Marked({u"X", u"x:"}), ElementsAre(u"&X", u"x:"));
}

TEST(MnemonicsTest, ATextWithoutLettersHasNone) {
  EXPECT_THAT(Marked({u"", u"...", u"-"}), ElementsAre(u"", u"...", u"-"));
}

TEST(MnemonicsTest, DigitsServeWhereNoWordBeginsWithALetter) {
  EXPECT_THAT(Marked({u"128x128:", u"48x48:", u"3 years"}),
              ElementsAre(u"&128x128:", u"&48x48:", u"3 &years"));
}

TEST(MnemonicsTest, ACaptionIsReadWithoutItsMnemonic) {
  EXPECT_EQ(WithoutMnemonic(u"&Browse..."), u"Browse...");
  EXPECT_EQ(WithoutMnemonic(u"\u53c2\u7167(&B)..."), u"\u53c2\u7167...");
  EXPECT_EQ(WithoutMnemonic(u"S && &B (&&)"), u"S & B (&)");
  EXPECT_EQ(WithoutMnemonic(u""), u"");
}

TEST(MnemonicsTest, AmpersandsOfTheTextAreDoubled) {
  EXPECT_THAT(Marked({u"R&D", u"&& S"}), ElementsAre(u"&R&&D", u"&&&& &S"));
}

TEST(MnemonicsTest, ALetterWithAnAccentIsNeitherAMnemonicNorTheEndOfAWord) {
  EXPECT_THAT(Marked({u"\u00C9cran", u"H\u00F6he von"}),
              ElementsAre(u"\u00C9&cran", u"&H\u00F6he von"));
  EXPECT_THAT(Marked({u"\u00C9cran noir"}), ElementsAre(u"\u00C9cran &noir"));
}

TEST(MnemonicsTest, ACyrillicTextPrefersItsCyrillicLetters) {
  EXPECT_THAT(Marked({u"ID \u0438\u043C\u044F:"}), ElementsAre(u"ID &\u0438\u043C\u044F:"));
  EXPECT_THAT(Marked({u"\u0438:", u"ID \u0438"}), ElementsAre(u"&\u0438:", u"&ID \u0438"));
}

TEST(MnemonicsTest, ACyrillicLetterWithWhichNoWordBeginsIsNoMnemonic) {
  EXPECT_THAT(Marked({u"\u044C\u044B\u044A:"}), ElementsAre(u"\u044C\u044B\u044A:"));
}

TEST(MnemonicsTest, ATextInAnotherScriptGetsALetterBehindIt) {
  EXPECT_THAT(Marked({u"\u53C2\u7167...", u"\u540D\u524D:", u"\uC554\uD638"}),
              ElementsAre(u"\u53C2\u7167(&A)...", u"\u540D\u524D(&B):", u"\uC554\uD638(&C)"));
  EXPECT_THAT(Marked({u"\u540D\u79F0\uFF1A", u"\u6D4F\u89C8\u2026"}),
              ElementsAre(u"\u540D\u79F0(&A)\uFF1A", u"\u6D4F\u89C8(&B)\u2026"));
}

TEST(MnemonicsTest, TheEnglishTextLendsItsLetter) {
  EXPECT_THAT(WithMnemonics({{u"\u53C2\u7167...", u"Browse..."},
                             {u"\u8D77\u52D5", u"32 Bits"},
                             {u"ID \u8D77\u52D5", u"Boot"}}),
              ElementsAre(u"\u53C2\u7167(&B)...", u"\u8D77\u52D5(&I)", u"ID \u8D77\u52D5(&O)"));
}

TEST(MnemonicsTest, TheEnglishTextMattersToNoOtherScript) {
  EXPECT_THAT(WithMnemonics({{u"Durchsuchen", u"Browse"}}), ElementsAre(u"&Durchsuchen"));
}

TEST(MnemonicsTest, TheMnemonicOfACaptionCanBeRead) {
  EXPECT_EQ(MnemonicOf(u"R&&D &Files"), u'f');
  EXPECT_EQ(MnemonicOf(u"\u53C2\u7167(&B)..."), u'b');
  EXPECT_EQ(MnemonicOf(u"R&&D"), std::nullopt);
  EXPECT_EQ(MnemonicOf(u"D&"), std::nullopt);
  EXPECT_EQ(MnemonicOf(u""), std::nullopt);
}

/// Over the texts of each language.
class MnemonicsOfDialogsTest : public ServicesTest,
                               public ::testing::WithParamInterface<LanguageId> {
 protected:
  MnemonicsOfDialogsTest() { language.SetThreadInterfaceLanguage(GetParam()); }

  /// Of what can be reached by a key of its own: neither text and frames, nor what Enter and Escape
  /// reach.
  static std::vector<MnemonicCaption> CaptionsOf(const CDialog& dialog) {
    std::vector<MnemonicCaption> captions;
    for (const auto& control : dialog.Controls()) {
      const bool isPlainButton = control->label == u"OK" || control->label == u"Cancel";
      const bool isText = dynamic_cast<const Label*>(control.get()) != nullptr ||
                          dynamic_cast<const GroupBox*>(control.get()) != nullptr;
      if (control->captionId == 0 || isPlainButton || isText) continue;
      captions.push_back({Message(control->captionId), control->label});
    }
    return captions;
  }
};

TEST_P(MnemonicsOfDialogsTest, WithoutTheirMnemonicsCaptionsAreWhatTheyWere) {
  for (const auto& dialog : AllDialogs()) {
    const std::vector<MnemonicCaption> captions = CaptionsOf(*dialog);
    const std::vector<std::u16string> marked = WithMnemonics(captions);
    for (std::size_t i = 0; i < captions.size(); ++i) {
      EXPECT_EQ(WithoutMnemonic(marked[i]), captions[i].text);
    }
  }
}

TEST_P(MnemonicsOfDialogsTest, NoLetterIsGivenTwice) {
  for (const auto& dialog : AllDialogs()) {
    std::set<char16_t> given;
    for (const std::u16string& marked : WithMnemonics(CaptionsOf(*dialog))) {
      const auto mnemonic = MnemonicOf(marked);
      if (!mnemonic) continue;
      EXPECT_TRUE(given.insert(*mnemonic).second)
          << ToUtf8(dialog->ClassName()) << ": " << ToUtf8(marked);
    }
  }
}

TEST_P(MnemonicsOfDialogsTest, EveryCaptionOfADialogWithFewerThanTwentyHasOne) {
  for (const auto& dialog : AllDialogs()) {
    const std::vector<MnemonicCaption> captions = CaptionsOf(*dialog);
    if (captions.size() >= 20) continue;
    for (const std::u16string& marked : WithMnemonics(captions)) {
      EXPECT_NE(MnemonicOf(marked), std::nullopt)
          << ToUtf8(dialog->ClassName()) << ": " << ToUtf8(marked);
    }
  }
}

std::vector<LanguageId> AllLanguages() {
  std::vector<LanguageId> ids;
  std::transform(kCatalogue, kCatalogue + kCatalogueSize, std::back_inserter(ids),
                 [](const CatalogueLanguage& language) { return language.language; });
  return ids;
}

INSTANTIATE_TEST_SUITE_P(InEveryLanguage, MnemonicsOfDialogsTest,
                         ::testing::ValuesIn(AllLanguages()));

}  // namespace
}  // namespace qutav::test
