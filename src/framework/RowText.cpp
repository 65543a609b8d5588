#include "framework/RowText.h"

#include <algorithm>

#include "platform/Text.h"

namespace qutav {

bool RowsEqual(std::u16string_view a, std::u16string_view b) {
  return a.size() == b.size() && RowBeginsWith(a, b);
}

int FindEqualRow(const std::vector<std::u16string>& rows, std::u16string_view text) {
  const auto found = std::find_if(rows.begin(), rows.end(),
                                  [&](const std::u16string& row) { return RowsEqual(row, text); });
  return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

bool RowBeginsWith(std::u16string_view row, std::u16string_view beginning) {
  return row.size() >= beginning.size() &&
         std::equal(beginning.begin(), beginning.end(), row.begin(),
                    [](char16_t a, char16_t b) { return ToLowerCase(a) == ToLowerCase(b); });
}

bool RowComesBefore(std::u16string_view a, std::u16string_view b) {
  return std::lexicographical_compare(
      a.begin(), a.end(), b.begin(), b.end(),
      [](char16_t x, char16_t y) { return ToLowerCase(x) < ToLowerCase(y); });
}

}  // namespace qutav
