// The ground of tests that publish: a document that lacks nothing, and an SDK that packages it.
#pragma once

#include "DocumentTest.h"
#include "platform/Text.h"
#include "support/RegistryStore.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav::test {

/// The document of `DocumentTest` with descriptor, sample, an Android keystore and the device
/// "SER1". Nothing is wrong until a test makes it so.
class PublishableDocumentTest : public DocumentTest {
 protected:
  PublishableDocumentTest() {
    PutSample("26.0");
    files.Put(descriptorPath, DescriptorText("26.0", InternetPermission()));
    SettingsSet(keys::kCertificatePath, u"C:/keys/my.p12");
    SettingsSet(keys::kCertificatePassword, u"secret");
    SettingsSet(keys::kRememberPassword, u"true");
    host.selectedDevice = u"SER1";
    host.data[keys::kDocumentPath] = u"C:/docs/Game.qud";
    processes.play = [](const std::u16string& command) {
      const bool lists = command.find(u"devices") != command.npos;
      return PlayedAnswer{lists ? "List of devices attached\nSER1\tdevice\n" : ""};
    };
  }

  static std::string InternetPermission() {
    return "<android><manifestAdditions><![CDATA[<manifest><uses-permission "
           "android:name=\"android.permission.INTERNET\"/></manifest>]]></manifestAdditions>"
           "</android>";
  }

  /// The command lines that packaged something, as UTF-8.
  std::vector<std::string> PackagerCommands() const {
    std::vector<std::string> found;
    for (const std::u16string& command : processes.CommandLines()) {
      const bool packages = command.find(u" -package -target ") != command.npos ||
                            command.find(u" -prepare ") != command.npos;
      if (packages) found.push_back(ToUtf8(command));
    }
    return found;
  }
};

}  // namespace qutav::test
