// The practice debug launcher. It runs nothing: it checks what it is given as far as a launcher
// would, and stays.
#include <filesystem>
#include <stdexcept>

#include "Descriptor.h"
#include "Files.h"
#include "Launch.h"
#include "Options.h"
#include "System.h"

namespace launcher {
namespace {

struct ValueOption {
  const char* option;
  const char* fact;
};

constexpr ValueOption kTexts[] = {
    {"-profile", "profile"}, {"-screensize", "screenSize"}, {"-Xsimulation", "simulatorPort"}};
constexpr ValueOption kFolders[] = {{"-runtime", "runtime"}, {"-extdir", "extensions"}};

OptionNames Names() {
  OptionNames names{{"-debug"}, {}};
  for (const auto& [option, fact] : kTexts) names.values.insert(option);
  for (const auto& [option, fact] : kFolders) names.values.insert(option);
  return names;
}

std::string Folder(const std::string& option, const std::string& text) {
  const std::filesystem::path folder = PathOf(text);
  if (std::filesystem::is_directory(folder)) return TextOf(folder);
  throw std::runtime_error("the folder behind " + option + " is missing: " + text);
}

Facts Examine(const std::vector<std::string>& arguments) {
  const Options options = ReadOptions(arguments, Names());
  if (options.operands.size() != 1) throw UsageError("one descriptor is needed");
  const std::filesystem::path file = PathOf(options.operands.front());
  const Descriptor descriptor = ReadDescriptor(file);
  Facts facts{{"descriptor", TextOf(file)},
              {"id", descriptor.id},
              {"name", descriptor.name},
              {"content", TextOf(descriptor.content)},
              {"debug", options.flags.contains("-debug")}};
  for (const auto& [option, value] : options.values) {
    for (const auto& text : kTexts) {
      if (option == text.option) facts[text.fact] = value;
    }
    for (const auto& folder : kFolders) {
      if (option == folder.option) facts[folder.fact] = Folder(option, value);
    }
  }
  return facts;
}

}  // namespace

int Run(const std::vector<std::string>& arguments) { return Launch("wep", arguments, Examine); }

}  // namespace launcher
