// A universe as text for a link: the differences of its settings from those of a factory set, with
// the lines of a template file. Whoever makes or opens a link also packs or unpacks the text.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "settings/records.h"

namespace starfolds {

/// The largest seed of a link: a script holds larger numbers in steps.
inline constexpr std::uint64_t kLargestSeed = (std::uint64_t{1} << 53) - 1;

/// What a link shows.
struct LinkedScene {
  enum class Kind { Universe, Profile, Composite };
  Kind What = Kind::Universe;
  Integer Body = 0;  // the profile or composite

  // Without these every visitor sees another universe with the same settings.
  std::optional<std::uint64_t> Seed;  // at most `kLargestSeed`
  struct Size {
    Integer Width = 0;
    Integer Height = 0;
    bool operator==(const Size&) const = default;
  };
  std::optional<Size> Surface;  // in pixels, at least 1 each

  bool operator==(const LinkedScene&) const = default;
};

/// The longest text of a link, in bytes.
inline constexpr std::size_t kLongestLinkText = std::size_t{1} << 19;

/// The text of a link. Of the advanced values it has only those that a picture depends on, so that
/// nobody publishes the message on the screen. Clamps the records, as a template that is written.
std::string LinkText(SettingsRecords& records, const LinkedScene& scene);

/// Reads the text of a link. Returns a reason for the user if it is too long or not of a link; then
/// nothing is changed. Settings that it lacks are the factory's, those beyond their range are
/// clamped as in a template.
std::optional<std::string> ReadLinkText(std::string_view text, SettingsRecords& records,
                                        LinkedScene& scene);

}  // namespace starfolds
