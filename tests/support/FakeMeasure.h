// A font in which every character is equally wide, East Asian ones twice as wide.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "framework/Layout.h"

namespace qutav::test {

class FakeMeasure final : public LayoutMeasure {
 public:
  explicit FakeMeasure(int characterWidth = 6, int characterHeight = 13, int percent = 100)
      : characterWidth_(characterWidth), characterHeight_(characterHeight), percent_(percent) {}

  int Horizontal(int dialogUnits) const override { return (dialogUnits * characterWidth_ + 2) / 4; }
  int Vertical(int dialogUnits) const override { return (dialogUnits * characterHeight_ + 4) / 8; }
  int Scaled(int pixels) const override { return pixels * percent_ / 100; }
  int TextWidth(const std::u16string& text) const override {
    int width = 0;
    for (const char16_t unit : text) width += IsWide(unit) ? 2 * characterWidth_ : characterWidth_;
    return width;
  }
  int TextHeight(const std::u16string& text, int width) const override {
    return static_cast<int>(Lines(text, width).size()) * characterHeight_;
  }
  /// False for a text that is cut in a rectangle.
  bool Fits(const std::u16string& text, int width, int height) const {
    const std::vector<std::u16string> lines = Lines(text, width);
    return TextHeight(text, width) <= height &&
           std::all_of(lines.begin(), lines.end(),
                       [&](const std::u16string& line) { return TextWidth(line) <= width; });
  }
  /// As a text wraps; a word that is too wide stays whole.
  std::vector<std::u16string> Lines(const std::u16string& text, int width) const {
    std::vector<std::u16string> lines(1);
    std::u16string blanks;
    for (const std::u16string& word : Words(text)) {
      if (word == u" ") {
        blanks += word;
        continue;
      }
      const bool fits = TextWidth(lines.back() + blanks + word) <= width;
      if (fits || lines.back().empty()) {
        lines.back() += blanks + word;
      } else {
        lines.push_back(word);
      }
      blanks.clear();
    }
    return lines;
  }

 private:
  static bool IsWide(char16_t unit) { return unit >= 0x2E80; }
  static std::vector<std::u16string> Words(const std::u16string& text) {
    std::vector<std::u16string> words;
    bool goesOn = false;
    for (const char16_t unit : text) {
      if (!goesOn || unit == u' ') words.emplace_back();
      words.back() += unit;
      goesOn = unit != u' ' && !IsWide(unit);
    }
    return words;
  }

  int characterWidth_;
  int characterHeight_;
  int percent_;
};

}  // namespace qutav::test
