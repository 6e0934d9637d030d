#include "idle/hindrances.h"

namespace starfolds {

void Hindrances::Report(const std::string& watcher, const QString& reason) {
  const auto former = reasons_.find(watcher);
  if (reason.isEmpty()) {
    if (former == reasons_.end()) return;
    reasons_.erase(former);
  } else {
    reasons_[watcher] = reason;
  }
  if (Changed) Changed();
}

void Hindrances::Refresh() {
  for (const auto& check : checks_) check();
}

QStringList Hindrances::Reasons() const {
  QStringList reasons;
  for (const auto& [watcher, reason] : reasons_) reasons.append(reason);
  return reasons;
}

}  // namespace starfolds
