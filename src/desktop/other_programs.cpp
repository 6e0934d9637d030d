#include "desktop/other_programs.h"

#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace starfolds {
namespace {

struct Program {
  const char* Name;
  const char* Arguments;  // separated by blanks
};

/// The first one that is installed is started: those of desktops first, then stand-alone ones.
constexpr Program kSystemInfo[] = {
    {"msinfo32.exe", ""},
    {"kinfocenter", ""},
    {"cinnamon-settings", "info"},
    {"hardinfo2", ""},
    {"hardinfo", ""},
    {"lshw-gtk", ""},
    {"mate-system-monitor", "--show-system-tab"},
    {"gnome-control-center", "info-overview"},
    {"gnome-system-monitor", ""},
};

}  // namespace

bool StartsOtherPrograms::OpenWebPage(const std::string& url) {
  return QDesktopServices::openUrl(QUrl(QString::fromStdString(url)));
}

bool StartsOtherPrograms::ShowSystemInfo() {
  for (const Program& program : kSystemInfo) {
    const QString path = QStandardPaths::findExecutable(program.Name);
    const auto arguments = QString(program.Arguments).split(' ', Qt::SkipEmptyParts);
    if (!path.isEmpty() && QProcess::startDetached(path, arguments)) return true;
  }
  return false;
}

}  // namespace starfolds
