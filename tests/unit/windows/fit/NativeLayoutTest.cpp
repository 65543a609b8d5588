// Every dialog in real windows, in every language, for screens of three resolutions: nothing is
// cut, and nothing covers anything.
#include <tuple>

#include "AllDialogs.h"
#include "ServicesTest.h"
#include "framework/windows/ControlHost.h"
#include "framework/windows/WindowScope.h"
#include "platform/Text.h"
#include "win/InterfaceLanguage.h"
#include "windows/WindowFit.h"

namespace qutav::test {
namespace {

using ::testing::IsEmpty;

// Somewhere to put controls, never shown.
class HiddenWindow {
 public:
  HiddenWindow()
      : window_(CreateWindowExW(0, L"STATIC", nullptr, WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                                nullptr, nullptr)) {}
  ~HiddenWindow() { DestroyWindow(window_); }
  HiddenWindow(const HiddenWindow&) = delete;
  HiddenWindow& operator=(const HiddenWindow&) = delete;

  HWND Window() const { return window_; }
  void Resize(const Size& size) const {
    SetWindowPos(window_, nullptr, 0, 0, size.width, size.height,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  }

 private:
  HWND window_;
};

// A language, and a resolution in dots per inch.
using Screen = std::tuple<const char16_t*, unsigned>;

class NativeLayoutTest : public ServicesTest, public ::testing::WithParamInterface<Screen> {
 protected:
  NativeLayoutTest() {
    host.languageCode = std::get<0>(GetParam());
    EnterInterfaceLanguage(call);
  }

  HostCallContext call;
};

TEST_P(NativeLayoutTest, NothingIsCutAndNothingIsCovered) {
  const WindowScope scope;
  const unsigned dpi = std::get<1>(GetParam());

  for (const auto& dialog : DialogsAndPages()) {
    const HiddenWindow window;
    ControlHost controls(window.Window(), *dialog, dpi);
    controls.Update();
    const Size size = controls.NaturalSize();
    window.Resize(size);
    controls.Arrange(size);

    EXPECT_THAT(FaultsOfDialog(window.Window(), dpi), IsEmpty())
        << ToUtf8(dialog->ClassName()) << ", " << size.width << " by " << size.height;
  }
}

INSTANTIATE_TEST_SUITE_P(
    OnEveryScreen, NativeLayoutTest,
    ::testing::Combine(::testing::Values(u"cs_CZ", u"de_DE", u"en_US", u"es_ES", u"fr_FR", u"it_IT",
                                         u"ja_JP", u"ko_KR", u"nl_NL", u"pl_PL", u"pt_BR", u"ru_RU",
                                         u"su_DO", u"sv_SE", u"tr_TR", u"zh_CN", u"zh_TW"),
                       ::testing::Values(96u, 144u, 192u)),
    [](const auto& screen) {
      return ToUtf8(std::get<0>(screen.param)) + "_" + std::to_string(std::get<1>(screen.param));
    });

}  // namespace
}  // namespace qutav::test
