// What forbids the saver at present, as the parts of the service that watch the desktop report it.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace starfolds {

class Hindrances {
 public:
  std::function<void()> Changed;    // `Any` may have changed
  std::function<void()> LockAsked;  // the desktop is about to lock the screen

  /// Reports what `watcher` sees, as a sentence for the user; an empty one: nothing that forbids
  /// the saver. Replaces its former report.
  void Report(const std::string& watcher, const QString& reason);

  /// Adds a check that is made when `Refresh` is called, for what sends no events. It calls
  /// `Report`.
  void AddCheck(std::function<void()> check) { checks_.push_back(std::move(check)); }
  void Refresh();

  bool Any() const { return !reasons_.empty(); }
  QStringList Reasons() const;

 private:
  std::map<std::string, QString> reasons_;
  std::vector<std::function<void()>> checks_;
};

}  // namespace starfolds
