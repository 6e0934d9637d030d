// `starfolds-idle`: starts the saver when there was no input for some time.
#include <QCoreApplication>
#include <QLockFile>
#include <QStandardPaths>
#include <QTimer>
#include <string>
#include <string_view>
#include <vector>

#include "desktop/signals.h"
#include "desktop/translation.h"
#include "idle/idle_config.h"
#include "idle/options.h"
#include "idle/service.h"
#include "idle/surroundings.h"
#include "platform/console.h"
#include "storage/storage_places.h"

namespace starfolds {
namespace {

constexpr int kExitCannotDo = 1;
constexpr int kExitWrongUse = 2;
constexpr IdleTime kTestTime{5'000};
/// In milliseconds. Programs of the desktop that start at the same login come first: some end if
/// their name on the bus is taken.
constexpr int kLogin = 60'000;
constexpr int kLongestAnswer = 1500;  // of the buses, for --status, in milliseconds

int Fail(const QString& message, int exitCode) {
  Complain("starfolds-idle", message.toStdString());
  return exitCode;
}

int FailWithHint(const UserText& wrong) {
  const ShownText shown = TranslationBeforeStart();
  Complain("starfolds-idle",
           InOneLine(wrong, shown) + " " + shown(STARFOLDS_TEXT("(--help lists the options)")));
  return kExitWrongUse;
}

/// The context of the texts below.
class IdleProgram {
  Q_DECLARE_TR_FUNCTIONS(IdleProgram)
};

void PrintLine(const QString& line) { Print(Harmless(line.toStdString()) + "\n"); }

/// Beside this program, or else in the search path.
QString SaverProgram(const IdleOptions& options) {
  if (!options.Saver.empty()) return QString::fromStdString(options.Saver);
  const QString name = "starfolds";
  const QString beside =
      QStandardPaths::findExecutable(name, {QCoreApplication::applicationDirPath()});
  return beside.isEmpty() ? name : beside;
}

/// One service per display: a user may have several sessions.
QString LockPath() {
  QString display = qEnvironmentVariable("WAYLAND_DISPLAY");
  if (display.isEmpty()) display = qEnvironmentVariable("DISPLAY");
  QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  if (folder.isEmpty()) folder = QStandardPaths::writableLocation(QStandardPaths::TempLocation);
  return folder + "/starfolds-idle-" + display.replace('/', '_') + ".lock";
}

QString NoSource(const IdleSurroundings& around) {
  if (around.HasDisplay()) {
    return IdleProgram::tr("this desktop does not tell programs when there is no input");
  }
  return IdleProgram::tr(
      "there is no desktop to watch (neither DISPLAY nor WAYLAND_DISPLAY reaches one)");
}

IdlePlan PlanOf(const IdleConfig& config) {
  return {std::chrono::minutes(config.Idle.Idle_Minutes), config.EndsOnInput, false};
}

/// Runs until a signal, the end of the window system, or settings that turn it off.
int Serve(const IdleOptions& options, SqliteTree& tree) {
  const auto config = ReadIdleConfig(tree);
  if (!config) return Fail(IdleProgram::tr("the settings cannot be read"), kExitCannotDo);
  if (!config->Idle.Idle_On) return 0;
  QLockFile lock(LockPath());
  lock.setStaleLockTime(0);
  if (!lock.tryLock() && lock.error() == QLockFile::LockFailedError) return 0;

  IdleSurroundings around(QCoreApplication::quit, config->Idle.Idle_Battery);
  if (!around.Source()) return Fail(NoSource(around), kExitCannotDo);
  InhibitService inhibitions(around.SessionBus(), around.Against());
  QTimer::singleShot(kLogin, &inhibitions, &InhibitService::Offer);
  IdleService service(*around.Source(), around.Against(), SaverProgram(options), PlanOf(*config),
                      PrintLine, QCoreApplication::quit);
  service.ShowingChanged = [&](bool showing) { inhibitions.SetShowing(showing); };
  const IdleConfigWatch changes(tree, OwnTreeFiles().User, *config, [&](const IdleConfig& now) {
    if (!now.Idle.Idle_On) return QCoreApplication::quit();
    around.Battery().SetLimit(now.Idle.Idle_Battery);
    service.Change(PlanOf(now));
  });
  PrintLine(IdleProgram::tr("Watching: %1").arg(around.Source()->Name()));
  return QCoreApplication::exec();
}

int Test(const IdleOptions& options, SqliteTree& tree) {
  const IdleConfig config = ReadIdleConfig(tree).value_or(IdleConfig());
  IdleSurroundings around(QCoreApplication::quit, config.Idle.Idle_Battery);
  if (!around.Source()) return Fail(NoSource(around), kExitCannotDo);
  IdleService service(*around.Source(), around.Against(), SaverProgram(options),
                      {kTestTime, config.EndsOnInput, true}, PrintLine, QCoreApplication::quit);
  PrintLine(IdleProgram::tr("Waiting for five seconds without input."));
  return QCoreApplication::exec();
}

QString ServiceState() {
  QLockFile lock(LockPath());
  lock.setStaleLockTime(0);
  if (lock.tryLock()) return IdleProgram::tr("not running");
  qint64 process = 0;
  QString host, program;
  lock.getLockInfo(&process, &host, &program);
  return IdleProgram::tr("running, process %1").arg(process);
}

void PrintStatus(IdleSurroundings& around, const std::optional<IdleConfig>& config) {
  around.Against().Refresh();
  const IdleSource* const source = around.Source();
  PrintLine(IdleProgram::tr("Idleness: %1").arg(source ? source->Name() : NoSource(around)));
  const QStringList against = around.Against().Reasons();
  PrintLine(IdleProgram::tr("Against a screen saver now: %1")
                .arg(against.isEmpty() ? IdleProgram::tr("nothing") : against.join(' ')));
  PrintLine(IdleProgram::tr("Service: %1").arg(ServiceState()));
  if (!config) return PrintLine(IdleProgram::tr("Settings: they cannot be read"));
  PrintLine(IdleProgram::tr("Settings: %1, after %2 min, on battery from %3 %")
                .arg(config->Idle.Idle_On ? IdleProgram::tr("on") : IdleProgram::tr("off"))
                .arg(config->Idle.Idle_Minutes)
                .arg(config->Idle.Idle_Battery));
}

/// Waits for the answers of the buses, which come in any order or not at all.
int Status(SqliteTree& tree) {
  const auto config = ReadIdleConfig(tree);
  IdleSurroundings around(QCoreApplication::quit, config.value_or(IdleConfig()).Idle.Idle_Battery);
  QTimer::singleShot(kLongestAnswer, QCoreApplication::quit);
  QCoreApplication::exec();
  PrintStatus(around, config);
  return around.Source() ? 0 : kExitCannotDo;
}

}  // namespace
}  // namespace starfolds

int main(int argc, char** argv) {
  using namespace starfolds;
  const std::vector<std::string_view> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
  IdleOptions options;
  if (const TextFault wrong = ParseIdleOptions(arguments, options)) return FailWithHint(*wrong);
  if (options.AskedFor == IdleRole::Help) {
    return Print(HelpOf(IdleGuide(), TranslationBeforeStart())) ? 0 : kExitCannotDo;
  }
  if (options.AskedFor == IdleRole::Version) {
    return Print("starfolds-idle " STARFOLDS_VERSION "\n") ? 0 : kExitCannotDo;
  }
  StopSignals stopSignals;
  const QCoreApplication application(argc, argv);
  InstallTranslations();
  stopSignals.Watch(QCoreApplication::quit);
  SqliteTree tree(OwnTreeFiles(), [](const UserText& line) {
    Complain("starfolds-idle", InOneLine(line, TranslatedText));
  });
  switch (options.AskedFor) {
    case IdleRole::Status: return Status(tree);
    case IdleRole::Test: return Test(options, tree);
    default: return Serve(options, tree);
  }
}
