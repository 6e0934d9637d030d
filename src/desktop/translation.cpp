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

/// The application owns a translation that was found.
template <class Translator>
bool InstallFrom(const QString& folder, const QString& name) {
  auto translator = std::make_unique<Translator>();
  if (!translator->load(name, folder)) return false;
  translator->setParent(QCoreApplication::instance());
  return QCoreApplication::installTranslator(translator.release());
}

constexpr char kFolder[] = ":/translations";

/// The ending of the file for the user's language, such as "_de_AT"; empty if the texts stay
/// English. Qt's own search goes on to the next language after English, which needs no file.
/// Of "starfolds_de_AT" Qt also tries "starfolds_de".
QString EndingOfLanguage() {
  for (const QString& language : QLocale::system().uiLanguages()) {
    const QLocale::Language known = QLocale(language).language();
    if (known == QLocale::English || known == QLocale::C) break;
    QString ending = '_' + QString(language).replace('-', '_');
    if (QTranslator().load("starfolds" + ending, kFolder)) return ending;
  }
  return {};
}

/// `lookUp` gives a marked text in the user's language. The empty text stands for the file's
/// header.
template <class LookUp>
std::string Shown(const UserText& text, const LookUp& lookUp) {
  const auto translated = [&](const std::string& english) {
    return english.empty() ? english : lookUp(english.c_str()).toStdString();
  };
  return WithReason(WithSubject(text.Subject, Filled(translated(text.Text), text.Values)),
                    translated(text.Reason));
}

}  // namespace

void InstallTranslations() {
  const QString ending = EndingOfLanguage();
  if (ending.isEmpty()) return;
  InstallFrom<AnyContext>(kFolder, "starfolds" + ending);
  InstallFrom<QTranslator>(QLibraryInfo::path(QLibraryInfo::TranslationsPath), "qtbase" + ending);
}

bool InstallTranslation(const QString& file) { return InstallFrom<AnyContext>({}, file); }

QString Translated(const UserText& text) { return QString::fromStdString(TranslatedText(text)); }

std::string TranslatedText(const UserText& text) {
  return Shown(text,
               [](const char* english) { return QCoreApplication::translate(kContext, english); });
}

ShownText TranslationBeforeStart() {
  const auto translator = std::make_shared<AnyContext>();
  const QString ending = EndingOfLanguage();
  if (ending.isEmpty() || !translator->load("starfolds" + ending, kFolder)) return InEnglish;
  return [translator](const UserText& text) {
    return Shown(text, [&](const char* english) {
      const QString translated = translator->translate(kContext, english, nullptr, -1);
      return translated.isEmpty() ? QString(english) : translated;
    });
  };
}

}  // namespace starfolds
