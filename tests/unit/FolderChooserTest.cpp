#include "ServicesTest.h"
#include "settings_ui/FolderChooser.h"

namespace qutav::test {
namespace {

class FolderChooserTest : public ServicesTest {
 protected:
  int Browse() { return chooser.Browse(frontEnd.focus, &path); }

  FolderChooser chooser{FolderChooser::kNewDialogStyle, u"Choose"};
  std::u16string path = u"old";
};

TEST_F(FolderChooserTest, AChosenFolderGivesTwoAndItsPath) {
  frontEnd.chosenFolder = u"C:\\docs\\data";

  EXPECT_EQ(Browse(), 2);

  EXPECT_EQ(path, u"C:\\docs\\data");
}

TEST_F(FolderChooserTest, TheDialogHasItsOwnerTitleAndFlags) {
  Browse();

  ASSERT_EQ(frontEnd.folderDialogs.size(), 1u);
  EXPECT_EQ(frontEnd.folderDialogs.front().owner, frontEnd.focus);
  EXPECT_EQ(frontEnd.folderDialogs.front().title, u"Choose");
  EXPECT_EQ(frontEnd.folderDialogs.front().flags, 64u);
}

TEST_F(FolderChooserTest, CancelGivesZeroAndLeavesThePath) {
  frontEnd.chosenFolder = std::nullopt;

  EXPECT_EQ(Browse(), 0);

  EXPECT_EQ(path, u"old");
}

TEST_F(FolderChooserTest, AFolderWithoutAPathGivesOneAndLeavesThePath) {
  frontEnd.chosenFolder = u"";

  EXPECT_EQ(Browse(), 1);

  EXPECT_EQ(path, u"old");
}

TEST_F(FolderChooserTest, WithoutATargetNothingIsShown) {
  frontEnd.chosenFolder = u"C:\\docs\\data";

  EXPECT_EQ(chooser.Browse(frontEnd.focus, nullptr), 1);

  EXPECT_TRUE(frontEnd.folderDialogs.empty());
}

}  // namespace
}  // namespace qutav::test
