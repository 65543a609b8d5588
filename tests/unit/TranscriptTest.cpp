#include <iostream>
#include <sstream>
#include <thread>

#include "ServicesTest.h"
#include "TemporaryFolder.h"
#include "framework/scripted/Transcript.h"

namespace qutav::test {
namespace {

using nlohmann::ordered_json;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::SizeIs;
using ::testing::StartsWith;

// Keeps what goes to standard error.
class CapturedErrors {
 public:
  CapturedErrors() : old_(std::cerr.rdbuf(text_.rdbuf())) {}
  ~CapturedErrors() { std::cerr.rdbuf(old_); }
  CapturedErrors(const CapturedErrors&) = delete;
  CapturedErrors& operator=(const CapturedErrors&) = delete;
  std::string Text() const { return text_.str(); }

 private:
  std::ostringstream text_;
  std::streambuf* old_;
};

const ordered_json kMessage{{"event", "message"}, {"title", "T"}, {"text", "one\ntwo"}};

class TranscriptTest : public ::testing::Test {
 protected:
  std::string Path() const { return folder.Native("transcript.jsonl").string(); }
  std::string Text() const { return folder.BytesOf("transcript.jsonl"); }
  std::vector<std::string> Lines() const {
    std::vector<std::string> lines;
    std::istringstream stream(Text());
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
  }

  TemporaryFolder folder;
  CapturedErrors errors;
};

TEST_F(TranscriptTest, EachEventIsOneObjectOnALineOfItsOwn) {
  Transcript transcript(Path());

  transcript.Write(kMessage);
  transcript.Write({{"event", "tick"}, {"class", "C"}, {"count", 1}});

  EXPECT_EQ(Text(),
            "{\"event\":\"message\",\"title\":\"T\",\"text\":\"one\\ntwo\"}\n"
            "{\"event\":\"tick\",\"class\":\"C\",\"count\":1}\n");
}

TEST_F(TranscriptTest, AnEventIsInTheFileAtOnce) {
  Transcript transcript(Path());

  for (std::size_t count = 1; count <= 3; ++count) {
    transcript.Write(kMessage);
    EXPECT_THAT(Lines(), SizeIs(count));
  }
}

TEST_F(TranscriptTest, TheFileIsAppendedTo) {
  folder.Put("transcript.jsonl", "{}\n");

  Transcript(Path()).Write({{"event", "tick"}});

  EXPECT_EQ(Text(), "{}\n{\"event\":\"tick\"}\n");
}

TEST_F(TranscriptTest, TextIsWrittenInUtf8) {
  Transcript(Path()).Write({{"event", "message"}, {"text", "Tr\xC3\xA4ume \xE3\x81\x82"}});

  EXPECT_EQ(Text(), "{\"event\":\"message\",\"text\":\"Tr\xC3\xA4ume \xE3\x81\x82\"}\n");
}

TEST_F(TranscriptTest, BytesThatAreNoUtf8AreReplaced) {
  Transcript(Path()).Write({{"event", "message"}, {"text", "a\xFFz"}});

  EXPECT_EQ(Text(), "{\"event\":\"message\",\"text\":\"a\xEF\xBF\xBDz\"}\n");
}

TEST_F(TranscriptTest, WithAFileOnlyAMistakeOfTheScriptGoesToStandardError) {
  Transcript transcript(Path());

  transcript.Write(kMessage);
  EXPECT_EQ(errors.Text(), "");

  transcript.Write({{"event", "script-error"}, {"text", "no button"}});
  EXPECT_EQ(errors.Text(), "The script is wrong. no button\n");
  EXPECT_THAT(Lines(), SizeIs(2));
}

TEST_F(TranscriptTest, AFileThatCannotBeWrittenIsTold) {
  const std::string path = folder.Native("gone/transcript").string();

  Transcript transcript(path);

  EXPECT_EQ(errors.Text(), "The transcript " + path + " cannot be written.\n");
}

TEST_F(TranscriptTest, OnAConsoleEventsAreTextForAPerson) {
  std::ostringstream console;
  Transcript transcript(console);

  transcript.Write(kMessage);
  transcript.Write({{"event", "tick"}, {"class", "C"}, {"count", 1}});
  transcript.Write({{"event", "dialog"}, {"controls", {{{"text", "Publishing ..."}}}}});
  transcript.Write({{"event", "dialog"}, {"controls", ordered_json::array()}});
  transcript.Write({{"event", "sheet"}, {"title", "Settings"}});
  transcript.Write({{"event", "script-error"}, {"text", "no button"}});

  EXPECT_EQ(console.str(),
            "T: one\ntwo\nPublishing ...\nSettings\nThe script is wrong. no button\n");
  EXPECT_EQ(errors.Text(), "");
}

TEST_F(TranscriptTest, LinesOfSeveralThreadsStayWhole) {
  Transcript transcript(Path());
  const std::string longText(5000, 'x');
  std::vector<std::thread> writers;

  for (int i = 0; i < 4; ++i) {
    writers.emplace_back([&] {
      for (int j = 0; j < 50; ++j) transcript.Write({{"event", "message"}, {"text", longText}});
    });
  }
  for (std::thread& writer : writers) writer.join();

  EXPECT_THAT(Lines(), SizeIs(200));
  EXPECT_THAT(Lines(), Each("{\"event\":\"message\",\"text\":\"" + longText + "\"}"));
}

}  // namespace
}  // namespace qutav::test
