// The practice simulator controller. It offers no simulation: it shows that it was started, and
// stays.
#include "Launch.h"
#include "Options.h"
#include "System.h"

namespace launcher {
namespace {

std::string Needed(const Options& options, const std::string& option) {
  const auto found = options.values.find(option);
  if (found == options.values.end()) throw UsageError(option + " is missing");
  return found->second;
}

Facts Examine(const std::vector<std::string>& arguments) {
  const Options options = ReadOptions(arguments, {{"-once"}, {"-lang", "-port"}});
  if (!options.operands.empty()) throw UsageError("unknown operand " + options.operands.front());
  return {{"once", options.flags.contains("-once")},
          {"language", Needed(options, "-lang")},
          {"port", Needed(options, "-port")}};
}

}  // namespace

int Run(const std::vector<std::string>& arguments) {
  return Launch("SimController", arguments, Examine);
}

}  // namespace launcher
