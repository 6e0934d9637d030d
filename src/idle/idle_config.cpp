#include "idle/idle_config.h"

#include <QFileInfo>
#include <utility>

#include "desktop/translation.h"
#include "platform/console.h"
#include "settings/registry.h"

namespace starfolds {
namespace {

/// A transaction changes the folder several times within this time in milliseconds.
constexpr int kQuiet = 300;

}  // namespace

std::optional<IdleConfig> ReadIdleConfig(KeyValueTree& tree) {
  TreeBulk look = TreeBulk::Look(tree);
  const auto isOn = [&](std::string_view setting) {
    return RegistryReadText(tree, sections::kAdvanced, setting) == "1";
  };
  IdleConfig config;
  const auto idle = ReadIdleSettings(tree, [](const UserText& line) {
    Complain("starfolds-idle", InOneLine(line, TranslatedText));
  });
  config.EndsOnInput = !isOn("Adv_MouseMove") && !isOn("Adv_DispBackG");
  if (!look.Commit() || !idle) return std::nullopt;
  config.Idle = *idle;
  return config;
}

/// Watches the folder, because each transaction creates a journal there, and the file may be
/// replaced.
IdleConfigWatch::IdleConfigWatch(KeyValueTree& tree, const std::string& file, IdleConfig known,
                                 std::function<void(const IdleConfig&)> changed)
    : tree_(tree), known_(known), changed_(std::move(changed)) {
  folder_.addPath(QFileInfo(QString::fromStdString(file)).absolutePath());
  quiet_.setSingleShot(true);
  quiet_.setInterval(kQuiet);
  quiet_.callOnTimeout([this] { Look(); });
  QObject::connect(&folder_, &QFileSystemWatcher::directoryChanged, [this] { quiet_.start(); });
}

/// The settings stay as they are while they cannot be read.
void IdleConfigWatch::Look() {
  const auto config = ReadIdleConfig(tree_);
  if (!config || *config == known_) return;
  known_ = *config;
  changed_(*config);
}

}  // namespace starfolds
