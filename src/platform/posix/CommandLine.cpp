#include "platform/posix/CommandLine.h"

#include <algorithm>

namespace qutav {
namespace {

bool IsBlank(char16_t unit) { return unit == u' ' || unit == u'\t'; }

std::u16string TakeProgram(std::u16string_view& line) {
  const bool quoted = line.starts_with(u'"');
  if (quoted) line.remove_prefix(1);
  const auto end = std::find_if(line.begin(), line.end(), [&](char16_t unit) {
    return quoted ? unit == u'"' : IsBlank(unit);
  });
  std::u16string program(line.begin(), end);
  line.remove_prefix(program.size() + (quoted && end != line.end() ? 1 : 0));
  return program;
}

void SkipBlanks(std::u16string_view& line) {
  while (!line.empty() && IsBlank(line.front())) line.remove_prefix(1);
}

std::size_t TakeBackslashes(std::u16string_view& line) {
  const std::size_t count = std::min(line.find_first_not_of(u'\\'), line.size());
  line.remove_prefix(count);
  return count;
}

// An even run of backslashes before a quote gives half of them and leaves the quote its meaning; an
// odd one makes the quote plain.
std::u16string TakeArgument(std::u16string_view& line) {
  std::u16string argument;
  bool quoted = false;
  while (!line.empty() && (quoted || !IsBlank(line.front()))) {
    const std::size_t backslashes = TakeBackslashes(line);
    if (!line.starts_with(u'"')) {
      argument.append(backslashes, u'\\');
      if (!line.empty() && (quoted || !IsBlank(line.front()))) {
        argument += line.front();
        line.remove_prefix(1);
      }
      continue;
    }
    line.remove_prefix(1);
    argument.append(backslashes / 2, u'\\');
    if (backslashes % 2 == 1) {
      argument += u'"';
    } else if (quoted && line.starts_with(u'"')) {
      argument += u'"';
      line.remove_prefix(1);
      quoted = false;
    } else {
      quoted = !quoted;
    }
  }
  return argument;
}

}  // namespace

std::vector<std::u16string> SplitCommandLine(std::u16string_view line) {
  std::vector<std::u16string> arguments{TakeProgram(line)};
  for (SkipBlanks(line); !line.empty(); SkipBlanks(line)) arguments.push_back(TakeArgument(line));
  return arguments;
}

}  // namespace qutav
