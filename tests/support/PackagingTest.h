// The ground of tests of packaging: a movie with its descriptor, an SDK and a keystore.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ServicesTest.h"
#include "packaging/PublishDriver.h"
#include "platform/Text.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav::test {

/// The movie C:\m\Game.qmv; the settings ask for a release package with the runtime embedded.
class PackagingTest : public ServicesTest {
 protected:
  /// The launcher and the tool, with the blank behind.
  static constexpr char16_t kToolHead[] =
      u"\"C:/Common/Zenvoka/Zenvoka Kestrow 2020/jre/bin/java.exe\" -jar \"C:/sdk/lib/KOB.jar\" ";

  PackagingTest() {
    files.Put(u"C:/m/Game.qmv");
    PutDescriptor("<id>com.game</id><name>Game</name>");
    SettingsSet(keys::kMovieFolder, u"C:/m/");
    SettingsSet(keys::kMovieBaseName, u"Game");
    SettingsSet(keys::kSdkPath, u"C:/sdk");
    SettingsSet(keys::kRuntimeKit, u"TAV26.0");
    SettingsSet(keys::kPublishType, u"release");
    SettingsSet(keys::kCertificatePath, u"C:/k/my.p12");
    SettingsSet(keys::kCertificatePassword, u"PASSWORD");
    SettingsSet(keys::kIpaCertificatePath, u"C:/k/dist.p12");
    SettingsSet(keys::kIpaCertificatePassword, u"PASSWORD");
    SettingsSet(keys::kIpaProvisioningProfile, u"C:/k/store.mobileprovision");
  }

  /// The descriptor beside the movie, with these children of its root.
  void PutDescriptor(std::string_view children) {
    files.Put(u"C:/m/Game-app.xml",
              "<application xmlns=\"http://ns.zenvoka.example/tav/application/26.0\">" +
                  std::string(children) + "</application>");
  }

  void SetRegistryValue(const std::u16string& name, const std::u16string& value) {
    registry.keys[u"Software\\Zenvoka\\Quorl "].emplace_back(name, value);
  }

  /// What the tool does at each run.
  void PlayTool(std::uint32_t exitCode, const std::string& output = {}) {
    processes.play = [=](const std::u16string&) { return PlayedAnswer{output, exitCode}; };
  }

  /// The one command line of a publish; empty when there was none or more.
  std::u16string PublishedCommand(PublishTarget target) {
    Publish(target);
    const auto lines = processes.CommandLines();
    return lines.size() == 1 ? lines.front() : u"";
  }

  static int Publish(PublishTarget target = PublishTargetApk) {
    return PublishDriver(target, false);
  }

  /// Expects a publish to end before the tool is started.
  void ExpectStop(PublishTarget target = PublishTargetApk) {
    EXPECT_EQ(Publish(target), 0);
    EXPECT_TRUE(processes.CommandLines().empty());
    EXPECT_TRUE(frontEnd.dialogs.empty());
  }

  /// Asks for that many included files, "gone0" and so on, that are not there.
  static void IncludeMissingFiles(int count) {
    SettingsSet(keys::kIncludedCount, ToDecimal(count));
    for (int i = 0; i < count; ++i) {
      SettingsSet(keys::kIncludedItem + ToDecimal(i), u"gone" + ToDecimal(i));
    }
  }

  /// Expects exactly one message box, owned by the focus window.
  void ExpectOneBox(MessageIcon icon, MessageButtons buttons, const std::u16string& text) const {
    ASSERT_EQ(frontEnd.messages.size(), 1u);
    const ShownMessage& box = frontEnd.messages.front();
    EXPECT_EQ(box.text, text);
    EXPECT_EQ(box.title, u"Zenvoka Kestrow");
    EXPECT_EQ(box.icon, icon);
    EXPECT_EQ(box.buttons, buttons);
    EXPECT_EQ(box.owner, frontEnd.focus);
  }
  void ExpectInformation(const std::u16string& text) const {
    ExpectOneBox(MessageIcon::kInformation, MessageButtons::kOk, text);
  }
  void ExpectWarning(const std::u16string& text) const {
    ExpectOneBox(MessageIcon::kWarning, MessageButtons::kOk, text);
  }
};

}  // namespace qutav::test
