// The command line of `starfolds-render`.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "render/fault.h"
#include "render/frame_plan.h"
#include "settings/factory.h"
#include "settings/records.h"

namespace starfolds {

enum class RenderAction { Render, List, Help, Version };

struct RenderOptions {
  RenderAction Action = RenderAction::Render;
  int Width = 1280;
  int Height = 720;
  int Scale = 1;  // each pixel is a block of Scale x Scale in pictures and video
  std::uint64_t Seed = 1;
  FramePlan Plan;
  // One body instead of universes.
  std::optional<Integer> Profile;
  std::optional<Integer> Composite;

  // What the settings start from, and the changes to them in the order given. They are put
  // together when all options are read, so that the order of the options does not count.
  FactorySet Factory = FactorySet::Starfolds4x;
  int Theme = 1;
  std::vector<std::pair<std::string, std::string>> Changes;
  SettingsRecords Settings;

  // What is written; an empty path is not.
  std::string PngFolder;
  std::string VideoFile;
  std::string SheetFile;
  bool Hash = false;
};

/// Reads the arguments (without the program's name) from left to right; of an option that stands
/// twice the last one counts. Where an argument is no good it gives a message, and `options` is of
/// no use.
Fault ParseOptions(std::span<const std::string_view> arguments, RenderOptions& options);

/// What `--help` prints.
std::string HelpText();

/// What `--list` prints: the profiles, composites and themes that there are, a line each.
std::string ListText(const RenderOptions& options);

}  // namespace starfolds
