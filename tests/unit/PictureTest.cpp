#include <gtest/gtest.h>

#include "framework/Picture.h"

namespace qutav::test {
namespace {

class PictureTest : public ::testing::Test {
 protected:
  Picture picture;
  std::shared_ptr<const Image> image = std::make_shared<Image>();
};

TEST_F(PictureTest, StartsWhiteAndEmpty) {
  EXPECT_EQ(picture.Background(), 0xFFFFFFFFu);
  EXPECT_EQ(picture.Painted(), nullptr);
  EXPECT_EQ(picture.Target().Width(), 0);
}

TEST_F(PictureTest, ShowsAnImageInItsRectangle) {
  picture.Paint(image, {10, 20, 58, 68});

  EXPECT_EQ(picture.Painted(), image);
  EXPECT_EQ(picture.Target().left, 10);
  EXPECT_EQ(picture.Target().top, 20);
  EXPECT_EQ(picture.Target().Width(), 48);
  EXPECT_EQ(picture.Target().Height(), 48);
  EXPECT_EQ(picture.Background(), kWhite);
}

TEST_F(PictureTest, AnImageTakesThePlaceOfTheOneBefore) {
  const auto next = std::make_shared<const Image>();
  picture.Paint(image, {0, 0, 48, 48});

  picture.Paint(next, {0, 0, 36, 36});

  EXPECT_EQ(picture.Painted(), next);
  EXPECT_EQ(picture.Target().Width(), 36);
}

TEST_F(PictureTest, AClearingCoversWhatWasPainted) {
  picture.Paint(image, {10, 20, 58, 68});

  picture.Clear(kLightGrey);

  EXPECT_EQ(picture.Background(), 0xFFF5F5F5u);
  EXPECT_EQ(picture.Painted(), nullptr);
  EXPECT_EQ(picture.Target().Width(), 0);
  EXPECT_EQ(image.use_count(), 1);
}

TEST_F(PictureTest, AnImageIsPaintedOverTheClearedArea) {
  picture.Clear(kLightGrey);

  picture.Paint(image, {0, 0, 36, 36});

  EXPECT_EQ(picture.Background(), kLightGrey);
  EXPECT_EQ(picture.Painted(), image);
}

}  // namespace
}  // namespace qutav::test
