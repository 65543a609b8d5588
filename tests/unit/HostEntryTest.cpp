#include <numeric>
#include <stdexcept>

#include "DocumentTest.h"
#include "win/DocumentPaths.h"
#include "win/InterfaceLanguage.h"
#include "win/MoreshJSExtension.h"
#include "win/PublishCommand.h"

namespace qutav::test {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr std::uint32_t kWholeTable = 448;

std::vector<void*> librariesSeen;
std::size_t definitionsBeforeTheHostStops = 0;

// Answers with the number of the definition, and takes itself away after the given one.
std::int32_t CountDefinitions(void* library, const char16_t*, ScriptFunction, std::uint32_t) {
  librariesSeen.push_back(library);
  if (librariesSeen.size() == definitionsBeforeTheHostStops) HostEnvironment.words[1] = 0;
  return static_cast<std::int32_t>(librariesSeen.size());
}

class HostEntryTest : public DocumentTest {
 protected:
  HostEntryTest() : table(host.Table()) {
    librariesSeen.clear();
    definitionsBeforeTheHostStops = 0;
    HostEnvironment = HostTable();
  }

  std::int32_t Enter(std::uint32_t size = kWholeTable) {
    return KR_InitWrapper(table.words.data(), size);
  }

  void CountOnly() { table.words[1] = reinterpret_cast<std::uintptr_t>(&CountDefinitions); }

  std::int32_t Call(const FakeHost::Defined& function) {
    const HostValue arguments[] = {host.Text(documentUri), host.Text(movieUri), host.Text(version),
                                   host.Text(u"mobileDevice")};
    return function.function(&context, &object, function.argumentCount, arguments, &result);
  }

  std::int32_t Call(const std::u16string& name) {
    for (const FakeHost::Defined& function : host.defined) {
      if (function.name == name) return Call(function);
    }
    ADD_FAILURE() << "not defined";
    return -1;
  }

  std::vector<std::int32_t> CallAll() {
    std::vector<std::int32_t> statuses;
    for (const FakeHost::Defined& function : host.defined) statuses.push_back(Call(function));
    return statuses;
  }

  // Lets the first step of every command fail with what nobody foresaw.
  void FailUnforeseen() {
    host.uriToPath = [](const std::u16string&) -> std::u16string {
      throw std::runtime_error("unforeseen");
    };
  }

  HostTable table;
  int context = 0;
  int object = 0;
  HostValue result = 77;
};

TEST_F(HostEntryTest, DefinesTheSevenFunctionsInOrderWithTheirArgumentCounts) {
  EXPECT_EQ(Enter(), 1);

  std::vector<std::pair<std::u16string, std::uint32_t>> defined;
  for (const auto& function : host.defined) {
    defined.emplace_back(function.name, function.argumentCount);
  }
  EXPECT_THAT(defined,
              ElementsAre(std::pair(u"Publish", 3u), std::pair(u"TestMovie", 4u),
                          std::pair(u"DebugMovie", 4u), std::pair(u"TestOnDevice", 3u),
                          std::pair(u"DebugOnDevice", 3u), std::pair(u"OpenSettingDialog", 3u),
                          std::pair(u"GetConnectedDevices", 3u)));
}

TEST_F(HostEntryTest, PassesTheLibraryObjectToEveryDefinition) {
  CountOnly();

  Enter();

  EXPECT_THAT(librariesSeen, SizeIs(7));
  EXPECT_THAT(librariesSeen, Each(reinterpret_cast<void*>(0x1234)));
}

TEST_F(HostEntryTest, ReturnsTheResultOfTheLastDefinition) {
  CountOnly();

  EXPECT_EQ(Enter(), 7);
}

TEST_F(HostEntryTest, StopsWithZeroWhenTheHostCanDefineNoMore) {
  CountOnly();
  definitionsBeforeTheHostStops = 3;

  EXPECT_EQ(Enter(), 0);

  EXPECT_THAT(librariesSeen, SizeIs(3));
}

TEST_F(HostEntryTest, ATableOf448BytesFillsTheEnvironment) {
  std::iota(table.words.begin(), table.words.end(), 1000);
  CountOnly();

  Enter(448);

  EXPECT_EQ(HostEnvironment.words, table.words);
  EXPECT_EQ(HostEnvironment.words[55], 1055u);
}

TEST_F(HostEntryTest, ATableOf16BytesLeavesAllButTheFirstTwoEntriesNull) {
  EXPECT_EQ(Enter(16), 1);

  EXPECT_EQ(HostEnvironment.words[0], 0x1234u);
  EXPECT_EQ(HostEnvironment.words[1], table.words[1]);
  EXPECT_EQ(std::accumulate(HostEnvironment.words.begin() + 2, HostEnvironment.words.end(), 0u),
            0u);
}

TEST_F(HostEntryTest, AfterATableOf16BytesTheSevenFunctionsReturnOneAndEvaluateNothing) {
  Enter(16);

  EXPECT_EQ(CallAll(), std::vector<std::int32_t>(7, 1));

  EXPECT_THAT(host.scripts, IsEmpty());
  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(HostEntryTest, ALongerTableIsCutAt56Words) {
  std::vector<std::uintptr_t> longer(table.words.begin(), table.words.end());
  longer.resize(60, 0xBAD);
  HostContext = {&context, &object};

  EXPECT_EQ(KR_InitWrapper(longer.data(), 480), 1);

  EXPECT_EQ(HostEnvironment.words, table.words);
  EXPECT_EQ(HostContext.context, &context);
}

TEST_F(HostEntryTest, AShorterTableLeavesNothingOfTheOneBefore) {
  Enter();

  Enter(16);

  EXPECT_EQ(HostEnvironment.words[19], 0u);
  EXPECT_EQ(HostEnvironment.words[55], 0u);
}

TEST_F(HostEntryTest, AWordOfWhichOnlyAPartLiesInTheTableIsCopied) {
  EXPECT_EQ(Enter(9), 1);

  EXPECT_EQ(HostEnvironment.words[1], table.words[1]);
  EXPECT_THAT(host.defined, SizeIs(7));
}

TEST_F(HostEntryTest, ATableWithoutDefineFunctionDefinesNothingAndReturnsZero) {
  table.words[1] = 0;

  EXPECT_EQ(Enter(), 0);

  EXPECT_THAT(host.defined, IsEmpty());
}

TEST_F(HostEntryTest, SetsTheDebugPort) {
  DebugPort = 7940;

  Enter();

  EXPECT_EQ(DebugPort, 7936);
}

TEST_F(HostEntryTest, EveryFunctionStoresItsContextAndObject) {
  Enter();
  movieUri = u"file:///C:/gone/Game.qmv";

  for (const FakeHost::Defined& function : host.defined) {
    HostContext = HostCallContext();
    Call(function);
    EXPECT_EQ(HostContext.context, &context);
    EXPECT_EQ(HostContext.object, &object);
  }
}

TEST_F(HostEntryTest, EveryFunctionEntersTheLanguageOfTheHostAndLeavesIt) {
  Enter();
  host.languageCode = u"de_DE";
  movieUri = u"file:///C:/gone/Game.qmv";

  for (const FakeHost::Defined& function : host.defined) {
    language.switches.clear();
    Call(function);
    EXPECT_THAT(language.switches, ElementsAre(1031, 1033));
  }
}

TEST_F(HostEntryTest, TheBodyRunsInTheLanguageOfTheHost) {
  Enter();
  host.languageCode = u"su_DO";
  movieUri = u"file:///C:/gone/Game.qmv";

  Call(u"Publish");

  EXPECT_THAT(frontEnd.Texts(), ElementsAre(u"[su] $_The destination folder for publishing qmv "
                                            u"file does not exist._#"));
}

TEST_F(HostEntryTest, NoFunctionWritesTheResultValue) {
  Enter();
  movieUri = u"file:///C:/gone/Game.qmv";

  CallAll();

  EXPECT_EQ(result, 77u);
}

TEST_F(HostEntryTest, AFailingPreparationCountsAsSuccessInEveryFunction) {
  Enter();
  documentUri = u"file:///C:/gone/Game.qud";
  movieUri = u"file:///C:/gone/Game.qmv";

  EXPECT_EQ(CallAll(), std::vector<std::int32_t>(7, 1));
}

TEST_F(HostEntryTest, AMovieUriOf261UnitsEndsEveryFunctionSilentlyWithStatusOne) {
  Enter();
  movieUri = u"file:///C:/m/" + std::u16string(248, u'a');
  documentUri = movieUri;

  EXPECT_EQ(CallAll(), std::vector<std::int32_t>(7, 1));

  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(HostEntryTest, OnlyTestMovieTakesTheMovieBeforeTheDocument) {
  Enter();
  documentUri = u"file:///C:/gone/First.qud";
  movieUri = u"file:///C:/gone/Second.qmv";
  std::vector<std::u16string> movies;

  for (const FakeHost::Defined& function : host.defined) {
    Call(function);
    movies.push_back(DocumentPaths.MovieUri);
  }

  EXPECT_THAT(movies,
              ElementsAre(movieUri, documentUri, movieUri, movieUri, movieUri, movieUri, movieUri));
}

TEST_F(HostEntryTest, AnExceptionShowsUnknownErrorAndGivesTheStatusOfTheFunctionsFailures) {
  Enter();
  FailUnforeseen();

  EXPECT_EQ(CallAll(), (std::vector<std::int32_t>{1, 0, 0, 1, 1, 1, 1}));

  ASSERT_EQ(frontEnd.messages.size(), 7u);
  for (const ShownMessage& message : frontEnd.messages) {
    EXPECT_EQ(message.text, u"Unknown error.");
    EXPECT_EQ(message.icon, MessageIcon::kWarning);
  }
}

TEST_F(HostEntryTest, TheLanguageIsLeftAfterAnException) {
  Enter();
  host.languageCode = u"de_DE";
  FailUnforeseen();

  Call(u"Publish");

  EXPECT_THAT(language.switches, ElementsAre(1031, 1033));
}

TEST_F(HostEntryTest, AnExceptionInTheMessageBoxDoesNotReachTheHost) {
  Enter();
  FailUnforeseen();
  frontEnd.onMessage = [](const MessageBoxRequest&) { throw std::runtime_error("no box"); };

  EXPECT_EQ(Call(u"Publish"), 1);
}

}  // namespace
}  // namespace qutav::test
