#include "framework/CPropertySheet.h"

#include "platform/Services.h"

namespace qutav {

int CPropertySheet::DoModal() { return TheServices().frontEnd->RunModal(*this); }

}  // namespace qutav
