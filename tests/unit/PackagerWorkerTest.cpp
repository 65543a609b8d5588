#include <new>

#include "PackagingTest.h"
#include "packaging/PackagerWorker.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;

class PackagerWorkerTest : public PackagingTest {
 protected:
  PackagerWorkerTest() {
    job.commandLine = u"tool -package";
    job.folder = u"C:/m/";
    SettingsSet(keys::kTavDestination, u"Game.apk");
    SetRegistryValue(u"Last ADB Opt", u"install");
    SettingsSet(keys::kInstallDevices, u"A:");
  }

  // The tool behaves so when it installs a package.
  void PlayInstallation(const PlayedAnswer& answer) {
    processes.play = [answer](const std::u16string& line) {
      return line.find(u"-installApp") == line.npos ? PlayedAnswer{"packaged"} : answer;
    };
  }

  PackagerJob job;
};

TEST_F(PackagerWorkerTest, RunsTheCommandAndNotesItsEnd) {
  PlayTool(7, "no key");

  EXPECT_EQ(PackagerWorker(job), 0);

  EXPECT_THAT(processes.CommandLines(), ElementsAre(u"tool -package"));
  EXPECT_EQ(job.exitCode, 7);
  EXPECT_EQ(job.output, u"no key");
  EXPECT_EQ(job.postPublishOk, 1);
  EXPECT_EQ(job.finished, 1);
}

TEST_F(PackagerWorkerTest, AnInstalledPackageKeepsTheOutputOfThePackaging) {
  PlayInstallation({"installed"});

  EXPECT_EQ(PackagerWorker(job), 0);

  EXPECT_EQ(job.exitCode, 0);
  EXPECT_EQ(job.output, u"packaged");
  EXPECT_EQ(job.postPublishOk, 1);
  EXPECT_EQ(job.finished, 1);
}

TEST_F(PackagerWorkerTest, AFailedInstallationTakesThePlaceOfTheToolsResult) {
  PlayInstallation({"", 12});

  EXPECT_EQ(PackagerWorker(job), 0);

  EXPECT_EQ(job.exitCode, -1);
  EXPECT_EQ(job.output,
            u"Device Serial NumberA : Unable to install the application. Ensure that the selected "
            u"devices are connected.\n\n");
  EXPECT_EQ(job.postPublishOk, 0);
  EXPECT_EQ(job.finished, 1);
}

TEST_F(PackagerWorkerTest, AnErrorThatNobodyForesawInTheInstallationStandsBehindThoseBefore) {
  SettingsSet(keys::kInstallDevices, u"A:B:");
  processes.play = [](const std::u16string& line) -> PlayedAnswer {
    if (line.find(u"-installApp -platform android -device B") != line.npos) throw std::bad_alloc();
    return line.find(u"-installApp") == line.npos ? PlayedAnswer{"packaged"} : PlayedAnswer{"", 12};
  };

  EXPECT_EQ(PackagerWorker(job), 0);

  EXPECT_EQ(job.exitCode, -1);
  EXPECT_EQ(job.output,
            u"Device Serial NumberA : Unable to install the application. Ensure that the selected "
            u"devices are connected.\n\nUnknown error.");
  EXPECT_EQ(job.postPublishOk, 0);
  EXPECT_EQ(job.finished, 1);
}

TEST_F(PackagerWorkerTest, ARunThatWasCancelledBeforeItsStartIsKilledAtOnce) {
  processes.play = [](const std::u16string&) {
    PlayedAnswer answer;
    answer.hangs = true;
    return answer;
  };
  job.finished = 1;

  EXPECT_EQ(PackagerWorker(job), 0);

  EXPECT_THAT(processes.CommandLines(), ElementsAre(u"tool -package", u"taskkill /PID 1000 /F /T"));
  EXPECT_EQ(job.exitCode, 1);
  EXPECT_TRUE(clock.Sleeps().empty());
}

TEST_F(PackagerWorkerTest, AnErrorThatNobodyForesawIsTheToolsUnknownError) {
  processes.startFails = true;

  EXPECT_EQ(PackagerWorker(job), 0);

  EXPECT_EQ(job.exitCode, 5);
  EXPECT_EQ(job.finished, 1);
}

}  // namespace
}  // namespace qutav::test
