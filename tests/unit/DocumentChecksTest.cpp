#include "DocumentTest.h"
#include "descriptor/DescriptorDocument.h"
#include "win/DocumentChecks.h"
#include "win/DocumentPaths.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr char16_t kCannotBeParsed[] = u"Application descriptor file cannot be parsed.";

class DocumentChecksTest : public DocumentTest {
 protected:
  static std::pair<std::u16string, std::u16string> Targets() {
    return {SettingsGet(u"com.tav.moresh.pubipa"), SettingsGet(u"com.tav.moresh.pubtav")};
  }
  static void SetTargets(const std::u16string& ipa, const std::u16string& tav) {
    SettingsSet(keys::kPublishIpa, ipa);
    SettingsSet(keys::kPublishTav, tav);
  }
  static std::pair<std::u16string, std::u16string> Pair(const char16_t* ipa, const char16_t* tav) {
    return {ipa, tav};
  }

  // The document as the extension left it in another place.
  void StorePlace(const std::u16string& folder, const std::u16string& baseName) {
    host.data[u"qmv.folder.path"] = folder;
    host.data[u"quorl.qmv.basename"] = baseName;
  }

  // Prepares the document with a descriptor and opens that.
  bool Open(const std::string& descriptor) {
    files.Put(descriptorPath, descriptor);
    EXPECT_TRUE(Prepare());
    files.changes.clear();
    return OpenDescriptor();
  }
};

TEST_F(DocumentChecksTest, ThePlayerTargetOfThePhoneSelectsIosAndKeepsTheAndroidMark) {
  host.playerTarget = u"iPhone OS";
  SetTargets(u"false", u"true");

  DetectPlayerTarget(call);

  EXPECT_EQ(Targets(), Pair(u"true", u"true"));
  EXPECT_THAT(host.scripts, ElementsAre(u"qu.getDocumentDOM().playerTarget;"));
}

TEST_F(DocumentChecksTest, EveryOtherPlayerTargetSelectsAndroid) {
  for (const char16_t* target : {u"Android", u"iphone os", u"iPhone OS ", u""}) {
    host.playerTarget = target;
    SetTargets(u"true", u"");

    DetectPlayerTarget(call);

    EXPECT_EQ(Targets(), Pair(u"false", u"true"));
  }
}

TEST_F(DocumentChecksTest, AHostWithoutATextConverterSelectsAndroid) {
  HostEnvironment.words[19] = 0;

  DetectPlayerTarget(call);

  EXPECT_EQ(Targets(), Pair(u"false", u"true"));
}

TEST_F(DocumentChecksTest, TheStoredOutputTypeIpaSelectsIosAndKeepsTheAndroidMark) {
  host.data[u"com.zenvoka.quorl.lorvath.output.type"] = u"ipa";
  SetTargets(u"false", u"kept");

  DetectOutputType(call);

  EXPECT_EQ(Targets(), Pair(u"true", u"kept"));
}

TEST_F(DocumentChecksTest, EveryOtherOutputTypeSelectsAndroid) {
  for (const char16_t* type : {u"apk", u"IPA", u"ipa-debug"}) {
    host.data[u"com.zenvoka.quorl.lorvath.output.type"] = type;
    SetTargets(u"true", u"");

    DetectOutputType(call);

    EXPECT_EQ(Targets(), Pair(u"false", u"true"));
  }
}

TEST_F(DocumentChecksTest, ADocumentWithoutAnOutputTypeSelectsAndroid) {
  SetTargets(u"true", u"");

  DetectOutputType(call);

  EXPECT_EQ(Targets(), Pair(u"false", u"true"));
}

TEST_F(DocumentChecksTest, ADocumentThatHoldsNoFolderIsNew) {
  EXPECT_TRUE(DocumentHasNoStoredFolder(call));

  host.data[u"qmv.folder.path"] = u"C:/m/";
  EXPECT_FALSE(DocumentHasNoStoredFolder(call));
}

TEST_F(DocumentChecksTest, TheFolderIsSoughtInTheDocumentAndNotInTheMap) {
  SettingsSet(keys::kMovieFolder, u"C:/m/");

  EXPECT_TRUE(DocumentHasNoStoredFolder(call));
}

TEST_F(DocumentChecksTest, AFolderStoredAsTheTextZeroCounts) {
  host.data[u"qmv.folder.path"] = u"0";

  EXPECT_FALSE(DocumentHasNoStoredFolder(call));
}

TEST_F(DocumentChecksTest, ADocumentAtItsStoredPathWasNotMoved) {
  host.documentPath = u"C:\\docs\\Game.qud";
  host.data[u"quorl.brd.filepath"] = u"C:/docs/Game.qud";

  EXPECT_FALSE(DocumentWasMoved(call));
}

TEST_F(DocumentChecksTest, ADocumentAtAnotherPathWasMoved) {
  host.documentPath = u"C:\\docs\\Game2.qud";
  host.data[u"quorl.brd.filepath"] = u"C:/docs/Game.qud";

  EXPECT_TRUE(DocumentWasMoved(call));
}

TEST_F(DocumentChecksTest, AnotherCaseInThePathCountsAsMoved) {
  host.documentPath = u"C:\\docs\\game.qud";
  host.data[u"quorl.brd.filepath"] = u"C:/docs/Game.qud";

  EXPECT_TRUE(DocumentWasMoved(call));
}

TEST_F(DocumentChecksTest, BackslashesInTheStoredPathCountAsMoved) {
  host.data[u"quorl.brd.filepath"] = u"C:\\docs\\Game.qud";

  EXPECT_TRUE(DocumentWasMoved(call));
}

TEST_F(DocumentChecksTest, ADocumentWithoutAStoredPathWasMoved) {
  EXPECT_TRUE(DocumentWasMoved(call));
}

TEST_F(DocumentChecksTest, AnUnsavedDocumentWasNotMoved) {
  host.documentPath = u"";
  host.data[u"quorl.brd.filepath"] = u"C:/docs/Game.qud";

  EXPECT_FALSE(DocumentWasMoved(call));
}

TEST_F(DocumentChecksTest, RelocatingCopiesTheOldDescriptorAndRetargetsIt) {
  StorePlace(u"C:/old/", u"Old");
  files.Put(u"C:/old/Old-app.xml", DescriptorText());

  RelocateDescriptor(call, u"C:/m/", u"New Game");

  EXPECT_EQ(files.BytesOf(u"C:/old/Old-app.xml"), DescriptorText());
  const std::string moved = files.BytesOf(u"C:/m/New Game-app.xml");
  EXPECT_THAT(moved, HasSubstr("<id>Old</id>"));
  EXPECT_THAT(moved, HasSubstr("<filename>New Game</filename>"));
  EXPECT_THAT(moved, HasSubstr("<name>New Game</name>"));
  EXPECT_THAT(moved, HasSubstr("<content>New%20Game.qmv</content>"));
  EXPECT_FALSE(SettingsMap.contains(keys::kOldTargetPlatform));
}

TEST_F(DocumentChecksTest, RelocatingTakesTheOldPlaceFromTheDocumentAndSetsTheNewOneInTheMap) {
  StorePlace(u"C:/old/", u"Old");
  files.Put(u"C:/old/Old-app.xml", DescriptorText());
  SettingsSet(keys::kMovieFolder, u"C:/other/");
  SettingsSet(keys::kMovieBaseName, u"Other");

  RelocateDescriptor(call, u"C:/m/", u"New");

  EXPECT_EQ(SettingsGet(u"qmv.folder.path"), u"C:/m/");
  EXPECT_EQ(SettingsGet(u"quorl.qmv.basename"), u"New");
  EXPECT_TRUE(files.HasFile(u"C:/m/New-app.xml"));
  EXPECT_EQ(host.data[u"qmv.folder.path"], u"C:/old/");
}

TEST_F(DocumentChecksTest, RelocatingADescriptorThatVanishedGeneratesOne) {
  StorePlace(u"C:/old/", u"Old");

  RelocateDescriptor(call, u"C:/m/", u"New");

  EXPECT_THAT(files.BytesOf(u"C:/m/New-app.xml"), HasSubstr("<filename>New</filename>"));
  EXPECT_EQ(SettingsGet(keys::kOldTargetPlatform), u"Nothing");
}

TEST_F(DocumentChecksTest, RelocatingADocumentThatStoredNothingGeneratesADescriptor) {
  RelocateDescriptor(call, u"C:/m/", u"New");

  EXPECT_TRUE(files.HasFile(u"C:/m/New-app.xml"));
  EXPECT_EQ(SettingsGet(keys::kOldTargetPlatform), u"Nothing");
}

TEST_F(DocumentChecksTest, ADescriptorThatCannotBeCopiedIsGeneratedInstead) {
  StorePlace(u"C:/old/", u"Old");
  files.Put(u"C:/old/Old-app.xml", DescriptorText());
  files.readOnly.insert(u"C:/m/New-app.xml");

  RelocateDescriptor(call, u"C:/m/", u"New");

  EXPECT_EQ(SettingsGet(keys::kOldTargetPlatform), u"Nothing");
  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(DocumentChecksTest, ADescriptorThatCannotBeRetargetedIsToldAndReplaced) {
  StorePlace(u"C:/old/", u"Old");
  files.Put(u"C:/old/Old-app.xml", "<application");

  RelocateDescriptor(call, u"C:/m/", u"New");

  EXPECT_THAT(frontEnd.Texts(), ElementsAre(kCannotBeParsed));
  EXPECT_THAT(files.BytesOf(u"C:/m/New-app.xml"), HasSubstr("<filename>New</filename>"));
}

TEST_F(DocumentChecksTest, OpeningRemembersTheDescriptorAndClosesIt) {
  EXPECT_TRUE(Open(DescriptorText()));

  EXPECT_EQ(DocumentPaths.ActiveDescriptorPath.Text(), u"C:/m/Game-app.xml");
  EXPECT_FALSE(LaunchDescriptor.IsParserReady());
}

TEST_F(DocumentChecksTest, OpeningADescriptorWithAnOlderNamespaceRewritesIt) {
  PutSample("32.0");

  EXPECT_TRUE(Open(DescriptorText("26.0")));

  EXPECT_THAT(files.BytesOf(descriptorPath),
              HasSubstr("xmlns=\"http://ns.zenvoka.example/tav/application/32.0\""));
  EXPECT_THAT(files.changes, ElementsAre(u"write C:/m/Game-app.xml"));
}

TEST_F(DocumentChecksTest, OpeningADescriptorWithANewerNamespaceRewritesItToo) {
  PutSample("26.0");

  EXPECT_TRUE(Open(DescriptorText("32.0")));

  EXPECT_THAT(files.BytesOf(descriptorPath), HasSubstr("application/26.0\""));
}

TEST_F(DocumentChecksTest, OpeningADescriptorWithTheNamespaceOfTheSdkWritesNothing) {
  PutSample("26.0");

  EXPECT_TRUE(Open(DescriptorText("26.0")));

  EXPECT_THAT(files.changes, IsEmpty());
}

TEST_F(DocumentChecksTest, OpeningADescriptorWithoutANamespaceGivesItTheOneOfTheSdk) {
  PutSample("26.0");

  EXPECT_TRUE(Open("<application><id>Old</id></application>"));

  EXPECT_THAT(files.BytesOf(descriptorPath),
              HasSubstr("<application xmlns=\"http://ns.zenvoka.example/tav/application/26.0\">"));
  EXPECT_THAT(files.changes, ElementsAre(u"write C:/m/Game-app.xml"));
}

TEST_F(DocumentChecksTest, OpeningRemembersTheDescriptorAlsoWhenItCannotBeParsed) {
  EXPECT_FALSE(Open("<application"));

  EXPECT_EQ(DocumentPaths.ActiveDescriptorPath.Text(), u"C:/m/Game-app.xml");
}

TEST_F(DocumentChecksTest, OpeningWithoutASampleLeavesTheDescriptorAlone) {
  EXPECT_TRUE(Open(DescriptorText("3.0")));

  EXPECT_THAT(files.changes, IsEmpty());
  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(DocumentChecksTest, OpeningADescriptorThatCannotBeParsedIsToldAndLeavesItOpen) {
  EXPECT_FALSE(Open("<application"));

  ASSERT_EQ(frontEnd.messages.size(), 1u);
  EXPECT_EQ(frontEnd.messages[0].text, kCannotBeParsed);
  EXPECT_EQ(frontEnd.messages[0].icon, MessageIcon::kWarning);
  EXPECT_TRUE(LaunchDescriptor.IsParserReady());
}

TEST_F(DocumentChecksTest, OpeningDoesNotReplaceAMilestoneDescriptor) {
  EXPECT_FALSE(Open(DescriptorText("1.0.M6")));

  EXPECT_THAT(frontEnd.Texts(), ElementsAre(kCannotBeParsed));
  EXPECT_EQ(files.BytesOf(descriptorPath), DescriptorText("1.0.M6"));
}

}  // namespace
}  // namespace qutav::test
