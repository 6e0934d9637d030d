#include "desktop/translation.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <memory>

namespace starfolds {
namespace {

constexpr char kContext[] = "Starfolds";

/// The files have all texts in one context: a text marked in a table is shown by some class, and a
/// text means the same everywhere, unless it has a comment.
class AnyContext : public QTranslator {
 public:
  QString translate(const char* context, const char* text, const char* comment,
                    int n) const override {
    const bool isQts = context[0] == 'Q';  // translated by Qt's file
    return isQts ? QString() : QTranslator::translate(kContext, text, comment, n);
  }
};

/// The application owns a translation that was found. Of "starfolds_de_AT" Qt also tries
/// "starfolds_de".
template <class Translator>
bool InstallFrom(const QString& folder, const QString& name) {
  auto translator = std::make_unique<Translator>();
  if (!translator->load(name, folder)) return false;
  translator->setParent(QCoreApplication::instance());
  return QCoreApplication::installTranslator(translator.release());
}

/// The empty text stands for the file's header.
std::string InUsersLanguage(const std::string& text) {
  if (text.empty()) return {};
  return QCoreApplication::translate(kContext, text.c_str()).toStdString();
}

}  // namespace

/// Qt's own search goes on to the next language after English, which needs no file.
void InstallTranslations() {
  for (const QString& language : QLocale::system().uiLanguages()) {
    const QLocale::Language known = QLocale(language).language();
    if (known == QLocale::English || known == QLocale::C) return;
    const QString ending = '_' + QString(language).replace('-', '_');
    if (!InstallFrom<AnyContext>(":/translations", "starfolds" + ending)) continue;
    InstallFrom<QTranslator>(QLibraryInfo::path(QLibraryInfo::TranslationsPath), "qtbase" + ending);
    return;
  }
}

bool InstallTranslation(const QString& file) { return InstallFrom<AnyContext>({}, file); }

QString Translated(const UserText& text) { return QString::fromStdString(TranslatedText(text)); }

std::string TranslatedText(const UserText& text) {
  return WithReason(Filled(InUsersLanguage(text.Text), text.Values), InUsersLanguage(text.Reason));
}

}  // namespace starfolds
