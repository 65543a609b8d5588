#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <system_error>
#include <thread>

#include "TestFolder.h"
#include "host/ProcessFamily.h"

namespace qutav::host {
namespace {

// A pipe with a name keeps a reader waiting for as long as a test wants.
class ProcessFamilyTest : public ::testing::Test {
 protected:
  ProcessFamilyTest() : pipe_(folder_.Path() / "pipe") { mkfifo(pipe_.c_str(), 0600); }

  static ChildEnd Shell(ProcessFamily& family, const std::string& command) {
    return family.Run("/bin/sh", {"-c", command}, ChildOutput::kToStandardError);
  }
  std::string ReadPipe() const { return "cat '" + pipe_.string() + "' >/dev/null"; }
  bool PipeHasReader() const {
    const int descriptor = open(pipe_.c_str(), O_WRONLY | O_NONBLOCK);
    if (descriptor >= 0) close(descriptor);
    return descriptor >= 0;
  }

  TestFolder folder_;
  std::filesystem::path pipe_;
};
using ProcessFamilyDeathTest = ProcessFamilyTest;

TEST_F(ProcessFamilyTest, AnExitCodeIsTold) {
  ProcessFamily family;

  const ChildEnd end = Shell(family, "exit 3");

  EXPECT_EQ(end.kind, ChildEnd::Kind::kExited);
  EXPECT_EQ(end.number, 3);
}

TEST_F(ProcessFamilyTest, AKillIsToldFromAnExit) {
  ProcessFamily family;

  const ChildEnd end = Shell(family, "kill -9 $$");

  EXPECT_EQ(end.kind, ChildEnd::Kind::kKilled);
  EXPECT_EQ(end.number, SIGKILL);
}

TEST_F(ProcessFamilyTest, AProgramThatCannotBeStartedIsAnError) {
  ProcessFamily family;

  EXPECT_THROW(family.Run("/gone/tool", {}, ChildOutput::kToStandardError), std::system_error);
}

TEST_F(ProcessFamilyTest, ARunDoesNotWaitForWhatItsProgramLeavesRunning) {
  ProcessFamily family;

  EXPECT_EQ(Shell(family, ReadPipe() + " & exit 4").number, 4);

  family.EndAll();
}

TEST_F(ProcessFamilyTest, AProgramThatWasLeftRunningIsWaitedFor) {
  ProcessFamily family;
  Shell(family, "(cat '" + pipe_.string() + "'; exit 0) >/dev/null & exec true");
  std::thread writer([this] { close(open(pipe_.c_str(), O_WRONLY)); });

  const auto end = family.WaitForProgram("sh");

  writer.join();
  ASSERT_TRUE(end);
  EXPECT_EQ(end->kind, ChildEnd::Kind::kExited);
  EXPECT_FALSE(PipeHasReader());
}

TEST_F(ProcessFamilyTest, TheEndOfAProgramThatWasLeftRunningIsTold) {
  ProcessFamily family;
  Shell(family, "sh -c 'exit 7' & exec true");

  const auto end = family.WaitForProgram("sh");

  ASSERT_TRUE(end);
  EXPECT_EQ(end->number, 7);
}

TEST_F(ProcessFamilyTest, AProgramThatNeverRanHasNoEnd) {
  ProcessFamily family;
  Shell(family, "true");

  EXPECT_FALSE(family.WaitForProgram("wep"));
}

TEST_F(ProcessFamilyTest, OtherProgramsAreNotWaitedForAndCanBeEnded) {
  ProcessFamily family;
  Shell(family, ReadPipe() + " & (" + ReadPipe() + " &) ");

  EXPECT_FALSE(family.WaitForProgram("wep"));
  family.EndAll();

  EXPECT_FALSE(PipeHasReader());
}

TEST_F(ProcessFamilyDeathTest, ASignalEndsTheFamilyAndThenUs) {
  EXPECT_EXIT(
      {
        ProcessFamily family;
        Shell(family, "(" + ReadPipe() + " &) ; kill -TERM $PPID; " + ReadPipe());
      },
      ::testing::KilledBySignal(SIGTERM), "");

  EXPECT_FALSE(PipeHasReader());
}

TEST_F(ProcessFamilyDeathTest, ASignalThatOurCallerIgnoresEndsNothing) {
  EXPECT_EXIT(
      {
        signal(SIGHUP, SIG_IGN);
        ProcessFamily family;
        _exit(Shell(family, "kill -HUP $PPID; exit 5").number);
      },
      ::testing::ExitedWithCode(5), "");
}

}  // namespace
}  // namespace qutav::host
