// The start of the toolkit, which aborts the process if it cannot reach the desktop.
#pragma once

#include <QApplication>
#include <array>
#include <optional>

namespace starfolds {

/// Whether the environment names a desktop: an X server, a Wayland compositor or a platform of Qt.
bool NamesDesktop();

/// Whether a message box would be seen: there is a desktop, it has a screen, and the program was
/// not started on a terminal, where messages are read instead.
bool MessageBoxesAreSeen();

/// The application object. If the desktop cannot be reached or the platform plug-in is missing, the
/// constructor writes one line to the standard error and ends the process with exit code 1.
class Toolkit {
 public:
  explicit Toolkit(char* program);

 private:
  /// Only the program's name: the toolkit would take some of the system's switches for its own.
  int argumentCount_ = 1;
  std::array<char*, 2> arguments_;
  std::optional<QApplication> application_;
};

}  // namespace starfolds
