// Which choices of deployment type and runtime a user has at each level.
#include <ostream>

#include "DigitalSigTest.h"

namespace qutav::test {
namespace {

constexpr bool kOn = true;
constexpr bool kOff = false;

struct State {
  bool emulator;  // whether the radio can be chosen
  bool embed;
  bool getFrom;
  bool market;
  bool network;
  int deployType;
  int runtimeChoice;
  bool operator==(const State&) const = default;
};

std::ostream& operator<<(std::ostream& out, const State& state) {
  return out << "emulator " << state.emulator << ", embed " << state.embed << ", get from "
             << state.getFrom << ", market " << state.market << ", network " << state.network
             << ", type " << state.deployType << ", runtime " << state.runtimeChoice;
}

struct Case {
  const char16_t* level;
  const char16_t* type;     // as stored
  const char16_t* runtime;  // as stored
  State expected;
};

void PrintTo(const Case& row, std::ostream* out) {
  *out << ToUtf8(row.level) << " " << ToUtf8(row.type) << " " << ToUtf8(row.runtime);
}

class DigitalSigStatesTest : public DigitalSigTest {
 protected:
  State Shown() {
    const RadioGroup& types = *Radio(u"Debug").group;
    const RadioGroup& runtimes = *Embed().group;
    return {Radio(u"Emulator release").enabled,
            Embed().enabled,
            GetFrom().enabled,
            Market().enabled,
            Network().enabled,
            types.Selected(),
            runtimes.Selected()};
  }
};

// --- As loaded ----------------------------------------------------------------------------------

class DigitalSigLoadedStateTest : public DigitalSigStatesTest,
                                  public ::testing::WithParamInterface<Case> {};

TEST_P(DigitalSigLoadedStateTest, ThePageOpensInTheStateOfItsLevelAndType) {
  SettingsSet(keys::kRuntimeKit, GetParam().level);
  SettingsSet(keys::kPublishType, GetParam().type);
  SettingsSet(keys::kRuntimeType, GetParam().runtime);

  page.Create();

  EXPECT_EQ(Shown(), GetParam().expected);
  EXPECT_EQ(page.deployType, GetParam().expected.deployType);
  EXPECT_EQ(page.runtimeChoice, GetParam().expected.runtimeChoice);
  EXPECT_FALSE(page.changed);
}

// Columns: emulator, embed, get from, market, network, deployment type, runtime choice.
INSTANTIATE_TEST_SUITE_P(
    BelowTav38, DigitalSigLoadedStateTest,
    ::testing::Values(
        Case{u"TAV1.0", u"release", u"share", {kOn, kOn, kOn, kOn, kOff, 0, 1}},
        Case{u"TAV1.0", u"release", u"embed", {kOn, kOn, kOn, kOff, kOff, 0, 0}},
        Case{u"TAV1.0", u"release-emulator", u"embed", {kOn, kOff, kOn, kOn, kOff, 1, 1}},
        Case{u"TAV1.0", u"debug", u"embed", {kOn, kOff, kOn, kOn, kOn, 2, 1}},
        Case{u"TAV3.6", u"release", u"share", {kOn, kOn, kOn, kOn, kOff, 0, 1}},
        Case{u"TAV3.6", u"release", u"embed", {kOn, kOn, kOn, kOff, kOff, 0, 0}},
        Case{u"TAV3.6", u"release-emulator", u"embed", {kOn, kOff, kOn, kOn, kOff, 1, 1}},
        Case{u"TAV3.6", u"debug", u"embed", {kOn, kOff, kOn, kOn, kOn, 2, 1}},
        Case{u"TAV3.7", u"release", u"share", {kOn, kOn, kOn, kOn, kOff, 0, 1}},
        Case{u"TAV3.7", u"release", u"embed", {kOn, kOn, kOn, kOff, kOff, 0, 0}},
        Case{u"TAV3.7", u"", u"", {kOn, kOn, kOn, kOn, kOff, 0, 1}},
        Case{u"TAV3.7", u"unknown", u"unknown", {kOn, kOn, kOn, kOn, kOff, 0, 1}},
        Case{u"TAV3.7", u"release-emulator", u"share", {kOn, kOff, kOn, kOn, kOff, 1, 1}},
        Case{u"TAV3.7", u"debug", u"share", {kOn, kOff, kOn, kOn, kOn, 2, 1}}));

INSTANTIATE_TEST_SUITE_P(
    FromTav38, DigitalSigLoadedStateTest,
    ::testing::Values(
        // At exactly this level a stored "share" loads as embed.
        Case{u"TAV3.8", u"release", u"share", {kOff, kOn, kOn, kOff, kOff, 0, 0}},
        Case{u"TAV3.8", u"release", u"embed", {kOff, kOn, kOn, kOff, kOff, 0, 0}},
        Case{u"TAV3.8", u"release-emulator", u"share", {kOff, kOn, kOn, kOff, kOff, 0, 0}},
        Case{u"TAV3.8", u"debug", u"share", {kOff, kOn, kOff, kOff, kOn, 2, 0}},
        Case{u"TAV3.8.0", u"release", u"", {kOff, kOn, kOn, kOff, kOff, 0, 0}},
        Case{u"TAV3.8.1", u"release", u"share", {kOff, kOn, kOn, kOn, kOff, 0, 1}},
        Case{u"TAV14.0", u"release", u"share", {kOff, kOn, kOn, kOn, kOff, 0, 1}},
        Case{u"TAV14.0", u"release", u"embed", {kOff, kOn, kOn, kOff, kOff, 0, 0}},
        Case{u"TAV14.0", u"release-emulator", u"share", {kOff, kOn, kOn, kOn, kOff, 0, 1}},
        Case{u"TAV14.0", u"debug", u"share", {kOff, kOn, kOff, kOff, kOn, 2, 0}},
        Case{u"TAV19.0", u"release", u"share", {kOff, kOn, kOn, kOn, kOff, 0, 1}},
        Case{u"TAV19.0", u"release", u"embed", {kOff, kOn, kOn, kOff, kOff, 0, 0}},
        Case{u"TAV19.0", u"release-emulator", u"embed", {kOff, kOn, kOn, kOff, kOff, 0, 0}},
        Case{u"TAV19.0", u"debug", u"share", {kOff, kOn, kOff, kOff, kOn, 2, 0}},
        Case{u"TAV20.0", u"release", u"share", {kOff, kOn, kOn, kOn, kOff, 0, 1}},
        Case{u"TAV20.0", u"release", u"embed", {kOff, kOn, kOn, kOff, kOff, 0, 0}},
        Case{u"TAV20.0", u"release-emulator", u"share", {kOff, kOn, kOn, kOn, kOff, 0, 1}},
        Case{u"TAV20.0", u"debug", u"embed", {kOff, kOn, kOff, kOff, kOn, 2, 0}}));

INSTANTIATE_TEST_SUITE_P(
    FromTav26, DigitalSigLoadedStateTest,
    ::testing::Values(
        Case{u"TAV26.0", u"release", u"share", {kOff, kOn, kOff, kOff, kOff, 0, 0}},
        Case{u"TAV26.0", u"release", u"embed", {kOff, kOn, kOff, kOff, kOff, 0, 0}},
        Case{u"TAV26.0", u"release-emulator", u"share", {kOff, kOn, kOff, kOff, kOff, 0, 0}},
        Case{u"TAV26.0", u"debug", u"share", {kOff, kOn, kOff, kOff, kOn, 2, 0}},
        Case{u"TAV33.0", u"release", u"share", {kOff, kOn, kOff, kOff, kOff, 0, 0}},
        Case{u"TAV33.0", u"release", u"embed", {kOff, kOn, kOff, kOff, kOff, 0, 0}},
        Case{u"TAV33.0", u"release-emulator", u"share", {kOff, kOn, kOff, kOff, kOff, 0, 0}},
        Case{u"TAV33.0", u"debug", u"share", {kOff, kOn, kOff, kOff, kOn, 2, 0}}));

// --- As chosen ----------------------------------------------------------------------------------

class DigitalSigChosenStateTest : public DigitalSigStatesTest,
                                  public ::testing::WithParamInterface<Case> {
 protected:
  void Open() {
    SettingsSet(keys::kRuntimeKit, GetParam().level);
    SettingsSet(keys::kRuntimeType, GetParam().runtime);
    page.Create();
  }
};

TEST_P(DigitalSigChosenStateTest, ARadioBringsThePageIntoTheStateOfItsType) {
  Open();

  Radio(GetParam().type).Click();

  EXPECT_EQ(Shown(), GetParam().expected);
  EXPECT_EQ(page.deployType, GetParam().expected.deployType);
  EXPECT_TRUE(page.changed);
}

INSTANTIATE_TEST_SUITE_P(
    BelowTav38, DigitalSigChosenStateTest,
    ::testing::Values(
        Case{u"TAV1.0", u"Device release", u"share", {kOn, kOn, kOn, kOn, kOff, 0, 1}},
        Case{u"TAV1.0", u"Emulator release", u"embed", {kOn, kOff, kOn, kOn, kOff, 1, 1}},
        Case{u"TAV1.0", u"Debug", u"embed", {kOn, kOff, kOn, kOn, kOn, 2, 1}},
        Case{u"TAV3.6", u"Device release", u"embed", {kOn, kOn, kOn, kOff, kOff, 0, 0}},
        Case{u"TAV3.6", u"Emulator release", u"share", {kOn, kOff, kOn, kOn, kOff, 1, 1}},
        Case{u"TAV3.6", u"Debug", u"share", {kOn, kOff, kOn, kOn, kOn, 2, 1}},
        Case{u"TAV3.7", u"Device release", u"share", {kOn, kOn, kOn, kOn, kOff, 0, 1}},
        Case{u"TAV3.7", u"Emulator release", u"embed", {kOn, kOff, kOn, kOn, kOff, 1, 1}},
        Case{u"TAV3.7", u"Debug", u"embed", {kOn, kOff, kOn, kOn, kOn, 2, 1}}));

INSTANTIATE_TEST_SUITE_P(
    FromTav38, DigitalSigChosenStateTest,
    ::testing::Values(
        Case{u"TAV3.8", u"Device release", u"share", {kOff, kOn, kOn, kOff, kOff, 0, 0}},
        Case{u"TAV3.8", u"Debug", u"share", {kOff, kOn, kOff, kOff, kOn, 2, 0}},
        Case{u"TAV14.0", u"Device release", u"share", {kOff, kOn, kOn, kOn, kOff, 0, 1}},
        Case{u"TAV14.0", u"Debug", u"share", {kOff, kOn, kOff, kOff, kOn, 2, 0}},
        Case{u"TAV19.0", u"Device release", u"embed", {kOff, kOn, kOn, kOff, kOff, 0, 0}},
        Case{u"TAV19.0", u"Debug", u"share", {kOff, kOn, kOff, kOff, kOn, 2, 0}},
        Case{u"TAV20.0", u"Device release", u"share", {kOff, kOn, kOn, kOn, kOff, 0, 1}},
        Case{u"TAV20.0", u"Debug", u"embed", {kOff, kOn, kOff, kOff, kOn, 2, 0}}));

INSTANTIATE_TEST_SUITE_P(
    FromTav26, DigitalSigChosenStateTest,
    ::testing::Values(
        Case{u"TAV26.0", u"Device release", u"share", {kOff, kOn, kOff, kOff, kOff, 0, 0}},
        Case{u"TAV26.0", u"Debug", u"share", {kOff, kOn, kOff, kOff, kOn, 2, 0}},
        Case{u"TAV33.0", u"Device release", u"share", {kOff, kOn, kOff, kOff, kOff, 0, 0}},
        Case{u"TAV33.0", u"Debug", u"share", {kOff, kOn, kOff, kOff, kOn, 2, 0}}));

// --- From one to another ------------------------------------------------------------------------

class DigitalSigSwitchTest : public DigitalSigStatesTest {};

TEST_F(DigitalSigSwitchTest, FromEmulatorToDeviceReleaseKeepsTheGetFromChoice) {
  SettingsSet(keys::kRuntimeType, u"embed");
  page.Create();
  Radio(u"Emulator release").Click();

  Radio(u"Device release").Click();

  EXPECT_EQ(Shown(), (State{kOn, kOn, kOn, kOn, kOff, 0, 1}));
}

TEST_F(DigitalSigSwitchTest, FromDebugToEmulatorReleaseTheNetworkIsOutOfUseAgain) {
  page.Create();
  Radio(u"Debug").Click();

  Radio(u"Emulator release").Click();

  EXPECT_EQ(Shown(), (State{kOn, kOff, kOn, kOn, kOff, 1, 1}));
}

TEST_F(DigitalSigSwitchTest, FromDebugToDeviceReleaseKeepsTheEmbedChoice) {
  SettingsSet(keys::kRuntimeKit, u"TAV14.0");
  SettingsSet(keys::kRuntimeType, u"share");
  page.Create();
  Radio(u"Debug").Click();

  Radio(u"Device release").Click();

  EXPECT_EQ(Shown(), (State{kOff, kOn, kOn, kOff, kOff, 0, 0}));
}

TEST_F(DigitalSigSwitchTest, FromDebugToDeviceReleaseTheRuntimeStaysEmbeddedWhereItAlwaysIs) {
  SettingsSet(keys::kRuntimeKit, u"TAV26.0");
  page.Create();
  Radio(u"Debug").Click();

  Radio(u"Device release").Click();

  EXPECT_EQ(Shown(), (State{kOff, kOn, kOff, kOff, kOff, 0, 0}));
}

TEST_F(DigitalSigSwitchTest, EmbeddingDisablesTheMarketsAndIsNoChange) {
  page.Create();

  Embed().Click();

  EXPECT_FALSE(Market().enabled);
  EXPECT_FALSE(page.changed);
}

TEST_F(DigitalSigSwitchTest, GettingTheRuntimeEnablesTheMarketsAndIsNoChange) {
  SettingsSet(keys::kRuntimeType, u"embed");
  page.Create();

  GetFrom().Click();

  EXPECT_TRUE(Market().enabled);
  EXPECT_FALSE(page.changed);
}

}  // namespace
}  // namespace qutav::test
