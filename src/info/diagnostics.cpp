#include "info/diagnostics.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <memory>
#include <numbers>

#include "numbers/conversions.h"
#include "settings/registry.h"
#include "universe/host_surface.h"
#include "universe/universe_run.h"

namespace starfolds {
namespace {

constexpr char kTestValue[] = "RegistryReadWriteTest";

constexpr Colour kCircleColour = 0x00FFFFFF;
constexpr double kCircleOfBox = 0.4;  // radius, as a share of the shorter side

constexpr std::uint64_t kSeed = 1;  // the same universe on every machine

using Clock = std::chrono::steady_clock;

double SecondsSince(Clock::time_point begin) {
  return std::chrono::duration<double>(Clock::now() - begin).count();
}

/// Counts the frames and stops the run when the time is over.
class StopwatchPump : public Pump {
 public:
  StopwatchPump(ProcessState& process, double seconds) : process_(process), seconds_(seconds) {}

  /// Starts the clock.
  void Start() { begin_ = Clock::now(); }
  double Seconds() const { return SecondsSince(begin_); }
  int Frames() const { return frames_; }

  Long TickCount() override { return static_cast<Long>(Seconds() * 1000); }
  void PumpEvents() override {
    ++frames_;
    if (Seconds() >= seconds_) process_.Requests.AskStop();
  }
  void WaitForEvents(Long) override { PumpEvents(); }
  void WaitForRefresh() override {}

 private:
  ProcessState& process_;
  double seconds_;
  int frames_ = 0;
  Clock::time_point begin_ = Clock::now();
};

}  // namespace

std::string TestRegistryAccess(KeyValueTree& tree) {
  if (!RegistryWrite(tree, sections::kGeneral, kTestValue, kWriteTestPassed)) {
    return kWriteTestFailed;
  }
  return RegistryReadText(tree, sections::kGeneral, kTestValue, kWriteTestFailed);
}

void PlotTestCircle(Surface& surface) {
  const double radius = std::min(surface.Width(), surface.Height()) * kCircleOfBox;
  const auto points = static_cast<int>(std::ceil(2 * std::numbers::pi * radius));
  for (int i = 0; i < points; ++i) {
    const double angle = 2 * std::numbers::pi * i / points;
    surface.SetPixelV(RoundedToLimits<Long>(surface.Width() / 2.0 + radius * std::cos(angle)),
                      RoundedToLimits<Long>(surface.Height() / 2.0 + radius * std::sin(angle)),
                      kCircleColour);
  }
}

std::string Grouped(std::uint64_t number) {
  std::string text = std::to_string(number);
  for (std::size_t i = text.size(); i > 3; i -= 3) text.insert(i - 3, 1, ',');
  return text;
}

std::uint64_t ColoursOf(int depth) {
  constexpr int mostBits = 63;
  return depth > 0 && depth <= mostBits ? std::uint64_t{1} << depth : 0;
}

FrameCost MeasureFrames(KeyValueTree& tree, DesktopServices& desktop,
                        const ProcessorClock& processorTime, int width, int height,
                        double seconds) {
  MemorySurface surface(RoundedToLimits<Integer>(width), RoundedToLimits<Integer>(height));
  const auto process = std::make_unique<ProcessState>();
  StopwatchPump events(*process, seconds);
  process->Tree = &tree;
  process->Events = &events;
  process->Desktop = &desktop;
  ReadAdvancedSettings(*process);
  SetupDisplay(*process, surface, kSeed);
  process->Screen.FrameDelayMs = 0;
  ReadUniverseSettings(*process, false);

  events.Start();
  const auto processorBegin = processorTime();
  UniverseRun(*process);
  FrameCost cost;
  cost.Seconds = events.Seconds();
  cost.ProcessorSeconds = std::chrono::duration<double>(processorTime() - processorBegin).count();
  cost.Frames = events.Frames();
  cost.Stars = process->Universe.Universe_Stars;
  cost.Width = surface.Width();
  cost.Height = surface.Height();
  return cost;
}

}  // namespace starfolds
