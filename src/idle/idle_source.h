// Where the idle service learns that there is no input.
#pragma once

#include <QString>
#include <functional>

#include "idle/idle_model.h"

namespace starfolds {

class IdleSource {
 public:
  std::function<void()> Idled;    // no input for the watched time
  std::function<void()> Resumed;  // the first input after `Idled`

  virtual ~IdleSource() = default;

  /// The name of the protocol, for the user.
  virtual QString Name() const = 0;

  /// Watches anew for this time without input, above zero. Some sources count it from the last
  /// input, others from this call. Both events may come again and again.
  virtual void Watch(IdleTime time) = 0;
};

}  // namespace starfolds
