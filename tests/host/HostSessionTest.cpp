#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "TestFolder.h"
#include "host/HostSession.h"
#include "host/TextEncoding.h"

namespace qutav::host {
namespace {

using ::testing::HasSubstr;

// A host that has loaded the exercise library, which answers from the other side of the table.
class HostSessionTest : public ::testing::Test {
 protected:
  HostSessionTest()
      : document_(Document::Load(folder_.Write("Game.qud.json", DocumentText("")))),
        console_(out_, error_, false),
        state_{document_, console_, "en_US", 26, {}},
        library_(EXERCISE_LIBRARY),
        session_(state_) {
    session_.Enter(library_);
  }

  // Runs a script and gives what the library logged meanwhile.
  std::string LogOf(const std::u16string& script) {
    result_ = session_.Run(script);
    EXPECT_TRUE(result_.succeeded) << ToUtf8(result_.error);
    using Take = const char16_t* (*)();
    return ToUtf8(reinterpret_cast<Take>(library_.Address("TakeExerciseLog"))());
  }

  TestFolder folder_;
  Document document_;
  std::ostringstream out_;
  std::ostringstream error_;
  Console console_;
  HostState state_;
  SharedLibrary library_;
  HostSession session_;
  Evaluation result_;
};

TEST_F(HostSessionTest, NumberZeroArrivesAsTheWordOne) {
  EXPECT_EQ(LogOf(u"echo(0)"), "text 0\nlength 1\ninteger 0\nboolean 0\nword one\n");
}

TEST_F(HostSessionTest, TextZeroIsNotTheNumberZero) {
  EXPECT_EQ(LogOf(u"echo('0')"), "text 0\nlength 1\ninteger 0\nboolean 1\nword other\n");
}

TEST_F(HostSessionTest, UndefinedHasNoText) {
  EXPECT_EQ(LogOf(u"echo()"), "text (null)\nlength 0\ninteger 0\nboolean 0\nword other\n");
}

TEST_F(HostSessionTest, LengthCountsUtf16Units) {
  EXPECT_THAT(LogOf(u"echo('\u00DC \U0001F3AE')"), HasSubstr("text Ü 🎮\nlength 4\n"));
}

TEST_F(HostSessionTest, EvaluationGivesResultsOfEachKind) {
  EXPECT_THAT(LogOf(u"ask('qu.getDocumentDOM().width;')"),
              HasSubstr("status 1\ntext 800\nlength 3\ninteger 800\nboolean 1\n"));
  EXPECT_THAT(LogOf(u"ask('qu.getDocumentDOM().getDebugForQmv();')"), HasSubstr("boolean 0\n"));
  EXPECT_THAT(LogOf(u"ask('qu.getDocumentDOM().getDataFromDocument(\"gone\");')"),
              HasSubstr("word one\n"));
  EXPECT_THAT(LogOf(u"ask('\"an \\\\\"embedded\\\\\" quote\"')"),
              HasSubstr("text an \"embedded\" quote\n"));
}

TEST_F(HostSessionTest, ThrowingScriptGivesStatusZeroAndIsToldToTheVerbose) {
  EXPECT_EQ(LogOf(u"ask('throw new Error(\"bad\")')"), "status 0\n");
  EXPECT_EQ(error_.str(), "");
  console_.SetVerbose(true);
  LogOf(u"ask('throw new Error(\"bad\")')");
  EXPECT_EQ(error_.str(), "ExerciseLibrary:12: Error: bad\n");
}

TEST_F(HostSessionTest, TextStaysWhileTheFunctionRuns) {
  LogOf(u"holdText('first')");
  EXPECT_EQ(result_.value, ScriptValue(1.0));
}

TEST_F(HostSessionTest, WordsEndWithTheFunction) {
  LogOf(u"rememberWord('kept')");
  EXPECT_THAT(LogOf(u"echoRememberedWord()"), HasSubstr("text (null)\n"));
}

TEST_F(HostSessionTest, ScriptSeesTheStatus) {
  LogOf(u"refuse()");
  EXPECT_EQ(result_.value, ScriptValue(0.0));
  LogOf(u"echo(1)");
  EXPECT_EQ(result_.value, ScriptValue(1.0));
}

TEST_F(HostSessionTest, UriBecomesAPathInWindowsForm) {
  EXPECT_EQ(LogOf(u"pathOf('file:///home/%C3%9C/%E3%82%B2%20100%25.qmv')"),
            "\\home\\Ü\\ゲ 100%.qmv\n");
}

TEST_F(HostSessionTest, FunctionMayBeCalledWhileAnotherRuns) {
  EXPECT_EQ(LogOf(u"ask('echo(0)')"),
            "text 0\nlength 1\ninteger 0\nboolean 0\nword one\n"
            "status 1\ntext 1\nlength 1\ninteger 1\nboolean 1\nword other\n");
}

TEST(SharedLibraryTest, MissingLibraryAndMissingExportAreRefused) {
  EXPECT_THROW(SharedLibrary("/gone/QuTavAndroidExt.so"), LibraryError);
  EXPECT_THROW(SharedLibrary(EXERCISE_LIBRARY).Address("NoSuchExport"), LibraryError);
}

}  // namespace
}  // namespace qutav::host
