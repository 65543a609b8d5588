// Stands in Java's place: keeps its arguments, and prints and ends as a file says. The variable
// QUTAV_FAKE_TOOL_FOLDER names the folder in which both files lie. A copy of it in adb's place
// knows no device.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>

int main(int count, char** arguments) {
  if (std::filesystem::path(arguments[0]).stem() == "adb") return 0;
  const char* variable = std::getenv("QUTAV_FAKE_TOOL_FOLDER");
  if (variable == nullptr) return 64;
  const std::filesystem::path folder = variable;
  std::ofstream kept(folder / "arguments", std::ios::binary);
  for (int i = 1; i < count; ++i) kept << arguments[i] << '\n';
  std::ifstream ending(folder / "ending");
  int code = 64;
  ending >> code;
  ending.get();
  if (ending.peek() != EOF) std::cout << ending.rdbuf();
  return code;
}
