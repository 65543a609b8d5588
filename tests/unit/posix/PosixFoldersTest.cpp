#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "EnvironmentVariable.h"
#include "platform/Folders.h"
#include "platform/posix/Path.h"
#include "platform/posix/SystemServices.h"

namespace qutav::test {
namespace {

TEST(PosixFoldersTest, TheHostIsTheProgramThatRuns) {
  EXPECT_EQ(SystemFolders().HostExecutable(),
            WindowsForm(std::filesystem::canonical("/proc/self/exe").string()));
}

TEST(PosixFoldersTest, TheTemporaryFolderEndsInOneBackslash) {
  const EnvironmentVariable none("TMPDIR", std::nullopt);
  EXPECT_EQ(SystemFolders().Temporary(), u"\\tmp\\");

  const EnvironmentVariable bare("TMPDIR", "/var/Tr\xC3\xA4ume");
  EXPECT_EQ(SystemFolders().Temporary(), u"\\var\\Tr\u00E4ume\\");

  const EnvironmentVariable ended("TMPDIR", "/var/tmp/");
  EXPECT_EQ(SystemFolders().Temporary(), u"\\var\\tmp\\");
}

TEST(PosixFoldersTest, TheCommonFilesFolderIsAVariableOrOpt) {
  const EnvironmentVariable none("CommonProgramFiles", std::nullopt);
  EXPECT_EQ(SystemFolders().CommonProgramFiles(), u"\\opt");

  const EnvironmentVariable empty("CommonProgramFiles", "");
  EXPECT_EQ(SystemFolders().CommonProgramFiles(), u"\\opt");

  const EnvironmentVariable own("CommonProgramFiles", "/srv/common files");
  EXPECT_EQ(SystemFolders().CommonProgramFiles(), u"\\srv\\common files");
}

TEST(PosixFoldersTest, TheSystemHasNoMajorVersionOfThatKind) {
  EXPECT_EQ(SystemFolders().MajorVersion(), 0u);
}

}  // namespace
}  // namespace qutav::test
