#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "EnvironmentVariable.h"
#include "platform/Folders.h"
#include "platform/Text.h"
#include "platform/windows/System.h"
#include "platform/windows/SystemServices.h"

namespace qutav::test {
namespace {

using ::testing::EndsWith;
using ::testing::StartsWith;

// As the system's own registry tells it.
unsigned WindowsMajorVersion() {
  wchar_t text[32] = {};
  DWORD size = sizeof text;
  RegGetValueW(HKEY_LOCAL_MACHINE, L"Software\\Microsoft\\Windows NT\\CurrentVersion",
               L"CurrentVersion", RRF_RT_REG_SZ, nullptr, text, &size);
  DWORD major = 0;
  size = sizeof major;
  RegGetValueW(HKEY_LOCAL_MACHINE, L"Software\\Microsoft\\Windows NT\\CurrentVersion",
               L"CurrentMajorVersionNumber", RRF_RT_REG_DWORD, nullptr, &major, &size);
  return major != 0 ? major : static_cast<unsigned>(std::wcstoul(text, nullptr, 10));
}

TEST(WindowsFoldersTest, TheHostIsTheProgramThatRuns) {
  EXPECT_THAT(ToUtf8(SystemFolders().HostExecutable()), EndsWith("\\windows_tests.exe"));
}

TEST(WindowsFoldersTest, TheTemporaryFolderEndsInOneBackslash) {
  const EnvironmentVariable bare("TMP", "C:\\Tr\xC3\xA4ume");
  EXPECT_EQ(SystemFolders().Temporary(), u"C:\\Tr\u00E4ume\\");

  const EnvironmentVariable ended("TMP", "C:\\windows\\");
  EXPECT_EQ(SystemFolders().Temporary(), u"C:\\windows\\");
}

TEST(WindowsFoldersTest, TheCommonFilesFolderIsTheSystems) {
  EXPECT_EQ(SystemFolders().CommonProgramFiles(), u"C:\\Program Files\\Common Files");
}

TEST(WindowsFoldersTest, TheMajorVersionIsTheSystemsOwn) {
  EXPECT_EQ(SystemFolders().MajorVersion(), WindowsMajorVersion());
}

TEST(WindowsEnvironmentTest, AVariableWithAnyLettersSurvives) {
  const EnvironmentVariable variable("QUTAV_TEST_VARIABLE", "Tr\xC3\xA4ume \xE3\x81\x82");

  EXPECT_EQ(EnvironmentText("QUTAV_TEST_VARIABLE"), "Tr\xC3\xA4ume \xE3\x81\x82");
  EXPECT_EQ(EnvironmentText("QUTAV_TEST_MISSING"), std::nullopt);
}

TEST(WindowsLocalCodePageTest, WhatTheCodePageLacksIsLost) {
  if (GetACP() == CP_UTF8) GTEST_SKIP() << "this system's code page lacks nothing";

  EXPECT_EQ(ToLocalCodePage(u"Tr\u00E4ume"), "Tr\xE4ume");
  EXPECT_EQ(FromLocalCodePage("Tr\xE4ume"), u"Tr\u00E4ume");
  EXPECT_EQ(ToLocalCodePage(u"a\u3042b"), "a?b");
  EXPECT_EQ(ToLocalCodePage(u""), "");
  EXPECT_EQ(FromLocalCodePage(""), u"");
}

}  // namespace
}  // namespace qutav::test
