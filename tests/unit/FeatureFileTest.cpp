// The rows that a features file gives.
#include <xercesc/dom/DOM.hpp>

#include "DescriptorTest.h"
#include "settings_ui/FeatureFile.h"

namespace qutav::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Optional;

// A row of this name and this description.
auto Row(const std::u16string& name, const std::u16string& description) {
  return ::testing::FieldsAre(name, description);
}

class FeatureFileTest : public DescriptorTest {
 protected:
  // The rows of a file of this content.
  std::optional<std::vector<Feature>> Rows(std::string_view xml) {
    files.Put(u"C:/Features.xml", xml);
    DescriptorDocument document;
    EXPECT_EQ(document.InitParser(), 0);
    EXPECT_EQ(document.ParseFile(u"C:/Features.xml"), 0);
    auto rows = ReadFeatureRows(*document.Document());
    document.Close();
    return rows;
  }
};

TEST_F(FeatureFileTest, EachFeatureIsARowInOrder) {
  EXPECT_THAT(Rows("<androidFeatures>"
                   "<feature><featureName>INTERNET</featureName>"
                   "<description>Opens sockets.</description></feature>"
                   "<feature><featureName>CAMERA</featureName>"
                   "<description>Takes pictures.</description></feature>"
                   "</androidFeatures>"),
              Optional(ElementsAre(Row(u"INTERNET", u"Opens sockets."),
                                   Row(u"CAMERA", u"Takes pictures."))));
}

TEST_F(FeatureFileTest, TheListMayStandAtAnyDepth) {
  EXPECT_THAT(Rows("<configuration><android><androidFeatures>"
                   "<feature><featureName>NFC</featureName><description>d</description></feature>"
                   "</androidFeatures></android></configuration>"),
              Optional(ElementsAre(Row(u"NFC", u"d"))));
}

TEST_F(FeatureFileTest, AFileWithoutAListFails) {
  EXPECT_EQ(Rows("<features><feature><featureName>NFC</featureName></feature></features>"),
            std::nullopt);
}

TEST_F(FeatureFileTest, AFileWithTwoListsFails) {
  EXPECT_EQ(Rows("<c><androidFeatures/><androidFeatures/></c>"), std::nullopt);
}

TEST_F(FeatureFileTest, AnEmptyListHasNoRows) {
  EXPECT_THAT(Rows("<androidFeatures/>"), Optional(IsEmpty()));
}

TEST_F(FeatureFileTest, ChildrenOfOtherNamesArePassedOver) {
  EXPECT_THAT(Rows("<androidFeatures><!-- c --><Feature/><group>"
                   "<feature><featureName>DEEP</featureName></feature></group>text"
                   "<feature><icon>i</icon><featureName>NFC</featureName><level>3</level>"
                   "<description>d</description></feature></androidFeatures>"),
              Optional(ElementsAre(Row(u"NFC", u"d"))));
}

TEST_F(FeatureFileTest, AFeatureWithoutADescriptionHasTheOneBeforeIt) {
  EXPECT_THAT(Rows("<androidFeatures>"
                   "<feature><featureName>A</featureName><description>of A</description></feature>"
                   "<feature><featureName>B</featureName></feature>"
                   "</androidFeatures>"),
              Optional(ElementsAre(Row(u"A", u"of A"), Row(u"B", u"of A"))));
}

TEST_F(FeatureFileTest, AFeatureWithoutANameHasTheOneBeforeIt) {
  EXPECT_THAT(Rows("<androidFeatures>"
                   "<feature><featureName>A</featureName><description>of A</description></feature>"
                   "<feature><description>of none</description></feature>"
                   "</androidFeatures>"),
              Optional(ElementsAre(Row(u"A", u"of A"), Row(u"A", u"of none"))));
}

TEST_F(FeatureFileTest, TheFirstFeatureHasNothingToFallBackOn) {
  EXPECT_THAT(Rows("<androidFeatures><feature><featureName>A</featureName></feature>"
                   "</androidFeatures>"),
              Optional(ElementsAre(Row(u"A", u""))));
}

TEST_F(FeatureFileTest, ANameWithTwoChildNodesLeavesTheValueBefore) {
  EXPECT_THAT(Rows("<androidFeatures>"
                   "<feature><featureName>A</featureName><description>of A</description></feature>"
                   "<feature><featureName>B<!-- why --></featureName>"
                   "<description>of B</description></feature>"
                   "</androidFeatures>"),
              Optional(ElementsAre(Row(u"A", u"of A"), Row(u"A", u"of B"))));
}

TEST_F(FeatureFileTest, AnEmptyElementLeavesTheValueBefore) {
  EXPECT_THAT(Rows("<androidFeatures>"
                   "<feature><featureName>A</featureName><description>of A</description></feature>"
                   "<feature><featureName/><description></description></feature>"
                   "</androidFeatures>"),
              Optional(ElementsAre(Row(u"A", u"of A"), Row(u"A", u"of A"))));
}

TEST_F(FeatureFileTest, AValueMayBeOneCdataSection) {
  EXPECT_THAT(Rows("<androidFeatures><feature><featureName><![CDATA[A]]></featureName>"
                   "<description><![CDATA[<b> & more]]></description></feature>"
                   "</androidFeatures>"),
              Optional(ElementsAre(Row(u"A", u"<b> & more"))));
}

TEST_F(FeatureFileTest, ACdataSectionBesideWhiteSpaceIsNoValue) {
  EXPECT_THAT(Rows("<androidFeatures><feature><featureName>A</featureName>"
                   "<description> <![CDATA[of A]]></description></feature></androidFeatures>"),
              Optional(ElementsAre(Row(u"A", u""))));
}

TEST_F(FeatureFileTest, EscapedCharactersAreStillOnePlainText) {
  EXPECT_THAT(Rows("<androidFeatures><feature><featureName>A</featureName>"
                   "<description>read &amp; write &#x4E2D;</description></feature>"
                   "</androidFeatures>"),
              Optional(ElementsAre(Row(u"A", u"read & write \u4E2D"))));
}

TEST_F(FeatureFileTest, TextIsTakenAsItStandsWithItsWhiteSpace) {
  EXPECT_THAT(Rows("<androidFeatures><feature><featureName> A </featureName>"
                   "<description>two\nlines</description></feature></androidFeatures>"),
              Optional(ElementsAre(Row(u" A ", u"two\nlines"))));
}

TEST_F(FeatureFileTest, ALoneElementInsideANameGivesItsNodeValueWhichIsEmpty) {
  EXPECT_THAT(Rows("<androidFeatures>"
                   "<feature><featureName>A</featureName><description>of A</description></feature>"
                   "<feature><featureName><b>B</b></featureName></feature>"
                   "</androidFeatures>"),
              Optional(ElementsAre(Row(u"A", u"of A"), Row(u"", u"of A"))));
}

}  // namespace
}  // namespace qutav::test
