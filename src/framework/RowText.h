// How the rows of lists and combos are compared: without regard to case.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qutav {

bool RowsEqual(std::u16string_view a, std::u16string_view b);
/// The first row that equals a text, -1 without one.
int FindEqualRow(const std::vector<std::u16string>& rows, std::u16string_view text);
bool RowBeginsWith(std::u16string_view row, std::u16string_view beginning);
/// The order of a sorted combo.
bool RowComesBefore(std::u16string_view a, std::u16string_view b);

}  // namespace qutav
