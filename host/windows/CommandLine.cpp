#include "host/windows/CommandLine.h"

#include <cstddef>

namespace qutav::host {
namespace {

bool NeedsQuotes(const std::u16string& argument) {
  return argument.empty() || argument.find_first_of(u" \t\n\v\"") != argument.npos;
}

// Backslashes are doubled where a quote follows them, be it the closing one.
std::u16string Quoted(const std::u16string& argument) {
  std::u16string quoted = u"\"";
  std::size_t backslashes = 0;
  for (const char16_t unit : argument) {
    if (unit == u'"') quoted.append(backslashes + 1, u'\\');
    backslashes = unit == u'\\' ? backslashes + 1 : 0;
    quoted += unit;
  }
  quoted.append(backslashes, u'\\');
  return quoted + u'"';
}

}  // namespace

std::u16string JoinCommandLine(const std::u16string& program,
                               const std::vector<std::u16string>& arguments) {
  std::u16string line = u"\"" + program + u"\"";
  for (const std::u16string& argument : arguments) {
    line += u' ';
    line += NeedsQuotes(argument) ? Quoted(argument) : argument;
  }
  return line;
}

}  // namespace qutav::host
