#include "ServicesTest.h"
#include "platform/Text.h"
#include "win/DocumentPaths.h"
#include "win/ExtensionCache.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// Keeps the paths that are to go as they were given.
class DeletionRecord : public MemoryFiles {
 public:
  bool Delete(const std::u16string& path) override {
    paths.push_back(path);
    return true;
  }
  bool RemoveFolder(const std::u16string& path) override {
    paths.push_back(path);
    return true;
  }
  std::vector<std::u16string> paths;
};

class ExtensionCacheTest : public ServicesTest {
 protected:
  ExtensionCacheTest() {
    DocumentPaths.DocumentPath = u"C:/docs/Game.qud";
    DocumentPaths.MovieBaseName = u"Game";
  }

  bool Scan(const std::u16string& libraryPath) {
    host.externalLibraryPath = libraryPath;
    return ScanExternalLibraryPath();
  }

  void Put(const std::vector<std::u16string>& paths) {
    for (const std::u16string& path : paths) files.Put(path, ToUtf8(path));
  }

  // Two packages, found.
  void ScanTwo() {
    Put({u"C:/docs/a.zux", u"C:/docs/b.zux"});
    files.PutFolder(u"C:/temp");
    ASSERT_TRUE(Scan(u"a.zux;b.zux"));
  }
};

TEST_F(ExtensionCacheTest, OnlyPackagesAreKeptInTheirOrderAndListedInLowerCaseExtension) {
  Put({u"C:\\x\\a.lib", u"C:\\x\\b.ZUX", u"C:\\x\\c.zux"});

  EXPECT_TRUE(Scan(u"C:\\x\\a.lib;C:\\x\\b.ZUX;;C:\\x\\c.zux"));

  EXPECT_THAT(ExtensionFilePaths, ElementsAre(u"C:\\x\\b.ZUX", u"C:\\x\\c.zux"));
  EXPECT_THAT(ExtensionFileNames, ElementsAre(u"b.zux", u"c.zux"));
}

TEST_F(ExtensionCacheTest, ADocumentWithoutALibraryPathHasAnEmptyList) {
  EXPECT_FALSE(Scan(u""));

  EXPECT_THAT(ExtensionFilePaths, IsEmpty());
  EXPECT_THAT(ExtensionFileNames, IsEmpty());
  EXPECT_EQ(ExtensionCacheFolder, u"");
  EXPECT_FALSE(SettingsMap.contains(u"moresh.ysk.zux.folder"));
  EXPECT_THAT(host.scripts, ElementsAre(u"qu.getDocumentDOM().externalLibraryPath;"));
}

TEST_F(ExtensionCacheTest, AScanForgetsThePackagesOfTheOneBefore) {
  ScanTwo();

  EXPECT_FALSE(Scan(u""));

  EXPECT_THAT(ExtensionFilePaths, IsEmpty());
  EXPECT_THAT(ExtensionFileNames, IsEmpty());
  EXPECT_EQ(ExtensionCacheFolder, u"");
}

TEST_F(ExtensionCacheTest, APackageInTheFolderOfTheDocumentIsFoundByItsBareName) {
  Put({u"C:/docs/a.zux"});

  EXPECT_TRUE(Scan(u"a.zux"));

  EXPECT_THAT(ExtensionFilePaths, ElementsAre(u"C:\\docs\\a.zux"));
  EXPECT_THAT(ExtensionFileNames, ElementsAre(u"a.zux"));
}

TEST_F(ExtensionCacheTest, ARelativePathIsTakenFromTheFolderOfTheDocument) {
  Put({u"C:/docs/lib/a.zux"});

  EXPECT_TRUE(Scan(u"lib/a.zux;"));

  EXPECT_THAT(ExtensionFilePaths, ElementsAre(u"C:\\docs\\lib\\a.zux"));
}

TEST_F(ExtensionCacheTest, AnExistingBareNameStandsAsItIsBeforeOneBesideTheDocument) {
  Put({u"C:/current/a.zux", u"C:/docs/a.zux"});

  EXPECT_TRUE(Scan(u"a.zux"));

  EXPECT_THAT(ExtensionFilePaths, ElementsAre(u"a.zux"));
  EXPECT_THAT(ExtensionFileNames, ElementsAre(u"a.zux.zux"));
}

TEST_F(ExtensionCacheTest, AnAbsolutePathWithForwardSlashesIsKeptAndListedWhole) {
  Put({u"C:/x/a.zux"});

  EXPECT_TRUE(Scan(u"C:/x/a.zux"));

  EXPECT_THAT(ExtensionFilePaths, ElementsAre(u"C:/x/a.zux"));
  EXPECT_THAT(ExtensionFileNames, ElementsAre(u"C:/x/a.zux.zux"));
}

TEST_F(ExtensionCacheTest, APathThatDoesNotExistIsDroppedInSilence) {
  Put({u"C:/docs/a.zux"});

  EXPECT_TRUE(Scan(u"C:\\gone\\b.zux;gone.zux;a.zux"));

  EXPECT_THAT(ExtensionFilePaths, ElementsAre(u"C:\\docs\\a.zux"));
  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(ExtensionCacheTest, ANameThatIsNotLongerThanTheExtensionCounts) {
  Put({u"C:/docs/.zux", u"C:/docs/zux"});

  EXPECT_TRUE(Scan(u"zux;.zux"));

  EXPECT_THAT(ExtensionFilePaths, ElementsAre(u"C:\\docs\\.zux"));
}

TEST_F(ExtensionCacheTest, TheFolderIsNamedAfterTheMovieAndNotYetCreated) {
  Put({u"C:/docs/a.zux"});

  EXPECT_TRUE(Scan(u"a.zux"));

  EXPECT_EQ(ExtensionCacheFolder, u"C:\\temp\\Game_ZUX_Cache\\");
  EXPECT_EQ(SettingsGet(keys::kExtensionFolder), u"C:\\temp\\Game_ZUX_Cache\\");
  EXPECT_THAT(files.changes, IsEmpty());
}

TEST_F(ExtensionCacheTest, WithoutAnEvaluatorThereAreNoPackages) {
  HostEnvironment.words[55] = 0;

  EXPECT_FALSE(Scan(u"a.zux"));

  EXPECT_THAT(host.scripts, IsEmpty());
}

TEST_F(ExtensionCacheTest, AnIdIsTakenFromTheDocumentAndNotLeftInTheMap) {
  host.data[u"zux.id.a.zux"] = u"com.sample.a";
  std::u16string id;

  EXPECT_TRUE(ExtensionIdFor(u"a.zux", id));

  EXPECT_EQ(id, u"com.sample.a");
  EXPECT_FALSE(SettingsMap.contains(u"zux.id.a.zux"));
}

TEST_F(ExtensionCacheTest, APackageWithoutAnIdEmptiesTheTarget) {
  std::u16string id = u"of the package before";

  EXPECT_FALSE(ExtensionIdFor(u"a.zux", id));

  EXPECT_EQ(id, u"");
  EXPECT_FALSE(SettingsMap.contains(u"zux.id.a.zux"));
}

TEST_F(ExtensionCacheTest, TheUnzippedFolderComesWithForwardSlashes) {
  host.data[u"zux.tmp.unzipped.folder"] = u"C:\\temp\\unzipped\\Game";
  std::u16string folder;

  EXPECT_TRUE(UnzippedExtensionFolder(folder));

  EXPECT_EQ(folder, u"C:/temp/unzipped/Game");
  EXPECT_FALSE(SettingsMap.contains(u"zux.tmp.unzipped.folder"));
}

TEST_F(ExtensionCacheTest, ADocumentWithoutAnUnzippedFolderEmptiesTheTarget) {
  std::u16string folder = u"old";

  EXPECT_FALSE(UnzippedExtensionFolder(folder));

  EXPECT_EQ(folder, u"");
}

TEST_F(ExtensionCacheTest, CopyingCreatesTheFolderAndCopiesEveryPackage) {
  ScanTwo();

  EXPECT_EQ(CopyExtensionsToPackagingFolder(), 1);

  EXPECT_THAT(files.changes,
              ElementsAre(u"create C:/temp/Game_ZUX_Cache", u"write C:/temp/Game_ZUX_Cache/a.zux",
                          u"write C:/temp/Game_ZUX_Cache/b.zux"));
  EXPECT_EQ(files.BytesOf(u"C:/temp/Game_ZUX_Cache/b.zux"), "C:/docs/b.zux");
}

TEST_F(ExtensionCacheTest, CopyingTriesToCreateAnExistingFolderToo) {
  ScanTwo();
  files.PutFolder(u"C:/temp/Game_ZUX_Cache");

  EXPECT_EQ(CopyExtensionsToPackagingFolder(), 1);

  EXPECT_EQ(files.changes.front(), u"create C:/temp/Game_ZUX_Cache");
  EXPECT_TRUE(files.HasFile(u"C:/temp/Game_ZUX_Cache/b.zux"));
}

TEST_F(ExtensionCacheTest, CopyingOverwritesACopyOfARunBefore) {
  ScanTwo();
  files.Put(u"C:/temp/Game_ZUX_Cache/a.zux", "older");

  CopyExtensionsToPackagingFolder();

  EXPECT_EQ(files.BytesOf(u"C:/temp/Game_ZUX_Cache/a.zux"), "C:/docs/a.zux");
}

TEST_F(ExtensionCacheTest, OfTwoPackagesWithTheSameBaseNameTheLaterCopyWins) {
  files.PutFolder(u"C:/temp");
  Put({u"C:/docs/first/a.zux", u"C:/docs/second/a.zux"});
  ASSERT_TRUE(Scan(u"first/a.zux;second/a.zux"));

  CopyExtensionsToPackagingFolder();

  EXPECT_THAT(ExtensionFileNames, ElementsAre(u"a.zux", u"a.zux"));
  EXPECT_EQ(files.BytesOf(u"C:/temp/Game_ZUX_Cache/a.zux"), "C:/docs/second/a.zux");
}

TEST_F(ExtensionCacheTest, AFailedCopyIsNotReportedAndTheOthersFollow) {
  ScanTwo();
  files.readOnly.insert(u"C:/temp/Game_ZUX_Cache/a.zux");

  EXPECT_EQ(CopyExtensionsToPackagingFolder(), 1);

  EXPECT_TRUE(files.HasFile(u"C:/temp/Game_ZUX_Cache/b.zux"));
  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(ExtensionCacheTest, WithoutPackagesThereIsNothingToCopyOrToRemove) {
  Scan(u"");

  EXPECT_EQ(CopyExtensionsToPackagingFolder(), 0);
  RemoveExtensionsFromPackagingFolder();

  EXPECT_THAT(files.changes, IsEmpty());
}

TEST_F(ExtensionCacheTest, RemovingDeletesEveryCopyAndThenTheFolder) {
  ScanTwo();
  CopyExtensionsToPackagingFolder();
  files.changes.clear();

  RemoveExtensionsFromPackagingFolder();

  EXPECT_THAT(files.changes, ElementsAre(u"delete C:/temp/Game_ZUX_Cache/a.zux",
                                         u"delete C:/temp/Game_ZUX_Cache/b.zux",
                                         u"remove C:/temp/Game_ZUX_Cache"));
  EXPECT_FALSE(files.Exists(u"C:/temp/Game_ZUX_Cache"));
}

TEST_F(ExtensionCacheTest, RemovingNamesEachCopyBehindTwoBackslashes) {
  DeletionRecord record;
  TheServices().files = &record;
  ExtensionCacheFolder = u"C:\\temp\\Game_ZUX_Cache\\";
  ExtensionFileNames = {u"a.zux", u"b.zux"};

  RemoveExtensionsFromPackagingFolder();

  EXPECT_THAT(record.paths,
              ElementsAre(u"C:\\temp\\Game_ZUX_Cache\\\\a.zux",
                          u"C:\\temp\\Game_ZUX_Cache\\\\b.zux", u"C:\\temp\\Game_ZUX_Cache\\"));
}

TEST_F(ExtensionCacheTest, RemovingLeavesWhatItDidNotCopy) {
  ScanTwo();
  CopyExtensionsToPackagingFolder();
  files.Put(u"C:/temp/Game_ZUX_Cache/other.txt");

  RemoveExtensionsFromPackagingFolder();

  EXPECT_TRUE(files.HasFile(u"C:/temp/Game_ZUX_Cache/other.txt"));
  EXPECT_TRUE(files.HasFile(u"C:/docs/a.zux"));
}

TEST_F(ExtensionCacheTest, TheListIsGivenAsCopies) {
  ScanTwo();
  std::u16string folder;
  std::vector<std::u16string> names;

  EXPECT_TRUE(GetExtensionList(folder, names));

  EXPECT_EQ(folder, u"C:\\temp\\Game_ZUX_Cache\\");
  EXPECT_THAT(names, ElementsAre(u"a.zux", u"b.zux"));
}

TEST_F(ExtensionCacheTest, TheListLeavesItsTargetsAloneWithoutPackagesOrFolder) {
  std::u16string folder = u"kept";
  std::vector<std::u16string> names = {u"kept"};

  EXPECT_FALSE(GetExtensionList(folder, names));
  ExtensionFileNames = {u"a.zux"};
  EXPECT_FALSE(GetExtensionList(folder, names));
  ExtensionFileNames.clear();
  ExtensionCacheFolder = u"C:\\temp\\Game_ZUX_Cache\\";
  EXPECT_FALSE(GetExtensionList(folder, names));

  EXPECT_EQ(folder, u"kept");
  EXPECT_THAT(names, ElementsAre(u"kept"));
}

}  // namespace
}  // namespace qutav::test
