// The command line of `starfolds-render`.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "command_line/fault.h"
#include "command_line/program_guide.h"
#include "platform/files.h"
#include "platform/key_value_tree.h"
#include "render/frame_plan.h"
#include "settings/factory.h"
#include "settings/records.h"

namespace starfolds {

enum class RenderAction { Render, List, Help, Version };

/// Universe N is the first one of the seed N, so it does not depend on the others.
struct UniverseRange {
  std::uint64_t First = 1, Last = 1;

  std::uint64_t Count() const { return Last - First + 1; }
};

struct RenderOptions {
  RenderAction Action = RenderAction::Render;
  int Width = 1280;
  int Height = 720;
  int Scale = 1;  // each pixel is a block of Scale x Scale in pictures and video
  std::optional<std::uint64_t> Seed;  // nullopt: 1
  FramePlan Plan;                     // `Frames` is the most frames; see `FramesGiven`
  std::optional<FrameNumber> FramesGiven;
  std::optional<UniverseRange> Universes;  // each in files of its own, instead of one run
  // One body instead of universes.
  std::optional<Integer> Profile;
  std::optional<Integer> Composite;

  // The source of the settings, one of three, and the changes to them in the order given.
  std::string TemplateFile;
  bool Stored = false;
  std::optional<FactorySet> Factory;
  std::optional<int> Theme;
  std::vector<std::pair<std::string, std::string>> Changes;

  // The outputs; an empty path means none.
  std::string SaveFile;
  std::string PngFolder;
  std::string VideoFile;  // compressed by ffmpeg
  std::string Y4mFile;
  std::string SheetFile;
  bool Hash = false;

  bool WritesFrames() const {
    return !PngFolder.empty() || !VideoFile.empty() || !Y4mFile.empty() || !SheetFile.empty() ||
           Hash;
  }
};

/// Parses the arguments after the program's name from left to right; of an option that is given
/// twice the last one counts. If it returns a fault, `options` must not be used.
Fault ParseOptions(std::span<const std::string_view> arguments, RenderOptions& options);

/// What `--help`, the manual page and shells say about the program.
ProgramGuide RendererGuide();

/// Whether a contact sheet, if one is asked for, has room for the frames. `Plan.Frames` must be
/// final.
Fault CheckSheet(const RenderOptions& options);

/// Makes the settings that the options ask for. `tree` is the user's.
Fault MakeSettings(const RenderOptions& options, KeyValueTree& tree, Files& disk,
                   SettingsRecords& records);

/// What `--list` prints: the profiles, composites and themes, one per line.
std::string ListText(const SettingsRecords& records);

}  // namespace starfolds
