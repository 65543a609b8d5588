#include "host/CallChecks.h"

#include <cstddef>
#include <cstdlib>

#include "host/FileUri.h"
#include "host/HostSetup.h"
#include "host/NativePath.h"
#include "host/ProcessState.h"
#include "host/Terminal.h"

namespace qutav::host {
namespace {

namespace fs = std::filesystem;
using Problems = std::vector<std::string>;

// The library ends a command without a word when it is given a longer URI.
constexpr std::size_t kLongestUri = 260;

void CheckPath(const fs::path& path, Problems& problems) {
  if (!HasNativeForm(path)) {
    problems.push_back(path.string() + ": a path must be UTF-8 and hold no backslash");
  }
}

void CheckAddress(const fs::path& path, Problems& problems) {
  CheckPath(path, problems);
  if (FileUriOf(ToNativeForm(path)).size() > kLongestUri) {
    problems.push_back(path.string() +
                       ": the path is too long; its file URI may have 260 characters");
  }
}

void CheckReadable(const fs::path& file, const char* what, Problems& problems) {
  if (file.empty()) return;
  CheckPath(file, problems);
  if (!IsReadableFile(file)) {
    problems.push_back(file.string() + ": the " + what + " is missing or cannot be read");
  }
}

void CheckPassword(const PublishOptions& options, Problems& problems) {
  if (options.certificate.empty()) return;
  CheckReadable(options.passwordFile, "password file", problems);
  if (!options.passwordVariable.empty()) {
    const char* password = std::getenv(options.passwordVariable.c_str());
    if (password == nullptr || *password == '\0') {
      problems.push_back("the environment variable " + options.passwordVariable + " is not set");
    }
  } else if (options.passwordFile.empty() && !StandardInputIsTerminal()) {
    problems.push_back(
        "the certificate needs a password: give --password-env NAME or --password-file FILE");
  }
}

// The library's lists end each serial with a colon and would take this one for two.
void CheckSerials(const std::vector<std::string>& serials, Problems& problems) {
  for (const std::string& serial : serials) {
    if (serial.empty() || serial.find(':') != serial.npos) {
      problems.push_back("--device \"" + serial +
                         "\": a serial is not empty and holds no colon; a device in the network "
                         "cannot be used by its address, and no other while it is attached: run "
                         "\"adb disconnect\" first");
    }
  }
}

}  // namespace

Problems FindCallProblems(const CallOptions& options, const Document& document) {
  Problems problems;
  CheckAddress(document.Path(), problems);
  CheckAddress(document.MoviePath(), problems);
  CheckReadable(LibraryFile(options.common), "library", problems);
  CheckReadable(options.script, "script", problems);
  return problems;
}

Problems FindPublishProblems(const PublishOptions& options, const Document& document) {
  Problems problems = FindCallProblems(options, document);
  CheckReadable(options.certificate, "certificate", problems);
  CheckReadable(options.provisioningProfile, "provisioning profile", problems);
  CheckPassword(options, problems);
  if (!options.provisioningProfile.empty() && !IsForIos(document)) {
    problems.push_back("--provisioning-profile is for a document with the player target iPhone OS");
  }
  return problems;
}

Problems FindDeviceRunProblems(const DeviceRunOptions& options, const Document& document) {
  Problems problems = FindPublishProblems(options, document);
  CheckSerials(options.devices, problems);
  if (IsForIos(document)) {
    problems.push_back("a document with the player target iPhone OS cannot run on these devices");
  }
  return problems;
}

bool TellProblems(const Problems& problems, Console& console) {
  for (const std::string& problem : problems) console.Message(problem);
  return !problems.empty();
}

bool IsForIos(const Document& document) { return document.PlayerTarget() == "iPhone OS"; }

}  // namespace qutav::host
