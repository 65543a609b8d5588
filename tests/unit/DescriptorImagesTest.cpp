#include "DescriptorTest.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::internal::CaptureStdout;
using ::testing::internal::GetCapturedStdout;

using Paths = std::vector<std::u16string>;

class DescriptorImagesTest : public DescriptorTest {
 protected:
  DescriptorImagesTest() { SettingsSet(keys::kRuntimeKit, u"TAV33.0"); }

  int Icon(const char* name) { return CurrentDescriptor.GetApplicationIcon(name, icon); }
  int Collect() { return CurrentDescriptor.CollectPackagedImages(images); }

  std::u16string icon = u"old";
  Paths images;
};

TEST_F(DescriptorImagesTest, AnIconIsReadTrimmedWithItsEncodedBlanks) {
  LoadChildren("<icon><image48x48> icons/a%20b.png\n</image48x48></icon>");

  EXPECT_EQ(Icon("image48x48"), 0);

  EXPECT_EQ(icon, u"icons/a%20b.png");
}

TEST_F(DescriptorImagesTest, AMissingOrEmptyIconGivesThree) {
  LoadChildren("<icon><image48x48/></icon>");

  EXPECT_EQ(Icon("image48x48"), 3);
  EXPECT_EQ(Icon("image36x36"), 3);
  EXPECT_EQ(icon, u"old");
}

TEST_F(DescriptorImagesTest, AnIconNeedsParserDocumentAndRoot) {
  EXPECT_EQ(Icon("image48x48"), -1);
  EXPECT_EQ(Collect(), -1);

  CurrentDescriptor.InitParser();
  EXPECT_EQ(Icon("image48x48"), 1);
  EXPECT_EQ(Collect(), 1);
}

TEST_F(DescriptorImagesTest, AnIconInAFileTypeIsNotTheApplications) {
  LoadChildren(
      "<fileTypes><fileType><icon><image48x48>type48.png</image48x48>"
      "<image128x128>type128.png</image128x128></icon></fileType></fileTypes>");

  EXPECT_EQ(Icon("image48x48"), 3);
  EXPECT_EQ(Collect(), 0);
  EXPECT_THAT(images, ElementsAre(u"type128.png", u"type48.png"));
}

TEST_F(DescriptorImagesTest, TheFirstIconElementThatHasTheImageGivesIt) {
  LoadChildren("<icon/><icon><image48x48>a.png</image48x48></icon>");

  EXPECT_EQ(Icon("image48x48"), 0);

  EXPECT_EQ(icon, u"a.png");
}

TEST_F(DescriptorImagesTest, AnIconPathIsCutAt255Units) {
  LoadChildren("<icon><image48x48>" + std::string(300, 'p') + "</image48x48></icon>");

  EXPECT_EQ(Icon("image48x48"), 0);

  EXPECT_EQ(icon, std::u16string(255, u'p'));
}

TEST_F(DescriptorImagesTest, TheFourLargeIconsComeFirstAndTheOthersInFileOrder) {
  LoadChildren(
      "<icon><image36x36>36</image36x36><image72x72>72</image72x72><image48x48>48</image48x48>"
      "<image192x192>192</image192x192><image96x96>96</image96x96><image29x29>29</image29x29>"
      "<image144x144>144</image144x144></icon>");

  EXPECT_EQ(Collect(), 3);

  EXPECT_THAT(images, ElementsAre(u"192", u"144", u"96", u"72", u"36", u"48", u"29"));
}

TEST_F(DescriptorImagesTest, BelowTav37TheLargestIconComesBehindTheListedOnes) {
  SettingsSet(keys::kRuntimeKit, u"TAV3.6");
  LoadChildren(
      "<icon><image36x36>36</image36x36><image192x192>192</image192x192>"
      "<image72x72>72</image72x72></icon>");

  Collect();

  EXPECT_THAT(images, ElementsAre(u"72", u"36", u"192"));
}

TEST_F(DescriptorImagesTest, AtTav37TheLargestIconComesFirst) {
  SettingsSet(keys::kRuntimeKit, u"TAV3.7");
  LoadChildren("<icon><image72x72>72</image72x72><image192x192>192</image192x192></icon>");

  Collect();

  EXPECT_THAT(images, ElementsAre(u"192", u"72"));
}

TEST_F(DescriptorImagesTest, AListedNameInCapitalsIsNotPackagedAtAll) {
  LoadChildren("<icon><IMAGE96X96>96</IMAGE96X96><IMAGE48X48>48</IMAGE48X48></icon>");

  Collect();

  EXPECT_THAT(images, ElementsAre(u"48"));
}

TEST_F(DescriptorImagesTest, TwoIconElementsBothContribute) {
  LoadChildren(
      "<icon><image48x48>a48</image48x48><image72x72>a72</image72x72></icon>"
      "<icon><image72x72>b72</image72x72></icon>");

  Collect();

  EXPECT_THAT(images, ElementsAre(u"a72", u"a48", u"b72"));
}

TEST_F(DescriptorImagesTest, CollectedPathsStayAsTheyAreAndMayComeTwice) {
  images = {u"before"};
  LoadChildren(
      "<icon><image72x72> a%20b.png </image72x72><x/><image29x29> a%20b.png </image29x29></icon>");

  Collect();

  EXPECT_THAT(images, ElementsAre(u"before", u" a%20b.png ", u" a%20b.png "));
}

TEST_F(DescriptorImagesTest, AListedIconThatLiesDeeperComesTwice) {
  LoadChildren("<icon><g><image72x72>a</image72x72></g></icon>");

  Collect();

  EXPECT_THAT(images, ElementsAre(u"a", u"a"));
}

TEST_F(DescriptorImagesTest, ADocumentWithoutRootGivesTwo) {
  CaptureStdout();
  Load("<!-- nothing else -->");
  GetCapturedStdout();
  FileTypeRecord record;
  std::u16string types = u"old";

  EXPECT_EQ(Icon("image48x48"), 2);
  EXPECT_EQ(Collect(), 2);
  EXPECT_EQ(CurrentDescriptor.GetFileTypeList(types), 2);
  EXPECT_EQ(CurrentDescriptor.GetFileType(u"Movie", record), 2);
  EXPECT_EQ(icon, u"old");
  EXPECT_EQ(types, u"old");
  EXPECT_TRUE(images.empty());
}

TEST_F(DescriptorImagesTest, FileTypeImagesComeFromTheLargestToTheSmallest) {
  LoadChildren(
      "<fileTypes><fileType><image16x16>16</image16x16><image32x32>32</image32x32>"
      "<image48x48>48</image48x48><image128x128>128</image128x128><image64x64>no</image64x64>"
      "</fileType><fileType><icon><image32x32>second</image32x32></icon></fileType></fileTypes>"
      "<icon><image48x48>app</image48x48></icon>");

  EXPECT_EQ(Collect(), 0);

  EXPECT_THAT(images, ElementsAre(u"app", u"128", u"48", u"32", u"16", u"second"));
}

TEST_F(DescriptorImagesTest, FileTypesWithoutAFileTypeGiveFourBehindTheIcons) {
  LoadChildren("<icon><image48x48>app</image48x48></icon><fileTypes/>");

  EXPECT_EQ(Collect(), 4);

  EXPECT_THAT(images, ElementsAre(u"app"));
}

TEST_F(DescriptorImagesTest, AllIconsGoWhenWhiteSpaceStandsBetweenThem) {
  LoadChildren(
      "<icon>\n <image36x36>a</image36x36>\n <image48x48>b</image48x48>\n"
      " <image72x72>c</image72x72>\n</icon>");

  RemoveApplicationIcons();

  EXPECT_EQ(Children().find("image"), std::string::npos);
}

TEST_F(DescriptorImagesTest, EverySecondIconStaysWithoutWhiteSpaceBetweenThem) {
  LoadChildren(
      "<icon><image36x36>a</image36x36><image48x48>b</image48x48><image72x72>c</image72x72>"
      "<image96x96>d</image96x96></icon>");

  RemoveApplicationIcons();

  EXPECT_EQ(Children(), "<icon><image48x48>b</image48x48><image96x96>d</image96x96></icon>");
}

TEST_F(DescriptorImagesTest, ImagesOfASecondIconElementAreSoughtInTheFirst) {
  LoadChildren(
      "<icon>\n<image36x36>a</image36x36>\n<image48x48>b</image48x48>\n</icon>"
      "<icon>\n<image36x36>c</image36x36>\n<image72x72>d</image72x72>\n</icon>");

  RemoveApplicationIcons();

  EXPECT_EQ(Children(),
            "<icon></icon>"
            "<icon><image36x36>c</image36x36><image72x72>d</image72x72></icon>");
}

TEST_F(DescriptorImagesTest, AnImageOfASecondIconElementTakesAnEmptyOneOfTheFirstWithIt) {
  LoadChildren("<icon><image36x36/></icon><icon><image36x36>c</image36x36></icon>");

  RemoveApplicationIcons();

  EXPECT_EQ(Children(), "<icon/><icon><image36x36>c</image36x36></icon>");
}

TEST_F(DescriptorImagesTest, EmptyImagesAndFileTypeIconsAreNotRemoved) {
  LoadChildren(
      "<fileTypes><fileType><icon><image36x36>type</image36x36></icon></fileType></fileTypes>"
      "<icon><image36x36/></icon>");

  RemoveApplicationIcons();

  EXPECT_EQ(Children(),
            "<fileTypes><fileType><icon><image36x36>type</image36x36></icon></fileType></fileTypes>"
            "<icon><image36x36/></icon>");
}

TEST_F(DescriptorImagesTest, ImagesOfAnyNameAreRemoved) {
  LoadChildren("<icon><bild-\xC3\xA4>a</bild-\xC3\xA4></icon>");

  RemoveApplicationIcons();

  EXPECT_EQ(Children(), "<icon/>");
}

TEST_F(DescriptorImagesTest, IconsBelowAnIconGoWithItsContent) {
  LoadChildren(
      "<icon><application><icon><image36x36>a</image36x36><image48x48>b</image48x48></icon>"
      "</application></icon>");

  RemoveApplicationIcons();

  EXPECT_EQ(Children(), "<icon/>");
}

TEST_F(DescriptorImagesTest, RemovingIconsWithoutADocumentDoesNothing) {
  RemoveApplicationIcons();
  CurrentDescriptor.InitParser();

  RemoveApplicationIcons();

  EXPECT_EQ(Icon("image36x36"), 1);
}

}  // namespace
}  // namespace qutav::test
