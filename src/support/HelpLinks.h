// Pages of the maker's web site.
#pragma once

#include <string>

namespace qutav {

inline constexpr char16_t kAndroidHelp[] = u"/go/learn_tav_android_using_quorl_vr5_5_en";
inline constexpr char16_t kIosHelp[] = u"/go/learn_TAV_for_iOS_quorl_en";

/// Opens a page of the maker's site, named by its path, in the default browser.
void OpenHelpLink(const std::u16string& path);

}  // namespace qutav
