// The stored settings as the idle service sees them, and their changes.
#pragma once

#include <QFileSystemWatcher>
#include <QTimer>
#include <functional>
#include <optional>

#include "settings/idle_settings.h"
#include "storage/sqlite_tree.h"

namespace starfolds {

struct IdleConfig {
  IdleSettings Idle;
  bool EndsOnInput = true;  // as in `IdleModel`, by the advanced settings

  bool operator==(const IdleConfig&) const = default;
};

/// Reads the settings. nullopt if they cannot be read at present.
std::optional<IdleConfig> ReadIdleConfig(KeyValueTree& tree);

/// Tells of changes by other processes.
class IdleConfigWatch {
 public:
  /// `changed` is called from the event loop with settings that differ from `known`, and from those
  /// of the call before.
  IdleConfigWatch(KeyValueTree& tree, const std::string& file, IdleConfig known,
                  std::function<void(const IdleConfig&)> changed);

 private:
  void Look();

  KeyValueTree& tree_;
  IdleConfig known_;
  std::function<void(const IdleConfig&)> changed_;
  QFileSystemWatcher folder_;
  QTimer quiet_;
};

}  // namespace starfolds
