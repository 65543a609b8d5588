#include <gtest/gtest.h>

#include <chrono>

#include "TestFolder.h"
#include "host/PackageSnapshot.h"

namespace qutav::host {
namespace {

namespace fs = std::filesystem;
using Paths = std::vector<fs::path>;

const std::string kArchive = std::string("PK\x05\x06", 4) + std::string(18, '\0');

TEST(PackageSnapshotTest, FoldersAreTheMoviesAndTheDestinations) {
  const TestFolder folder;
  const Document document = Document::Load(
      folder.Write("a.qud.json", DocumentText(R"("com.tav.moresh.tavdest": "out/Game.apk",
                                    "com.tav.moresh.ipadest": "/elsewhere/Game.ipa")")));
  EXPECT_EQ(PackageFolders(document),
            (std::set<fs::path>{folder.Path(), folder.Path() / "out", "/elsewhere"}));
}

TEST(PackageSnapshotTest, HoldsPackagesOfEveryKindAndNothingElse) {
  const TestFolder folder;
  for (const char* name : {"a.apk", "b.IPA", "c.exe", "d.tav", "e.txt", "inner/f.apk"}) {
    folder.Write(name, "x");
  }
  EXPECT_EQ(TakeSnapshot({folder.Path(), folder.Path() / "gone"}).size(), 4U);
}

TEST(PackageSnapshotTest, NewAndChangedPackagesWereMade) {
  const TestFolder folder;
  folder.Write("same.apk", kArchive);
  const fs::path changed = folder.Write("changed.apk", kArchive);
  const PackageSnapshot before = TakeSnapshot({folder.Path()});
  fs::last_write_time(changed, fs::last_write_time(changed) + std::chrono::nanoseconds(1000));
  const fs::path fresh = folder.Write("fresh.ipa", kArchive);
  EXPECT_EQ(PackagesMade(before, TakeSnapshot({folder.Path()})), (Paths{changed, fresh}));
}

TEST(PackageSnapshotTest, BrokenArchiveWasNotMade) {
  const TestFolder folder;
  folder.Write("broken.apk", "PK\x03\x04 only the beginning");
  folder.Write("empty.exe", "");
  EXPECT_TRUE(PackagesMade({}, TakeSnapshot({folder.Path()})).empty());
}

TEST(PackageSnapshotTest, ArchiveWithACommentAndALongBodyIsWhole) {
  const TestFolder folder;
  const fs::path package =
      folder.Write("a.apk", std::string(200000, 'x') + kArchive + std::string(60000, 'c'));
  EXPECT_EQ(PackagesMade({}, TakeSnapshot({folder.Path()})), Paths{package});
}

}  // namespace
}  // namespace qutav::host
