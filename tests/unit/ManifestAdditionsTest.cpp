#include <stdexcept>

#include "DescriptorTest.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ManifestAdditionsTest : public DescriptorTest {
 protected:
  // A descriptor whose fragment is this text.
  int LoadFragment(const std::string& fragment) {
    return LoadChildren("<android><manifestAdditions><![CDATA[" + fragment +
                        "]]></manifestAdditions></android>");
  }
  int LoadPermission(const std::string& name) {
    return LoadFragment("<manifest><uses-permission android:name=\"" + name + "\"/></manifest>");
  }
  static std::vector<std::u16string> Permissions() {
    return CurrentDescriptor.GetManifestPermissions();
  }
  static bool MayUseInternet() { return CurrentDescriptor.HasInternetPermission(); }
};

TEST_F(ManifestAdditionsTest, PermissionsAreReadInTheirOrder) {
  LoadFragment(
      "<manifest>\n<uses-permission android:name=\"android.permission.INTERNET\"/>\n"
      "<uses-permission android:name=\"android.permission.CAMERA\"/>\n</manifest>");

  EXPECT_THAT(Permissions(), ElementsAre(u"INTERNET", u"CAMERA"));
}

TEST_F(ManifestAdditionsTest, WhiteSpaceMayPrecedeTheSection) {
  LoadChildren(
      "<android>\n <manifestAdditions>\n text <!-- note --> <![CDATA[<manifest>"
      "<uses-permission android:name=\"android.permission.CAMERA\"/></manifest>]]>"
      "</manifestAdditions></android>");

  EXPECT_THAT(Permissions(), ElementsAre(u"CAMERA"));
}

TEST_F(ManifestAdditionsTest, OnlyTheFirstSectionIsRead) {
  LoadChildren(
      "<android><manifestAdditions><![CDATA[<manifest/>]]> <![CDATA[<manifest>"
      "<uses-permission android:name=\"android.permission.CAMERA\"/></manifest>]]>"
      "</manifestAdditions></android>");

  EXPECT_THAT(Permissions(), IsEmpty());
}

TEST_F(ManifestAdditionsTest, ABlankBeforeTheClosingIsReadAndNotWrittenBack) {
  LoadFragment(
      "<manifest><uses-permission android:name=\"android.permission.CAMERA\" /></manifest>");
  EXPECT_THAT(Permissions(), ElementsAre(u"CAMERA"));

  EXPECT_TRUE(CurrentDescriptor.SetManifestPermissions(Permissions()));

  EXPECT_EQ(Children(),
            "<android><manifestAdditions><![CDATA[<manifest>"
            "<uses-permission android:name=\"android.permission.CAMERA\"/>"
            "</manifest>]]></manifestAdditions></android>");
}

TEST_F(ManifestAdditionsTest, AFragmentIsWrittenLineByLine) {
  LoadChildren("");

  CurrentDescriptor.SetManifestPermissions({u"INTERNET", u"CAMERA"});
  CurrentDescriptor.Save(kDescriptorPath);

  EXPECT_THAT(
      files.BytesOf(kDescriptorPath),
      ::testing::HasSubstr("<![CDATA[<manifest>\n"
                           "<uses-permission android:name=\"android.permission.INTERNET\"/>\n"
                           "<uses-permission android:name=\"android.permission.CAMERA\"/>\n"
                           "</manifest>]]>"));
}

TEST_F(ManifestAdditionsTest, AnEmptyListLeavesTheOpeningAndTheClosingTag) {
  LoadPermission("android.permission.CAMERA");

  EXPECT_TRUE(CurrentDescriptor.SetManifestPermissions({}));

  EXPECT_EQ(Children(),
            "<android><manifestAdditions><![CDATA[<manifest></manifest>]]></manifestAdditions>"
            "</android>");
}

TEST_F(ManifestAdditionsTest, AnAndroidElementWithoutAdditionsReadsEmptyAndGetsThem) {
  LoadChildren("<android><colorDepth>32bit</colorDepth></android>");
  EXPECT_THAT(Permissions(), IsEmpty());

  EXPECT_TRUE(CurrentDescriptor.SetManifestPermissions({u"CAMERA"}));

  EXPECT_THAT(Permissions(), ElementsAre(u"CAMERA"));
  EXPECT_THAT(Children(),
              ::testing::StartsWith("<android><colorDepth>32bit</colorDepth><manifestAdditions>"));
}

TEST_F(ManifestAdditionsTest, OtherContentOfTheFragmentIsDroppedByAStore) {
  LoadChildren(
      "<android><manifestAdditions>text<![CDATA[<manifest android:installLocation=\"auto\">"
      "<uses-permission android:name=\"android.permission.CAMERA\"/>"
      "<uses-feature android:name=\"android.hardware.camera\"/></manifest>]]><more/>"
      "</manifestAdditions></android>");
  const auto permissions = Permissions();
  EXPECT_THAT(permissions, ElementsAre(u"CAMERA"));

  CurrentDescriptor.SetManifestPermissions(permissions);

  EXPECT_EQ(Children(),
            "<android><manifestAdditions><![CDATA[<manifest>"
            "<uses-permission android:name=\"android.permission.CAMERA\"/>"
            "</manifest>]]></manifestAdditions></android>");
}

TEST_F(ManifestAdditionsTest, AndroidBelowSomethingElseIsNeitherSearchedNorRead) {
  LoadChildren(
      "<other><android><manifestAdditions><![CDATA[<manifest>"
      "<uses-permission android:name=\"android.permission.INTERNET\"/></manifest>]]>"
      "</manifestAdditions></android></other>");

  EXPECT_FALSE(MayUseInternet());
  EXPECT_THAT(Permissions(), IsEmpty());
}

TEST_F(ManifestAdditionsTest, AnotherPrefixThanAndroidIsNotRead) {
  LoadFragment(
      "<manifest xmlns:a=\"http://schemas.android.com/apk/res/android\">"
      "<uses-permission a:name=\"android.permission.CAMERA\"/>"
      "<uses-permission name=\"android.permission.CAMERA\"/>"
      "<a:uses-permission android:name=\"android.permission.CAMERA\"/></manifest>");

  EXPECT_THAT(Permissions(), IsEmpty());
}

TEST_F(ManifestAdditionsTest, NonAsciiTextReachesTheSecondParserInTheLocalCodePage) {
  // Where the local code page is UTF-8, as the parser supposes, the fragment stays readable.
  LoadFragment(
      "<manifest><!-- Tr\xC3\xA4ume \xE3\x81\x82 -->"
      "<uses-permission android:name=\"android.permission.K\xC3\x84SE\"/></manifest>");

  EXPECT_THAT(Permissions(), ElementsAre(u"K\u00C4SE"));
}

TEST_F(ManifestAdditionsTest, AnotherVendorsNameLosesItsFirstNineteenUnits) {
  LoadPermission("com.example.permission.READ_ALL");

  EXPECT_THAT(Permissions(), ElementsAre(u"ion.READ_ALL"));
}

TEST_F(ManifestAdditionsTest, AValueOfForeignCharactersOnlyIsSkipped) {
  LoadPermission("CAMERA_XYZ");

  EXPECT_THAT(Permissions(), IsEmpty());
}

TEST_F(ManifestAdditionsTest, ThePrefixAloneIsAPermissionWithoutName) {
  LoadPermission("android.permission.");

  EXPECT_THAT(Permissions(), ElementsAre(u""));
}

TEST_F(ManifestAdditionsTest, AValueShorterThanThePrefixRaisesAnException) {
  LoadPermission("android.permission");

  EXPECT_THROW(Permissions(), std::out_of_range);
}

TEST_F(ManifestAdditionsTest, PermissionsNestedDeeperOrOutsideTheManifestAreNotRead) {
  LoadFragment(
      "<uses-permission android:name=\"android.permission.A\"/><manifest><group>"
      "<uses-permission android:name=\"android.permission.B\"/></group></manifest><manifest>"
      "<uses-permission android:name=\"android.permission.C\"/></manifest>");

  EXPECT_THAT(Permissions(), IsEmpty());
}

TEST_F(ManifestAdditionsTest, AFragmentWithAnUnclosedTagLooksLikeOneWithoutPermissions) {
  LoadFragment(
      "<manifest><uses-permission android:name=\"android.permission.CAMERA\"/>"
      "<uses-permission android:name=\"android.permission.INTERNET\"></manifest>");
  EXPECT_THAT(Permissions(), IsEmpty());

  LoadFragment("<manifest><uses-permission android:name=\"android.permission.CAMERA\"/>");
  EXPECT_THAT(Permissions(), IsEmpty());
}

TEST_F(ManifestAdditionsTest, AFragmentOfPlainTextOrNothingIsEmpty) {
  LoadFragment("");
  EXPECT_THAT(Permissions(), IsEmpty());

  LoadFragment("just <text & more");
  EXPECT_THAT(Permissions(), IsEmpty());

  LoadChildren(
      "<android><manifestAdditions><manifest><uses-permission "
      "android:name=\"android.permission.CAMERA\"/></manifest></manifestAdditions></android>");
  EXPECT_THAT(Permissions(), IsEmpty()) << "only a CDATA section counts";
}

TEST_F(ManifestAdditionsTest, AFragmentOfManyPermissionsIsReadAndWrittenWhole) {
  std::vector<std::u16string> many(2000, u"ACCESS_COARSE_LOCATION");
  LoadChildren("");

  CurrentDescriptor.SetManifestPermissions(many);

  EXPECT_EQ(Permissions(), many);
}

TEST_F(ManifestAdditionsTest, WithoutADocumentNothingIsReadOrWritten) {
  EXPECT_FALSE(MayUseInternet());
  EXPECT_THAT(Permissions(), IsEmpty());
  EXPECT_FALSE(CurrentDescriptor.SetManifestPermissions({u"CAMERA"}));

  CurrentDescriptor.InitParser();

  EXPECT_FALSE(MayUseInternet());
  EXPECT_THAT(Permissions(), IsEmpty());
  EXPECT_FALSE(CurrentDescriptor.SetManifestPermissions({u"CAMERA"}));
}

TEST_F(ManifestAdditionsTest, InternetIsFoundAsBareText) {
  LoadPermission("android.permission.INTERNET");
  EXPECT_TRUE(MayUseInternet());

  LoadFragment("<manifest><!-- android.permission.INTERNET --></manifest>");
  EXPECT_TRUE(MayUseInternet()) << "in a comment";

  LoadPermission("android.permission.INTERNET_SHARING");
  EXPECT_TRUE(MayUseInternet()) << "as the beginning of a longer name";

  LoadChildren("<android><note>see android.permission.INTERNET</note></android>");
  EXPECT_TRUE(MayUseInternet()) << "in any child of android";
}

TEST_F(ManifestAdditionsTest, InternetIsNotFoundInOtherPermissionsAttributesOrAtTheVeryStart) {
  LoadPermission("android.permission.CAMERA");
  EXPECT_FALSE(MayUseInternet());

  LoadPermission("android.permission.internet");
  EXPECT_FALSE(MayUseInternet()) << "case counts";

  LoadChildren(
      "<android><manifestAdditions><manifest><uses-permission "
      "android:name=\"android.permission.INTERNET\"/></manifest></manifestAdditions></android>");
  EXPECT_FALSE(MayUseInternet()) << "an attribute is no text";

  LoadFragment("android.permission.INTERNET");
  EXPECT_FALSE(MayUseInternet()) << "a match at the start does not count";

  LoadChildren("<android>text android.permission.INTERNET</android>");
  EXPECT_FALSE(MayUseInternet()) << "only child elements are searched";
}

TEST_F(ManifestAdditionsTest, EveryAndroidElementIsSearchedForInternet) {
  LoadChildren(
      "<android/><android><a>none</a></android><android><b>x android.permission.INTERNET</b>"
      "</android>");

  EXPECT_TRUE(MayUseInternet());
}

TEST_F(ManifestAdditionsTest, AnotherRootThanApplicationIsReadAndNotSearchedForInternet) {
  EXPECT_EQ(Load("<foo><android><manifestAdditions><![CDATA[<manifest><uses-permission "
                 "android:name=\"android.permission.INTERNET\"/></manifest>]]>"
                 "</manifestAdditions></android></foo>"),
            kNoApplication);

  EXPECT_FALSE(MayUseInternet());
  EXPECT_THAT(Permissions(), ElementsAre(u"INTERNET"));
}

TEST_F(ManifestAdditionsTest, OneSectionTakesThePlaceOfEverythingThatStoodThere) {
  LoadChildren(
      "<android><manifestAdditions> a <![CDATA[<manifest/>]]><x><y>b</y><![CDATA[c]]></x>"
      "<!-- d --><![CDATA[<manifest/>]]> e <z/></manifestAdditions></android>");

  EXPECT_TRUE(CurrentDescriptor.SetManifestPermissions({u"CAMERA"}));

  EXPECT_EQ(Children(),
            "<android><manifestAdditions><![CDATA[<manifest>"
            "<uses-permission android:name=\"android.permission.CAMERA\"/>"
            "</manifest>]]></manifestAdditions></android>");
}

}  // namespace
}  // namespace qutav::test
