#include "ServicesTest.h"
#include "descriptor/Markets.h"

namespace qutav::test {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::Field;
using ::testing::IsEmpty;

constexpr char16_t kPath[] = u"C:\\host\\en_US\\configuration\\Android\\Markets.xml";

auto IsMarket(const std::u16string& name, const std::u16string& url) {
  return AllOf(Field(&MarketEntry::name, name), Field(&MarketEntry::url, url));
}

class MarketsTest : public ServicesTest {
 protected:
  ~MarketsTest() override { reader.Close(); }

  std::vector<MarketEntry> Read(std::string_view xml) {
    files.Put(kPath, xml);
    return ReadIt();
  }
  std::vector<MarketEntry> ReadIt() {
    std::vector<MarketEntry> markets = {{u"earlier", u"entry"}};
    ReadMarkets(reader, markets, kPath);
    return markets;
  }

  DescriptorDocument reader;
};

TEST_F(MarketsTest, EveryMarketGivesItsNameAndUrlInTheFilesOrder) {
  EXPECT_THAT(Read("<markets><market name=\"Second Street\" url=\"https://b.example/tav\"/>"
                   "<market name=\"First Street\" url=\"https://a.example/tav\"/></markets>"),
              ElementsAre(IsMarket(u"Second Street", u"https://b.example/tav"),
                          IsMarket(u"First Street", u"https://a.example/tav")));
}

TEST_F(MarketsTest, ARootOfAnyNameAndMarketsAtAnyDepthAreRead) {
  EXPECT_THAT(Read("<anything><market name=\"a\" url=\"1\"><market name=\"b\" url=\"2\"/></market>"
                   "<group><inner><market name=\"c\" url=\"3\"/></inner></group></anything>"),
              ElementsAre(IsMarket(u"a", u"1"), IsMarket(u"b", u"2"), IsMarket(u"c", u"3")));
}

TEST_F(MarketsTest, OtherAttributesChildrenAndElementsAreIgnored) {
  EXPECT_THAT(Read("<m><market id=\"7\" name=\"a\" url=\"1\"><note/>text</market>"
                   "<Market name=\"b\" url=\"2\"/><x:market name=\"c\" url=\"3\"/></m>"),
              ElementsAre(IsMarket(u"a", u"1")));
}

TEST_F(MarketsTest, TwoMarketsOfTheSameNameAreBothKept) {
  EXPECT_THAT(Read("<m><market name=\"a\" url=\"1\"/><market name=\"a\" url=\"2\"/></m>"),
              ElementsAre(IsMarket(u"a", u"1"), IsMarket(u"a", u"2")));
}

TEST_F(MarketsTest, AMarketWithoutANameIsSkippedEvenWithAUrl) {
  EXPECT_THAT(Read("<m><market url=\"1\"/><market/><market name=\"\" url=\"2\"/></m>"), IsEmpty());
}

TEST_F(MarketsTest, AMarketWithoutAUrlHasAnEmptyOne) {
  EXPECT_THAT(Read("<m><market name=\"a\"/><market name=\"b\" url=\"\"/></m>"),
              ElementsAre(IsMarket(u"a", u""), IsMarket(u"b", u"")));
}

TEST_F(MarketsTest, TextsMayHoldWhatTheLocalCodePageHas) {
  EXPECT_THAT(Read("<m><market name=\"Caf\xC3\xA9 &amp; \xE5\xBA\x97\" url=\"u?a&amp;b\"/></m>"),
              ElementsAre(IsMarket(u"Caf\u00E9 & \u5E97", u"u?a&b")));
}

TEST_F(MarketsTest, AFileWithoutAMarketGivesNone) {
  EXPECT_THAT(Read("<markets><shop name=\"a\" url=\"1\"/></markets>"), IsEmpty());
}

TEST_F(MarketsTest, AMalformedFileGivesNoneWithoutAMessage) {
  EXPECT_THAT(Read("<markets><market name=\"a\" url=\"1\"/>"), IsEmpty());
  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

TEST_F(MarketsTest, AMissingFileGivesNoneWithoutAMessage) {
  EXPECT_THAT(ReadIt(), IsEmpty());
  EXPECT_THAT(frontEnd.messages, IsEmpty());
}

}  // namespace
}  // namespace qutav::test
