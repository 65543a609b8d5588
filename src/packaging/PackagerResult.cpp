#include "packaging/PackagerResult.h"

#include <algorithm>
#include <array>

#include "platform/Text.h"
#include "win/InterfaceLanguage.h"
#include "win/MessageIds.h"

namespace qutav {
namespace {

constexpr std::size_t kOutputLimit = 2000;
constexpr std::size_t kNotFound = std::u16string::npos;

struct ExitCodeText {
  std::int32_t exitCode;
  std::uint32_t head;
};

constexpr std::array<ExitCodeText, 5> kExitCodeTexts = {{
    {5, messages::kUnknownError},
    {6, messages::kDestinationNotWritable},
    {7, messages::kCertificateInaccessible},
    {8, messages::kCertificateInvalid},
    {9, messages::kSigningFailed},
}};

struct Pattern {
  const char16_t* phrase;
  std::uint32_t head;
};

constexpr char16_t kUnexpectedElementPhrase[] = u"error 103";
constexpr char16_t kInvalidValuePhrase[] = u"error 105";
constexpr char16_t kPasswordPhrase[] = u"password may be incorrect";

// In the order in which they are looked for.
constexpr std::array<Pattern, 18> kPatterns = {{
    {u"error 100", messages::kDescriptorCannotBeParsed},
    {u"error 101", messages::kNamespaceMissing},
    {u"error 102", messages::kNamespaceInvalid},
    {kUnexpectedElementPhrase, messages::kUnexpectedElement},
    {u"error 104", messages::kRequiredElementMissing},
    {kInvalidValuePhrase, messages::kInvalidValue},
    {u"error 106", messages::kIllegalWindow},
    {u"error 107", messages::kMinSizeAboveMaxSize},
    {u"error 200", messages::kIconCannotBeOpened},
    {u"error 201", messages::kIconDimensions},
    {u"error 202", messages::kIconFormat},
    {u"error 300", messages::kFileMissing},
    {u"error 301", messages::kDescriptorMissing},
    {u"error 302", messages::kRootContentMissing},
    {u"error 303", messages::kIconMissing},
    {u"error 304", messages::kMovieInvalid},
    {u"error 305", messages::kMovieVersionTooHigh},
    {kPasswordPhrase, messages::kKeystorePassword},
}};

// The file that the tool misses stands between its words and its usage text.
PackagerResult ClassifyUsageError(const std::u16string& output) {
  constexpr std::u16string_view kMissing = u"no such file ";
  const std::size_t missing = output.find(kMissing);
  const std::size_t usage = output.find(u"\nusage:");
  const bool named =
      missing != kNotFound && usage != kNotFound && usage > missing + kMissing.size();
  if (!named) return {Message(messages::kUsageError), u"\n" + output};
  const std::size_t start = missing + kMissing.size();
  // The character before the line feed is the carriage return.
  return {Message(messages::kFileMissing), u"\n(" + output.substr(start, usage - start - 1) + u")"};
}

// The element whose value is invalid stands between the code and the word "contains".
std::u16string InvalidValueDetail(const std::u16string& output) {
  constexpr std::size_t kCode = 11;  // "error 105:" and a blank
  const std::size_t code = output.find(u"error 105:");
  const std::size_t contains = output.find(u"contains");
  if (code == kNotFound || contains == kNotFound || contains <= code + kCode + 1) return {};
  return u"\n(" + output.substr(code + kCode, contains - code - kCode - 1) + u")";
}

std::u16string DetailOf(const Pattern& pattern, const std::u16string& output, std::size_t at) {
  if (pattern.phrase == kInvalidValuePhrase) return InvalidValueDetail(output);
  if (pattern.phrase != kUnexpectedElementPhrase) return {};
  const std::size_t behind = at + std::u16string_view(pattern.phrase).size() + 1;
  return u"\n" + (behind < output.size() ? output.substr(behind) : u"");
}

PackagerResult ClassifyByPattern(const std::u16string& output) {
  for (const Pattern& pattern : kPatterns) {
    const std::size_t at = output.find(pattern.phrase);
    // A phrase at the very start of the output does not count.
    if (at == kNotFound || at == 0) continue;
    return {Message(pattern.head), DetailOf(pattern, output, at)};
  }
  return {output, u""};
}

void CleanUpDetail(std::u16string& detail) {
  if (detail.empty()) return;
  if (const std::size_t usage = detail.find(u"usage:"); usage != kNotFound) detail.erase(usage);
  if (detail.find(kPasswordPhrase) != kNotFound) {
    detail = u"\n" + Message(messages::kKeystorePassword);
  }
}

PackagerResult Classify(std::int32_t exitCode, const std::u16string& output) {
  if (exitCode == 2) return ClassifyUsageError(output);
  const auto text = std::find_if(kExitCodeTexts.begin(), kExitCodeTexts.end(),
                                 [&](const ExitCodeText& row) { return row.exitCode == exitCode; });
  if (text != kExitCodeTexts.end()) return {Message(text->head), u"\n" + output};
  return ClassifyByPattern(output);
}

}  // namespace

PackagerResult ClassifyPackagerOutput(std::int32_t exitCode, const std::u16string& output) {
  if (exitCode == kTimestampServerUnreachable) return {};
  PackagerResult result = Classify(exitCode, output.substr(0, kOutputLimit));
  CleanUpDetail(result.detail);
  return result;
}

std::u16string PackagerReport(std::int32_t exitCode, bool postPublishOk,
                              const PackagerResult& result) {
  std::u16string prefix;
  if (exitCode == 0) {
    prefix = Message(messages::kPackagedWithWarning);
  } else if (postPublishOk) {
    prefix = Message(messages::kErrorCreatingFiles);
  }
  return prefix + result.head + result.detail;
}

}  // namespace qutav
