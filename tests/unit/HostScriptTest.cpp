#include "ServicesTest.h"
#include "win/HostScript.h"

namespace qutav::test {
namespace {

struct SeenEvaluation {
  void* context = nullptr;
  void* object = nullptr;
  std::u16string script;
  char16_t terminator = u'?';
  std::string source;
};

SeenEvaluation seen;

std::int32_t RecordEvaluation(void* context, void* object, const char16_t* script,
                              std::uint32_t length, const char* source, std::uint32_t,
                              HostValue* result) {
  seen = {context, object, std::u16string(script, length), script[length], source};
  *result = 42;
  return 7;
}

void* contextOfConversion = nullptr;

const char16_t* GiveUndefined(void* context, HostValue, std::uint32_t* length) {
  contextOfConversion = context;
  *length = 9;
  return u"undefined";
}

const char16_t* GiveTextWithoutLength(void*, HostValue, std::uint32_t* length) {
  *length = 0;
  return u"text";
}

std::int32_t LeaveTheNumberAlone(void*, HostValue, std::int32_t*) { return 0; }

template <typename Function>
std::uintptr_t Word(Function function) {
  return reinterpret_cast<std::uintptr_t>(function);
}

class HostScriptTest : public ServicesTest {
 protected:
  HostScriptTest() { seen = {}; }
  int context = 0;
  int object = 0;
  HostCallContext call{&context, &object};
};

TEST_F(HostScriptTest, AnEvaluationPassesContextObjectAndSourceName) {
  HostEnvironment.words[55] = Word(&RecordEvaluation);

  const HostResult result = EvaluateHostScript(call, u"qu.languageCode;");

  EXPECT_EQ(seen.context, &context);
  EXPECT_EQ(seen.object, &object);
  EXPECT_EQ(seen.source, "MoreshJSExtension");
  EXPECT_EQ(result.status, 7);
  EXPECT_EQ(result.value, 42u);
}

TEST_F(HostScriptTest, TheLengthOfAScriptIsInUnitsWithoutItsTerminator) {
  HostEnvironment.words[55] = Word(&RecordEvaluation);

  EvaluateHostScript(call, u"qu.trace(\"\U0001F600\");");

  EXPECT_EQ(seen.script, u"qu.trace(\"\xD83D\xDE00\");");
  EXPECT_EQ(seen.terminator, u'\0');
}

TEST_F(HostScriptTest, AScriptEndsAtItsFirstNul) {
  HostEnvironment.words[55] = Word(&RecordEvaluation);

  EvaluateHostScript(call, std::u16string(u"qu.a;\0qu.b;", 11));

  EXPECT_EQ(seen.script, u"qu.a;");
}

TEST_F(HostScriptTest, WithoutAnEvaluatorStatusAndValueAreZero) {
  HostEnvironment.words[55] = 0;

  const HostResult result = EvaluateHostScript(call, u"qu.languageCode;");

  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.value, 0u);
}

TEST_F(HostScriptTest, WithoutAnEvaluatorNothingIsConverted) {
  HostEnvironment.words[55] = 0;
  HostEnvironment.words[19] = Word(&GiveUndefined);

  EXPECT_EQ(EvaluateToText(call, u"qu.languageCode;"), std::nullopt);
  EXPECT_EQ(EvaluateToPresentText(call, u"qu.languageCode;"), std::nullopt);
}

TEST_F(HostScriptTest, WithoutAConverterThereIsNoText) {
  HostEnvironment.words[19] = 0;

  EXPECT_EQ(EvaluateToText(call, u"qu.languageCode;"), std::nullopt);
}

TEST_F(HostScriptTest, AConversionPassesTheContext) {
  HostEnvironment.words[19] = Word(&GiveUndefined);

  EXPECT_EQ(HostText(call, 2), u"undefined");

  EXPECT_EQ(contextOfConversion, &context);
}

TEST_F(HostScriptTest, ATextIsPresentWhenItHasText) {
  EXPECT_EQ(PresentHostText(call, host.Text(u"C:/m/")), u"C:/m/");
}

TEST_F(HostScriptTest, AnEmptyTextIsOneWhereOnlyNullCountsAsNone) {
  EXPECT_EQ(HostTextOrNull(call, host.Text(u"")), u"");
  EXPECT_EQ(HostTextOrNull(call, host.Text(u"desktop")), u"desktop");
  EXPECT_EQ(HostTextOrNull(call, 0), std::nullopt);
  EXPECT_EQ(HostText(call, host.Text(u"")), std::nullopt);
}

TEST_F(HostScriptTest, ANullTextIsNotPresent) { EXPECT_EQ(PresentHostText(call, 0), std::nullopt); }

TEST_F(HostScriptTest, ATextOfLengthZeroIsNotPresent) {
  HostEnvironment.words[19] = Word(&GiveTextWithoutLength);

  EXPECT_EQ(PresentHostText(call, 2), std::nullopt);
}

TEST_F(HostScriptTest, TheNumberZeroIsNotPresentThoughItConvertsToText) {
  const HostValue zero = 1;

  EXPECT_EQ(HostText(call, zero), u"0");
  EXPECT_EQ(PresentHostText(call, zero), std::nullopt);
}

TEST_F(HostScriptTest, TheTextZeroIsPresent) {
  EXPECT_EQ(PresentHostText(call, host.Text(u"0")), u"0");
}

TEST_F(HostScriptTest, AnIntegerIsConverted) {
  EXPECT_EQ(HostInteger(call, host.Integer(-3), 5), -3);
}

TEST_F(HostScriptTest, WithoutAnIntegerConverterTheGivenNumberStands) {
  HostEnvironment.words[4] = 0;

  EXPECT_EQ(HostInteger(call, host.Integer(2), -1), -1);
}

TEST_F(HostScriptTest, AConverterThatGivesNoIntegerLeavesTheGivenNumber) {
  HostEnvironment.words[4] = Word(&LeaveTheNumberAlone);

  EXPECT_EQ(HostInteger(call, host.Integer(2), 0), 0);
}

}  // namespace
}  // namespace qutav::test
