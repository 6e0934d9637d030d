// A program of its own with a window, as the system's dialog for screen savers has one. It is
// controlled by lines on its standard input, and answers each on its standard output:
//
//   size W H     gives the inside of the window another size
//   children     the windows inside: process, place, size, "enabled" or "disabled"
//   windows      the visible windows of all programs: process, place, size, flags, caption
//   saver        asks the foreground window to start a screen saver, as the system does when it is
//   idle destroy      destroys the window
//
// Without a line: "window N" when it is ready, "button" for a click.
#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <cstdio>
#include <iostream>
#include <string>

namespace {

constexpr UINT kLine = WM_APP;

DWORD ProcessOf(HWND window) {
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  return process;
}

void PrintPlace(HWND window, HWND relativeTo) {
  RECT place{};
  GetWindowRect(window, &place);
  MapWindowPoints(nullptr, relativeTo, reinterpret_cast<POINT*>(&place), 2);
  std::printf("%lu %ld,%ld %ldx%ld", ProcessOf(window), place.left, place.top,
              place.right - place.left, place.bottom - place.top);
}

BOOL CALLBACK PrintChild(HWND child, LPARAM parent) {
  PrintPlace(child, reinterpret_cast<HWND>(parent));
  std::printf(" %s\n", IsWindowEnabled(child) ? "enabled" : "disabled");
  return TRUE;
}

BOOL CALLBACK PrintWindow(HWND window, LPARAM) {
  char caption[200] = "";
  GetWindowTextA(window, caption, sizeof caption);
  if (!IsWindowVisible(window)) return TRUE;
  PrintPlace(window, nullptr);
  const auto style = GetWindowLongPtrW(window, GWL_EXSTYLE);
  std::printf("%s%s%s owner=%lld [%s]\n", (style & WS_EX_TOPMOST) != 0 ? " topmost" : "",
              GetForegroundWindow() == window ? " foreground" : "",
              IsWindowEnabled(window) ? "" : " disabled",
              reinterpret_cast<long long>(GetWindow(window, GW_OWNER)), caption);
  return TRUE;
}

void Resize(HWND window, int width, int height) {
  RECT frame{0, 0, width, height};
  AdjustWindowRect(&frame, static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE)), FALSE);
  SetWindowPos(window, nullptr, 0, 0, frame.right - frame.left, frame.bottom - frame.top,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

DWORD_PTR AnswerOfForeground(UINT message, WPARAM wide) {
  DWORD_PTR answer = 0;
  SendMessageTimeoutW(GetForegroundWindow(), message, wide, 0, SMTO_BLOCK, 30000, &answer);
  return answer;
}

/// A session that does not end after all, and one that does.
void EndSession() {
  AnswerOfForeground(WM_ENDSESSION, FALSE);
  const bool may = AnswerOfForeground(WM_QUERYENDSESSION, 0) != 0;
  std::printf("the session %s end\n", may ? "may" : "may not");
  if (may) AnswerOfForeground(WM_ENDSESSION, TRUE);
}

void Obey(HWND window, const std::string& line) {
  int width = 0;
  int height = 0;
  if (std::sscanf(line.c_str(), "size %d %d", &width, &height) == 2) Resize(window, width, height);
  if (line == "children") EnumChildWindows(window, PrintChild, reinterpret_cast<LPARAM>(window));
  if (line == "windows") EnumWindows(PrintWindow, 0);
  if (line == "session") EndSession();
  if (line == "destroy") DestroyWindow(window);
  std::printf("done\n");
  std::fflush(stdout);
}

LRESULT CALLBACK Handle(HWND window, UINT message, WPARAM wide, LPARAM pointer) {
  switch (message) {
    case WM_LBUTTONDOWN:
      std::printf("button\n");
      std::fflush(stdout);
      return 0;
    case kLine: Obey(window, *reinterpret_cast<std::string*>(pointer)); return 0;
    case WM_DESTROY: PostQuitMessage(0); return 0;
    default: return DefWindowProcW(window, message, wide, pointer);
  }
}

/// Lines are handled by the thread of the window, one at a time.
DWORD WINAPI ReadLines(void* window) {
  for (std::string line; std::getline(std::cin, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    SendMessageW(static_cast<HWND>(window), kLine, 0, reinterpret_cast<LPARAM>(&line));
  }
  return 0;
}

}  // namespace

int main() {
  WNDCLASSW kind{};
  kind.lpfnWndProc = Handle;
  kind.lpszClassName = L"StarfoldsTestHost";
  kind.hInstance = GetModuleHandleW(nullptr);
  kind.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
  RegisterClassW(&kind);
  const HWND window =
      CreateWindowW(kind.lpszClassName, L"Host", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN | WS_VISIBLE,
                    100, 100, 400, 300, nullptr, nullptr, kind.hInstance, nullptr);
  Resize(window, 152, 112);
  std::printf("window %lld\n", reinterpret_cast<long long>(window));
  std::fflush(stdout);
  CreateThread(nullptr, 0, ReadLines, window, 0, nullptr);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
}
