// Starts Qt, which aborts the process if it cannot connect to the display.
#pragma once

#include <QApplication>
#include <array>
#include <optional>

namespace starfolds {

/// Whether the environment names a display: an X server, a Wayland compositor or a Qt platform.
bool NamesDesktop();

/// Whether a message box would be visible: there is a display with a screen, and the program was
/// not started from a terminal, which shows messages instead.
bool MessageBoxesAreSeen();

/// The application object. If the display cannot be reached or the platform plug-in is missing, the
/// constructor writes one line to standard error and ends the process with exit code 1.
class Toolkit {
 public:
  explicit Toolkit(char* program);

  /// Ends the process on Wayland, and returns elsewhere. Everything of ours but this object must
  /// have been destroyed.
  ///
  /// The destructor of Qt 6.4's connection to the compositor may never return. Two threads read the
  /// connection; libwayland lets the first one that reads wait until the other has read or
  /// cancelled. The destructor stops them one after the other. If the first has just been told to
  /// read and is stopped before it wakes up, it ends without cancelling; the second then waits for
  /// it for ever if the compositor has sent something, and the destructor waits for the second.
  void EndWhereQtMayHang(int exitCode) const;

 private:
  /// Only the program's name: Qt would take some of the system's switches for its own options.
  int argumentCount_ = 1;
  std::array<char*, 2> arguments_;
  std::optional<QApplication> application_;
};

}  // namespace starfolds
