#include "ServicesTest.h"
#include "descriptor/DescriptorDocument.h"
#include "settings_ui/ProvisioningProfile.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav::test {
namespace {

using namespace std::string_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Optional;
using ::testing::internal::CaptureStdout;
using ::testing::internal::GetCapturedStdout;

class ProvisioningProfileTest : public ServicesTest {
 protected:
  ProvisioningProfileTest() {
    SettingsSet(keys::kMovieFolder, u"C:/m/");
    files.PutFolder(u"C:/m");
  }

  // What is read in a property list with this in its dictionary.
  std::optional<std::u16string> Read(const std::string& dictionary) {
    files.Put(u"C:/p/a.mobileprovision",
              "\x30\x82\x0F\x0B signed <?xml version=\"1.0\"?>\n<plist version=\"1.0\">\n<dict>" +
                  dictionary + "</dict>\n</plist>\x30\x82 more");
    return ReadProvisioningProfile(u"C:\\p\\a.mobileprovision");
  }
};

// --- Cutting ------------------------------------------------------------------------------------

TEST_F(ProvisioningProfileTest, TheListIsCutOutFromItsFirstByteToItsLast) {
  EXPECT_EQ(CutPropertyList("\x30\x82\0binary<plist version=\"1.0\"><dict/></plist>more"s),
            "<plist version=\"1.0\"><dict/></plist>");
}

TEST_F(ProvisioningProfileTest, TheFirstBeginningAndTheFirstEndCount) {
  EXPECT_EQ(CutPropertyList("<plist>a<plist>b</plist>c</plist>"), "<plist>a<plist>b</plist>");
}

TEST_F(ProvisioningProfileTest, AListThatIsTheWholeFileIsCutWhole) {
  EXPECT_EQ(CutPropertyList("<plist></plist>"), "<plist></plist>");
}

TEST_F(ProvisioningProfileTest, AFileWithoutAListIsAnErrorWithItsText) {
  for (const char* bytes : {"", "<plis", "</plist>", "<PLIST></PLIST>", "no list anywhere"}) {
    try {
      CutPropertyList(bytes);
      ADD_FAILURE() << bytes;
    } catch (const std::out_of_range& error) {
      EXPECT_STREQ(error.what(), "invalid string position");
    }
  }
}

TEST_F(ProvisioningProfileTest, ABeginningInTheLastSixBytesIsFound) {
  EXPECT_EQ(CutPropertyList("12345678<plist"), "<plist");
}

TEST_F(ProvisioningProfileTest, AListWithoutAnEndReachesToTheEndOfTheFile) {
  EXPECT_EQ(CutPropertyList("12345678<plist><dict>"), "<plist><dict>");
}

TEST_F(ProvisioningProfileTest, AListWithoutAnEndInTheFirstEightBytesIsCutShort) {
  EXPECT_EQ(CutPropertyList("<plist><dict>"), "<plist>");
  EXPECT_EQ(CutPropertyList("123456<plist><dict>"), "<");
  EXPECT_EQ(CutPropertyList("1234567<plist><dict>"), "");
}

TEST_F(ProvisioningProfileTest, AnEndBeforeTheBeginningDoesNotEndTheList) {
  EXPECT_EQ(CutPropertyList("</plist> <plist>a</plist>"), "<plist>a</plist>");
  EXPECT_EQ(CutPropertyList("</plist><plist>a</plist>"), "");
}

// --- Reading ------------------------------------------------------------------------------------

TEST_F(ProvisioningProfileTest, TheIdentifierComesWithoutTheTeam) {
  EXPECT_THAT(Read("\n\t<key>application-identifier</key>\n"
                   "\t<string>ABCDE12345.com.example.game</string>\n"),
              Optional(u"com.example.game"s));
}

TEST_F(ProvisioningProfileTest, AKeyDeepInTheListCounts) {
  EXPECT_THAT(Read("<key>Entitlements</key><dict><key>aps</key> <string>x</string>\n"
                   "<key>application-identifier</key> <string>ABCDE12345.*</string></dict>"),
              Optional(u"*"s));
}

TEST_F(ProvisioningProfileTest, TheKeyIsComparedExactly) {
  EXPECT_EQ(Read("<key>Application-Identifier</key> <string>ABCDE12345.com.a</string>"
                 "<key> application-identifier</key> <string>ABCDE12345.com.b</string>"
                 "<key>application-identifiers</key> <string>ABCDE12345.com.c</string>"),
            std::nullopt);
}

TEST_F(ProvisioningProfileTest, AnIdentifierOfExactlyElevenCharactersDoesNotCount) {
  EXPECT_EQ(Read("<key>application-identifier</key> <string>ABCDE12345.</string>\n"), std::nullopt);
}

TEST_F(ProvisioningProfileTest, BehindAShortIdentifierTheNextKeyIsRead) {
  EXPECT_THAT(Read("<key>application-identifier</key> <string>short</string>\n"
                   "<key>application-identifier</key> <string>ABCDE12345.com.b</string>\n"),
              Optional(u"com.b"s));
}

TEST_F(ProvisioningProfileTest, BehindAKeyThatIsTheLastNodeTheNextKeyIsRead) {
  EXPECT_THAT(Read("<dict><key>application-identifier</key></dict>"
                   "<dict><key>application-identifier</key> </dict>"
                   "<key>application-identifier</key> <string>ABCDE12345.com.b</string>\n"),
              Optional(u"com.b"s));
}

TEST_F(ProvisioningProfileTest, OfSeveralIdentifiersTheFirstCounts) {
  EXPECT_THAT(Read("<key>application-identifier</key> <string>ABCDE12345.com.a</string>\n"
                   "<key>application-identifier</key> <string>ABCDE12345.com.b</string>\n"),
              Optional(u"com.a"s));
}

TEST_F(ProvisioningProfileTest, AKeyAndItsValueWithoutWhiteSpaceBetweenAreNotRead) {
  EXPECT_EQ(Read("<key>application-identifier</key><string>ABCDE12345.com.a</string>\n"),
            std::nullopt);
}

TEST_F(ProvisioningProfileTest, ATextBeyondAsciiIsReadAsUtf8) {
  EXPECT_THAT(Read("<key>application-identifier</key> <string>ABCDE12345.tr\xC3\xA4ume</string>"),
              Optional(u"tr\u00E4ume"s));
}

TEST_F(ProvisioningProfileTest, ADocumentThatIsNotThereTellsNoIdentifier) {
  DescriptorDocument document;
  EXPECT_EQ(document.ReadApplicationIdentifier(), std::nullopt);

  document.InitParser();

  EXPECT_EQ(document.ReadApplicationIdentifier(), std::nullopt);
  document.Close();
}

TEST_F(ProvisioningProfileTest, AListThatDoesNotParseTellsNothingAndItsCopyGoes) {
  CaptureStdout();

  EXPECT_EQ(Read("<key>application-identifier</key> <string>ABCDE12345.com.a</string> &broken"),
            std::nullopt);

  EXPECT_EQ(GetCapturedStdout(), "Unexpected Exception \n");
  EXPECT_FALSE(files.HasFile(u"C:/m/temp_xml_provision_file.xml"));
}

TEST_F(ProvisioningProfileTest, AListWithoutAnEndDoesNotParse) {
  CaptureStdout();
  files.Put(u"C:/p/a.mobileprovision",
            "12345678<plist><key>application-identifier</key> <string>ABCDE12345.com.a</string>");

  EXPECT_EQ(ReadProvisioningProfile(u"C:/p/a.mobileprovision"), std::nullopt);

  EXPECT_EQ(GetCapturedStdout(), "Unexpected Exception \n");
}

TEST_F(ProvisioningProfileTest, TheCopyLiesInTheMoviesFolderWhileItIsRead) {
  Read("<key>application-identifier</key> <string>ABCDE12345.com.a</string>");

  EXPECT_THAT(files.changes, ElementsAre(u"write C:/m/temp_xml_provision_file.xml",
                                         u"delete C:/m/temp_xml_provision_file.xml"));
}

TEST_F(ProvisioningProfileTest, AFileThatCannotBeReadHasNoList) {
  EXPECT_THROW(ReadProvisioningProfile(u"C:/p/missing.mobileprovision"), std::out_of_range);

  EXPECT_THAT(files.changes, IsEmpty());
}

TEST_F(ProvisioningProfileTest, AFolderInWhichNothingCanBeWrittenTellsNothing) {
  files.readOnly.insert(u"C:/m/temp_xml_provision_file.xml");
  CaptureStdout();

  EXPECT_EQ(Read("<key>application-identifier</key> <string>ABCDE12345.com.a</string>"),
            std::nullopt);

  EXPECT_NE(GetCapturedStdout(), "");
}

// --- The App ID ---------------------------------------------------------------------------------

struct Covered {
  std::u16string identifier;
  std::u16string before;
  std::u16string after;
};

TEST_F(ProvisioningProfileTest, TheAppIdIsRewrittenSoThatTheProfileCoversIt) {
  const Covered cases[] = {
      {u"*", u"com.other.game", u"com.other.game"},
      {u"*", u"", u""},
      {u"com.example.game", u"com.other", u"com.example.game"},
      {u"com.example.game", u"", u"com.example.game"},
      {u"com.example.*", u"com.example.game.one", u"com.example.game.one"},
      {u"com.example.*", u"com.other.game", u"com.example.other.game"},
      {u"com.example.*", u"", u"com.example."},
      {u"com.example.*", u"com.example", u"com.example."},
      {u"com.example.*", u"com.example.", u"com.example."},
      {u"com.example.*", u"com.example.g", u"com.example.g"},
      {u"com.example.*", u"com.example.go", u"com.example.go"},
      {u"com.example.*", u"com.Example.game.one", u"com.example.Example.game.one"},
      {u"com.example.*", u"game", u"com.example.game"},
      {u"com.*.game", u"com.x", u"com.*.gamx"},
      {u"com.*.game", u"com.*.game.one", u"com.*.game.one"},
      {u"**", u"a", u"*a"},
  };

  for (const Covered& row : cases) {
    EXPECT_EQ(CoveredApplicationId(row.identifier, row.before), row.after)
        << ToUtf8(row.identifier + u" and " + row.before);
  }
}

}  // namespace
}  // namespace qutav::test
