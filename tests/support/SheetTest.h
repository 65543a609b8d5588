// The ground of tests of the whole settings sheet: a document that lacks nothing is open, and a
// test drives the sheet as a user does.
#pragma once

#include <functional>

#include "PublishableDocumentTest.h"
#include "framework/CPropertySheet.h"
#include "framework/CStretchBitmapButton.h"
#include "framework/CheckList.h"
#include "framework/ComboBox.h"
#include "settings_ui/SettingsSheet.h"

namespace qutav::test {

class SheetTest : public PublishableDocumentTest {
 protected:
  SheetTest() {
    files.Put(u"C:/keys/my.p12");
    files.Put(u"C:/keys/dist.p12");
    files.Put(u"C:/keys/store.mobileprovision");
    files.Put(u"C:/host/en_US/configuration/Android/Features.xml",
              "<androidFeatures>"
              "<feature><featureName>INTERNET</featureName><description>Net</description></feature>"
              "<feature><featureName>CAMERA</featureName><description>Lens</description></feature>"
              "</androidFeatures>");
    EXPECT_TRUE(Prepare());
    SettingsSet(keys::kExitOk, u"(as before)");
  }

  void UseIosForm() {
    SettingsSet(keys::kPublishIpa, u"true");
    files.Put(u"C:/host/DRN/lib/drn.jar");
    SettingsSet(keys::kIpaCertificatePath, u"C:/keys/dist.p12");
    SettingsSet(keys::kIpaCertificatePassword, u"secret");
    SettingsSet(keys::kIpaRememberPassword, u"true");
    SettingsSet(keys::kIpaProvisioningProfile, u"C:/keys/store.mobileprovision");
  }

  /// Opens the sheet and lets a user act on it; leaves it by Cancel unless that ended it. Whether
  /// it was shown.
  bool Open(const std::function<void(CPropertySheet&)>& act, int startPage = 0) {
    frontEnd.onSheet = act;
    return OpenSettingsSheet(nullptr, startPage);
  }

  /// A page of the open sheet by its English title, after turning to it.
  static CPropertyPage& TurnTo(CPropertySheet& sheet, const std::u16string& title) {
    for (std::size_t i = 0; i < sheet.Pages().size(); ++i) {
      if (sheet.Pages()[i]->Title() != title) continue;
      sheet.SetActivePage(static_cast<int>(i));
      return *sheet.Pages()[i];
    }
    throw std::runtime_error("no such page: " + ToUtf8(title));
  }

  static void FillAndroidDeployment(CPropertySheet& sheet) {
    CPropertyPage& page = TurnTo(sheet, u"Deployment");
    Find<ComboBox>(page, u"Certificate:").Type(u"C:\\keys\\my.p12");
    Find<Edit>(page, u"Password:").Type(u"secret");
  }

  static void ToggleLanguage(CPropertySheet& sheet, const std::u16string& name) {
    auto& list = Find<CheckList>(TurnTo(sheet, u"Languages"), u"Supported Languages");
    list.ToggleByUser(list.FindRow(name));
  }

  /// Puts a descriptor there that supports these languages.
  void PutLanguages(const std::string& codes) {
    files.Put(descriptorPath, DescriptorText("26.0", InternetPermission() + "<supportedLanguages>" +
                                                         codes + "</supportedLanguages>"));
  }

  std::string DescriptorOnDisk() const { return files.BytesOf(descriptorPath); }
};

}  // namespace qutav::test
