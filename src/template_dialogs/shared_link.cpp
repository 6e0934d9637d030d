#include "template_dialogs/shared_link.h"

#include <QByteArray>

namespace starfolds {
namespace {

// What `qCompress` puts around the raw deflated bytes.
constexpr qsizetype kSizeBytes = 4;      // of the data, in Qt's format
constexpr qsizetype kHeaderBytes = 2;    // of zlib
constexpr qsizetype kChecksumBytes = 4;  // of zlib
constexpr int kBestCompression = 9;

}  // namespace

QString LinkFragment(const std::string& text) {
  const QByteArray packed = qCompress(QByteArray::fromStdString(text), kBestCompression)
                                .mid(kSizeBytes + kHeaderBytes)
                                .chopped(kChecksumBytes);
  return QString::fromLatin1(
      packed.toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals));
}

}  // namespace starfolds
