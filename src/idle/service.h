// The idle service: the model of its decisions, tied to the desktop and to the saver.
#pragma once

#include <QCoreApplication>
#include <QString>
#include <QTimer>
#include <functional>

#include "idle/desktop_watches.h"
#include "idle/idle_model.h"
#include "idle/idle_source.h"
#include "idle/saver_process.h"

namespace starfolds {

struct IdlePlan {
  IdleTime Timeout{};
  bool EndsOnInput = true;  // as in `IdleModel`
  bool Once = false;        // end after the saver has run once
};

class IdleService {
  Q_DECLARE_TR_FUNCTIONS(IdleService)

 public:
  using Say = std::function<void(const QString& line)>;

  /// Begins to watch. `say` is told what happens, in lines for the user. `done` is called when a
  /// service that runs the saver once has nothing more to do.
  IdleService(IdleSource& source, Hindrances& hindrances, const QString& program,
              const IdlePlan& plan, Say say, std::function<void()> done);

  /// New settings.
  void Change(const IdlePlan& plan);

  /// Is told when the saver is shown and when it no longer is.
  std::function<void(bool)> ShowingChanged;

 private:
  void Do(const IdleStep& step);
  void HindrancesChanged();
  void SourceIdled();
  void SaverEnded(const QString& fault);

  IdleSource& source_;
  Hindrances& hindrances_;
  IdlePlan plan_;
  Say say_;
  std::function<void()> done_;
  IdleModel model_;
  QTimer timer_;
  SaverProcess saver_;
};

}  // namespace starfolds
