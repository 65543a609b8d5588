#include <gtest/gtest.h>

#include <sstream>

#include "host/Console.h"

namespace qutav::host {
namespace {

TEST(ConsoleTest, ResultsAndMessagesGoToTheirStreams) {
  std::ostringstream out;
  std::ostringstream error;
  Console console(out, error, false);
  console.Result("Made it");
  console.Message("careful");
  EXPECT_EQ(out.str(), "Made it\n");
  EXPECT_EQ(error.str(), "careful\n");
}

TEST(ConsoleTest, MessageTakesThePlaceOfTheProgressLine) {
  std::ostringstream out;
  std::ostringstream error;
  Console console(out, error, true);
  console.Progress("Publishing ... 1 s");
  console.Message("careful");
  console.Message("again");
  EXPECT_EQ(error.str(), "\r\x1b[KPublishing ... 1 s\r\x1b[Kcareful\nagain\n");
}

TEST(ConsoleTest, NothingMovesWhereThereIsNoTerminal) {
  std::ostringstream out;
  std::ostringstream error;
  Console console(out, error, false);
  console.Progress("Publishing ... 1 s");
  console.EndProgress();
  EXPECT_EQ(error.str(), "");
}

TEST(ConsoleTest, DetailsAreOnlyForTheVerbose) {
  std::ostringstream out;
  std::ostringstream error;
  Console console(out, error, false);
  console.Detail("hidden");
  console.SetVerbose(true);
  console.Detail("shown");
  EXPECT_EQ(error.str(), "shown\n");
}

}  // namespace
}  // namespace qutav::host
