#include "settings/registry.h"

#include <cmath>
#include <limits>
#include <optional>

#include "numbers/characters.h"
#include "numbers/conversions.h"
#include "numbers/text.h"
#include "platform/user_text.h"
#include "settings/product.h"

namespace starfolds {
namespace {

Hive HiveOf(RootSelector root) {
  switch (root) {
    case RootSelector::LocalMachine: return Hive::LocalMachine;
    case RootSelector::CurrentUser: return Hive::CurrentUser;
    case RootSelector::ClassesRoot: return Hive::ClassesRoot;
    case RootSelector::Users: break;
  }
  return Hive::Users;
}

std::string PathOf(std::string_view app, std::string_view section) {
  std::string path = "SOFTWARE\\Tessellane\\";
  path.append(app).append("\\").append(section);
  return path;
}

/// The value as a number; nullopt if it is missing or not a number.
std::optional<double> StoredNumber(KeyValueTree& tree, std::string_view section,
                                   std::string_view key, RootSelector root, std::string_view app) {
  const std::string text = RegistryReadText(tree, section, key, {}, root, app);
  if (!IsNumeric(text)) return std::nullopt;
  return LenientNumber(text);
}

}  // namespace

std::string RegistryReadText(KeyValueTree& tree, std::string_view section, std::string_view key,
                             std::string_view fallback, RootSelector root, std::string_view app) {
  std::optional<std::string> text = tree.Read(HiveOf(root), PathOf(app, section), key);
  if (!text || FirstStorableCharacters(*text).size() != text->size()) return std::string(fallback);
  text->resize(std::min(text->find('\0'), text->size()));
  return *std::move(text);
}

Integer RegistryReadInteger(KeyValueTree& tree, std::string_view section, std::string_view key,
                            Integer fallback, RootSelector root, std::string_view app) {
  const auto number = StoredNumber(tree, section, key, root, app);
  return number ? RoundedOr<Integer>(0, *number) : fallback;
}

Long RegistryReadLong(KeyValueTree& tree, std::string_view section, std::string_view key,
                      Long fallback, RootSelector root, std::string_view app) {
  const auto number = StoredNumber(tree, section, key, root, app);
  return number ? RoundedOr<Long>(0, *number) : fallback;
}

Single RegistryReadSingle(KeyValueTree& tree, std::string_view section, std::string_view key,
                          Single fallback, RootSelector root, std::string_view app) {
  const auto number = StoredNumber(tree, section, key, root, app);
  if (!number) return fallback;
  return std::abs(*number) <= std::numeric_limits<Single>::max() ? static_cast<Single>(*number) : 0;
}

bool RegistryWrite(KeyValueTree& tree, std::string_view section, std::string_view key,
                   std::string_view value, RootSelector root, std::string_view app) {
  return tree.Write(HiveOf(root), PathOf(app, section), key, Trimmed(value));
}

bool RegistryWrite(KeyValueTree& tree, std::string_view section, std::string_view key, Long value,
                   RootSelector root, std::string_view app) {
  return RegistryWrite(tree, section, key, NumberText(value), root, app);
}

std::string_view FirstStorableCharacters(std::string_view text) {
  if (text.size() <= kLongestValue) return text;
  return FirstCharacters(text, kLongestValue, kMostBytesOfValue);
}

std::string_view StorableText(std::string_view text) {
  return FirstStorableCharacters(Trimmed(text));
}

void RegistryDeleteKey(KeyValueTree& tree, std::string_view app, std::string_view section,
                       std::string_view subkey, RootSelector root) {
  tree.DeleteKey(HiveOf(root), PathOf(app, section) + "\\" + std::string(subkey));
}

bool RegistryWriteTest(KeyValueTree& tree, MessageBoxes& boxes) {
  constexpr std::string_view key = "TestRegWrite";
  const bool written = RegistryWrite(tree, sections::kGeneral, key, Long{1});
  if (written && RegistryReadInteger(tree, sections::kGeneral, key, 0) == 1) return true;
  boxes.Show(
      STARFOLDS_TEXT("The Registry is read-only.\n\n"
                     "The Property settings cannot be saved.\n"
                     "You must change your Windows User Privileges so that programs \n"
                     "can write to the Registry.  See your System Administrator for assistance."),
      BoxStyle::Exclamation, std::string(kProductName));
  return false;
}

void CopyMachineValueToUser(KeyValueTree& tree, KeyValueTree& from, std::string_view section,
                            std::string_view key, std::string_view fallback) {
  RegistryWrite(tree, section, key,
                RegistryReadText(from, section, key, fallback, RootSelector::LocalMachine));
}

void CopyUserValue(KeyValueTree& tree, KeyValueTree& from, std::string_view section,
                   std::string_view key) {
  constexpr std::string_view missing = "\n";  // never stored, because blanks at the ends are not
  const std::string text = RegistryReadText(from, section, key, missing);
  if (text != missing) RegistryWrite(tree, section, key, text);
}

}  // namespace starfolds
