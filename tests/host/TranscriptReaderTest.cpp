#include <gtest/gtest.h>

#include "TestFolder.h"
#include "host/TranscriptReader.h"

namespace qutav::host {
namespace {

void Append(const std::filesystem::path& file, const std::string& bytes) {
  std::ofstream(file, std::ios::binary | std::ios::app) << bytes;
}

TEST(TranscriptReaderTest, ReadsOnlyWhatIsAppended) {
  const TestFolder folder;
  const auto file = folder.Write("t.jsonl", "{\"event\":\"old\"}\n");
  TranscriptReader reader(file);
  Append(file, "{\"event\":\"a\"}\n{\"event\":\"b\"}\n");
  const auto events = reader.ReadNew();
  ASSERT_EQ(events.size(), 2U);
  EXPECT_EQ(events[0]["event"], "a");
  EXPECT_EQ(events[1]["event"], "b");
  EXPECT_TRUE(reader.ReadNew().empty());
}

TEST(TranscriptReaderTest, HalfALineWaitsForItsEnd) {
  const TestFolder folder;
  const auto file = folder.Write("t.jsonl", "");
  TranscriptReader reader(file);
  Append(file, "{\"event\":");
  EXPECT_TRUE(reader.ReadNew().empty());
  Append(file, "\"a\"}\n");
  EXPECT_EQ(reader.ReadNew().size(), 1U);
}

TEST(TranscriptReaderTest, OtherLinesArePassedOver) {
  const TestFolder folder;
  const auto file = folder.Write("t.jsonl", "");
  TranscriptReader reader(file);
  Append(file, "not json\n[1]\n\n{\"event\":\"a\"}\n");
  EXPECT_EQ(reader.ReadNew().size(), 1U);
}

TEST(TranscriptReaderTest, FileMayComeLater) {
  const TestFolder folder;
  TranscriptReader reader(folder.Path() / "t.jsonl");
  EXPECT_TRUE(reader.ReadNew().empty());
  folder.Write("t.jsonl", "{\"event\":\"a\"}\n");
  EXPECT_EQ(reader.ReadNew().size(), 1U);
}

}  // namespace
}  // namespace qutav::host
