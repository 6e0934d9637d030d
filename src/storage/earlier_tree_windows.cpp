#include <algorithm>
#include <array>
#include <span>

#include "storage/earlier_tree.h"
#include "storage/windows_path.h"

namespace starfolds {
namespace {

constexpr std::size_t kMostUnits = 4095;

/// A place at which a path of the tree may be.
struct Place {
  HKEY Root;
  std::string_view Above;  // replaces the first name of the path, "SOFTWARE"
  REGSAM View;             // of 32-bit or of 64-bit programs
};

const Place kOfUser[] = {{HKEY_CURRENT_USER, "SOFTWARE", KEY_WOW64_64KEY}};
const Place kOfMachine[] = {
    {HKEY_CURRENT_USER, "SOFTWARE\\Classes\\VirtualStore\\MACHINE\\SOFTWARE\\WOW6432Node",
     KEY_WOW64_64KEY},
    {HKEY_CURRENT_USER, "SOFTWARE\\Classes\\VirtualStore\\MACHINE\\SOFTWARE", KEY_WOW64_64KEY},
    {HKEY_LOCAL_MACHINE, "SOFTWARE", KEY_WOW64_32KEY},
    {HKEY_LOCAL_MACHINE, "SOFTWARE", KEY_WOW64_64KEY}};

class Key {
 public:
  Key(const Place& place, const std::wstring& path) {
    if (RegOpenKeyExW(place.Root, path.c_str(), 0, KEY_QUERY_VALUE | place.View, &key_) != 0) {
      key_ = nullptr;
    }
  }
  ~Key() {
    if (key_) RegCloseKey(key_);
  }
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;

  std::optional<std::string> Text(const std::wstring& name) const {
    std::array<wchar_t, kMostUnits + 1> units{};
    DWORD type = 0;
    DWORD size = sizeof units;
    const bool isRead =
        key_ && RegQueryValueExW(key_, name.c_str(), nullptr, &type,
                                 reinterpret_cast<BYTE*>(units.data()), &size) == ERROR_SUCCESS;
    if (!isRead || (type != REG_SZ && type != REG_EXPAND_SZ)) return std::nullopt;
    std::wstring text(units.data(), size / sizeof(wchar_t));
    if (text.ends_with(L'\0')) text.pop_back();  // not every writer stores the terminator
    std::string narrow = NarrowText(text);
    if (narrow.empty() && !text.empty()) return std::nullopt;
    return narrow;
  }

 private:
  HKEY key_ = nullptr;
};

std::optional<std::string> TextAt(const Place& place, std::string_view path,
                                  std::string_view name) {
  const std::string_view below = path.substr(std::min(path.find('\\'), path.size()));
  const auto widePath = WidePath(std::string(place.Above).append(below));
  const auto wideName = WidePath(std::string(name));
  if (!widePath || !wideName) return std::nullopt;
  return Key(place, *widePath).Text(*wideName);
}

class RegistryTree : public KeyValueTree {
 public:
  std::optional<std::string> Read(Hive hive, std::string_view path,
                                  std::string_view name) override {
    std::span<const Place> places;
    if (hive == Hive::CurrentUser) places = kOfUser;
    if (hive == Hive::LocalMachine) places = kOfMachine;
    for (const Place& place : places) {
      if (auto text = TextAt(place, path, name)) return text;
    }
    return std::nullopt;
  }

  bool Write(Hive, std::string_view, std::string_view, std::string_view) override { return false; }
  bool DeleteKey(Hive, std::string_view) override { return false; }

 protected:
  bool Begin(Access access) override { return access == Access::Look; }
  bool End(bool) override { return true; }
};

}  // namespace

std::unique_ptr<KeyValueTree> EarlierTree() { return std::make_unique<RegistryTree>(); }

}  // namespace starfolds
