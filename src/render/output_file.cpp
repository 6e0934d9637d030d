#include "render/output_file.h"

#include "numbers/text.h"
#include "render/standard_streams.h"

namespace starfolds {

bool IsStandardOutput(const std::string& path) { return path == "-" || path == "/dev/stdout"; }

Fault OutputFile::Open(const std::string& path) {
  path_ = path;
  if (!IsStandardOutput(path)) return WithName(writer_.Open(path, Targets::FilesAndStreams));
  MakeOutputBinary();
  writer_.OpenStandardOutput();
  return std::nullopt;
}

Fault OutputFile::Write(std::span<const std::uint8_t> bytes) {
  return WithName(writer_.Write({reinterpret_cast<const char*>(bytes.data()), bytes.size()}));
}

Fault OutputFile::Commit() { return WithName(writer_.Commit()); }

std::string OutputFile::CannotWrite(const std::string& reason) const {
  const std::string name = IsStandardOutput(path_) ? "the standard output" : Quoted(path_);
  return "cannot write " + name + ": " + reason;
}

Fault OutputFile::WithName(const Fault& reason) const {
  return reason ? Fault(CannotWrite(*reason)) : std::nullopt;
}

}  // namespace starfolds
