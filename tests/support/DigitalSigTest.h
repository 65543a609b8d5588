// The ground of tests of the Android deployment page.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ServicesTest.h"
#include "settings_ui/DigitalSigDlg.h"
#include "win/DocumentPaths.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav::test {

/// The page at level TAV3.7, at which most of it can be used; the host lists no device, no market
/// and no network interface.
class DigitalSigTest : public ServicesTest {
 protected:
  static constexpr char16_t kRegistryKey[] = u"Software\\Zenvoka\\Quorl ";
  static constexpr char16_t kCertificateList[] = u"Software\\Zenvoka\\Quorl \\CertPath Android";

  DigitalSigTest() {
    DocumentPaths.LaunchPath = u"C:/host/";
    SettingsSet(keys::kRuntimeKit, u"TAV3.7");
    DeviceListFetched = true;
    PutMarkets("");
  }

  void SetRegistryValue(const std::u16string& name, const std::u16string& value) {
    registry.keys[kRegistryKey].emplace_back(name, value);
  }

  /// Puts certificates on the list of recent ones and, so that they are shown, on the disk.
  void PutCertificates(const std::vector<std::u16string>& paths) {
    for (const std::u16string& path : paths) {
      files.Put(path);
      auto& list = registry.keys[kCertificateList];
      list.emplace_back(u"file" + ToDecimal(static_cast<std::int64_t>(list.size()) + 1), path);
    }
  }

  void PutMarkets(std::string_view elements, const std::u16string& code = u"en_US") {
    files.Put(u"C:/host/" + code + u"/configuration/Android/Markets.xml",
              "<markets>" + std::string(elements) + "</markets>");
  }

  /// The devices that the host has listed, as "A:B:".
  static void PutDevices(const std::u16string& serials, const std::u16string& states) {
    SettingsSet(keys::kDeviceSerials, serials);
    SettingsSet(keys::kDeviceStates, states);
  }

  ComboBox& Certificate() { return Find<ComboBox>(page, u"Certificate:"); }
  Edit& Password() { return Find<Edit>(page, u"Password:"); }
  CheckBox& Remember() { return Find<CheckBox>(page, u"Remember password for this session"); }
  RadioButton& Radio(const std::u16string& label) { return Find<RadioButton>(page, label); }
  RadioButton& Embed() { return Radio(u"Embed TAV runtime with application"); }
  RadioButton& GetFrom() { return Radio(u"Get TAV runtime from:"); }
  ComboBox& Market() { return Find<ComboBox>(page, u"Get TAV runtime from:#2"); }
  ComboBox& Network() { return Find<ComboBox>(page, u"Network interface for remote debugging:"); }
  CheckBox& Install() {
    return Find<CheckBox>(page, u"Install application on the connected Android device");
  }
  CheckBox& Launch() {
    return Find<CheckBox>(page, u"Launch application on the connected Android device");
  }
  CheckList& Devices() { return Find<CheckList>(page, u"Device Serial Number"); }
  Button& Refresh() { return Find<Button>(page, u"Refresh"); }

  std::vector<std::u16string> DeviceRowTexts() {
    std::vector<std::u16string> texts;
    for (const CheckList::Row& row : Devices().Rows()) texts.push_back(row.text);
    return texts;
  }

  CDigitalSigDlg page;
};

}  // namespace qutav::test
