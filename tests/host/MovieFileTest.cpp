#include <gtest/gtest.h>

#include <chrono>

#include "TestFolder.h"
#include "host/MovieFile.h"

namespace qutav::host {
namespace {

namespace fs = std::filesystem;

TEST(MovieFileTest, HoldsTheLevelAndTheStage) {
  const TestFolder folder;
  Document document = Document::Load(folder.Write("a.qud.json", DocumentText("")));
  document.SetDebugFlag(true);
  EXPECT_EQ(MovieBytes(document, 26),
            "QMV\x1A{\"width\":800,\"height\":480,\"scriptVersion\":\"3\",\"debug\":true}");
}

TEST(MovieFileTest, LevelAbove127IsOneByte) {
  const TestFolder folder;
  const Document document = Document::Load(folder.Write("a.qud.json", DocumentText("")));
  EXPECT_EQ(MovieBytes(document, 200).substr(0, 5), "QMV\xC8{");
}

TEST(MovieFileTest, MissingOrOlderMovieIsOutdated) {
  const TestFolder folder;
  const Document document = Document::Load(folder.Write("a.qud.json", DocumentText("")));
  EXPECT_TRUE(MovieIsOutdated(document));
  const fs::path movie = folder.Write("a.qmv", "QMV");
  fs::last_write_time(movie, fs::last_write_time(document.Path()) - std::chrono::seconds(1));
  EXPECT_TRUE(MovieIsOutdated(document));
  fs::last_write_time(movie, fs::last_write_time(document.Path()));
  EXPECT_FALSE(MovieIsOutdated(document));
}

TEST(MovieFileTest, MissingFolderIsAnError) {
  const TestFolder folder;
  const Document document = Document::Load(folder.Write("a.qud.json", DocumentText("")));
  EXPECT_TRUE(ExportMovie(document, 26, folder.Path() / "gone" / "a.qmv"));
}

}  // namespace
}  // namespace qutav::host
