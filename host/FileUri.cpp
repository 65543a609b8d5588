#include "host/FileUri.h"

#include <algorithm>
#include <cstddef>

#include "host/TextEncoding.h"

namespace qutav::host {
namespace {

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

bool IsUnreserved(char c) {
  return IsLetter(c) || (c >= '0' && c <= '9') ||
         std::string_view("-._~/").find(c) != std::string_view::npos;
}

// Only a drive's colon is written as it stands, so that a POSIX folder named "C:" cannot come
// back as a drive.
bool BeginsWithDrive(std::string_view path) {
  return path.size() >= 2 && IsLetter(path[0]) && (path[1] == ':' || path[1] == '|');
}

std::string PercentEncode(std::string_view text) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string out;
  for (const char c : text) {
    if (IsUnreserved(c)) {
      out += c;
      continue;
    }
    const auto byte = static_cast<unsigned char>(c);
    out += '%';
    out += kDigits[byte >> 4];
    out += kDigits[byte & 15];
  }
  return out;
}

int HexValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

std::string PercentDecode(std::string_view text) {
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool escape = text[i] == '%' && i + 2 < text.size() && HexValue(text[i + 1]) >= 0 &&
                        HexValue(text[i + 2]) >= 0;
    if (!escape) {
      out += text[i];
      continue;
    }
    out += static_cast<char>(HexValue(text[i + 1]) * 16 + HexValue(text[i + 2]));
    i += 2;
  }
  return out;
}

bool HasFileScheme(std::string_view uri) {
  constexpr std::string_view kScheme = "file:";
  if (uri.size() < kScheme.size()) return false;
  return std::equal(kScheme.begin(), kScheme.end(), uri.begin(),
                    [](char wanted, char c) { return wanted == c || wanted == c + ('a' - 'A'); });
}

// What stands behind the scheme, as a path: the empty host and "localhost" name this machine,
// any other host is a network share.
std::string PathBehindScheme(std::string_view rest) {
  constexpr std::string_view kLocalHost = "//localhost/";
  if (rest.starts_with("///")) {
    rest.remove_prefix(2);
  } else if (rest.starts_with(kLocalHost)) {
    rest.remove_prefix(kLocalHost.size() - 1);
  }
  if (!rest.starts_with("/") || !BeginsWithDrive(rest.substr(1))) return PercentDecode(rest);
  return std::string{rest[1], ':'} + PercentDecode(rest.substr(3));
}

}  // namespace

std::u16string FileUriOf(std::u16string_view nativePath) {
  std::string path = ToUtf8(nativePath);
  std::replace(path.begin(), path.end(), '\\', '/');
  if (path.starts_with("//")) return FromUtf8("file:" + PercentEncode(path));
  if (BeginsWithDrive(path)) {
    return FromUtf8("file:///" + path.substr(0, 2) + PercentEncode(path.substr(2)));
  }
  return FromUtf8("file://" + PercentEncode(path));
}

std::u16string PathOfFileUri(std::u16string_view uri) {
  const std::string bytes = ToUtf8(uri);
  const std::string path =
      HasFileScheme(bytes) ? PathBehindScheme(std::string_view(bytes).substr(5)) : bytes;
  std::u16string text = FromUtf8(path);
  std::replace(text.begin(), text.end(), u'/', u'\\');
  return text;
}

}  // namespace qutav::host
