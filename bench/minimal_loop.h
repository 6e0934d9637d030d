// A minimal loop to compare the star step with: the least that any program must do for a star.
#pragma once

#include <vector>

#include "scenes/scenes.h"

namespace starfolds {

/// The minimal loop that draws the same picture: one body, without flares, profiles, levels and
/// hues, on arrays and a canvas of the same size, with the same arithmetic.
struct MinimalLoop {
  std::vector<Single> X, Y, Z, Cos, Sin;
  std::vector<Long> OldX, OldY;
  std::vector<Colour> Tint, Canvas;
  int Width, Height;
  double Focal, TiltCos, TiltSin, Distance;

  explicit MinimalLoop(const scenes::BodyStage& stage)
      : OldX(stage.Run->Stars.Star.size()),
        OldY(OldX.size()),
        Canvas(static_cast<std::size_t>(stage.Canvas.Width()) * stage.Canvas.Height()),
        Width(stage.Canvas.Width()),
        Height(stage.Canvas.Height()),
        Focal(stage.Process->Screen.FocalPixels),
        TiltCos(stage.Process->Prepared[0].Star.LevelCos[0]),
        TiltSin(stage.Process->Prepared[0].Star.LevelSin[0]),
        Distance(stage.Run->Folds.StarfoldRel[0].Z) {
    for (const StarState& star : stage.Run->Stars.Star) {
      X.push_back(star.StarX);
      Y.push_back(star.StarY);
      Z.push_back(star.StarZ);
      Cos.push_back(star.StarSpinCos);
      Sin.push_back(star.StarSpinSin);
      Tint.push_back(star.StarColor);
    }
  }

  void Write(Long x, Long y, Colour colour) {
    if (static_cast<std::uint32_t>(x) >= static_cast<std::uint32_t>(Width)) return;
    if (static_cast<std::uint32_t>(y) >= static_cast<std::uint32_t>(Height)) return;
    Canvas[static_cast<std::size_t>(y) * Width + x] = colour;
  }

  void Step() {
    for (std::size_t i = 0; i < X.size(); ++i) {
      Write(OldX[i], OldY[i], 0);
      const double x = X[i];
      const double y = Y[i];
      const double z = Z[i];
      X[i] = static_cast<Single>(x * Cos[i] - z * Sin[i]);
      Z[i] = static_cast<Single>(z * Cos[i] + x * Sin[i]);
      const double f = Focal / (y * TiltSin + Z[i] * TiltCos + Distance);
      OldX[i] = static_cast<Long>(RoundHalfEven(X[i] * f + Width / 2));
      OldY[i] = static_cast<Long>(RoundHalfEven((Z[i] * TiltSin - y * TiltCos) * f + Height / 2));
      Write(OldX[i], OldY[i], Tint[i]);
    }
  }
};

}  // namespace starfolds
