// Runs the built command itself.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <initializer_list>

#include "TestFolder.h"

namespace qutav::host {
namespace {

using ::testing::HasSubstr;

class QutavCommandTest : public ::testing::Test {
 protected:
  int Run(std::initializer_list<std::string> arguments) {
    std::string line = Quoted(QUTAV_COMMAND);
    for (const std::string& argument : arguments) line.append(" ").append(Quoted(argument));
    line.append(" </dev/null >").append(Quoted(folder_.Path() / "out"));
    line.append(" 2>").append(Quoted(folder_.Path() / "error"));
    const int status = std::system(line.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

  std::string Document(const std::string& data) {
    return folder_.Write("Game.qud.json", DocumentText(data));
  }

  // No argument of these tests holds a single quote.
  static std::string Quoted(const std::string& text) {
    return std::string("'").append(text).append("'");
  }

  TestFolder folder_;
};

TEST_F(QutavCommandTest, PublishMakesAPackage) {
  const std::string document = Document(R"("exercise.play": "make")");
  EXPECT_EQ(Run({"publish", document, "--version", "26.0", "--library", EXERCISE_LIBRARY}), 0);
  EXPECT_THAT(folder_.Read("out"), HasSubstr("Made "));
}

TEST_F(QutavCommandTest, PublishWithoutAPackageGivesOne) {
  const std::string document = Document(R"("exercise.play": "break")");
  EXPECT_EQ(Run({"publish", document, "--version", "26.0", "--library", EXERCISE_LIBRARY}), 1);
  EXPECT_THAT(folder_.Read("error"), HasSubstr("Could not sign the TAV file."));
}

TEST_F(QutavCommandTest, WrongDocumentGivesTwoAndTouchesNothing) {
  const std::string document = folder_.Write("bad.qud.json", "{ \"stage\": 7 }");
  EXPECT_EQ(Run({"publish", document, "--version", "26.0", "--library", EXERCISE_LIBRARY}), 2);
  EXPECT_THAT(folder_.Read("error"), HasSubstr("member \"stage\" must be an object"));
  EXPECT_EQ(folder_.Read("bad.qud.json"), "{ \"stage\": 7 }");
}

TEST_F(QutavCommandTest, CertificateWithoutAPasswordGivesTwoWhenNobodyCanBeAsked) {
  const std::string document = Document(R"("exercise.play": "sheet")");
  const std::string certificate = folder_.Write("my.p12", "key");
  EXPECT_EQ(Run({"publish", document, "--version", "26.0", "--library", EXERCISE_LIBRARY,
                 "--certificate", certificate}),
            2);
  EXPECT_THAT(folder_.Read("error"), HasSubstr("--password-file FILE"));
}

TEST_F(QutavCommandTest, EvaluatePrintsTheResultAndStoresTheDocument) {
  const std::string document = Document("");
  EXPECT_EQ(Run({"evaluate", document, "--library", EXERCISE_LIBRARY,
                 "qu.getDocumentDOM().addDataToDocument(\"k\", \"string\", \"Ü🎮\");"
                 "qu.getDocumentDOM().getDataFromDocument(\"k\") + refuse()"}),
            0);
  EXPECT_EQ(folder_.Read("out"), "Ü🎮0\n");
  EXPECT_THAT(folder_.Read("Game.qud.json"), HasSubstr("\"k\": \"Ü🎮\""));
}

TEST_F(QutavCommandTest, EvaluateTellsAScriptThatThrows) {
  EXPECT_EQ(Run({"evaluate", Document(""), "--library", EXERCISE_LIBRARY, "nowhere()"}), 1);
  EXPECT_THAT(folder_.Read("error"), HasSubstr("ReferenceError"));
}

TEST_F(QutavCommandTest, EvaluateSurvivesALibraryThatCrashes) {
  const std::string document = Document(R"("exercise.play": "crash")");
  EXPECT_EQ(Run({"evaluate", document, "--library", EXERCISE_LIBRARY, "Publish(\"\", \"\", \"\")"}),
            1);
  EXPECT_EQ(folder_.Read("error"), "The library was ended by signal 6.\n");
}

TEST_F(QutavCommandTest, EvaluateTakesAScriptThatBeginsLikeAnOption) {
  EXPECT_EQ(Run({"evaluate", "--library", EXERCISE_LIBRARY, "--", Document(""), "-1"}), 0);
  EXPECT_EQ(folder_.Read("out"), "-1\n");
}

TEST_F(QutavCommandTest, LibraryThatCannotBeLoadedGivesTwo) {
  EXPECT_EQ(Run({"evaluate", Document(""), "--library", "/gone/a.so", "1"}), 2);
  EXPECT_THAT(folder_.Read("error"), HasSubstr("the library cannot be loaded"));
}

}  // namespace
}  // namespace qutav::host
