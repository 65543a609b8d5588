// The ground of tests on the General pages: the movie C:\docs\Game.qmv, its descriptor and an SDK.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "DescriptorTest.h"
#include "framework/CStretchBitmapButton.h"
#include "framework/ComboBox.h"
#include "framework/ListBox.h"
#include "platform/Text.h"
#include "win/ExtensionCache.h"
#include "win/SettingsKeys.h"
#include "win/SettingsMap.h"

namespace qutav::test {

/// `Page` stands ready to be opened. The runtime level is TAV33.0, and the sample descriptor has
/// the namespace that `LoadChildren` gives, so that nothing is brought forward until a test says
/// so.
template <typename Page>
class GeneralPageTest : public DescriptorTest {
 protected:
  GeneralPageTest() {
    SettingsSet(keys::kMovieFolder, u"C:/docs/");
    SettingsSet(keys::kMovieBaseName, u"Game");
    SettingsSet(keys::kSdkPath, u"C:/sdk");
    SettingsSet(keys::kRuntimeKit, u"TAV33.0");
    SettingsSet(keys::kOldTargetPlatform, u"Android");
    PutSample("http://ns.zenvoka.example/tav/application/33.0");
  }

  void PutSample(const std::string& sampleNamespace) {
    files.Put(u"C:/sdk/samples/descriptor-sample.xml",
              "<application xmlns=\"" + sampleNamespace + "\"/>");
  }

  /// The document's native extension packages.
  static void UseExtensions(const std::vector<std::u16string>& names) {
    ExtensionFileNames = names;
    ExtensionCacheFolder = u"C:\\temp\\Game_ZUX_Cache\\";
  }

  /// The included items of the settings.
  static void Include(const std::vector<std::u16string>& items) {
    SettingsSet(keys::kIncludedCount, ToDecimal(static_cast<std::int64_t>(items.size())));
    for (std::size_t i = 0; i < items.size(); ++i) {
      SettingsSet(keys::kIncludedItem + ToDecimal(static_cast<std::int64_t>(i)), items[i]);
    }
  }

  /// All settings of included items as "item0=a", in the order of the map.
  static std::vector<std::string> StoredItems() {
    const std::u16string prefix = u"com.tav.moresh.included.";
    std::vector<std::string> items;
    for (const auto& [key, value] : SettingsMap) {
      if (key.starts_with(prefix + u"item")) {
        items.push_back(ToUtf8(key.substr(prefix.size()) + u"=" + value));
      }
    }
    return items;
  }

  /// Shows the page over a descriptor with these children.
  void Open(std::string_view children = "<id>com.game</id><initialWindow/>") {
    LoadChildren(children);
    page.Create();
  }

  Edit& EditOf(const std::u16string& label) { return Find<Edit>(page, label); }
  CheckBox& BoxOf(const std::u16string& label) { return Find<CheckBox>(page, label); }
  ComboBox& ComboOf(const std::u16string& label) { return Find<ComboBox>(page, label); }
  CStretchBitmapButton& ButtonOf(const std::u16string& label) {
    return Find<CStretchBitmapButton>(page, label);
  }
  void Press(const std::u16string& label) { ButtonOf(label).Click(); }

  /// An element's text in the DOM; "(none)" when there is none.
  static std::string TextOf(const char* tag) {
    std::u16string text = u"(none)";
    CurrentDescriptor.GetText(tag, text);
    return ToUtf8(text);
  }

  /// The namespace of the DOM.
  static std::string Namespace() {
    std::string value = "(none)";
    CurrentDescriptor.GetAttribute("application", "xmlns", value);
    return value;
  }

  std::string SavedFile() const { return files.BytesOf(kDescriptorPath); }

  void ExpectRefusedId() const {
    ASSERT_EQ(frontEnd.messages.size(), 1u);
    const ShownMessage& box = frontEnd.messages.front();
    EXPECT_EQ(box.title, u"Zenvoka Kestrow");
    EXPECT_EQ(box.text,
              u"Invalid application ID.\n\nApplication ID length must be between 1-212 characters "
              u"and may include the following characters: a-z, A-Z, 0-9, and  dot (.).");
    EXPECT_EQ(box.icon, MessageIcon::kWarning);
    EXPECT_EQ(box.buttons, MessageButtons::kOk);
  }

  Page page;
};

}  // namespace qutav::test
