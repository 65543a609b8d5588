#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <thread>

#include "TemporaryFolder.h"
#include "platform/Files.h"
#include "platform/windows/FileReplacement.h"
#include "platform/windows/Handle.h"
#include "platform/windows/Path.h"
#include "platform/windows/SystemServices.h"
#include "platform/windows/Wide.h"
// behind the system's own header
#include <sddl.h>

namespace qutav::test {
namespace {

namespace fs = std::filesystem;
using ::testing::Optional;

// "Träume あ b.txt"
constexpr char kForeignName[] = "Tr\xC3\xA4ume \xE3\x81\x82 b.txt";

DWORD AttributesOf(const fs::path& path) { return GetFileAttributesW(path.c_str()); }

void SetAttributes(const fs::path& path, DWORD attributes) {
  SetFileAttributesW(path.c_str(), attributes);
}

std::u16string AccessRightsOf(const fs::path& path) {
  DWORD size = 0;
  GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
  std::vector<std::byte> rights(size);
  GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, rights.data(), size, &size);
  wchar_t* text = nullptr;
  ConvertSecurityDescriptorToStringSecurityDescriptorW(rights.data(), SDDL_REVISION_1,
                                                       DACL_SECURITY_INFORMATION, &text, nullptr);
  const std::u16string copy = text == nullptr ? u"" : FromWide(text);
  LocalFree(text);
  return copy;
}

void SetAccessRights(const fs::path& path, const std::u16string& text) {
  void* rights = nullptr;
  ConvertStringSecurityDescriptorToSecurityDescriptorW(Wide(text), SDDL_REVISION_1, &rights,
                                                       nullptr);
  SetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, rights);
  LocalFree(rights);
}

class WindowsFilesTest : public ::testing::Test {
 protected:
  // A path of more than 259 units in folders that exist, without the last part.
  std::u16string DeepFolder() {
    std::u16string path = folder.Path("deep");
    files.CreateFolder(path);
    while (path.size() < 300) {
      path += u"\\" + std::u16string(40, u'd');
      EXPECT_TRUE(files.CreateFolder(path));
    }
    return path;
  }

  // The system's own way of removing folders stops at long paths.
  void RemoveDeepFolder(std::u16string path) {
    while (path.size() >= folder.Path("deep").size()) {
      EXPECT_TRUE(files.RemoveFolder(path));
      path.resize(path.rfind(u'\\'));
    }
  }

  TemporaryFolder folder;
  Files& files = SystemFiles();
};

TEST_F(WindowsFilesTest, SlashesOfBothKindsNameTheSameFile) {
  folder.Put("a", "x");
  std::u16string slashes = folder.Path("a");
  std::replace(slashes.begin(), slashes.end(), u'\\', u'/');

  EXPECT_THAT(files.Read(folder.Path("a")), Optional(std::string("x")));
  EXPECT_THAT(files.Read(slashes), Optional(std::string("x")));
}

TEST_F(WindowsFilesTest, OnlyALongPathGetsThePrefixThatLiftsTheLimit) {
  EXPECT_EQ(NativePath(u"C:/folder/a b.txt"), u"C:/folder/a b.txt");
  EXPECT_EQ(NativePath(u"C:/" + std::u16string(244, u'a')), u"C:/" + std::u16string(244, u'a'));
  EXPECT_EQ(NativePath(u"C:/" + std::u16string(245, u'a')),
            u"\\\\?\\C:\\" + std::u16string(245, u'a'));
  EXPECT_EQ(NativePath(u"\\\\server\\share\\" + std::u16string(250, u'a')),
            u"\\\\?\\UNC\\server\\share\\" + std::u16string(250, u'a'));
  EXPECT_EQ(NativePath(u"\\\\?\\C:\\x"), u"\\\\?\\C:\\x");
}

TEST_F(WindowsFilesTest, ANewFileHasItsBytes) {
  EXPECT_TRUE(files.Write(folder.Path(kForeignName), std::string_view("a\0b\r\n", 5)));

  EXPECT_EQ(folder.BytesOf(kForeignName), std::string("a\0b\r\n", 5));
  EXPECT_EQ(folder.EntryCount(), 1u);
}

TEST_F(WindowsFilesTest, AnOverwrittenFileKeepsItsAttributes) {
  folder.Put("a", "old and longer");
  SetAttributes(folder.Native("a"), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);

  EXPECT_TRUE(files.Write(folder.Path("a"), "new"));

  EXPECT_EQ(folder.BytesOf("a"), "new");
  EXPECT_EQ(AttributesOf(folder.Native("a")) & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM),
            static_cast<DWORD>(FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM));
  EXPECT_EQ(folder.EntryCount(), 1u);
}

TEST_F(WindowsFilesTest, AnOverwrittenFileKeepsItsAccessRights) {
  folder.Put("a", "old");
  folder.Put("other", "");
  // All but the last of the entries that a new file has.
  const std::u16string usual = AccessRightsOf(folder.Native("a"));
  SetAccessRights(folder.Native("a"), usual.substr(0, usual.rfind(u'(')));
  const std::u16string before = AccessRightsOf(folder.Native("a"));
  ASSERT_NE(before, AccessRightsOf(folder.Native("other")));

  EXPECT_TRUE(files.Write(folder.Path("a"), "new"));

  EXPECT_EQ(AccessRightsOf(folder.Native("a")), before);
}

TEST_F(WindowsFilesTest, AFileWithALongNameIsWrittenAndOverwritten) {
  const std::string name(250, 'n');

  EXPECT_TRUE(files.Write(folder.Path(name), "old"));
  EXPECT_TRUE(files.Write(folder.Path(name), "new"));

  EXPECT_THAT(files.Read(folder.Path(name)), Optional(std::string("new")));
  EXPECT_EQ(folder.EntryCount(), 1u);
  EXPECT_TRUE(files.Delete(folder.Path(name)));
}

TEST_F(WindowsFilesTest, FilesBelowALongPathAreWrittenFoundCopiedAndDeleted) {
  const std::u16string deep = DeepFolder();

  EXPECT_TRUE(files.Write(deep + u"\\a", "bytes"));
  EXPECT_TRUE(files.Copy(deep + u"\\a", deep + u"\\b"));
  const auto found = files.Find(deep + u"\\b");
  ASSERT_TRUE(found);
  EXPECT_EQ(found->name, u"b");
  EXPECT_EQ(found->root, deep + u"\\");
  EXPECT_THAT(files.Read(deep + u"\\b"), Optional(std::string("bytes")));

  EXPECT_TRUE(files.Delete(deep + u"\\a"));
  EXPECT_TRUE(files.Delete(deep + u"\\b"));
  RemoveDeepFolder(deep);
}

TEST_F(WindowsFilesTest, AFileInAMissingFolderIsNotWritten) {
  EXPECT_FALSE(files.Write(folder.Path("missing/a"), "x"));

  EXPECT_EQ(folder.EntryCount(), 0u);
}

TEST_F(WindowsFilesTest, AFolderIsNotOverwritten) {
  fs::create_directory(folder.Native("a"));

  EXPECT_FALSE(files.Write(folder.Path("a"), "x"));

  EXPECT_TRUE(fs::is_directory(folder.Native("a")));
  EXPECT_EQ(folder.EntryCount(), 1u);
}

TEST_F(WindowsFilesTest, AWriteThatFailsHalfwayLeavesTheOldContentAndNothingElse) {
  folder.Put("a", "old");

  const DWORD error = ReplaceFileWhole(folder.Path("a"), [](HANDLE file) {
    WriteAll(file, "half of the n");
    SetLastError(ERROR_DISK_FULL);
    return false;
  });

  EXPECT_EQ(error, static_cast<DWORD>(ERROR_DISK_FULL));
  EXPECT_EQ(folder.BytesOf("a"), "old");
  EXPECT_EQ(folder.EntryCount(), 1u);
}

TEST_F(WindowsFilesTest, BytesThatTheSystemRefusesAreAFailure) {
  folder.Put("a", "old");
  const Handle readOnly(CreateFileW(folder.Native("a").c_str(), GENERIC_READ, FILE_SHARE_READ,
                                    nullptr, OPEN_EXISTING, 0, nullptr));

  EXPECT_FALSE(WriteAll(readOnly.Value(), "x"));
  EXPECT_TRUE(WriteAll(readOnly.Value(), ""));
}

TEST_F(WindowsFilesTest, AWriteProtectedFileInAnOpenFolderIsNotReplaced) {
  folder.Put("a", "old");
  SetAttributes(folder.Native("a"), FILE_ATTRIBUTE_READONLY);

  EXPECT_FALSE(files.Write(folder.Path("a"), "new"));

  EXPECT_EQ(folder.BytesOf("a"), "old");
  EXPECT_EQ(folder.EntryCount(), 1u);
  SetAttributes(folder.Native("a"), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(WindowsFilesTest, AReaderSeesTheOldContentOrTheNewAndNeverAPart) {
  const std::string contents[] = {std::string(200'000, 'a'), std::string(100'000, 'b')};
  files.Write(folder.Path("a"), contents[0]);
  std::atomic<bool> ended{false};
  std::atomic<int> wrong{0};
  std::atomic<int> read{0};
  std::thread reader([&] {
    while (!ended) {
      const auto bytes = files.Read(folder.Path("a"));
      if (bytes && *bytes != contents[0] && *bytes != contents[1]) ++wrong;
      if (bytes) ++read;
    }
  });

  // Somebody who reads without a pause can keep a write from succeeding.
  for (int i = 0; i < 10; ++i) files.Write(folder.Path("a"), contents[i % 2]);
  while (read == 0) std::this_thread::yield();
  ended = true;
  reader.join();

  EXPECT_EQ(wrong, 0);
  EXPECT_TRUE(files.Write(folder.Path("a"), contents[1]));
  EXPECT_EQ(folder.BytesOf("a"), contents[1]);
}

TEST_F(WindowsFilesTest, FilesAreReadWhole) {
  const std::string large = std::string(3'000'000, 'x') + std::string("\0\xFF\r\n\x1A", 5);
  folder.Put(kForeignName, large);
  folder.Put("empty", "");

  EXPECT_THAT(files.Read(folder.Path(kForeignName)), Optional(large));
  EXPECT_THAT(files.Read(folder.Path("empty")), Optional(std::string()));
}

TEST_F(WindowsFilesTest, WhatIsNoFileIsNotRead) {
  fs::create_directory(folder.Native("sub"));

  EXPECT_EQ(files.Read(folder.Path("missing")), std::nullopt);
  EXPECT_EQ(files.Read(folder.Path("sub")), std::nullopt);
  EXPECT_EQ(files.Read(u"NUL"), std::nullopt) << "a device";
}

TEST_F(WindowsFilesTest, ASearchTellsNameAndFolder) {
  folder.Put(kForeignName, "x");
  fs::create_directory(folder.Native("sub"));

  const auto file = files.Find(folder.Path(kForeignName));
  ASSERT_TRUE(file);
  EXPECT_EQ(file->name, u"Tr\u00E4ume \u3042 b.txt");
  EXPECT_EQ(file->root, folder.Path(""));

  const auto sub = files.Find(folder.Path("sub"));
  ASSERT_TRUE(sub);
  EXPECT_EQ(sub->name, u"sub");
}

TEST_F(WindowsFilesTest, ASearchTellsTheNameAsItIsWrittenOnTheDisk) {
  folder.Put("Game.qmv", "x");

  const auto found = files.Find(folder.Path("GAME.QMV"));

  ASSERT_TRUE(found);
  EXPECT_EQ(found->name, u"Game.qmv");
}

TEST_F(WindowsFilesTest, ASearchInTheRootEndsInOneSeparator) {
  const auto found = files.Find(u"C:\\windows");

  ASSERT_TRUE(found);
  EXPECT_EQ(found->root, u"C:\\");
}

TEST_F(WindowsFilesTest, ASearchByARelativePathTellsTheAbsoluteFolder) {
  folder.Put("a", "x");
  const fs::path current = fs::current_path();
  fs::current_path(folder.Native());

  const auto found = files.Find(u"a");

  fs::current_path(current);
  ASSERT_TRUE(found);
  EXPECT_EQ(found->root, folder.Path(""));
}

TEST_F(WindowsFilesTest, NothingIsFoundBehindATrailingSeparatorOrNoName) {
  fs::create_directory(folder.Native("sub"));

  EXPECT_FALSE(files.Exists(folder.Path("sub") + u"\\"));
  EXPECT_FALSE(files.Exists(folder.Path("sub") + u"/"));
  EXPECT_FALSE(files.Exists(folder.Path("missing")));
  EXPECT_FALSE(files.Exists(u""));
}

TEST_F(WindowsFilesTest, ACopyReplacesWhatStandsThere) {
  folder.Put(kForeignName, "source");
  folder.Put("b", "old and longer");

  EXPECT_TRUE(files.Copy(folder.Path(kForeignName), folder.Path("b")));

  EXPECT_EQ(folder.BytesOf("b"), "source");
  EXPECT_EQ(folder.BytesOf(kForeignName), "source");
}

TEST_F(WindowsFilesTest, ACopyThatFailsLeavesTheTarget) {
  fs::create_directory(folder.Native("sub"));
  folder.Put("b", "old");

  EXPECT_FALSE(files.Copy(folder.Path("missing"), folder.Path("b")));
  EXPECT_FALSE(files.Copy(folder.Path("sub"), folder.Path("b")));
  EXPECT_FALSE(files.Copy(folder.Path("b"), folder.Path("missing/b")));

  EXPECT_EQ(folder.BytesOf("b"), "old");
  EXPECT_EQ(folder.EntryCount(), 2u);
}

TEST_F(WindowsFilesTest, FilesAreDeletedAndFoldersAreNot) {
  folder.Put(kForeignName, "x");
  fs::create_directory(folder.Native("sub"));

  EXPECT_TRUE(files.Delete(folder.Path(kForeignName)));
  EXPECT_FALSE(files.Delete(folder.Path(kForeignName)));
  EXPECT_FALSE(files.Delete(folder.Path("sub")));

  EXPECT_EQ(folder.EntryCount(), 1u);
}

TEST_F(WindowsFilesTest, OneFolderIsCreatedAtATime) {
  EXPECT_TRUE(files.CreateFolder(folder.Path("\xC3\xA4 b")));
  EXPECT_FALSE(files.CreateFolder(folder.Path("\xC3\xA4 b"))) << "it exists";
  EXPECT_FALSE(files.CreateFolder(folder.Path("missing/sub")));

  EXPECT_TRUE(fs::is_directory(folder.Native("\xC3\xA4 b")));
}

TEST_F(WindowsFilesTest, OnlyEmptyFoldersAreRemoved) {
  fs::create_directory(folder.Native("sub"));
  folder.Put("sub/a", "x");

  EXPECT_FALSE(files.RemoveFolder(folder.Path("sub")));
  EXPECT_FALSE(files.RemoveFolder(folder.Path("sub/a")));
  files.Delete(folder.Path("sub/a"));
  EXPECT_TRUE(files.RemoveFolder(folder.Path("sub")));
  EXPECT_FALSE(files.RemoveFolder(folder.Path("sub")));
}

TEST_F(WindowsFilesTest, ABareDriveIsItsRootWhateverFolderIsCurrent) {
  EXPECT_TRUE(files.Exists(u"C:"));
  EXPECT_FALSE(files.Exists(u"Q:"));
}

TEST_F(WindowsFilesTest, APathIsRootedByItsColon) {
  EXPECT_TRUE(files.IsRooted(u"C:\\docs"));
  EXPECT_TRUE(files.IsRooted(u"C:/docs"));
  EXPECT_FALSE(files.IsRooted(u"\\\\server\\share\\docs"));
  EXPECT_FALSE(files.IsRooted(u"\\docs"));
  EXPECT_FALSE(files.IsRooted(u"docs\\a"));
  EXPECT_FALSE(files.IsRooted(u""));
}

TEST_F(WindowsFilesTest, LinesEndInACarriageReturnAndALineFeed) {
  EXPECT_EQ(files.LineEnd(), "\r\n");
}

}  // namespace
}  // namespace qutav::test
