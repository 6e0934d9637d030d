#include "idle/saver_process.h"

#include <signal.h>
#include <unistd.h>
#ifdef __linux__
#include <sys/prctl.h>
#endif

#include <QCoreApplication>
#include <utility>

namespace starfolds {
namespace {

constexpr int kLongestEnd = 5000;  // milliseconds

/// Called in the child process before the program is executed: a saver without the service would
/// not end at the screen lock. The service may have ended already.
void EndWithService([[maybe_unused]] QProcess& process) {
#ifdef __linux__
  process.setChildProcessModifier([service = getpid()] {
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (getppid() != service) _exit(0);
  });
#endif
}

}  // namespace

SaverProcess::SaverProcess(QString program, std::function<void(const QString&)> ended)
    : program_(std::move(program)), ended_(std::move(ended)) {
  process_.setProcessChannelMode(QProcess::ForwardedChannels);
  process_.setStandardInputFile(QProcess::nullDevice());
  EndWithService(process_);
  patience_.setSingleShot(true);
  patience_.callOnTimeout([this] { process_.kill(); });
  QObject::connect(&process_, &QProcess::finished, [this](int code, QProcess::ExitStatus status) {
    const bool well = status == QProcess::NormalExit && code == 0;
    Ended(well ? QString() : QCoreApplication::translate("SaverProcess", "the saver has failed"));
  });
  QObject::connect(&process_, &QProcess::errorOccurred, [this](QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart) Ended(process_.errorString());
  });
}

SaverProcess::~SaverProcess() {
  process_.disconnect();
  if (process_.state() == QProcess::NotRunning) return;
  process_.terminate();
  if (process_.waitForFinished(kLongestEnd)) return;
  process_.kill();
  process_.waitForFinished(kLongestEnd);
}

void SaverProcess::Start() {
  if (process_.state() == QProcess::NotRunning) process_.start(program_, {"--saver"});
}

void SaverProcess::Stop() {
  if (process_.state() == QProcess::NotRunning) return;
  process_.terminate();
  patience_.start(kLongestEnd);
}

void SaverProcess::Ended(const QString& fault) {
  patience_.stop();
  ended_(fault);
}

}  // namespace starfolds
