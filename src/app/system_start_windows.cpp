#define WIN32_LEAN_AND_MEAN
#ifndef NOMINMAX  // the C++ library of MinGW-w64 has defined it
#define NOMINMAX
#endif
#include <windows.h>

#include <shellapi.h>

#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "app/system_start.h"
#include "storage/windows_path.h"

namespace starfolds {
namespace {

constexpr std::wstring_view kBlanks = L" \t";

/// The program's name ends at a blank, or at the second quote if it begins with one.
std::wstring_view WithoutProgramName(std::wstring_view line) {
  bool quoted = false;
  std::size_t end = 0;
  for (; end < line.size(); ++end) {
    if (line[end] == L'"') quoted = !quoted;
    if (!quoted && kBlanks.find(line[end]) != std::wstring_view::npos) break;
  }
  const std::size_t begin = line.find_first_not_of(kBlanks, end);
  return begin == std::wstring_view::npos ? std::wstring_view() : line.substr(begin);
}

bool IsOpen(DWORD stream) {
  const HANDLE handle = GetStdHandle(stream);
  return handle != nullptr && handle != INVALID_HANDLE_VALUE;
}

/// A program without a console gets no standard streams from a shell that did not redirect them.
void UseConsoleOfParent() {
  if (IsOpen(STD_OUTPUT_HANDLE) || IsOpen(STD_ERROR_HANDLE)) return;
  if (!AttachConsole(ATTACH_PARENT_PROCESS)) return;
  std::freopen("CONOUT$", "w", stdout);
  std::freopen("CONOUT$", "w", stderr);
}

}  // namespace

/// Not those of `main`, which are in the code page of the system if that is too old for the
/// manifest's.
std::vector<std::string> ProgramArguments(int, char**) {
  int count = 0;
  wchar_t** const split = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> arguments;
  for (int i = 1; i < count; ++i) arguments.push_back(NarrowText(split[i]));
  LocalFree(split);
  return arguments;
}

std::optional<std::string> RawCommandLine() {
  return NarrowText(std::wstring(WithoutProgramName(GetCommandLineW())));
}

void PrepareProcess() {
  SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX | SEM_NOOPENFILEERRORBOX);
  _set_error_mode(_OUT_TO_STDERR);
  UseConsoleOfParent();
}

bool OnTerminal() { return GetConsoleWindow() != nullptr; }

}  // namespace starfolds
