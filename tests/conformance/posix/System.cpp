#include "conformance/System.h"

#include <dlfcn.h>

#include <cstdio>
#include <fstream>
#include <iostream>

#include "EnvironmentVariable.h"
#include "platform/Text.h"

namespace qutav::test {

namespace fs = std::filesystem;

void* LoadLibraryFile(const fs::path& file) {
  void* library = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) std::cerr << dlerror() << std::endl;
  return library;
}

void* ExportOf(void* library, const char* name) { return dlsym(library, name); }

std::vector<std::string> ExportedNames(const fs::path& file) {
  const std::string command =
      "nm -D --defined-only '" + file.string() + "' | awk '{print $3}' | sort";
  std::vector<std::string> names;
  FILE* pipe = popen(command.c_str(), "r");
  if (pipe == nullptr) return names;
  std::string name;
  for (int c = fgetc(pipe); c != EOF; c = fgetc(pipe)) {
    if (c != '\n') {
      name += static_cast<char>(c);
      continue;
    }
    names.push_back(name);
    name.clear();
  }
  pclose(pipe);
  return names;
}

void InstallTool(const fs::path& folder) {
  PutEnvironment("CommonProgramFiles", (folder / "common").string());
  const fs::path bin = folder / "common/Zenvoka/Zenvoka Kestrow 2020/jre/bin";
  fs::create_directories(bin);
  std::ofstream(bin / "java") << "#!/bin/sh\nprintf '%s\\n' \"$@\" > '"
                              << (folder / "arguments").string() << "'\n{ read code; cat; } < '"
                              << (folder / "ending").string() << "'\nexit $code\n";
  fs::permissions(bin / "java", fs::perms::owner_all);
}

void RemoveTool() {}

void InstallAdb(const fs::path& sdk) {
  const fs::path adb = sdk / "lib/android/bin/adb";
  fs::create_directories(adb.parent_path());
  std::ofstream(adb) << "#!/bin/sh\n";
  fs::permissions(adb, fs::perms::owner_all);
}

void KeepInFolder(const fs::path& folder) {
  PutEnvironment("XDG_CONFIG_HOME", (folder / "config").string());
  PutEnvironment("TMPDIR", folder.string());
}

std::u16string PathOfUri(const std::u16string& uri) {
  return ReplaceAll(ReplaceAll(uri.substr(7), u"%20", u" "), u"/", u"\\");
}

}  // namespace qutav::test
