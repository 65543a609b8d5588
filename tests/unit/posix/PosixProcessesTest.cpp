// The process runner and the process service over real children. No test here waits by the clock:
// the runner's pauses only give the processor away.
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

#include "EnvironmentVariable.h"
#include "Eventually.h"
#include "ServicesTest.h"
#include "TemporaryFolder.h"
#include "platform/Text.h"
#include "platform/posix/SystemServices.h"
#include "support/ProcessRunner.h"

namespace qutav::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::ExitedWithCode;

constexpr std::int32_t kExitCodeOfKilled = 128 + SIGKILL;

// Runs something at each pause and gives the processor away.
class YieldingClock : public Clock {
 public:
  void Sleep(std::chrono::milliseconds) override {
    if (onSleep) onSleep();
    std::this_thread::yield();
  }
  std::function<void()> onSleep;
};

// Whether a process is there and no zombie.
bool IsRunning(pid_t pid) {
  std::ifstream stream("/proc/" + std::to_string(pid) + "/stat");
  std::string text;
  if (!std::getline(stream, text)) return false;
  const char state = text.at(text.rfind(')') + 2);
  return state != 'Z' && state != 'X';
}

bool IsKnown(pid_t pid) { return fs::exists("/proc/" + std::to_string(pid)); }

bool Ends(pid_t pid) {
  return Eventually([pid] { return !IsRunning(pid); });
}

std::size_t OpenDescriptors() {
  const fs::directory_iterator entries("/proc/self/fd");
  return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}

std::vector<pid_t> ProcessIdsIn(const std::u16string& output) {
  std::istringstream stream(ToUtf8(output));
  std::vector<pid_t> ids;
  for (pid_t id = 0; stream >> id;) ids.push_back(id);
  return ids;
}

std::ptrdiff_t LinesIn(const std::u16string& output) {
  return std::count(output.begin(), output.end(), u'\n');
}

class PosixProcessesTest : public ServicesTest {
 protected:
  PosixProcessesTest() {
    TheServices().processes = &SystemProcesses();
    TheServices().clock = &yielding;
  }

  // Runs the fake child with these orders, as they stand in the command line.
  std::int32_t RunChild(const std::u16string& orders, const PolledByte* cancelFlag = nullptr) {
    return RunProcess(ChildCommand(orders), true, output, cancelFlag);
  }

  // Starts the fake child and leaves it alone; its process id.
  pid_t StartChild(const std::u16string& orders) {
    std::uint32_t id = 0;
    RunProcess(ChildCommand(orders), false, output, nullptr, &id);
    return static_cast<pid_t>(id);
  }

  static std::u16string ChildCommand(const std::u16string& orders) {
    return u"\"" + FromUtf8(FAKE_CHILD) + u"\" " + orders;
  }

  YieldingClock yielding;
  std::u16string output;
};

TEST_F(PosixProcessesTest, OutputWrittenBeforeTheExitIsInTheText) {
  EXPECT_EQ(RunChild(u"print one \" two\""), 0);

  EXPECT_EQ(output, u"one two");
}

TEST_F(PosixProcessesTest, ErrorOutputComesThroughTheSamePipe) {
  EXPECT_EQ(RunChild(u"error trouble"), 0);

  EXPECT_EQ(output, u"trouble");
}

TEST_F(PosixProcessesTest, TheExitCodeOfTheChildIsTheResult) {
  EXPECT_EQ(RunChild(u"exit 3"), 3);
  EXPECT_EQ(RunChild(u"exit 255"), 255);
}

TEST_F(PosixProcessesTest, AFloodOfTenMegabytesComesWhole) {
  EXPECT_EQ(RunChild(u"flood 10000000"), 0);

  EXPECT_EQ(output.size(), 10'000'000u);
  EXPECT_EQ(LinesIn(output), 100'000);
}

TEST_F(PosixProcessesTest, OutputIsCutAtANul) {
  RunChild(u"zeros");

  EXPECT_EQ(output, u"seen");
}

TEST_F(PosixProcessesTest, OutputIsReadAsUtf8) {
  RunChild(u"print Tr\u00E4ume\u3042\U0001F600");

  EXPECT_EQ(output, u"Tr\u00E4ume\u3042\U0001F600");
}

TEST_F(PosixProcessesTest, ArgumentsReachTheChildThroughTheQuoting) {
  RunChild(
      u"arguments plain \"with blank\" \"\" a\\\"b \"C:\\folder\\\\\" C:\\x\\y \u00E4 *.txt $HOME");

  EXPECT_EQ(output, u"plain\nwith blank\n\na\"b\nC:\\folder\\\nC:\\x\\y\n\u00E4\n*.txt\n$HOME\n");
}

TEST_F(PosixProcessesTest, StandardInputIsEmptyWhateverTheCallers) {
  const TemporaryFolder folder;
  folder.Put("input", "the caller's own");
  const int own = dup(STDIN_FILENO);
  const int other = open(folder.Native("input").c_str(), O_RDONLY | O_CLOEXEC);
  dup2(other, STDIN_FILENO);

  const std::int32_t code = RunChild(u"input");

  dup2(own, STDIN_FILENO);
  close(own);
  close(other);
  EXPECT_EQ(code, 0);
  EXPECT_EQ(output, u"end");
}

TEST_F(PosixProcessesTest, TheChildHasTheCallersEnvironmentAndFolder) {
  const EnvironmentVariable variable("QUTAV_TEST_VARIABLE", "Tr\xC3\xA4ume");

  RunChild(u"environment QUTAV_TEST_VARIABLE");
  EXPECT_EQ(output, u"Tr\u00E4ume");

  output.clear();
  RunChild(u"folder");
  EXPECT_EQ(ToUtf8(output), fs::current_path().string());
}

TEST_F(PosixProcessesTest, AProgramIsFoundByItsWindowsFormPath) {
  const TemporaryFolder folder;
  fs::copy_file(FAKE_CHILD, folder.Native("\xE3\x81\x82 child"));

  EXPECT_EQ(RunProcess(u"\"" + folder.Path("\xE3\x81\x82 child") + u"\" exit 7", true, output), 7);
}

TEST_F(PosixProcessesTest, AnUnquotedProgramMayHaveBlanksInItsName) {
  const TemporaryFolder folder;
  fs::copy_file(FAKE_CHILD, folder.Native("my own child"));

  EXPECT_EQ(RunProcess(folder.Path("my own child") + u"  print a \"b c\"", true, output), 0);

  EXPECT_EQ(output, u"ab c");
}

TEST_F(PosixProcessesTest, TheShortestUnquotedNameOfAProgramIsTaken) {
  const TemporaryFolder folder;
  fs::copy_file(FAKE_CHILD, folder.Native("child"));
  folder.Put("child exit", "another file");

  EXPECT_EQ(RunProcess(folder.Path("child") + u" exit 7", true, output), 7);
}

TEST_F(PosixProcessesTest, AProgramWithoutAFolderIsFoundThroughThePath) {
  const EnvironmentVariable path("PATH", fs::path(FAKE_CHILD).parent_path().string());

  EXPECT_EQ(RunProcess(u"fake_child exit 8", true, output), 8);
}

TEST_F(PosixProcessesTest, WithoutCaptureTheResultIsZeroWhateverTheChildsCode) {
  output = u"before";

  EXPECT_EQ(RunProcess(ChildCommand(u"exit 9"), false, output), 0);
  EXPECT_EQ(RunProcess(ChildCommand(u"print text"), false, output), 0);

  EXPECT_EQ(output, u"before");
}

TEST_F(PosixProcessesTest, AChildStartedWithoutCaptureRunsOnUntilItIsKilled) {
  const pid_t child = StartChild(u"hang");
  EXPECT_TRUE(IsRunning(child));

  RunProcess(u"taskkill /PID " + ToDecimal(child) + u" /F /T", false, output);

  EXPECT_TRUE(Ends(child));
}

TEST_F(PosixProcessesTest, AChildThatWasLeftAloneIsCollectedAtAStartAfterItsEnd) {
  const pid_t child = StartChild(u"hang");
  kill(child, SIGKILL);
  EXPECT_TRUE(Ends(child));
  EXPECT_TRUE(IsKnown(child)) << "nobody has asked for its end yet";

  RunChild(u"exit 0");

  EXPECT_FALSE(IsKnown(child));
}

TEST_F(PosixProcessesTest, AChildHasAProcessGroupOfItsOwn) {
  const pid_t child = StartChild(u"hang");

  EXPECT_EQ(getpgid(child), child);

  RunProcess(u"taskkill /PID " + ToDecimal(child) + u" /F /T", false, output);
  EXPECT_TRUE(Ends(child));
}

TEST_F(PosixProcessesTest, CancellingKillsAHangingChild) {
  PolledByte cancel{0};
  yielding.onSleep = [&] { cancel = LinesIn(output) == 1 ? 1 : 0; };

  EXPECT_EQ(RunChild(u"hang", &cancel), kExitCodeOfKilled);

  const auto ids = ProcessIdsIn(output);
  ASSERT_EQ(ids.size(), 1u);
  EXPECT_FALSE(IsKnown(ids[0])) << "the child is collected when the runner returns";
}

TEST_F(PosixProcessesTest, CancellingKillsWhatTheChildHasStarted) {
  PolledByte cancel{0};
  yielding.onSleep = [&] { cancel = LinesIn(output) == 2 ? 1 : 0; };

  EXPECT_EQ(RunChild(u"family", &cancel), kExitCodeOfKilled);

  const auto ids = ProcessIdsIn(output);
  ASSERT_EQ(ids.size(), 2u);
  EXPECT_TRUE(Ends(ids[0]));
  EXPECT_TRUE(Ends(ids[1]));
}

TEST_F(PosixProcessesTest, ACancelFlagSetOnEntryKillsTheChildThatWasStarted) {
  const PolledByte cancel{1};
  std::uint32_t id = 0;

  EXPECT_EQ(RunProcess(ChildCommand(u"hang"), true, output, &cancel, &id), kExitCodeOfKilled);

  EXPECT_NE(id, 0u);
  EXPECT_FALSE(IsKnown(static_cast<pid_t>(id)));
}

TEST_F(PosixProcessesTest, AGrandchildThatKeepsThePipeDoesNotHoldTheCaller) {
  EXPECT_EQ(RunChild(u"leave"), 0);

  const auto ids = ProcessIdsIn(output);
  ASSERT_EQ(ids.size(), 1u);
  EXPECT_TRUE(IsRunning(ids[0]));
  kill(ids[0], SIGKILL);
  EXPECT_TRUE(Ends(ids[0]));
}

TEST_F(PosixProcessesTest, ProcessesAreKilledByTheNameOfTheirProgram) {
  const TemporaryFolder folder;
  const std::string name = "victim" + std::to_string(getpid());
  fs::copy_file(FAKE_CHILD, folder.Native(name));
  const std::u16string command = u"\"" + folder.Path(name) + u"\" hang";
  std::uint32_t first = 0;
  std::uint32_t second = 0;
  RunProcess(command, false, output, nullptr, &first);
  RunProcess(command, false, output, nullptr, &second);
  const pid_t bystander = StartChild(u"hang");

  EXPECT_EQ(RunProcess(u"taskkill /F /IM " + FromUtf8(name) + u".exe", true, output), 0);

  EXPECT_TRUE(Ends(static_cast<pid_t>(first)));
  EXPECT_TRUE(Ends(static_cast<pid_t>(second)));
  EXPECT_TRUE(IsRunning(bystander));
  RunProcess(u"taskkill /PID " + ToDecimal(bystander) + u" /F /T", false, output);
  EXPECT_TRUE(Ends(bystander));
}

TEST_F(PosixProcessesTest, KillingAProcessThatIsGoneIsHarmless) {
  std::uint32_t id = 0;
  RunProcess(ChildCommand(u"exit 0"), true, output, nullptr, &id);

  EXPECT_EQ(RunProcess(u"taskkill /PID " + ToDecimal(id) + u" /F /T", true, output), 0);
}

TEST_F(PosixProcessesTest, EveryRunClosesWhatItOpened) {
  const std::size_t before = OpenDescriptors();

  RunChild(u"print x");
  StartChild(u"exit 0");
  RunProcess(u"", true, output);
  RunProcess(u"taskkill /F /IM no-such-program.exe", true, output);

  EXPECT_EQ(OpenDescriptors(), before);
}

TEST_F(PosixProcessesTest, RunsOnSeveralThreadsKeepTheirResultsApart) {
  std::vector<std::int32_t> codes(8);
  std::vector<std::thread> runners;
  for (std::size_t i = 0; i < codes.size(); ++i) {
    runners.emplace_back([&codes, i] {
      std::u16string own;
      codes[i] = RunProcess(ChildCommand(u"exit " + ToDecimal(static_cast<int>(i))), true, own);
    });
  }
  for (std::thread& thread : runners) thread.join();

  EXPECT_THAT(codes, ElementsAre(0, 1, 2, 3, 4, 5, 6, 7));
}

TEST_F(PosixProcessesTest, ACommandThatCannotBeStartedEndsThisProcessWithTheSystemsError) {
  const TemporaryFolder folder;
  folder.Put("no program", "text");
  frontEnd.onMessage = [](const MessageBoxRequest& request) {
    std::fprintf(stderr, "%s: %s", ToUtf8(request.title).c_str(), ToUtf8(request.text).c_str());
  };

  EXPECT_EXIT(RunProcess(u"/no/such/program -x", true, output), ExitedWithCode(ENOENT),
              "Error: CreateWinProcess failed with error 2: No such file or directory");
  EXPECT_EXIT(RunProcess(u"\"" + folder.Path("no program") + u"\"", false, output),
              ExitedWithCode(EACCES), "CreateWinProcess failed with error 13: Permission denied");
}

TEST_F(PosixProcessesTest, TheCommandLinesOfThisSystemAreItsOwn) {
  EXPECT_EQ(SystemProcesses().ProgramSuffix(), u"");
  EXPECT_EQ(SystemProcesses().HeadSeparator(), u'/');
}

// Lets the system collect children by itself until the test is over.
class IgnoredChildSignal {
 public:
  IgnoredChildSignal() : old_(std::signal(SIGCHLD, SIG_IGN)) {}
  ~IgnoredChildSignal() { std::signal(SIGCHLD, old_); }
  IgnoredChildSignal(const IgnoredChildSignal&) = delete;
  IgnoredChildSignal& operator=(const IgnoredChildSignal&) = delete;

 private:
  void (*old_)(int);
};

TEST_F(PosixProcessesTest, ACodeThatTheSystemDidNotKeepIsNoSuccess) {
  const IgnoredChildSignal ignored;

  EXPECT_EQ(RunChild(u"print done"), 255);

  EXPECT_EQ(output, u"done");
}

TEST_F(PosixProcessesTest, CancellingKillsAGrandchildWhoseParentHasEnded) {
  PolledByte cancel{0};
  yielding.onSleep = [&] { cancel = LinesIn(output) == 2 ? 1 : 0; };

  EXPECT_EQ(RunChild(u"orphan", &cancel), kExitCodeOfKilled);

  const auto ids = ProcessIdsIn(output);
  ASSERT_EQ(ids.size(), 2u);
  EXPECT_TRUE(Ends(ids[0]));
  EXPECT_TRUE(Ends(ids[1]));
}

TEST_F(PosixProcessesTest, AChildThatPrintsWithoutEndCanBeCancelled) {
  const TemporaryFolder folder;
  PolledByte cancel{0};
  std::thread canceller([&] {
    Eventually([&] { return fs::exists(folder.Native("started")); });
    cancel = 1;
  });

  EXPECT_EQ(RunChild(u"overflow \"" + FromUtf8(folder.Native("started").string()) + u"\"", &cancel),
            kExitCodeOfKilled);

  canceller.join();
  EXPECT_GE(output.size(), 900'000u);
}

}  // namespace
}  // namespace qutav::test
