#include "platform/Registry.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <utility>

#include "platform/Text.h"
#include "platform/posix/FileReplacement.h"
#include "platform/posix/SystemServices.h"

namespace qutav {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;

constexpr unsigned kOwnerOnly = 0600;

fs::path RegistryFolder() {
  const char* config = std::getenv("XDG_CONFIG_HOME");
  if (config != nullptr && *config == '/') return fs::path(config) / "qutav";
  const char* home = std::getenv("HOME");
  if (home == nullptr || *home == '\0') return {};
  return fs::path(home) / ".config" / "qutav";
}

// Holds other processes off while a key is read, changed and written back.
class RegistryLock {
 public:
  explicit RegistryLock(const fs::path& folder)
      : descriptor_(
            open((folder / "registry.lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, kOwnerOnly)) {
    while (descriptor_ >= 0 && !held_) {
      held_ = flock(descriptor_, LOCK_EX) == 0;
      if (!held_ && errno != EINTR) break;
    }
  }
  ~RegistryLock() {
    if (descriptor_ >= 0) close(descriptor_);
  }
  RegistryLock(const RegistryLock&) = delete;
  RegistryLock& operator=(const RegistryLock&) = delete;
  bool Held() const { return held_; }

 private:
  int descriptor_;
  bool held_ = false;
};

// The whole hive: an object of keys by path, each an object of values in the order of their
// writing.
class RegistryFile {
 public:
  RegistryFile() : folder_(RegistryFolder()), file_(folder_ / "registry.json") {}

  bool Available() const {
    std::error_code error;
    if (folder_.empty()) return false;
    fs::create_directories(folder_, error);
    return fs::is_directory(folder_, error);
  }

  Json Load() const {
    std::ifstream stream(file_);
    Json hive = stream ? Json::parse(stream, nullptr, false) : Json::object();
    if (hive.is_object()) return hive;
    SetAside();
    return Json::object();
  }

  template <typename Change>
  bool Update(Change change) const {
    const RegistryLock lock(folder_);
    if (!lock.Held()) return false;
    Json hive = Load();
    if (damaged_) return false;
    if (!change(hive)) return true;
    const std::string text = hive.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
    return ReplaceFile(file_, kOwnerOnly,
                       [&](int descriptor) { return WriteAll(descriptor, text); });
  }

 private:
  // A file that somebody damaged is kept under another name. Where that cannot be done it stays,
  // and nothing is written.
  void SetAside() const {
    std::error_code error;
    fs::path aside = fs::path(file_) += ".damaged";
    for (int i = 2; fs::exists(aside, error); ++i) {
      aside = fs::path(file_) += ".damaged" + std::to_string(i);
    }
    fs::rename(file_, aside, error);
    damaged_ = static_cast<bool>(error);
  }

  fs::path folder_;
  fs::path file_;
  mutable bool damaged_ = false;  // and in its place still
};

std::optional<std::u16string> TextWithin(const Json& value, std::size_t capacity) {
  if (!value.is_string()) return {};
  std::u16string text = FromUtf8(value.get_ref<const std::string&>());
  if ((text.size() + 1) * sizeof(char16_t) > capacity) return {};
  return text;
}

class FileRegistryKey final : public RegistryKey {
 public:
  explicit FileRegistryKey(std::string path) : path_(std::move(path)) {}

  std::optional<std::u16string> Query(const std::u16string& name, std::size_t capacity) override {
    const Json values = Values();
    const auto value = values.find(ToUtf8(name));
    if (value == values.end()) return {};
    return TextWithin(*value, capacity);
  }

  std::optional<std::u16string> Enumerate(std::size_t index, std::size_t capacity) override {
    const Json values = Values();
    if (index >= values.size()) return {};
    // Members of an object are reached one after the other only.
    return TextWithin(*std::next(values.begin(), static_cast<std::ptrdiff_t>(index)), capacity);
  }

  void Set(const std::u16string& name, const std::u16string& value) override {
    file_.Update([&](Json& hive) {
      hive[path_][ToUtf8(name)] = ToUtf8(value);
      return true;
    });
  }

 private:
  Json Values() const {
    const Json hive = file_.Load();
    const auto key = hive.find(path_);
    return key != hive.end() && key->is_object() ? *key : Json::object();
  }

  RegistryFile file_;
  std::string path_;
};

class FileRegistry final : public Registry {
 public:
  std::unique_ptr<RegistryKey> OpenOrCreate(const std::u16string& path) override {
    const RegistryFile file;
    const std::string name = ToUtf8(path);
    if (!file.Available()) return nullptr;
    const bool open = file.Update([&](Json& hive) {
      if (hive.contains(name) && hive[name].is_object()) return false;
      hive[name] = Json::object();
      return true;
    });
    if (!open) return nullptr;
    return std::make_unique<FileRegistryKey>(name);
  }
};

}  // namespace

Registry& SystemRegistry() {
  static FileRegistry registry;
  return registry;
}

}  // namespace qutav
