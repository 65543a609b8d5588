// The one place where Windows-form text becomes a path of this system and back.
#pragma once

#include <string>
#include <string_view>

namespace qutav {

/// `\home\u\Game.qmv` and `/home/u/Game.qmv` both give "/home/u/Game.qmv" in UTF-8.
std::string NativePath(std::u16string_view path);

/// "/home/u/Game.qmv" gives `\home\u\Game.qmv`.
std::u16string WindowsForm(std::string_view path);

}  // namespace qutav
