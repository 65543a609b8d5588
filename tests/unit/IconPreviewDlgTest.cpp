#include "DescriptorTest.h"
#include "RectangleEdges.h"
#include "settings_ui/IconPreviewDlg.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

class IconPreviewDlgTest : public DescriptorTest {
 protected:
  IconPreviewDlgTest() {
    SettingsSet(keys::kRuntimeKit, u"TAV33.0");
    SettingsSet(keys::kMovieFolder, u"C:/m/");
    files.PutFolder(u"C:/m");
    LoadIcons("");
  }

  void LoadIcons(const std::string& images) { LoadChildren("<icon>" + images + "</icon>"); }

  // Puts an image on the disk, as file dialogs and as the page name it.
  void PutImage(const std::u16string& path, int width, int height) {
    files.Put(path, "bytes of " + ToUtf8(path));
    imageFiles.Put(path, width, height);
    std::u16string shown = path;
    for (std::size_t i = 5; i < shown.size(); ++i) {
      if (shown[i] == u'\\') shown[i] = u'/';
    }
    imageFiles.Put(shown, width, height);
  }

  void Browse(const std::u16string& file) {
    frontEnd.chosenFile = file;
    EXPECT_TRUE(PressButton(page, u"Browse icon"));
  }

  ListBox& Sizes() { return Find<ListBox>(page, u"Icon sizes:"); }
  std::u16string PathText() { return Find<Edit>(page, u"Icon path:").text; }
  Picture& Preview() { return Find<Picture>(page, u"Preview:"); }

  CIconPreviewDlg page;
};

// --- The page -----------------------------------------------------------------------------------

TEST_F(IconPreviewDlgTest, ShowsItsControlsUnderItsTitle) {
  EXPECT_EQ(page.Title(), u"Icons");
  EXPECT_EQ(page.EnglishTitle(), u"Icons");
  std::vector<std::u16string> labels;
  for (const auto& control : page.Controls()) labels.push_back(control->label);
  EXPECT_THAT(labels, ElementsAre(u"Icon sizes:", u"36x36", u"Icon path:", u"Browse icon",
                                  u"Remove icon", u"Preview:"));
  EXPECT_EQ(Find<Edit>(page, u"Icon path:").style, EditStyle::kReadOnly);
}

TEST_F(IconPreviewDlgTest, StartsWithTheFirstSize) {
  LoadIcons("<image36x36>icons/a.png</image36x36>");
  EXPECT_FALSE(page.initialised);

  page.Create();

  EXPECT_EQ(Sizes().GetCurSel(), 0);
  EXPECT_EQ(Find<Label>(page, u"36x36").text, u"36x36");
  EXPECT_EQ(PathText(), u"icons/a.png");
  EXPECT_EQ(page.rootFolder, u"C:\\m\\");
  EXPECT_TRUE(page.initialised);
  EXPECT_FALSE(page.IsIconChanged());
}

// --- Sizes --------------------------------------------------------------------------------------

struct LevelCase {
  std::u16string level;
  int rows;
};

class IconSizesTest : public IconPreviewDlgTest, public ::testing::WithParamInterface<LevelCase> {};

INSTANTIATE_TEST_SUITE_P(
    AtLevels, IconSizesTest,
    ::testing::Values(LevelCase{u"TAV1.0", 3}, LevelCase{u"TAV3.6", 3}, LevelCase{u"TAV3.7", 4},
                      LevelCase{u"TAV3.8", 4}, LevelCase{u"TAV14.0", 4}, LevelCase{u"TAV19.0", 4},
                      LevelCase{u"TAV20.0", 6}, LevelCase{u"TAV26.0", 6}, LevelCase{u"TAV33.0", 6}),
    [](const auto& row) {
      const std::u16string level = row.param.level;
      return ToUtf8(level.substr(0, level.find(u'.')) + u"_" + level.substr(level.find(u'.') + 1));
    });

TEST_P(IconSizesTest, OffersTheSizesThatTheLevelKnows) {
  SettingsSet(keys::kRuntimeKit, GetParam().level);
  const std::vector<std::u16string> rows = {u"icon 36x36", u"icon 48x48",   u"icon 72x72",
                                            u"icon 96x96", u"icon 144x144", u"icon 192x192"};

  page.Create();

  EXPECT_THAT(Sizes().Rows(), ElementsAreArray(rows.begin(), rows.begin() + GetParam().rows));
}

TEST_P(IconSizesTest, GivesTheirPixels) {
  SettingsSet(keys::kRuntimeKit, GetParam().level);
  const int pixels[] = {36, 48, 72, 96, 144, 192};
  page.Create();

  for (int row = 0; row < GetParam().rows; ++row) {
    Sizes().Choose(row);
    EXPECT_EQ(page.CurrentIconSize(), pixels[row]);
  }
}

TEST_F(IconPreviewDlgTest, NoSelectionHasNoSize) {
  page.Create();

  Sizes().SetCurSel(-1);

  EXPECT_EQ(page.CurrentIconSize(), 0);
}

TEST_F(IconPreviewDlgTest, ARowWhoseLevelIsNoLongerThereHasNoSize) {
  page.Create();
  Sizes().SetCurSel(3);
  SettingsSet(keys::kRuntimeKit, u"TAV3.6");
  EXPECT_EQ(page.CurrentIconSize(), 0);
  Sizes().SetCurSel(5);
  SettingsSet(keys::kRuntimeKit, u"TAV19.0");

  EXPECT_EQ(page.CurrentIconSize(), 0);
}

// --- Showing ------------------------------------------------------------------------------------

TEST_F(IconPreviewDlgTest, ASelectedSizeShowsItsNameAndItsPath) {
  LoadIcons("<image36x36>a.png</image36x36><image144x144>icons/b.png</image144x144>");
  page.Create();

  Sizes().Choose(4);

  EXPECT_EQ(Find<Label>(page, u"36x36").text, u"144x144");
  EXPECT_EQ(PathText(), u"icons/b.png");
}

TEST_F(IconPreviewDlgTest, ASizeWithoutAnIconShowsNoPath) {
  LoadIcons("<image36x36>a.png</image36x36>");
  page.Create();

  Sizes().Choose(1);

  EXPECT_EQ(PathText(), u"");
}

TEST_F(IconPreviewDlgTest, ABlankIsShownAsOneAndOtherPercentSignsStay) {
  LoadIcons("<image36x36>my%20icons/100%%20a.png</image36x36>");

  page.Create();

  EXPECT_EQ(PathText(), u"my icons/100% a.png");
}

TEST_F(IconPreviewDlgTest, AnIconIsPaintedInTheMiddleOfThePreview) {
  PutImage(u"C:\\m\\a.png", 36, 36);
  LoadIcons("<image36x36>a.png</image36x36>");

  page.Create();

  EXPECT_EQ(Preview().width, 192);
  EXPECT_EQ(Preview().height, 192);
  EXPECT_EQ(Preview().Background(), 0xFFF5F5F5);
  ASSERT_NE(Preview().Painted(), nullptr);
  EXPECT_EQ(Preview().Painted()->width, 36);
  EXPECT_THAT(EdgesOf(Preview().Target()), ElementsAre(78, 78, 114, 114));
}

TEST_F(IconPreviewDlgTest, APathWithABlankFindsItsFile) {
  PutImage(u"C:\\m\\my icon.png", 36, 36);
  LoadIcons("<image36x36>my%20icon.png</image36x36>");

  page.Create();

  EXPECT_NE(Preview().Painted(), nullptr);
}

TEST_F(IconPreviewDlgTest, AnImageLargerThanThePreviewIsPaintedOverAllOfIt) {
  PutImage(u"C:\\m\\a.png", 500, 400);
  LoadIcons("<image36x36>a.png</image36x36>");

  page.Create();

  EXPECT_THAT(EdgesOf(Preview().Target()), ElementsAre(0, 0, 192, 192));
}

TEST_F(IconPreviewDlgTest, TheLeastSideOfImageAndPreviewCounts) {
  PutImage(u"C:\\m\\a.png", 100, 30);
  LoadIcons("<image36x36>a.png</image36x36>");
  page.Create();
  EXPECT_THAT(EdgesOf(Preview().Target()), ElementsAre(81, 81, 111, 111));
  Preview().width = 20;
  Preview().height = 60;

  page.DrawPreview();

  EXPECT_THAT(EdgesOf(Preview().Target()), ElementsAre(0, 20, 20, 40));
}

TEST_F(IconPreviewDlgTest, TheImageIsDrawnAnewWithEveryPaint) {
  PutImage(u"C:\\m\\a.png", 36, 36);
  LoadIcons("<image36x36>a.png</image36x36>");
  page.Create();
  Preview().Clear(kWhite);

  Preview().onPaint();

  EXPECT_NE(Preview().Painted(), nullptr);
}

TEST_F(IconPreviewDlgTest, WithoutAnImageNothingIsDrawn) {
  page.Create();

  Preview().onPaint();

  EXPECT_EQ(Preview().Painted(), nullptr);
}

TEST_F(IconPreviewDlgTest, AFileThatHasGoneShowsItsPathAndAnEmptyPreviewUntilTheNextPaint) {
  PutImage(u"C:\\m\\a.png", 36, 36);
  LoadIcons("<image36x36>a.png</image36x36><image48x48>gone.png</image48x48>");
  page.Create();

  Sizes().Choose(1);

  EXPECT_EQ(PathText(), u"gone.png");
  EXPECT_EQ(Preview().Painted(), nullptr);
  EXPECT_EQ(Preview().Background(), 0xFFF5F5F5);
  Preview().onPaint();
  ASSERT_NE(Preview().Painted(), nullptr);
  EXPECT_EQ(Preview().Painted()->width, 36);
}

TEST_F(IconPreviewDlgTest, ASizeWithoutAnIconStaysGreyAtEveryPaint) {
  PutImage(u"C:\\m\\a.png", 36, 36);
  LoadIcons("<image36x36>a.png</image36x36>");
  page.Create();

  Sizes().Choose(1);
  Preview().onPaint();

  EXPECT_EQ(Preview().Painted(), nullptr);
  EXPECT_EQ(Preview().Background(), 0xFFF5F5F5);
}

TEST_F(IconPreviewDlgTest, AFileThatIsNoImageReplacesTheOneBefore) {
  PutImage(u"C:\\m\\a.png", 36, 36);
  files.Put(u"C:\\m\\text.png");
  LoadIcons("<image36x36>a.png</image36x36><image48x48>text.png</image48x48>");
  page.Create();

  Sizes().Choose(1);
  Preview().onPaint();

  EXPECT_EQ(Preview().Painted(), nullptr);
}

// --- Browsing -----------------------------------------------------------------------------------

TEST_F(IconPreviewDlgTest, BrowsingOffersPngFiles) {
  page.Create();

  PressButton(page, u"Browse icon");

  ASSERT_EQ(frontEnd.fileDialogs.size(), 1u);
  EXPECT_EQ(frontEnd.fileDialogs[0].kind, FileDialogKind::kOpen);
  EXPECT_EQ(frontEnd.fileDialogs[0].owner, frontEnd.focus);
  EXPECT_EQ(frontEnd.fileDialogs[0].filter, u"Image File (*.png)|*.png||");
  EXPECT_EQ(Children(), "<icon/>");
}

TEST_F(IconPreviewDlgTest, AnIconBelowTheRootFolderIsStoredRelativeToIt) {
  PutImage(u"C:\\m\\icons\\a.png", 48, 48);
  page.Create();
  Sizes().Choose(1);

  Browse(u"C:\\m\\icons\\a.png");

  EXPECT_EQ(Children(), "<icon><image48x48>icons/a.png</image48x48></icon>");
  EXPECT_EQ(PathText(), u"icons/a.png");
  EXPECT_NE(Preview().Painted(), nullptr);
  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(IconPreviewDlgTest, AChosenIconReplacesTheOneBefore) {
  PutImage(u"C:\\m\\b.png", 36, 36);
  LoadIcons("<image36x36>a.png</image36x36>");
  page.Create();

  Browse(u"C:\\m\\b.png");

  EXPECT_EQ(Children(), "<icon><image36x36>b.png</image36x36></icon>");
}

TEST_F(IconPreviewDlgTest, WithoutAnIconElementAChosenIconIsDroppedWithoutAWord) {
  PutImage(u"C:\\m\\a.png", 36, 36);
  LoadChildren("<id>com.game</id>");
  page.Create();

  Browse(u"C:\\m\\a.png");

  EXPECT_EQ(Children(), "<id>com.game</id>");
  EXPECT_EQ(PathText(), u"");
  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(IconPreviewDlgTest, AChosenIconIsNoChangeToReport) {
  PutImage(u"C:\\m\\a.png", 36, 36);
  page.Create();

  Browse(u"C:\\m\\a.png");

  EXPECT_FALSE(page.IsIconChanged());
}

TEST_F(IconPreviewDlgTest, ANameWithABlankIsStoredEncodedAndShownWithTheBlank) {
  PutImage(u"C:\\m\\my icons\\a b.png", 36, 36);
  page.Create();

  Browse(u"C:\\m\\my icons\\a b.png");

  EXPECT_EQ(Children(), "<icon><image36x36>my%20icons/a%20b.png</image36x36></icon>");
  EXPECT_EQ(PathText(), u"my icons/a b.png");
}

TEST_F(IconPreviewDlgTest, TheRootFoldersTextInTheMiddleOfAPathCountsAsFound) {
  SettingsSet(keys::kMovieFolder, u"m/");
  PutImage(u"C:\\x\\m\\a.png", 36, 36);
  page.Create();

  Browse(u"C:\\x\\m\\a.png");

  EXPECT_EQ(Children(), "<icon><image36x36>/x/m/a.png</image36x36></icon>");
  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(IconPreviewDlgTest, TheRootFolderInAnotherCaseIsNotFound) {
  PutImage(u"C:\\M\\a.png", 36, 36);
  frontEnd.answer = kIdCancel;
  page.Create();

  Browse(u"C:\\M\\a.png");

  EXPECT_EQ(frontEnd.messages.size(), 1u);
  EXPECT_EQ(Children(), "<icon/>");
}

TEST_F(IconPreviewDlgTest, AnIconFromElsewhereIsCopiedAfterTheUserAgrees) {
  PutImage(u"D:\\pictures\\a.png", 36, 36);
  page.Create();

  Browse(u"D:\\pictures\\a.png");

  ASSERT_EQ(frontEnd.messages.size(), 1u);
  EXPECT_EQ(frontEnd.messages[0].title, u"Zenvoka Kestrow");
  EXPECT_EQ(frontEnd.messages[0].text,
            u"The icon must be copied to a folder relative to the root content folder so that it "
            u"can be published. Do you want to proceed?");
  EXPECT_EQ(frontEnd.messages[0].icon, MessageIcon::kWarning);
  EXPECT_EQ(frontEnd.messages[0].buttons, MessageButtons::kOkCancel);
  EXPECT_EQ(files.BytesOf(u"C:/m/AppIconsForPublish/a.png"), "bytes of D:\\pictures\\a.png");
  EXPECT_EQ(Children(), "<icon><image36x36>AppIconsForPublish/a.png</image36x36></icon>");
  EXPECT_EQ(PathText(), u"AppIconsForPublish/a.png");
}

TEST_F(IconPreviewDlgTest, ACopyReplacesAFileOfItsNameInAFolderThatIsThere) {
  PutImage(u"D:\\a.png", 36, 36);
  files.Put(u"C:/m/AppIconsForPublish/a.png", "old");
  page.Create();

  Browse(u"D:\\a.png");

  EXPECT_EQ(files.BytesOf(u"C:/m/AppIconsForPublish/a.png"), "bytes of D:\\a.png");
}

TEST_F(IconPreviewDlgTest, AnIconIsNotCopiedWhenTheUserCancels) {
  PutImage(u"D:\\a.png", 36, 36);
  frontEnd.answer = kIdCancel;
  page.Create();

  Browse(u"D:\\a.png");

  EXPECT_EQ(Children(), "<icon/>");
  EXPECT_EQ(PathText(), u"");
  EXPECT_FALSE(files.Exists(u"C:/m/AppIconsForPublish"));
}

TEST_F(IconPreviewDlgTest, AFailedCopyIsNotTold) {
  PutImage(u"D:\\a.png", 36, 36);
  files.readOnly.insert(u"C:/m/AppIconsForPublish/a.png");
  page.Create();

  Browse(u"D:\\a.png");

  EXPECT_EQ(frontEnd.messages.size(), 1u);  // the question
  EXPECT_EQ(Children(), "<icon><image36x36>AppIconsForPublish/a.png</image36x36></icon>");
}

struct SizeCase {
  int width;
  int height;
};

TEST_F(IconPreviewDlgTest, AnImageOfOtherSidesIsRefused) {
  const SizeCase cases[] = {{36, 35}, {35, 36}, {48, 48}, {72, 36}, {0, 0}};
  for (const auto& [width, height] : cases) {
    PutImage(u"C:\\m\\a.png", width, height);
    CIconPreviewDlg fresh;
    fresh.Create();
    frontEnd.chosenFile = u"C:\\m\\a.png";
    frontEnd.messages.clear();

    PressButton(fresh, u"Browse icon");

    ASSERT_EQ(frontEnd.messages.size(), 1u) << width << " by " << height;
    EXPECT_EQ(frontEnd.messages[0].title, u"Zenvoka Kestrow");
    EXPECT_EQ(frontEnd.messages[0].text,
              u"One of the specified icons does not have the correct dimensions.");
    EXPECT_EQ(frontEnd.messages[0].icon, MessageIcon::kWarning);
    EXPECT_EQ(frontEnd.messages[0].buttons, MessageButtons::kOk);
    EXPECT_EQ(Children(), "<icon/>");
  }
}

TEST_F(IconPreviewDlgTest, AFileThatIsNoImageIsRefusedEvenWithoutASelectedSize) {
  files.Put(u"C:\\m\\text.png");
  page.Create();
  Browse(u"C:\\m\\text.png");
  Sizes().SetCurSel(-1);
  Browse(u"C:\\m\\text.png");

  EXPECT_THAT(frontEnd.Texts(),
              ElementsAre(u"One of the specified icons does not have the correct dimensions.",
                          u"One of the specified icons does not have the correct dimensions."));
}

TEST_F(IconPreviewDlgTest, AWrongImageFromElsewhereIsRefusedBeforeAnyQuestion) {
  PutImage(u"D:\\a.png", 10, 10);
  page.Create();

  Browse(u"D:\\a.png");

  EXPECT_THAT(frontEnd.Texts(),
              ElementsAre(u"One of the specified icons does not have the correct dimensions."));
  EXPECT_FALSE(files.Exists(u"C:/m/AppIconsForPublish"));
}

// --- Removing -----------------------------------------------------------------------------------

TEST_F(IconPreviewDlgTest, ARemovedIconGoesFromTheDescriptorAndThePreviewForGood) {
  PutImage(u"C:\\m\\AppIconsForPublish\\a.png", 36, 36);
  LoadIcons("<image36x36>AppIconsForPublish/a.png</image36x36><image48x48>b.png</image48x48>");
  page.Create();

  EXPECT_TRUE(PressButton(page, u"Remove icon"));

  EXPECT_EQ(Children(), "<icon><image48x48>b.png</image48x48></icon>");
  EXPECT_EQ(PathText(), u"");
  EXPECT_TRUE(page.IsIconChanged());
  Preview().onPaint();
  EXPECT_EQ(Preview().Painted(), nullptr);
  EXPECT_EQ(Preview().Background(), 0xFFF5F5F5);
  EXPECT_TRUE(files.HasFile(u"C:/m/AppIconsForPublish/a.png"));
}

TEST_F(IconPreviewDlgTest, RemovingWhereThereIsNoIconCountsAsAChange) {
  page.Create();

  PressButton(page, u"Remove icon");

  EXPECT_TRUE(page.IsIconChanged());
  EXPECT_EQ(Children(), "<icon/>");
}

// --- Hovering -----------------------------------------------------------------------------------

TEST_F(IconPreviewDlgTest, TheButtonUnderTheMouseLightsUpUntilTheMouseIsOverNeither) {
  auto& browse = Find<CStretchBitmapButton>(page, u"Browse icon");
  auto& remove = Find<CStretchBitmapButton>(page, u"Remove icon");
  page.Create();

  page.OnMouseMove(&browse);
  EXPECT_EQ(browse.DrawItem(false), ButtonBitmap::kFocused);
  EXPECT_EQ(remove.DrawItem(false), ButtonBitmap::kNormal);
  page.OnMouseMove(&remove);
  EXPECT_EQ(remove.DrawItem(false), ButtonBitmap::kFocused);
  page.OnMouseMove(&Sizes());

  EXPECT_EQ(browse.DrawItem(false), ButtonBitmap::kNormal);
  EXPECT_EQ(remove.DrawItem(false), ButtonBitmap::kNormal);
}

}  // namespace
}  // namespace qutav::test
