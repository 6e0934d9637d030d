#include "platform/console.h"

#include <cstdio>

#include "numbers/utf8.h"

namespace starfolds {

std::string Harmless(std::string_view text) {
  std::string harmless(text);
  const bool isUtf8 = IsUtf8(text);
  const auto isHighControl = [](unsigned char code) { return code >= 0x80 && code < 0xA0; };
  for (std::size_t i = 0; i < harmless.size(); ++i) {
    const auto code = static_cast<unsigned char>(harmless[i]);
    if (code < ' ' || code == 0x7F || (!isUtf8 && isHighControl(code))) {
      harmless[i] = '?';
    } else if (isUtf8 && code == 0xC2 && isHighControl(static_cast<unsigned char>(text[i + 1]))) {
      harmless.replace(i, 2, 2, '?');
    }
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
