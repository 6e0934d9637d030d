// The user's language.
#pragma once

#include <QString>
#include <string>

#include "platform/user_text.h"

namespace starfolds {

/// Loads the translation into the first of the user's languages that has one, or none if English
/// comes before it, and that of Qt's own texts if it is installed. Once, after the application
/// object has been made and before the first text is shown.
void InstallTranslations();

/// Loads the translation in a file ".qm". False if it cannot be read.
bool InstallTranslation(const QString& file);

/// A text marked by `STARFOLDS_TEXT` in the user's language, with its values; any other text as it
/// is.
QString Translated(const UserText& text);

/// The same as UTF-8.
std::string TranslatedText(const UserText& text);

/// Gives the same texts before there is an application object, for programs that only print
/// something and end. Loads the translation.
ShownText TranslationBeforeStart();

}  // namespace starfolds
