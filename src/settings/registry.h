// Access to single values of the stored tree. The typed readers never fail: they return the
// caller's default for a value that cannot be read.
#pragma once

#include <string>
#include <string_view>

#include "numbers/words.h"
#include "platform/key_value_tree.h"
#include "platform/message_boxes.h"

namespace starfolds {

/// The hive of an access. Settings are under 1; 0 has what earlier versions stored for the whole
/// machine.
enum class RootSelector : Integer {
  LocalMachine = 0,
  CurrentUser = 1,
  ClassesRoot = 2,
  Users = 3,  // and any other number
};

inline constexpr std::string_view kAppName = "TSLN_Starfold";

/// The length of the longest value that can be read back: in user-perceived characters, and in
/// bytes (127 of the longest emoji in use).
inline constexpr std::size_t kLongestValue = 127;
inline constexpr std::size_t kMostBytesOfValue = 4096;

// The sections of the tree.
namespace sections {
inline constexpr std::string_view kGeneral = "General";
inline constexpr std::string_view kMain = "General\\Main";
inline constexpr std::string_view kLevelsPlace = "General\\Levels";
inline constexpr std::string_view kIfsPlace = "General\\IFS";
inline constexpr std::string_view kAtomicsPlace = "General\\Atomics";
inline constexpr std::string_view kAdvancedPlace = "General\\Advanced";
inline constexpr std::string_view kIdlePlace = "General\\Idle";
inline constexpr std::string_view kTemplatePlace = "General\\Template";
inline constexpr std::string_view kSystemDiagPlace = "General\\SystemDiag";
inline constexpr std::string_view kHelpPlace = "General\\Help";
inline constexpr std::string_view kTemplate = "Template";
inline constexpr std::string_view kAdvanced = "Advanced";
inline constexpr std::string_view kUniverse = "Universe";
}  // namespace sections

/// The text of a value, up to its first NUL; `fallback` if the value is missing or too long.
std::string RegistryReadText(KeyValueTree& tree, std::string_view section, std::string_view key,
                             std::string_view fallback = {},
                             RootSelector root = RootSelector::CurrentUser,
                             std::string_view app = kAppName);

/// The value as a number, rounded half to even for an integer type. `fallback` if the text is not a
/// number; 0 if the number is out of the type's range.
Integer RegistryReadInteger(KeyValueTree& tree, std::string_view section, std::string_view key,
                            Integer fallback, RootSelector root = RootSelector::CurrentUser,
                            std::string_view app = kAppName);
Long RegistryReadLong(KeyValueTree& tree, std::string_view section, std::string_view key,
                      Long fallback, RootSelector root = RootSelector::CurrentUser,
                      std::string_view app = kAppName);
Single RegistryReadSingle(KeyValueTree& tree, std::string_view section, std::string_view key,
                          Single fallback, RootSelector root = RootSelector::CurrentUser,
                          std::string_view app = kAppName);

/// Stores the text without blanks at its ends; numbers as their shortest text. True if it was
/// stored.
bool RegistryWrite(KeyValueTree& tree, std::string_view section, std::string_view key,
                   std::string_view value, RootSelector root = RootSelector::CurrentUser,
                   std::string_view app = kAppName);
bool RegistryWrite(KeyValueTree& tree, std::string_view section, std::string_view key, Long value,
                   RootSelector root = RootSelector::CurrentUser, std::string_view app = kAppName);

/// The beginning of a text, in whole characters, that a value can store.
std::string_view FirstStorableCharacters(std::string_view text);

/// The same without blanks at the ends.
std::string_view StorableText(std::string_view text);

/// Removes `subkey` below `section`, if it exists.
void RegistryDeleteKey(KeyValueTree& tree, std::string_view app, std::string_view section,
                       std::string_view subkey, RootSelector root);

/// Whether the user's tree can be written. If not, a message box says so.
bool RegistryWriteTest(KeyValueTree& tree, MessageBoxes& boxes);

/// Copies a value as text from the machine's hive of `from` to the user's hive of `tree`; writes
/// `fallback` if it is missing.
void CopyMachineValueToUser(KeyValueTree& tree, KeyValueTree& from, std::string_view section,
                            std::string_view key, std::string_view fallback);

/// Copies a value as text from the user's hive of one tree to that of another, if it exists.
void CopyUserValue(KeyValueTree& tree, KeyValueTree& from, std::string_view section,
                   std::string_view key);

}  // namespace starfolds
