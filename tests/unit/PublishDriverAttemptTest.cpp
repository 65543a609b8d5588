// The attempts to run the tool: the worker behind the progress dialog, and what comes of it.

#include "PackagingTest.h"
#include "framework/CDialog.h"
#include "packaging/PublishCancelled.h"

namespace qutav::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class PublishDriverAttemptTest : public PackagingTest {
 protected:
  // Runs the progress dialog to its end and presses a button of the others.
  void PressInTimestampDialog(const std::u16string& button) {
    frontEnd.onDialog = [this, button](CDialog& dialog) {
      if (dialog.ClassName() == u"CProgressDlg") return TickUntilEnded(dialog);
      timestampOwner = dialog.Parent();
      PressButton(dialog, button);
    };
  }
  void CancelProgress() {
    frontEnd.onDialog = [](CDialog& dialog) { PressButton(dialog, u"Cancel"); };
  }
  // The tool behaves so at its first run, the second time, and so on.
  void PlayInTurn(std::vector<PlayedAnswer> answers) {
    processes.play = [this, answers](const std::u16string&) { return answers.at(turn++); };
  }
  // The package is wanted on a device; the tool gives that answer to its installation.
  void PlayInstallation(const PlayedAnswer& answer) {
    SetRegistryValue(u"Last ADB Opt", u"install");
    SettingsSet(keys::kInstallDevices, u"A:");
    processes.play = [answer](const std::u16string& line) {
      return line.find(u"-installApp") == line.npos ? PlayedAnswer{} : answer;
    };
  }
  // The line that installed the package, without what stands before the package.
  std::u16string InstalledPackage() const {
    constexpr std::u16string_view kOption = u"-package ";
    for (const std::u16string& line : processes.CommandLines()) {
      if (line.find(u"-installApp") == line.npos) continue;
      return line.substr(line.find(kOption) + kOption.size());
    }
    return {};
  }

  std::size_t turn = 0;
  WindowHandle timestampOwner = nullptr;
};

TEST_F(PublishDriverAttemptTest, TheToolRunsBehindTheProgressDialog) {
  WindowHandle parent = nullptr;
  frontEnd.onDialog = [&](CDialog& dialog) {
    parent = dialog.Parent();
    TickUntilEnded(dialog);
  };

  EXPECT_EQ(Publish(), 1);

  EXPECT_THAT(frontEnd.dialogs, ElementsAre(u"CProgressDlg"));
  EXPECT_EQ(parent, frontEnd.focus);
}

TEST_F(PublishDriverAttemptTest, AToolThatTakesItsTimeIsWaitedFor) {
  processes.play = [](const std::u16string&) {
    PlayedAnswer answer;
    answer.output = "a warning";
    answer.roundsRunning = 20;
    return answer;
  };

  EXPECT_EQ(Publish(), 1);

  ExpectWarning(u"The APK was packaged successfully, but a warning occurred.\n\na warning");
}

TEST_F(PublishDriverAttemptTest, ASuccessWithOutputCountsAndShowsTheOutputBehindAWarning) {
  PlayTool(0, "note: all is well\n");

  EXPECT_EQ(Publish(), 1);

  ExpectWarning(
      u"The APK was packaged successfully, but a warning occurred.\n\nnote: all is well\n");
}

TEST_F(PublishDriverAttemptTest, TheWarningHasTheSameWordsForEveryTarget) {
  PlayTool(0, "note");

  EXPECT_EQ(Publish(PublishTargetIpa), 1);

  ExpectWarning(u"The APK was packaged successfully, but a warning occurred.\n\nnote");
}

TEST_F(PublishDriverAttemptTest, AFailureShowsTheTextAndTheOutputBehindThePrefix) {
  PlayTool(9, "no key");

  EXPECT_EQ(Publish(), 0);

  ExpectWarning(u"Error creating files.\n\nCould not sign the TAV file.\nno key");
}

TEST_F(PublishDriverAttemptTest, AFailureWithoutOutputAndWithoutATextShowsNothing) {
  PlayTool(1);

  EXPECT_EQ(Publish(), 0);

  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(PublishDriverAttemptTest, CancelInTheProgressDialogKillsTheToolAndShowsNothing) {
  processes.play = [](const std::u16string&) {
    PlayedAnswer answer;
    answer.hangs = true;
    return answer;
  };
  CancelProgress();

  EXPECT_EQ(Publish(), 0);

  EXPECT_THAT(frontEnd.messages, IsEmpty());
  EXPECT_THAT(processes.CommandLines(), SizeIs(2));
  EXPECT_EQ(processes.CommandLines().back(), u"taskkill /PID 1000 /F /T");
}

TEST_F(PublishDriverAttemptTest, ACancelledRunWhoseToolPrintedShowsThatAsAFailure) {
  processes.play = [](const std::u16string&) {
    PlayedAnswer answer;
    answer.output = "half way";
    answer.hangs = true;
    return answer;
  };
  CancelProgress();

  EXPECT_EQ(Publish(), 0);

  ExpectWarning(u"Error creating files.\n\nhalf way");
}

TEST_F(PublishDriverAttemptTest, ACancelledRunForgetsThePasswords) {
  PlayTool(1);
  CancelProgress();

  Publish();

  EXPECT_FALSE(SettingsMap.contains(keys::kCertificatePassword));
}

TEST_F(PublishDriverAttemptTest, CancelAfterThePackagingKeepsThePackageFromTheDevices) {
  SetRegistryValue(u"Last ADB Opt", u"install");
  processes.play = [](const std::u16string&) {
    PublishCancelled = 1;
    return PlayedAnswer{};
  };

  EXPECT_EQ(Publish(), 0);

  EXPECT_THAT(processes.CommandLines(), SizeIs(1));
  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(PublishDriverAttemptTest, ANewRunIsNotCancelledByTheLast) {
  PublishCancelled = 1;
  PlayInstallation({});

  EXPECT_EQ(Publish(), 1);

  EXPECT_EQ(InstalledPackage(), u"\"C:/m/Game.apk\"");
}

TEST_F(PublishDriverAttemptTest, WithoutAThreadTheDialogStaysUntilCancelAndNothingIsMade) {
  threads.refuses = true;
  CancelProgress();

  EXPECT_EQ(Publish(), 0);

  EXPECT_THAT(frontEnd.dialogs, ElementsAre(u"CProgressDlg"));
  EXPECT_THAT(processes.CommandLines(), IsEmpty());
  ExpectInformation(u"APK file has been created.");
}

TEST_F(PublishDriverAttemptTest, AToolThatPrintsTenMegabytesIsShownWith2000Characters) {
  PlayTool(1, std::string(10 * 1024 * 1024, 'x'));

  EXPECT_EQ(Publish(), 0);

  ExpectWarning(u"Error creating files.\n\n" + std::u16string(2000, u'x'));
}

TEST_F(PublishDriverAttemptTest, OutputBehindANulByteIsNotShown) {
  PlayTool(1, std::string("seen\0hidden", 11));

  EXPECT_EQ(Publish(), 0);

  ExpectWarning(u"Error creating files.\n\nseen");
}

TEST_F(PublishDriverAttemptTest, OutputThatBeginsWithANulByteCountsAsNone) {
  PlayTool(0, std::string("\0hidden", 7));

  EXPECT_EQ(Publish(), 1);

  ExpectInformation(u"APK file has been created.");
}

TEST_F(PublishDriverAttemptTest, RetryRunsTheSameCommandAgain) {
  PlayInTurn({{"no server", 10}, {}});
  PressInTimestampDialog(u"Retry");

  EXPECT_EQ(Publish(), 1);

  const auto lines = processes.CommandLines();
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0], lines[1]);
  EXPECT_THAT(frontEnd.dialogs,
              ElementsAre(u"CProgressDlg", u"CTimestampRetryDlg", u"CProgressDlg"));
  ExpectInformation(u"APK file has been created.");
}

TEST_F(PublishDriverAttemptTest, DisablingTimestampingRunsTheSameCommandAgain) {
  PlayInTurn({{"no server", 10}, {}});
  PressInTimestampDialog(u"Disable Timestamping");

  EXPECT_EQ(Publish(), 1);

  const auto lines = processes.CommandLines();
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0], lines[1]);
}

TEST_F(PublishDriverAttemptTest, DisablingTimestampingReplacesEveryOptionThatTheCommandHolds) {
  SettingsSet(keys::kCertificatePassword,
              u"-tsa https://timestamp.zenvoka.example/tsa -tsa "
              u"https://timestamp.zenvoka.example/tsa -tsa https://other/tsa");
  PlayInTurn({{"", 10}, {}});
  PressInTimestampDialog(u"Disable Timestamping");

  EXPECT_EQ(Publish(), 1);

  EXPECT_EQ(processes.CommandLines().back(),
            std::u16string(kToolHead) +
                u" -package -target apk-captive-runtime -arch armv7 -storetype PKCS12 -keystore "
                u"\"C:/k/my.p12\" -storepass \"-tsa none -tsa none -tsa https://other/tsa\" "
                u"\"C:/m/Game.apk\" \"C:/m/Game-app.xml\" -C \"C:/m/\" \"Game.qmv\" ");
}

TEST_F(PublishDriverAttemptTest, CancelInTheTimestampDialogShowsNothingFurther) {
  PlayTool(10, "no server");
  PressInTimestampDialog(u"Cancel");

  EXPECT_EQ(Publish(), 0);

  EXPECT_THAT(processes.CommandLines(), SizeIs(1));
  EXPECT_THAT(frontEnd.dialogs, ElementsAre(u"CProgressDlg", u"CTimestampRetryDlg"));
  EXPECT_THAT(frontEnd.messages, IsEmpty());
  EXPECT_FALSE(SettingsMap.contains(keys::kCertificatePassword));
}

TEST_F(PublishDriverAttemptTest, TheTimestampDialogBelongsToTheWindowWithTheFocus) {
  int other = 0;
  processes.play = [&](const std::u16string&) {
    frontEnd.focus = &other;
    return PlayedAnswer{"", 10};
  };
  PressInTimestampDialog(u"Cancel");

  Publish();

  EXPECT_EQ(timestampOwner, &other);
}

TEST_F(PublishDriverAttemptTest, EachAttemptBeginsAfresh) {
  PlayInTurn({{"first", 10}, {"second", 10, false, 3}, {"third", 9, false, 3}});
  PressInTimestampDialog(u"Retry");

  EXPECT_EQ(Publish(), 0);

  ExpectWarning(u"Error creating files.\n\nCould not sign the TAV file.\nthird");
  EXPECT_THAT(processes.CommandLines(), SizeIs(3));
}

TEST_F(PublishDriverAttemptTest, AnAttemptWithoutAThreadKeepsNothingOfTheOneBefore) {
  PlayInTurn({{"first", 10}});
  frontEnd.onDialog = [this](CDialog& dialog) {
    if (threads.refuses) return (void)PressButton(dialog, u"Cancel");
    if (dialog.ClassName() == u"CProgressDlg") return TickUntilEnded(dialog);
    threads.refuses = true;
    PressButton(dialog, u"Retry");
  };

  EXPECT_EQ(Publish(), 0);

  EXPECT_THAT(frontEnd.dialogs,
              ElementsAre(u"CProgressDlg", u"CTimestampRetryDlg", u"CProgressDlg"));
  ExpectInformation(u"APK file has been created.");
}

TEST_F(PublishDriverAttemptTest, AFailedInstallationStandsByItselfAndGivesZero) {
  PlayInstallation({"no room", 1});

  EXPECT_EQ(Publish(), 0);

  ExpectWarning(
      u"Device Serial NumberA : Unexpected error - unable to install the application.\nno "
      u"room\n\n");
}

TEST_F(PublishDriverAttemptTest, AnInstallationsTextThatHoldsAPatternShowsThePatternsText) {
  PlayInstallation({"error 300", 1});

  EXPECT_EQ(Publish(), 0);

  ExpectWarning(u"File is missing or cannot be opened.");
}

TEST_F(PublishDriverAttemptTest, AFailedToolInstallsNothing) {
  SetRegistryValue(u"Last ADB Opt", u"install");
  PlayTool(1, "bad");

  EXPECT_EQ(Publish(), 0);

  EXPECT_THAT(processes.CommandLines(), SizeIs(1));
}

TEST_F(PublishDriverAttemptTest, APackageThatHadItsWarningIsInstalledAllTheSame) {
  PlayInstallation({});
  const auto installs = processes.play;
  processes.play = [=](const std::u16string& line) {
    return line.find(u"-keystore") == line.npos ? installs(line) : PlayedAnswer{"note", 0};
  };

  EXPECT_EQ(Publish(), 1);

  EXPECT_EQ(InstalledPackage(), u"\"C:/m/Game.apk\"");
  ExpectWarning(u"The APK was packaged successfully, but a warning occurred.\n\nnote");
}

TEST_F(PublishDriverAttemptTest, APackageWithADriveIsInstalledFromThere) {
  files.PutFolder(u"D:/out");
  SettingsSet(keys::kTavDestination, u"D:/out/My.apk");
  PlayInstallation({});

  EXPECT_EQ(Publish(), 1);

  EXPECT_EQ(InstalledPackage(), u"\"D:/out/My.apk\"");
}

TEST_F(PublishDriverAttemptTest, AnIosRunInstallsWhatTheAndroidDestinationHolds) {
  SettingsSet(keys::kTavDestination, u"Droid.apk");
  SettingsSet(keys::kIpaDestination, u"Pod.ipa");
  PlayInstallation({});

  EXPECT_EQ(Publish(PublishTargetIpa), 1);

  EXPECT_EQ(InstalledPackage(), u"\"C:/m/Droid.apk\"");
}

TEST_F(PublishDriverAttemptTest, AnErrorThatNobodyForesawEndsTheRunAndNotTheHost) {
  processes.startFails = true;

  EXPECT_EQ(Publish(), 0);

  EXPECT_THAT(frontEnd.Texts(), Contains(u"Error creating files.\n\nUnknown error.\n"));
}

TEST_F(PublishDriverAttemptTest, AWorkersDeviceErrorIsInTheLanguageOfTheScriptThread) {
  SettingsSet(keys::kAdbOption, u"install");
  SettingsSet(keys::kInstallDevices, u"A:");
  processes.play = [](const std::u16string& line) {
    if (line.ends_with(u" devices")) return PlayedAnswer{"A\tdevice\n", 0};
    return line.find(u"-installApp") == line.npos ? PlayedAnswer{} : PlayedAnswer{"", 12};
  };
  language.SetThreadInterfaceLanguage(1062);

  EXPECT_EQ(Publish(), 0);

  EXPECT_THAT(frontEnd.Texts(),
              ElementsAre(u"[su] $_Device Serial Number_#A : [su] $_Unable to install the "
                          u"application. Ensure that the selected devices are connected._#\n\n"));
}

}  // namespace
}  // namespace qutav::test
