#include "platform/Registry.h"

#include <vector>

#include "platform/windows/System.h"
#include "platform/windows/SystemServices.h"
#include "platform/windows/Wide.h"

namespace qutav {
namespace {

// The buffer that a value's name is read to while values are enumerated.
constexpr DWORD kNameCapacity = 260;

// Receives a value's data, `capacity` bytes at most.
class ValueData {
 public:
  explicit ValueData(std::size_t capacity)
      : bytes_(capacity), size_(static_cast<DWORD>(capacity)) {}

  BYTE* Bytes() { return bytes_.data(); }
  DWORD* Size() { return &size_; }

  // The terminator is part of the data, unless somebody has stored it without. Whatever the value's
  // type: one that is no text must not hide those behind it.
  std::u16string Text() const {
    const std::wstring_view stored(reinterpret_cast<const wchar_t*>(bytes_.data()),
                                   size_ / sizeof(wchar_t));
    return FromWide(stored.substr(0, stored.find(L'\0')));
  }

 private:
  std::vector<BYTE> bytes_;
  DWORD size_;
};

class WindowsRegistryKey final : public RegistryKey {
 public:
  explicit WindowsRegistryKey(HKEY key) : key_(key) {}
  ~WindowsRegistryKey() override { RegCloseKey(key_); }
  WindowsRegistryKey(const WindowsRegistryKey&) = delete;
  WindowsRegistryKey& operator=(const WindowsRegistryKey&) = delete;

  std::optional<std::u16string> Query(const std::u16string& name, std::size_t capacity) override {
    ValueData data(capacity);
    if (RegQueryValueExW(key_, Wide(name), nullptr, nullptr, data.Bytes(), data.Size()) !=
        ERROR_SUCCESS) {
      return {};
    }
    return data.Text();
  }

  std::optional<std::u16string> Enumerate(std::size_t index, std::size_t capacity) override {
    wchar_t name[kNameCapacity] = {};
    DWORD nameLength = kNameCapacity;
    ValueData data(capacity);
    if (RegEnumValueW(key_, static_cast<DWORD>(index), name, &nameLength, nullptr, nullptr,
                      data.Bytes(), data.Size()) != ERROR_SUCCESS) {
      return {};
    }
    return data.Text();
  }

  void Set(const std::u16string& name, const std::u16string& value) override {
    RegSetValueExW(key_, Wide(name), 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()),
                   static_cast<DWORD>((value.size() + 1) * sizeof(char16_t)));
  }

 private:
  HKEY key_;
};

class WindowsRegistry final : public Registry {
 public:
  std::unique_ptr<RegistryKey> OpenOrCreate(const std::u16string& path) override {
    HKEY key = nullptr;
    if (RegCreateKeyExW(HKEY_CURRENT_USER, Wide(path), 0, nullptr, REG_OPTION_NON_VOLATILE,
                        KEY_ALL_ACCESS, nullptr, &key, nullptr) != ERROR_SUCCESS) {
      return nullptr;
    }
    return std::make_unique<WindowsRegistryKey>(key);
  }
};

}  // namespace

Registry& SystemRegistry() {
  static WindowsRegistry registry;
  return registry;
}

}  // namespace qutav
