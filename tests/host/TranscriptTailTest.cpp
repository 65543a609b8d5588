#include <gtest/gtest.h>

#include <future>
#include <string>
#include <vector>

#include "TestFolder.h"
#include "host/TranscriptTail.h"

namespace qutav::host {
namespace {

TEST(TranscriptTailTest, HandsOverEventsWhileTheCallerIsBusy) {
  const TestFolder folder;
  const auto file = folder.Write("t.jsonl", "");
  std::promise<std::string> first;
  TranscriptTail tail(file, [&](const nlohmann::json& event) { first.set_value(event["event"]); });
  folder.Write("t.jsonl", "{\"event\":\"message\"}\n");
  EXPECT_EQ(first.get_future().get(), "message");
}

TEST(TranscriptTailTest, FinishHandlesWhatWasWrittenLast) {
  const TestFolder folder;
  const auto file = folder.Write("t.jsonl", "");
  std::vector<std::string> seen;
  TranscriptTail tail(file, [&](const nlohmann::json& event) { seen.push_back(event["event"]); });
  folder.Write("t.jsonl", "{\"event\":\"a\"}\n{\"event\":\"b\"}\n");
  tail.Finish();
  EXPECT_EQ(seen, (std::vector<std::string>{"a", "b"}));
}

}  // namespace
}  // namespace qutav::host
