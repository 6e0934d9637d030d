// A picture of the effect as a file.
#pragma once

#include <QImage>
#include <QString>

namespace starfolds {

/// What became of a picture that was to be saved.
struct SavedPicture {
  QString Path;   // of the file; empty if there is none
  QString Fault;  // why there is none
};

/// Saves the picture as PNG in the user's folder for pictures, under a new name made of the
/// product's and the time. The file is there as a whole or not at all.
SavedPicture SavePicture(const QImage& picture);

}  // namespace starfolds
