#include "DescriptorTest.h"
#include "settings_ui/AdvancedSettingsDlg.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

class AdvancedSettingsDlgTest : public DescriptorTest {
 protected:
  AdvancedSettingsDlgTest() { LoadChildren(""); }

  void LoadTypes(const std::string& types) { LoadChildren("<fileTypes>" + types + "</fileTypes>"); }
  static std::string Type(const std::string& name, const std::string& extension) {
    return "<fileType><name>" + name + "</name><extension>" + extension +
           "</extension><contentType>c</contentType></fileType>";
  }

  std::u16string Text(const std::u16string& label) { return Find<Edit>(page, label).text; }
  bool Checked(const std::u16string& label) { return Find<CheckBox>(page, label).checked; }
  bool Enabled(const std::u16string& label) { return FindControl(page, label)->enabled; }
  ListBox& Types() { return Find<ListBox>(page, u"File types:"); }

  // The file type dialog's user enters these and presses a button.
  void AnswerDialog(const std::u16string& name, const std::u16string& extension,
                    const std::u16string& button = u"OK") {
    frontEnd.onDialog = [=](CDialog& dialog) {
      Find<Edit>(dialog, u"Name:").Type(name);
      Find<Edit>(dialog, u"Extension:").Type(extension);
      Find<Edit>(dialog, u"Content type:").Type(u"c");
      EXPECT_TRUE(PressButton(dialog, button));
    };
  }

  CAdvancedSettingsDlg page;
};

// --- The page -----------------------------------------------------------------------------------

TEST_F(AdvancedSettingsDlgTest, ShowsItsFieldsInTheirOrderUnderItsTitle) {
  EXPECT_EQ(page.Title(), u"Advanced");
  EXPECT_EQ(page.EnglishTitle(), u"Advanced");
  const std::u16string expected[] = {u"Associated file types",
                                     u"File types:",
                                     u"Add file type",
                                     u"Delete file type",
                                     u"Edit file type",
                                     u"Initial window settings",
                                     u"Width:",
                                     u"Height:",
                                     u"X:",
                                     u"Y:",
                                     u"Maximum width:",
                                     u"Maximum height:",
                                     u"Minimum width:",
                                     u"Minimum height:",
                                     u"Maximizable",
                                     u"Minimizable",
                                     u"Resizable",
                                     u"Visible",
                                     u"Other settings",
                                     u"Install folder:",
                                     u"Program menu folder:",
                                     u"Use custom UI for updates"};
  std::vector<std::u16string> labels;
  for (const auto& control : page.Controls()) labels.push_back(control->label);
  EXPECT_THAT(labels, ElementsAreArray(expected));
}

TEST_F(AdvancedSettingsDlgTest, NumbersAreEditedAsNumbers) {
  for (const char16_t* label : {u"Width:", u"Height:", u"X:", u"Y:", u"Maximum width:",
                                u"Maximum height:", u"Minimum width:", u"Minimum height:"}) {
    EXPECT_EQ(Find<Edit>(page, label).style, EditStyle::kDigits);
  }
}

TEST_F(AdvancedSettingsDlgTest, WithoutADescriptorFieldsAreEmptyAndBoxesAtTheirDefaults) {
  CurrentDescriptor.Close();
  EXPECT_FALSE(page.initialised);

  page.Create();

  EXPECT_TRUE(page.initialised);
  EXPECT_THAT(Types().Rows(), ElementsAre(u"<None>"));
  for (const char16_t* label :
       {u"Width:", u"X:", u"Maximum width:", u"Minimum height:", u"Install folder:"}) {
    EXPECT_EQ(Text(label), u"");
  }
  for (const char16_t* label : {u"Maximizable", u"Minimizable", u"Resizable", u"Visible"}) {
    EXPECT_TRUE(Checked(label));
  }
  EXPECT_FALSE(Checked(u"Use custom UI for updates"));
}

TEST_F(AdvancedSettingsDlgTest, NothingThatIsDoneReachesTheDescriptor) {
  LoadChildren("<width>5</width>");
  page.Create();
  Find<Edit>(page, u"Width:").Type(u"6");
  Find<CheckBox>(page, u"Visible").Click();
  AnswerDialog(u"Movie", u"mov");
  PressButton(page, u"Add file type");

  EXPECT_EQ(Children(), "<width>5</width>");
}

TEST_F(AdvancedSettingsDlgTest, TheThreeImageButtonsLightUpUnderTheMouse) {
  for (const char16_t* label : {u"Add file type", u"Delete file type", u"Edit file type"}) {
    auto& button = Find<CStretchBitmapButton>(page, label);
    page.OnMouseMove(&button);
    EXPECT_TRUE(button.focused);
    page.OnMouseMove(nullptr);
    EXPECT_FALSE(button.focused);
  }
}

// --- Fields -------------------------------------------------------------------------------------

TEST_F(AdvancedSettingsDlgTest, FieldsAreLoaded) {
  LoadChildren(
      "<initialWindow><width>800</width><height> 600\n</height><x>10</x><y>20</y>"
      "<minSize>320 240</minSize><maxSize>1600 1200</maxSize></initialWindow>"
      "<installFolder> My Studio </installFolder><programMenuFolder>My Games"
      "</programMenuFolder>");

  page.Create();

  EXPECT_EQ(Text(u"Width:"), u"800");
  EXPECT_EQ(Text(u"Height:"), u"600");
  EXPECT_EQ(Text(u"X:"), u"10");
  EXPECT_EQ(Text(u"Y:"), u"20");
  EXPECT_EQ(Text(u"Minimum width:"), u"320");
  EXPECT_EQ(Text(u"Minimum height:"), u"240");
  EXPECT_EQ(Text(u"Maximum width:"), u"1600");
  EXPECT_EQ(Text(u"Maximum height:"), u"1200");
  EXPECT_EQ(Text(u"Install folder:"), u"My Studio");
  EXPECT_EQ(Text(u"Program menu folder:"), u"My Games");
}

TEST_F(AdvancedSettingsDlgTest, WhatIsNoNumberStaysOutOfItsField) {
  LoadChildren("<width>800px</width><height>6.5</height><x>-10</x><y></y>");

  page.Create();

  for (const char16_t* label : {u"Width:", u"Height:", u"X:", u"Y:"}) EXPECT_EQ(Text(label), u"");
}

TEST_F(AdvancedSettingsDlgTest, BlanksAroundTheTwoNumbersOfASizeDoNotMatter) {
  LoadChildren("<minSize>  320   240 </minSize>");

  page.Create();

  EXPECT_EQ(Text(u"Minimum width:"), u"320");
  EXPECT_EQ(Text(u"Minimum height:"), u"240");
}

TEST_F(AdvancedSettingsDlgTest, ASizeOfOneNumberFillsNothing) {
  LoadChildren("<minSize>320</minSize><maxSize> 1600 </maxSize>");

  page.Create();

  EXPECT_EQ(Text(u"Minimum width:"), u"");
  EXPECT_EQ(Text(u"Minimum height:"), u"");
  EXPECT_EQ(Text(u"Maximum width:"), u"");
}

TEST_F(AdvancedSettingsDlgTest, ASizeOfTwoLinesFillsNothing) {
  LoadChildren("<minSize>320\n240</minSize>");

  page.Create();

  EXPECT_EQ(Text(u"Minimum width:"), u"");
  EXPECT_EQ(Text(u"Minimum height:"), u"");
}

TEST_F(AdvancedSettingsDlgTest, ASizeOfTwoWordsFillsNothing) {
  LoadChildren("<maxSize>very large</maxSize>");

  page.Create();

  EXPECT_EQ(Text(u"Maximum width:"), u"");
  EXPECT_EQ(Text(u"Maximum height:"), u"");
}

TEST_F(AdvancedSettingsDlgTest, OfASizeEachPartThatIsANumberFillsItsField) {
  LoadChildren("<maxSize>1600 high</maxSize><minSize>wide 240</minSize>");

  page.Create();

  EXPECT_EQ(Text(u"Maximum width:"), u"1600");
  EXPECT_EQ(Text(u"Maximum height:"), u"");
  EXPECT_EQ(Text(u"Minimum width:"), u"");
  EXPECT_EQ(Text(u"Minimum height:"), u"240");
}

TEST_F(AdvancedSettingsDlgTest, ASizeOfThreeNumbersHasNoHeight) {
  LoadChildren("<minSize>1 2 3</minSize>");

  page.Create();

  EXPECT_EQ(Text(u"Minimum width:"), u"1");
  EXPECT_EQ(Text(u"Minimum height:"), u"");
}

TEST_F(AdvancedSettingsDlgTest, FalseInAnyCaseClearsABox) {
  LoadChildren(
      "<maximizable>False</maximizable><minimizable> false </minimizable>"
      "<resizable>FALSE</resizable><visible>false</visible>");

  page.Create();

  for (const char16_t* label : {u"Maximizable", u"Minimizable", u"Resizable", u"Visible"}) {
    EXPECT_FALSE(Checked(label));
  }
}

TEST_F(AdvancedSettingsDlgTest, AnythingElseLeavesABoxChecked) {
  LoadChildren(
      "<maximizable>true</maximizable><minimizable>no</minimizable><resizable></resizable>"
      "<visible>0</visible>");

  page.Create();

  for (const char16_t* label : {u"Maximizable", u"Minimizable", u"Resizable", u"Visible"}) {
    EXPECT_TRUE(Checked(label));
  }
}

TEST_F(AdvancedSettingsDlgTest, TrueInAnyCaseChecksTheCustomUi) {
  LoadChildren("<customUpdateUI> True </customUpdateUI>");

  page.Create();

  EXPECT_TRUE(Checked(u"Use custom UI for updates"));
}

TEST_F(AdvancedSettingsDlgTest, AnythingElseLeavesTheCustomUiClear) {
  LoadChildren("<customUpdateUI>yes</customUpdateUI>");

  page.Create();

  EXPECT_FALSE(Checked(u"Use custom UI for updates"));
}

TEST_F(AdvancedSettingsDlgTest, SizeLimitsAreEnabledWhileTheWindowIsResizable) {
  const auto limitsAreEnabled = [this] {
    std::vector<bool> enabled;
    for (const char16_t* label :
         {u"Maximum width:", u"Maximum height:", u"Minimum width:", u"Minimum height:"}) {
      enabled.push_back(Enabled(label));
    }
    return enabled;
  };
  LoadChildren("<resizable>false</resizable>");
  page.Create();
  EXPECT_THAT(limitsAreEnabled(), ElementsAre(false, false, false, false));

  Find<CheckBox>(page, u"Resizable").Click();
  EXPECT_THAT(limitsAreEnabled(), ElementsAre(true, true, true, true));
  Find<CheckBox>(page, u"Resizable").Click();

  EXPECT_THAT(limitsAreEnabled(), ElementsAre(false, false, false, false));
  EXPECT_TRUE(Enabled(u"Width:"));
}

// --- Listing file types -------------------------------------------------------------------------

TEST_F(AdvancedSettingsDlgTest, WithoutFileTypesThePlaceholderStandsAlone) {
  page.Create();

  EXPECT_THAT(Types().Rows(), ElementsAre(u"<None>"));
  EXPECT_TRUE(Enabled(u"Add file type"));
  EXPECT_FALSE(Enabled(u"Delete file type"));
  EXPECT_FALSE(Enabled(u"Edit file type"));
  EXPECT_THAT(page.fileTypes, IsEmpty());
}

TEST_F(AdvancedSettingsDlgTest, FileTypesAreListedAndKept) {
  LoadTypes(Type("Movie", "mov") + Type("Picture", "pic"));

  page.Create();

  EXPECT_THAT(Types().Rows(), ElementsAre(u"Movie(mov)", u"Picture(pic)"));
  EXPECT_TRUE(Enabled(u"Delete file type"));
  EXPECT_TRUE(Enabled(u"Edit file type"));
  ASSERT_EQ(page.fileTypes.size(), 2u);
  EXPECT_EQ(page.fileTypes[u"Movie"].extension, "mov");
  EXPECT_EQ(page.fileTypes[u"Movie"].contentType, u"c");
  EXPECT_EQ(page.fileTypes[u"Movie"].storedName, "Movie");
  EXPECT_TRUE(page.fileTypes[u"Movie"].live);
}

TEST_F(AdvancedSettingsDlgTest, OfTwoTypesOfOneNameTheFirstIsKept) {
  LoadTypes(Type("Movie", "mov") + Type("Movie", "mp4"));

  page.Create();

  EXPECT_THAT(Types().Rows(), ElementsAre(u"Movie(mov)", u"Movie(mp4)"));
  ASSERT_EQ(page.fileTypes.size(), 1u);
  EXPECT_EQ(page.fileTypes[u"Movie"].extension, "mov");
}

TEST_F(AdvancedSettingsDlgTest, ATypeWithoutAnythingIsNoRow) {
  LoadTypes("<fileType/>" + Type("Movie", "mov"));

  page.Create();

  EXPECT_THAT(Types().Rows(), ElementsAre(u"Movie(mov)"));
}

TEST_F(AdvancedSettingsDlgTest, ARowWhoseTypeIsNotFoundStaysWithoutARecord) {
  LoadTypes(Type("Mo(vie", "mov"));

  page.Create();

  EXPECT_THAT(Types().Rows(), ElementsAre(u"Mo(vie(mov)"));
  EXPECT_THAT(page.fileTypes, IsEmpty());
}

TEST_F(AdvancedSettingsDlgTest, AMissingFieldOfATypeIsNotTakenFromTheTypeBefore) {
  LoadTypes(Type("Movie", "mov") +
            "<fileType><name>Bare</name><extension>b</extension></fileType>");

  page.Create();

  EXPECT_EQ(page.fileTypes[u"Bare"].contentType, u"");
}

// --- Adding -------------------------------------------------------------------------------------

TEST_F(AdvancedSettingsDlgTest, AnAddedTypeTakesThePlaceOfThePlaceholder) {
  page.Create();
  AnswerDialog(u"Movie", u"mov");

  EXPECT_TRUE(PressButton(page, u"Add file type"));

  EXPECT_THAT(frontEnd.dialogs, ElementsAre(u"CFileTypeDlg"));
  EXPECT_THAT(Types().Rows(), ElementsAre(u"Movie(mov)"));
  EXPECT_TRUE(Enabled(u"Delete file type"));
  EXPECT_TRUE(Enabled(u"Edit file type"));
  EXPECT_EQ(page.fileTypes[u"Movie"].contentType, u"c");
  EXPECT_EQ(page.fileTypes[u"Movie"].storedName, "Movie");
}

TEST_F(AdvancedSettingsDlgTest, AddingStartsWithAnEmptyDialogOverTheFocusWindow) {
  LoadTypes(Type("Movie", "mov"));
  page.Create();
  frontEnd.onDialog = [this](CDialog& dialog) {
    EXPECT_EQ(Find<Edit>(dialog, u"Name:").text, u"");
    EXPECT_EQ(dialog.Parent(), frontEnd.focus);
    dialog.OnCancel();
  };

  PressButton(page, u"Add file type");

  EXPECT_EQ(frontEnd.dialogs.size(), 1u);
}

TEST_F(AdvancedSettingsDlgTest, ACancelledAdditionChangesNothing) {
  page.Create();
  AnswerDialog(u"Movie", u"mov", u"Cancel");

  PressButton(page, u"Add file type");

  EXPECT_THAT(Types().Rows(), ElementsAre(u"<None>"));
  EXPECT_THAT(page.fileTypes, IsEmpty());
}

TEST_F(AdvancedSettingsDlgTest, ADialogThatEndsWithOkAndNoNameAddsNothing) {
  page.Create();
  frontEnd.onDialog = [](CDialog& dialog) { dialog.EndDialog(kIdOk); };

  PressButton(page, u"Add file type");

  EXPECT_THAT(Types().Rows(), ElementsAre(u"<None>"));
  EXPECT_THAT(page.fileTypes, IsEmpty());
}

TEST_F(AdvancedSettingsDlgTest, AnEqualRowIsNotAddedAgainAndItsRecordIsReplaced) {
  LoadTypes(Type("Movie", "mov"));
  page.Create();
  page.fileTypes[u"Movie"].description = u"old";
  AnswerDialog(u"Movie", u"mov");

  PressButton(page, u"Add file type");

  EXPECT_THAT(Types().Rows(), ElementsAre(u"Movie(mov)"));
  EXPECT_EQ(page.fileTypes[u"Movie"].description, u"");
}

TEST_F(AdvancedSettingsDlgTest, ATypeOfTheSameNameWithAnotherExtensionIsARowOfItsOwn) {
  LoadTypes(Type("Movie", "mov"));
  page.Create();
  AnswerDialog(u"Movie", u"mp4");

  PressButton(page, u"Add file type");

  EXPECT_THAT(Types().Rows(), ElementsAre(u"Movie(mov)", u"Movie(mp4)"));
  EXPECT_EQ(page.fileTypes[u"Movie"].extension, "mp4");
}

// --- Editing ------------------------------------------------------------------------------------

TEST_F(AdvancedSettingsDlgTest, EditingShowsTheSelectedType) {
  LoadTypes(Type("Movie", "mov") + Type("Picture", "pic"));
  page.Create();
  Types().Choose(1);
  frontEnd.onDialog = [](CDialog& dialog) {
    EXPECT_EQ(Find<Edit>(dialog, u"Name:").text, u"Picture");
    EXPECT_EQ(Find<Edit>(dialog, u"Extension:").text, u"pic");
    dialog.OnCancel();
  };

  EXPECT_TRUE(PressButton(page, u"Edit file type"));

  EXPECT_THAT(frontEnd.dialogs, ElementsAre(u"CFileTypeDlg"));
}

TEST_F(AdvancedSettingsDlgTest, ATypeWithAnotherExtensionMovesToTheEnd) {
  LoadTypes(Type("Movie", "mov") + Type("Picture", "pic"));
  page.Create();
  Types().Choose(0);
  AnswerDialog(u"Movie", u"mp4");

  PressButton(page, u"Edit file type");

  EXPECT_THAT(Types().Rows(), ElementsAre(u"Picture(pic)", u"Movie(mp4)"));
  EXPECT_EQ(page.fileTypes[u"Movie"].extension, "mp4");
}

TEST_F(AdvancedSettingsDlgTest, ATypeWithAnotherNameMovesToTheEndAndLosesItsOldRecord) {
  LoadTypes(Type("Movie", "mov") + Type("Picture", "pic"));
  page.Create();
  Types().Choose(0);
  AnswerDialog(u"Film", u"mov");

  PressButton(page, u"Edit file type");

  EXPECT_THAT(Types().Rows(), ElementsAre(u"Picture(pic)", u"Film(mov)"));
  EXPECT_FALSE(page.fileTypes.contains(u"Movie"));
  EXPECT_EQ(page.fileTypes[u"Film"].name, "Film");
  EXPECT_EQ(page.fileTypes[u"Film"].storedName, "Movie");
}

TEST_F(AdvancedSettingsDlgTest, ATypeRenamedToAnotherOnesNameTakesItsRecordNotItsRow) {
  LoadTypes(Type("Movie", "mov") + Type("Picture", "pic"));
  page.Create();
  Types().Choose(0);
  AnswerDialog(u"Picture", u"mov");

  PressButton(page, u"Edit file type");

  EXPECT_THAT(Types().Rows(), ElementsAre(u"Picture(pic)", u"Picture(mov)"));
  EXPECT_EQ(page.fileTypes.size(), 1u);
  EXPECT_EQ(page.fileTypes[u"Picture"].extension, "mov");
  EXPECT_EQ(page.fileTypes[u"Picture"].storedName, "Movie");
}

TEST_F(AdvancedSettingsDlgTest, ARowOfTheRecordThatTwoRowsShareStaysWhenNothingIsChanged) {
  LoadTypes(Type("Movie", "mov"));
  page.Create();
  AnswerDialog(u"Movie", u"mp4");
  PressButton(page, u"Add file type");
  Types().Choose(1);
  frontEnd.onDialog = [](CDialog& dialog) { PressButton(dialog, u"OK"); };

  PressButton(page, u"Edit file type");

  EXPECT_THAT(Types().Rows(), ElementsAre(u"Movie(mov)", u"Movie(mp4)"));
}

TEST_F(AdvancedSettingsDlgTest, ARowWhoseNameHasAnotherExtensionsRecordIsReplacedByItsRow) {
  LoadTypes(Type("Movie", "mov") + Type("Movie", "mp4"));
  page.Create();
  Types().Choose(1);
  frontEnd.onDialog = [](CDialog& dialog) { PressButton(dialog, u"OK"); };

  PressButton(page, u"Edit file type");

  EXPECT_THAT(Types().Rows(), ElementsAre(u"Movie(mov)", u"Movie(mov)"));
}

TEST_F(AdvancedSettingsDlgTest, ATypeThatKeepsNameAndExtensionKeepsItsRow) {
  LoadTypes(Type("Movie", "mov") + Type("Picture", "pic"));
  page.Create();
  Types().Choose(0);
  frontEnd.onDialog = [](CDialog& dialog) {
    Find<Edit>(dialog, u"Description:").Type(u"A film");
    PressButton(dialog, u"OK");
  };

  PressButton(page, u"Edit file type");

  EXPECT_THAT(Types().Rows(), ElementsAre(u"Movie(mov)", u"Picture(pic)"));
  EXPECT_EQ(Types().GetCurSel(), 0);
  EXPECT_EQ(page.fileTypes[u"Movie"].description, u"A film");
}

TEST_F(AdvancedSettingsDlgTest, ACancelledEditChangesNothing) {
  LoadTypes(Type("Movie", "mov"));
  page.Create();
  Types().Choose(0);
  AnswerDialog(u"Film", u"avi", u"Cancel");

  PressButton(page, u"Edit file type");

  EXPECT_THAT(Types().Rows(), ElementsAre(u"Movie(mov)"));
  EXPECT_EQ(page.fileTypes[u"Movie"].name, "Movie");
}

TEST_F(AdvancedSettingsDlgTest, WithoutASelectionThereIsNothingToEdit) {
  LoadTypes(Type("Movie", "mov"));
  page.Create();

  PressButton(page, u"Edit file type");

  EXPECT_THAT(frontEnd.dialogs, IsEmpty());
}

TEST_F(AdvancedSettingsDlgTest, ARowWithoutARecordCannotBeEdited) {
  LoadTypes(Type("Mo(vie", "mov"));
  page.Create();
  Types().Choose(0);

  PressButton(page, u"Edit file type");

  EXPECT_THAT(frontEnd.dialogs, IsEmpty());
  EXPECT_TRUE(page.fileTypes.contains(u"Mo"));
}

TEST_F(AdvancedSettingsDlgTest, ThePlaceholderCannotBeEdited) {
  page.Create();
  Types().Choose(0);

  Find<CStretchBitmapButton>(page, u"Edit file type").Click();

  EXPECT_THAT(frontEnd.dialogs, IsEmpty());
  EXPECT_THAT(Types().Rows(), ElementsAre(u"<None>"));
}

// --- Deleting -----------------------------------------------------------------------------------

TEST_F(AdvancedSettingsDlgTest, ADeletedTypeLeavesTheListAndStaysMarked) {
  LoadTypes(Type("Movie", "mov") + Type("Picture", "pic"));
  page.Create();
  Types().Choose(0);

  EXPECT_TRUE(PressButton(page, u"Delete file type"));

  EXPECT_THAT(Types().Rows(), ElementsAre(u"Picture(pic)"));
  EXPECT_FALSE(page.fileTypes[u"Movie"].live);
  EXPECT_EQ(page.fileTypes[u"Movie"].extension, "mov");
  EXPECT_TRUE(page.fileTypes[u"Picture"].live);
  EXPECT_TRUE(Enabled(u"Delete file type"));
}

TEST_F(AdvancedSettingsDlgTest, DeletingTheLastRowBringsThePlaceholderBack) {
  LoadTypes(Type("Movie", "mov"));
  page.Create();
  Types().Choose(0);

  PressButton(page, u"Delete file type");

  EXPECT_THAT(Types().Rows(), ElementsAre(u"<None>"));
  EXPECT_FALSE(Enabled(u"Delete file type"));
  EXPECT_FALSE(Enabled(u"Edit file type"));
}

TEST_F(AdvancedSettingsDlgTest, ARowWithoutARecordIsMarkedToo) {
  LoadTypes(Type("Mo(vie", "mov"));
  page.Create();
  Types().Choose(0);

  PressButton(page, u"Delete file type");

  EXPECT_THAT(Types().Rows(), ElementsAre(u"<None>"));
  ASSERT_TRUE(page.fileTypes.contains(u"Mo"));
  EXPECT_FALSE(page.fileTypes[u"Mo"].live);
}

TEST_F(AdvancedSettingsDlgTest, WithoutASelectionNothingIsDeleted) {
  LoadTypes(Type("Movie", "mov"));
  page.Create();

  PressButton(page, u"Delete file type");

  EXPECT_THAT(Types().Rows(), ElementsAre(u"Movie(mov)"));
}

TEST_F(AdvancedSettingsDlgTest, ThePlaceholderIsNotDeleted) {
  page.Create();
  Types().Choose(0);

  Find<CStretchBitmapButton>(page, u"Delete file type").Click();

  EXPECT_THAT(Types().Rows(), ElementsAre(u"<None>"));
  EXPECT_THAT(page.fileTypes, IsEmpty());
}

TEST_F(AdvancedSettingsDlgTest, ADeletedTypeThatIsAddedAgainIsLive) {
  LoadTypes(Type("Movie", "mov"));
  page.Create();
  Types().Choose(0);
  PressButton(page, u"Delete file type");
  AnswerDialog(u"Movie", u"mov");

  PressButton(page, u"Add file type");

  EXPECT_THAT(Types().Rows(), ElementsAre(u"Movie(mov)"));
  EXPECT_TRUE(page.fileTypes[u"Movie"].live);
}

}  // namespace
}  // namespace qutav::test
