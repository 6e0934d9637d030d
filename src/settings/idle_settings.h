// The settings of the idle service.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>

#include "platform/key_value_tree.h"
#include "settings/fields.h"

namespace starfolds {

/// Stored beside the other settings; templates do not contain them.
struct IdleSettings {
  bool Idle_On = false;       // the service starts the saver
  Integer Idle_Minutes = 5;   // without input
  Integer Idle_Battery = 20;  // percent of charge below which the saver does not run on battery

  bool operator==(const IdleSettings&) const = default;
};

/// This value of `Idle_Battery` means that the saver never runs on battery.
inline constexpr Integer kNeverOnBattery = 100;

/// In the order of the record.
std::span<const Field<IdleSettings>> IdleFields();
const Field<IdleSettings>& FieldOf(Setting<IdleSettings> setting);

/// Reads the stored settings. A value that is no number or out of its range is replaced by its
/// default, which `complain` is told in one line. nullopt if the tree cannot be read at present.
std::optional<IdleSettings> ReadIdleSettings(
    KeyValueTree& tree, const std::function<void(const UserText& line)>& complain);

/// Stores all settings or none. False if they could not be stored.
bool StoreIdleSettings(KeyValueTree& tree, const IdleSettings& settings);

}  // namespace starfolds
