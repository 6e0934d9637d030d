// Lines of a form: a label, and beside it its input boxes.
#pragma once

#include <QComboBox>
#include <QGridLayout>
#include <QImage>
#include <QLabel>
#include <QSize>
#include <string_view>
#include <vector>

#include "platform/user_text.h"

namespace starfolds {

/// Appends a line to a form's grid: the label is in the left column, and its text may have a
/// mnemonic for `buddy`, whose accessible name it becomes unless that has one; the widgets are side
/// by side in the right column.
QLabel* AddLine(QGridLayout& page, const QString& label, QWidget* buddy,
                const std::vector<QWidget*>& widgets);

/// The text of a label as the name of its box: without range, mnemonic and colon.
QString SpokenLabel(const QString& label);

/// Appends a widget that spans both columns.
void AddWideLine(QGridLayout& page, QWidget* widget);

/// Appends a heading for the lines after it.
void AddHeading(QGridLayout& page, const QString& text);

/// The least width of the column of labels, so that it does not change with their texts.
void SetLabelWidth(QGridLayout& page, int width);

/// A form whose lines stay together at the top.
QGridLayout* MakePage(QWidget* page);
void EndPage(QGridLayout& page);

/// A label for a sample picture, filled by `ShowSample`.
QLabel* MakeSamplePlace(const char* name, const QString& description, QSize size);
void ShowSample(QLabel* place, const QImage& sample);

/// Allows a list to be narrower than its longest entry, which is shown in full when it is opened.
void LetShrink(QComboBox* list);

/// Text for a label or button, with "&" escaped.
QString Escaped(std::string_view text);
/// The same of a text marked by `STARFOLDS_TEXT`, in the user's language.
QString EscapedTranslation(std::string_view text);

}  // namespace starfolds
