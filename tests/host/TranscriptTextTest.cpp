#include <gtest/gtest.h>

#include "host/TranscriptText.h"

namespace qutav::host {
namespace {

TEST(TranscriptTextTest, MessageShowsTitleIconAndAllLines) {
  const nlohmann::json event = {
      {"event", "message"}, {"title", "Zenvoka Kestrow"},
      {"icon", "warning"},  {"text", "Icon file is missing.\r\nicons/a.png\n"},
      {"buttons", {"OK"}},  {"answer", "OK"}};
  EXPECT_EQ(ReadableEvent(event),
            "Zenvoka Kestrow, warning: Icon file is missing.\n    icons/a.png");
}

TEST(TranscriptTextTest, QuestionShowsItsAnswer) {
  const nlohmann::json event = {{"event", "message"}, {"title", "T"},
                                {"icon", "warning"},  {"text", "Continue?"},
                                {"answer", "Cancel"}, {"buttons", {"OK", "Cancel"}}};
  EXPECT_EQ(ReadableEvent(event), "T, warning: Continue?\n    (answered: Cancel)");
}

TEST(TranscriptTextTest, DialogThatEndedItselfIsNotShown) {
  EXPECT_EQ(ReadableEvent({{"event", "closed"}, {"title", "Progress"}, {"answer", nullptr}}), "");
  EXPECT_EQ(ReadableEvent({{"event", "closed"}, {"title", "Password"}, {"answer", "Cancel"}}),
            "Password (answered: Cancel)");
}

TEST(TranscriptTextTest, MistakesOfTheScriptAreShown) {
  EXPECT_EQ(ReadableEvent({{"event", "script-error"}, {"text", "no control \"X\""}}),
            "Front end script: no control \"X\"");
}

TEST(TranscriptTextTest, EventsOfUnexpectedShapeAreQuiet) {
  EXPECT_EQ(ReadableEvent({{"event", 7}}), "");
  EXPECT_EQ(ReadableEvent(nlohmann::json::object()), "");
  EXPECT_EQ(ProgressText({{"event", "tick"}, {"class", "CProgressDlg"}, {"count", "x"}}), "");
}

TEST(TranscriptTextTest, TicksOfTheProgressDialogCountSeconds) {
  EXPECT_EQ(ProgressText({{"event", "tick"}, {"class", "CProgressDlg"}, {"count", 3}}),
            "Publishing ... 3 s");
  EXPECT_EQ(ProgressText({{"event", "tick"}, {"class", "COtherDlg"}, {"count", 3}}), "");
}

}  // namespace
}  // namespace qutav::host
