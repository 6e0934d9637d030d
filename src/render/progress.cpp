#include "render/progress.h"

#include <cinttypes>
#include <cstdio>
#include <string>

namespace starfolds {

void Progress::Show(FrameNumber frame) {
  const auto percent = static_cast<int>(frame * 100 / frames_);
  if (!shown_ || percent == percent_) return;
  percent_ = percent;
  std::string bar(50, '.');
  bar.replace(0, static_cast<std::size_t>(percent / 2), static_cast<std::size_t>(percent / 2), '#');
  std::fprintf(stderr, "\r%s[%s] %3d %%  frame %" PRId64 " of %" PRId64, title_.c_str(),
               bar.c_str(), percent, frame, frames_);
}

void Progress::End() const {
  if (percent_ >= 0) std::fputc('\n', stderr);
}

}  // namespace starfolds
