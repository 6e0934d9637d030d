// The parts of `FileWriter` that are the same on all systems.
#include "storage/file_writer.h"

#include <unistd.h>

#include <cerrno>
#include <utility>

#include "storage/descriptor.h"

namespace starfolds {

FileWriter::~FileWriter() { Close(); }

FileWriter::Fault FileWriter::UseStream(int file) {
  if (file >= 0) stream_ = fdopen(file, "wb");
  if (stream_) return std::nullopt;
  const int error = errno;
  if (file >= 0) close(file);
  return Reason(error);
}

FileWriter::Fault FileWriter::Write(std::string_view bytes) {
  errno = 0;
  if (std::fwrite(bytes.data(), 1, bytes.size(), stream_) == bytes.size()) return std::nullopt;
  return Reason(errno);
}

bool FileWriter::Close() {
  std::FILE* const stream = std::exchange(stream_, nullptr);
  return !stream || stream == stdout || std::fclose(stream) == 0;
}

}  // namespace starfolds
