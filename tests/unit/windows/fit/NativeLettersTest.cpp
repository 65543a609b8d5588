// Letters are drawn, not the boxes that stand for missing ones; or widths would mean nothing.
#include <set>

#include "AllDialogs.h"
#include "ServicesTest.h"
#include "TranslatedTexts.h"
#include "framework/windows/DialogFont.h"
#include "platform/Text.h"
#include "platform/windows/Wide.h"
#include "win/InterfaceLanguage.h"

namespace qutav::test {
namespace {

using ::testing::IsEmpty;

constexpr int kSide = 32;
constexpr char16_t kInNoFont = u'\uE000';

// A white square in memory.
class Canvas {
 public:
  Canvas() : context_(CreateCompatibleDC(nullptr)) {
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, kSide, kSide, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* pixels = nullptr;
    bitmap_ = CreateDIBSection(context_, &info, DIB_RGB_COLORS, &pixels, nullptr, 0);
    pixels_ = static_cast<const std::uint32_t*>(pixels);
    SelectObject(context_, bitmap_);
    SelectObject(context_, font_.Handle());
  }
  ~Canvas() {
    DeleteDC(context_);
    DeleteObject(bitmap_);
  }
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;

  std::vector<std::uint32_t> PictureOf(char16_t letter) {
    PatBlt(context_, 0, 0, kSide, kSide, WHITENESS);
    TextOutW(context_, 4, 4, Wide(std::u16string(1, letter)), 1);
    GdiFlush();
    return {pixels_, pixels_ + kSide * kSide};
  }

 private:
  DialogFont font_{96};
  HDC context_;
  HBITMAP bitmap_ = nullptr;
  const std::uint32_t* pixels_ = nullptr;
};

std::set<char16_t> LettersOfAllDialogs() {
  std::set<char16_t> letters;
  for (const auto& dialog : AllDialogs()) {
    std::u16string texts = dialog->Title();
    for (const auto& control : dialog->Controls()) texts += control->caption + control->text;
    letters.insert(texts.begin(), texts.end());
  }
  std::erase_if(letters, [](char16_t letter) { return letter <= u' '; });
  return letters;
}

class NativeLettersTest : public ServicesTest,
                          public ::testing::WithParamInterface<TranslatedTexts> {
 protected:
  NativeLettersTest() {
    host.languageCode = GetParam().code;
    EnterInterfaceLanguage(call);
  }

  HostCallContext call;
};

TEST_P(NativeLettersTest, NoLetterOfALanguageIsMissing) {
  Canvas canvas;
  const auto box = canvas.PictureOf(kInNoFont);

  std::u16string missing;
  for (const char16_t letter : LettersOfAllDialogs()) {
    if (canvas.PictureOf(letter) == box) missing += letter;
  }

  EXPECT_THAT(ToUtf8(missing), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(OfEveryRow, NativeLettersTest, ::testing::ValuesIn(kTranslatedTexts),
                         [](const auto& row) { return ToUtf8(row.param.code); });

}  // namespace
}  // namespace qutav::test
