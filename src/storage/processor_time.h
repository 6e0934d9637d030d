// The processor time that this process has used.
#pragma once

#include <chrono>

namespace starfolds {

/// Of all threads, in user and kernel mode. Unlike the time of a clock it does not pass while the
/// process waits or the machine is suspended.
std::chrono::nanoseconds ProcessorTime();

}  // namespace starfolds
