#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <set>
#include <vector>

#include "framework/windows/ButtonImages.h"
#include "platform/windows/GdiPlus.h"

namespace qutav::test {
namespace {

using Pixels = std::vector<std::uint32_t>;

constexpr std::uint32_t kBackground = 0x00F0F0F0;
constexpr std::uint32_t kFace = 0x00FDFDFD;
constexpr std::uint32_t kAccent = 0x000067C0;
constexpr ButtonImage kImages[] = {ButtonImage::kBrowse,    ButtonImage::kAddFile,
                                   ButtonImage::kAddFolder, ButtonImage::kAdd,
                                   ButtonImage::kEdit,      ButtonImage::kDelete};
constexpr ButtonBitmap kLooks[] = {ButtonBitmap::kNormal, ButtonBitmap::kSelected,
                                   ButtonBitmap::kFocused, ButtonBitmap::kDisabled};
/// A button at 96, 144 and 192 dots per inch.
constexpr int kSides[] = {24, 36, 48};

/// A picture in memory that can be drawn upon.
class Canvas {
 public:
  Canvas(int width, int height) : width_(width) {
    BITMAPINFO info{};
    info.bmiHeader = {sizeof(BITMAPINFOHEADER), width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    bitmap_ = CreateDIBSection(context_, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    before_ = SelectObject(context_, bitmap_);
    pixels_ = static_cast<std::uint32_t*>(bits);
    count_ = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    std::fill_n(pixels_, count_, kBackground);
  }
  ~Canvas() {
    SelectObject(context_, before_);
    DeleteObject(bitmap_);
    DeleteDC(context_);
  }
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;

  HDC Context() const { return context_; }
  Pixels Copy() const {
    GdiFlush();
    Pixels pixels(pixels_, pixels_ + count_);
    for (std::uint32_t& pixel : pixels) pixel &= 0x00FFFFFF;
    return pixels;
  }
  std::uint32_t At(int x, int y) const {
    return Copy()[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
                  static_cast<std::size_t>(x)];
  }

 private:
  int width_;
  HDC context_ = CreateCompatibleDC(nullptr);
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ before_ = nullptr;
  std::uint32_t* pixels_ = nullptr;
  std::size_t count_ = 0;
};

class ButtonImagesTest : public ::testing::Test {
 protected:
  static Pixels Drawn(int side, ButtonImage image, ButtonBitmap look) {
    const Canvas canvas(side, side);
    DrawButtonImage(canvas.Context(), {0, 0, side, side}, image, look);
    return canvas.Copy();
  }

 private:
  GdiPlusSession gdiPlus_;
};

TEST_F(ButtonImagesTest, EachImageDiffersFromTheOthersInEachLookAndSize) {
  for (const int side : kSides) {
    std::set<Pixels> pictures;
    for (const ButtonImage image : kImages) {
      for (const ButtonBitmap look : kLooks) pictures.insert(Drawn(side, image, look));
    }
    EXPECT_EQ(pictures.size(), 24u) << side;
  }
}

TEST_F(ButtonImagesTest, NothingStandsOutsideTheRectangle) {
  for (const int side : kSides) {
    for (const ButtonImage image : kImages) {
      for (const ButtonBitmap look : kLooks) {
        const Canvas canvas(side + 10, side + 10);
        DrawButtonImage(canvas.Context(), {5, 5, side + 5, side + 5}, image, look);
        const Pixels pixels = canvas.Copy();
        const auto line = static_cast<std::size_t>(side + 10);
        for (std::size_t i = 0; i < pixels.size(); ++i) {
          const std::size_t x = i % line;
          const std::size_t y = i / line;
          const bool isInside = x >= 5 && x < line - 5 && y >= 5 && y < line - 5;
          ASSERT_TRUE(isInside || pixels[i] == kBackground) << side << ": " << x << ", " << y;
        }
      }
    }
  }
}

TEST_F(ButtonImagesTest, WithoutALookNothingIsDrawn) {
  EXPECT_EQ(Drawn(24, ButtonImage::kAdd, ButtonBitmap::kNone), Pixels(24 * 24, kBackground));
}

TEST_F(ButtonImagesTest, AnEmptyRectangleIsLeftAlone) {
  const Canvas canvas(24, 24);

  DrawButtonImage(canvas.Context(), {12, 12, 12, 20}, ButtonImage::kAdd, ButtonBitmap::kNormal);

  EXPECT_EQ(canvas.Copy(), Pixels(24 * 24, kBackground));
}

TEST_F(ButtonImagesTest, AStraightLineHasOneSoftPixelOnEachSideAtMost) {
  for (const int side : kSides) {
    const Canvas canvas(side, side);
    DrawButtonImage(canvas.Context(), {0, 0, side, side}, ButtonImage::kAdd, ButtonBitmap::kNormal);
    int solid = 0;
    int soft = 0;
    // Across the upright bar of the plus.
    for (int x = side / 4; x < side * 3 / 4; ++x) {
      const std::uint32_t color = canvas.At(x, side * 3 / 8);
      if (color == kAccent) ++solid;
      if (color != kAccent && color != kFace) ++soft;
    }
    EXPECT_EQ(solid, side / 12 - 1) << side;
    EXPECT_LE(soft, 2) << side;
  }
}

TEST_F(ButtonImagesTest, TheCornersOfAButtonShowWhatIsBehindIt) {
  for (const ButtonBitmap look : kLooks) {
    EXPECT_EQ(Drawn(24, ButtonImage::kEdit, look).front(), kBackground);
  }
}

TEST_F(ButtonImagesTest, APictureStandsInTheMiddleOfAWideButton) {
  const Canvas canvas(48, 24);
  DrawButtonImage(canvas.Context(), {0, 0, 48, 24}, ButtonImage::kAdd, ButtonBitmap::kNormal);

  EXPECT_EQ(canvas.At(23, 11), kAccent);
  EXPECT_EQ(canvas.At(12, 11), kFace);
  EXPECT_EQ(canvas.At(36, 11), kFace);
}

}  // namespace
}  // namespace qutav::test
