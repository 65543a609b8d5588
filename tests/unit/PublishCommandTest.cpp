#include "PublishableDocumentTest.h"
#include "framework/CPropertySheet.h"
#include "win/PublishCommand.h"

namespace qutav::test {
namespace {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

class PublishCommandTest : public PublishableDocumentTest {
 protected:
  std::int32_t Publish() { return RunPublishCommand(call, Arguments().data(), u"publish"); }

  std::string Descriptor() const { return files.BytesOf(descriptorPath); }

  // The document without its descriptor.
  void LoseDescriptor() { files.Delete(descriptorPath); }

  // Makes `PublishEntry` open the sheet, and has its user leave it by that button.
  void OpenSheetAndPress(const std::u16string& button) {
    SettingsSet(keys::kCertificatePath, u"");
    frontEnd.onSheet = [button](CPropertySheet& sheet) {
      Find<RadioButton>(*sheet.Pages()[1], u"Debug").Click();
      PressButton(sheet, button);
    };
  }
};

TEST_F(PublishCommandTest, PackagesTheMovieAndReturnsOne) {
  EXPECT_EQ(Publish(), 1);

  EXPECT_THAT(PackagerCommands(), SizeIs(1));
  EXPECT_THAT(frontEnd.Texts(), ElementsAre(u"APK file has been created."));
}

TEST_F(PublishCommandTest, AFailureNeverReachesTheHost) {
  files.Delete(u"C:/m/Game.qmv");

  EXPECT_EQ(Publish(), 1);

  EXPECT_THAT(frontEnd.messages, SizeIs(1));
  EXPECT_THAT(PackagerCommands(), IsEmpty());
}

TEST_F(PublishCommandTest, ADocumentThatCannotBePreparedEndsTheCommand) {
  movieUri = u"file:///C:/gone/Game.qmv";
  DebugPort = 7936;

  EXPECT_EQ(Publish(), 1);

  EXPECT_THAT(frontEnd.messages, SizeIs(1));
  EXPECT_EQ(DebugPort, 7936);
  EXPECT_THAT(host.scripts, Not(Contains(u"qu.getDocumentDOM().playerTarget;")));
}

TEST_F(PublishCommandTest, TheTargetIsTakenFromThePlayerTarget) {
  SettingsSet(keys::kIpaCertificatePath, u"C:/keys/ios.p12");
  SettingsSet(keys::kIpaCertificatePassword, u"secret");
  SettingsSet(keys::kIpaRememberPassword, u"true");
  SettingsSet(keys::kIpaProvisioningProfile, u"C:/keys/my.mobileprovision");
  host.playerTarget = u"iPhone OS";

  Publish();

  EXPECT_THAT(PackagerCommands(), ElementsAre(HasSubstr("-target ipa-test")));
}

TEST_F(PublishCommandTest, APlayerTargetOfThePhoneNeverClearsTheAndroidMarkOfTheDocument) {
  host.playerTarget = u"iPhone OS";
  host.data[keys::kPublishTav] = u"true";

  Publish();

  EXPECT_EQ(SettingsGet(keys::kPublishTav), u"true");
  EXPECT_EQ(SettingsGet(keys::kPublishIpa), u"true");
  EXPECT_THAT(PackagerCommands(), IsEmpty()) << "the sheet opens for the iOS certificate";
  EXPECT_THAT(frontEnd.dialogs, ElementsAre(u"CSettingsPropSheet"));
}

TEST_F(PublishCommandTest, ADescriptorInItsPlaceIsKeptAlsoForADocumentThatMoved) {
  host.data = {{u"quorl.brd.filepath", u"C:/elsewhere/Old.qud"},
               {u"qmv.folder.path", u"C:/elsewhere/"},
               {u"quorl.qmv.basename", u"Old"}};
  files.Put(u"C:/elsewhere/Old-app.xml", DescriptorText("26.0", "<copyright>else</copyright>"));

  Publish();

  EXPECT_THAT(Descriptor(), AllOf(HasSubstr("<filename>Old</filename>"), Not(HasSubstr("else"))));
  EXPECT_EQ(SettingsGet(keys::kDocumentPath), u"C:/elsewhere/Old.qud");
}

TEST_F(PublishCommandTest, ANewDocumentTakesItsTargetFromTheOutputTypeAndGetsADescriptor) {
  LoseDescriptor();
  host.data[u"com.zenvoka.quorl.lorvath.output.type"] = u"ipa";

  Publish();

  EXPECT_EQ(SettingsGet(keys::kPublishIpa), u"true");
  EXPECT_THAT(Descriptor(), HasSubstr("<filename>Game</filename>"));
}

TEST_F(PublishCommandTest, ADocumentThatStoredItsFolderIsNotAskedForItsOutputType) {
  LoseDescriptor();
  host.data[u"qmv.folder.path"] = u"C:/m/";
  host.data[u"com.zenvoka.quorl.lorvath.output.type"] = u"ipa";

  Publish();

  EXPECT_EQ(SettingsGet(keys::kPublishIpa), u"false");
  EXPECT_TRUE(files.HasFile(descriptorPath));
}

TEST_F(PublishCommandTest, TheDescriptorOfADocumentSavedUnderANewNameIsCopiedAndRetargeted) {
  LoseDescriptor();
  host.data = {{u"quorl.brd.filepath", u"C:/docs/Old.qud"},
               {u"qmv.folder.path", u"C:/old/"},
               {u"quorl.qmv.basename", u"Old"}};
  files.Put(u"C:/old/Old-app.xml", DescriptorText("26.0", "<copyright>mine</copyright>"));

  Publish();

  EXPECT_THAT(Descriptor(),
              AllOf(HasSubstr("<copyright>mine</copyright>"), HasSubstr("<id>Old</id>"),
                    HasSubstr("<filename>Game</filename>"), HasSubstr("<name>Game</name>"),
                    HasSubstr("<content>Game.qmv</content>")));
  EXPECT_EQ(SettingsGet(keys::kDocumentPath), u"C:/docs/Game.qud");
}

TEST_F(PublishCommandTest, AMovedDocumentWhoseDescriptorVanishedGetsAGeneratedOne) {
  LoseDescriptor();
  host.data = {{u"quorl.brd.filepath", u"C:/docs/Old.qud"},
               {u"qmv.folder.path", u"C:/old/"},
               {u"quorl.qmv.basename", u"Old"}};

  Publish();

  EXPECT_THAT(Descriptor(), HasSubstr("<filename>Game</filename>"));
  EXPECT_EQ(SettingsGet(keys::kOldTargetPlatform), u"Nothing");
  EXPECT_EQ(SettingsGet(keys::kDocumentPath), u"C:/docs/Game.qud");
}

TEST_F(PublishCommandTest, ADescriptorWithAnOlderNamespaceIsRewrittenBeforePackaging) {
  PutSample("26.0");
  files.Put(descriptorPath, DescriptorText("3.0"));
  std::string packaged;
  processes.play = [&](const std::u16string&) {
    packaged = Descriptor();
    return PlayedAnswer();
  };

  Publish();

  EXPECT_THAT(packaged, HasSubstr("xmlns=\"http://ns.zenvoka.example/tav/application/26.0\""));
}

TEST_F(PublishCommandTest, WithoutASampleTheNamespaceIsLeftAloneAndPackagingGoesOn) {
  files.Delete(u"C:/host/TAV26.0/samples/descriptor-sample.xml");
  files.Put(descriptorPath, DescriptorText("3.0"));

  Publish();

  EXPECT_THAT(Descriptor(), HasSubstr("tav/application/3.0\""));
  EXPECT_THAT(PackagerCommands(), SizeIs(1));
}

TEST_F(PublishCommandTest, ExtensionIdsAreBroughtUpToDateBeforePackaging) {
  files.Put(u"C:/docs/a.zux");
  host.externalLibraryPath = u"a.zux";
  host.data[u"zux.id.a.zux"] = u"com.sample.a";

  Publish();

  EXPECT_THAT(Descriptor(), HasSubstr("<extensionID>com.sample.a</extensionID>"));
  EXPECT_THAT(PackagerCommands(), ElementsAre(HasSubstr(" -extdir \"C:/temp/Game_ZUX_Cache/\" ")));
}

TEST_F(PublishCommandTest, WithoutALibraryPathTheCommandNamesNoExtensions) {
  files.Put(descriptorPath,
            DescriptorText("26.0", "<extensions><extensionID>old</extensionID></extensions>"));

  Publish();

  EXPECT_THAT(Descriptor(), Not(HasSubstr("<extensions")));
  EXPECT_THAT(PackagerCommands(), ElementsAre(Not(HasSubstr("-extdir"))));
}

TEST_F(PublishCommandTest, ADescriptorThatCannotBeParsedEndsTheCommand) {
  files.Put(descriptorPath, "<application");
  DebugPort = 7936;

  EXPECT_EQ(Publish(), 1);

  const std::u16string text = u"Application descriptor file cannot be parsed.";
  EXPECT_THAT(frontEnd.Texts(), ElementsAre(text, text)) << "of the extension ids, of the opening";
  EXPECT_EQ(DebugPort, 7936);
  EXPECT_THAT(processes.CommandLines(), IsEmpty());
}

TEST_F(PublishCommandTest, APlainPublishLeavesTheDocumentUntouched) {
  const auto before = host.data;

  Publish();

  EXPECT_EQ(SettingsGet(keys::kExitOk), u"false");
  EXPECT_EQ(host.data, before);
  EXPECT_THAT(host.ScriptsBeginning(u"qu.getDocumentDOM().addDataToDocument"), IsEmpty());
  EXPECT_THAT(host.ScriptsBeginning(u"qu.getDocumentDOM().removeDataFromDocument"), IsEmpty());
}

TEST_F(PublishCommandTest, ASheetLeftByOkAfterAChangeStoresTheSettingsInTheDocument) {
  OpenSheetAndPress(u"OK");

  Publish();

  EXPECT_EQ(host.data[u"com.tav.pelund.publishtype"], u"debug");
  EXPECT_EQ(host.data[u"qmv.folder.path"], u"C:/m/");
}

TEST_F(PublishCommandTest, ASheetLeftByCancelStoresNothing) {
  OpenSheetAndPress(u"Cancel");

  Publish();

  EXPECT_THAT(frontEnd.dialogs, ElementsAre(u"CSettingsPropSheet"));
  EXPECT_FALSE(host.data.contains(u"com.tav.pelund.publishtype"));
}

TEST_F(PublishCommandTest, APublishTouchesNoneOfTheBorrowedSettings) {
  host.data[keys::kPublishType] = u"release";
  SettingsSet(keys::kAdbOption, u"nothing");
  std::u16string forced = u"?";
  frontEnd.onMessage = [&](const MessageBoxRequest&) { forced = SettingsGet(keys::kForceExport); };

  Publish();

  EXPECT_EQ(SettingsGet(keys::kPublishType), u"release");
  EXPECT_EQ(SettingsGet(keys::kAdbOption), u"nothing");
  EXPECT_EQ(forced, u"");
  EXPECT_THAT(host.ScriptsBeginning(u"qu.getDocumentDOM().getSelectedDevice"), IsEmpty());
}

TEST_F(PublishCommandTest, TheMarksOfARunAreEmptiedAfterAPublishToo) {
  host.data[keys::kPublishType] = u"release";

  Publish();

  for (const char16_t* key : {u"com.tav.pelund.debugOnDevice", u"com.tav.pelund.testOnDevice",
                              u"com.tav.moresh.forceQMVPublish"}) {
    ASSERT_TRUE(SettingsMap.contains(key));
    EXPECT_EQ(SettingsGet(key), u"");
  }
}

TEST_F(PublishCommandTest, APublishStoresAndAdvancesTheDebugPort) {
  DebugPort = 7938;

  Publish();

  EXPECT_EQ(RegistryValue(registry, u"usbPort"), u"7938");
  EXPECT_EQ(DebugPort, 7939);
}

TEST_F(PublishCommandTest, APublishHasNothingToDoWithTheHostsDebugSession) {
  Publish();

  EXPECT_THAT(host.ScriptsBeginning(u"qu.beginPortDebugSession"), IsEmpty());
  EXPECT_THAT(host.ScriptsBeginning(u"qu.endDebugSession"), IsEmpty());
}

TEST_F(PublishCommandTest, TheNameOfTheCommandIsComparedWithoutRegardToCase) {
  RunPublishCommand(call, Arguments().data(), u"DEBUGonDEVICE");

  EXPECT_THAT(host.ScriptsBeginning(u"qu.beginPortDebugSession"), SizeIs(1));
}

}  // namespace
}  // namespace qutav::test
