#include <gtest/gtest.h>

#include <initializer_list>

#include "host/PublishRecord.h"

namespace qutav::host {
namespace {

const nlohmann::json kProgressOpens = {{"event", "dialog"}, {"class", "CProgressDlg"}};
const nlohmann::json kProgressEnds = {
    {"event", "closed"}, {"class", "CProgressDlg"}, {"answer", nullptr}};
const nlohmann::json kProgressCancelled = {
    {"event", "closed"}, {"class", "CProgressDlg"}, {"answer", "Cancel"}};
const nlohmann::json kMade = {
    {"event", "message"}, {"icon", "information"}, {"text", "APK file has been created."}};
const nlohmann::json kWarning = {
    {"event", "message"}, {"icon", "warning"}, {"text", "Error creating files."}};
const nlohmann::json kSheet = {{"event", "sheet"}, {"title", "TAV for Android Settings"}};
const nlohmann::json kPublishPressed = {{"event", "pressed"}, {"button", "Publish"}};

PublishRecord RecordOf(std::initializer_list<nlohmann::json> events) {
  PublishRecord record;
  for (const nlohmann::json& event : events) record.Take(event);
  return record;
}

TEST(PublishRecordTest, RunWithoutTheProgressDialogPackagedNothing) {
  EXPECT_FALSE(RecordOf({{{"event", "message"}, {"text", "missing"}}}).PackagingEnded());
}

TEST(PublishRecordTest, ProgressDialogThatEndedItselfIsAnAttempt) {
  EXPECT_TRUE(RecordOf({kProgressOpens, kProgressEnds}).PackagingEnded());
}

TEST(PublishRecordTest, CancelledAttemptDoesNotCountButTheNextOneDoes) {
  EXPECT_FALSE(RecordOf({kProgressOpens, kProgressCancelled}).PackagingEnded());
  EXPECT_TRUE(RecordOf({kProgressOpens, kProgressCancelled, kProgressOpens, kProgressEnds})
                  .PackagingEnded());
}

TEST(PublishRecordTest, ACancelThatCameTooLateToStopTheAttemptWasPressedAllTheSame) {
  const PublishRecord record = RecordOf({kProgressOpens, kProgressCancelled, kMade});
  EXPECT_TRUE(record.PackagingEnded());
  EXPECT_TRUE(record.CancelPressed());
}

TEST(PublishRecordTest, OnlyInformationDirectlyBehindTheAttemptTellsThatItEnded) {
  EXPECT_FALSE(RecordOf({kProgressOpens, kProgressCancelled, kWarning}).PackagingEnded());
  EXPECT_FALSE(RecordOf({kProgressOpens, kProgressCancelled, kSheet, kMade}).PackagingEnded());
  EXPECT_FALSE(RecordOf({kMade}).PackagingEnded());
}

TEST(PublishRecordTest, CancelWasPressedInTheLastAttemptOnly) {
  EXPECT_TRUE(RecordOf({kProgressOpens, kProgressCancelled}).CancelPressed());
  EXPECT_FALSE(RecordOf({kProgressOpens, kProgressEnds}).CancelPressed());
  EXPECT_FALSE(RecordOf({kProgressOpens, kProgressCancelled, kProgressOpens}).CancelPressed());
}

TEST(PublishRecordTest, SheetIsLeftWhenNobodyPressedPublish) {
  EXPECT_TRUE(RecordOf({kSheet}).SheetWasLeft());
  EXPECT_FALSE(RecordOf({kSheet, kPublishPressed}).SheetWasLeft());
  EXPECT_FALSE(RecordOf({}).SheetWasLeft());
}

}  // namespace
}  // namespace qutav::host
