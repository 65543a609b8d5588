#include "DescriptorTest.h"
#include "descriptor/DomSearch.h"

namespace qutav::test {
namespace {

using ::testing::internal::CaptureStdout;
using ::testing::internal::GetCapturedStdout;

// What readers and writers give for a document that lacks something.
struct ResultCodes {
  int getText;
  int getTextNarrow;
  int getAttribute;
  int setText;
  int setChildText;
  int setGrandchildText;
  int appendChild;
  int removeChild;
  int removeGrandchild;
  int clearText;
  int setAttribute;

  bool operator==(const ResultCodes&) const = default;
};

ResultCodes CodesNow() {
  DescriptorDocument& d = CurrentDescriptor;
  std::u16string wide;
  std::string narrow;
  return {d.GetText("id", wide),
          d.GetTextNarrow("id", narrow),
          d.GetAttribute("application", "xmlns", narrow),
          d.SetText("id", u"x"),
          d.SetChildText("application", "id", u"x"),
          d.SetGrandchildText("application", "icon", "image16x16", u"x"),
          d.AppendChild("application", "id", u"x"),
          d.RemoveChild("application", "id"),
          d.RemoveGrandchild("application", "icon", "image16x16"),
          d.ClearText("id"),
          d.SetAttribute("application", "xmlns", "x")};
}

class DescriptorFieldsTest : public DescriptorTest {
 protected:
  // The text of a field; what stands in front of the colon is the result code.
  static std::u16string Text(const char* tag) {
    std::u16string out = u"old";
    const int result = CurrentDescriptor.GetText(tag, out);
    return std::u16string(1, static_cast<char16_t>(u'0' + result)) + u":" + out;
  }
  static std::string TextNarrow(const char* tag) {
    std::string out = "old";
    const int result = CurrentDescriptor.GetTextNarrow(tag, out);
    return std::to_string(result) + ":" + out;
  }
  static std::string Attribute(const char* tag, const char* name) {
    std::string out = "old";
    const int result = CurrentDescriptor.GetAttribute(tag, name, out);
    return std::to_string(result) + ":" + out;
  }
};

TEST_F(DescriptorFieldsTest, AClosedDocumentAnswersMinusOneEverywhere) {
  EXPECT_EQ(CodesNow(), (ResultCodes{-1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1}));
  EXPECT_FALSE(CurrentDescriptor.HasChild("application", "id"));
}

TEST_F(DescriptorFieldsTest, AParserThatHasReadNothingAnswersOneEverywhere) {
  CurrentDescriptor.InitParser();

  EXPECT_EQ(CodesNow(), (ResultCodes{1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}));
  EXPECT_FALSE(CurrentDescriptor.HasChild("application", "id"));
}

TEST_F(DescriptorFieldsTest, ADocumentWithoutRootAnswersTwoToItsWriters) {
  CaptureStdout();
  Load("<!-- nothing else -->");
  GetCapturedStdout();

  EXPECT_EQ(CodesNow(), (ResultCodes{1, 1, 1, 2, 2, 2, 2, 2, 2, 1, 1}));
  EXPECT_FALSE(CurrentDescriptor.HasChild("application", "id"));
}

TEST_F(DescriptorFieldsTest, TextIsTrimmedAndNarrowTextIsNot) {
  LoadChildren("<id> \t\r\n a b \n</id>");

  EXPECT_EQ(Text("id"), u"0:a b");
  EXPECT_EQ(TextNarrow("id"), "0: \t\n a b \n");
}

TEST_F(DescriptorFieldsTest, AMissingElementGivesOneAndLeavesTheBuffer) {
  LoadChildren("");

  EXPECT_EQ(Text("id"), u"1:old");
  EXPECT_EQ(TextNarrow("id"), "1:old");
}

TEST_F(DescriptorFieldsTest, AnEmptyElementGivesAnEmptyText) {
  LoadChildren("<id/><name>   </name>");

  EXPECT_EQ(Text("id"), u"0:");
  EXPECT_EQ(TextNarrow("id"), "0:");
  EXPECT_EQ(Text("name"), u"0:");
}

TEST_F(DescriptorFieldsTest, TextRunsAllDescendantsTogether) {
  LoadChildren(
      "<name><text xml:lang=\"en\">Game</text><text xml:lang=\"de\">Spiel</text>"
      "<!-- not this --><![CDATA[<!]]></name>");

  EXPECT_EQ(Text("name"), u"0:GameSpiel<!");
  EXPECT_TRUE(CurrentDescriptor.HasChild("name", "text"));
}

TEST_F(DescriptorFieldsTest, AFileTypeNameAheadStandsInForTheApplicationName) {
  LoadChildren("<fileTypes><fileType><name>Movie</name></fileType></fileTypes>");

  EXPECT_EQ(Text("name"), u"0:Movie");
}

TEST_F(DescriptorFieldsTest, AFileTypeNameAheadHidesALaterApplicationName) {
  LoadChildren("<fileTypes><fileType><name>Movie</name></fileType></fileTypes><name>Game</name>");

  EXPECT_EQ(Text("name"), u"0:Movie");
}

TEST_F(DescriptorFieldsTest, TheLimitsOfTheFieldsAreRead) {
  const std::string longest(511, 'a');
  LoadChildren("<id>" + std::string(1023, 'i') + "</id><name>" + longest + "</name>");

  EXPECT_EQ(TextNarrow("name"), "0:" + longest);
  EXPECT_EQ(TextNarrow("id"), "0:" + std::string(1023, 'i'));
}

TEST_F(DescriptorFieldsTest, NarrowTextIsInTheLocalCodePage) {
  LoadChildren("<id>&#xE4;&#x3042;&#x1F600;</id>");

  EXPECT_EQ(TextNarrow("id"), "0:\xC3\xA4\xE3\x81\x82\xF0\x9F\x98\x80");
}

TEST_F(DescriptorFieldsTest, AnAttributeIsReadFromTheFirstElement) {
  LoadChildren("<text lang=\"en\"/><text lang=\"de\"/>");

  EXPECT_EQ(Attribute("text", "lang"), "0:en");
  EXPECT_EQ(Attribute("application", "xmlns"), "0:http://ns.zenvoka.example/tav/application/33.0");
}

TEST_F(DescriptorFieldsTest, AMissingAttributeGivesAnEmptyText) {
  LoadChildren("<text/>");

  EXPECT_EQ(Attribute("text", "lang"), "0:");
  EXPECT_EQ(Attribute("none", "lang"), "1:old");
}

TEST_F(DescriptorFieldsTest, AChildCountsAtAnyDepthOfTheFirstParentOnly) {
  LoadChildren("<name><a><text/></a></name><description/><description><text/></description>");

  EXPECT_TRUE(CurrentDescriptor.HasChild("name", "text"));
  EXPECT_FALSE(CurrentDescriptor.HasChild("description", "text"));
  EXPECT_FALSE(CurrentDescriptor.HasChild("copyright", "text"));
}

// The readers below an element take one from elsewhere; here it is one of another document.
class DescriptorChildTextTest : public DescriptorFieldsTest {
 protected:
  DescriptorChildTextTest() {
    LoadChildren("");  // starts the library
    document_ =
        xercesc::DOMImplementation::getImplementation()->createDocument(nullptr, u"root", nullptr);
  }
  ~DescriptorChildTextTest() override { document_->release(); }

  const xercesc::DOMElement* ElementWith(const char16_t* tag, const char16_t* text) {
    auto* child = document_->createElement(tag);
    child->setTextContent(text);
    auto* between = document_->createElement(u"between");
    between->appendChild(child);
    document_->getDocumentElement()->appendChild(between);
    return document_->getDocumentElement();
  }

  std::u16string wide = u"old";
  std::string narrow = "old";

 private:
  xercesc::DOMDocument* document_ = nullptr;
};

TEST_F(DescriptorChildTextTest, ADescendantIsReadWithItsBlanks) {
  const auto* element = ElementWith(u"path", u" \u00E4 ");

  EXPECT_EQ(CurrentDescriptor.GetChildText(element, "path", wide), 0);
  EXPECT_EQ(CurrentDescriptor.GetChildTextNarrow(element, "path", narrow), 0);

  EXPECT_EQ(wide, u" \u00E4 ");
  EXPECT_EQ(narrow, " \xC3\xA4 ");
}

TEST_F(DescriptorChildTextTest, ANullElementGivesOne) {
  EXPECT_EQ(CurrentDescriptor.GetChildText(nullptr, "path", wide), 1);
  EXPECT_EQ(CurrentDescriptor.GetChildTextNarrow(nullptr, "path", narrow), 1);
  EXPECT_EQ(wide, u"old");
  EXPECT_EQ(narrow, "old");
}

TEST_F(DescriptorChildTextTest, AMissingDescendantGivesTwo) {
  const auto* element = ElementWith(u"other", u"x");

  EXPECT_EQ(CurrentDescriptor.GetChildText(element, "path", wide), 2);
  EXPECT_EQ(CurrentDescriptor.GetChildTextNarrow(element, "path", narrow), 2);
}

TEST_F(DescriptorChildTextTest, AnEmptyDescendantGivesThree) {
  const auto* element = ElementWith(u"path", u"");

  EXPECT_EQ(CurrentDescriptor.GetChildText(element, "path", wide), 3);
  EXPECT_EQ(CurrentDescriptor.GetChildTextNarrow(element, "path", narrow), 3);
  EXPECT_EQ(wide, u"old");
  EXPECT_EQ(narrow, "old");
}

TEST_F(DescriptorChildTextTest, AClosedDocumentGivesMinusOne) {
  const auto* element = ElementWith(u"path", u"x");
  CurrentDescriptor.Close();

  EXPECT_EQ(CurrentDescriptor.GetChildText(element, "path", wide), -1);
  EXPECT_EQ(CurrentDescriptor.GetChildTextNarrow(element, "path", narrow), -1);
}

}  // namespace
}  // namespace qutav::test
