#include "framework/Mnemonics.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "platform/Text.h"

namespace qutav {
namespace {

/// A letter that a caption could have.
struct Candidate {
  char16_t letter;       ///< in lower case
  std::size_t position;  ///< in the text; `kBehind`: it has to be added behind
};
using Candidates = std::vector<Candidate>;

constexpr std::size_t kBehind = std::u16string::npos;

// Without the signs and the vowel with which no word begins.
bool IsCyrillic(char16_t unit) {
  constexpr std::u16string_view kNeverFirst = u"\u042A\u042B\u042C\u044A\u044B\u044C";
  return unit >= u'\u0410' && unit <= u'\u044F' &&
         kNeverFirst.find(unit) == std::u16string_view::npos;
}

bool IsLatin(char16_t unit) {
  return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z');
}

bool CanBeMnemonic(char16_t unit) { return IsLatin(unit) || IsCyrillic(unit) || IsDigit(unit); }

// Kana, ideographs and Hangul.
bool IsEastAsian(char16_t unit) {
  return (unit >= u'\u3041' && unit <= u'\u9FFF') || (unit >= u'\uAC00' && unit <= u'\uD7A3');
}

// Letters with accents are no mnemonics, but belong to their words.
bool IsPartOfWord(char16_t unit) {
  return CanBeMnemonic(unit) || (unit >= u'\u00C0' && unit < u'\u2000');
}

bool BeginsWord(std::u16string_view text, std::size_t position) {
  return position == 0 || !IsPartOfWord(text[position - 1]);
}

// The lower the better. A Cyrillic keyboard layout has no Latin letters.
int RankOf(std::u16string_view text, std::size_t position, bool textIsCyrillic) {
  const char16_t unit = text[position];
  return 4 * (textIsCyrillic && IsLatin(unit)) + 2 * !BeginsWord(text, position) + IsDigit(unit);
}

Candidates LettersOf(std::u16string_view text) {
  const bool isCyrillic = std::any_of(text.begin(), text.end(), IsCyrillic);
  Candidates candidates;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (CanBeMnemonic(text[i])) candidates.push_back({ToLowerCase(text[i]), i});
  }
  std::stable_sort(
      candidates.begin(), candidates.end(), [&](const Candidate& a, const Candidate& b) {
        return RankOf(text, a.position, isCyrillic) < RankOf(text, b.position, isCyrillic);
      });
  return candidates;
}

Candidates LettersBehind(std::u16string_view english) {
  Candidates candidates = LettersOf(english);
  std::erase_if(candidates, [](const Candidate& candidate) { return !IsLatin(candidate.letter); });
  for (Candidate& candidate : candidates) candidate.position = kBehind;
  for (char16_t letter = u'a'; letter <= u'z'; ++letter) candidates.push_back({letter, kBehind});
  return candidates;
}

Candidates CandidatesFor(const MnemonicCaption& caption) {
  const bool isEastAsian = std::any_of(caption.text.begin(), caption.text.end(), IsEastAsian);
  return isEastAsian ? LettersBehind(caption.english) : LettersOf(caption.text);
}

/// Who has which letter. Captions come one after the other; one for which no letter is left makes
/// others move on to their next best.
class Assignment {
 public:
  explicit Assignment(std::vector<Candidates> candidates)
      : candidates_(std::move(candidates)), chosen_(candidates_.size()) {
    for (std::size_t caption = 0; caption < candidates_.size(); ++caption) {
      std::set<char16_t> asked;
      Place(caption, asked);
    }
  }

  const std::vector<std::optional<Candidate>>& Chosen() const { return chosen_; }

 private:
  // `asked` holds the letters whose owners have been asked to move already.
  bool Place(std::size_t caption, std::set<char16_t>& asked) {
    for (const Candidate& candidate : candidates_[caption]) {
      if (!owners_.contains(candidate.letter)) return Take(caption, candidate);
    }
    for (const Candidate& candidate : candidates_[caption]) {
      const bool isNew = asked.insert(candidate.letter).second;
      if (isNew && Place(owners_.at(candidate.letter), asked)) return Take(caption, candidate);
    }
    return false;
  }

  bool Take(std::size_t caption, const Candidate& candidate) {
    owners_[candidate.letter] = caption;
    chosen_[caption] = candidate;
    return true;
  }

  std::vector<Candidates> candidates_;
  std::vector<std::optional<Candidate>> chosen_;
  std::map<char16_t, std::size_t> owners_;
};

std::u16string WithDoubledAmpersands(std::u16string_view text) {
  return ReplaceAll(std::u16string(text), u"&", u"&&");
}

// Where a text ends before its colon, dots or full stop.
std::size_t EndOfWords(std::u16string_view text) {
  return text.find_last_not_of(u" :.\u2026\u3002\uFF1A") + 1;
}

// "(&B)"
constexpr std::size_t kMarkBehindSize = 4;

bool IsMarkBehind(std::u16string_view mark) {
  return mark.size() == kMarkBehindSize && mark.starts_with(u"(&") && mark[2] != u'&' &&
         mark.back() == u')';
}

std::u16string Marked(std::u16string_view text, const std::optional<Candidate>& mnemonic) {
  if (!mnemonic) return WithDoubledAmpersands(text);
  const bool isBehind = mnemonic->position == kBehind;
  const std::size_t place = isBehind ? EndOfWords(text) : mnemonic->position;
  const auto upperCase = static_cast<char16_t>(mnemonic->letter - u'a' + u'A');
  const std::u16string mark = isBehind ? std::u16string(u"(&") + upperCase + u")" : u"&";
  return WithDoubledAmpersands(text.substr(0, place)) + mark +
         WithDoubledAmpersands(text.substr(place));
}

}  // namespace

std::vector<std::u16string> WithMnemonics(const std::vector<MnemonicCaption>& captions) {
  std::vector<Candidates> candidates;
  for (const MnemonicCaption& caption : captions) candidates.push_back(CandidatesFor(caption));
  const Assignment assignment(std::move(candidates));
  std::vector<std::u16string> marked;
  for (std::size_t i = 0; i < captions.size(); ++i) {
    marked.push_back(Marked(captions[i].text, assignment.Chosen()[i]));
  }
  return marked;
}

std::u16string WithoutMnemonic(std::u16string_view marked) {
  std::u16string text;
  for (std::size_t i = 0; i < marked.size(); ++i) {
    while (IsMarkBehind(marked.substr(i, kMarkBehindSize))) i += kMarkBehindSize;
    if (marked.substr(i, 1) == u"&") ++i;
    text += marked.substr(i, 1);
  }
  return text;
}

std::optional<char16_t> MnemonicOf(std::u16string_view marked) {
  for (std::size_t i = 0; i + 1 < marked.size(); ++i) {
    if (marked[i] != u'&') continue;
    if (marked[i + 1] != u'&') return ToLowerCase(marked[i + 1]);
    ++i;
  }
  return {};
}

}  // namespace qutav
