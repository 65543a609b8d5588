#include "support/HelpLinks.h"

#include "platform/Services.h"

namespace qutav {
namespace {

constexpr char16_t kHelpHost[] = u"https://www.zenvoka.example";

}  // namespace

void OpenHelpLink(const std::u16string& path) {
  TheServices().frontEnd->OpenLink(kHelpHost + path);
}

}  // namespace qutav
