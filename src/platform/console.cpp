#include "platform/console.h"

#include <cstdio>

namespace starfolds {

std::string Harmless(std::string_view text) {
  std::string harmless(text);
  for (char& c : harmless) {
    const auto code = static_cast<unsigned char>(c);
    if (code < ' ' || code == 0x7F) c = '?';
  }
  return harmless;
}

void Complain(std::string_view program, std::string_view message) {
  const std::string line = std::string(program) + ": " + Harmless(message) + "\n";
  std::fputs(line.c_str(), stderr);
}

bool Print(const std::string& text) {
  return std::fputs(text.c_str(), stdout) >= 0 && std::fflush(stdout) == 0;
}

}  // namespace starfolds
