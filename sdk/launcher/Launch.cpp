#include "Launch.h"

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <thread>

#include "Options.h"
#include "System.h"

namespace launcher {
namespace {

constexpr int kFailed = 1;
constexpr int kUsage = 2;

void Print(const Facts& facts) {
  for (const auto& [name, value] : facts.items()) {
    std::cout << name << ": " << (value.is_string() ? value.get<std::string>() : value.dump())
              << '\n';
  }
  std::cout.flush();
}

void Record(const Facts& facts) {
  const char* file = std::getenv("TAV_LAUNCH_RECORD");
  if (file == nullptr) return;
  constexpr int kOneLine = -1;
  std::ofstream stream(file, std::ios::app | std::ios::binary);
  stream << facts.dump(kOneLine, ' ', false, Facts::error_handler_t::replace) + "\n" << std::flush;
  if (!stream) std::cerr << "the launch cannot be recorded in " << file << '\n';
}

int StayOrExit() {
  if (const char* code = std::getenv("TAV_LAUNCH_EXIT")) return std::atoi(code);
  while (true) std::this_thread::sleep_for(std::chrono::hours(1));
}

}  // namespace

int Launch(const std::string& program, const std::vector<std::string>& arguments,
           const std::function<Facts(const std::vector<std::string>&)>& examine) {
  Facts facts{{"program", program}, {"process", ProcessId()}, {"arguments", arguments}};
  const auto fail = [&](const std::string& reason, int exitCode) {
    std::cerr << program << ": " << reason << '\n';
    facts["error"] = reason;
    Record(facts);
    return exitCode;
  };
  try {
    facts.update(examine(arguments));
  } catch (const UsageError& error) {
    return fail(error.what(), kUsage);
  } catch (const std::exception& error) {
    return fail(error.what(), kFailed);
  }
  Record(facts);  // first, so that who has read the last line knows it to be there
  Print(facts);
  return StayOrExit();
}

}  // namespace launcher
