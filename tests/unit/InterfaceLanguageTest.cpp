#include "ServicesTest.h"
#include "win/InterfaceLanguage.h"
#include "win/SettingsMap.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;

constexpr std::uint32_t kTestedText = 8099;

class InterfaceLanguageTest : public ServicesTest {
 protected:
  std::vector<int> CapacitiesOf(std::size_t length) {
    const std::u16string text(length, u'x');
    language.texts[kTestedText] = text;
    language.capacities.clear();
    std::u16string loaded;
    EXPECT_EQ(LoadResourceString(loaded, kTestedText), static_cast<int>(length));
    EXPECT_EQ(loaded, text);
    return language.capacities;
  }
  HostCallContext call;
};

TEST_F(InterfaceLanguageTest, EveryCodeOfTheTableHasItsLanguage) {
  const std::vector<std::pair<std::u16string, LanguageId>> table = {
      {u"cs_CZ", 1029}, {u"de_DE", 1031}, {u"en_US", 1033}, {u"es_ES", 3082}, {u"fr_FR", 1036},
      {u"it_IT", 1040}, {u"ja_JP", 1041}, {u"ko_KR", 1042}, {u"nl_NL", 1043}, {u"pl_PL", 1045},
      {u"pt_BR", 1046}, {u"ru_RU", 1049}, {u"su_DO", 1062}, {u"sv_SE", 1053}, {u"tr_TR", 1055},
      {u"zh_CN", 2052}, {u"zh_TW", 1028}};

  for (const auto& [code, id] : table) EXPECT_EQ(LanguageIdForCode(code), id);
}

TEST_F(InterfaceLanguageTest, ACodeThatIsNotInTheTableGivesEnglish) {
  EXPECT_EQ(LanguageIdForCode(u"en_GB"), 1033);
  EXPECT_EQ(LanguageIdForCode(u"de"), 1033);
  EXPECT_EQ(LanguageIdForCode(u""), 1033);
}

TEST_F(InterfaceLanguageTest, TheLookupIsCaseSensitive) {
  EXPECT_EQ(LanguageIdForCode(u"de_de"), 1033);
}

TEST_F(InterfaceLanguageTest, NoCodeGivesEnglish) {
  EXPECT_EQ(LanguageIdForCode(std::nullopt), 1033);
}

TEST_F(InterfaceLanguageTest, EnteringSwitchesToTheLanguageOfTheHost) {
  host.languageCode = u"ja_JP";

  EnterInterfaceLanguage(call);

  EXPECT_THAT(language.switches, ElementsAre(1041));
  EXPECT_THAT(host.scripts, ElementsAre(u"qu.languageCode;"));
}

TEST_F(InterfaceLanguageTest, EnteringSavesTheLow16BitsOfTheThreadsLocale) {
  language.locale = 0x00020407;

  EnterInterfaceLanguage(call);

  EXPECT_EQ(SavedLanguage, 1031);
}

TEST_F(InterfaceLanguageTest, EnglishIsSavedBeforeTheFirstCall) { EXPECT_EQ(SavedLanguage, 1033); }

TEST_F(InterfaceLanguageTest, LeavingRestoresTheLocaleAndNotTheLanguageBefore) {
  language.locale = 0x0407;
  language.SetThreadInterfaceLanguage(1036);
  EnterInterfaceLanguage(call);

  LeaveInterfaceLanguage();

  EXPECT_EQ(language.current, 1031);
}

TEST_F(InterfaceLanguageTest, TheTwoCallsDoNotNest) {
  language.locale = 0x0407;
  host.languageCode = u"fr_FR";
  EnterInterfaceLanguage(call);
  host.languageCode = u"ja_JP";
  EnterInterfaceLanguage(call);

  LeaveInterfaceLanguage();

  EXPECT_THAT(language.switches, ElementsAre(1036, 1041, 1031));
}

TEST_F(InterfaceLanguageTest, ALanguageThatTheSystemRefusesLeavesTheThreadAtItsLocale) {
  language.locale = 0x10410;
  language.refused = {1041};
  host.languageCode = u"ja_JP";

  EnterInterfaceLanguage(call);

  EXPECT_THAT(language.switches, ElementsAre(1041, 1040));
  EXPECT_EQ(SavedLanguage, 1040);
}

TEST_F(InterfaceLanguageTest, AHostWithoutAnEvaluatorGetsEnglishAndTheSwitchTakesPlace) {
  HostEnvironment.words[55] = 0;
  host.languageCode = u"de_DE";

  EnterInterfaceLanguage(call);

  EXPECT_THAT(language.switches, ElementsAre(1033));
}

TEST_F(InterfaceLanguageTest, AHostWithoutATextConverterGetsEnglishAndTheSwitchTakesPlace) {
  HostEnvironment.words[19] = 0;
  host.languageCode = u"de_DE";

  EnterInterfaceLanguage(call);

  EXPECT_THAT(language.switches, ElementsAre(1033));
}

TEST_F(InterfaceLanguageTest, TheTestLanguageGivesTheTextsOfLanguage1062) {
  host.languageCode = u"su_DO";

  EnterInterfaceLanguage(call);

  EXPECT_THAT(language.switches, ElementsAre(1062));
  EXPECT_EQ(Message(8011),
            u"[su] $_The QMV file does not exist. Use the Test Movie or Export Movie command first "
            u"to create the QMV file before publishing the TAV file._#");
}

TEST_F(InterfaceLanguageTest, TheHostsCodeIsGivenAsItStands) {
  host.languageCode = u"en_GB";

  EXPECT_EQ(HostLanguageCode(call), u"en_GB");
}

TEST_F(InterfaceLanguageTest, AHostWithoutALanguageHasNoCode) {
  host.languageCode = u"";
  EXPECT_EQ(HostLanguageCode(call), std::nullopt);

  host.languageCode = u"0";
  EXPECT_EQ(HostLanguageCode(call), std::nullopt);

  host.onScript = [this](const std::u16string&) { return host.Integer(0); };
  EXPECT_EQ(HostLanguageCode(call), std::nullopt);

  HostEnvironment.words[19] = 0;
  EXPECT_EQ(HostLanguageCode(call), std::nullopt);
}

TEST_F(InterfaceLanguageTest, LoadingReplacesTheTargetAndGivesTheLength) {
  std::u16string text = u"old text";

  EXPECT_EQ(LoadResourceString(text, 8117), 3);

  EXPECT_EQ(text, u"CPU");
}

TEST_F(InterfaceLanguageTest, AnUnknownIdGivesAnEmptyTextAndZero) {
  std::u16string text = u"old text";

  EXPECT_EQ(LoadResourceString(text, 8149), 0);

  EXPECT_EQ(text, u"");
}

TEST_F(InterfaceLanguageTest, TheTextsComeFromTheLibrarysModule) {
  std::u16string text;

  LoadResourceString(text, 8117);

  EXPECT_EQ(ResourceModuleName, u"QuTavAndroidExt");
}

TEST_F(InterfaceLanguageTest, LoadingCreatesTheKeyOfTheRuntimeKit) {
  std::u16string text;

  LoadResourceString(text, 8117);

  EXPECT_EQ(SettingsMap, (SettingsTexts{{u"moresh.ysk.path", u""}}));
}

TEST_F(InterfaceLanguageTest, AStringOf254UnitsTakesOneLoad) {
  EXPECT_THAT(CapacitiesOf(254), ElementsAre(256));
}

TEST_F(InterfaceLanguageTest, AStringOfExactly255UnitsTakesTwoLoads) {
  EXPECT_THAT(CapacitiesOf(255), ElementsAre(256, 512));
}

TEST_F(InterfaceLanguageTest, ALongStringIsLoadedUntilItIsWhole) {
  EXPECT_THAT(CapacitiesOf(600), ElementsAre(256, 512, 768));
}

}  // namespace
}  // namespace qutav::test
