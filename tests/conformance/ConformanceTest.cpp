// The built library, loaded as a host loads it and entered through its export alone.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>
#include <random>
#include <sstream>

#include "EnvironmentVariable.h"
#include "FakeHost.h"
#include "conformance/System.h"
#include "platform/Text.h"

namespace qutav::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;

using Entry = std::int32_t (*)(const void* table, std::uint32_t size);

constexpr std::uint32_t kWholeTable = 448;

// A host loads the library once and never lets it go.
void* TheLibrary() {
  static void* library = LoadLibraryFile(QUTAV_LIBRARY);
  EXPECT_NE(library, nullptr);
  return library;
}

std::string ReadAll(const fs::path& path) {
  std::ifstream stream(path, std::ios::binary);
  std::ostringstream bytes;
  bytes << stream.rdbuf();
  return bytes.str();
}

fs::path suiteFolder;

// The library reads its environment once, when it is first entered.
class HostEnvironmentVariables : public ::testing::Environment {
 public:
  void SetUp() override {
    do {
      suiteFolder = fs::temp_directory_path() /
                    ("qutav-conformance-" + std::to_string(std::random_device()()));
    } while (!fs::create_directory(suiteFolder));
    PutEnvironment("QUTAV_TRANSCRIPT", (suiteFolder / "transcript.jsonl").string());
    PutEnvironment("QUTAV_SCRIPT", (suiteFolder / "script.json").string());
    KeepInFolder(suiteFolder);
    // Only the English sheet is answered.
    std::ofstream(suiteFolder / "script.json")
        << R"({"answers": [{"to": "sheet", "title": "TAV for Android Settings", "repeat": true,
                "page": "Deployment",
                "set": {"Certificate:": ")"
        << (suiteFolder / "my.p12").generic_string() << R"(", "Password:": "secret"},
                "press": ["Publish", "Cancel"]}]})";
    std::ofstream(suiteFolder / "my.p12") << "a keystore";
    InstallTool(suiteFolder);
    InstallAdb(suiteFolder / "sdk");
  }

  void TearDown() override {
    RemoveTool();
    // The library has its transcript open, which keeps the folder on some systems.
    std::error_code ignored;
    fs::remove_all(suiteFolder, ignored);
  }
};

const auto* const theVariables = ::testing::AddGlobalTestEnvironment(new HostEnvironmentVariables);

class ConformanceTest : public ::testing::Test {
 protected:
  ConformanceTest() : library(TheLibrary()) {
    enter = reinterpret_cast<Entry>(ExportOf(library, "KR_InitWrapper"));
    folder = suiteFolder / ::testing::UnitTest::GetInstance()->current_test_info()->name();
    fs::create_directories(folder);
    host.uriToPath = PathOfUri;
    transcriptStart = ReadAll(suiteFolder / "transcript.jsonl").size();
  }

  std::int32_t Enter(std::uint32_t size = kWholeTable) {
    const HostTable table = host.Table();
    return enter(table.words.data(), size);
  }

  ScriptFunction Function(const std::u16string& name) const {
    for (const FakeHost::Defined& defined : host.defined) {
      if (defined.name == name) return defined.function;
    }
    ADD_FAILURE() << "not defined: " << ToUtf8(name);
    return nullptr;
  }

  std::u16string Uri(const fs::path& path) const {
    const std::u16string text = ReplaceAll(path.generic_u16string(), u" ", u"%20");
    return (text.starts_with(u'/') ? u"file://" : u"file:///") + text;
  }

  std::int32_t Publish(const std::u16string& movie) {
    const HostValue arguments[] = {host.Text(Uri(folder / "Game.qud")), host.Text(movie),
                                   host.Text(u"26.0")};
    return Function(u"Publish")(nullptr, nullptr, 3, arguments, nullptr);
  }

  std::vector<nlohmann::json> Shown() const {
    std::vector<nlohmann::json> events;
    std::istringstream lines(ReadAll(suiteFolder / "transcript.jsonl").substr(transcriptStart));
    for (std::string line; std::getline(lines, line);) {
      events.push_back(nlohmann::json::parse(line));
    }
    return events;
  }

  void* library;
  Entry enter = nullptr;
  FakeHost host;
  fs::path folder;
  std::size_t transcriptStart = 0;
};

TEST_F(ConformanceTest, TheEntryDefinesTheSevenFunctionsInOrder) {
  EXPECT_EQ(Enter(), 1);

  std::vector<std::pair<std::string, std::uint32_t>> defined;
  for (const auto& function : host.defined) {
    defined.emplace_back(ToUtf8(function.name), function.argumentCount);
  }
  EXPECT_THAT(
      defined,
      ElementsAre(std::pair("Publish", 3u), std::pair("TestMovie", 4u), std::pair("DebugMovie", 4u),
                  std::pair("TestOnDevice", 3u), std::pair("DebugOnDevice", 3u),
                  std::pair("OpenSettingDialog", 3u), std::pair("GetConnectedDevices", 3u)));
}

TEST_F(ConformanceTest, NothingButTheEntryIsExported) {
  EXPECT_NE(ExportOf(library, "KR_InitWrapper"), nullptr);

  EXPECT_THAT(ExportedNames(QUTAV_LIBRARY), ElementsAre("KR_InitWrapper"));
}

TEST_F(ConformanceTest, ATableWithoutDefineFunctionDefinesNothing) {
  HostTable table = host.Table();
  table.words[1] = 0;

  EXPECT_EQ(enter(table.words.data(), kWholeTable), 0);

  EXPECT_TRUE(host.defined.empty());
}

TEST_F(ConformanceTest, FunctionsOfAHostThatCannotEvaluateAnswerOneInSilence) {
  EXPECT_EQ(Enter(16), 1);
  ASSERT_EQ(host.defined.size(), 7u);

  for (const auto& function : host.defined) {
    const HostValue arguments[4] = {};
    EXPECT_EQ(function.function(nullptr, nullptr, 4, arguments, nullptr), 1)
        << ToUtf8(function.name);
  }

  EXPECT_TRUE(host.scripts.empty());
  EXPECT_TRUE(Shown().empty());
}

TEST_F(ConformanceTest, ALongMovieUriEndsACommandInSilence) {
  Enter();

  EXPECT_EQ(Publish(u"file:///" + std::u16string(253, u'a')), 1);

  EXPECT_TRUE(Shown().empty());
}

TEST_F(ConformanceTest, AMovieInAVanishedFolderIsToldAndNothingElseHappens) {
  Enter();

  EXPECT_EQ(Publish(Uri(folder / "gone" / "Game.qmv")), 1);

  const auto shown = Shown();
  ASSERT_EQ(shown.size(), 1u);
  EXPECT_EQ(shown[0]["text"], "The destination folder for publishing qmv file does not exist.");
  EXPECT_EQ(shown[0]["title"], "Zenvoka Kestrow");
  EXPECT_EQ(shown[0]["icon"], "information");
  EXPECT_TRUE(fs::is_empty(folder));
}

TEST_F(ConformanceTest, ADocumentOnANetworkShareIsRefused) {
  host.uriToPath = [](const std::u16string&) { return u"\\\\server\\share\\Game.qmv"; };
  Enter();

  EXPECT_EQ(Publish(u"file://server/share/Game.qmv"), 1);

  const auto shown = Shown();
  ASSERT_EQ(shown.size(), 1u);
  EXPECT_EQ(shown[0]["text"],
            "Publishing to remote network location is not supported. Please update the output file "
            "path in Publish Settings and try again.");
}

TEST_F(ConformanceTest, AFirstPublishWritesADescriptorAndOpensTheSheetForTheCertificate) {
  Enter();
  host.languageCode = u"su_DO";

  EXPECT_EQ(Publish(Uri(folder / "My Game.qmv")), 1);

  const std::string descriptor = ReadAll(folder / "My Game-app.xml");
  EXPECT_NE(descriptor.find("My%20Game.qmv"), std::string::npos);
  EXPECT_NE(descriptor.find("<id>MyGame</id>"), std::string::npos);
  const auto shown = Shown();
  ASSERT_FALSE(shown.empty());
  EXPECT_EQ(shown[0]["event"], "sheet");
  EXPECT_EQ(shown[0]["page"], 1);
  EXPECT_EQ(shown[0]["title"], "[su] $_TAV for Android Settings_#");
}

class WholePublishTest : public ConformanceTest {
 protected:
  WholePublishTest() {
    host.data[u"com.tav.sdk.path"] = FromUtf8((suiteFolder / "sdk").string());
    std::ofstream(folder / "Game.qmv") << "QMV";
    std::ofstream(folder / "Game-app.xml")
        << R"(<application xmlns="http://ns.zenvoka.example/tav/application/26.0">)"
        << "<id>com.example.game</id><name>My Game</name><icon/></application>";
  }

  std::vector<std::string> PublishAndListMessages(const std::string& ending) {
    std::ofstream(suiteFolder / "ending") << ending << "\n";
    Enter();
    EXPECT_EQ(Publish(Uri(folder / "Game.qmv")), 1);
    std::vector<std::string> messages;
    for (const auto& event : Shown()) {
      if (event["event"] == "message") messages.push_back(event["text"]);
    }
    return messages;
  }

  std::vector<std::string> Arguments() const {
    std::vector<std::string> arguments;
    std::istringstream lines(ReadAll(suiteFolder / "arguments"));
    for (std::string line; std::getline(lines, line);) arguments.push_back(line);
    return arguments;
  }
};

TEST_F(WholePublishTest, AFinishedToolIsToldAsAPackage) {
  EXPECT_THAT(PublishAndListMessages("0"), ElementsAre("APK file has been created."));

  const std::string movieFolder = folder.generic_string() + "/";
  const auto arguments = Arguments();
  ASSERT_GE(arguments.size(), 2u);
  EXPECT_EQ(arguments[0], "-jar");
  EXPECT_THAT(
      std::vector<std::string>(arguments.begin() + 2, arguments.end()),
      ElementsAre("-package", "-target", "apk-captive-runtime", "-arch", "armv7", "-storetype",
                  "PKCS12", "-keystore", (suiteFolder / "my.p12").generic_string(), "-storepass",
                  "secret", movieFolder + "My Game.apk", movieFolder + "Game-app.xml", "-C",
                  movieFolder, "Game.qmv"));
}

TEST_F(WholePublishTest, AFailedToolIsToldByItsWords) {
  EXPECT_THAT(PublishAndListMessages("1\nGame-app.xml: error 303: icon"),
              ElementsAre("Error creating files.\n\nIcon file is missing."));
}

TEST_F(WholePublishTest, ThePasswordIsMaskedInTheTranscript) {
  PublishAndListMessages("0");

  for (const auto& event : Shown()) {
    EXPECT_EQ(event.dump().find("secret"), std::string::npos) << event.dump();
  }
}

TEST_F(ConformanceTest, AMalformedDescriptorIsToldAndLeftAsItIs) {
  std::ofstream(folder / "Game-app.xml") << "<application";
  Enter();

  EXPECT_EQ(Publish(Uri(folder / "Game.qmv")), 1);

  ASSERT_FALSE(Shown().empty());
  EXPECT_EQ(Shown()[0]["text"], "Application descriptor file cannot be parsed.");
  EXPECT_EQ(Shown()[0]["icon"], "warning");
  EXPECT_EQ(ReadAll(folder / "Game-app.xml"), "<application");
}

TEST_F(ConformanceTest, AnExceptionOfTheHostNeverCrossesAScriptFunction) {
  Enter();
  host.onScript = [](const std::u16string& script) -> std::optional<HostValue> {
    if (script == u"qu.getDocumentDOM().playerTarget;") throw std::runtime_error("host");
    return {};
  };

  EXPECT_EQ(Publish(Uri(folder / "Game.qmv")), 1);

  ASSERT_EQ(Shown().size(), 1u);
  EXPECT_EQ(Shown()[0]["text"], "Unknown error.");
  EXPECT_EQ(Shown()[0]["icon"], "warning");
}

}  // namespace
}  // namespace qutav::test
