#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "TestFolder.h"
#include "host/ExitCodes.h"
#include "host/PublishCommand.h"

namespace qutav::host {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;

// Publishes through the exercise library, which ends the run as the document asks for.
class PublishCommandTest : public ::testing::Test {
 protected:
  PublishCommandTest() : console_(out_, error_, false) {
    options_.executable = QUTAV_COMMAND;
    options_.common.runtimeLevel = "26.0";
    options_.common.library = EXERCISE_LIBRARY;
  }

  int Publish(const std::string& play) {
    options_.common.document =
        folder_.Write("My Game.qud.json", DocumentText("\"exercise.play\": \"" + play + "\""));
    return RunPublish(options_, console_);
  }

  void UseCertificate() {
    options_.certificate = folder_.Write("my.p12", "key");
    options_.passwordFile = folder_.Write("password.txt", "secret words\n");
  }

  TestFolder folder_;
  std::ostringstream out_;
  std::ostringstream error_;
  Console console_;
  PublishOptions options_;
};

TEST_F(PublishCommandTest, MadePackageIsNamed) {
  EXPECT_EQ(Publish("make"), kDone);
  EXPECT_THAT(out_.str(),
              HasSubstr("Made " + (folder_.Path() / "Game.apk").string() + ", 22 bytes, "));
  EXPECT_THAT(error_.str(),
              HasSubstr("Zenvoka Kestrow, information: APK file has been created.\n"));
}

TEST_F(PublishCommandTest, MovieIsExportedFirstAndFoundThroughItsUri) {
  Publish("make");
  EXPECT_EQ(folder_.Read("My Game.qmv").substr(0, 4), "QMV\x1A");
  EXPECT_EQ(folder_.Read("movie-found.txt"), "yes");
}

TEST_F(PublishCommandTest, NewerMovieAndNoExportLeaveTheMovieAlone) {
  options_.exportsMovie = false;
  Publish("make");
  EXPECT_EQ(folder_.Read("movie-found.txt"), "no");
}

TEST_F(PublishCommandTest, DocumentKeepsWhatTheLibraryStored) {
  Publish("make");
  EXPECT_THAT(folder_.Read("My Game.qud.json"), HasSubstr("\"exercise.ran\": \"yes\""));
}

TEST_F(PublishCommandTest, FailureShowsItsMessageAndTheBrokenFileDoesNotCount) {
  EXPECT_EQ(Publish("break"), kNotDone);
  EXPECT_EQ(out_.str(), "");
  EXPECT_THAT(error_.str(), HasSubstr("warning: Error creating files.\n    \n    Could not sign"));
  EXPECT_THAT(error_.str(), HasSubstr("No package was made.\n"));
}

TEST_F(PublishCommandTest, CancelledRunMadeNothing) { EXPECT_EQ(Publish("cancel"), kNotDone); }

TEST_F(PublishCommandTest, AnsweredQuestionIsShown) {
  EXPECT_EQ(Publish("refuse"), kNotDone);
  EXPECT_THAT(error_.str(), HasSubstr("Do you want to continue?\n    (answered: Cancel)\n"));
}

TEST_F(PublishCommandTest, PackageOfAnEarlierRunDoesNotCount) {
  EXPECT_EQ(Publish("make"), kDone);
  EXPECT_EQ(Publish("nothing"), kNotDone);
}

TEST_F(PublishCommandTest, SheetWithoutAnAnswerNamesTheRemedy) {
  EXPECT_EQ(Publish("sheet"), kNotDone);
  EXPECT_THAT(error_.str(), HasSubstr("--certificate FILE"));
}

TEST_F(PublishCommandTest, CertificateAnswersTheSheetWithoutThePasswordItself) {
  UseCertificate();
  EXPECT_EQ(Publish("sheet"), kDone);
  const std::string script = folder_.Read("seen-script.json");
  const auto settings = nlohmann::json::parse(script)["answers"][0]["set"];
  EXPECT_EQ(settings["Certificate:"], options_.certificate.string());
  EXPECT_EQ(settings["Password:"]["file"], options_.passwordFile.string());
  EXPECT_THAT(script, ::testing::Not(HasSubstr("secret words")));
}

TEST_F(PublishCommandTest, CertificateThatNobodyAskedForIsMentioned) {
  UseCertificate();
  EXPECT_EQ(Publish("make"), kDone);
  EXPECT_THAT(error_.str(), HasSubstr("The certificate was not used"));
}

TEST_F(PublishCommandTest, TranscriptOfTheUsersIsAppendedToAndOldEventsDoNotCount) {
  options_.transcript = folder_.Write(
      "t.jsonl", "{\"event\":\"message\",\"title\":\"T\",\"icon\":\"error\",\"text\":\"old\"}\n");
  EXPECT_EQ(Publish("make"), kDone);
  EXPECT_THAT(folder_.Read("t.jsonl"), HasSubstr("APK file has been created."));
  EXPECT_THAT(error_.str(), ::testing::Not(HasSubstr("old")));
}

TEST_F(PublishCommandTest, EveryProblemIsToldBeforeAnythingHappens) {
  options_.certificate = folder_.Path() / "gone.p12";
  options_.passwordVariable = "QUTAV_TEST_VARIABLE_THAT_IS_NOT_SET";
  options_.provisioningProfile = folder_.Path() / "gone.mobileprovision";
  EXPECT_EQ(Publish("make"), kRefused);
  EXPECT_THAT(error_.str(), HasSubstr("gone.p12: the certificate is missing"));
  EXPECT_THAT(error_.str(), HasSubstr("QUTAV_TEST_VARIABLE_THAT_IS_NOT_SET is not set"));
  EXPECT_THAT(error_.str(), HasSubstr("--provisioning-profile is for a document"));
  EXPECT_FALSE(fs::exists(folder_.Path() / "My Game.qmv"));
}

TEST_F(PublishCommandTest, TooLongAPathIsToldWhereTheLibraryWouldBeSilent) {
  const std::string name(250, 'x');
  options_.common.document = folder_.Write(name, DocumentText(""));
  EXPECT_EQ(RunPublish(options_, console_), kRefused);
  EXPECT_THAT(error_.str(), HasSubstr("the path is too long"));
}

TEST_F(PublishCommandTest, LibraryThatIsMissingOrNoneIsRefused) {
  options_.common.library = folder_.Path() / "gone.so";
  EXPECT_EQ(Publish("make"), kRefused);
  EXPECT_THAT(error_.str(), HasSubstr("gone.so: the library is missing"));
  options_.common.library = folder_.Write("text.so", "no library");
  EXPECT_EQ(Publish("make"), kRefused);
}

TEST_F(PublishCommandTest, LibraryThatEndsItsHostIsSurvivedAndTold) {
  EXPECT_EQ(Publish("end"), kNotDone);
  EXPECT_THAT(error_.str(), HasSubstr("Error: failed with error 2\n"));
  EXPECT_THAT(error_.str(), HasSubstr("The library ended its host with code 2.\n"));
}

TEST_F(PublishCommandTest, LibraryThatCrashesIsSurvivedAndTold) {
  EXPECT_EQ(Publish("crash"), kNotDone);
  EXPECT_THAT(error_.str(), HasSubstr("The library was ended by signal 6.\n"));
}

}  // namespace
}  // namespace qutav::host
