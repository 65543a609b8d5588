#pragma once

#include <string>
#include <string_view>

namespace qutav::host {

/// The file URI of an absolute path in Windows form: `\home\u\My Game.qmv` gives
/// `file:///home/u/My%20Game.qmv`, `C:\Game.qmv` gives `file:///C:/Game.qmv`. The result is ASCII.
std::u16string FileUriOf(std::u16string_view nativePath);

/// The path in Windows form that a file URI names. Text that is no file URI is taken as a path.
/// A percent sign that begins no escape stands for itself.
std::u16string PathOfFileUri(std::u16string_view uri);

}  // namespace qutav::host
