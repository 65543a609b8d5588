#include <stdexcept>

#include "DescriptorTest.h"

namespace qutav::test {
namespace {

class DescriptorWritersTest : public DescriptorTest {};

TEST_F(DescriptorWritersTest, AFieldThatExistsGetsTheTextWhereverItLies) {
  LoadChildren("<a><name>old<b>er</b></name></a><name>second</name>");

  EXPECT_EQ(CurrentDescriptor.SetText("name", u"new"), 0);

  EXPECT_EQ(Children(), "<a><name>new</name></a><name>second</name>");
}

TEST_F(DescriptorWritersTest, AMissingFieldIsAppendedToTheRoot) {
  LoadChildren("<id>a</id><initialWindow/>\n");

  EXPECT_EQ(CurrentDescriptor.SetText("name", u"Game"), 0);

  EXPECT_EQ(Children(), "<id>a</id><initialWindow/><name>Game</name>");
}

TEST_F(DescriptorWritersTest, AnEmptyTextLeavesAnEmptyElement) {
  LoadChildren("<versionLabel>beta</versionLabel>");

  EXPECT_EQ(CurrentDescriptor.SetText("versionLabel", u""), 0);

  EXPECT_EQ(Children(), "<versionLabel></versionLabel>");
}

TEST_F(DescriptorWritersTest, AChildGetsTheTextAtAnyDepthOfTheFirstParent) {
  LoadChildren("<initialWindow><a><content>old</content></a></initialWindow>");

  EXPECT_EQ(CurrentDescriptor.SetChildText("initialWindow", "content", u"Game.qmv"), 0);

  EXPECT_EQ(Children(), "<initialWindow><a><content>Game.qmv</content></a></initialWindow>");
}

TEST_F(DescriptorWritersTest, AMissingChildIsAppendedToTheFirstParent) {
  LoadChildren("<initialWindow><content>c</content></initialWindow><initialWindow/>");

  EXPECT_EQ(CurrentDescriptor.SetChildText("initialWindow", "renderMode", u"gpu"), 0);

  EXPECT_EQ(Children(),
            "<initialWindow><content>c</content><renderMode>gpu</renderMode></initialWindow>"
            "<initialWindow/>");
}

TEST_F(DescriptorWritersTest, AChildWithoutParentGivesThreeAndChangesNothing) {
  LoadChildren("<id>a</id>");

  EXPECT_EQ(CurrentDescriptor.SetChildText("initialWindow", "renderMode", u"gpu"), 3);
  EXPECT_EQ(CurrentDescriptor.AppendChild("initialWindow", "renderMode", u"gpu"), 3);
  EXPECT_EQ(CurrentDescriptor.RemoveChild("initialWindow", "renderMode"), 3);

  EXPECT_EQ(Children(), "<id>a</id>");
}

TEST_F(DescriptorWritersTest, WithoutAnInitialWindowItsFieldsAreDroppedAndTheOthersStored) {
  LoadChildren("");

  EXPECT_EQ(SetChildTextIfValid("initialWindow", "aspectRatio", u"portrait"), 0);
  EXPECT_EQ(SetChildTextIfValid("initialWindow", "renderMode", u"gpu"), 0);
  EXPECT_EQ(SetChildTextIfValid("initialWindow", "fullScreen", u"true"), 0);
  EXPECT_EQ(SetChildTextIfValid("initialWindow", "autoOrients", u"true"), 0);
  CurrentDescriptor.SetText("id", u"a.b");
  CurrentDescriptor.SetText("name", u"Game");

  EXPECT_EQ(Children(), "<id>a.b</id><name>Game</name>");
  EXPECT_TRUE(frontEnd.messages.empty());
}

TEST_F(DescriptorWritersTest, AGuardedWriteNeedsBothNamesAndAParser) {
  LoadChildren("<initialWindow/>");

  EXPECT_EQ(SetChildTextIfValid("", "renderMode", u"gpu"), 1);
  EXPECT_EQ(SetChildTextIfValid(nullptr, "renderMode", u"gpu"), 1);
  EXPECT_EQ(SetChildTextIfValid("initialWindow", "", u"gpu"), 1);
  EXPECT_EQ(SetChildTextIfValid("initialWindow", nullptr, u"gpu"), 1);
  EXPECT_EQ(Children(), "<initialWindow/>");

  EXPECT_EQ(SetChildTextIfValid("initialWindow", "renderMode", u""), 0);
  EXPECT_EQ(Children(), "<initialWindow><renderMode></renderMode></initialWindow>");

  CurrentDescriptor.Close();
  EXPECT_EQ(SetChildTextIfValid("initialWindow", "renderMode", u"gpu"), 1);
}

TEST_F(DescriptorWritersTest, AnImageGoesToTheIconUnderTheNamedParent) {
  LoadChildren(
      "<fileTypes><fileType><icon><image48x48>type</image48x48></icon></fileType></fileTypes>"
      "<icon><image48x48>old</image48x48></icon>");

  EXPECT_EQ(CurrentDescriptor.SetGrandchildText("application", "icon", "image48x48", u"a.png"), 0);
  EXPECT_EQ(CurrentDescriptor.SetGrandchildText("application", "icon", "image36x36", u"b.png"), 0);

  EXPECT_EQ(Children(),
            "<fileTypes><fileType><icon><image48x48>type</image48x48></icon></fileType></fileTypes>"
            "<icon><image48x48>a.png</image48x48><image36x36>b.png</image36x36></icon>");
}

TEST_F(DescriptorWritersTest, WithNoIconAnywhereAnImageGivesThreeAndChangesNothing) {
  LoadChildren("<id>a</id>");

  EXPECT_EQ(CurrentDescriptor.SetGrandchildText("application", "icon", "image48x48", u"a.png"), 3);

  EXPECT_EQ(Children(), "<id>a</id>");
}

TEST_F(DescriptorWritersTest, AnIconElsewhereLetsTheNamedParentGetOneOfItsOwn) {
  LoadChildren("<fileTypes><fileType><icon/></fileType></fileTypes>");

  EXPECT_EQ(CurrentDescriptor.SetGrandchildText("application", "icon", "image48x48", u"a.png"), 0);

  EXPECT_EQ(Children(),
            "<fileTypes><fileType><icon/></fileType></fileTypes>"
            "<icon><image48x48>a.png</image48x48></icon>");
}

TEST_F(DescriptorWritersTest, AnIconElsewhereWithoutTheNamedParentGivesThree) {
  LoadChildren("<icon/>");

  EXPECT_EQ(CurrentDescriptor.SetGrandchildText("window", "icon", "image48x48", u"a.png"), 3);

  EXPECT_EQ(Children(), "<icon/>");
}

TEST_F(DescriptorWritersTest, AppendingAddsBesideALikeChild) {
  LoadChildren("<extensions><extensionID>a</extensionID></extensions>");

  EXPECT_EQ(CurrentDescriptor.AppendChild("extensions", "extensionID", u"b"), 0);
  EXPECT_EQ(CurrentDescriptor.AppendChild("extensions", "extensionID", u"b"), 0);

  EXPECT_EQ(Children(),
            "<extensions><extensionID>a</extensionID><extensionID>b</extensionID>"
            "<extensionID>b</extensionID></extensions>");
}

TEST_F(DescriptorWritersTest, RemovingTakesTheFirstChildOnly) {
  LoadChildren("<extensions/><id>a</id><extensions/>");

  EXPECT_EQ(CurrentDescriptor.RemoveChild("application", "extensions"), 0);

  EXPECT_EQ(Children(), "<id>a</id><extensions/>");
}

TEST_F(DescriptorWritersTest, RemovingAMissingChildGivesZero) {
  LoadChildren("<id>a</id>");

  EXPECT_EQ(CurrentDescriptor.RemoveChild("application", "supportedLanguages"), 0);

  EXPECT_EQ(Children(), "<id>a</id>");
}

TEST_F(DescriptorWritersTest, RemovingANodeThatIsNoDirectChildThrowsAStandardError) {
  LoadChildren("<a><text/></a><icon><b><image48x48/></b></icon>");

  EXPECT_THROW(CurrentDescriptor.RemoveChild("application", "text"), std::runtime_error);
  EXPECT_THROW(CurrentDescriptor.RemoveGrandchild("application", "icon", "image48x48"),
               std::runtime_error);
}

TEST_F(DescriptorWritersTest, AGrandchildIsRemovedUnderTheNamedParentOnly) {
  LoadChildren(
      "<window><initialWindow><aspectRatio>a</aspectRatio></initialWindow></window>"
      "<initialWindow><aspectRatio>b</aspectRatio></initialWindow>");

  EXPECT_EQ(CurrentDescriptor.RemoveGrandchild("application", "initialWindow", "aspectRatio"), 0);

  EXPECT_EQ(Children(),
            "<window><initialWindow><aspectRatio>a</aspectRatio></initialWindow></window>"
            "<initialWindow/>");
}

TEST_F(DescriptorWritersTest, RemovingAGrandchildTellsAMissingElementFromAMissingChild) {
  LoadChildren("<window><initialWindow/></window><icon/>");

  EXPECT_EQ(CurrentDescriptor.RemoveGrandchild("application", "initialWindow", "aspectRatio"), 3);
  EXPECT_EQ(CurrentDescriptor.RemoveGrandchild("application", "icon", "image48x48"), 0);
}

TEST_F(DescriptorWritersTest, ClearingLeavesAnEmptyElement) {
  LoadChildren("<description><text xml:lang=\"en\">Fun</text></description>");

  EXPECT_EQ(CurrentDescriptor.ClearText("description"), 0);

  std::u16string text = u"old";
  EXPECT_EQ(CurrentDescriptor.GetText("description", text), 0);
  EXPECT_EQ(text, u"");
  EXPECT_EQ(Children(), "<description/>");
}

TEST_F(DescriptorWritersTest, ClearingAMissingElementGivesOne) {
  LoadChildren("");

  EXPECT_EQ(CurrentDescriptor.ClearText("description"), 1);
}

TEST_F(DescriptorWritersTest, AnAttributeIsReplacedOrAdded) {
  Load("<application xmlns=\"old\"><id/></application>");

  EXPECT_EQ(CurrentDescriptor.SetAttribute("application", "xmlns", "new \xC3\xA4"), 0);
  EXPECT_EQ(CurrentDescriptor.SetAttribute("id", "kind", "k"), 0);
  EXPECT_EQ(CurrentDescriptor.SetAttribute("none", "kind", "k"), 1);

  EXPECT_EQ(Children(), "<id kind=\"k\"/>");
  std::string value;
  CurrentDescriptor.GetAttribute("application", "xmlns", value);
  EXPECT_EQ(value, "new \xC3\xA4");
}

TEST_F(DescriptorWritersTest, TheVersionBecomesAVersionNumberAtTheEnd) {
  LoadChildren("<version> 1.5\n</version><id>a</id>");

  CurrentDescriptor.MigrateVersionElement();

  EXPECT_EQ(Children(), "<id>a</id><versionNumber>1.5</versionNumber>");
}

TEST_F(DescriptorWritersTest, TheVersionsTextWinsOverAVersionNumber) {
  LoadChildren("<versionNumber>2.0.0</versionNumber><version>1.5</version>");

  CurrentDescriptor.MigrateVersionElement();

  EXPECT_EQ(Children(), "<versionNumber>1.5</versionNumber>");
}

TEST_F(DescriptorWritersTest, WithoutAVersionNothingIsMigrated) {
  LoadChildren("<versionNumber>2.0.0</versionNumber>");

  CurrentDescriptor.MigrateVersionElement();

  EXPECT_EQ(Children(), "<versionNumber>2.0.0</versionNumber>");
}

TEST_F(DescriptorWritersTest, MigratingWithoutADocumentDoesNothing) {
  CurrentDescriptor.MigrateVersionElement();
  CurrentDescriptor.InitParser();
  CurrentDescriptor.MigrateVersionElement();
  files.Put(u"C:/other.xml", "<other><version>1</version></other>");
  CurrentDescriptor.ParseFile(u"C:/other.xml");

  CurrentDescriptor.MigrateVersionElement();

  std::u16string version;
  EXPECT_EQ(CurrentDescriptor.GetText("version", version), 0);
}

TEST_F(DescriptorWritersTest, TheMigratedTextIsThatOfTheCurrentDescriptor) {
  LoadChildren("<version>current</version>");
  files.Put(u"C:/launch.xml", "<application><version>launch</version></application>");
  LaunchDescriptor.InitParser();
  LaunchDescriptor.Load(u"C:/launch.xml");

  LaunchDescriptor.MigrateVersionElement();

  std::u16string text;
  EXPECT_EQ(LaunchDescriptor.GetText("version", text), 1);
  EXPECT_EQ(LaunchDescriptor.GetText("versionNumber", text), 0);
  EXPECT_EQ(text, u"current");
  EXPECT_EQ(Children(), "<version>current</version>");
}

TEST_F(DescriptorWritersTest, WithoutAVersionInTheCurrentDescriptorTheMigratedTextIsEmpty) {
  LoadChildren("<id>a</id>");
  files.Put(u"C:/launch.xml", "<application><version>launch</version></application>");
  LaunchDescriptor.InitParser();
  LaunchDescriptor.Load(u"C:/launch.xml");

  LaunchDescriptor.MigrateVersionElement();

  std::u16string text = u"old";
  EXPECT_EQ(LaunchDescriptor.GetText("version", text), 1);
  EXPECT_EQ(LaunchDescriptor.GetText("versionNumber", text), 0);
  EXPECT_EQ(text, u"");
}

TEST_F(DescriptorWritersTest, AnImageDeeperInTheIconGetsTheTextWhereItLies) {
  LoadChildren("<icon><g><image48x48>old</image48x48></g></icon>");

  EXPECT_EQ(CurrentDescriptor.SetGrandchildText("application", "icon", "image48x48", u"a.png"), 0);

  EXPECT_EQ(Children(), "<icon><g><image48x48>a.png</image48x48></g></icon>");
}

}  // namespace
}  // namespace qutav::test
