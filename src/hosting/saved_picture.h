// Saves a picture of the effect.
#pragma once

#include <QImage>
#include <QString>

namespace starfolds {

/// The result of saving a picture.
struct SavedPicture {
  QString Path;   // of the file; empty if none was saved
  QString Fault;  // the reason why none was saved
};

/// Saves the picture as PNG in the user's folder for pictures, under a new name made of the
/// product's name and the time. The file is complete or does not exist.
SavedPicture SavePicture(const QImage& picture);

}  // namespace starfolds
