#include "settings_ui/ProvisioningProfile.h"

#include <algorithm>
#include <stdexcept>

#include "descriptor/DescriptorDocument.h"
#include "platform/Services.h"
#include "support/Paths.h"

namespace qutav {
namespace {

constexpr std::string_view kListBegin = "<plist";
constexpr std::string_view kListEnd = "</plist>";
constexpr char16_t kTemporaryName[] = u"temp_xml_provision_file.xml";

std::size_t CommonLength(const std::u16string& a, const std::u16string& b) {
  const auto difference = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
  return static_cast<std::size_t>(difference.first - a.begin());
}

}  // namespace

std::string CutPropertyList(std::string_view profile) {
  const std::size_t begin = profile.find(kListBegin);
  if (begin == profile.npos) throw std::out_of_range("invalid string position");
  const std::size_t end = profile.find(kListEnd);
  // Without an end, or with one before the beginning, this wraps around: in most cases to more than
  // there is.
  const std::size_t length = end - begin + kListEnd.size();
  return std::string(profile.substr(begin, length));
}

std::optional<std::u16string> ReadProvisioningProfile(const std::u16string& path) {
  Files& files = *TheServices().files;
  const std::string list = CutPropertyList(files.Read(path).value_or(""));
  const std::u16string temporary = MovieFolder() + kTemporaryName;
  files.Write(temporary, list);
  DescriptorDocument document;
  document.InitParser();
  std::optional<std::u16string> identifier;
  // A list is no descriptor, so other results say nothing. What a list that does not parse leaves
  // in the document may hold the key all the same.
  if (document.Load(temporary) != kLoadFailed) identifier = document.ReadApplicationIdentifier();
  document.Close();
  files.Delete(temporary);
  return identifier;
}

std::u16string CoveredApplicationId(const std::u16string& identifier,
                                    const std::u16string& applicationId) {
  if (identifier == u"*") return applicationId;
  if (identifier.find(u'*') == identifier.npos) return identifier;
  // The asterisk is expected at the end, without a look. An App ID that begins with all that stands
  // before it comes out as it was.
  const std::u16string stem = identifier.substr(0, identifier.size() - 1);
  return stem + applicationId.substr(CommonLength(stem, applicationId));
}

}  // namespace qutav
