// The ground of tests on the iOS deployment page: a movie's folder, certificates and profiles on
// the disk, and a descriptor.
#pragma once

#include <string>
#include <vector>

#include "DescriptorTest.h"
#include "settings_ui/VolDeployDlg.h"
#include "support/RegistryStore.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav::test {

/// Where one of the page's two files is kept; they are treated alike.
struct FileFieldCase {
  std::u16string label;
  std::u16string key;
  std::u16string lastChoice;
  std::u16string recentFiles;
  std::u16string emptyMessage;
  std::u16string missingMessage;
};

inline const FileFieldCase kCertificateCase = {
    u"Certificate:", u"com.tav.moresh.ipacertpath",   u"Last IPA Cert",
    u"IpaCertPath",  u"Certificate must be selected", u"The specified certificate does not exist."};

inline const FileFieldCase kProfileCase = {u"Provisioning profile:",
                                           u"com.tav.moresh.ipaprovision",
                                           u"Last IPA Provision",
                                           u"MobileProvisionFiles",
                                           u"A provisioning profile must be selected.",
                                           u"The specified provisioning file does not exist."};

class VolDeployTest : public DescriptorTest {
 protected:
  VolDeployTest() {
    SettingsSet(keys::kMovieFolder, u"C:/m/");
    files.PutFolder(u"C:/m");
    LoadChildren("<id>com.old.game</id>");
  }

  ComboBox& Combo(const std::u16string& label) { return Find<ComboBox>(page, label); }
  Edit& Password() { return Find<Edit>(page, u"Password:"); }
  CheckBox& Remember() { return Find<CheckBox>(page, u"Remember password for this session"); }
  Edit& ApplicationId() { return Find<Edit>(page, u"App ID:"); }

  /// Puts a file there and returns its path in the form in which dialogs give it.
  std::u16string PutFile(const std::u16string& name) {
    files.Put(u"C:/k/" + name);
    return u"C:\\k\\" + name;
  }

  /// Puts a profile there that covers this identifier, team included.
  std::u16string PutProfile(const std::u16string& name, const std::string& identifier) {
    files.Put(u"C:/k/" + name,
              "signed <plist version=\"1.0\"><dict><key>application-identifier</key>\n<string>" +
                  identifier + "</string></dict></plist> signature");
    return u"C:\\k\\" + name;
  }

  std::vector<std::u16string> RecentFiles(const std::u16string& list) {
    std::vector<std::u16string> paths;
    GetRegistryFileList(list, paths);
    return paths;
  }

  /// A page with all its fields filled in.
  void CreateFilled() {
    page.Create();
    Combo(u"Certificate:").Type(PutFile(u"my.p12"));
    Password().Type(u"secret");
    Combo(u"Provisioning profile:").Type(PutFile(u"my.mobileprovision"));
    ApplicationId().Type(u"com.new.game");
  }

  CVolDeployDlg page;
};

}  // namespace qutav::test
