#include "support/NameRules.h"

#include <algorithm>

#include "platform/Text.h"

namespace qutav {
namespace {

constexpr std::size_t kLongestId = 212;
constexpr std::size_t kLongestFileTypeText = 38;

bool IsLetterOrDigit(char16_t unit) {
  return IsDigit(unit) || (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z');
}

bool IsLetterDigitOrDot(char16_t unit) { return unit == u'.' || IsLetterOrDigit(unit); }

bool HasLength(const std::u16string& text, std::size_t longest) {
  return !text.empty() && text.size() <= longest;
}

}  // namespace

bool IsValidApplicationId(const std::u16string& text) {
  return HasLength(text, kLongestId) && std::all_of(text.begin(), text.end(), IsLetterDigitOrDot);
}

bool IsValidFileExtension(const std::u16string& text) {
  return HasLength(text, kLongestFileTypeText) &&
         std::all_of(text.begin(), text.end(), IsLetterOrDigit);
}

bool IsValidFileTypeName(const std::u16string& text) {
  return HasLength(text, kLongestFileTypeText) && text.front() != u'.' && !IsDigit(text.front()) &&
         std::all_of(text.begin(), text.end(), IsLetterDigitOrDot);
}

}  // namespace qutav
