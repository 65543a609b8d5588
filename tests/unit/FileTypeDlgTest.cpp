#include "RectangleEdges.h"
#include "ServicesTest.h"
#include "settings_ui/FileTypeDlg.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

class FileTypeDlgTest : public ServicesTest {
 protected:
  FileTypeDlgTest() {
    SettingsSet(keys::kMovieFolder, u"C:/m/");
    files.PutFolder(u"C:/m");
  }

  void PutImage(const std::u16string& path, int side) {
    files.Put(path, "bytes of " + ToUtf8(path));
    imageFiles.Put(path, side, side);
  }

  Edit& Field(const std::u16string& label) { return Find<Edit>(dialog, label); }
  Picture& Preview(const std::u16string& label) { return Find<Picture>(dialog, label); }

  // A dialog with a name, an extension and a content type that pass.
  void CreateFilled() {
    dialog.Create();
    Field(u"Name:").Type(u"Movie");
    Field(u"Extension:").Type(u"mov");
    Field(u"Content type:").Type(u"video/mov");
  }

  void ExpectRefused(const std::u16string& text) {
    EXPECT_FALSE(dialog.HasEnded());
    ASSERT_EQ(frontEnd.messages.size(), 1u);
    EXPECT_EQ(frontEnd.messages[0].title, u"Zenvoka Kestrow");
    EXPECT_EQ(frontEnd.messages[0].text, text);
    EXPECT_EQ(frontEnd.messages[0].icon, MessageIcon::kWarning);
    EXPECT_EQ(frontEnd.messages[0].buttons, MessageButtons::kOk);
  }

  FileTypeRecord record;
  CFileTypeDlg dialog{nullptr, record};
};

// --- The dialog ---------------------------------------------------------------------------------

TEST_F(FileTypeDlgTest, ShowsItsFieldsInTheirOrderUnderItsTitle) {
  EXPECT_EQ(dialog.Title(), u"File Type Settings");
  const std::u16string expected[] = {u"File type settings",
                                     u"Name:",
                                     u"Extension:",
                                     u"Description:",
                                     u"Content type:",
                                     u"File type icon settings",
                                     u"128x128",
                                     u"48x48",
                                     u"32x32",
                                     u"16x16",
                                     u"128x128:",
                                     u"Browse 128x128 icon",
                                     u"Remove 128x128 icon",
                                     u"48x48:",
                                     u"Browse 48x48 icon",
                                     u"Remove 48x48 icon",
                                     u"32x32:",
                                     u"Browse 32x32 icon",
                                     u"Remove 32x32 icon",
                                     u"16x16:",
                                     u"Browse 16x16 icon",
                                     u"Remove 16x16 icon",
                                     u"Help",
                                     u"OK",
                                     u"Cancel"};
  std::vector<std::u16string> labels;
  for (const auto& control : dialog.Controls()) labels.push_back(control->label);
  EXPECT_THAT(labels, ElementsAreArray(expected));
}

TEST_F(FileTypeDlgTest, HelpOpensItsPage) {
  EXPECT_TRUE(PressButton(dialog, u"Help"));

  EXPECT_THAT(
      frontEnd.links,
      ElementsAre(u"https://www.zenvoka.example/go/learn_tav_android_using_quorl_vr5_5_en"));
}

TEST_F(FileTypeDlgTest, CancelLeavesTheRecordAsItCame) {
  record.name = "Old";
  CreateFilled();

  PressButton(dialog, u"Cancel");

  EXPECT_EQ(dialog.Result(), 2);
  EXPECT_EQ(record.name, "Old");
  EXPECT_EQ(record.contentType, u"");
}

TEST_F(FileTypeDlgTest, PreviewsHoldTheirImageWithAFrame) {
  dialog.Create();

  const auto size = [this](const std::u16string& label) {
    return std::pair(Preview(label).width, Preview(label).height);
  };
  EXPECT_EQ(size(u"128x128"), std::pair(130, 130));
  EXPECT_EQ(size(u"48x48"), std::pair(52, 52));
  EXPECT_EQ(size(u"32x32"), std::pair(37, 36));
  EXPECT_EQ(size(u"16x16"), std::pair(22, 21));
}

TEST_F(FileTypeDlgTest, OlderWindowsGetsAFontForTwoFields) {
  folders.majorVersion = 5;

  dialog.Create();

  EXPECT_EQ(Field(u"Description:").fontFace, u"SimSun-18030");
  EXPECT_EQ(Field(u"Content type:").fontFace, u"SimSun-18030");
  EXPECT_EQ(Field(u"Name:").fontFace, u"");
}

TEST_F(FileTypeDlgTest, OtherSystemsKeepTheirFont) {
  folders.majorVersion = 6;

  dialog.Create();

  EXPECT_EQ(Field(u"Description:").fontFace, u"");
  EXPECT_EQ(Field(u"Content type:").fontFace, u"");
}

TEST_F(FileTypeDlgTest, AnyOfTheEightButtonsLightsUpUnderTheMouse) {
  std::vector<CStretchBitmapButton*> buttons;
  for (const auto& control : dialog.Controls()) {
    if (auto* button = dynamic_cast<CStretchBitmapButton*>(control.get())) {
      buttons.push_back(button);
    }
  }
  ASSERT_EQ(buttons.size(), 8u);

  for (CStretchBitmapButton* button : buttons) {
    dialog.OnMouseMove(button);
    EXPECT_TRUE(button->focused);
  }
  dialog.OnMouseMove(nullptr);

  for (CStretchBitmapButton* button : buttons) EXPECT_FALSE(button->focused);
}

// --- Filling ------------------------------------------------------------------------------------

TEST_F(FileTypeDlgTest, AnExistingTypeFillsTheFields) {
  record.name = "Tr\xC3\xA4ume";
  record.extension = "mov";
  record.description = u"A film";
  record.contentType = u"video/mov";

  dialog.Create();

  EXPECT_EQ(Field(u"Name:").text, u"Tr\u00E4ume");
  EXPECT_EQ(Field(u"Extension:").text, u"mov");
  EXPECT_EQ(Field(u"Description:").text, u"A film");
  EXPECT_EQ(Field(u"Content type:").text, u"video/mov");
}

TEST_F(FileTypeDlgTest, ANewTypeFillsNothingWhateverElseTheRecordHolds) {
  record.description = u"left over";
  record.image16x16 = u"a.png";
  files.Put(u"C:/m/a.png");

  dialog.Create();

  EXPECT_EQ(Field(u"Description:").text, u"");
  EXPECT_EQ(Field(u"16x16:").text, u"");
}

TEST_F(FileTypeDlgTest, ATypeWithAnExtensionAloneIsNotNew) {
  record.extension = "mov";
  record.description = u"A film";

  dialog.Create();

  EXPECT_EQ(Field(u"Description:").text, u"A film");
}

struct PreviewCase {
  std::u16string label;
  int left;
  int right;
};

TEST_F(FileTypeDlgTest, IconsArePaintedAtTheirOwnSizeWhateverTheImagesIs) {
  record.name = "Movie";
  record.image128x128 = record.image48x48 = record.image32x32 = record.image16x16 = u"i/a b.png";
  PutImage(u"C:\\m\\i\\a b.png", 77);

  dialog.Create();

  const PreviewCase cases[] = {
      {u"128x128", 0, 128}, {u"48x48", 1, 49}, {u"32x32", 1, 33}, {u"16x16", 1, 17}};
  for (const auto& [label, left, right] : cases) {
    EXPECT_NE(Preview(label).Painted(), nullptr);
    EXPECT_THAT(EdgesOf(Preview(label).Target()), ElementsAre(left, left, right, right));
    EXPECT_EQ(Field(label + u":").text, u"i/a b.png");
  }
}

TEST_F(FileTypeDlgTest, AnIconWhoseFileHasGoneIsDropped) {
  record.name = "Movie";
  record.image32x32 = u"gone.png";
  record.image16x16 = u"a.png";
  PutImage(u"C:\\m\\a.png", 16);

  dialog.Create();

  EXPECT_EQ(Field(u"32x32:").text, u"");
  EXPECT_EQ(Preview(u"32x32").Painted(), nullptr);
  EXPECT_EQ(Field(u"16x16:").text, u"a.png");
}

TEST_F(FileTypeDlgTest, PreviewsAreDrawnAnewWithEveryPaint) {
  record.name = "Movie";
  record.image48x48 = u"a.png";
  PutImage(u"C:\\m\\a.png", 48);
  dialog.Create();
  Preview(u"48x48").Clear(kWhite);

  for (const char16_t* label : {u"128x128", u"48x48", u"32x32", u"16x16"}) {
    Preview(label).onPaint();
  }

  EXPECT_NE(Preview(u"48x48").Painted(), nullptr);
  EXPECT_EQ(Preview(u"128x128").Painted(), nullptr);
}

// --- Browsing and removing ----------------------------------------------------------------------

TEST_F(FileTypeDlgTest, BrowsingOffersPngFilesAndCancelChangesNothing) {
  dialog.Create();
  Field(u"48x48:").Type(u"typed");

  EXPECT_TRUE(PressButton(dialog, u"Browse 48x48 icon"));

  ASSERT_EQ(frontEnd.fileDialogs.size(), 1u);
  EXPECT_EQ(frontEnd.fileDialogs[0].kind, FileDialogKind::kOpen);
  EXPECT_EQ(frontEnd.fileDialogs[0].owner, frontEnd.focus);
  EXPECT_EQ(frontEnd.fileDialogs[0].filter, u"Image File (*.png)|*.png||");
  EXPECT_EQ(Field(u"48x48:").text, u"typed");
}

TEST_F(FileTypeDlgTest, AnIconBelowTheRootFolderIsShownRelativeToIt) {
  PutImage(u"C:\\m\\i\\a b.png", 5);
  dialog.Create();
  frontEnd.chosenFile = u"C:\\m\\i\\a b.png";

  PressButton(dialog, u"Browse 32x32 icon");

  EXPECT_EQ(Field(u"32x32:").text, u"i\\a b.png");
  EXPECT_EQ(Preview(u"32x32").Background(), 0xFFFFFFFF);
  ASSERT_NE(Preview(u"32x32").Painted(), nullptr);
  EXPECT_EQ(Preview(u"32x32").Painted()->width, 5);
  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(FileTypeDlgTest, EachSizeHasItsOwnField) {
  PutImage(u"C:\\m\\a.png", 16);
  dialog.Create();
  frontEnd.chosenFile = u"C:\\m\\a.png";

  for (const std::u16string size : {u"128x128", u"48x48", u"32x32", u"16x16"}) {
    PressButton(dialog, u"Browse " + size + u" icon");
    EXPECT_EQ(Field(size + u":").text, u"a.png");
    EXPECT_NE(Preview(size).Painted(), nullptr);
    PressButton(dialog, u"Remove " + size + u" icon");
    EXPECT_EQ(Field(size + u":").text, u"");
    EXPECT_EQ(Preview(size).Painted(), nullptr);
  }
}

TEST_F(FileTypeDlgTest, TheRootFoldersTextInTheMiddleOfAPathCountsAsFound) {
  SettingsSet(keys::kMovieFolder, u"m/");
  dialog.Create();
  frontEnd.chosenFile = u"C:\\x\\m\\a.png";

  PressButton(dialog, u"Browse 16x16 icon");

  EXPECT_EQ(Field(u"16x16:").text, u"\\x\\m\\a.png");
  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(FileTypeDlgTest, AnIconFromElsewhereIsCopiedAfterTheUserAgrees) {
  PutImage(u"D:\\pictures\\a.png", 16);
  imageFiles.Put(u"C:\\m\\FileTypeIconsForTAVPublish\\a.png", 16, 16);
  dialog.Create();
  frontEnd.chosenFile = u"D:\\pictures\\a.png";

  PressButton(dialog, u"Browse 16x16 icon");

  ASSERT_EQ(frontEnd.messages.size(), 1u);
  EXPECT_EQ(frontEnd.messages[0].text,
            u"The icon must be copied to a folder relative to the root content folder so that it "
            u"can be published. Do you want to proceed?");
  EXPECT_EQ(frontEnd.messages[0].icon, MessageIcon::kWarning);
  EXPECT_EQ(frontEnd.messages[0].buttons, MessageButtons::kOkCancel);
  EXPECT_EQ(files.BytesOf(u"C:/m/FileTypeIconsForTAVPublish/a.png"),
            "bytes of D:\\pictures\\a.png");
  EXPECT_EQ(Field(u"16x16:").text, u"FileTypeIconsForTAVPublish\\a.png");
  EXPECT_THAT(imageFiles.loaded, ElementsAre(u"C:\\m\\FileTypeIconsForTAVPublish\\a.png"));
  EXPECT_NE(Preview(u"16x16").Painted(), nullptr);
}

TEST_F(FileTypeDlgTest, AnIconIsNotTakenWhenTheUserCancels) {
  PutImage(u"D:\\a.png", 16);
  frontEnd.answer = kIdCancel;
  dialog.Create();
  frontEnd.chosenFile = u"D:\\a.png";

  PressButton(dialog, u"Browse 16x16 icon");

  EXPECT_EQ(Field(u"16x16:").text, u"");
  EXPECT_FALSE(files.Exists(u"C:/m/FileTypeIconsForTAVPublish"));
}

TEST_F(FileTypeDlgTest, AFileThatCannotBeFoundIsTakenWithItsWholePath) {
  dialog.Create();
  frontEnd.chosenFile = u"D:\\gone.png";

  PressButton(dialog, u"Browse 16x16 icon");

  EXPECT_EQ(Field(u"16x16:").text, u"D:\\gone.png");
  EXPECT_FALSE(files.Exists(u"C:/m/FileTypeIconsForTAVPublish"));
}

TEST_F(FileTypeDlgTest, AFailedCopyShowsAtOk) {
  PutImage(u"D:\\a.png", 16);
  files.readOnly.insert(u"C:/m/FileTypeIconsForTAVPublish/a.png");
  CreateFilled();
  frontEnd.chosenFile = u"D:\\a.png";
  PressButton(dialog, u"Browse 16x16 icon");
  frontEnd.messages.clear();

  PressButton(dialog, u"OK");

  ExpectRefused(u"Icon file cannot be opened.\nC:/m/FileTypeIconsForTAVPublish/a.png");
}

TEST_F(FileTypeDlgTest, ARemovedIconDoesNotComeBack) {
  record.name = "Movie";
  record.image48x48 = u"a.png";
  PutImage(u"C:\\m\\a.png", 48);
  dialog.Create();

  PressButton(dialog, u"Remove 48x48 icon");
  Preview(u"48x48").onPaint();

  EXPECT_EQ(Field(u"48x48:").text, u"");
  EXPECT_EQ(Preview(u"48x48").Painted(), nullptr);
  EXPECT_EQ(Preview(u"48x48").Background(), 0xFFFFFFFF);
}

TEST_F(FileTypeDlgTest, AChosenFileThatIsNoImageLeavesAWhitePreview) {
  record.name = "Movie";
  record.image48x48 = u"a.png";
  PutImage(u"C:\\m\\a.png", 48);
  files.Put(u"C:\\m\\text.png");
  dialog.Create();
  frontEnd.chosenFile = u"C:\\m\\text.png";

  PressButton(dialog, u"Browse 48x48 icon");
  Preview(u"48x48").onPaint();

  EXPECT_EQ(Field(u"48x48:").text, u"text.png");
  EXPECT_EQ(Preview(u"48x48").Painted(), nullptr);
}

// --- OK: the texts ------------------------------------------------------------------------------

TEST_F(FileTypeDlgTest, OkStoresEveryText) {
  CreateFilled();
  Field(u"Description:").Type(u"A film");

  PressButton(dialog, u"OK");

  EXPECT_EQ(dialog.Result(), 1);
  EXPECT_EQ(record.name, "Movie");
  EXPECT_EQ(record.extension, "mov");
  EXPECT_EQ(record.description, u"A film");
  EXPECT_EQ(record.contentType, u"video/mov");
  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(FileTypeDlgTest, TheDescriptionMayBeEmptiedAndTheRestOfTheRecordStays) {
  record.name = "Old";
  record.description = u"old";
  record.live = false;
  record.storedName = "Stored";
  CreateFilled();
  Field(u"Description:").Type(u"");

  PressButton(dialog, u"OK");

  EXPECT_TRUE(dialog.HasEnded());
  EXPECT_EQ(record.description, u"");
  EXPECT_FALSE(record.live);
  EXPECT_EQ(record.storedName, "Stored");
}

TEST_F(FileTypeDlgTest, NameExtensionAndContentTypeAreRequired) {
  CreateFilled();
  for (const char16_t* label : {u"Name:", u"Extension:", u"Content type:"}) {
    const std::u16string text = Field(label).text;
    Field(label).Type(u"");
    frontEnd.messages.clear();

    PressButton(dialog, u"OK");

    ExpectRefused(
        u"Please provide a file type name, extension and content type. These parameters are "
        u"required.");
    Field(label).Type(text);
  }
  EXPECT_EQ(record.name, "");
}

TEST_F(FileTypeDlgTest, ANameOutsideItsRulesIsRefused) {
  CreateFilled();
  for (const std::u16string& name :
       {std::u16string(u".a"), std::u16string(u"1a"), std::u16string(u"a-b"),
        std::u16string(u"a b"), std::u16string(u"a(b"), std::u16string(u"\u00E4"),
        std::u16string(39, u'a')}) {
    Field(u"Name:").Type(name);
    frontEnd.messages.clear();

    PressButton(dialog, u"OK");

    ExpectRefused(
        u"Invalid file type name.\n\nFile type name length must be between 1-38 characters and may "
        u"include the following characters: a-z, A-Z, 0-9 and dot (.).  File type name cannot "
        u"start "
        u"with a dot or digit.");
  }
  EXPECT_EQ(record.name, "");
}

TEST_F(FileTypeDlgTest, ADotFurtherOnInTheNameIsAccepted) {
  CreateFilled();
  Field(u"Name:").Type(u"com.example.Movie1");

  PressButton(dialog, u"OK");

  EXPECT_EQ(dialog.Result(), 1);
  EXPECT_EQ(record.name, "com.example.Movie1");
}

TEST_F(FileTypeDlgTest, ThirtyEightCharactersAreAcceptedInBoth) {
  CreateFilled();
  Field(u"Name:").Type(std::u16string(38, u'n'));
  Field(u"Extension:").Type(std::u16string(38, u'9'));

  PressButton(dialog, u"OK");

  EXPECT_EQ(dialog.Result(), 1);
}

TEST_F(FileTypeDlgTest, AnExtensionOutsideItsRulesIsRefused) {
  CreateFilled();
  for (const std::u16string& extension : {std::u16string(u"m.v"), std::u16string(u".mov"),
                                          std::u16string(u"m-v"), std::u16string(39, u'a')}) {
    Field(u"Extension:").Type(extension);
    frontEnd.messages.clear();

    PressButton(dialog, u"OK");

    ExpectRefused(
        u"Invalid file type extension.\n\nFile type extension length must be between 1-38 "
        u"characters and may include the following characters: a-z, A-Z, and 0-9.");
  }
}

// --- OK: the icons ------------------------------------------------------------------------------

TEST_F(FileTypeDlgTest, OfSeveralMistakesTheFirstIsTold) {
  CreateFilled();
  Field(u"Name:").Type(u"1");
  Field(u"Extension:").Type(u"m.v");

  PressButton(dialog, u"OK");

  ExpectRefused(
      u"Invalid file type name.\n\nFile type name length must be between 1-38 characters and may "
      u"include the following characters: a-z, A-Z, 0-9 and dot (.).  File type name cannot start "
      u"with a dot or digit.");
  Field(u"Content type:").Type(u"");
  frontEnd.messages.clear();

  PressButton(dialog, u"OK");

  ExpectRefused(
      u"Please provide a file type name, extension and content type. These parameters are "
      u"required.");
}

TEST_F(FileTypeDlgTest, IconsAreStoredWithForwardSlashesAndTheirBlanks) {
  files.Put(u"C:/m/i/a b.png");
  files.Put(u"C:/m/c.png");
  CreateFilled();
  Field(u"128x128:").Type(u"i\\a b.png");
  Field(u"48x48:").Type(u"c.png");
  Field(u"32x32:").Type(u"i/a b.png");

  PressButton(dialog, u"OK");

  EXPECT_EQ(dialog.Result(), 1);
  EXPECT_EQ(record.image128x128, u"i/a b.png");
  EXPECT_EQ(record.image48x48, u"c.png");
  EXPECT_EQ(record.image32x32, u"i/a b.png");
  EXPECT_EQ(record.image16x16, u"");
}

TEST_F(FileTypeDlgTest, ACopiedIconIsStoredBelowItsFolder) {
  PutImage(u"D:\\a.png", 16);
  CreateFilled();
  frontEnd.chosenFile = u"D:\\a.png";
  PressButton(dialog, u"Browse 16x16 icon");

  PressButton(dialog, u"OK");

  EXPECT_EQ(dialog.Result(), 1);
  EXPECT_EQ(record.image16x16, u"FileTypeIconsForTAVPublish/a.png");
}

TEST_F(FileTypeDlgTest, AnEmptyFieldClearsItsIcon) {
  record.name = "Movie";
  record.image48x48 = u"a.png";
  PutImage(u"C:\\m\\a.png", 48);
  CreateFilled();
  PressButton(dialog, u"Remove 48x48 icon");

  PressButton(dialog, u"OK");

  EXPECT_EQ(record.image48x48, u"");
}

TEST_F(FileTypeDlgTest, AnIconThatHadGoneWhenTheDialogOpenedIsClearedAtOk) {
  record.name = "Movie";
  record.extension = "mov";
  record.contentType = u"video/mov";
  record.image32x32 = u"gone.png";
  dialog.Create();

  PressButton(dialog, u"OK");

  EXPECT_EQ(dialog.Result(), 1);
  EXPECT_EQ(record.image32x32, u"");
}

TEST_F(FileTypeDlgTest, AnIconThatIsNotThereIsRefusedWithItsWholePath) {
  CreateFilled();
  Field(u"48x48:").Type(u"i\\gone.png");

  PressButton(dialog, u"OK");

  ExpectRefused(u"Icon file cannot be opened.\nC:/m/i/gone.png");
}

TEST_F(FileTypeDlgTest, AnAbsolutePathOutsideTheRootFolderIsRefused) {
  files.Put(u"D:/pictures/a.png");
  CreateFilled();
  Field(u"16x16:").Type(u"D:\\pictures\\a.png");

  PressButton(dialog, u"OK");

  ExpectRefused(u"Icon file cannot be opened.\nC:/m/D:/pictures/a.png");
}

TEST_F(FileTypeDlgTest, TheSmallestIconFailsFirstAndWhatWentBeforeIsStored) {
  record.name = "Old";
  record.image16x16 = u"old16.png";
  record.image48x48 = u"old48.png";
  files.Put(u"C:/m/a.png");
  CreateFilled();
  Field(u"16x16:").Type(u"a.png");
  Field(u"32x32:").Type(u"gone32.png");
  Field(u"48x48:").Type(u"gone48.png");

  PressButton(dialog, u"OK");

  ExpectRefused(u"Icon file cannot be opened.\nC:/m/gone32.png");
  EXPECT_EQ(record.name, "Movie");
  EXPECT_EQ(record.image16x16, u"a.png");
  EXPECT_EQ(record.image48x48, u"old48.png");
}

TEST_F(FileTypeDlgTest, AnIconThatIsThereOnlyBelowANewRootFolderIsMissing) {
  CreateFilled();
  record.image16x16 = u"old.png";
  files.Put(u"C:/moved/a.png");
  SettingsSet(keys::kMovieFolder, u"C:/moved/");
  Field(u"16x16:").Type(u"a.png");

  PressButton(dialog, u"OK");

  ExpectRefused(u"Icon file is missing.");
  EXPECT_EQ(record.image16x16, u"");
}

TEST_F(FileTypeDlgTest, ADialogThatWasRefusedCanBeMended) {
  CreateFilled();
  Field(u"Name:").Type(u"1");
  PressButton(dialog, u"OK");
  Field(u"Name:").Type(u"Movie");

  PressButton(dialog, u"OK");

  EXPECT_EQ(dialog.Result(), 1);
}

}  // namespace
}  // namespace qutav::test
