// The saver that the idle service starts.
#pragma once

#include <QProcess>
#include <QTimer>
#include <functional>

namespace starfolds {

class SaverProcess {
 public:
  /// `program` is started with "--saver". `ended` is called from the event loop when it has ended
  /// or cannot be started; the text says what went wrong, and is empty for exit code 0.
  SaverProcess(QString program, std::function<void(const QString& fault)> ended);
  /// Ends the saver, and waits until it has ended.
  ~SaverProcess();

  /// Does nothing if it is running.
  void Start();
  /// Asks the saver to end; one that does not is killed after five seconds.
  void Stop();

 private:
  void Ended(const QString& fault);

  QString program_;
  std::function<void(const QString&)> ended_;
  QProcess process_;
  QTimer patience_;
};

}  // namespace starfolds
