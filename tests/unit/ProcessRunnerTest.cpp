#include "ServicesTest.h"
#include "support/ProcessRunner.h"

namespace qutav::test {
namespace {

using std::chrono::milliseconds;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ProcessRunnerTest : public ServicesTest {
 protected:
  void Answer(const PlayedAnswer& answer) {
    processes.play = [answer](const std::u16string&) { return answer; };
  }
  std::int32_t RunCaptured(const PolledByte* cancelFlag = nullptr) {
    return RunProcess(u"tool -x", true, output, cancelFlag);
  }

  std::u16string output = u"before;";
};

TEST_F(ProcessRunnerTest, AChildThatExitsAtOnceGivesItsCodeAndItsOutput) {
  Answer({.output = "done\n", .exitCode = 3});

  EXPECT_EQ(RunCaptured(), 3);

  EXPECT_EQ(output, u"before;done\n");
  EXPECT_THAT(processes.CommandLines(), ElementsAre(u"tool -x"));
  EXPECT_THAT(clock.Sleeps(), IsEmpty());
}

TEST_F(ProcessRunnerTest, ARunningChildIsLookedAtEveryHalfSecond) {
  Answer({.output = "x", .roundsRunning = 3});

  EXPECT_EQ(RunCaptured(), 0);

  EXPECT_THAT(clock.Sleeps(), ElementsAre(milliseconds(500), milliseconds(500), milliseconds(500)));
}

TEST_F(ProcessRunnerTest, OutputIsReadBetweenTheLooks) {
  Answer({.output = "early", .roundsRunning = 1});
  std::u16string seen;
  clock.onSleep = [&] { seen = output; };

  RunCaptured();

  EXPECT_EQ(seen, u"before;early");
}

TEST_F(ProcessRunnerTest, AnExitCodeOfAllBitsIsNegative) {
  Answer({.output = "", .exitCode = 0xFFFFFFFFu});

  EXPECT_EQ(RunCaptured(), -1);
}

TEST_F(ProcessRunnerTest, WithoutCaptureTheResultIsZeroAndTheOutputStays) {
  Answer({.output = "text", .exitCode = 7});

  EXPECT_EQ(RunProcess(u"tool", false, output), 0);

  EXPECT_EQ(output, u"before;");
  EXPECT_THAT(clock.Sleeps(), IsEmpty());
}

TEST_F(ProcessRunnerTest, WithoutCaptureARunningChildIsLeftAlone) {
  Answer({.output = "", .hangs = true});
  const PolledByte cancel{1};

  EXPECT_EQ(RunProcess(u"tool", false, output, &cancel), 0);

  EXPECT_THAT(processes.CommandLines(), ElementsAre(u"tool"));
}

TEST_F(ProcessRunnerTest, TheProcessIdIsStoredInBothModes) {
  std::uint32_t captured = 0;
  std::uint32_t started = 0;

  RunProcess(u"tool", true, output, nullptr, &captured);
  RunProcess(u"tool", false, output, nullptr, &started);

  EXPECT_EQ(captured, 1000u);
  EXPECT_EQ(started, 1001u);
}

TEST_F(ProcessRunnerTest, TheProcessIdIsThereWhileTheChildRuns) {
  Answer({.output = "", .roundsRunning = 1});
  std::uint32_t id = 0;
  std::uint32_t seen = 0;
  clock.onSleep = [&] { seen = id; };

  RunProcess(u"tool", true, output, nullptr, &id);

  EXPECT_EQ(seen, 1000u);
}

TEST_F(ProcessRunnerTest, ACancelFlagSetOnEntryKillsTheStartedChildInTheFirstRound) {
  Answer({.output = "partial", .hangs = true});
  const PolledByte cancel{1};

  EXPECT_EQ(RunCaptured(&cancel), 1) << "the exit code of a killed child";

  EXPECT_THAT(processes.CommandLines(), ElementsAre(u"tool -x", u"taskkill /PID 1000 /F /T"));
  EXPECT_EQ(output, u"before;partial");
  EXPECT_THAT(clock.Sleeps(), IsEmpty());
}

TEST_F(ProcessRunnerTest, ACancelFlagSetLaterKillsTheChildInTheNextRound) {
  Answer({.output = "", .hangs = true});
  PolledByte cancel{0};
  clock.onSleep = [&] { cancel = clock.Sleeps().size() == 2 ? 1 : 0; };

  EXPECT_EQ(RunCaptured(&cancel), 1);

  EXPECT_EQ(clock.Sleeps().size(), 2u);
  EXPECT_THAT(processes.CommandLines(), ElementsAre(u"tool -x", u"taskkill /PID 1000 /F /T"));
}

TEST_F(ProcessRunnerTest, AChildThatHasEndedIsNotKilledByASetCancelFlag) {
  Answer({.output = "", .exitCode = 4});
  const PolledByte cancel{1};

  EXPECT_EQ(RunCaptured(&cancel), 4);

  EXPECT_THAT(processes.CommandLines(), ElementsAre(u"tool -x"));
}

TEST_F(ProcessRunnerTest, AChildWithTheCodeOfARunningOneHoldsTheCallerUntilItIsCancelled) {
  Answer({.output = "", .exitCode = 259});
  PolledByte cancel{0};
  clock.onSleep = [&] { cancel = clock.Sleeps().size() == 4 ? 1 : 0; };

  RunCaptured(&cancel);

  EXPECT_EQ(clock.Sleeps().size(), 4u);
  EXPECT_EQ(processes.CommandLines().size(), 2u);
}

TEST_F(ProcessRunnerTest, AnEmptyCommandGivesMinusOneInEitherMode) {
  EXPECT_EQ(RunProcess(u"", true, output), -1);
  EXPECT_EQ(RunProcess(u"", false, output), -1);

  EXPECT_THAT(processes.CommandLines(), IsEmpty());
  EXPECT_TRUE(frontEnd.messages.empty());
  EXPECT_EQ(output, u"before;");
}

TEST_F(ProcessRunnerTest, WithoutAPipeTheResultIsMinusOneInEitherMode) {
  processes.pipesFail = true;

  EXPECT_EQ(RunProcess(u"tool", true, output), -1);
  EXPECT_EQ(RunProcess(u"tool", false, output), -1);

  EXPECT_THAT(processes.CommandLines(), IsEmpty());
  EXPECT_TRUE(frontEnd.messages.empty());
}

TEST_F(ProcessRunnerTest, AWriteEndThatCannotBeClosedGivesMinusOneWithCaptureOnly) {
  processes.closeFails = true;
  std::uint32_t id = 0;

  EXPECT_EQ(RunProcess(u"tool", true, output, nullptr, &id), -1);
  EXPECT_EQ(RunProcess(u"tool", false, output), 0);

  EXPECT_EQ(id, 1000u);
  EXPECT_TRUE(frontEnd.messages.empty());
}

TEST_F(ProcessRunnerTest, ACommandThatCannotBeStartedIsShownAndEndsTheProcess) {
  processes.startFails = true;
  processes.lastError = {2, u"The system cannot find the file specified.\r\n"};
  std::uint32_t exitCode = 0;

  try {
    RunProcess(u"tool", false, output);
  } catch (const FakeProcesses::ProcessEnded& ended) {
    exitCode = ended.exitCode;
  }

  EXPECT_EQ(exitCode, 2u);
  ASSERT_EQ(frontEnd.messages.size(), 1u);
  const ShownMessage& message = frontEnd.messages[0];
  EXPECT_EQ(message.title, u"Error");
  EXPECT_EQ(message.text,
            u"CreateWinProcess failed with error 2: The system cannot find the file "
            u"specified.\r\n");
  EXPECT_EQ(message.owner, nullptr);
  EXPECT_EQ(message.icon, MessageIcon::kPlain);
  EXPECT_EQ(message.buttons, MessageButtons::kOk);
}

TEST_F(ProcessRunnerTest, AFatalErrorsCodeIsShownAsASignedNumber) {
  processes.lastError = {0x80070005u, u"Denied."};

  EXPECT_THROW(ReportFatalAndExit(u"Name"), FakeProcesses::ProcessEnded);

  EXPECT_THAT(frontEnd.Texts(), ElementsAre(u"Name failed with error -2147024891: Denied."));
}

TEST_F(ProcessRunnerTest, OutputIsCutAtTheFirstNulOfAChunk) {
  const std::string second = "next";
  Answer({.output = std::string("a\0b", 3) + std::string(1021, 'x') + second});

  RunCaptured();

  EXPECT_EQ(output, u"before;anext");
}

TEST_F(ProcessRunnerTest, AChunkThatBeginsWithNulAddsNothing) {
  Answer({.output = std::string(1024, '\0') + "end"});

  RunCaptured();

  EXPECT_EQ(output, u"before;end");
}

TEST_F(ProcessRunnerTest, ACharacterCutByTheChunkLimitStaysInTwoHalves) {
  Answer({.output = std::string(1023, 'x') + "\xC3\xA4"});

  RunCaptured();

  EXPECT_EQ(output, u"before;" + std::u16string(1023, u'x') + u"\uFFFD\uFFFD");
}

TEST_F(ProcessRunnerTest, OutputIsTextOfTheLocalCodePage) {
  Answer({.output = "Tr\xC3\xA4ume \xE3\x81\x82"});

  RunCaptured();

  EXPECT_EQ(output, u"before;Tr\u00E4ume \u3042");
}

TEST_F(ProcessRunnerTest, MegabytesOfOutputComeWhole) {
  Answer({.output = std::string(5'000'000, 'x')});

  RunCaptured();

  EXPECT_EQ(output.size(), 5'000'007u);
}

// What a pipe that misbehaves does, and what was done to the child behind it.
struct OddRun {
  bool readsNothing = false;
  bool cannotTell = false;  ///< how many bytes wait
  bool closeFails = false;
  int bytesPending = 0;            ///< a read gives one of them
  std::function<void()> onRead{};  ///< runs at every read
  int roundsRunning = 0;
  int reads = 0;
  int looks = 0;
  int waits = 0;
  std::vector<std::u16string> commandLines;
};

class OddPipe : public OutputPipe {
 public:
  explicit OddPipe(OddRun& run) : run_(run) {}
  bool CloseWriteEnd() override { return !run_.closeFails; }
  std::optional<std::size_t> BytesWaiting() override {
    if (run_.cannotTell) return {};
    return run_.readsNothing ? 5 : static_cast<std::size_t>(run_.bytesPending);
  }
  std::size_t Read(char* buffer, std::size_t) override {
    ++run_.reads;
    if (run_.onRead) run_.onRead();
    if (run_.bytesPending == 0) return 0;
    --run_.bytesPending;
    *buffer = 'x';
    return 1;
  }

 private:
  OddRun& run_;
};

class OddChild : public ChildProcess {
 public:
  explicit OddChild(OddRun& run) : run_(run) {}
  std::uint32_t Id() const override { return 7; }
  std::uint32_t ExitCode() override { return run_.looks++ < run_.roundsRunning ? kStillActive : 3; }
  void Wait() override { ++run_.waits; }

 private:
  OddRun& run_;
};

class OddProcesses : public FakeProcesses {
 public:
  explicit OddProcesses(OddRun& run) : run_(run) {}
  std::unique_ptr<OutputPipe> CreateOutputPipe() override {
    return std::make_unique<OddPipe>(run_);
  }
  std::unique_ptr<ChildProcess> Start(const std::u16string& commandLine, OutputPipe*) override {
    run_.commandLines.push_back(commandLine);
    return std::make_unique<OddChild>(run_);
  }

 private:
  OddRun& run_;
};

class ProcessRunnerOddPipeTest : public ProcessRunnerTest {
 protected:
  ProcessRunnerOddPipeTest() { TheServices().processes = &odd; }

  void ExpectPollingToTheEnd() {
    run.roundsRunning = 2;
    EXPECT_EQ(RunCaptured(), 3);
    EXPECT_EQ(output, u"before;");
    EXPECT_EQ(run.waits, 1);
    EXPECT_THAT(clock.Sleeps(), ElementsAre(milliseconds(500), milliseconds(500)));
  }

  OddRun run;
  OddProcesses odd{run};
};

TEST_F(ProcessRunnerOddPipeTest, APipeThatGivesNothingWhileBytesWaitIsLookedAtAgainLater) {
  run.readsNothing = true;

  ExpectPollingToTheEnd();

  EXPECT_EQ(run.reads, 3) << "once a round and once after the end";
}

TEST_F(ProcessRunnerOddPipeTest, APipeThatCannotTellWhatWaitsIsNotReadAndThePollingGoesOn) {
  run.cannotTell = true;

  ExpectPollingToTheEnd();

  EXPECT_EQ(run.reads, 0);
}

TEST_F(ProcessRunnerOddPipeTest, AChildWhoseWriteEndCannotBeClosedIsNeitherKilledNorWaitedFor) {
  run.closeFails = true;
  run.roundsRunning = 5;
  const PolledByte cancel{1};

  EXPECT_EQ(RunCaptured(&cancel), -1);

  EXPECT_THAT(run.commandLines, ElementsAre(u"tool -x"));
  EXPECT_EQ(run.waits, 0);
  EXPECT_EQ(run.reads, 0);
  EXPECT_THAT(clock.Sleeps(), IsEmpty());
}

TEST_F(ProcessRunnerOddPipeTest, AChildThatPrintsFasterThanItIsReadCanBeCancelled) {
  run.bytesPending = 1000;
  run.roundsRunning = 2;
  PolledByte cancel{0};
  std::size_t readBeforeTheKill = 0;
  run.onRead = [&] { cancel = run.reads == 100 ? 1 : 0; };
  clock.onSleep = [&] { readBeforeTheKill = output.size(); };

  EXPECT_EQ(RunCaptured(&cancel), 3);

  EXPECT_EQ(readBeforeTheKill, std::u16string(u"before;").size() + 100);
  EXPECT_EQ(run.commandLines.at(1), u"taskkill /PID 7 /F /T");
  EXPECT_EQ(output.size(), std::u16string(u"before;").size() + 1000) << "the rest comes at the end";
}

}  // namespace
}  // namespace qutav::test
