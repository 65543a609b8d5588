#include "host/windows/InterruptCleanup.h"

#include <mutex>
#include <vector>

#include "platform/windows/System.h"

namespace qutav::host {
namespace {

std::mutex g_mutex;
std::vector<std::filesystem::path> g_files;

// Runs on a thread of the system's own. What follows it ends the process.
BOOL WINAPI RemoveFiles(DWORD) {
  const std::lock_guard lock(g_mutex);
  for (const std::filesystem::path& file : g_files) DeleteFileW(file.c_str());
  return FALSE;
}

}  // namespace

void RemoveAtInterrupt(const std::filesystem::path& file) {
  static const BOOL watching = SetConsoleCtrlHandler(RemoveFiles, TRUE);
  static_cast<void>(watching);
  const std::lock_guard lock(g_mutex);
  g_files.push_back(file);
}

void RemoveNow(const std::filesystem::path& file) {
  const std::lock_guard lock(g_mutex);
  DeleteFileW(file.c_str());
  std::erase(g_files, file);
}

}  // namespace qutav::host
