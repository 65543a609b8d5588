#include <gtest/gtest.h>
#include <signal.h>

#include <fstream>
#include <string>

#include "TestFolder.h"
#include "host/TemporaryFile.h"

namespace qutav::host {
namespace {

namespace fs = std::filesystem;

TEST(TemporaryFileTest, OnlyItsOwnerReadsItAndItGoes) {
  fs::path path;
  {
    const TemporaryFile file("secret reference");
    path = file.Path();
    EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(fs::file_size(path), 16U);
  }
  EXPECT_FALSE(fs::exists(path));
}

TEST(TemporaryFileDeathTest, SignalTakesTheFilesAwayAndEndsTheProcess) {
  const TestFolder folder;
  const fs::path note = folder.Path() / "names";
  EXPECT_EXIT(
      {
        const TemporaryFile first("1");
        const TemporaryFile second("2");
        std::ofstream(note) << first.Path().string() << "\n" << second.Path().string() << "\n";
        raise(SIGTERM);
      },
      ::testing::KilledBySignal(SIGTERM), "");
  std::ifstream names(note);
  std::string name;
  int count = 0;
  for (; std::getline(names, name); ++count) EXPECT_FALSE(fs::exists(name)) << name;
  EXPECT_EQ(count, 2);
}

}  // namespace
}  // namespace qutav::host
