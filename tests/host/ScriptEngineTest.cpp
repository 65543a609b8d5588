#include <gtest/gtest.h>

#include <stdexcept>

#include "host/ScriptEngine.h"

namespace qutav::host {
namespace {

ScriptValue Evaluated(ScriptEngine& engine, std::u16string_view text) {
  const Evaluation evaluation = engine.Evaluate(text, "test");
  EXPECT_TRUE(evaluation.succeeded);
  return evaluation.value;
}

TEST(ScriptEngineTest, GivesTheValueOfTheLastExpression) {
  ScriptEngine engine;
  EXPECT_EQ(Evaluated(engine, u"var a = 40; a + 2;"), ScriptValue(42.0));
  EXPECT_EQ(Evaluated(engine, u"'x' + a"), ScriptValue(u"x40"));
  EXPECT_EQ(Evaluated(engine, u"a > 3"), ScriptValue(true));
  EXPECT_EQ(Evaluated(engine, u"null"), ScriptValue());
}

TEST(ScriptEngineTest, SurrogatePairsPassBothWays) {
  ScriptEngine engine;
  EXPECT_EQ(Evaluated(engine, u"'\U0001F3AE'.length"), ScriptValue(2.0));
  EXPECT_EQ(Evaluated(engine, u"'\U0001F3AE' + '\\uD83C\\uDFAE'"),
            ScriptValue(u"\U0001F3AE\U0001F3AE"));
}

TEST(ScriptEngineTest, TextOutsideAsciiPassesBothWays) {
  ScriptEngine engine;
  EXPECT_EQ(Evaluated(engine, u"'\u00DCber \u30B2\u30FC\u30E0'"),
            ScriptValue(u"\u00DCber \u30B2\u30FC\u30E0"));
}

TEST(ScriptEngineTest, ThrowingScriptGivesItsMessage) {
  ScriptEngine engine;
  const Evaluation evaluation = engine.Evaluate(u"throw new TypeError('no good');", "test");
  EXPECT_FALSE(evaluation.succeeded);
  EXPECT_EQ(evaluation.error, u"TypeError: no good");
}

TEST(ScriptEngineTest, UnescapedQuoteIsASyntaxErrorAndTheEngineGoesOn) {
  ScriptEngine engine;
  EXPECT_FALSE(engine.Evaluate(u"f(\"a \"quoted\" word\");", "test").succeeded);
  EXPECT_EQ(Evaluated(engine, u"1 + 1"), ScriptValue(2.0));
}

TEST(ScriptEngineTest, NativeExceptionIsAScriptErrorThatAScriptCanCatch) {
  ScriptEngine engine;
  engine.DefineFunction(
      {"fail", 0, [](const auto&) -> ScriptValue { throw std::runtime_error("broken 100%s"); }});
  EXPECT_EQ(Evaluated(engine, u"try { fail() } catch (e) { e.message }"),
            ScriptValue(u"broken 100%s"));
}

TEST(ScriptEngineTest, FunctionSeesItsArgumentsAndUndefinedForMissingOnes) {
  ScriptEngine engine;
  std::vector<ScriptValue> seen;
  engine.DefineFunction({"take", 3, [&](const std::vector<ScriptValue>& arguments) {
                           seen = arguments;
                           return ScriptValue();
                         }});
  Evaluated(engine, u"take('a \"b\"', 7)");
  EXPECT_EQ(seen, (std::vector<ScriptValue>{u"a \"b\"", 7.0, ScriptValue()}));
}

TEST(ScriptEngineTest, ArgumentWhoseConversionThrowsIsTakenAsText) {
  ScriptEngine engine;
  std::vector<ScriptValue> seen;
  engine.DefineFunction({"take", 1, [&](const std::vector<ScriptValue>& arguments) {
                           seen = arguments;
                           return ScriptValue();
                         }});
  Evaluated(engine, u"take({ toString: function() { throw new Error('never'); } })");
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_TRUE(std::holds_alternative<std::u16string>(seen[0]));
}

TEST(ScriptEngineTest, EvaluationRunsInsideAFunctionOfAnotherOne) {
  ScriptEngine engine;
  engine.DefineFunction({"again", 1, [&](const std::vector<ScriptValue>& arguments) {
                           return engine.Evaluate(*TextOf(arguments[0]), "inner").value;
                         }});
  EXPECT_EQ(Evaluated(engine, u"1 + again('2 + again(\"3\")')"), ScriptValue(6.0));
}

TEST(ScriptEngineTest, PropertiesAreReadAnewAndNotWritten) {
  ScriptEngine engine;
  double width = 800;
  ScriptObject stage;
  stage.properties = {{"width", [&] { return width; }}};
  engine.DefineGlobal("stage", engine.AddObject(stage));
  EXPECT_EQ(Evaluated(engine, u"stage.width = 5; stage.width"), ScriptValue(800.0));
  width = 900;
  EXPECT_EQ(Evaluated(engine, u"stage.width"), ScriptValue(900.0));
}

TEST(ScriptEngineTest, EndlessRecursionIsAnErrorAndNotTheEnd) {
  ScriptEngine engine;
  EXPECT_FALSE(engine.Evaluate(u"(function f() { return f() + 1; })()", "test").succeeded);
  EXPECT_EQ(Evaluated(engine, u"2 * 2"), ScriptValue(4.0));
}

TEST(ScriptEngineTest, EngineItselfIsHiddenFromScripts) {
  ScriptEngine engine;
  EXPECT_EQ(Evaluated(engine, u"typeof Duktape"), ScriptValue(u"undefined"));
}

}  // namespace
}  // namespace qutav::host
