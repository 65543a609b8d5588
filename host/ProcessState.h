#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace qutav::host {

/// The running executable.
std::filesystem::path ExecutableFile();

/// The arguments of this process in UTF-8, from what `main` was given where that tells them whole.
std::vector<std::string> ProcessArguments(int count, const char* const* arguments);

/// Takes back a caller's wish to hear nothing of its children: without their exit codes nobody can
/// tell what became of them.
void ListenToChildren();

/// Sets a variable of this process's environment, which the library and its children see.
void SetEnvironment(const std::string& name, const std::string& value);

void ClearEnvironment(const std::string& name);

/// Whether this process may open the file for reading. A pipe counts, a folder does not.
bool IsReadableFile(const std::filesystem::path& file);

}  // namespace qutav::host
