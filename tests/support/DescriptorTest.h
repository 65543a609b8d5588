// The ground of tests on a descriptor: a file in memory and `CurrentDescriptor` over it.
#pragma once

#include <string>
#include <string_view>

#include "ServicesTest.h"
#include "descriptor/DescriptorDocument.h"

namespace qutav::test {

class DescriptorTest : public ServicesTest {
 protected:
  static constexpr char16_t kDescriptorPath[] = u"C:\\docs\\Game-app.xml";

  /// Loads a file of this content into `CurrentDescriptor`; the result of `Load`.
  int Load(std::string_view xml) {
    files.Put(kDescriptorPath, xml);
    if (!CurrentDescriptor.IsParserReady()) CurrentDescriptor.InitParser();
    return CurrentDescriptor.Load(kDescriptorPath);
  }

  /// Loads an `application` with these children.
  int LoadChildren(std::string_view children) {
    return Load("<application xmlns=\"http://ns.zenvoka.example/tav/application/33.0\">" +
                std::string(children) + "</application>");
  }

  /// The children of `application` as `Save` writes them, without the layout between them.
  std::string Children() {
    CurrentDescriptor.Save(kDescriptorPath);
    const std::string text = WithoutLayout(files.BytesOf(kDescriptorPath));
    const std::size_t start = text.find('>', text.find("<application")) + 1;
    const std::size_t end = text.rfind("</application>");
    return end == text.npos ? std::string() : text.substr(start, end - start);
  }

  /// A text without the white space that stands between tags.
  static std::string WithoutLayout(std::string_view text) {
    std::string result;
    std::string space;
    for (const char c : text) {
      if (c == ' ' || c == '\n' || c == '\r' || c == '\t') {
        space += c;
        continue;
      }
      const bool betweenTags = c == '<' && (result.empty() || result.back() == '>');
      if (!betweenTags) result += space;
      space.clear();
      result += c;
    }
    return result;
  }
};

}  // namespace qutav::test
