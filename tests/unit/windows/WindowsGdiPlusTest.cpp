#include <gtest/gtest.h>

#include <filesystem>

#include "platform/windows/GdiPlus.h"
#include "platform/windows/System.h"
// behind the system's own header
#include <objidl.h>
// behind objidl.h
#include <gdiplus.h>

namespace qutav::test {
namespace {

TEST(WindowsGdiPlusTest, APictureCanBeMeasuredDuringASession) {
  const GdiPlusSession session;
  ASSERT_TRUE(session.IsRunning());
  const auto file = (std::filesystem::path(SAMPLES_FOLDER) / "Game" / "icons" / "icon144x144.png")
                        .make_preferred();

  Gdiplus::Bitmap picture(file.c_str());

  EXPECT_EQ(picture.GetLastStatus(), Gdiplus::Ok);
  EXPECT_EQ(picture.GetWidth(), 144u);
  EXPECT_EQ(picture.GetHeight(), 144u);
}

TEST(WindowsGdiPlusTest, SessionsNest) {
  const GdiPlusSession outer;
  {
    const GdiPlusSession inner;
    EXPECT_TRUE(inner.IsRunning());
  }

  Gdiplus::Bitmap picture(2, 3, PixelFormat32bppARGB);

  EXPECT_EQ(picture.GetWidth(), 2u);
}

}  // namespace
}  // namespace qutav::test
