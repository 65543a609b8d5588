#include "host/PackageSnapshot.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <fstream>
#include <ios>
#include <iterator>
#include <string>
#include <system_error>

#include "platform/Utf8Path.h"

namespace qutav::host {
namespace {

namespace fs = std::filesystem;

constexpr std::array<const char*, 2> kDestinationKeys = {"com.tav.moresh.tavdest",
                                                         "com.tav.moresh.ipadest"};
constexpr std::array<const char*, 3> kArchiveEndings = {".apk", ".ipa", ".tav"};
constexpr const char* kInstallerEnding = ".exe";

std::string LowerEnding(const fs::path& file) {
  std::string ending = file.extension().string();
  std::transform(ending.begin(), ending.end(), ending.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  return ending;
}

bool IsArchive(const fs::path& file) {
  return std::find(kArchiveEndings.begin(), kArchiveEndings.end(), LowerEnding(file)) !=
         kArchiveEndings.end();
}

bool IsPackage(const fs::path& file) {
  return IsArchive(file) || LowerEnding(file) == kInstallerEnding;
}

std::string LastBytes(const fs::path& file, std::streamoff count) {
  std::ifstream stream(file, std::ios::binary | std::ios::ate);
  const std::streamoff size = stream.tellg();
  stream.seekg(std::max<std::streamoff>(0, size - count));
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

bool IsWhole(const fs::path& file, const FileStamp& stamp) {
  // The end record of an archive, which at most a comment of 64 KiB follows.
  constexpr const char* kEndSignature = "PK\x05\x06";
  constexpr std::streamoff kGreatestEnd = 22 + 65535;
  if (!IsArchive(file)) return stamp.size > 0;
  return LastBytes(file, kGreatestEnd).find(kEndSignature) != std::string::npos;
}

}  // namespace

std::set<fs::path> PackageFolders(const Document& document) {
  const fs::path movieFolder = document.MoviePath().parent_path();
  std::set<fs::path> folders = {movieFolder};
  for (const char* key : kDestinationKeys) {
    const auto stored = document.Data(key);
    if (!stored || !stored->is_string()) continue;
    const fs::path destination = movieFolder / PathFromUtf8(stored->get<std::string>());
    folders.insert(destination.lexically_normal().parent_path());
  }
  return folders;
}

PackageSnapshot TakeSnapshot(const std::set<fs::path>& folders) {
  PackageSnapshot snapshot;
  for (const fs::path& folder : folders) {
    std::error_code unreadable;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, unreadable)) {
      const auto stamp = IsPackage(entry.path()) ? StampOf(entry.path()) : std::nullopt;
      if (stamp) snapshot.emplace(entry.path(), *stamp);
    }
  }
  return snapshot;
}

std::vector<fs::path> PackagesMade(const PackageSnapshot& before, const PackageSnapshot& after) {
  std::vector<fs::path> made;
  for (const auto& [file, stamp] : after) {
    const auto earlier = before.find(file);
    const bool changed = earlier == before.end() || !(earlier->second == stamp);
    if (changed && IsWhole(file, stamp)) made.push_back(file);
  }
  return made;
}

}  // namespace qutav::host
