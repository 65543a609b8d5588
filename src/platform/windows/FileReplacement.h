// Replacing a file as a whole.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/windows/System.h"

namespace qutav {

/// Fills a new file beside `target` and puts it in the target's place (`MoveFileExW`): a reader
/// sees the old content or the new, never a part. A link is followed, and an existing file keeps
/// its access rights and attributes. Returns ERROR_SUCCESS, or the error of the step that failed;
/// nothing has changed then.
DWORD ReplaceFileWhole(const std::u16string& target, const std::function<bool(HANDLE file)>& fill);

/// Writes all bytes to a file; false, and the thread's last error tells why, when the system takes
/// less.
bool WriteAll(HANDLE file, std::string_view bytes);

}  // namespace qutav
