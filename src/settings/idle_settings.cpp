#include "settings/idle_settings.h"

#include <variant>
#include <vector>

#include "numbers/text.h"
#include "settings/registry.h"

namespace starfolds {
namespace {

constexpr std::string_view kSection = "Idle";

using I = IdleSettings;

const Field<I> kIdleFields[] = {
    {"Idle_On", &I::Idle_On, RangeRule::Fixed, 0, 1,
     "Start the screen saver when there is no input"},
    {"Idle_Minutes", &I::Idle_Minutes, RangeRule::Fixed, 1, 240,
     "Minutes without input (1 - 240):"},
    {"Idle_Battery", &I::Idle_Battery, RangeRule::Fixed, 0, 100,
     "Least charge on battery in % (0 - 100):"},
};

bool IsInRange(const Field<I>& field, const std::string& text) {
  if (!IsNumeric(text)) return false;
  const double number = LenientNumber(text);
  return number >= field.Low && number <= field.High;
}

}  // namespace

std::span<const Field<IdleSettings>> IdleFields() { return kIdleFields; }

const Field<IdleSettings>& FieldOf(Setting<IdleSettings> setting) {
  for (const Field<I>& field : kIdleFields) {
    if (field.Where == setting) return field;
  }
  return kIdleFields[0];
}

std::optional<IdleSettings> ReadIdleSettings(
    KeyValueTree& tree, const std::function<void(const UserText& line)>& complain) {
  IdleSettings settings;
  std::vector<UserText> faults;
  TreeBulk look = TreeBulk::Look(tree);
  for (const Field<I>& field : kIdleFields) {
    const std::string standard = DefaultText(field);
    const std::string text = RegistryReadText(tree, kSection, field.Name, standard);
    if (IsInRange(field, text)) {
      SetFieldText(settings, field, text);
      continue;
    }
    faults.emplace_back(
        STARFOLDS_TEXT(
            "the setting %1 is %2, which is no number from %3 to %4; its default %5 is used"),
        std::vector<std::string>{std::string(field.Name), Quoted(text),
                                 NumberText(static_cast<Long>(field.Low)),
                                 NumberText(static_cast<Long>(field.High)), standard});
  }
  if (!look.Commit()) return std::nullopt;
  for (const UserText& fault : faults) complain(fault);
  return settings;
}

bool StoreIdleSettings(KeyValueTree& tree, const IdleSettings& settings) {
  TreeBulk change = TreeBulk::Change(tree);
  bool stored = true;
  for (const Field<I>& field : kIdleFields) {
    stored &= RegistryWrite(tree, kSection, field.Name, FieldText(settings, field));
  }
  return stored && change.Commit();
}

}  // namespace starfolds
