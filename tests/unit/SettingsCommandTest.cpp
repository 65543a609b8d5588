// What happens when the host opens the settings of a document.

#include "PublishableDocumentTest.h"
#include "framework/CheckList.h"
#include "win/SettingsCommand.h"

namespace qutav::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

class SettingsCommandTest : public PublishableDocumentTest {
 protected:
  SettingsCommandTest() {
    host.data[keys::kMovieFolder] = u"C:/m/";
    host.data[keys::kMovieBaseName] = u"Game";
    frontEnd.onSheet = [this](CPropertySheet& sheet) { titles.push_back(sheet.Title()); };
  }

  std::int32_t Run() {
    const auto arguments = Arguments();
    return RunSettingsCommand(call, arguments.data());
  }
  // Runs the command with a user who types an output file, and leaves the sheet by a button.
  void RunWithOutputFile(const std::u16string& path, const std::u16string& button) {
    frontEnd.onSheet = [=](CPropertySheet& sheet) {
      Find<Edit>(*sheet.Pages()[0], u"Output file:").Type(path);
      PressButton(sheet, button);
    };
    Run();
  }
  std::vector<std::u16string> WritingScripts() const {
    return host.ScriptsBeginning(u"qu.getDocumentDOM().addDataToDocument");
  }
  std::string DescriptorOnDisk() const { return files.BytesOf(descriptorPath); }

  std::vector<std::u16string> titles;  // of the sheets that were shown
};

TEST_F(SettingsCommandTest, UnusableArgumentsShowNoSheet) {
  documentUri.append(300, u'x');  // more than a path can have

  EXPECT_EQ(Run(), 1);

  EXPECT_THAT(titles, IsEmpty());
  EXPECT_THAT(host.scripts, IsEmpty());
}

TEST_F(SettingsCommandTest, ADocumentForThePhoneOpensTheIosForm) {
  host.playerTarget = u"iPhone OS";

  EXPECT_EQ(Run(), 1);

  EXPECT_THAT(titles, ElementsAre(u"TAV for iOS Settings"));
}

TEST_F(SettingsCommandTest, AnyOtherTargetOpensTheAndroidFormWhateverTheDocumentHasStored) {
  host.data[keys::kPublishIpa] = u"true";

  EXPECT_EQ(Run(), 1);

  EXPECT_THAT(titles, ElementsAre(u"TAV for Android Settings"));
}

TEST_F(SettingsCommandTest, ADocumentWithoutAStoredFolderIsFollowedButNothingIsRelocated) {
  host.data.erase(keys::kMovieFolder);
  host.data[keys::kMovieBaseName] = u"Old";
  host.data[keys::kDocumentPath] = u"C:/elsewhere/Old.qud";
  files.Put(u"Old-app.xml", DescriptorText("26.0", "<copyright>of the old one</copyright>"));
  files.Delete(descriptorPath);

  Run();

  EXPECT_EQ(SettingsGet(u"quorl.brd.filepath"), u"C:/docs/Game.qud");
  EXPECT_THAT(DescriptorOnDisk(), Not(HasSubstr("of the old one")));
  EXPECT_THAT(titles, SizeIs(1));
}

TEST_F(SettingsCommandTest, AMovedDocumentWithoutADescriptorGetsItsOldOneRetargeted) {
  host.data[keys::kMovieFolder] = u"C:/old/";
  host.data[keys::kMovieBaseName] = u"Old";
  host.data[keys::kDocumentPath] = u"C:/old/Old.qud";
  files.Put(u"C:/old/Old-app.xml", DescriptorText());
  files.Delete(descriptorPath);

  Run();

  EXPECT_EQ(SettingsGet(u"quorl.brd.filepath"), u"C:/docs/Game.qud");
  EXPECT_THAT(DescriptorOnDisk(), HasSubstr("<id>Old</id>"));
  EXPECT_THAT(DescriptorOnDisk(), HasSubstr("<filename>Game</filename>"));
  EXPECT_THAT(DescriptorOnDisk(), HasSubstr("<content>Game.qmv</content>"));
  EXPECT_EQ(files.BytesOf(u"C:/old/Old-app.xml"), DescriptorText());
}

TEST_F(SettingsCommandTest, AMovedDocumentWithADescriptorKeepsIt) {
  host.data[keys::kMovieFolder] = u"C:/old/";
  host.data[keys::kMovieBaseName] = u"Old";
  host.data[keys::kDocumentPath] = u"C:/old/Old.qud";
  files.Put(u"C:/old/Old-app.xml", DescriptorText("26.0", "<copyright>of the old one</copyright>"));

  Run();

  EXPECT_EQ(SettingsGet(u"quorl.brd.filepath"), u"C:/docs/Game.qud");
  EXPECT_THAT(DescriptorOnDisk(), HasSubstr("<filename>Old</filename>"));
  EXPECT_THAT(DescriptorOnDisk(), Not(HasSubstr("of the old one")));
}

TEST_F(SettingsCommandTest, ADocumentInItsPlaceKeepsItsStoredPath) {
  documentUri = u"file:///C:/docs/Alias.qud";  // the same document under another name

  Run();

  EXPECT_EQ(SettingsGet(u"quorl.brd.filepath"), u"C:/docs/Game.qud");
}

TEST_F(SettingsCommandTest, WithoutADescriptorOneIsGenerated) {
  files.Delete(descriptorPath);

  EXPECT_EQ(Run(), 1);

  EXPECT_THAT(DescriptorOnDisk(), HasSubstr("<filename>Game</filename>"));
  EXPECT_THAT(titles, SizeIs(1));
}

TEST_F(SettingsCommandTest, TheExtensionIdsAreInTheFileWhileTheSheetIsOpen) {
  host.externalLibraryPath = u"a.zux";
  host.data[u"zux.id.a.zux"] = u"com.sample.a";
  files.Put(u"C:/docs/a.zux");
  std::string seen;
  frontEnd.onSheet = [&](CPropertySheet&) { seen = DescriptorOnDisk(); };

  Run();

  EXPECT_THAT(seen, HasSubstr("<extensionID>com.sample.a</extensionID>"));
}

TEST_F(SettingsCommandTest, TheMarkOfAnEarlierSheetIsTakenBackBeforeThisOneOpens) {
  SettingsSet(u"com.tav.moresh.exitok", u"true");
  std::u16string seen;
  frontEnd.onSheet = [&](CPropertySheet&) { seen = SettingsGet(u"com.tav.moresh.exitok"); };

  Run();

  EXPECT_EQ(seen, u"false");
  EXPECT_THAT(WritingScripts(), IsEmpty());
}

TEST_F(SettingsCommandTest, OkAfterAChangeStoresTheSettingsInTheDocument) {
  RunWithOutputFile(u"Other.apk", u"OK");

  EXPECT_THAT(WritingScripts(), Contains(u"qu.getDocumentDOM().addDataToDocument(\"com.tav.moresh."
                                         u"tavdest\", \"string\", \"Other.apk\");"));
}

TEST_F(SettingsCommandTest, OkWithoutAChangeStoresNothingInTheDocument) {
  host.data[keys::kTavDestination] = u"Game.apk";

  RunWithOutputFile(u"Game.apk", u"OK");

  EXPECT_THAT(frontEnd.messages, IsEmpty());
  EXPECT_THAT(WritingScripts(), IsEmpty());
}

TEST_F(SettingsCommandTest, CancelStoresNothingInTheDocument) {
  RunWithOutputFile(u"Other.apk", u"Cancel");

  EXPECT_THAT(WritingScripts(), IsEmpty());
}

TEST_F(SettingsCommandTest, ADescriptorThatCannotBeParsedShowsNoSheetAndStoresNothing) {
  files.Put(descriptorPath, "<application");

  EXPECT_EQ(Run(), 1);

  EXPECT_THAT(titles, IsEmpty());
  EXPECT_THAT(frontEnd.Texts(), Contains(u"Application descriptor file cannot be parsed."));
  EXPECT_EQ(DescriptorOnDisk(), "<application");
  EXPECT_THAT(WritingScripts(), IsEmpty());
}

}  // namespace
}  // namespace qutav::test
