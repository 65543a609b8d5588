#include "settings_ui/LanguagesDlg.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "descriptor/DescriptorDocument.h"
#include "framework/layout/Parts.h"
#include "platform/Text.h"
#include "settings_ui/DialogTexts.h"
#include "win/InterfaceLanguage.h"
#include "win/MessageIds.h"

namespace qutav {
namespace {

struct LanguageRow {
  std::uint32_t nameId;
  std::u16string_view code;
};

// English first, then by the English names, in every interface language.
constexpr std::array<LanguageRow, 18> kLanguageRows = {{
    {messages::kEnglishName, u"en"},
    {messages::kChinese, u"zh"},
    {messages::kCzech, u"cs"},
    {messages::kDanish, u"da"},
    {messages::kDutch, u"nl"},
    {messages::kFrench, u"fr"},
    {messages::kGerman, u"de"},
    {messages::kHebrew, u"iw"},
    {messages::kItalian, u"it"},
    {messages::kJapanese, u"ja"},
    {messages::kKorean, u"ko"},
    {messages::kNorwegian, u"nb"},
    {messages::kPolish, u"pl"},
    {messages::kPortuguese, u"pt"},
    {messages::kRussian, u"ru"},
    {messages::kSpanish, u"es"},
    {messages::kSwedish, u"sv"},
    {messages::kTurkish, u"tr"},
}};

constexpr char kElement[] = "supportedLanguages";

// -1 for a code that no row has.
int RowOfCode(std::u16string_view code) {
  const auto* found = std::find_if(kLanguageRows.begin(), kLanguageRows.end(),
                                   [&](const LanguageRow& row) { return row.code == code; });
  return found == kLanguageRows.end() ? -1 : static_cast<int>(found - kLanguageRows.begin());
}

// Between blanks; a tab or a line break is part of a token.
std::vector<std::u16string> SplitAtBlanks(const std::u16string& text) {
  std::vector<std::u16string> tokens(1);
  for (const char16_t unit : text) {
    if (unit == u' ') {
      tokens.emplace_back();
    } else {
      tokens.back() += unit;
    }
  }
  return tokens;
}

}  // namespace

CLanguagesDlg::CLanguagesDlg()
    : CPropertyPage(u"CLanguagesDlg", u"Languages", texts::kLanguagesTitle) {
  using namespace layout;
  auto& invitation =
      Add<Label>(u"Select the languages below that will be supported in your application:",
                 texts::kLanguagesInvitation);
  list_ = &Add<CheckList>(u"Supported Languages", messages::kSupportedLanguages);
  list_->fullRowSelect = true;
  SetLayout(Column({Wrapped(invitation, 260), List(*list_, 12, 200)}));
}

bool CLanguagesDlg::OnInitDialog() {
  FillLanguages();
  initialised = true;
  return CPropertyPage::OnInitDialog();
}

void CLanguagesDlg::FillLanguages() {
  list_->DeleteAllRows();
  for (const LanguageRow& row : kLanguageRows) list_->InsertRow(Message(row.nameId));
  std::string codes;
  CurrentDescriptor.GetTextNarrow(kElement, codes);
  for (const std::u16string& code : SplitAtBlanks(FromLocalCodePage(codes))) {
    const int row = RowOfCode(code);
    if (row >= 0) list_->SetCheck(row, true);
  }
}

void CLanguagesDlg::SaveLanguages() {
  std::u16string codes;
  for (int row = 0; row < list_->GetCount(); ++row) {
    if (!list_->IsChecked(row)) continue;
    codes += kLanguageRows.at(static_cast<std::size_t>(row)).code;
    codes += u' ';
  }
  if (codes.empty()) {
    CurrentDescriptor.RemoveChild("application", kElement);
    return;
  }
  codes.pop_back();
  CurrentDescriptor.SetText(kElement, codes);
}

}  // namespace qutav
