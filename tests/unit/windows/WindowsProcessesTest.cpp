// The process runner and the process service over real children. No test here waits by the clock:
// the runner's pauses only give the processor away.
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

#include "EnvironmentVariable.h"
#include "Eventually.h"
#include "ServicesTest.h"
#include "TemporaryFolder.h"
#include "platform/Text.h"
#include "platform/windows/Handle.h"
#include "platform/windows/SystemServices.h"
#include "platform/windows/Wide.h"
#include "support/ProcessRunner.h"

namespace qutav::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::ExitedWithCode;

// Runs something at each pause and gives the processor away.
class YieldingClock : public Clock {
 public:
  void Sleep(std::chrono::milliseconds) override {
    if (onSleep) onSleep();
    std::this_thread::yield();
  }
  std::function<void()> onSleep;
};

bool IsRunning(DWORD pid) {
  const Handle process(OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, pid));
  DWORD code = 0;
  return process.IsOpen() && GetExitCodeProcess(process.Value(), &code) != 0 &&
         code == STILL_ACTIVE;
}

void Kill(DWORD pid) {
  const Handle process(OpenProcess(PROCESS_TERMINATE, FALSE, pid));
  TerminateProcess(process.Value(), 1);
}

bool Ends(DWORD pid) {
  return Eventually([pid] { return !IsRunning(pid); });
}

DWORD OpenHandles() {
  DWORD count = 0;
  GetProcessHandleCount(GetCurrentProcess(), &count);
  return count;
}

std::vector<DWORD> ProcessIdsIn(const std::u16string& output) {
  std::istringstream stream(ToUtf8(output));
  std::vector<DWORD> ids;
  for (DWORD id = 0; stream >> id;) ids.push_back(id);
  return ids;
}

std::ptrdiff_t LinesIn(const std::u16string& output) {
  return std::count(output.begin(), output.end(), u'\n');
}

class WindowsProcessesTest : public ServicesTest {
 protected:
  WindowsProcessesTest() {
    TheServices().processes = &SystemProcesses();
    TheServices().clock = &yielding;
  }

  // Runs the fake child with these orders, as they stand in the command line.
  std::int32_t RunChild(const std::u16string& orders, const PolledByte* cancelFlag = nullptr) {
    return RunProcess(ChildCommand(orders), true, output, cancelFlag);
  }

  // Starts the fake child and leaves it alone; its process id.
  DWORD StartChild(const std::u16string& orders) {
    std::uint32_t id = 0;
    RunProcess(ChildCommand(orders), false, output, nullptr, &id);
    return id;
  }

  static fs::path ChildProgram() { return fs::path(FAKE_CHILD_FOLDER) / "fake_child.exe"; }

  static std::u16string ChildCommand(const std::u16string& orders) {
    return u"\"" + ChildProgram().make_preferred().u16string() + u"\" " + orders;
  }

  YieldingClock yielding;
  std::u16string output;
};

TEST_F(WindowsProcessesTest, OutputWrittenBeforeTheExitIsInTheText) {
  EXPECT_EQ(RunChild(u"print one \" two\""), 0);

  EXPECT_EQ(output, u"one two");
}

TEST_F(WindowsProcessesTest, ErrorOutputComesThroughTheSamePipe) {
  EXPECT_EQ(RunChild(u"error trouble"), 0);

  EXPECT_EQ(output, u"trouble");
}

TEST_F(WindowsProcessesTest, TheExitCodeOfTheChildIsTheResult) {
  EXPECT_EQ(RunChild(u"exit 3"), 3);
  EXPECT_EQ(RunChild(u"exit 255"), 255);
  EXPECT_EQ(RunChild(u"exit -5"), -5);
}

TEST_F(WindowsProcessesTest, AFloodOfTenMegabytesComesWhole) {
  EXPECT_EQ(RunChild(u"flood 10000000"), 0);

  EXPECT_EQ(output.size(), 10'000'000u);
  EXPECT_EQ(LinesIn(output), 100'000);
}

TEST_F(WindowsProcessesTest, OutputIsCutAtANul) {
  RunChild(u"zeros");

  EXPECT_EQ(output, u"seen");
}

TEST_F(WindowsProcessesTest, OutputIsReadInTheLocalCodePage) {
  ASSERT_EQ(FromLocalCodePage(ToLocalCodePage(u"Tr\u00E4ume")), u"Tr\u00E4ume")
      << "the code page of this system has no umlauts";

  RunChild(u"print Tr\u00E4ume");

  EXPECT_EQ(output, u"Tr\u00E4ume");
}

TEST_F(WindowsProcessesTest, ArgumentsReachTheChildThroughTheQuoting) {
  RunChild(
      u"arguments plain \"with blank\" \"\" a\\\"b \"C:\\folder\\\\\" C:\\x\\y \u00E4 $HOME "
      u"%PATH%");

  EXPECT_EQ(output, u"plain\nwith blank\n\na\"b\nC:\\folder\\\nC:\\x\\y\n\u00E4\n$HOME\n%PATH%\n");
}

bool RunsUnderWine() {
  return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

TEST_F(WindowsProcessesTest, StandardInputIsEmptyWhateverTheCallers) {
  if (RunsUnderWine()) GTEST_SKIP() << "Wine gives a child without standard input a console's";
  const TemporaryFolder folder;
  folder.Put("input", "the caller's own");
  SECURITY_ATTRIBUTES inheritable{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
  const HANDLE own = GetStdHandle(STD_INPUT_HANDLE);
  const Handle other(CreateFileW(folder.Native("input").c_str(), GENERIC_READ, FILE_SHARE_READ,
                                 &inheritable, OPEN_EXISTING, 0, nullptr));
  SetStdHandle(STD_INPUT_HANDLE, other.Value());

  const std::int32_t code = RunChild(u"input");

  SetStdHandle(STD_INPUT_HANDLE, own);
  EXPECT_EQ(code, 0);
  EXPECT_EQ(output, u"end");
}

TEST_F(WindowsProcessesTest, TheChildHasTheCallersEnvironmentAndFolder) {
  const EnvironmentVariable variable("QUTAV_TEST_VARIABLE", "Tr\xC3\xA4ume");

  RunChild(u"environment QUTAV_TEST_VARIABLE");
  EXPECT_EQ(output, u"Tr\u00E4ume");

  output.clear();
  RunChild(u"folder");
  EXPECT_EQ(ToUtf8(output), fs::current_path().string());
}

TEST_F(WindowsProcessesTest, AProgramIsFoundByItsPathWithForeignLetters) {
  const TemporaryFolder folder;
  fs::copy_file(ChildProgram(), folder.Native("\xE3\x81\x82 child.exe"));

  EXPECT_EQ(RunProcess(u"\"" + folder.Path("\xE3\x81\x82 child.exe") + u"\" exit 7", true, output),
            7);
}

TEST_F(WindowsProcessesTest, AProgramWithoutAFolderIsFoundThroughThePath) {
  const EnvironmentVariable path("PATH", fs::path(FAKE_CHILD_FOLDER).make_preferred().string());

  EXPECT_EQ(RunProcess(u"fake_child exit 8", true, output), 8);
}

TEST_F(WindowsProcessesTest, WithoutCaptureTheResultIsZeroWhateverTheChildsCode) {
  output = u"before";

  EXPECT_EQ(RunProcess(ChildCommand(u"exit 9"), false, output), 0);
  EXPECT_EQ(RunProcess(ChildCommand(u"print text"), false, output), 0);

  EXPECT_EQ(output, u"before");
}

TEST_F(WindowsProcessesTest, AChildStartedWithoutCaptureRunsOnUntilItIsKilled) {
  const DWORD child = StartChild(u"hang");
  EXPECT_TRUE(IsRunning(child));

  RunProcess(u"taskkill /PID " + ToDecimal(child) + u" /F /T", false, output);

  EXPECT_TRUE(Ends(child));
}

TEST_F(WindowsProcessesTest, CancellingKillsAHangingChild) {
  PolledByte cancel{0};
  yielding.onSleep = [&] { cancel = LinesIn(output) == 1 ? 1 : 0; };

  EXPECT_NE(RunChild(u"hang", &cancel), 0);

  const auto ids = ProcessIdsIn(output);
  ASSERT_EQ(ids.size(), 1u);
  EXPECT_FALSE(IsRunning(ids[0]));
}

TEST_F(WindowsProcessesTest, CancellingKillsWhatTheChildHasStarted) {
  PolledByte cancel{0};
  yielding.onSleep = [&] { cancel = LinesIn(output) == 2 ? 1 : 0; };

  EXPECT_NE(RunChild(u"family", &cancel), 0);

  const auto ids = ProcessIdsIn(output);
  ASSERT_EQ(ids.size(), 2u);
  EXPECT_TRUE(Ends(ids[0]));
  EXPECT_TRUE(Ends(ids[1]));
}

TEST_F(WindowsProcessesTest, ACancelFlagSetOnEntryKillsTheChildThatWasStarted) {
  const PolledByte cancel{1};
  std::uint32_t id = 0;

  EXPECT_NE(RunProcess(ChildCommand(u"hang"), true, output, &cancel, &id), 0);

  EXPECT_NE(id, 0u);
  EXPECT_FALSE(IsRunning(id));
}

TEST_F(WindowsProcessesTest, AGrandchildThatKeepsThePipeDoesNotHoldTheCaller) {
  EXPECT_EQ(RunChild(u"leave"), 0);

  const auto ids = ProcessIdsIn(output);
  ASSERT_EQ(ids.size(), 1u);
  EXPECT_TRUE(IsRunning(ids[0]));
  Kill(ids[0]);
  EXPECT_TRUE(Ends(ids[0]));
}

TEST_F(WindowsProcessesTest, ProcessesAreKilledByTheNameOfTheirProgram) {
  const TemporaryFolder folder;
  const std::string name = "victim" + std::to_string(GetCurrentProcessId()) + ".exe";
  fs::copy_file(ChildProgram(), folder.Native(name));
  const std::u16string command = u"\"" + folder.Path(name) + u"\" hang";
  std::uint32_t first = 0;
  std::uint32_t second = 0;
  RunProcess(command, false, output, nullptr, &first);
  RunProcess(command, false, output, nullptr, &second);
  const DWORD bystander = StartChild(u"hang");

  const std::u16string systemFolder = u"C:\\windows\\system32\\";
  EXPECT_EQ(RunProcess(systemFolder + u"taskkill /F /IM " + FromUtf8(name), true, output), 0);

  EXPECT_TRUE(Ends(first));
  EXPECT_TRUE(Ends(second));
  EXPECT_TRUE(IsRunning(bystander));
  Kill(bystander);
  EXPECT_TRUE(Ends(bystander));
}

TEST_F(WindowsProcessesTest, EveryRunClosesWhatItOpened) {
  RunChild(u"print x");  // what the system opens for the first of all children stays
  const DWORD before = OpenHandles();

  RunChild(u"print x");
  StartChild(u"exit 0");
  RunProcess(u"", true, output);

  EXPECT_EQ(OpenHandles(), before);
}

TEST_F(WindowsProcessesTest, RunsOnSeveralThreadsKeepTheirResultsApart) {
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

TEST_F(WindowsProcessesTest, ACommandThatCannotBeStartedEndsThisProcessWithTheSystemsError) {
  frontEnd.onMessage = [](const MessageBoxRequest& request) {
    std::fprintf(stderr, "%s: %s", ToUtf8(request.title).c_str(), ToUtf8(request.text).c_str());
  };

  EXPECT_EXIT(RunProcess(u"C:\\no-such-program.exe -x", true, output),
              ExitedWithCode(ERROR_FILE_NOT_FOUND),
              "Error: CreateWinProcess failed with error 2: .");
}

TEST_F(WindowsProcessesTest, TheErrorOfAFailedStartComesWithTheSystemsText) {
  EXPECT_EQ(SystemProcesses().Start(u"C:\\no-such-program.exe", nullptr), nullptr);

  const SystemError error = SystemProcesses().LastError();
  EXPECT_EQ(error.code, static_cast<std::uint32_t>(ERROR_FILE_NOT_FOUND));
  EXPECT_GT(error.text.size(), 5u);
}

TEST_F(WindowsProcessesTest, TheCommandLinesOfThisSystemAreItsOwn) {
  EXPECT_EQ(SystemProcesses().ProgramSuffix(), u".exe");
  EXPECT_EQ(SystemProcesses().HeadSeparator(), u'\\');
}

TEST_F(WindowsProcessesTest, AChildThatPrintsWithoutEndCanBeCancelled) {
  PolledByte cancel{0};
  // The child knows its arguments in the code page only.
  const fs::path started =
      fs::temp_directory_path() / ("qutav-started-" + std::to_string(GetCurrentProcessId()));
  std::thread canceller([&] {
    Eventually([&] { return fs::exists(started); });
    cancel = 1;
  });

  EXPECT_NE(RunChild(u"overflow \"" + started.u16string() + u"\"", &cancel), 0);

  canceller.join();
  EXPECT_GE(output.size(), 900'000u);
  fs::remove(started);
}

}  // namespace
}  // namespace qutav::test
