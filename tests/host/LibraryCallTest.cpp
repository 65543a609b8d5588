#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "TestFolder.h"
#include "host/LibraryCall.h"

namespace qutav::host {
namespace {

using ::testing::Contains;
using ::testing::Not;
using ::testing::StartsWith;

TEST(LibraryCallTest, ArgumentsCarryEncodedUrisAndTheOptions) {
  const TestFolder folder;
  const Document document = Document::Load(folder.Write("100% Ü.qud.json", DocumentText("")));
  CommonOptions options;
  options.runtimeLevel = "26.0";
  options.languageCode = "ja_JP";
  options.library = "/lib/a b.so";
  const auto arguments = PublishCallArguments(options, document);
  ASSERT_EQ(arguments.size(), 7U);
  EXPECT_EQ(arguments[1], document.Path());
  EXPECT_THAT(arguments[2], StartsWith("Publish(\"file:///"));
  EXPECT_THAT(arguments[2], ::testing::EndsWith("/100%25%20%C3%9C.qmv\", \"26.0\");"));
  EXPECT_THAT(arguments, Contains("--library=/lib/a b.so"));
  EXPECT_THAT(arguments, Not(Contains("--verbose")));
}

TEST(LibraryCallTest, OrdinaryEndsAreNotTold) {
  EXPECT_EQ(UnexpectedEndText({ChildEnd::Kind::kExited, 0}), "");
  EXPECT_EQ(UnexpectedEndText({ChildEnd::Kind::kExited, 1}), "");
  EXPECT_EQ(UnexpectedEndText({ChildEnd::Kind::kExited, 13}),
            "The library ended its host with code 13.");
  EXPECT_EQ(UnexpectedEndText({ChildEnd::Kind::kKilled, 11}),
            "The library was ended by signal 11.");
}

}  // namespace
}  // namespace qutav::host
