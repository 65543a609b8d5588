#include <gtest/gtest.h>

#include <filesystem>
#include <vector>

#include "TemporaryFolder.h"
#include "framework/windows/FileDialogs.h"
#include "platform/windows/Wide.h"
#include "windows/ModalUser.h"
#include "windows/OwnerWindow.h"

namespace qutav::test {
namespace {

FileDialogRequest Opening(const std::u16string& title) {
  FileDialogRequest request;
  request.title = title;
  request.filter = u"Image File (*.png)|*.png|All Files (*.*)|*.*||";
  return request;
}

FileDialogRequest Saving(const std::u16string& title) {
  FileDialogRequest request = Opening(title);
  request.kind = FileDialogKind::kSave;
  request.filter = u"Certificate File (*.p12)||";
  request.defaultExtension = u"p12";
  return request;
}

/// The field for the name, in which a dialog has its only edit.
HWND NameField(HWND dialog) { return Descendant(dialog, u"Edit"); }

ModalUser::Action Choosing(const std::u16string& name) {
  return [name](HWND dialog) {
    SetText(NameField(dialog), name);
    Press(dialog, IDOK);
  };
}

void Cancel(HWND dialog) { Press(dialog, IDCANCEL); }

std::vector<std::u16string> FiltersOf(HWND dialog) {
  constexpr int kFilterCombo = 0x470;  // cmb1
  const HWND combo = GetDlgItem(dialog, kFilterCombo);
  std::vector<std::u16string> filters;
  for (LRESULT i = 0; i < SendMessageW(combo, CB_GETCOUNT, 0, 0); ++i) {
    std::u16string text(
        static_cast<std::size_t>(SendMessageW(combo, CB_GETLBTEXTLEN, static_cast<WPARAM>(i), 0)),
        u'\0');
    SendMessageW(combo, CB_GETLBTEXT, static_cast<WPARAM>(i),
                 reinterpret_cast<LPARAM>(WideBuffer(text)));
    filters.push_back(text);
  }
  return filters;
}

using Filters = std::vector<std::u16string>;

TEST(FileDialogsTest, AFileThatExistsIsChosenByItsPath) {
  const TemporaryFolder folder;
  folder.Put("icon.png", "bytes");
  const ModalUser user(WindowTitled(u"Open it"), Choosing(folder.Path("icon.png")));

  EXPECT_EQ(ShowFileDialog(Opening(u"Open it")), folder.Path("icon.png"));
}

TEST(FileDialogsTest, AFileIsChosenByItsNameInTheStartFolder) {
  const TemporaryFolder folder;
  folder.Put("icon.png", "bytes");
  FileDialogRequest request = Opening(u"Open it");
  request.startFolder = folder.Path("");
  const ModalUser user(WindowTitled(u"Open it"), Choosing(u"icon.png"));

  EXPECT_EQ(ShowFileDialog(request), folder.Path("icon.png"));
}

TEST(FileDialogsTest, ACancelChoosesNothing) {
  const ModalUser opener(WindowTitled(u"Open it"), Cancel);
  EXPECT_EQ(ShowFileDialog(Opening(u"Open it")), std::nullopt);

  const ModalUser saver(WindowTitled(u"Save it"), Cancel);
  EXPECT_EQ(ShowFileDialog(Saving(u"Save it")), std::nullopt);
}

TEST(FileDialogsTest, AFileThatDoesNotExistIsRefusedAndTheDialogStays) {
  const TemporaryFolder folder;
  bool stayed = false;
  const ModalUser refusal(
      {"the box that refuses", [](HWND window) { return NameField(window) == nullptr; }},
      [](HWND box) { SendMessageW(box, WM_CLOSE, 0, 0); });
  const ModalUser user(WindowTitled(u"Open it"), [&](HWND dialog) {
    Choosing(folder.Path("missing.png"))(dialog);
    stayed = IsWindowVisible(dialog) != 0;
    Cancel(dialog);
  });

  EXPECT_EQ(ShowFileDialog(Opening(u"Open it")), std::nullopt);

  EXPECT_TRUE(stayed);
}

TEST(FileDialogsTest, ANewFileToSaveGetsTheDefaultExtension) {
  const TemporaryFolder folder;
  const ModalUser user(WindowTitled(u"Save it"), Choosing(folder.Path("new")));

  EXPECT_EQ(ShowFileDialog(Saving(u"Save it")), folder.Path("new.p12"));
  EXPECT_EQ(folder.EntryCount(), 0u);
}

TEST(FileDialogsTest, AFileToSaveMayExistWithoutAQuestion) {
  const TemporaryFolder folder;
  folder.Put("old.p12", "bytes");
  const ModalUser user(WindowTitled(u"Save it"), Choosing(folder.Path("old.p12")));

  EXPECT_EQ(ShowFileDialog(Saving(u"Save it")), folder.Path("old.p12"));
}

TEST(FileDialogsTest, ADialogShowsItsStartName) {
  FileDialogRequest request = Saving(u"Save it");
  request.startName = u"Sp\u00EF\u3042l";
  std::u16string shown;
  const ModalUser user(WindowTitled(u"Save it"), [&](HWND dialog) {
    shown = TextOf(NameField(dialog));
    Cancel(dialog);
  });

  ShowFileDialog(request);

  EXPECT_EQ(shown, u"Sp\u00EF\u3042l");
}

TEST(FileDialogsTest, ADialogOffersTheDescriptionsOfItsFilter) {
  Filters opening;
  const ModalUser opener(WindowTitled(u"Open it"), [&](HWND dialog) {
    opening = FiltersOf(dialog);
    Cancel(dialog);
  });
  ShowFileDialog(Opening(u"Open it"));
  EXPECT_EQ(opening, (Filters{u"Image File (*.png)", u"All Files (*.*)"}));

  Filters saving;
  const ModalUser saver(WindowTitled(u"Save it"), [&](HWND dialog) {
    saving = FiltersOf(dialog);
    Cancel(dialog);
  });
  ShowFileDialog(Saving(u"Save it"));
  EXPECT_EQ(saving, Filters{u"Certificate File (*.p12)"});
}

TEST(FileDialogsTest, TheReadOnlyBoxIsHidden) {
  constexpr int kReadOnlyBox = 0x410;  // chx1
  bool visible = true;
  const ModalUser user(WindowTitled(u"Open it"), [&](HWND dialog) {
    visible = IsWindowVisible(GetDlgItem(dialog, kReadOnlyBox)) != 0;
    Cancel(dialog);
  });

  ShowFileDialog(Opening(u"Open it"));

  EXPECT_FALSE(visible);
}

TEST(FileDialogsTest, TheCurrentDirectoryStaysWhenTheUserGoesElsewhere) {
  const TemporaryFolder folder;
  folder.Put("icon.png", "bytes");
  const auto before = std::filesystem::current_path();
  const ModalUser user(WindowTitled(u"Open it"), [&](HWND dialog) {
    Choosing(folder.Path(""))(dialog);
    Choosing(u"icon.png")(dialog);
  });

  EXPECT_EQ(ShowFileDialog(Opening(u"Open it")), folder.Path("icon.png"));

  EXPECT_EQ(std::filesystem::current_path(), before);
}

TEST(FileDialogsTest, AStartNameThatIsTooLongIsCut) {
  FileDialogRequest request = Saving(u"Save it");
  request.startName = std::u16string(40000, u'n');
  std::size_t length = 0;
  const ModalUser user(WindowTitled(u"Save it"), [&](HWND dialog) {
    length = TextOf(NameField(dialog)).size();
    Cancel(dialog);
  });

  EXPECT_EQ(ShowFileDialog(request), std::nullopt);

  EXPECT_GT(length, 0u);
  EXPECT_LT(length, 32768u);
}

TEST(FileDialogsTest, ADialogThatCannotBeShownIsACancel) {
  FileDialogRequest request = Opening(u"Open it");
  request.owner = reinterpret_cast<WindowHandle>(0xBAD);

  EXPECT_EQ(ShowFileDialog(request), std::nullopt);
}

TEST(FileDialogsTest, TheOwnerIsDisabledWhileAFileIsChosen) {
  const OwnerWindow host;
  FileDialogRequest request = Opening(u"Open it");
  request.owner = host.Window();
  bool enabled = true;
  const ModalUser user(WindowTitled(u"Open it"), [&](HWND dialog) {
    enabled = IsWindowEnabled(host.Window()) != 0;
    Cancel(dialog);
  });

  ShowFileDialog(request);

  EXPECT_FALSE(enabled);
}

constexpr unsigned kNewStyle = 0x40;

void SelectFolder(HWND dialog, const std::u16string& path) {
  constexpr UINT kSetSelection = WM_USER + 103;  // BFFM_SETSELECTIONW
  SendMessageW(dialog, kSetSelection, TRUE, reinterpret_cast<LPARAM>(Wide(path)));
}

TEST(FolderDialogTest, AFolderIsChosenByItsPath) {
  const ModalUser user(AnyDialog(), [&](HWND dialog) {
    SelectFolder(dialog, u"C:\\windows\\system32");
    Press(dialog, IDOK);
  });

  EXPECT_EQ(ShowFolderDialog({nullptr, u"Choose", kNewStyle}), u"C:\\windows\\system32");
}

TEST(FolderDialogTest, AFolderWithoutAPathIsAnEmptyText) {
  const ModalUser user(AnyDialog(), [](HWND dialog) {
    SelectFolder(dialog, u"::{20D04FE0-3AEA-1069-A2D8-08002B30309D}");  // this computer
    Press(dialog, IDOK);
  });

  EXPECT_EQ(ShowFolderDialog({nullptr, u"Choose", kNewStyle}), u"");
}

TEST(FolderDialogTest, ACancelChoosesNothing) {
  const ModalUser user(AnyDialog(), Cancel);

  EXPECT_EQ(ShowFolderDialog({nullptr, u"Choose", kNewStyle}), std::nullopt);
}

TEST(FolderDialogTest, TheTitleStandsInTheDialog) {
  std::u16string shown;
  const ModalUser user(AnyDialog(), [&](HWND dialog) {
    shown = TextOf(Descendant(dialog, u"Static"));
    Cancel(dialog);
  });

  ShowFolderDialog({nullptr, u"Choose a folder to be in package", kNewStyle});

  EXPECT_EQ(shown, u"Choose a folder to be in package");
}

}  // namespace
}  // namespace qutav::test
