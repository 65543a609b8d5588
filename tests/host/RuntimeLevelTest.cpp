#include <gtest/gtest.h>

#include "host/RuntimeLevel.h"

namespace qutav::host {
namespace {

TEST(RuntimeLevelTest, MajorIsTheFirstNumber) {
  EXPECT_EQ(MajorOfRuntimeLevel("26.0"), 26);
  EXPECT_EQ(MajorOfRuntimeLevel("3.10.1"), 3);
  EXPECT_EQ(MajorOfRuntimeLevel("255"), 255);
}

TEST(RuntimeLevelTest, OtherTextIsRefused) {
  for (const char* level : {"", "TAV26.0", "26.", ".5", "26..0", "256.0", "-1", "26,0", " 26"}) {
    EXPECT_EQ(MajorOfRuntimeLevel(level), std::nullopt) << level;
  }
}

}  // namespace
}  // namespace qutav::host
