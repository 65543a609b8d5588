#include "PngBytes.h"
#include "ServicesTest.h"
#include "TemporaryFolder.h"
#include "platform/Images.h"
#include "platform/windows/SystemServices.h"

namespace qutav::test {
namespace {

using namespace std::string_literals;
using ::testing::ElementsAre;

class WindowsImagesTest : public ServicesTest {
 protected:
  WindowsImagesTest() { TheServices().files = &SystemFiles(); }

  std::shared_ptr<const Image> Load(const std::string& bytes, const std::string& name = "a.png") {
    folder.Put(name, bytes);
    return SystemImages().Load(folder.Path(name));
  }

  TemporaryFolder folder;
};

TEST_F(WindowsImagesTest, PixelsComeRowByRowWithTheirOpacity) {
  const auto image = Load(PngBytes({.width = 2, .height = 2},
                                   "\0\xFF\x00\x00\xFF\x00\xFF\x00\x80"
                                   "\0\x00\x00\xFF\x00\x12\x34\x56\xFF"s));

  ASSERT_NE(image, nullptr);
  EXPECT_EQ(image->width, 2);
  EXPECT_EQ(image->height, 2);
  EXPECT_THAT(image->pixels, ElementsAre(0xFFFF0000, 0x8000FF00, 0x000000FF, 0xFF123456));
}

TEST_F(WindowsImagesTest, AnImageThatIsNoSquareHasBothItsSides) {
  const auto image =
      Load(PngBytes({.width = 3, .height = 1, .colour = PngColour::kRgb}, "\0aaabbbccc"s));

  ASSERT_NE(image, nullptr);
  EXPECT_EQ(image->width, 3);
  EXPECT_EQ(image->height, 1);
  EXPECT_THAT(image->pixels, ElementsAre(0xFF616161, 0xFF626262, 0xFF636363));
}

TEST_F(WindowsImagesTest, AnIconOfEveryOfferedSizeIsRead) {
  for (const int side : {36, 48, 72, 96, 144, 192}) {
    const auto image = Load(SquarePng(static_cast<std::uint32_t>(side)));

    ASSERT_NE(image, nullptr) << side;
    EXPECT_EQ(image->width, side);
    EXPECT_EQ(image->height, side);
    EXPECT_EQ(image->pixels.back(), 0xFF102030);
  }
}

TEST_F(WindowsImagesTest, APaletteIsLookedUp) {
  const PngHeader header{.width = 2, .height = 1, .bitDepth = 1, .colour = PngColour::kPalette};

  const auto image = Load(PngBytes(header, "\0\x40"s, "\x01\x02\x03\xF1\xF2\xF3"));

  ASSERT_NE(image, nullptr);
  EXPECT_THAT(image->pixels, ElementsAre(0xFF010203, 0xFFF1F2F3));
}

TEST_F(WindowsImagesTest, GreyLevelsBecomeColours) {
  const auto image =
      Load(PngBytes({.width = 2, .height = 1, .colour = PngColour::kGrey}, "\0\x00\x7F"s));

  ASSERT_NE(image, nullptr);
  EXPECT_THAT(image->pixels, ElementsAre(0xFF000000, 0xFF7F7F7F));
}

TEST_F(WindowsImagesTest, OfSixteenBitsTheUpperEightCount) {
  const PngHeader header{.width = 1, .height = 1, .bitDepth = 16, .colour = PngColour::kRgb};

  const auto image = Load(PngBytes(header, "\0\x40\x40\x80\x80\xC0\xC0"s));

  ASSERT_NE(image, nullptr);
  EXPECT_THAT(image->pixels, ElementsAre(0xFF4080C0));
}

TEST_F(WindowsImagesTest, AnInterlacedImageIsPutTogether) {
  const PngHeader header{.width = 2, .height = 2, .colour = PngColour::kGrey, .interlaced = true};

  // The first pass brings the upper left pixel, the sixth its neighbour, the seventh the next row.
  const auto image = Load(PngBytes(header, "\0\x01\0\x02\0\x03\x04"s));

  ASSERT_NE(image, nullptr);
  EXPECT_THAT(image->pixels, ElementsAre(0xFF010101, 0xFF020202, 0xFF030303, 0xFF040404));
}

TEST_F(WindowsImagesTest, ATruncatedFileIsNoImageWhereverItEnds) {
  const std::string whole = SquarePng(4);
  const std::size_t endOfPixels = whole.size() - 12;  // the end chunk is not needed

  for (std::size_t size = 0; size < endOfPixels; ++size) {
    EXPECT_EQ(Load(whole.substr(0, size)), nullptr) << size;
  }
}

TEST_F(WindowsImagesTest, PixelsThatDoNotUnpackAreNoImage) {
  const std::string bytes = std::string(kPngSignature) + PngHeaderChunk({}) +
                            PngChunk("IDAT", "no deflated stream") + PngChunk("IEND", "");

  EXPECT_EQ(Load(bytes), nullptr);
}

TEST_F(WindowsImagesTest, AFileOfAnotherKindIsNoImageWhateverItsName) {
  EXPECT_EQ(Load("Notes about an icon.\n"), nullptr);
  EXPECT_EQ(Load("\xFF\xD8\xFF\xE0 JFIF"), nullptr);
  EXPECT_EQ(Load(""), nullptr);
}

// GDI+ reads bitmaps, too.
TEST_F(WindowsImagesTest, ABitmapIsNoImage) {
  const std::string bitmap =
      "BM\x3A\0\0\0\0\0\0\0\x36\0\0\0"
      "\x28\0\0\0\x01\0\0\0\x01\0\0\0\x01\0\x18\0\0\0\0\0\x04\0\0\0"
      "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"
      "\x30\x20\x10\0"s;

  EXPECT_EQ(Load(bitmap), nullptr);
}

TEST_F(WindowsImagesTest, TheNameOfAFileDoesNotMatter) {
  EXPECT_NE(Load(SquarePng(36), "icon.txt"), nullptr);
}

TEST_F(WindowsImagesTest, AMissingFileOrAFolderIsNoImage) {
  EXPECT_EQ(SystemImages().Load(folder.Path("missing.png")), nullptr);
  EXPECT_EQ(SystemImages().Load(folder.Path(".")), nullptr);
}

TEST_F(WindowsImagesTest, AnImageThatClaimsToBeHugeIsNotRead) {
  const PngHeader huge{.width = 100000, .height = 100000};

  EXPECT_EQ(Load(PngBytes(huge, "\0\x01\x02\x03\x04"s)), nullptr);
}

TEST_F(WindowsImagesTest, TheGreatestSideIsReadAndOneMoreIsNot) {
  const PngHeader widest{.width = 8192, .height = 1, .colour = PngColour::kGrey};
  const PngHeader tooWide{.width = 8193, .height = 1, .colour = PngColour::kGrey};
  const PngHeader tooHigh{.width = 1, .height = 8193, .colour = PngColour::kGrey};

  EXPECT_NE(Load(PngBytes(widest, std::string(8193, '\0'))), nullptr);
  EXPECT_EQ(Load(PngBytes(tooWide, std::string(8194, '\0'))), nullptr);
  EXPECT_EQ(Load(PngBytes(tooHigh, std::string(std::size_t{2} * 8193, '\0'))), nullptr);
}

TEST_F(WindowsImagesTest, ALoadedFileIsNotHeldOpen) {
  const auto image = Load(SquarePng(36));

  ASSERT_NE(image, nullptr);
  EXPECT_TRUE(std::filesystem::remove(folder.Native("a.png")));
}

}  // namespace
}  // namespace qutav::test
