#include <stdexcept>

#include "DescriptorTest.h"

namespace qutav::test {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

// UTF-16 with the low byte first, behind a byte order mark.
std::string AsUtf16(std::string_view ascii) {
  std::string bytes = "\xFF\xFE";
  for (const char c : ascii) bytes.append({c, '\0'});
  return bytes;
}

// What follows the byte order mark.
std::string Utf16Part(std::string_view ascii) { return AsUtf16(ascii).substr(2); }

class DescriptorSavingTest : public DescriptorTest {
 protected:
  static std::u16string Id() {
    std::u16string id = u"unread";
    CurrentDescriptor.GetText("id", id);
    return id;
  }
};

TEST_F(DescriptorSavingTest, AValueThatNoXmlFileCanHoldThrowsAStandardErrorAndLeavesTheOldFile) {
  LoadChildren("<id>a</id>");
  const std::string old = files.BytesOf(kDescriptorPath);
  files.changes.clear();
  CurrentDescriptor.SetText("id", u"a\u0001b");

  EXPECT_THROW(CurrentDescriptor.Save(kDescriptorPath), std::runtime_error);

  EXPECT_EQ(files.BytesOf(kDescriptorPath), old);
  EXPECT_TRUE(files.changes.empty());
}

TEST_F(DescriptorSavingTest, ADescriptorInUtf16StaysInUtf16) {
  EXPECT_EQ(Load(AsUtf16("<?xml version=\"1.0\" encoding=\"UTF-16\"?>"
                         "<application><id>a.b</id></application>")),
            kLoaded);
  EXPECT_EQ(Id(), u"a.b");
  CurrentDescriptor.SetText("id", u"c.d");

  EXPECT_EQ(CurrentDescriptor.Save(kDescriptorPath), 0);

  EXPECT_THAT(files.BytesOf(kDescriptorPath), HasSubstr(Utf16Part("encoding=\"UTF-16\"")));
  EXPECT_THAT(files.BytesOf(kDescriptorPath), HasSubstr(Utf16Part("<id>c.d</id>")));
  EXPECT_THAT(files.BytesOf(kDescriptorPath), Not(HasSubstr("<id>")));
  EXPECT_EQ(CurrentDescriptor.Load(kDescriptorPath), kLoaded);
  EXPECT_EQ(Id(), u"c.d");
}

TEST_F(DescriptorSavingTest, ADescriptorBehindAByteOrderMarkLoads) {
  EXPECT_EQ(Load("\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"utf-8\"?>"
                 "<application><id>Tr\xC3\xA4ume</id></application>"),
            kLoaded);

  EXPECT_EQ(Id(), u"Tr\u00E4ume");
}

}  // namespace
}  // namespace qutav::test
