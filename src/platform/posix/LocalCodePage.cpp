#include "platform/Text.h"

namespace qutav {

std::string ToLocalCodePage(std::u16string_view text) { return ToUtf8(text); }

std::u16string FromLocalCodePage(std::string_view bytes) { return FromUtf8(bytes); }

}  // namespace qutav
