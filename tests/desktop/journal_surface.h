// A surface in memory that lets a test read its journal.
#pragma once

#include <span>

#include "platform/surface.h"

namespace starfolds {

class JournalSurface : public Surface {
 public:
  JournalSurface(int width, int height)
      : Surface(static_cast<Integer>(width), static_cast<Integer>(height), 1 << 16) {}

  void Present() override { ForgetJournal(); }
  std::span<const PixelPlace> Journal() const { return {JournalBegin(), JournalEnd()}; }
};

}  // namespace starfolds
