#include "Options.h"

namespace launcher {

Options ReadOptions(const std::vector<std::string>& arguments, const OptionNames& names) {
  Options options;
  for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
    if (argument->rfind('-', 0) != 0) {
      options.operands.push_back(*argument);
    } else if (names.flags.contains(*argument)) {
      options.flags.insert(*argument);
    } else if (!names.values.contains(*argument)) {
      throw UsageError("unknown option " + *argument);
    } else if (argument + 1 == arguments.end()) {
      throw UsageError("a value is missing behind " + *argument);
    } else {
      const std::string& option = *argument;
      options.values[option] = *++argument;
    }
  }
  return options;
}

}  // namespace launcher
