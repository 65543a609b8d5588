#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <thread>

#include "TemporaryFolder.h"
#include "platform/Files.h"
#include "platform/posix/FileReplacement.h"
#include "platform/posix/Path.h"
#include "platform/posix/SystemServices.h"

namespace qutav::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ExitedWithCode;
using ::testing::Optional;

// "Träume あ b.txt"
constexpr char kForeignName[] = "Tr\xC3\xA4ume \xE3\x81\x82 b.txt";

mode_t ModeOf(const fs::path& path) {
  struct stat status {};
  stat(path.c_str(), &status);
  return status.st_mode & 07777;
}

class PosixFilesTest : public ::testing::Test {
 protected:
  TemporaryFolder folder;
  Files& files = SystemFiles();
};

TEST_F(PosixFilesTest, SlashesOfBothKindsNameTheSameFile) {
  EXPECT_EQ(NativePath(u"\\home\\u\\Game.qmv"), "/home/u/Game.qmv");
  EXPECT_EQ(NativePath(u"/home\\u/Game.qmv"), "/home/u/Game.qmv");
  EXPECT_EQ(WindowsForm("/home/u/Tr\xC3\xA4ume"), u"\\home\\u\\Tr\u00E4ume");
}

TEST_F(PosixFilesTest, ANewFileHasItsBytesAndTheUsualMode) {
  const mode_t mask = umask(027);

  EXPECT_TRUE(files.Write(folder.Path(kForeignName), std::string_view("a\0b\r\n", 5)));

  umask(mask);
  EXPECT_EQ(folder.BytesOf(kForeignName), std::string("a\0b\r\n", 5));
  EXPECT_EQ(ModeOf(folder.Native(kForeignName)), 0640u);
}

TEST_F(PosixFilesTest, AnOverwrittenFileKeepsItsPermissions) {
  folder.Put("a", "old and longer");
  fs::permissions(folder.Native("a"), fs::perms(0751));

  EXPECT_TRUE(files.Write(folder.Path("a"), "new"));

  EXPECT_EQ(folder.BytesOf("a"), "new");
  EXPECT_EQ(ModeOf(folder.Native("a")), 0751u);
  EXPECT_EQ(folder.EntryCount(), 1u);
}

TEST_F(PosixFilesTest, AnOverwrittenFileKeepsItsOwnerAndGroup) {
  folder.Put("a", "old");
  const bool mayGiveAway = geteuid() == 0;
  const uid_t owner = mayGiveAway ? 65534 : geteuid();
  const gid_t group = mayGiveAway ? 65534 : getegid();
  ASSERT_EQ(chown(folder.Native("a").c_str(), owner, group), 0);

  EXPECT_TRUE(files.Write(folder.Path("a"), "new"));

  struct stat status {};
  ASSERT_EQ(stat(folder.Native("a").c_str(), &status), 0);
  EXPECT_EQ(status.st_uid, owner);
  EXPECT_EQ(status.st_gid, group);
}

TEST_F(PosixFilesTest, AFileWithALongNameIsWrittenAndOverwritten) {
  const std::string name(250, 'n');

  EXPECT_TRUE(files.Write(folder.Path(name), "old"));
  EXPECT_TRUE(files.Write(folder.Path(name), "new"));

  EXPECT_EQ(folder.BytesOf(name), "new");
  EXPECT_EQ(folder.EntryCount(), 1u);
}

TEST_F(PosixFilesTest, ALinkIsFollowedAndStaysALink) {
  fs::create_directory(folder.Native("real"));
  folder.Put("real/a", "old");
  fs::create_symlink("real/a", folder.Native("link"));

  EXPECT_TRUE(files.Write(folder.Path("link"), "new"));

  EXPECT_TRUE(fs::is_symlink(folder.Native("link")));
  EXPECT_EQ(folder.BytesOf("real/a"), "new");
}

TEST_F(PosixFilesTest, AFileInAMissingFolderIsNotWritten) {
  EXPECT_FALSE(files.Write(folder.Path("missing/a"), "x"));

  EXPECT_EQ(folder.EntryCount(), 0u);
}

TEST_F(PosixFilesTest, AFolderIsNotOverwritten) {
  fs::create_directory(folder.Native("a"));

  EXPECT_FALSE(files.Write(folder.Path("a"), "x"));

  EXPECT_TRUE(fs::is_directory(folder.Native("a")));
  EXPECT_EQ(folder.EntryCount(), 1u);
}

TEST_F(PosixFilesTest, AWriteThatFailsHalfwayLeavesTheOldContentAndNothingElse) {
  folder.Put("a", "old");

  const bool done = ReplaceFile(folder.Native("a"), 0666, [](int descriptor) {
    WriteAll(descriptor, "half of the n");
    return false;
  });

  EXPECT_FALSE(done);
  EXPECT_EQ(folder.BytesOf("a"), "old");
  EXPECT_EQ(folder.EntryCount(), 1u);
}

TEST_F(PosixFilesTest, BytesThatTheSystemRefusesAreAFailure) {
  folder.Put("a", "old");
  const int readOnly = open(folder.Native("a").c_str(), O_RDONLY | O_CLOEXEC);

  EXPECT_FALSE(WriteAll(readOnly, "x"));
  EXPECT_TRUE(WriteAll(readOnly, ""));

  close(readOnly);
}

// Tries to write as a user who is not the owner of everything; the exit code tells the result.
[[noreturn]] void WriteAsNobody(const std::u16string& path) {
  constexpr uid_t kNobody = 65534;
  if (geteuid() == 0 && setuid(kNobody) != 0) _exit(3);
  _exit(SystemFiles().Write(path, "new") ? 1 : 0);
}

TEST_F(PosixFilesTest, AWriteProtectedFileInAnOpenFolderIsNotReplaced) {
  fs::permissions(folder.Native(), fs::perms::all);
  folder.Put("a", "old");
  fs::permissions(folder.Native("a"), fs::perms(0444));

  EXPECT_EXIT(WriteAsNobody(folder.Path("a")), ExitedWithCode(0), "");

  EXPECT_EQ(folder.BytesOf("a"), "old");
  EXPECT_EQ(folder.EntryCount(), 1u);
}

TEST_F(PosixFilesTest, AReadOnlyFolderKeepsTheOldFile) {
  folder.Put("a", "old");
  fs::permissions(folder.Native("a"), fs::perms(0666));
  fs::permissions(folder.Native(), fs::perms(0555));

  EXPECT_EXIT(WriteAsNobody(folder.Path("a")), ExitedWithCode(0), "");

  EXPECT_EQ(folder.BytesOf("a"), "old");
  fs::permissions(folder.Native(), fs::perms(0755));
}

TEST_F(PosixFilesTest, AReaderSeesTheOldContentOrTheNewAndNeverAPart) {
  const std::string contents[] = {std::string(200'000, 'a'), std::string(100'000, 'b')};
  files.Write(folder.Path("a"), contents[0]);
  std::atomic<bool> ended{false};
  std::atomic<int> wrong{0};
  std::thread reader([&] {
    while (!ended) {
      const auto bytes = files.Read(folder.Path("a"));
      if (!bytes || (*bytes != contents[0] && *bytes != contents[1])) ++wrong;
    }
  });

  for (int i = 0; i < 40; ++i) files.Write(folder.Path("a"), contents[i % 2]);
  ended = true;
  reader.join();

  EXPECT_EQ(wrong, 0);
}

TEST_F(PosixFilesTest, FilesAreReadWhole) {
  const std::string large = std::string(3'000'000, 'x') + std::string("\0\xFF\r\n", 4);
  folder.Put(kForeignName, large);
  folder.Put("empty", "");

  EXPECT_THAT(files.Read(folder.Path(kForeignName)), Optional(large));
  EXPECT_THAT(files.Read(folder.Path("empty")), Optional(std::string()));
}

TEST_F(PosixFilesTest, WhatIsNoFileIsNotRead) {
  fs::create_directory(folder.Native("sub"));

  EXPECT_EQ(files.Read(folder.Path("missing")), std::nullopt);
  EXPECT_EQ(files.Read(folder.Path("sub")), std::nullopt);
  EXPECT_EQ(files.Read(u"/dev/null"), std::nullopt) << "a device";
}

TEST_F(PosixFilesTest, ASearchTellsNameAndFolder) {
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

TEST_F(PosixFilesTest, ASearchInTheRootEndsInOneSeparator) {
  const auto found = files.Find(u"\\tmp");

  ASSERT_TRUE(found);
  EXPECT_EQ(found->name, u"tmp");
  EXPECT_EQ(found->root, u"\\");
}

TEST_F(PosixFilesTest, ASearchByARelativePathTellsTheAbsoluteFolder) {
  folder.Put("a", "x");
  const fs::path current = fs::current_path();
  fs::current_path(folder.Native());

  const auto found = files.Find(u"a");

  fs::current_path(current);
  ASSERT_TRUE(found);
  EXPECT_EQ(found->root, folder.Path(""));
}

TEST_F(PosixFilesTest, NothingIsFoundBehindATrailingSeparatorOrNoName) {
  fs::create_directory(folder.Native("sub"));

  EXPECT_FALSE(files.Exists(folder.Path("sub") + u"\\"));
  EXPECT_FALSE(files.Exists(folder.Path("sub") + u"/"));
  EXPECT_FALSE(files.Exists(folder.Path("missing")));
  EXPECT_FALSE(files.Exists(u""));
}

TEST_F(PosixFilesTest, ACopyReplacesWhatStandsThere) {
  folder.Put(kForeignName, "source");
  folder.Put("b", "old and longer");

  EXPECT_TRUE(files.Copy(folder.Path(kForeignName), folder.Path("b")));

  EXPECT_EQ(folder.BytesOf("b"), "source");
  EXPECT_EQ(folder.BytesOf(kForeignName), "source");
}

TEST_F(PosixFilesTest, ACopyThatFailsLeavesTheTarget) {
  fs::create_directory(folder.Native("sub"));
  folder.Put("b", "old");

  EXPECT_FALSE(files.Copy(folder.Path("missing"), folder.Path("b")));
  EXPECT_FALSE(files.Copy(folder.Path("sub"), folder.Path("b")));
  EXPECT_FALSE(files.Copy(folder.Path("b"), folder.Path("missing/b")));

  EXPECT_EQ(folder.BytesOf("b"), "old");
  EXPECT_EQ(folder.EntryCount(), 2u);
}

TEST_F(PosixFilesTest, FilesAreDeletedAndFoldersAreNot) {
  folder.Put(kForeignName, "x");
  fs::create_directory(folder.Native("sub"));

  EXPECT_TRUE(files.Delete(folder.Path(kForeignName)));
  EXPECT_FALSE(files.Delete(folder.Path(kForeignName)));
  EXPECT_FALSE(files.Delete(folder.Path("sub")));

  EXPECT_EQ(folder.EntryCount(), 1u);
}

TEST_F(PosixFilesTest, OneFolderIsCreatedAtATime) {
  EXPECT_TRUE(files.CreateFolder(folder.Path("\xC3\xA4 b")));
  EXPECT_FALSE(files.CreateFolder(folder.Path("\xC3\xA4 b"))) << "it exists";
  EXPECT_FALSE(files.CreateFolder(folder.Path("missing/sub")));

  EXPECT_TRUE(fs::is_directory(folder.Native("\xC3\xA4 b")));
}

TEST_F(PosixFilesTest, OnlyEmptyFoldersAreRemoved) {
  fs::create_directory(folder.Native("sub"));
  folder.Put("sub/a", "x");

  EXPECT_FALSE(files.RemoveFolder(folder.Path("sub")));
  EXPECT_FALSE(files.RemoveFolder(folder.Path("sub/a")));
  files.Delete(folder.Path("sub/a"));
  EXPECT_TRUE(files.RemoveFolder(folder.Path("sub")));
  EXPECT_FALSE(files.RemoveFolder(folder.Path("sub")));
}

TEST_F(PosixFilesTest, APathIsRootedByASlashOrADrive) {
  EXPECT_TRUE(files.IsRooted(u"\\docs"));
  EXPECT_TRUE(files.IsRooted(u"/docs"));
  EXPECT_TRUE(files.IsRooted(u"C:\\docs"));
  EXPECT_FALSE(files.IsRooted(u"docs\\a"));
  EXPECT_FALSE(files.IsRooted(u""));
}

TEST_F(PosixFilesTest, LinesEndInALineFeed) { EXPECT_EQ(files.LineEnd(), "\n"); }

}  // namespace
}  // namespace qutav::test
