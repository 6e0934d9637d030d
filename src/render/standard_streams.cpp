#include "render/standard_streams.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <stdio.h>
#else
#include <unistd.h>
#endif

namespace starfolds {

#ifdef _WIN32
bool ErrorIsTerminal() { return _isatty(_fileno(stderr)) != 0; }
void MakeOutputBinary() { _setmode(_fileno(stdout), _O_BINARY); }
#else
bool ErrorIsTerminal() { return isatty(STDERR_FILENO) != 0; }
void MakeOutputBinary() {}
#endif

}  // namespace starfolds
