// Texts from outside are shown as they are, and not as markup.
#pragma once

#include <QApplication>
#include <QString>
#include <string_view>

namespace starfolds {

/// From now on labels and tool tips show their text as plain text, unless they ask for rich text
/// explicitly (Qt::RichText). By default Qt guesses the format, so the name of a body in a template
/// could make the program open files: "<img src='/dev/zero'>" would read without end.
void ShowTextsAsPlain(QApplication& application);

/// The title of a window for a text from outside: Qt takes "[*]" for the place of the mark for
/// unsaved changes.
QString WindowTitle(std::string_view text);

}  // namespace starfolds
