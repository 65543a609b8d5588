// How the rows of lists and combos are compared: without regard to case.
#pragma once

#include <string_view>

namespace qutav {

bool RowsEqual(std::u16string_view a, std::u16string_view b);
bool RowBeginsWith(std::u16string_view row, std::u16string_view beginning);
/// The order of a sorted combo.
bool RowComesBefore(std::u16string_view a, std::u16string_view b);

}  // namespace qutav
