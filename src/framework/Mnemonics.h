// The underlined letters with which a keyboard reaches the controls of a dialog.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qutav {

/// What a control is called.
struct MnemonicCaption {
  std::u16string text;
  /// The same in English: it lends a letter to a text in a script that keyboards do not have.
  std::u16string english = {};
};

/// The captions of one dialog, in tab order, as the system's controls take them: "&" stands before
/// the mnemonic of each, and an ampersand of the text itself is doubled.
///
/// A mnemonic is a Latin or Cyrillic letter or a digit of its text: best the first of a word, best
/// of an early one. No two captions get the same, whatever its case. An earlier caption takes a
/// less good letter when a later one would have none at all; a caption is left without a mnemonic
/// only where there is no way to give all of them one.
///
/// A text in Chinese, Japanese or Korean gets a letter behind it, as is the custom in these
/// languages:
///
///     WithMnemonics({{u"Browse..."}, {u"Boot:"}})    // "&Browse...", "B&oot:"
///     WithMnemonics({{u"参照...", u"Browse..."}})    // "参照(&B)..."
std::vector<std::u16string> WithMnemonics(const std::vector<MnemonicCaption>& captions);

/// The text of a caption that `WithMnemonics` has made.
std::u16string WithoutMnemonic(std::u16string_view marked);

/// The mnemonic of a caption that `WithMnemonics` has made, in lower case.
std::optional<char16_t> MnemonicOf(std::u16string_view marked);

}  // namespace qutav
