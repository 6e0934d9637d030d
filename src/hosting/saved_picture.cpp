#include "hosting/saved_picture.h"

#include <QDateTime>
#include <QDir>
#include <QSaveFile>
#include <QStandardPaths>

#include "settings/product.h"

namespace starfolds {
namespace {

/// A file name made of the time, in characters that all file systems accept, with a number if the
/// name exists already.
QString NewPath(const QDir& folder) {
  const QString stem = QString::fromUtf8(kProductName.data(), kProductName.size()) + ' ' +
                       QDateTime::currentDateTime().toString("yyyy-MM-dd hh.mm.ss");
  QString path = folder.filePath(stem + ".png");
  for (int number = 2; QFile::exists(path); ++number) {
    path = folder.filePath(stem + " (" + QString::number(number) + ").png");
  }
  return path;
}

}  // namespace

SavedPicture SavePicture(const QImage& picture) {
  QString place = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
  if (place.isEmpty()) place = QDir::homePath();
  const QDir folder(place);
  folder.mkpath(".");
  QSaveFile file(NewPath(folder));
  const bool saved = file.open(QIODevice::WriteOnly) && picture.save(&file, "PNG") && file.commit();
  if (!saved) return {{}, file.errorString()};
  return {file.fileName(), {}};
}

}  // namespace starfolds
