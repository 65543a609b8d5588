// What the Android deployment page stores, and what it refuses at Publish.
#include "DigitalSigTest.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

constexpr bool kValidate = true;

class DigitalSigSaveTest : public DigitalSigTest {
 protected:
  // A page that passes every check.
  void OpenComplete() {
    PutCertificates({u"C:\\k\\a.p12"});
    page.Create();
    Password().Type(u"secret");
  }

  void ExpectRefusal(int result, const std::u16string& text) {
    EXPECT_EQ(page.SaveToSettings(kValidate), result);
    ASSERT_EQ(frontEnd.messages.size(), 1u);
    const ShownMessage& box = frontEnd.messages.front();
    EXPECT_EQ(box.text, text);
    EXPECT_EQ(box.title, u"Zenvoka Kestrow");
    EXPECT_EQ(box.icon, MessageIcon::kWarning);
    EXPECT_EQ(box.buttons, MessageButtons::kOk);
  }

  std::u16string Stored(const std::u16string& name) { return RegistryValue(registry, name); }
};

// --- Certificate and password -------------------------------------------------------------------

TEST_F(DigitalSigSaveTest, ACompletePageIsStoredWithoutAMessage) {
  OpenComplete();

  EXPECT_EQ(page.SaveToSettings(kValidate), 0);

  EXPECT_THAT(frontEnd.messages, IsEmpty());
  EXPECT_EQ(Stored(u"DigitalSign"), u"sign");
  EXPECT_EQ(SettingsGet(keys::kCertificatePath), u"C:/k/a.p12");
  EXPECT_EQ(Stored(u"Last Selected Cert Android"), u"C:/k/a.p12");
  EXPECT_EQ(SettingsGet(keys::kCertificatePassword), u"secret");
}

TEST_F(DigitalSigSaveTest, ATypedCertificateIsStoredButNotListed) {
  OpenComplete();
  files.Put(u"C:/k/typed.p12");
  Certificate().Type(u"C:\\k\\typed.p12");

  EXPECT_EQ(page.SaveToSettings(kValidate), 0);

  EXPECT_EQ(SettingsGet(keys::kCertificatePath), u"C:/k/typed.p12");
  EXPECT_THAT(registry.keys[kCertificateList], ElementsAre(Pair(u"file1", u"C:\\k\\a.p12")));
}

TEST_F(DigitalSigSaveTest, BrowsedCertificatesAreListed) {
  OpenComplete();
  frontEnd.chosenFile = u"C:\\k\\b.p12";
  ASSERT_TRUE(PressButton(page, u"Browse..."));

  page.SaveToSettings(false);

  EXPECT_THAT(registry.keys[kCertificateList],
              ElementsAre(Pair(u"file1", u"C:\\k\\a.p12"), Pair(u"file2", u"C:\\k\\b.p12")));
}

TEST_F(DigitalSigSaveTest, PublishNeedsACertificate) {
  OpenComplete();
  Certificate().Type(u"");

  ExpectRefusal(1, u"Certificate must be selected");

  EXPECT_EQ(Stored(u"DigitalSign"), u"sign");
  EXPECT_FALSE(SettingsMap.contains(keys::kCertificatePath));
  EXPECT_FALSE(SettingsMap.contains(keys::kPublishType) &&
               !SettingsGet(keys::kPublishType).empty());
}

TEST_F(DigitalSigSaveTest, TheRadiosAreTakenOverThoughTheCertificateIsRefused) {
  OpenComplete();
  Certificate().Type(u"");
  Radio(u"Debug").group->Select(1);
  Embed().group->Select(0);

  ExpectRefusal(1, u"Certificate must be selected");

  EXPECT_EQ(page.deployType, 1);
  EXPECT_EQ(page.runtimeChoice, 0);
}

TEST_F(DigitalSigSaveTest, PublishNeedsACertificateThatExists) {
  OpenComplete();
  Certificate().Type(u"C:\\k\\gone.p12");

  ExpectRefusal(2, u"The specified certificate does not exist.");

  EXPECT_FALSE(SettingsMap.contains(keys::kCertificatePath));
}

TEST_F(DigitalSigSaveTest, PublishNeedsAPasswordAndHasStoredTheCertificateByThen) {
  OpenComplete();
  Password().Type(u"");
  SettingsSet(keys::kCertificatePassword, u"earlier");

  ExpectRefusal(1, u"Password is empty. Please enter a password.");

  EXPECT_EQ(SettingsGet(keys::kCertificatePath), u"C:/k/a.p12");
  EXPECT_EQ(SettingsGet(keys::kCertificatePassword), u"earlier");
  EXPECT_EQ(Stored(u"Last ADB Opt"), u"");
}

TEST_F(DigitalSigSaveTest, OkWithAnEmptyCertificateWritesEmptyValuesWithoutAMessage) {
  SettingsSet(keys::kCertificatePath, u"C:/k/earlier.p12");
  SetRegistryValue(u"Last Selected Cert Android", u"C:/k/earlier.p12");
  page.Create();

  EXPECT_EQ(page.SaveToSettings(false), 0);

  EXPECT_THAT(frontEnd.messages, IsEmpty());
  EXPECT_EQ(SettingsGet(keys::kCertificatePath), u"");
  EXPECT_EQ(Stored(u"Last Selected Cert Android"), u"");
  EXPECT_EQ(SettingsGet(keys::kCertificatePassword), u"");
  EXPECT_FALSE(registry.keys.contains(kCertificateList) &&
               !registry.keys[kCertificateList].empty());
}

TEST_F(DigitalSigSaveTest, OkStoresACertificateThatDoesNotExist) {
  page.Create();
  Certificate().Type(u"C:\\k\\gone.p12");

  EXPECT_EQ(page.SaveToSettings(false), 0);

  EXPECT_THAT(frontEnd.messages, IsEmpty());
  EXPECT_EQ(SettingsGet(keys::kCertificatePath), u"C:/k/gone.p12");
}

TEST_F(DigitalSigSaveTest, TheRememberMarkIsStoredEitherWay) {
  OpenComplete();
  page.SaveToSettings(false);
  EXPECT_EQ(SettingsGet(keys::kRememberPassword), u"false");

  Remember().Click();
  page.SaveToSettings(false);
  EXPECT_EQ(SettingsGet(keys::kRememberPassword), u"true");
}

// --- Choices ------------------------------------------------------------------------------------

TEST_F(DigitalSigSaveTest, EachDeploymentTypeHasItsText) {
  page.Create();

  Radio(u"Emulator release").Click();
  page.SaveToSettings(false);
  EXPECT_EQ(SettingsGet(keys::kPublishType), u"release-emulator");

  Radio(u"Debug").Click();
  page.SaveToSettings(false);
  EXPECT_EQ(SettingsGet(keys::kPublishType), u"debug");

  Radio(u"Device release").Click();
  page.SaveToSettings(false);
  EXPECT_EQ(SettingsGet(keys::kPublishType), u"release");
}

TEST_F(DigitalSigSaveTest, TheRuntimeRadiosCountAsTheyStand) {
  page.Create();

  Embed().Click();
  page.SaveToSettings(false);
  EXPECT_EQ(SettingsGet(keys::kRuntimeType), u"embed");
  EXPECT_EQ(page.runtimeChoice, 0);

  GetFrom().Click();
  page.SaveToSettings(false);
  EXPECT_EQ(SettingsGet(keys::kRuntimeType), u"share");
  EXPECT_EQ(page.runtimeChoice, 1);
}

TEST_F(DigitalSigSaveTest, AStoredEmulatorReleaseIsOverwrittenWhereThereIsNone) {
  SettingsSet(keys::kRuntimeKit, u"TAV3.8");
  SettingsSet(keys::kPublishType, u"release-emulator");
  page.Create();

  page.SaveToSettings(false);

  EXPECT_EQ(SettingsGet(keys::kPublishType), u"release");
}

TEST_F(DigitalSigSaveTest, WhatIsDoneAfterPublishingGoesToSettingsAndRegistry) {
  PutDevices(u"A:", u"device:");
  page.Create();

  page.SaveToSettings(false);
  EXPECT_EQ(SettingsGet(keys::kAdbOption), u"nothing");
  EXPECT_EQ(Stored(u"Last ADB Opt"), u"nothing");

  Install().Click();
  page.SaveToSettings(false);
  EXPECT_EQ(SettingsGet(keys::kAdbOption), u"install");
  EXPECT_EQ(Stored(u"Last ADB Opt"), u"install");

  Launch().Click();
  page.SaveToSettings(false);
  EXPECT_EQ(SettingsGet(keys::kAdbOption), u"launch");
  EXPECT_EQ(Stored(u"Last ADB Opt"), u"launch");
}

TEST_F(DigitalSigSaveTest, TheNetworkInterfaceIsStoredAsItIsShown) {
  networkTables.addresses.rows = {{4, 10 | 2 << 24}};
  networkTables.adapters.rows = {{4, 6, u"Wi-Fi"}};
  page.Create();
  Network().Choose(1);

  page.SaveToSettings(false);

  EXPECT_EQ(SettingsGet(keys::kHostAddress), u"Wi-Fi <10.0.0.2>");
}

TEST_F(DigitalSigSaveTest, TheChosenMarketsUrlIsStored) {
  PutMarkets("<market name=\"A\" url=\"a\"/><market name=\"B\" url=\"b\"/>");
  page.Create();
  Market().Choose(1);

  page.SaveToSettings(false);

  EXPECT_EQ(SettingsGet(keys::kMarketUrl), u"b");
}

TEST_F(DigitalSigSaveTest, WithoutMarketsTheirKeyIsRemoved) {
  SettingsSet(keys::kMarketUrl, u"earlier");
  page.Create();

  page.SaveToSettings(false);

  EXPECT_FALSE(SettingsMap.contains(keys::kMarketUrl));
}

TEST_F(DigitalSigSaveTest, WithoutAChosenMarketTheKeyIsRemoved) {
  PutMarkets("<market name=\"A\" url=\"a\"/>");
  page.Create();
  Market().SetCurSel(-1);

  page.SaveToSettings(false);

  EXPECT_FALSE(SettingsMap.contains(keys::kMarketUrl));
}

// --- Devices ------------------------------------------------------------------------------------

class DigitalSigSaveDevicesTest : public DigitalSigSaveTest {
 protected:
  DigitalSigSaveDevicesTest() { PutDevices(u"A:B:", u"device:device:"); }
};

TEST_F(DigitalSigSaveDevicesTest, CheckedDevicesAreStoredEachWithAColon) {
  OpenComplete();
  Install().Click();
  Devices().ToggleByUser(0);
  Devices().ToggleByUser(1);

  EXPECT_EQ(page.SaveToSettings(kValidate), 0);

  EXPECT_EQ(SettingsGet(keys::kInstallDevices), u"A:B:");
  EXPECT_THAT(page.checkedDevices, ElementsAre(u"A", u"B"));
  EXPECT_TRUE(page.changed);
}

TEST_F(DigitalSigSaveDevicesTest, TheSameDevicesAreNoChange) {
  SettingsSet(keys::kAdbOption, u"install");
  SettingsSet(keys::kInstallDevices, u"B:");
  OpenComplete();

  EXPECT_EQ(page.SaveToSettings(kValidate), 0);

  EXPECT_EQ(SettingsGet(keys::kInstallDevices), u"B:");
  EXPECT_FALSE(page.changed);
}

TEST_F(DigitalSigSaveDevicesTest, PublishNeedsACheckedDevice) {
  SettingsSet(keys::kInstallDevices, u"gone:");
  OpenComplete();
  Install().Click();

  ExpectRefusal(1, u"No device selected. Select at least one device to continue.");

  EXPECT_EQ(SettingsGet(keys::kAdbOption), u"install");
  EXPECT_EQ(SettingsGet(keys::kInstallDevices), u"gone:");
  EXPECT_FALSE(page.changed);
}

TEST_F(DigitalSigSaveDevicesTest, TheCheckedDevicesAreTakenOverBeforeTheRefusal) {
  SettingsSet(keys::kInstallDevices, u"A:");
  OpenComplete();
  Install().Click();
  EXPECT_THAT(page.checkedDevices, ElementsAre(u"A"));
  Devices().ToggleByUser(0);

  ExpectRefusal(1, u"No device selected. Select at least one device to continue.");

  EXPECT_THAT(page.checkedDevices, IsEmpty());
  EXPECT_EQ(SettingsGet(keys::kInstallDevices), u"A:");
}

TEST_F(DigitalSigSaveDevicesTest, AllButTheDevicesIsStoredBeforeTheirRefusal) {
  PutMarkets("<market name=\"A\" url=\"a\"/><market name=\"B\" url=\"b\"/>");
  networkTables.addresses.rows = {{4, 10 | 2 << 24}};
  networkTables.adapters.rows = {{4, 6, u"Wi-Fi"}};
  OpenComplete();
  Remember().Click();
  Radio(u"Emulator release").Click();
  Market().Choose(1);
  Network().Choose(1);
  Install().Click();

  ExpectRefusal(1, u"No device selected. Select at least one device to continue.");

  EXPECT_EQ(SettingsGet(keys::kCertificatePassword), u"secret");
  EXPECT_EQ(SettingsGet(keys::kRememberPassword), u"true");
  EXPECT_EQ(SettingsGet(keys::kPublishType), u"release-emulator");
  EXPECT_EQ(SettingsGet(keys::kRuntimeType), u"share");
  EXPECT_EQ(SettingsGet(keys::kMarketUrl), u"b");
  EXPECT_EQ(SettingsGet(keys::kHostAddress), u"Wi-Fi <10.0.0.2>");
}

TEST_F(DigitalSigSaveDevicesTest, CheckedDevicesAreKeptWhenInstallingIsSwitchedOff) {
  SettingsSet(keys::kAdbOption, u"install");
  SettingsSet(keys::kInstallDevices, u"A:");
  OpenComplete();

  Install().Click();

  EXPECT_EQ(page.SaveToSettings(false), 0);
  EXPECT_EQ(SettingsGet(keys::kAdbOption), u"nothing");
  EXPECT_EQ(SettingsGet(keys::kInstallDevices), u"A:");
  EXPECT_FALSE(page.changed);
}

TEST_F(DigitalSigSaveDevicesTest, PublishNeedsAConnectedDevice) {
  PutDevices(u"", u"");
  OpenComplete();
  Install().Click();

  ExpectRefusal(1,
                u"Could not find an Android device to connect to. Please ensure that you have the "
                u"phone connected, the correct drivers installed, and the phone has USB device "
                u"debugging enabled.");
}

TEST_F(DigitalSigSaveDevicesTest, PublishWithoutInstallingDoesNotLookAtTheDevices) {
  OpenComplete();

  EXPECT_EQ(page.SaveToSettings(kValidate), 0);

  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(DigitalSigSaveDevicesTest, OkDoesNotNeedADevice) {
  OpenComplete();
  Install().Click();

  EXPECT_EQ(page.SaveToSettings(false), 0);

  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(DigitalSigSaveDevicesTest, AListThatWasNeverFilledErasesTheStoredDevices) {
  SettingsSet(keys::kInstallDevices, u"A:B:");
  OpenComplete();

  EXPECT_EQ(page.SaveToSettings(false), 0);

  EXPECT_EQ(SettingsGet(keys::kInstallDevices), u"");
  EXPECT_TRUE(page.changed);
}

TEST_F(DigitalSigSaveDevicesTest, FlagsAreNotClearedBySaving) {
  OpenComplete();
  Radio(u"Debug").Click();

  page.SaveToSettings(false);

  EXPECT_TRUE(page.initialised);
  EXPECT_TRUE(page.changed);
}

}  // namespace
}  // namespace qutav::test
