#include "VolDeployTest.h"

namespace qutav::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Key;
using ::testing::Not;

class VolDeployStoreTest : public VolDeployTest {
 protected:
  std::u16string DescriptorId() {
    std::u16string id;
    CurrentDescriptor.GetText("id", id);
    return id;
  }

  void ExpectWarning(const std::u16string& text) {
    ASSERT_EQ(frontEnd.messages.size(), 1u);
    EXPECT_EQ(frontEnd.messages[0].title, u"Zenvoka Kestrow");
    EXPECT_EQ(frontEnd.messages[0].text, text);
    EXPECT_EQ(frontEnd.messages[0].icon, MessageIcon::kWarning);
    EXPECT_EQ(frontEnd.messages[0].buttons, MessageButtons::kOk);
  }
};

TEST_F(VolDeployStoreTest, EveryFieldIsStored) {
  CreateFilled();
  Remember().Click();
  Find<RadioButton>(page, u"Deployment - Apple App Store").Click();

  EXPECT_EQ(page.SaveToSettings(true), 0);

  EXPECT_EQ(SettingsGet(u"com.tav.moresh.ipacertpath"), u"C:/k/my.p12");
  EXPECT_EQ(SettingsGet(u"com.tav.moresh.iparempwd"), u"true");
  EXPECT_EQ(SettingsGet(u"com.tav.moresh.ipacertpwd"), u"secret");
  EXPECT_EQ(SettingsGet(u"com.tav.moresh.ipaprovision"), u"C:/k/my.mobileprovision");
  EXPECT_EQ(SettingsGet(u"com.tav.moresh.ipaopt"), u"store");
  EXPECT_EQ(DescriptorId(), u"com.new.game");
  EXPECT_EQ(RegistryValue(registry, u"Last IPA Cert"), u"C:/k/my.p12");
  EXPECT_EQ(RegistryValue(registry, u"Last IPA Provision"), u"C:/k/my.mobileprovision");
  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(VolDeployStoreTest, OkWithEmptyFieldsWritesNoPathsAndStillTheMarkAndTheType) {
  LoadChildren("");
  page.Create();
  SettingsMap.clear();

  EXPECT_EQ(page.SaveToSettings(false), 0);

  EXPECT_THAT(SettingsMap, Not(Contains(Key(u"com.tav.moresh.ipacertpath"))));
  EXPECT_THAT(SettingsMap, Not(Contains(Key(u"com.tav.moresh.ipacertpwd"))));
  EXPECT_THAT(SettingsMap, Not(Contains(Key(u"com.tav.moresh.ipaprovision"))));
  EXPECT_EQ(SettingsGet(u"com.tav.moresh.iparempwd"), u"false");
  EXPECT_EQ(SettingsGet(u"com.tav.moresh.ipaopt"), u"test");
  EXPECT_FALSE(page.changed);
}

TEST_F(VolDeployStoreTest, OkWithEmptyFieldsLeavesWhatIsStored) {
  page.Create();
  SettingsSet(u"com.tav.moresh.ipacertpath", u"C:/old.p12");
  SettingsSet(u"com.tav.moresh.ipacertpwd", u"old");
  SettingsSet(u"com.tav.moresh.ipaprovision", u"C:/old.mobileprovision");
  ApplicationId().Type(u"");

  EXPECT_EQ(page.SaveToSettings(false), 0);

  EXPECT_EQ(SettingsGet(u"com.tav.moresh.ipacertpath"), u"C:/old.p12");
  EXPECT_EQ(SettingsGet(u"com.tav.moresh.ipacertpwd"), u"old");
  EXPECT_EQ(SettingsGet(u"com.tav.moresh.ipaprovision"), u"C:/old.mobileprovision");
  EXPECT_EQ(DescriptorId(), u"com.old.game");
  EXPECT_EQ(RegistryValue(registry, u"Last IPA Cert"), u"");
}

TEST_F(VolDeployStoreTest, OkStoresFilesThatDoNotExist) {
  page.Create();
  Combo(u"Certificate:").Type(u"C:\\gone\\my.p12");
  Combo(u"Provisioning profile:").Type(u"C:\\gone\\my.mobileprovision");

  EXPECT_EQ(page.SaveToSettings(false), 0);

  EXPECT_EQ(SettingsGet(u"com.tav.moresh.ipacertpath"), u"C:/gone/my.p12");
  EXPECT_EQ(SettingsGet(u"com.tav.moresh.ipaprovision"), u"C:/gone/my.mobileprovision");
}

TEST_F(VolDeployStoreTest, AnEmptyAppIdIsNotValidatedAndLeavesTheDescriptorAlone) {
  CreateFilled();
  ApplicationId().Type(u"");

  EXPECT_EQ(page.SaveToSettings(true), 0);

  EXPECT_EQ(DescriptorId(), u"com.old.game");
}

TEST_F(VolDeployStoreTest, AnAppIdThatNoPackageMayHaveIsStoredAllTheSame) {
  CreateFilled();
  ApplicationId().Type(u"com.new-game");

  EXPECT_EQ(page.SaveToSettings(true), 0);

  EXPECT_EQ(DescriptorId(), u"com.new-game");
}

TEST_F(VolDeployStoreTest, AFailedCheckOfThePasswordLoadsThePageAnewAndStoresWhatWentBefore) {
  CreateFilled();
  Remember().Click();
  Password().Type(u"");

  EXPECT_EQ(page.SaveToSettings(true), 1);

  ExpectWarning(u"Password is empty. Please enter a password.");
  EXPECT_EQ(SettingsGet(u"com.tav.moresh.ipacertpath"), u"C:/k/my.p12");
  EXPECT_EQ(SettingsGet(u"com.tav.moresh.iparempwd"), u"true");
  EXPECT_EQ(SettingsGet(u"com.tav.moresh.ipaprovision"), u"");
  EXPECT_EQ(Combo(u"Certificate:").text, u"C:\\k\\my.p12");
  EXPECT_EQ(Combo(u"Provisioning profile:").text, u"");
  EXPECT_EQ(ApplicationId().text, u"com.old.game");
  EXPECT_EQ(DescriptorId(), u"com.old.game");
}

TEST_F(VolDeployStoreTest, AFailedCheckPutsTheStoredStateBackIntoEveryControl) {
  SettingsSet(u"com.tav.moresh.iparempwd", u"true");
  SettingsSet(u"com.tav.moresh.ipacertpwd", u"stored");
  SettingsSet(u"com.tav.moresh.ipacertpath", u"C:/k/stored.p12");
  SettingsSet(u"com.tav.moresh.ipaprovision", u"C:/k/stored.mobileprovision");
  SettingsSet(u"com.tav.moresh.ipaopt", u"adhoc");
  PutFile(u"stored.p12");
  PutFile(u"stored.mobileprovision");
  CreateFilled();
  Remember().Click();
  Combo(u"Certificate:").Type(u"");
  page.iosDeployType = 3;

  EXPECT_EQ(page.SaveToSettings(true), 1);

  EXPECT_EQ(Combo(u"Certificate:").text, u"C:\\k\\stored.p12");
  EXPECT_EQ(Combo(u"Provisioning profile:").text, u"C:\\k\\stored.mobileprovision");
  EXPECT_EQ(Password().text, u"stored");
  EXPECT_TRUE(Remember().checked);
  EXPECT_EQ(ApplicationId().text, u"com.old.game");
  EXPECT_EQ(page.iosDeployType, 2);
  EXPECT_TRUE(Find<RadioButton>(page, u"Deployment - Ad hoc").checked);
}

TEST_F(VolDeployStoreTest, AFailedCheckLeavesATypedPasswordThatIsNotRemembered) {
  SettingsSet(u"com.tav.moresh.ipacertpwd", u"stored");
  CreateFilled();
  Combo(u"Certificate:").Type(u"");

  EXPECT_EQ(page.SaveToSettings(true), 1);

  EXPECT_EQ(Password().text, u"secret");
}

TEST_F(VolDeployStoreTest, AFailedCheckLeavesATypedAppIdWithoutAStoredOne) {
  LoadChildren("");
  CreateFilled();
  Combo(u"Certificate:").Type(u"");

  EXPECT_EQ(page.SaveToSettings(true), 1);

  EXPECT_EQ(ApplicationId().text, u"com.new.game");
}

TEST_F(VolDeployStoreTest, ARefusedProfileLeavesStoredWhatWasAcceptedBefore) {
  CreateFilled();
  Combo(u"Provisioning profile:").Type(u"C:\\gone\\my.mobileprovision");

  EXPECT_EQ(page.SaveToSettings(true), 2);

  EXPECT_EQ(SettingsGet(u"com.tav.moresh.ipacertpath"), u"C:/k/my.p12");
  EXPECT_EQ(SettingsGet(u"com.tav.moresh.ipacertpwd"), u"secret");
}

TEST_F(VolDeployStoreTest, ARefusedCertificateLeavesNothingStored) {
  CreateFilled();
  Combo(u"Certificate:").Type(u"C:\\gone\\my.p12");

  EXPECT_EQ(page.SaveToSettings(true), 2);

  EXPECT_EQ(SettingsGet(u"com.tav.moresh.ipacertpath"), u"");
  EXPECT_EQ(SettingsGet(u"com.tav.moresh.ipacertpwd"), u"");
  EXPECT_EQ(SettingsGet(u"com.tav.moresh.ipaprovision"), u"");
}

TEST_F(VolDeployStoreTest, LoadingAnewListsNoFileTwice) {
  SaveRegistryFileList(u"IpaCertPath", 10, {PutFile(u"a.p12")});
  page.Create();
  Combo(u"Certificate:").Type(u"");

  page.SaveToSettings(true);

  EXPECT_THAT(Combo(u"Certificate:").Rows(), ElementsAre(u"C:\\k\\a.p12"));
}

TEST_F(VolDeployStoreTest, OnlyTheFirstFailureIsTold) {
  page.Create();

  EXPECT_EQ(page.SaveToSettings(true), 1);

  ExpectWarning(u"Certificate must be selected");
}

TEST_F(VolDeployStoreTest, ThePageStaysInitialisedAndChangedAfterAFailure) {
  page.Create();
  Find<RadioButton>(page, u"Deployment - Ad hoc").Click();

  page.SaveToSettings(true);

  EXPECT_TRUE(page.initialised);
  EXPECT_TRUE(page.changed);
}

// --- Both files ---------------------------------------------------------------------------------

class VolDeployFileStoreTest : public VolDeployStoreTest,
                               public ::testing::WithParamInterface<FileFieldCase> {
 protected:
  ComboBox& Combo() { return VolDeployTest::Combo(GetParam().label); }
};

INSTANTIATE_TEST_SUITE_P(Both, VolDeployFileStoreTest,
                         ::testing::Values(kCertificateCase, kProfileCase),
                         [](const auto& field) { return ToUtf8(field.param.recentFiles); });

TEST_P(VolDeployFileStoreTest, AnEmptyOneIsRefused) {
  CreateFilled();
  Combo().Type(u"");

  EXPECT_EQ(page.SaveToSettings(true), 1);

  ExpectWarning(GetParam().emptyMessage);
  EXPECT_EQ(SettingsGet(GetParam().key), u"");
}

TEST_P(VolDeployFileStoreTest, OneThatDoesNotExistIsRefused) {
  CreateFilled();
  Combo().Type(u"C:\\gone\\file");

  EXPECT_EQ(page.SaveToSettings(true), 2);

  ExpectWarning(GetParam().missingMessage);
  EXPECT_EQ(SettingsGet(GetParam().key), u"");
  EXPECT_EQ(RegistryValue(registry, GetParam().lastChoice), u"");
  EXPECT_EQ(Combo().text, u"");
}

TEST_P(VolDeployFileStoreTest, AnotherOneThanStoredIsAChange) {
  page.Create();
  Combo().Type(PutFile(u"new"));

  page.SaveToSettings(false);

  EXPECT_TRUE(page.changed);
}

TEST_P(VolDeployFileStoreTest, TheStoredOneIsNoChange) {
  PutFile(u"same");
  SettingsSet(GetParam().key, u"C:/k/same");
  page.Create();

  page.SaveToSettings(false);

  EXPECT_EQ(SettingsGet(GetParam().key), u"C:/k/same");
  EXPECT_FALSE(page.changed);
  EXPECT_EQ(RegistryValue(registry, GetParam().lastChoice), u"C:/k/same");
}

TEST_P(VolDeployFileStoreTest, TheRowsAreKeptForTheNextTimeNotATypedPath) {
  SaveRegistryFileList(GetParam().recentFiles, 10, {PutFile(u"a")});
  page.Create();
  Combo().AddString(u"C:\\k\\b");
  Combo().Type(PutFile(u"typed"));

  page.SaveToSettings(false);

  EXPECT_THAT(RecentFiles(GetParam().recentFiles), ElementsAre(u"C:\\k\\a", u"C:\\k\\b"));
}

TEST_P(VolDeployFileStoreTest, TheListKeepsTenAndIsOverwrittenFromItsStart) {
  std::vector<std::u16string> ten;
  for (char16_t name = u'a'; name <= u'j'; ++name) ten.push_back(PutFile({name}));
  SaveRegistryFileList(GetParam().recentFiles, 10, ten);
  page.Create();
  Combo().AddString(u"C:\\k\\new");

  page.SaveToSettings(false);

  ten[0] = u"C:\\k\\new";
  EXPECT_EQ(RecentFiles(GetParam().recentFiles), ten);
}

TEST_P(VolDeployFileStoreTest, WithoutRowsNoListIsTouched) {
  page.Create();
  registry.keys.erase(RegistrySettingsKeyPath() + u"\\" + GetParam().recentFiles);
  Combo().Type(PutFile(u"typed"));

  page.SaveToSettings(false);

  EXPECT_FALSE(registry.keys.contains(RegistrySettingsKeyPath() + u"\\" + GetParam().recentFiles));
}

}  // namespace
}  // namespace qutav::test
