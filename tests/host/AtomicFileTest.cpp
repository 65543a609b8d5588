#include <gtest/gtest.h>

#include <iterator>

#include "TestFolder.h"
#include "host/AtomicFile.h"

namespace qutav::host {
namespace {

namespace fs = std::filesystem;

TEST(AtomicFileTest, ReplacesTheContentAndLeavesNothingElse) {
  const TestFolder folder;
  const fs::path file = folder.Write("a.json", "a much longer old content");
  EXPECT_FALSE(WriteFileAtomically(file, "new"));
  EXPECT_EQ(folder.Read("a.json"), "new");
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), fs::directory_iterator()), 1);
}

TEST(AtomicFileTest, KeepsPermissions) {
  const TestFolder folder;
  const fs::path file = folder.Write("a.json", "old");
  fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_FALSE(WriteFileAtomically(file, "new"));
  EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST(AtomicFileTest, WritesThroughALink) {
  const TestFolder folder;
  folder.Write("real/a.json", "old");
  fs::create_symlink(folder.Path() / "real" / "a.json", folder.Path() / "link.json");
  EXPECT_FALSE(WriteFileAtomically(folder.Path() / "link.json", "new"));
  EXPECT_TRUE(fs::is_symlink(folder.Path() / "link.json"));
  EXPECT_EQ(folder.Read("real/a.json"), "new");
}

TEST(AtomicFileTest, MissingFolderIsAnErrorWithoutTrace) {
  const TestFolder folder;
  EXPECT_EQ(WriteFileAtomically(folder.Path() / "gone" / "a.json", "new"),
            std::errc::no_such_file_or_directory);
  EXPECT_TRUE(fs::is_empty(folder.Path()));
}

TEST(AtomicFileTest, FolderInTheWayStaysAndNoPartIsLeft) {
  const TestFolder folder;
  folder.Write("a.json/inner.txt", "inner");
  EXPECT_TRUE(WriteFileAtomically(folder.Path() / "a.json", "new"));
  EXPECT_EQ(folder.Read("a.json/inner.txt"), "inner");
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.Path()), fs::directory_iterator()), 1);
}

}  // namespace
}  // namespace qutav::host
