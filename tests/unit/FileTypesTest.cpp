#include "DescriptorTest.h"

namespace qutav::test {
namespace {

class FileTypesTest : public DescriptorTest {
 protected:
  int LoadTypes(const std::string& types) {
    return LoadChildren("<fileTypes>" + types + "</fileTypes>");
  }
  int List() { return CurrentDescriptor.GetFileTypeList(list); }
  int Find(const std::u16string& name) { return CurrentDescriptor.GetFileType(name, record); }

  std::u16string list = u"old";
  FileTypeRecord record;
};

TEST_F(FileTypesTest, TwoTypesAreListedWithoutBlanks) {
  LoadTypes(
      "<fileType><name>Movie</name><extension>mov</extension></fileType>"
      "<fileType><extension>pic</extension><name>Picture</name></fileType>");

  EXPECT_EQ(List(), 0);

  EXPECT_EQ(list, u";Movie(mov);Picture(pic)");
}

TEST_F(FileTypesTest, ATypeWithoutExtensionIsListedWithoutParentheses) {
  LoadTypes("<fileType><name>Movie</name></fileType>");

  EXPECT_EQ(List(), 0);

  EXPECT_EQ(list, u";Movie");
}

TEST_F(FileTypesTest, ATypeWithoutNameKeepsItsPlaceInTheList) {
  LoadTypes("<fileType/><fileType><extension/></fileType>");

  EXPECT_EQ(List(), 0);

  EXPECT_EQ(list, u";;()");
}

TEST_F(FileTypesTest, TheListNeedsFileTypesWithATypeInThem) {
  EXPECT_EQ(List(), -1);
  CurrentDescriptor.InitParser();
  EXPECT_EQ(List(), 1);
  LoadChildren("<fileType/>");
  EXPECT_EQ(List(), 3);
  LoadTypes("");
  EXPECT_EQ(List(), 4);

  EXPECT_EQ(list, u"old");
}

TEST_F(FileTypesTest, OnlyTheFirstFileTypesElementCounts) {
  LoadChildren(
      "<a><fileTypes><b><fileType><name>Deep</name></fileType></b></fileTypes></a>"
      "<fileTypes><fileType><name>Later</name></fileType></fileTypes>");

  EXPECT_EQ(List(), 0);

  EXPECT_EQ(list, u";Deep");
}

TEST_F(FileTypesTest, ARecordHoldsAllFieldsOfItsType) {
  LoadTypes(
      "<fileType><name>Movie</name><extension>mov</extension><description> A movie. </description>"
      "<contentType>video/x</contentType><icon><image16x16>i16</image16x16>"
      "<image32x32>i32</image32x32><image48x48>i48</image48x48>"
      "<image128x128>i128</image128x128></icon></fileType>");

  EXPECT_EQ(Find(u"Movie"), 0);

  EXPECT_EQ(record.name, "Movie");
  EXPECT_EQ(record.extension, "mov");
  EXPECT_EQ(record.description, u" A movie. ");
  EXPECT_EQ(record.contentType, u"video/x");
  EXPECT_EQ(record.image16x16, u"i16");
  EXPECT_EQ(record.image32x32, u"i32");
  EXPECT_EQ(record.image48x48, u"i48");
  EXPECT_EQ(record.image128x128, u"i128");
  EXPECT_TRUE(record.live);
  EXPECT_EQ(record.storedName, "");
}

TEST_F(FileTypesTest, AMissingChildLeavesItsFieldAlone) {
  LoadTypes("<fileType><name>Movie</name><description/></fileType>");
  record.extension = "old";
  record.description = u"old";

  EXPECT_EQ(Find(u"Movie"), 0);

  EXPECT_EQ(record.extension, "old");
  EXPECT_EQ(record.description, u"old");
}

TEST_F(FileTypesTest, OfTwoTypesWithOneNameTheFirstIsFound) {
  LoadTypes(
      "<fileType><name>Movie</name><extension>first</extension></fileType>"
      "<fileType><name>Movie</name><extension>second</extension></fileType>");

  EXPECT_EQ(Find(u"Movie"), 0);

  EXPECT_EQ(record.extension, "first");
}

TEST_F(FileTypesTest, ANameIsComparedAsItStands) {
  LoadTypes("<fileType><name> Movie</name></fileType><fileType/>");

  EXPECT_EQ(Find(u"Movie"), 5);
  EXPECT_EQ(Find(u" movie"), 5);
  EXPECT_EQ(Find(u""), 5);
  EXPECT_EQ(Find(u" Movie"), 0);
  EXPECT_EQ(record.name, " Movie");
}

TEST_F(FileTypesTest, FindingATypeNeedsFileTypesWithATypeInThem) {
  EXPECT_EQ(Find(u"Movie"), -1);
  CurrentDescriptor.InitParser();
  EXPECT_EQ(Find(u"Movie"), 1);
  LoadChildren("");
  EXPECT_EQ(Find(u"Movie"), 3);
  LoadTypes("");
  EXPECT_EQ(Find(u"Movie"), 4);
}

TEST_F(FileTypesTest, ResettingARecordEmptiesItAndMakesItLive) {
  record = {"n", "e", u"d", u"c", u"128", u"48", u"32", u"16", false, "s"};

  ResetFileTypeRecord(record);

  EXPECT_EQ(record.name + record.extension + record.storedName, "");
  EXPECT_EQ(record.description + record.contentType + record.image128x128 + record.image48x48 +
                record.image32x32 + record.image16x16,
            u"");
  EXPECT_TRUE(record.live);
}

}  // namespace
}  // namespace qutav::test
