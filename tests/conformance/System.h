// What the conformance suite asks of the system on which it runs.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace qutav::test {

/// Loads the library as a host does; null, and the reason on standard error, when it cannot.
void* LoadLibraryFile(const std::filesystem::path& file);

/// The address of an export; null without one.
void* ExportOf(void* library, const char* name);

/// The names of everything that a library exports, sorted.
std::vector<std::string> ExportedNames(const std::filesystem::path& file);

/// Puts a program in Java's place, and lets the library find it. It writes its arguments to the
/// file "arguments" of the folder, one a line, and ends as the file "ending" there says: the exit
/// code on the first line, behind it what it prints.
void InstallTool(const std::filesystem::path& folder);

/// Takes the program away where it does not lie in the folder.
void RemoveTool();

/// Puts a program in the place that adb has below an SDK's folder; it knows no device.
void InstallAdb(const std::filesystem::path& sdk);

/// Lets the library's settings and temporary files lie in the folder.
void KeepInFolder(const std::filesystem::path& folder);

/// The path in Windows form that a file URI names.
std::u16string PathOfUri(const std::u16string& uri);

}  // namespace qutav::test
