// Which look and which resolution windows of a thread get, ours and the host's.
#include "ServicesTest.h"
#include "framework/windows/NativeFrontEnd.h"
#include "framework/windows/WindowScope.h"

namespace qutav::test {
namespace {

class WindowScopeTest : public ::testing::Test {
 protected:
  WindowScopeTest() : former_(SetThreadDpiAwarenessContext(DPI_AWARENESS_CONTEXT_UNAWARE)) {}
  ~WindowScopeTest() override { SetThreadDpiAwarenessContext(former_); }

  static bool IsPerMonitor() {
    return GetAwarenessFromDpiAwarenessContext(GetThreadDpiAwarenessContext()) ==
           DPI_AWARENESS_PER_MONITOR_AWARE;
  }
  static bool IsUnaware() {
    return GetAwarenessFromDpiAwarenessContext(GetThreadDpiAwarenessContext()) ==
           DPI_AWARENESS_UNAWARE;
  }
  static bool HasContext() {
    HANDLE context = nullptr;
    GetCurrentActCtx(&context);
    if (context != nullptr) ReleaseActCtx(context);
    return context != nullptr;
  }

 private:
  DPI_AWARENESS_CONTEXT former_;
};

TEST_F(WindowScopeTest, WindowsOfOursAreDrawnForTheirMonitorAndTheHostsAsBefore) {
  {
    const WindowScope scope;
    EXPECT_TRUE(IsPerMonitor());
    EXPECT_TRUE(HasContext());
  }
  EXPECT_TRUE(IsUnaware());
  EXPECT_FALSE(HasContext());
}

TEST_F(WindowScopeTest, AScopeInAScopeLeavesTheOuterOneInForce) {
  const WindowScope outer;
  { const WindowScope inner; }
  EXPECT_TRUE(IsPerMonitor());
  EXPECT_TRUE(HasContext());
}

TEST_F(WindowScopeTest, TheHostIsCalledAtItsOwnResolutionFromWithinAScope) {
  const WindowScope outer;
  const WindowScope inner;
  bool called = false;
  NativeFrontEnd().CallHost([&] {
    called = true;
    EXPECT_TRUE(IsUnaware());
  });
  EXPECT_TRUE(called);
  EXPECT_TRUE(IsPerMonitor());
  EXPECT_TRUE(HasContext());
}

}  // namespace
}  // namespace qutav::test
