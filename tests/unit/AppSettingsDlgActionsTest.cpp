#include "GeneralPageTest.h"
#include "settings_ui/AppSettingsDlg.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class AppSettingsDlgActionsTest : public GeneralPageTest<CAppSettingsDlg> {
 protected:
  ListBox& List() { return Find<ListBox>(page, u"Included files"); }

  void AddFile(const std::u16string& path) {
    frontEnd.chosenFile = path;
    Press(u"Add file");
  }
};

// --- Included files ------------------------------------------------------------------------------

TEST_F(AppSettingsDlgActionsTest, StoringWritesTheUsersRowsWithForwardSlashes) {
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

TEST_F(AppSettingsDlgActionsTest, AUserRowWithAnExtensionsNameIsLeftOutButCounted) {
  UseExtensions({u"a.zux"});
  Include({u"a.zux", u"A.ZUX", u"one.xml"});
  Open();

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_THAT(StoredItems(), ElementsAre("item0=A.ZUX", "item1=one.xml"));
  EXPECT_EQ(SettingsGet(keys::kIncludedCount), u"3");
}

TEST_F(AppSettingsDlgActionsTest, ExtensionRowsAloneStoreACountOfZero) {
  UseExtensions({u"a.zux"});
  Include({u"one.xml"});
  Open();
  List().Choose(3);
  Press(u"Delete");

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_THAT(StoredItems(), IsEmpty());
  EXPECT_EQ(SettingsGet(keys::kIncludedCount), u"0");
}

TEST_F(AppSettingsDlgActionsTest, ADeletedExtensionRowIsStillSubtractedFromTheCount) {
  UseExtensions({u"a.zux", u"b.zux"});
  Include({u"one.xml"});
  Open();
  for (int deleted = 0; deleted < 2; ++deleted) {
    List().Choose(2);
    Press(u"Delete");
  }

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_THAT(StoredItems(), ElementsAre("item0=one.xml"));
  EXPECT_EQ(SettingsGet(keys::kIncludedCount), u"-1");
}

TEST_F(AppSettingsDlgActionsTest, WithMovieAndDescriptorAloneTheOldCountStays) {
  Include({u"one.xml"});
  Open();
  List().Choose(2);
  Press(u"Delete");

  EXPECT_EQ(page.StoreToDescriptor(), 0);

  EXPECT_THAT(StoredItems(), IsEmpty());
  EXPECT_EQ(SettingsGet(keys::kIncludedCount), u"1");
}

// --- Actions -------------------------------------------------------------------------------------

TEST_F(AppSettingsDlgActionsTest, TheDialogForAFileHasNoStartFolder) {
  Open();

  AddFile(u"C:\\docs\\data\\one.xml");

  ASSERT_EQ(frontEnd.fileDialogs.size(), 1u);
  const FileDialogRequest& dialog = frontEnd.fileDialogs.front();
  EXPECT_EQ(dialog.kind, FileDialogKind::kOpen);
  EXPECT_EQ(dialog.owner, frontEnd.focus);
  EXPECT_EQ(dialog.startFolder, u"");
  EXPECT_EQ(dialog.filter, u"All Files (*.*)|*.*||");
  EXPECT_THAT(List().Rows(), ElementsAre(u"Game.qmv", u"Game-app.xml", u"data\\one.xml"));
  EXPECT_TRUE(page.changed);
}

TEST_F(AppSettingsDlgActionsTest, AFileThatIsInTheListIsNoChangeAndAFolderIsOne) {
  Include({u"data"});
  Open();

  AddFile(u"C:\\docs\\data");
  EXPECT_FALSE(page.changed);
  frontEnd.chosenFolder = u"C:\\docs\\data";
  Press(u"Add folder");

  EXPECT_TRUE(page.changed);
  EXPECT_THAT(List().Rows(), ElementsAre(u"Game.qmv", u"Game-app.xml", u"data", u"data"));
  ASSERT_EQ(frontEnd.folderDialogs.size(), 1u);
  EXPECT_EQ(frontEnd.folderDialogs.front().owner, frontEnd.focus);
  EXPECT_EQ(frontEnd.folderDialogs.front().title, u"Choose a folder to be in package");
  EXPECT_EQ(frontEnd.folderDialogs.front().flags, 64u);
}

TEST_F(AppSettingsDlgActionsTest, ExtensionRowsCanBeDeletedThoughTheirButtonIsGrey) {
  UseExtensions({u"a.zux"});
  Open();
  List().Choose(2);
  EXPECT_FALSE(ButtonOf(u"Delete").enabled);

  Press(u"Delete");

  EXPECT_THAT(List().Rows(), ElementsAre(u"Game.qmv", u"Game-app.xml"));
  EXPECT_TRUE(page.changed);
}

TEST_F(AppSettingsDlgActionsTest, DeletingMovieOrDescriptorChangesNothingButIsAChange) {
  Open();
  List().Choose(1);

  Press(u"Delete");

  EXPECT_EQ(List().GetCount(), 2);
  EXPECT_TRUE(page.changed);
}

TEST_F(AppSettingsDlgActionsTest, DeletingWithoutASelectionDoesNothing) {
  Open();

  Press(u"Delete");

  EXPECT_FALSE(page.changed);
}

TEST_F(AppSettingsDlgActionsTest, DeleteIsGreyForWhatIsNotTheUsers) {
  UseExtensions({u"a.zux"});
  Include({u"one.xml", u"A.zux"});
  Open();
  const auto enabledFor = [&](int row) {
    List().Choose(row);
    return ButtonOf(u"Delete").enabled;
  };

  EXPECT_FALSE(enabledFor(0));
  EXPECT_FALSE(enabledFor(1));
  EXPECT_FALSE(enabledFor(2));
  EXPECT_TRUE(enabledFor(3));
  EXPECT_TRUE(enabledFor(4)) << "another case is another row";
  EXPECT_TRUE(enabledFor(-1)) << "no selection leaves it";
}

TEST_F(AppSettingsDlgActionsTest, BrowsingOffersTheDesktopsExtensionUnderTheMobileFilter) {
  files.PutFolder(u"C:/out");
  SettingsSet(keys::kTavDestination, u"C:/out/Fun.apk");
  Open();
  frontEnd.chosenFile = u"C:\\out\\New.tav";

  Press(u"Browse output file");

  ASSERT_EQ(frontEnd.fileDialogs.size(), 1u);
  const FileDialogRequest& dialog = frontEnd.fileDialogs.front();
  EXPECT_EQ(dialog.kind, FileDialogKind::kSave);
  EXPECT_EQ(dialog.owner, frontEnd.focus);
  EXPECT_EQ(dialog.title, u"Select File Destination");
  EXPECT_EQ(dialog.filter, u"TAV File (*.apk)|*.apk||");
  EXPECT_EQ(dialog.defaultExtension, u"tav");
  // The field shows backslashes, which cutting a name from a path does not know.
  EXPECT_EQ(dialog.startName, u"C:\\out\\Fun");
  EXPECT_EQ(EditOf(u"Output file:").text, u"C:/out/New.tav");
}

TEST_F(AppSettingsDlgActionsTest, ImageButtonsLightUpUnderTheMouse) {
  Open();
  for (const char16_t* label : {u"Browse output file", u"Add file", u"Delete", u"Add folder"}) {
    page.OnMouseMove(&ButtonOf(label));
    EXPECT_TRUE(ButtonOf(label).focused);
  }

  page.OnMouseMove(nullptr);

  for (const char16_t* label : {u"Browse output file", u"Add file", u"Delete", u"Add folder"}) {
    EXPECT_FALSE(ButtonOf(label).focused);
  }
}

}  // namespace
}  // namespace qutav::test
