// The paths of the document that a command works on, and the two operations that split native
// paths.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace qutav {

/// A text that holds at most `Limit` UTF-16 units; what is longer is cut.
template <std::size_t Limit>
class BoundedText {
 public:
  BoundedText& operator=(std::u16string_view text) {
    text_ = text.substr(0, Limit);
    return *this;
  }
  operator const std::u16string&() const { return text_; }  // NOLINT(google-explicit-constructor)
  const std::u16string& Text() const { return text_; }

 private:
  std::u16string text_;
};

inline constexpr std::size_t kPathLimit = 259;

struct DocumentPathTexts {
  BoundedText<1023> LaunchPath;            ///< the host's folder, forward slashes, trailing slash
  BoundedText<kPathLimit> MovieUri;        ///< as the host gave it
  BoundedText<kPathLimit> DocumentPath;    ///< native, forward slashes
  BoundedText<kPathLimit> MoviePath;       ///< native
  BoundedText<kPathLimit> MovieBaseName;   ///< without extension
  BoundedText<kPathLimit> MovieFolder;     ///< forward slashes, trailing slash
  BoundedText<63> RuntimeKitName;          ///< "TAV26.0"
  BoundedText<kPathLimit> DescriptorPath;  ///< movie folder + base name + "-app.xml"
  BoundedText<kPathLimit> ActiveDescriptorPath;  ///< the descriptor that was opened last
};

extern DocumentPathTexts DocumentPaths;

/// The text between the last backslash and the last dot behind it; the whole path when one of them
/// is missing or nothing stands between.
std::u16string BaseNameOfPath(const std::u16string& path);

/// The path up to and with its last backslash; the whole path when it has none.
std::u16string FolderOfPath(const std::u16string& path);

}  // namespace qutav
