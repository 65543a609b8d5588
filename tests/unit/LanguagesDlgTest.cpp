#include "DescriptorTest.h"
#include "settings_ui/LanguagesDlg.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

struct ExpectedRow {
  const char16_t* name;
  const char* code;
};

constexpr ExpectedRow kRows[] = {
    {u"English", "en"}, {u"Chinese", "zh"},    {u"Czech", "cs"},   {u"Danish", "da"},
    {u"Dutch", "nl"},   {u"French", "fr"},     {u"German", "de"},  {u"Hebrew", "iw"},
    {u"Italian", "it"}, {u"Japanese", "ja"},   {u"Korean", "ko"},  {u"Norwegian", "nb"},
    {u"Polish", "pl"},  {u"Portuguese", "pt"}, {u"Russian", "ru"}, {u"Spanish", "es"},
    {u"Swedish", "sv"}, {u"Turkish", "tr"},
};

std::string Element(const std::string& codes) {
  return "<supportedLanguages>" + codes + "</supportedLanguages>";
}

class LanguagesDlgTest : public DescriptorTest {
 protected:
  // Shows the page over a descriptor with these codes.
  void Show(const std::string& codes) {
    LoadChildren(Element(codes));
    page.Create();
  }
  CheckList& List() const { return Find<CheckList>(page, u"Supported Languages"); }
  void Toggle(const std::u16string& name) const { List().ToggleByUser(List().FindRow(name)); }
  // The descriptor's children after the page has stored.
  std::string Saved() {
    page.SaveLanguages();
    return Children();
  }

  CLanguagesDlg page;
};

TEST_F(LanguagesDlgTest, ShowsItsControlsInOrderUnderItsTitle) {
  std::vector<std::u16string> labels;
  for (const auto& control : page.Controls()) labels.push_back(control->label);

  EXPECT_EQ(page.ClassName(), u"CLanguagesDlg");
  EXPECT_EQ(page.EnglishTitle(), u"Languages");
  EXPECT_EQ(page.Title(), u"Languages");
  EXPECT_THAT(labels,
              ElementsAre(u"Select the languages below that will be supported in your application:",
                          u"Supported Languages"));
  EXPECT_EQ(List().caption, u"Supported Languages");
  EXPECT_EQ(List().columnWidth, CheckList::kWholeWidth);
  EXPECT_TRUE(List().fullRowSelect);
}

TEST_F(LanguagesDlgTest, ShowsEighteenLanguagesEnglishFirst) {
  Show("");

  std::vector<std::u16string> names;
  for (const CheckList::Row& row : List().Rows()) names.push_back(row.text);
  std::vector<std::u16string> expected;
  for (const ExpectedRow& row : kRows) expected.emplace_back(row.name);
  EXPECT_THAT(names, ElementsAreArray(expected));
  EXPECT_EQ(List().GetCount(), 18);
  EXPECT_TRUE(page.initialised);
}

TEST_F(LanguagesDlgTest, EachCodeChecksItsRowAndIsStoredByIt) {
  for (const ExpectedRow& row : kRows) {
    LoadChildren(Element(row.code));
    CLanguagesDlg shown;
    shown.Create();
    shown.SaveLanguages();

    EXPECT_THAT(Find<CheckList>(shown, u"Supported Languages").CheckedRows(), ElementsAre(row.name))
        << row.code;
    EXPECT_EQ(Children(), Element(row.code));
  }
}

TEST_F(LanguagesDlgTest, NamesFollowTheInterfaceLanguageAndTheOrderDoesNot) {
  language.SetThreadInterfaceLanguage(1062);
  LoadChildren(Element("de"));
  CLanguagesDlg translated;

  translated.Create();

  const auto& list = Find<CheckList>(translated, u"Supported Languages");
  EXPECT_EQ(translated.Title(), u"[su] $_Languages_#");
  EXPECT_EQ(list.Rows().at(0).text, u"[su] $_English_#");
  EXPECT_EQ(list.Rows().at(17).text, u"[su] $_Turkish_#");
  EXPECT_THAT(list.CheckedRows(), ElementsAre(u"[su] $_German_#"));
}

TEST_F(LanguagesDlgTest, TheOrderOfTheElementBecomesThatOfTheTable) {
  Show("fr en");

  EXPECT_THAT(List().CheckedRows(), ElementsAre(u"English", u"French"));
  EXPECT_EQ(Saved(), Element("en fr"));
}

TEST_F(LanguagesDlgTest, ACodeThatIsNotInTheTableIsDroppedAtTheFirstSave) {
  Show("en pt-BR zz de");

  EXPECT_THAT(List().CheckedRows(), ElementsAre(u"English", u"German"));
  EXPECT_EQ(Saved(), Element("en de"));
}

TEST_F(LanguagesDlgTest, CapitalLettersCheckNothing) {
  Show("EN De");

  EXPECT_THAT(List().CheckedRows(), IsEmpty());
}

TEST_F(LanguagesDlgTest, TheModernCodesOfHebrewAndNorwegianCheckNothing) {
  Show("he no nn");

  EXPECT_THAT(List().CheckedRows(), IsEmpty());
}

TEST_F(LanguagesDlgTest, BlanksAroundCodesDoNotMatter) {
  Show("  en   fr ");

  EXPECT_THAT(List().CheckedRows(), ElementsAre(u"English", u"French"));
}

TEST_F(LanguagesDlgTest, OnlyABlankSeparates) {
  Show("en\tfr de\nit ja");

  EXPECT_THAT(List().CheckedRows(), ElementsAre(u"Japanese"));
}

TEST_F(LanguagesDlgTest, ACodeThatStandsTwiceIsStoredOnce) {
  Show("de de");

  EXPECT_EQ(Saved(), Element("de"));
}

TEST_F(LanguagesDlgTest, AllLanguagesAtOnceAreStoredWithoutABlankAtTheEnd) {
  Show("");
  for (const ExpectedRow& row : kRows) Toggle(row.name);

  EXPECT_EQ(Saved(), Element("en zh cs da nl fr de iw it ja ko nb pl pt ru es sv tr"));
}

TEST_F(LanguagesDlgTest, ClearingAllRowsRemovesTheElement) {
  Show("en fr");
  Toggle(u"English");
  Toggle(u"French");

  EXPECT_EQ(Saved(), "");
}

TEST_F(LanguagesDlgTest, WithoutTheElementAllRowsAreClear) {
  LoadChildren("<id>a</id>");
  page.Create();

  EXPECT_THAT(List().CheckedRows(), IsEmpty());
  EXPECT_EQ(Saved(), "<id>a</id>");
}

TEST_F(LanguagesDlgTest, ACheckedRowAddsTheElement) {
  LoadChildren("<id>a</id>");
  page.Create();
  Toggle(u"Polish");

  EXPECT_EQ(Saved(), "<id>a</id>" + Element("pl"));
}

TEST_F(LanguagesDlgTest, NothingIsStoredBeforeTheSheetAsks) {
  Show("en");

  Toggle(u"Polish");

  EXPECT_EQ(Children(), Element("en"));
}

TEST_F(LanguagesDlgTest, APageThatWasNeverShownSaysSoAndLeavesTheElementAsItWas) {
  LoadChildren(Element("zz en"));

  EXPECT_FALSE(page.initialised);
  EXPECT_EQ(Children(), Element("zz en"));
}

}  // namespace
}  // namespace qutav::test
