#include "info/report.h"

#include <QDir>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QOperatingSystemVersion>
#include <QScreen>
#include <QStringList>
#include <QSysInfo>
#include <QtGlobal>
#include <algorithm>

#include "settings/product.h"
#include "widgets/dialog_parts.h"

namespace starfolds {
namespace {

QString WithoutHome(const QString& path) {
  const QString home = QDir::homePath();
  const bool isBelow = path.startsWith(home + '/');
  return isBelow ? "~" + path.mid(home.size()) : path;
}

/// The desktop session by its environment variables.
QString Session() {
  QStringList found;
  for (const char* name : {"XDG_SESSION_TYPE", "XDG_CURRENT_DESKTOP", "QT_SCALE_FACTOR",
                           "QT_SCREEN_SCALE_FACTORS", "QT_QPA_PLATFORMTHEME"}) {
    if (qEnvironmentVariableIsSet(name)) {
      found += QString("%1=%2").arg(name, qEnvironmentVariable(name).left(80));
    }
  }
  return found.isEmpty() ? "unknown" : found.join(", ");
}

QString Described(const QScreen& screen, int number) {
  const QRect place = screen.geometry();
  return QString(
             "Screen %1: \"%2\", %3 x %4 at %5,%6, scale %7, %8 dots per inch, %9 bits, %10 Hz%11")
      .arg(QString::number(number), screen.name(), QString::number(place.width()),
           QString::number(place.height()), QString::number(place.x()), QString::number(place.y()),
           QString::number(screen.devicePixelRatio()), QString::number(screen.logicalDotsPerInch()))
      .arg(screen.depth())
      .arg(QString::number(screen.refreshRate(), 'f', 1),
           &screen == QGuiApplication::primaryScreen() ? ", primary" : "");
}

QString Described(const FrameCost& cost) {
  const double frames = std::max(cost.Frames, 1);
  return QString("Frame: %1 ms of processor time, %2 frames in %3 s (%4 stars, %5 x %6, in memory)")
      .arg(cost.ProcessorSeconds * 1000 / frames, 0, 'f', 3)
      .arg(cost.Frames)
      .arg(cost.Seconds, 0, 'f', 2)
      .arg(cost.Stars)
      .arg(cost.Width)
      .arg(cost.Height);
}

}  // namespace

std::string SystemName() { return QSysInfo::prettyProductName().toStdString(); }

std::string SystemVersion() {
  const auto windows = QOperatingSystemVersion::current();
  if (windows.majorVersion() > 0) {
    return std::to_string(windows.majorVersion()) + "." +
           std::to_string(std::max(windows.minorVersion(), 0));
  }
  return QSysInfo::kernelVersion().section('.', 0, 1).toStdString();
}

std::string DiagnosticsReport(const ProgramFacts& facts, const std::string& registryAccess,
                              const FrameCost& cost) {
  QStringList lines;
  lines += QString("%1 %2, build %3")
               .arg(Shown(kProductName), Shown(kProductVersion), Shown(facts.Version));
  lines += QString("Qt %1, built with %2").arg(qVersion(), QLibraryInfo::build());
  lines += QString("System: %1, %2 %3, %4")
               .arg(Shown(SystemName()), QSysInfo::kernelType(), QSysInfo::kernelVersion(),
                    QSysInfo::currentCpuArchitecture());
  lines += QString("Platform plug-in: %1").arg(QGuiApplication::platformName());
  lines += "Session: " + Session();
  int number = 0;
  for (const QScreen* screen : QGuiApplication::screens()) lines += Described(*screen, ++number);
  lines += QString("Stored settings: %1, write test %2")
               .arg(WithoutHome(Shown(facts.TreePlace)), Shown(registryAccess));
  lines += Described(cost);
  return lines.join('\n').toStdString() + "\n";
}

}  // namespace starfolds
