// Small pictures of what a setting means, drawn from the engine's own tables and routines.
#pragma once

#include <QImage>
#include <QPalette>

#include "settings/records.h"

namespace starfolds {

/// The size of a picture in logical pixels, and device pixels to each of them: `devicePixelRatioF`
/// of the widget that shows it.
struct SampleSize {
  QSize Size;
  qreal Ratio = 1;
};

/// `picUniProfile`: a body as it looks after some frames, on black; the same picture every time.
/// `position` counts as `Universe_Profile` does: for the two that cycle through all profiles it is
/// a collage of some.
QImage ProfileSample(const ProfileArray& profiles, int position, SampleSize size);

/// The same of one body.
QImage BodySample(const StarfoldProfile& body, SampleSize size);

/// What decides about the section of a body.
struct ShapeSetting {
  int Shape = 0;         // `Starfold_Profile`
  double RadiusExp = 1;  // `Starfold_RadiusExp`
  double HeightExp = 1;  // `Starfold_HeightExp`
  double Ratio = 1;      // `Starfold_GHW_Ratio`
};

/// `picFoldProfile`: a body cut through its axis. The outline is the curve of `ShapeHeight` on both
/// sides of the plane; the stars in it show how the two exponents spread them. Very flat and very
/// tall bodies are drawn less so, to be seen at all.
QImage ShapeSample(const ShapeSetting& setting, SampleSize size, const QPalette& palette);

/// The fade of flares from one hue to another, from white on the left into the dark on the right:
/// the universe's wheel, and a profile's comets.
QImage HueWheelSample(int hueStart, int hueEnd, SampleSize size);

/// `picPixHue`: the wheel of star colours of `profile`. A ring from red at the top on clockwise, or
/// a strip where the picture is much wider than high. What it does not cover is transparent.
QImage PixHueSample(const StarfoldProfile& profile, SampleSize size);

}  // namespace starfolds
