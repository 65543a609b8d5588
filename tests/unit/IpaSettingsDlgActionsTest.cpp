#include "GeneralPageTest.h"
#include "settings_ui/IpaSettingsDlg.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class IpaSettingsDlgActionsTest : public GeneralPageTest<CIpaSettingsDlg> {
 protected:
  ListBox& List() { return Find<ListBox>(page, u"Included files:"); }

  void AddFile(const std::u16string& path) {
    frontEnd.chosenFile = path;
    Press(u"Add file");
  }
  void AddFolder(const std::u16string& path) {
    frontEnd.chosenFolder = path;
    Press(u"Add folder");
  }
};

// --- The list ------------------------------------------------------------------------------------

TEST_F(IpaSettingsDlgActionsTest, MovieDescriptorExtensionsAndItemsFillTheList) {
  UseExtensions({u"a.zux", u"b.zux"});
  Include({u"data/one.xml", u"", u"C:/x/two.xml"});

  Open();

  EXPECT_THAT(List().Rows(), ElementsAre(u"Game.qmv", u"Game-app.xml", u"a.zux", u"b.zux",
                                         u"data\\one.xml", u"C:\\x\\two.xml"));
}

TEST_F(IpaSettingsDlgActionsTest, ExtensionsWithoutACacheFolderAreNoRows) {
  UseExtensions({u"a.zux"});
  ExtensionCacheFolder.clear();

  Open();

  EXPECT_THAT(List().Rows(), ElementsAre(u"Game.qmv", u"Game-app.xml"));
}

TEST_F(IpaSettingsDlgActionsTest, ACountThatIsNoNumberOrBelowOneGivesNoItems) {
  for (const char16_t* count : {u"", u"x", u"0", u"-2"}) {
    CIpaSettingsDlg shown;
    Include({u"one.xml"});
    SettingsSet(keys::kIncludedCount, count);

    shown.Create();

    EXPECT_THAT(Find<ListBox>(shown, u"Included files:").Rows(),
                ElementsAre(u"Game.qmv", u"Game-app.xml"));
  }
}

TEST_F(IpaSettingsDlgActionsTest, TheListScrollsToTheEndOfItsWidestRow) {
  Open();

  // "Game-app.xml" and an average character, at 7 pixels each.
  EXPECT_EQ(List().HorizontalExtent(), 13 * 7);
}

// --- Adding --------------------------------------------------------------------------------------

TEST_F(IpaSettingsDlgActionsTest, TheDialogForAFileStartsInTheMoviesFolder) {
  Open();

  Press(u"Add file");

  ASSERT_EQ(frontEnd.fileDialogs.size(), 1u);
  const FileDialogRequest& dialog = frontEnd.fileDialogs.front();
  EXPECT_EQ(dialog.kind, FileDialogKind::kOpen);
  EXPECT_EQ(dialog.owner, frontEnd.focus);
  EXPECT_EQ(dialog.startFolder, u"C:\\docs\\");
  EXPECT_EQ(dialog.filter, u"All Files (*.*)|*.*||");
  EXPECT_EQ(dialog.title, u"");
  EXPECT_EQ(dialog.startName, u"");
  EXPECT_EQ(dialog.defaultExtension, u"");
}

TEST_F(IpaSettingsDlgActionsTest, AFileBelowTheMoviesFolderIsNamedFromThere) {
  Open();

  AddFile(u"C:\\docs\\data\\one.xml");

  EXPECT_THAT(List().Rows(), ElementsAre(u"Game.qmv", u"Game-app.xml", u"data\\one.xml"));
  EXPECT_TRUE(page.changed);
}

TEST_F(IpaSettingsDlgActionsTest, AFileElsewhereKeepsItsWholePath) {
  Open();

  AddFile(u"D:\\data\\one.xml");

  EXPECT_THAT(List().Rows(), ElementsAre(u"Game.qmv", u"Game-app.xml", u"D:\\data\\one.xml"));
}

TEST_F(IpaSettingsDlgActionsTest, AddingARowFitsTheListToIt) {
  Open();

  AddFile(u"D:\\a\\very\\long\\path.xml");

  EXPECT_EQ(List().HorizontalExtent(), 24 * 7);
}

TEST_F(IpaSettingsDlgActionsTest, ACancelledDialogAddsNothing) {
  Open();

  Press(u"Add file");
  Press(u"Add folder");

  EXPECT_THAT(List().Rows(), ElementsAre(u"Game.qmv", u"Game-app.xml"));
  EXPECT_FALSE(page.changed);
}

TEST_F(IpaSettingsDlgActionsTest, AFileThatIsInTheListIsNotAddedAgainInWhateverCase) {
  Include({u"data/One.xml"});
  Open();

  AddFile(u"C:\\docs\\data\\oNE.xml");

  EXPECT_EQ(List().GetCount(), 3);
  EXPECT_FALSE(page.changed);
}

TEST_F(IpaSettingsDlgActionsTest, AFileWhoseNameBeginsLikeARowIsAdded) {
  Include({u"data/one.xml"});
  Open();

  AddFile(u"C:\\docs\\data\\one");

  EXPECT_EQ(List().GetCount(), 4);
}

TEST_F(IpaSettingsDlgActionsTest, TheFolderDialogIsOfTheNewStyle) {
  Open();

  Press(u"Add folder");

  ASSERT_EQ(frontEnd.folderDialogs.size(), 1u);
  EXPECT_EQ(frontEnd.folderDialogs.front().owner, frontEnd.focus);
  EXPECT_EQ(frontEnd.folderDialogs.front().title, u"Choose a folder to be in package");
  EXPECT_EQ(frontEnd.folderDialogs.front().flags, 64u);
}

TEST_F(IpaSettingsDlgActionsTest, AFolderIsNamedLikeAFile) {
  Open();

  AddFolder(u"C:\\docs\\data");
  AddFolder(u"D:\\media");

  EXPECT_THAT(List().Rows(), ElementsAre(u"Game.qmv", u"Game-app.xml", u"data", u"D:\\media"));
  EXPECT_TRUE(page.changed);
}

TEST_F(IpaSettingsDlgActionsTest, AFolderInTheListCanBeAddedAgain) {
  Open();
  AddFolder(u"C:\\docs\\data");

  AddFolder(u"C:\\docs\\data");

  EXPECT_THAT(List().Rows(), ElementsAre(u"Game.qmv", u"Game-app.xml", u"data", u"data"));
}

TEST_F(IpaSettingsDlgActionsTest, AFolderWithoutAPathIsNotAdded) {
  Open();

  AddFolder(u"");

  EXPECT_EQ(List().GetCount(), 2);
  EXPECT_FALSE(page.changed);
}

// --- Deleting ------------------------------------------------------------------------------------

TEST_F(IpaSettingsDlgActionsTest, DeletingTakesTheSelectedRowOfTheUser) {
  UseExtensions({u"a.zux"});
  Include({u"one.xml", u"a-very-long-name.xml", u"three.xml"});
  Open();
  List().Choose(4);

  Press(u"Delete");

  EXPECT_THAT(List().Rows(),
              ElementsAre(u"Game.qmv", u"Game-app.xml", u"a.zux", u"one.xml", u"three.xml"));
  EXPECT_EQ(List().HorizontalExtent(), 13 * 7);
  EXPECT_TRUE(page.changed);
}

TEST_F(IpaSettingsDlgActionsTest, DeletingWithoutASelectionDoesNothing) {
  Include({u"one.xml"});
  Open();

  Press(u"Delete");

  EXPECT_EQ(List().GetCount(), 3);
  EXPECT_FALSE(page.changed);
}

TEST_F(IpaSettingsDlgActionsTest, DeletingWithAFixedRowSelectedChangesNothingButIsAChange) {
  UseExtensions({u"a.zux"});
  Include({u"one.xml"});
  for (const int fixed : {0, 1, 2}) {
    CIpaSettingsDlg shown;
    shown.Create();
    auto& list = Find<ListBox>(shown, u"Included files:");
    list.Choose(fixed);

    Find<CStretchBitmapButton>(shown, u"Delete").Click();

    EXPECT_THAT(list.Rows(), ElementsAre(u"Game.qmv", u"Game-app.xml", u"a.zux", u"one.xml"));
    EXPECT_TRUE(shown.changed);
  }
}

TEST_F(IpaSettingsDlgActionsTest, DeleteIsGreyForFixedRowsAlone) {
  UseExtensions({u"a.zux"});
  Include({u"one.xml"});
  Open();
  EXPECT_TRUE(ButtonOf(u"Delete").enabled);

  for (const int fixed : {0, 1, 2}) {
    List().Choose(fixed);
    EXPECT_FALSE(ButtonOf(u"Delete").enabled) << fixed;
  }
  List().Choose(3);
  EXPECT_TRUE(ButtonOf(u"Delete").enabled);
}

TEST_F(IpaSettingsDlgActionsTest, ASelectionThatIsGoneLeavesTheDeleteButton) {
  Open();
  List().Choose(0);

  List().Choose(-1);

  EXPECT_FALSE(ButtonOf(u"Delete").enabled);
}

// --- Storing the list ----------------------------------------------------------------------------

TEST_F(IpaSettingsDlgActionsTest, StoringWritesTheUsersRowsWithForwardSlashes) {
  UseExtensions({u"a.zux"});
  Include({u"old/one.xml", u"old/two.xml", u"old/three.xml"});
  Open();
  List().Choose(3);
  Press(u"Delete");
  List().Choose(3);
  Press(u"Delete");
  AddFile(u"D:\\new\\one.xml");

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_THAT(StoredItems(), ElementsAre("item0=old/three.xml", "item1=D:/new/one.xml"));
  EXPECT_EQ(SettingsGet(keys::kIncludedCount), u"2");
}

TEST_F(IpaSettingsDlgActionsTest, StoringWithoutUserRowsClearsTheItemsAndKeepsTheCount) {
  Include({u"one.xml", u"two.xml"});
  Open();
  List().Choose(2);
  Press(u"Delete");
  List().Choose(2);
  Press(u"Delete");

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_THAT(StoredItems(), IsEmpty());
  EXPECT_EQ(SettingsGet(keys::kIncludedCount), u"2");
}

TEST_F(IpaSettingsDlgActionsTest, AUserRowWithAnExtensionsNameIsStored) {
  UseExtensions({u"a.zux"});
  Include({u"a.zux"});
  Open();

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_THAT(StoredItems(), ElementsAre("item0=a.zux"));
  EXPECT_EQ(SettingsGet(keys::kIncludedCount), u"1");
}

// --- Output file ---------------------------------------------------------------------------------

TEST_F(IpaSettingsDlgActionsTest, BrowsingStartsWithTheNameInTheField) {
  Open();
  EditOf(u"Output file:").Type(u"C:/out/Fun.apk");

  Press(u"Browse output file");

  ASSERT_EQ(frontEnd.fileDialogs.size(), 1u);
  const FileDialogRequest& dialog = frontEnd.fileDialogs.front();
  EXPECT_EQ(dialog.kind, FileDialogKind::kSave);
  EXPECT_EQ(dialog.owner, frontEnd.focus);
  EXPECT_EQ(dialog.title, u"Select File Destination");
  EXPECT_EQ(dialog.filter, u"Android App File (*.apk)|*.apk||");
  EXPECT_EQ(dialog.defaultExtension, u"apk");
  EXPECT_EQ(dialog.startName, u"Fun");
  EXPECT_EQ(dialog.startFolder, u"");
}

TEST_F(IpaSettingsDlgActionsTest, BrowsingFromAnEmptyFieldStartsWithTheMoviesName) {
  Open();
  EditOf(u"Output file:").Type(u"");

  Press(u"Browse output file");

  ASSERT_EQ(frontEnd.fileDialogs.size(), 1u);
  EXPECT_EQ(frontEnd.fileDialogs.front().startName, u"Game");
}

TEST_F(IpaSettingsDlgActionsTest, AChosenOutputFileIsShownAndNotYetStored) {
  Open();
  frontEnd.chosenFile = u"C:\\out\\New.apk";

  Press(u"Browse output file");

  EXPECT_EQ(EditOf(u"Output file:").text, u"C:/out/New.apk");
  EXPECT_EQ(SettingsGet(keys::kTavDestination), u"");
  EXPECT_FALSE(page.changed);
}

TEST_F(IpaSettingsDlgActionsTest, ACancelledBrowsingLeavesTheField) {
  Open();
  EditOf(u"Output file:").Type(u"Fun.apk");

  Press(u"Browse output file");

  EXPECT_EQ(EditOf(u"Output file:").text, u"Fun.apk");
}

// --- Processor and hover -------------------------------------------------------------------------

TEST_F(IpaSettingsDlgActionsTest, AClickOnAProcessorChoosesItAsAChange) {
  Open();

  Find<RadioButton>(page, u" ARMv8 (64 bit)").Click();

  EXPECT_EQ(page.processor, 2);
  EXPECT_TRUE(page.changed);
  EXPECT_TRUE(Find<RadioButton>(page, u" ARMv8 (64 bit)").checked);
  EXPECT_FALSE(Find<RadioButton>(page, u" ARMv7 (32 bit)").checked);
}

TEST_F(IpaSettingsDlgActionsTest, AClickOnTheProcessorThatIsChosenIsAChangeToo) {
  Open();

  Find<RadioButton>(page, u" ARMv7 (32 bit)").Click();

  EXPECT_EQ(page.processor, 0);
  EXPECT_TRUE(page.changed);
}

TEST_F(IpaSettingsDlgActionsTest, EditingTheOtherFieldsIsNoChange) {
  SettingsSet(keys::kTavDestination, u"Game.apk");
  Open();
  ComboOf(u"Aspect ratio:").Choose(1);
  ComboOf(u"Render mode:").Choose(2);
  BoxOf(u"Full screen").Click();
  EditOf(u"App name:").Type(u"Fun");

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_FALSE(page.changed);
}

TEST_F(IpaSettingsDlgActionsTest, ImageButtonsLightUpUnderTheMouse) {
  Open();
  for (const char16_t* label : {u"Browse output file", u"Add file", u"Delete", u"Add folder"}) {
    page.OnMouseMove(&ButtonOf(label));
    EXPECT_TRUE(ButtonOf(label).focused);
  }

  page.OnMouseMove(&EditOf(u"App name:"));

  for (const char16_t* label : {u"Browse output file", u"Add file", u"Delete", u"Add folder"}) {
    EXPECT_FALSE(ButtonOf(label).focused);
  }
}

TEST_F(IpaSettingsDlgActionsTest, EachImageButtonHasItsPicture) {
  EXPECT_EQ(ButtonOf(u"Browse output file").image, ButtonImage::kBrowse);
  EXPECT_EQ(ButtonOf(u"Add file").image, ButtonImage::kAddFile);
  EXPECT_EQ(ButtonOf(u"Delete").image, ButtonImage::kDelete);
  EXPECT_EQ(ButtonOf(u"Add folder").image, ButtonImage::kAddFolder);
}

TEST_F(IpaSettingsDlgActionsTest, WhatWasSetAtLoadingStaysAfterTheSheetIsLeft) {
  SettingsSet(keys::kOldTargetPlatform, u"iOS");
  {
    CIpaSettingsDlg left;
    LoadChildren("<id>com.game</id>");
    left.Create();
  }

  EXPECT_EQ(SettingsGet(keys::kOldTargetPlatform), u"Android");
  EXPECT_EQ(SettingsGet(keys::kProcessorType), u"arm");
}

}  // namespace
}  // namespace qutav::test
