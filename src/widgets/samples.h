// Sample pictures for settings, drawn with the engine's tables and functions.
#pragma once

#include <QImage>
#include <QPalette>

#include <span>

#include "settings/records.h"

namespace starfolds {

/// The size of a picture in logical pixels, and its physical pixels per logical pixel:
/// `devicePixelRatioF` of the widget that shows it.
struct SampleSize {
  QSize Size;
  qreal Ratio = 1;
};

/// The camera of a picture of a body.
enum class SampleView {
  OfRun,   // stands at the body's distance: bodies of different sizes look different
  Fitted,  // the body fills the picture, whatever its size and distance
};

/// A body after some frames, on black, as bright as in its run; always the same picture. `members`
/// is one profile, or those of a composite in their order, up to `kMaxMembers`.
QImage SampleOfBody(std::span<const StarfoldProfile> members, SampleSize size, SampleView view);
inline QImage SampleOfBody(const StarfoldProfile& body, SampleSize size, SampleView view) {
  return SampleOfBody(std::span(&body, 1), size, view);
}

/// `picUniProfile`: a fitted body. `position` is a value of `Universe_Profile`: for the two that
/// cycle through all profiles it shows several of them.
QImage ProfileSample(const ProfileArray& profiles, int position, SampleSize size);

/// The settings that shape the section of a body.
struct ShapeSetting {
  int Shape = 0;         // `Starfold_Profile`
  double RadiusExp = 1;  // `Starfold_RadiusExp`
  double HeightExp = 1;  // `Starfold_HeightExp`
  double Ratio = 1;      // `Starfold_GHW_Ratio`
};

/// `picFoldProfile`: the section of a body through its axis. The outline is the curve of
/// `ShapeHeight` on both sides of the plane; the stars show how the two exponents distribute them.
/// The proportions of very flat and very tall bodies are reduced, so that they can be seen.
QImage ShapeSample(const ShapeSetting& setting, SampleSize size, const QPalette& palette);

/// The colours of flares from one hue to another, from white on the left to dark on the right:
/// those of the universe, and those of a profile's comets.
QImage HueWheelSample(int hueStart, int hueEnd, SampleSize size);

/// `picPixHue`: the hue wheel of the stars of `profile`: a ring, clockwise from red at the top, or
/// a strip if the picture is much wider than high. The rest is transparent.
QImage PixHueSample(const StarfoldProfile& profile, SampleSize size);

}  // namespace starfolds
