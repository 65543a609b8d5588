// The child that tests start. It does what its first argument says:
//   print TEXT...     prints the texts on standard output, each as it stands
//   error TEXT        prints the text on standard error
//   flood COUNT       prints that many bytes
//   overflow FILE     prints without end and makes the file after the first megabyte
//   keep FILE TEXT    writes the text into the file
//   zeros             prints bytes with a zero among them
//   exit CODE         ends with that code
//   arguments ...     prints what follows, one argument a line
//   environment NAME  prints the variable
//   folder            prints the current folder
//   input             prints what it reads from standard input, then "end"
// and what ChildProcesses.h adds.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "ChildProcesses.h"

namespace {

void Flood(std::size_t count) {
  const std::string line = std::string(99, 'x') + "\n";
  for (std::size_t written = 0; written < count; written += line.size()) {
    std::cout.write(line.data(), static_cast<std::streamsize>(line.size()));
  }
}

[[noreturn]] void Overflow(const std::string& file) {
  Flood(1'000'000);
  std::cout.flush();
  const std::ofstream made(file);
  while (true) Flood(1'000'000);
}

void PrintInput() {
  std::cout << std::string(std::istreambuf_iterator<char>(std::cin), {}) << "end";
}

const char* EnvironmentText(const std::string& name) {
  const char* value = std::getenv(name.c_str());
  return value == nullptr ? "" : value;
}

int Run(std::string_view order, const std::vector<std::string>& values) {
  if (order == "print") {
    for (const std::string& value : values) std::cout << value;
  } else if (order == "error") {
    std::cerr << values.at(0);
  } else if (order == "flood") {
    Flood(std::stoul(values.at(0)));
  } else if (order == "overflow") {
    Overflow(values.at(0));
  } else if (order == "keep") {
    std::ofstream(values.at(0), std::ios::binary) << values.at(1);
  } else if (order == "zeros") {
    std::cout.write("seen\0hidden", 11);
  } else if (order == "exit") {
    return std::stoi(values.at(0));
  } else if (order == "arguments") {
    for (const std::string& value : values) std::cout << value << '\n';
  } else if (order == "environment") {
    std::cout << EnvironmentText(values.at(0));
  } else if (order == "folder") {
    std::cout << std::filesystem::current_path().string();
  } else if (order == "input") {
    PrintInput();
  } else if (!qutav::test::RunProcessOrder(order)) {
    return 64;
  }
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  qutav::test::PrepareStreams();
  const std::vector<std::string> all(arguments + 1, arguments + count);
  if (all.empty()) return 64;
  return Run(all.front(), {all.begin() + 1, all.end()});
}
