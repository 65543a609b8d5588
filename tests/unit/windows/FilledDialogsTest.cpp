// The dialogs with many fields, filled by keys and left by OK.
#include "PackagingTest.h"
#include "packaging/SelfSignDlg.h"
#include "settings_ui/FileTypeDlg.h"
#include "windows/ShownDialogs.h"
#include "windows/UserInput.h"
#include "windows/WindowPixels.h"

namespace qutav::test {
namespace {

// --- Certificate ---------------------------------------------------------------------------------

class CertificateWindowTest : public PackagingTest {
 protected:
  CertificateWindowTest() {
    SettingsRemove(keys::kCertificatePath);
    processes.play = [this](const std::u16string&) {
      files.Put(u"C:/k/new.p12");
      return PlayedAnswer{};
    };
  }

  static WantedWindow Box(const std::u16string& text) {
    return {"a box \"" + ToUtf8(text) + "\"",
            [text](HWND window) { return TextOf(GetDlgItem(window, 0xFFFF)) == text; }};
  }
  static WantedWindow OverwriteQuestion() {
    return Box(u"The certificate file exists. Do you want to overwrite it?");
  }
  static ModalUser::Steps FillingForOverwrite() {
    ModalUser::Steps steps = Filling({u"a", u"b", u"c", u"DE", u"secret", u"secret", u"30"});
    steps.push_back([](HWND) { TypeText(u"C:\\k\\new.p12"); });
    steps.push_back([](HWND) { Strike(VK_RETURN); });
    return steps;
  }

  NativeGround ground;
  CSelfSignDlg dialog{nullptr};
};

TEST_F(CertificateWindowTest, FilledInByKeysItMakesACertificate) {
  ModalUser::Steps steps =
      Filling({u"Jane Doe", u"Games", u"Studio", u"DE", u"secret", u"secret", u"30"});
  steps.push_back([](HWND) { TypeText(u"C:\\k\\new"); });
  steps.push_back([](HWND) { Strike(VK_RETURN); });
  const BoxReader box;

  EXPECT_EQ(Use(dialog, steps), kIdOk);

  EXPECT_EQ(box.text, u"Self-signed certificate has been created.");
  EXPECT_THAT(processes.CommandLines(),
              ::testing::ElementsAre(std::u16string(kToolHead) +
                                     u"-certificate  -cn \"Jane Doe\" -ou \"Games\" -o \"Studio\""
                                     u" -c \"DE\" -validityPeriod 30  2048-RSA"
                                     u" \"C:\\k\\new.p12\" \"secret\""));
  EXPECT_EQ(SettingsGet(keys::kCertificatePath), u"C:/k/new.p12");
}

TEST_F(CertificateWindowTest, WhatIsMissingIsToldAndTheFieldsStay) {
  ModalUser::Steps steps{[](HWND) { TypeText(u"Jane Doe"); }, [](HWND) { Strike(VK_RETURN); },
                         [&](HWND) {
                           EXPECT_FALSE(dialog.HasEnded());
                           EXPECT_EQ(TextOf(WindowOf(Find<Edit>(dialog, u"Publisher name:"))),
                                     u"Jane Doe");
                         }};
  const BoxReader box;

  EXPECT_EQ(LookAt(dialog, steps), kIdCancel);

  EXPECT_EQ(box.text, u"All fields must be filled.");
}

TEST_F(CertificateWindowTest, TheEndingThatIsAddedIsShown) {
  ModalUser::Steps steps = Filling({u"a", u"b", u"c", u"DE", u"secret", u"other", u"30"});
  steps.push_back([](HWND) { TypeText(u"C:\\k\\new"); });
  steps.push_back([](HWND) { Strike(VK_RETURN); });
  steps.push_back([&](HWND) {
    EXPECT_EQ(TextOf(WindowOf(Find<Edit>(dialog, u"Save as:"))), u"C:\\k\\new.p12");
  });
  const BoxReader box;

  LookAt(dialog, steps);

  EXPECT_EQ(box.text, u"Password entries do not match. Please re-enter them.");
}

TEST_F(CertificateWindowTest, AnOverwriteThatIsDeclinedRunsNothingAndTheFieldsStay) {
  files.Put(u"C:\\k\\new.p12");
  ModalUser::Steps steps = FillingForOverwrite();
  steps.push_back([&](HWND) {
    EXPECT_FALSE(dialog.HasEnded());
    EXPECT_EQ(TextOf(WindowOf(Find<Edit>(dialog, u"Save as:"))), u"C:\\k\\new.p12");
  });
  const ModalUser decliner(OverwriteQuestion(), [&](HWND box) {
    EXPECT_EQ(GetWindow(box, GW_OWNER), WindowOf(dialog));
    Press(box, IDCANCEL);
  });

  EXPECT_EQ(LookAt(dialog, steps), kIdCancel);

  EXPECT_TRUE(processes.CommandLines().empty());
  EXPECT_FALSE(SettingsMap.contains(keys::kCertificatePath));
}

TEST_F(CertificateWindowTest, AnOverwriteThatIsAcceptedMakesTheCertificate) {
  files.Put(u"C:\\k\\new.p12");
  const ModalUser accepter(OverwriteQuestion(), [](HWND box) { Press(box, IDOK); });
  const ModalUser reader(Box(u"Self-signed certificate has been created."),
                         [](HWND box) { Press(box, IDOK); });

  EXPECT_EQ(Use(dialog, FillingForOverwrite()), kIdOk);

  EXPECT_EQ(processes.CommandLines().size(), 1u);
  EXPECT_EQ(SettingsGet(keys::kCertificatePath), u"C:/k/new.p12");
}

TEST_F(CertificateWindowTest, TheTypeIsShownAndCannotBeChosen) {
  LookAt(dialog, [&] {
    const HWND type = WindowOf(Find<ComboBox>(dialog, u"Type:"));
    EXPECT_EQ(TextOf(type), u"2048-RSA");
    EXPECT_FALSE(IsWindowEnabled(type));
    const HWND country = WindowOf(Find<ComboBox>(dialog, u"Country:"));
    EXPECT_EQ(TextOf(country), u"US");
    EXPECT_EQ(SendMessageW(country, CB_GETCOUNT, 0, 0), 246);
  });
}

// --- File type -----------------------------------------------------------------------------------

class FileTypeWindowTest : public ServicesTest {
 protected:
  FileTypeWindowTest() {
    SettingsSet(keys::kMovieFolder, u"C:/m/");
    files.PutFolder(u"C:/m");
  }

  NativeGround ground;
  FileTypeRecord record;
};

TEST_F(FileTypeWindowTest, FilledInByKeysItFillsTheRecord) {
  CFileTypeDlg dialog(nullptr, record);
  ModalUser::Steps steps = Filling({u"Movie", u"mov", u"A film", u"video/mov"});
  steps.push_back([](HWND) { Strike(VK_RETURN); });

  EXPECT_EQ(Use(dialog, steps), kIdOk);

  EXPECT_EQ(record.name, "Movie");
  EXPECT_EQ(record.extension, "mov");
  EXPECT_EQ(record.description, u"A film");
  EXPECT_EQ(record.contentType, u"video/mov");
}

TEST_F(FileTypeWindowTest, ANameThatIsRefusedKeepsItOpen) {
  CFileTypeDlg dialog(nullptr, record);
  ModalUser::Steps steps = Filling({u"1Movie", u"mov", u"", u"video/mov"});
  steps.push_back([](HWND) { Strike(VK_RETURN); });
  steps.push_back([&](HWND) { EXPECT_FALSE(dialog.HasEnded()); });
  const BoxReader box;

  EXPECT_EQ(LookAt(dialog, steps), kIdCancel);

  EXPECT_TRUE(box.text.starts_with(u"Invalid file type name."));
  EXPECT_EQ(record.name, "");
}

TEST_F(FileTypeWindowTest, AnIconStandsInItsPreviewUntilItIsRemoved) {
  files.Put(u"C:/m/a.png");
  imageFiles.Put(u"C:\\m\\a.png", 16, 16);
  record.name = "Movie";
  record.image48x48 = u"a.png";
  CFileTypeDlg dialog(nullptr, record);
  const Picture& preview = Find<Picture>(dialog, u"48x48");

  LookAt(dialog, [&] {
    const WindowPixels with(WindowOf(preview));
    EXPECT_EQ(with.Width(), 52);
    EXPECT_EQ(with.At(1, 1), 0x336699u);
    EXPECT_EQ(with.At(48, 48), 0x336699u);
    EXPECT_EQ(with.At(49, 49), 0xFFFFFFu);
    EXPECT_EQ(TextOf(WindowOf(Find<Edit>(dialog, u"48x48:"))), u"a.png");

    Click(Find<CStretchBitmapButton>(dialog, u"Remove 48x48 icon"));

    EXPECT_EQ(WindowPixels(WindowOf(preview)).At(20, 20), 0xFFFFFFu);
    EXPECT_EQ(TextOf(WindowOf(Find<Edit>(dialog, u"48x48:"))), u"");
  });
}

}  // namespace
}  // namespace qutav::test
