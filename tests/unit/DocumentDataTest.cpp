#include "ServicesTest.h"
#include "win/DocumentData.h"
#include "win/DocumentPaths.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::int32_t GiveTwo(void*, HostValue, std::int32_t* boolean) {
  *boolean = 2;
  return 1;
}

const std::vector<std::u16string> kDocumentKeys = {u"qmv.folder.path",
                                                   u"quorl.qmv.basename",
                                                   u"quorl.brd.filepath",
                                                   u"com.tav.moresh.included.count",
                                                   u"com.tav.moresh.pubtav",
                                                   u"com.tav.moresh.pubipa",
                                                   u"com.tav.moresh.pubexe",
                                                   u"com.tav.moresh.ipaopt",
                                                   u"com.tav.moresh.ipadest",
                                                   u"com.tav.moresh.tavdest",
                                                   u"com.tav.moresh.ipacertpath",
                                                   u"com.tav.moresh.ipaprovision",
                                                   u"com.zenvoka.android.ignore_cdata",
                                                   u"com.tav.pelund.publishtype",
                                                   u"com.tav.pelund.marketURL",
                                                   u"com.tav.pelund.runtimetype",
                                                   u"com.tav.sdk.path",
                                                   u"com.tav.pelund.hostip",
                                                   u"com.tav.oldTargetPlatform",
                                                   u"com.tav.pelund.proctype"};

std::u16string GetCall(const std::u16string& key) {
  return u"qu.getDocumentDOM().getDataFromDocument(\"" + key + u"\");";
}

std::u16string RemoveCall(const std::u16string& key) {
  return u"qu.getDocumentDOM().removeDataFromDocument(\"" + key + u"\");";
}

std::u16string AddCall(const std::u16string& key, const std::u16string& value) {
  return u"qu.getDocumentDOM().addDataToDocument(\"" + key + u"\", \"string\", \"" + value +
         u"\");";
}

std::u16string Item(const std::u16string& index) { return u"com.tav.moresh.included.item" + index; }

class DocumentDataTest : public ServicesTest {
 protected:
  void PutItems(const std::vector<std::u16string>& indices) {
    for (const std::u16string& index : indices) SettingsSet(Item(index), u"new" + index);
  }
  void StoreItems(const std::vector<std::u16string>& indices) {
    for (const std::u16string& index : indices) host.data[Item(index)] = u"old" + index;
  }
  HostCallContext call;
};

TEST_F(DocumentDataTest, ReadingCopiesTheStoredText) {
  host.data[u"a.key"] = u"stored";

  ReadDocumentKey(call, u"a.key");

  EXPECT_EQ(SettingsGet(u"a.key"), u"stored");
  EXPECT_THAT(host.scripts, ElementsAre(GetCall(u"a.key")));
}

TEST_F(DocumentDataTest, ReadingAKeyStoredAsTheTextZeroLeavesTheMapsValue) {
  host.data[u"a.key"] = u"0";
  SettingsSet(u"a.key", u"mine");

  ReadDocumentKey(call, u"a.key");

  EXPECT_EQ(SettingsGet(u"a.key"), u"mine");
}

TEST_F(DocumentDataTest, ReadingAKeyThatIsNotStoredLeavesTheMapAlone) {
  SettingsSet(u"a.key", u"mine");

  ReadDocumentKey(call, u"a.key");
  ReadDocumentKey(call, u"b.key");

  EXPECT_EQ(SettingsMap, (SettingsTexts{{u"a.key", u"mine"}}));
}

TEST_F(DocumentDataTest, ReadingAnEmptyStoredTextLeavesTheMapsValue) {
  host.data[u"a.key"] = u"";
  SettingsSet(u"a.key", u"mine");

  ReadDocumentKey(call, u"a.key");

  EXPECT_EQ(SettingsGet(u"a.key"), u"mine");
}

TEST_F(DocumentDataTest, ATextThatOnlyBeginsWithZeroIsRead) {
  host.data[u"a.key"] = u"0.5";

  ReadDocumentKey(call, u"a.key");

  EXPECT_EQ(SettingsGet(u"a.key"), u"0.5");
}

TEST_F(DocumentDataTest, AnEmptyKeyIsNeitherReadNorWrittenNorRemoved) {
  ReadDocumentKey(call, u"");
  WriteDocumentKey(call, u"");
  RemoveDocumentKey(call, u"");

  EXPECT_THAT(host.scripts, IsEmpty());
}

TEST_F(DocumentDataTest, WritingStoresTheValueAsAString) {
  SettingsSet(u"a.key", u"C:/m/My Game");

  WriteDocumentKey(call, u"a.key");

  EXPECT_THAT(host.scripts, ElementsAre(u"qu.getDocumentDOM().addDataToDocument(\"a.key\", "
                                        u"\"string\", \"C:/m/My Game\");"));
}

TEST_F(DocumentDataTest, WritingAnEmptyValueRemovesTheKeyFromTheDocument) {
  host.data[u"a.key"] = u"stored";

  WriteDocumentKey(call, u"a.key");

  EXPECT_THAT(host.scripts, ElementsAre(u"qu.getDocumentDOM().removeDataFromDocument(\"a.key\");"));
  EXPECT_THAT(host.data, IsEmpty());
}

TEST_F(DocumentDataTest, ADoubleQuoteInAValueBreaksTheScriptAsItIsNotEscaped) {
  SettingsSet(u"a.key", u"5\" screen");

  WriteDocumentKey(call, u"a.key");

  EXPECT_THAT(host.scripts, ElementsAre(u"qu.getDocumentDOM().addDataToDocument(\"a.key\", "
                                        u"\"string\", \"5\" screen\");"));
}

TEST_F(DocumentDataTest, AValueOfMoreThan260UnitsIsWrittenWhole) {
  const std::u16string value(1000, u'x');
  SettingsSet(u"a.key", value);

  WriteDocumentKey(call, u"a.key");

  EXPECT_EQ(host.data[u"a.key"], value);
}

TEST_F(DocumentDataTest, LoadingReadsAllTwentyKeysInOrder) {
  LoadDocumentSettings(call);

  std::vector<std::u16string> expected;
  for (const std::u16string& key : kDocumentKeys) expected.push_back(GetCall(key));
  EXPECT_EQ(host.scripts, expected);
}

TEST_F(DocumentDataTest, LoadingFillsTheSdkPath) {
  host.data[u"com.tav.sdk.path"] = u"D:/sdk";

  LoadDocumentSettings(call);

  EXPECT_EQ(SettingsGet(keys::kSdkPath), u"D:/sdk");
}

TEST_F(DocumentDataTest, LoadingReadsTheIncludedItemsBelowTheCount) {
  host.data[u"com.tav.moresh.included.count"] = u"2";
  StoreItems({u"0", u"1", u"2"});

  LoadDocumentSettings(call);

  EXPECT_EQ(SettingsGet(Item(u"0")), u"old0");
  EXPECT_EQ(SettingsGet(Item(u"1")), u"old1");
  EXPECT_FALSE(SettingsMap.contains(Item(u"2")));
}

TEST_F(DocumentDataTest, SavingGoesThroughTheListWithoutTheSdkPath) {
  for (const std::u16string& key : kDocumentKeys) SettingsSet(key, u"v");

  SaveDocumentSettings(call);

  std::vector<std::u16string> expected;
  for (const std::u16string& key : kDocumentKeys) {
    if (key != u"com.tav.sdk.path") expected.push_back(AddCall(key, u"v"));
  }
  expected.push_back(GetCall(u"com.tav.moresh.included.count"));
  EXPECT_EQ(host.scripts, expected);
}

TEST_F(DocumentDataTest, SavingLeavesTheSdkPathInTheDocument) {
  host.data[u"com.tav.sdk.path"] = u"D:/sdk";

  SaveDocumentSettings(call);

  EXPECT_EQ(host.data[u"com.tav.sdk.path"], u"D:/sdk");
}

TEST_F(DocumentDataTest, NoPasswordGoesToTheDocument) {
  SettingsSet(keys::kCertificatePassword, u"secret");
  SettingsSet(keys::kIpaCertificatePassword, u"secret");
  SettingsSet(keys::kRememberPassword, u"true");
  SettingsSet(keys::kIpaRememberPassword, u"true");

  SaveDocumentSettings(call);

  EXPECT_THAT(host.data, IsEmpty());
}

TEST_F(DocumentDataTest, SavingRemovesTheItemsBelowTheNewCountBeforeItWritesThem) {
  SettingsSet(keys::kIncludedCount, u"2");
  PutItems({u"0", u"1"});

  SaveDocumentSettings(call);

  const std::vector<std::u16string> last(host.scripts.end() - 5, host.scripts.end());
  EXPECT_THAT(last, ElementsAre(GetCall(u"com.tav.moresh.included.count"), RemoveCall(Item(u"0")),
                                RemoveCall(Item(u"1")), AddCall(Item(u"0"), u"new0"),
                                AddCall(Item(u"1"), u"new1")));
}

TEST_F(DocumentDataTest, SavingTwoItemsOverFiveLeavesTheSurplusButLoadingGivesTwo) {
  host.data[u"com.tav.moresh.included.count"] = u"5";
  StoreItems({u"0", u"1", u"2", u"3", u"4"});
  SettingsSet(keys::kIncludedCount, u"2");
  PutItems({u"0", u"1"});

  SaveDocumentSettings(call);
  SettingsMap.clear();
  LoadDocumentSettings(call);

  EXPECT_EQ(host.data[Item(u"0")], u"new0");
  EXPECT_EQ(host.data[Item(u"1")], u"new1");
  EXPECT_EQ(host.data[Item(u"2")], u"old2");
  EXPECT_EQ(host.data[Item(u"3")], u"old3");
  EXPECT_EQ(host.data[Item(u"4")], u"old4");
  EXPECT_EQ(SettingsGet(Item(u"1")), u"new1");
  EXPECT_FALSE(SettingsMap.contains(Item(u"2")));
}

TEST_F(DocumentDataTest, TheItemsToRemoveAreCountedByTheDocumentAndNotByTheMap) {
  host.data[u"com.tav.moresh.included.count"] = u"5";
  StoreItems({u"0", u"1", u"2", u"3", u"4"});
  SettingsSet(keys::kIncludedCount, u"2");
  PutItems({u"0", u"1"});
  host.onScript = [](const std::u16string& script) -> std::optional<HostValue> {
    if (script.starts_with(u"qu.getDocumentDOM().addDataToDocument(")) return 0;
    return {};
  };

  SaveDocumentSettings(call);

  const std::vector<std::u16string> last(host.scripts.end() - 8, host.scripts.end());
  EXPECT_THAT(last, ElementsAre(GetCall(u"com.tav.moresh.included.count"), RemoveCall(Item(u"0")),
                                RemoveCall(Item(u"1")), RemoveCall(Item(u"2")),
                                RemoveCall(Item(u"3")), RemoveCall(Item(u"4")),
                                AddCall(Item(u"0"), u"new0"), AddCall(Item(u"1"), u"new1")));
  EXPECT_EQ(host.data,
            (std::map<std::u16string, std::u16string>{{u"com.tav.moresh.included.count", u"5"}}));
}

TEST_F(DocumentDataTest, SavingAnEmptyCountRemovesItAndLeavesAllOldItems) {
  host.data[u"com.tav.moresh.included.count"] = u"2";
  StoreItems({u"0", u"1"});

  SaveDocumentSettings(call);

  EXPECT_FALSE(host.data.contains(u"com.tav.moresh.included.count"));
  EXPECT_EQ(host.data[Item(u"0")], u"old0");
  EXPECT_EQ(host.data[Item(u"1")], u"old1");
}

TEST_F(DocumentDataTest, WithoutAnEvaluatorTheMapKeepsItsContent) {
  HostEnvironment.words[55] = 0;
  SettingsSet(keys::kPublishType, u"release");

  LoadDocumentSettings(call);
  SaveDocumentSettings(call);

  EXPECT_EQ(SettingsGet(keys::kPublishType), u"release");
  EXPECT_THAT(host.scripts, IsEmpty());
}

TEST_F(DocumentDataTest, WithoutATextConverterTheMapKeepsItsContent) {
  HostEnvironment.words[19] = 0;
  host.data[keys::kPublishType] = u"debug";
  SettingsSet(keys::kPublishType, u"release");

  LoadDocumentSettings(call);

  EXPECT_EQ(SettingsGet(keys::kPublishType), u"release");
}

TEST_F(DocumentDataTest, ExportingPassesTheMovieUriAsTheHostGaveIt) {
  DocumentPaths.MovieUri = u"file:///C:/m/My%20Game.qmv";
  host.exportResult = 3;

  EXPECT_EQ(ExportMovieForPublish(), 3);

  EXPECT_THAT(host.scripts, ElementsAre(u"qu.getDocumentDOM().exportQMVPrivate(\"file:///C:/m/"
                                        u"My%20Game.qmv\", \"true\");"));
}

TEST_F(DocumentDataTest, AnExportThatCouldNotBeEvaluatedGivesMinusOne) {
  host.exportStatus = 0;

  EXPECT_EQ(ExportMovieForPublish(), -1);
}

TEST_F(DocumentDataTest, AnExportWhoseResultCannotBeConvertedGivesMinusOne) {
  HostEnvironment.words[4] = 0;

  EXPECT_EQ(ExportMovieForPublish(), -1);
}

TEST_F(DocumentDataTest, TheDebugFlagIsReadFromTheDocument) {
  host.debug = true;

  EXPECT_EQ(GetDebugForMovie(), 1);

  host.debug = false;
  EXPECT_EQ(GetDebugForMovie(), 0);
  EXPECT_EQ(host.scripts.back(), u"qu.getDocumentDOM().getDebugForQmv();");
}

TEST_F(DocumentDataTest, TheDebugFlagIsOffWhenItCannotBeConverted) {
  host.debug = true;
  HostEnvironment.words[6] = 0;

  EXPECT_EQ(GetDebugForMovie(), 0);
}

TEST_F(DocumentDataTest, TheDebugFlagIsOffWhenTheConverterGivesAnythingButOne) {
  HostEnvironment.words[6] = reinterpret_cast<std::uintptr_t>(&GiveTwo);

  EXPECT_EQ(GetDebugForMovie(), 0);
}

TEST_F(DocumentDataTest, TheDebugFlagIsOffWhenTheEvaluationFailedThoughItsValueIsTrue) {
  host.debug = true;
  for (const std::int32_t status : {0, -1, 2}) {
    host.onStatus = [status](const std::u16string&) { return status; };
    EXPECT_EQ(GetDebugForMovie(), 0);
  }
}

TEST_F(DocumentDataTest, SettingTheDebugFlagPassesTwoWords) {
  SetDebugForMovie(true);
  SetDebugForMovie(false);

  EXPECT_THAT(host.scripts, ElementsAre(u"qu.getDocumentDOM().setDebugForQmv(true,false);",
                                        u"qu.getDocumentDOM().setDebugForQmv(false,false);"));
}

}  // namespace
}  // namespace qutav::test
