// Paths, names in them, and the encodings of blanks that descriptors use.
#pragma once

#include <optional>
#include <string>

namespace qutav {

/// `JavaRoot`: the root of the private Java runtime, forward slashes, no trailing one; empty when
/// the system has no common files folder (`SHGetFolderPathW`).
std::u16string CommonJavaPath();

/// The movie's folder as dialogs and controls show it: backslashes, one at the end; empty when
/// there is no movie's folder.
std::u16string MovieFolder();

/// The folder of the runtime SDK: the document's own choice, or the kit of the runtime level below
/// the host's folder.
std::u16string SdkRoot();

/// Keeps what follows the last slash (unless it is the first character), less what follows the last
/// dot (unless it is the first character).
void LastNameOfPath(std::u16string& text);

/// Every backslash becomes `replacement`.
void ConvertBackslashes(std::u16string& text, char16_t replacement);
std::u16string WithForwardSlashes(std::u16string text);
std::u16string WithBackslashes(std::u16string text);

/// The path cut at its last dot, wherever that stands, with the extension behind; the extension
/// gets a dot when it has none. An empty path stays empty, an empty extension changes nothing.
std::u16string ReplaceExtension(const std::u16string& path, const std::u16string& extension);

/// The end of the path, shorter by the folder's length, when the folder's text stands anywhere in
/// it in the same case; any other path as it is.
std::u16string MakeRelative(const std::u16string& path, const std::u16string& folder);

/// "%20" becomes a blank, any other percent sign is dropped. An empty source leaves the target
/// alone.
void DecodePercent20(std::u16string& target, const std::u16string& source);

/// A blank becomes "%20". An empty source leaves the target alone.
void EncodeSpacesForUri(std::u16string& target, const std::u16string& source);

/// A blank becomes "&#37;20", which XML reads as "%20"; nothing for an empty text.
std::optional<std::u16string> EncodeSpacesForXml(const std::u16string& text);

/// The text in the local code page; nothing for an empty one.
std::optional<std::string> DuplicateNarrow(const std::u16string& text);

/// Whether the operating system's major version is exactly 5.
bool IsOlderWindows();

}  // namespace qutav
