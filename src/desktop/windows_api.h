// Windows' own windows, behind those of Qt.
#pragma once

#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX  // the C++ library of MinGW-w64 has defined it
#define NOMINMAX
#endif
#include <windows.h>

#include <QByteArray>
#include <QGuiApplication>
#include <QWindow>

#include "numbers/words.h"

namespace starfolds {

/// Whether the application object shows its windows on Windows' desktop, and not in memory.
inline bool OnWindowsDesktop() { return QGuiApplication::platformName() == "windows"; }

/// Creates the native window if it does not exist. Null if the window is not on Windows' desktop.
inline HWND NativeWindow(QWindow& window) {
  return OnWindowsDesktop() ? reinterpret_cast<HWND>(window.winId()) : nullptr;
}

/// The window of a number from a command line. Windows sign-extends numbers of windows, which have
/// 32 bits, to the size of a pointer.
inline HWND WindowOfNumber(Long number) {
  return reinterpret_cast<HWND>(static_cast<LONG_PTR>(number));
}

/// The message in a call of a native event filter; null if it is of another kind.
inline const MSG* WindowsMessage(const QByteArray& type, const void* message) {
  return type == "windows_generic_MSG" ? static_cast<const MSG*>(message) : nullptr;
}

}  // namespace starfolds
