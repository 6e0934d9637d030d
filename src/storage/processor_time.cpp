#include "storage/processor_time.h"

#ifdef _WIN32
#include "storage/windows_path.h"
#else
#include <ctime>
#endif

namespace starfolds {

#ifdef _WIN32
/// std::clock() gives the time since the start of the process here, and ends after 24 days.
std::chrono::nanoseconds ProcessorTime() {
  constexpr std::int64_t nanosecondsOfTick = 100;
  FILETIME created{};
  FILETIME ended{};
  FILETIME kernel{};
  FILETIME user{};
  if (!GetProcessTimes(GetCurrentProcess(), &created, &ended, &kernel, &user)) return {};
  const auto ticks = [](const FILETIME& time) {
    return static_cast<std::int64_t>(std::uint64_t{time.dwHighDateTime} << 32U |
                                     time.dwLowDateTime);
  };
  return std::chrono::nanoseconds((ticks(kernel) + ticks(user)) * nanosecondsOfTick);
}
#else
std::chrono::nanoseconds ProcessorTime() {
  const double seconds = static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
  return std::chrono::duration_cast<std::chrono::nanoseconds>(
      std::chrono::duration<double>(seconds));
}
#endif

}  // namespace starfolds
