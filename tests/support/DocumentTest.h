// The ground of tests that need a document: one with its movie beside it, as the host has it open.
#pragma once

#include <array>
#include <string>

#include "ServicesTest.h"
#include "win/DocumentContext.h"

namespace qutav::test {

/// Stands before the version in the namespace of a descriptor.
inline constexpr char kNamespaceBase[] = "http://ns.zenvoka.example/tav/application/";

/// A small descriptor; `inside` stands before the end of its root.
inline std::string DescriptorText(const std::string& version = "26.0",
                                  const std::string& inside = "") {
  return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<application xmlns=\"" +
         (kNamespaceBase + version) +
         "\"><id>Old</id><filename>Old</filename><name>Old</name>"
         "<initialWindow><content>Old.qmv</content></initialWindow>" +
         inside + "</application>\n";
}

/// The document C:\docs\Game.qud with the movie C:\m\Game.qmv; no descriptor, no SDK.
class DocumentTest : public ServicesTest {
 protected:
  DocumentTest() { files.Put(u"C:/m/Game.qmv"); }

  std::array<HostValue, 3> Arguments() {
    return {host.Text(documentUri), host.Text(movieUri), host.Text(version)};
  }
  bool Prepare() {
    const auto arguments = Arguments();
    return PrepareDocumentContext(call, arguments[0], arguments[1], arguments[2]);
  }

  /// Puts the SDK's sample descriptor there.
  void PutSample(const std::string& sampleVersion) {
    files.Put(u"C:/host/TAV26.0/samples/descriptor-sample.xml", DescriptorText(sampleVersion));
  }

  std::u16string documentUri = u"file:///C:/docs/Game.qud";
  std::u16string movieUri = u"file:///C:/m/Game.qmv";
  std::u16string version = u"26.0";
  const std::u16string descriptorPath = u"C:/m/Game-app.xml";
  HostCallContext call;
};

}  // namespace qutav::test
