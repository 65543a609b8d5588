#include "ServicesTest.h"
#include "descriptor/DescriptorDocument.h"
#include "descriptor/GuardedParser.h"

namespace qutav::test {
namespace {

constexpr char16_t kPath[] = u"C:/m/Game-app.xml";

std::string Nested(unsigned depth, const std::string& inner) {
  std::string text = "<application>";
  for (unsigned i = 1; i < depth; ++i) text += "<a>";
  text += inner;
  for (unsigned i = 1; i < depth; ++i) text += "</a>";
  return text + "</application>";
}

class GuardedParserTest : public ServicesTest {
 protected:
  GuardedParserTest() { document.InitParser(); }
  ~GuardedParserTest() override { document.Close(); }

  int LoadText(const std::string& text) {
    files.Put(kPath, text);
    return document.Load(kPath);
  }

  DescriptorDocument document;
};

TEST_F(GuardedParserTest, ElementsMayBeNestedUpToTheLimit) {
  EXPECT_EQ(LoadText(Nested(GuardedParser::kDeepest, "x")), 0);
}

TEST_F(GuardedParserTest, ADeeperElementIsRefusedLikeMalformedText) {
  EXPECT_EQ(LoadText(Nested(GuardedParser::kDeepest, "<b/>")), -1);
}

TEST_F(GuardedParserTest, AHundredThousandOpenTagsDoNotOverrunTheStack) {
  EXPECT_EQ(LoadText(Nested(100'000, "x")), -1);
}

TEST_F(GuardedParserTest, EmptyElementsDoNotMakeRoomForDeeperOnes) {
  std::string empty;
  for (int i = 0; i < 1000; ++i) empty += "<e/>";

  EXPECT_EQ(
      LoadText("<application>" + empty + Nested(GuardedParser::kDeepest, "x") + "</application>"),
      -1);
}

TEST_F(GuardedParserTest, TwentyThousandElementsSideBySideAreReadInOneWalk) {
  std::string text = "<application xmlns=\"x\"><icon>";
  for (int i = 0; i < 20'000; ++i) text += "<image1x1>a.png</image1x1>";
  ASSERT_EQ(LoadText(text + "</icon></application>"), 0);

  std::vector<std::u16string> images;
  EXPECT_EQ(document.CollectPackagedImages(images), 3);

  EXPECT_EQ(images.size(), 20'000u);
}

TEST_F(GuardedParserTest, AnotherFileIsNeverReadIntoADescriptor) {
  const std::string text =
      "<!DOCTYPE application [<!ENTITY other SYSTEM \"file:///etc/hostname\">]>"
      "<application xmlns=\"x\"><id>a&other;b</id></application>";

  EXPECT_EQ(LoadText(text), 0);

  std::u16string id;
  document.GetText("id", id);
  EXPECT_EQ(id, u"ab");
}

TEST_F(GuardedParserTest, ADocumentTypeOnAServerIsNotFetched) {
  EXPECT_EQ(LoadText("<!DOCTYPE application SYSTEM \"http://127.0.0.1:9/a.dtd\">"
                     "<application xmlns=\"x\"/>"),
            0);
}

TEST_F(GuardedParserTest, TheCountBeginsAnewWithEachDocument) {
  LoadText(Nested(GuardedParser::kDeepest, "<b/>"));

  EXPECT_EQ(LoadText(Nested(GuardedParser::kDeepest, "x")), 0);
}

}  // namespace
}  // namespace qutav::test
