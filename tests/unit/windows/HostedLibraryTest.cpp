// The built library in a host's process, with nobody's script: what it shows are real windows.
#include <gtest/gtest.h>

#include <filesystem>

#include "FakeHost.h"
#include "TemporaryFolder.h"
#include "platform/Text.h"
#include "windows/ModalUser.h"
#include "windows/OwnerWindow.h"

namespace qutav::test {
namespace {

using Entry = std::int32_t (*)(const void* table, std::uint32_t size);

/// How the thread's windows are scaled, until the test is over.
class ThreadAwareness {
 public:
  explicit ThreadAwareness(DPI_AWARENESS_CONTEXT context)
      : old_(SetThreadDpiAwarenessContext(context)) {}
  ~ThreadAwareness() { SetThreadDpiAwarenessContext(old_); }
  ThreadAwareness(const ThreadAwareness&) = delete;
  ThreadAwareness& operator=(const ThreadAwareness&) = delete;

 private:
  DPI_AWARENESS_CONTEXT old_;
};

bool ThreadIsUnaware() {
  return AreDpiAwarenessContextsEqual(GetThreadDpiAwarenessContext(),
                                      DPI_AWARENESS_CONTEXT_UNAWARE) != 0;
}

DPI_AWARENESS AwarenessOf(HWND window) {
  return GetAwarenessFromDpiAwarenessContext(GetWindowDpiAwarenessContext(window));
}

/// How a window stood to its owner while it was shown.
struct SeenWindow {
  HWND owner = nullptr;
  bool ownerEnabled = true;
  DPI_AWARENESS awareness = DPI_AWARENESS_INVALID;
};

SeenWindow Look(HWND window) {
  HWND owner = GetWindow(window, GW_OWNER);
  return {owner, IsWindowEnabled(owner) != 0, AwarenessOf(window)};
}

class HostedLibraryTest : public ::testing::Test {
 protected:
  HostedLibraryTest() {
    const auto entry = reinterpret_cast<Entry>(
        reinterpret_cast<void*>(GetProcAddress(Library(), "KR_InitWrapper")));
    const HostTable table = host.Table();
    EXPECT_EQ(entry(table.words.data(), sizeof(table.words)), 1);
  }

  // A host loads the library once and never lets it go.
  static HMODULE Library() {
    static const HMODULE library =
        LoadLibraryW(std::filesystem::path(QUTAV_LIBRARY).make_preferred().c_str());
    EXPECT_NE(library, nullptr);
    return library;
  }

  std::u16string Uri(const std::string& name) const {
    return u"file:///" + ReplaceAll(ReplaceAll(folder.Path(name), u"\\", u"/"), u" ", u"%20");
  }

  std::int32_t Call(const std::u16string& function, const std::string& movie) {
    const HostValue arguments[] = {host.Text(Uri("Game.qud")), host.Text(Uri(movie)),
                                   host.Text(u"26.0")};
    for (const FakeHost::Defined& defined : host.defined) {
      if (defined.name == function) {
        return defined.function(nullptr, nullptr, 3, arguments, nullptr);
      }
    }
    ADD_FAILURE() << "not defined: " << ToUtf8(function);
    return -1;
  }

  /// Calls a function that shows a window of this title, which the user cancels.
  SeenWindow SeenDuring(const std::u16string& title, const std::u16string& function,
                        const std::string& movie, int button) {
    SeenWindow seen;
    const ModalUser user(WindowTitled(title), [&](HWND window) {
      seen = Look(window);
      Press(window, button);
    });
    EXPECT_EQ(Call(function, movie), 1);
    return seen;
  }

  SeenWindow SeenMessage() {
    return SeenDuring(u"Zenvoka Kestrow", u"Publish", "gone/Game.qmv", IDOK);
  }
  SeenWindow SeenSheet() {
    return SeenDuring(u"TAV for Android Settings", u"OpenSettingDialog", "Game.qmv", IDCANCEL);
  }

  const ThreadAwareness unaware{DPI_AWARENESS_CONTEXT_UNAWARE};
  const TemporaryFolder folder;
  FakeHost host;
};

TEST_F(HostedLibraryTest, AMessageStandsOverTheHostsWindow) {
  const OwnerWindow window;

  const SeenWindow box = SeenMessage();

  EXPECT_EQ(box.owner, window.Window());
  EXPECT_FALSE(box.ownerEnabled);
  EXPECT_TRUE(IsWindowEnabled(window.Window()));
}

TEST_F(HostedLibraryTest, TheSheetStandsOverTheHostsWindow) {
  const OwnerWindow window;

  const SeenWindow sheet = SeenSheet();

  EXPECT_EQ(sheet.owner, window.Window());
  EXPECT_FALSE(sheet.ownerEnabled);
  EXPECT_TRUE(IsWindowEnabled(window.Window()));
}

TEST_F(HostedLibraryTest, ItsWindowsAreSharpInAHostThatIsScaled) {
  const OwnerWindow window;
  ASSERT_EQ(AwarenessOf(window.Window()), DPI_AWARENESS_UNAWARE);

  EXPECT_EQ(SeenMessage().awareness, DPI_AWARENESS_PER_MONITOR_AWARE);
  EXPECT_EQ(SeenSheet().awareness, DPI_AWARENESS_PER_MONITOR_AWARE);
}

TEST_F(HostedLibraryTest, TheHostsThreadIsScaledAsBeforeAfterwards) {
  const OwnerWindow window;

  SeenMessage();
  EXPECT_TRUE(ThreadIsUnaware());
  SeenSheet();
  EXPECT_TRUE(ThreadIsUnaware());
}

// A manifest with a program's number would serve the whole process of a program only.
TEST_F(HostedLibraryTest, ItsManifestHasTheNumberOfALibrarys) {
  EXPECT_NE(FindResourceW(Library(), MAKEINTRESOURCEW(2), RT_MANIFEST), nullptr);
  EXPECT_EQ(FindResourceW(Library(), MAKEINTRESOURCEW(1), RT_MANIFEST), nullptr);
}

}  // namespace
}  // namespace qutav::test
