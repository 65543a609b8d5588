#include "EnvironmentVariable.h"
#include "ServicesTest.h"
#include "TemporaryFolder.h"
#include "framework/scripted/AnswerScript.h"

namespace qutav::test {
namespace {

using nlohmann::json;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Pair;

AnswerScript Script(const std::string& answers) {
  return AnswerScript::Parse(json::parse("{\"answers\": [" + answers + "]}"));
}

// What the script's author is told; empty when nothing is wrong.
std::string MistakeIn(const std::string& script) {
  try {
    AnswerScript::Parse(json::parse(script));
  } catch (const std::exception& mistake) {
    return mistake.what();
  }
  return {};
}

std::string MistakeInAnswer(const std::string& answer) {
  return MistakeIn("{\"answers\": [" + answer + "]}");
}

// The button of the answer that is taken; "(none)" without an answer.
std::string Taken(AnswerScript& script, const Shown& shown) {
  const auto answer = script.Take(shown);
  return answer ? answer->steps.at(0).press.at(0) : "(none)";
}

const Shown kMessage{"message", "", "Title", "a missing file"};
const Shown kDialog{"dialog", "COne", "Title", ""};

// The value that one control is set to by a JSON text.
std::string ValueOf(const std::string& value) {
  const std::string set = "\"set\": {\"x\": " + value + "}";
  AnswerScript script = Script("{\"to\": \"dialog\", " + set + "}");
  return script.Take(kDialog)->steps.at(0).set.at(0).second;
}

TEST(AnswerScriptTest, AnAnswerIsUsedOnce) {
  AnswerScript script = Script(R"({"to": "message", "press": "OK"})");

  EXPECT_EQ(Taken(script, kMessage), "OK");
  EXPECT_EQ(Taken(script, kMessage), "(none)");
}

TEST(AnswerScriptTest, ARepeatedAnswerIsNotUsedUp) {
  AnswerScript script = Script(R"({"to": "message", "press": "OK", "repeat": true})");

  for (int i = 0; i < 3; ++i) EXPECT_EQ(Taken(script, kMessage), "OK");
}

TEST(AnswerScriptTest, AnAnswerThatIsNotRepeatedIsUsedUp) {
  AnswerScript script = Script(R"({"to": "message", "press": "OK", "repeat": false})");

  Taken(script, kMessage);

  EXPECT_EQ(Taken(script, kMessage), "(none)");
}

TEST(AnswerScriptTest, AnswersAreTriedInTheirOrder) {
  AnswerScript script =
      Script(R"({"to": "message", "press": "first"}, {"to": "message", "press": "second"})");

  EXPECT_EQ(Taken(script, kMessage), "first");
  EXPECT_EQ(Taken(script, kMessage), "second");
}

TEST(AnswerScriptTest, AnAnswerThatDoesNotFitStaysForLater) {
  AnswerScript script =
      Script(R"({"to": "dialog", "press": "dialog"}, {"to": "message", "press": "message"})");

  EXPECT_EQ(Taken(script, kMessage), "message");
  EXPECT_EQ(Taken(script, kDialog), "dialog");
}

TEST(AnswerScriptTest, EachKindTakesItsOwnAnswersOnly) {
  AnswerScript script = Script(R"({"to": "sheet", "press": "OK", "repeat": true})");

  EXPECT_EQ(Taken(script, kMessage), "(none)");
  EXPECT_EQ(Taken(script, kDialog), "(none)");
  EXPECT_EQ(Taken(script, {"sheet", "CSheet", "Title", ""}), "OK");
}

TEST(AnswerScriptTest, ContainsFitsAPartOfTheText) {
  AnswerScript script = Script(R"({"to": "message", "contains": "missing", "press": "OK"})");

  EXPECT_EQ(Taken(script, {"message", "", "", "Missing file"}), "(none)");
  EXPECT_EQ(Taken(script, {"message", "", "missing", "other"}), "(none)");
  EXPECT_EQ(Taken(script, kMessage), "OK");
}

TEST(AnswerScriptTest, TitleFitsTheWholeTitle) {
  AnswerScript script = Script(R"({"to": "message", "title": "Title", "press": "OK"})");

  EXPECT_EQ(Taken(script, {"message", "", "Title two", ""}), "(none)");
  EXPECT_EQ(Taken(script, {"message", "", "", "Title"}), "(none)");
  EXPECT_EQ(Taken(script, kMessage), "OK");
}

TEST(AnswerScriptTest, ClassFitsTheWholeClass) {
  AnswerScript script = Script(R"({"to": "dialog", "class": "COne", "press": "OK"})");

  EXPECT_EQ(Taken(script, {"dialog", "COneMore", "Title", ""}), "(none)");
  EXPECT_EQ(Taken(script, kDialog), "OK");
}

TEST(AnswerScriptTest, AllFiltersMustFit) {
  AnswerScript script = Script(
      R"({"to": "message", "title": "Title", "contains": "other", "press": "both"},
         {"to": "message", "press": "any"})");

  EXPECT_EQ(Taken(script, kMessage), "any");
}

TEST(AnswerScriptTest, ButtonsAreOneOrAList) {
  AnswerScript script = Script(
      R"({"to": "sheet", "press": ["Publish", "OK"]}, {"to": "sheet", "press": "OK"},
         {"to": "sheet"})");
  const Shown sheet{"sheet", "", "", ""};

  EXPECT_THAT(script.Take(sheet)->steps.at(0).press, ElementsAre("Publish", "OK"));
  EXPECT_THAT(script.Take(sheet)->steps.at(0).press, ElementsAre("OK"));
  EXPECT_THAT(script.Take(sheet)->steps.at(0).press, IsEmpty());
}

TEST(AnswerScriptTest, ValuesOfAnAnswerAreRead) {
  AnswerScript script = Script(
      R"({"to": "sheet", "page": "P", "select": {"a": "1"}, "set": {"c": "3"}, "show": true,
          "picture": "p.png", "after": 4, "choose": "x.png",
          "steps": [{"press": "OK", "picture": "q.png"}]})");

  const ScriptAnswer answer = *script.Take({"sheet", "", "", ""});

  ASSERT_EQ(answer.steps.size(), 2u);
  EXPECT_EQ(answer.steps[0].page, "P");
  EXPECT_THAT(answer.steps[0].select, ElementsAre(Pair("a", "1")));
  EXPECT_THAT(answer.steps[0].set, ElementsAre(Pair("c", "3")));
  EXPECT_TRUE(answer.steps[0].show);
  EXPECT_EQ(answer.steps[0].picture, "p.png");
  EXPECT_THAT(answer.steps[1].press, ElementsAre("OK"));
  EXPECT_EQ(answer.steps[1].picture, "q.png");
  EXPECT_EQ(answer.choose, "x.png");
  EXPECT_EQ(answer.after, 4u);
}

TEST(AnswerScriptTest, ValuesAreTextsOrSwitches) {
  EXPECT_EQ(ValueOf("\"a text\""), "a text");
  EXPECT_EQ(ValueOf("true"), "true");
  EXPECT_EQ(ValueOf("false"), "false");
}

TEST(AnswerScriptTest, AValueCanComeFromTheEnvironment) {
  const EnvironmentVariable variable("QUTAV_TEST_SECRET", "from outside\n");

  EXPECT_EQ(ValueOf(R"({"environment": "QUTAV_TEST_SECRET"})"), "from outside\n");
}

TEST(AnswerScriptTest, AnUnsetVariableIsAMistake) {
  const EnvironmentVariable variable("QUTAV_TEST_SECRET", std::nullopt);

  EXPECT_EQ(
      MistakeInAnswer(R"({"to": "dialog", "set": {"x": {"environment": "QUTAV_TEST_SECRET"}}})"),
      "the variable QUTAV_TEST_SECRET is not set");
}

class AnswerScriptFileTest : public ::testing::Test {
 protected:
  // The value that a file of these bytes gives.
  std::string ValueOfFile(const std::string& bytes) const {
    folder.Put("secret", bytes);
    return ValueOf(json{{"file", folder.Native("secret").string()}}.dump());
  }
  TemporaryFolder folder;
};

TEST_F(AnswerScriptFileTest, AFilesTextComesWithoutItsLineEnd) {
  EXPECT_EQ(ValueOfFile("secret"), "secret");
  EXPECT_EQ(ValueOfFile("secret\n"), "secret");
  EXPECT_EQ(ValueOfFile("secret\r\n"), "secret");
  EXPECT_EQ(ValueOfFile(""), "");
  EXPECT_EQ(ValueOfFile("\n"), "");
}

TEST_F(AnswerScriptFileTest, AFilesTextLosesOneLineEndOnly) {
  EXPECT_EQ(ValueOfFile("secret\n\n"), "secret\n");
  EXPECT_EQ(ValueOfFile("secret\r\n\r\n"), "secret\r\n");
  EXPECT_EQ(ValueOfFile("two\nlines \n"), "two\nlines ");
}

TEST_F(AnswerScriptFileTest, AMissingFileIsAMistake) {
  const std::string path = folder.Native("gone").string();
  const json answer{{"to", "dialog"}, {"set", {{"x", {{"file", path}}}}}};

  EXPECT_EQ(MistakeInAnswer(answer.dump()), "cannot read the file " + path);
}

TEST(AnswerScriptTest, AMisspeltMemberIsAMistake) {
  EXPECT_EQ(MistakeInAnswer(R"({"to": "message", "pres": "OK"})"),
            "an answer has no member \"pres\"");
}

TEST(AnswerScriptTest, AScriptOfAnotherShapeIsAMistake) {
  for (const char* script : {"[]", "{}", R"({"answers": {}})", R"({"answer": []})", "\"text\""}) {
    EXPECT_EQ(MistakeIn(script), "a script is an object with a list \"answers\"") << script;
  }
  EXPECT_EQ(MistakeIn(R"({"answers": []})"), "");
}

TEST(AnswerScriptTest, AnAnswerThatIsNoObjectIsAMistake) {
  EXPECT_EQ(MistakeInAnswer("\"OK\""), "an answer is an object");
}

TEST(AnswerScriptTest, AnAnswerToSomethingElseIsAMistake) {
  EXPECT_EQ(MistakeInAnswer(R"({"to": "box"})"),
            "\"to\" is \"message\", \"dialog\", \"sheet\", \"file\" or \"folder\"");
}

TEST(AnswerScriptTest, AnAnswerToNothingIsAMistake) {
  EXPECT_THAT(MistakeInAnswer(R"({"press": "OK"})"), HasSubstr("'to'"));
}

TEST(AnswerScriptTest, AValueOfAnotherKindIsAMistake) {
  for (const char* value : {"3", "null", "[]", "{}", R"({"variable": "x"})"}) {
    EXPECT_EQ(MistakeInAnswer(R"({"to": "dialog", "set": {"x": )" + std::string(value) + "}}"),
              "a value is a text, true, false, or names an environment or a file")
        << value;
  }
}

TEST(AnswerScriptTest, AMemberOfAnotherKindIsAMistake) {
  for (const char* member : {R"("after": "two")", R"("repeat": "yes")", R"("press": 3)",
                             R"("title": true)", R"("class": [])", R"("picture": true)"}) {
    EXPECT_NE(MistakeInAnswer(R"({"to": "dialog", )" + std::string(member) + "}"), "") << member;
  }
}

}  // namespace
}  // namespace qutav::test
