#include <gtest/gtest.h>

#include <initializer_list>

#include "host/PublishRecord.h"

namespace qutav::host {
namespace {

using Json = nlohmann::json;

const Json kProgressOpens = {{"event", "dialog"}, {"class", "CProgressDlg"}};
const Json kProgressEnds = {{"event", "closed"}, {"class", "CProgressDlg"}, {"answer", nullptr}};
const Json kProgressCancelled = {
    {"event", "closed"}, {"class", "CProgressDlg"}, {"answer", "Cancel"}};
const Json kMade = {
    {"event", "message"}, {"icon", "information"}, {"text", "APK file has been created."}};
const Json kWarning = {
    {"event", "message"}, {"icon", "warning"}, {"text", "Error creating files."}};
const Json kSheet = {{"event", "sheet"}, {"title", "TAV for Android Settings"}};
const Json kPublishPressed = {{"event", "pressed"}, {"button", "Publish"}};

PublishRecord RecordOf(std::initializer_list<Json> events) {
  PublishRecord record;
  for (const Json& event : events) record.Take(event);
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
