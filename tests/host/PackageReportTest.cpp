#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "TestFolder.h"
#include "host/PackageReport.h"

namespace qutav::host {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

TEST(PackageReportTest, SizesHaveReadableUnits) {
  EXPECT_EQ(SizeText(512), "512 bytes");
  EXPECT_EQ(SizeText(123 * 1024 + 10), "123 KB");
  EXPECT_EQ(SizeText(9 * 1024 * 1024 / 2), "4.5 MB");
}

TEST(PackageReportTest, MadeNamesPathSizeAndTime) {
  const TestFolder folder;
  const auto package = folder.Write("Game.apk", std::string(2048, 'x'));
  EXPECT_EQ(MadeText(package, std::chrono::milliseconds(1234)),
            "Made " + package.string() + ", 2 KB, 1.2 s");
}

TEST(PackageReportTest, SheetThatWasLeftNamesTheRemedy) {
  PublishRecord record;
  EXPECT_THAT(NothingMadeText(record), Not(HasSubstr("--certificate")));
  record.Take({{"event", "sheet"}});
  EXPECT_THAT(NothingMadeText(record), HasSubstr("--certificate"));
}

}  // namespace
}  // namespace qutav::host
