// Lines of a page: a label, and behind it the boxes that it speaks of.
#pragma once

#include <QComboBox>
#include <QGridLayout>
#include <QImage>
#include <QLabel>
#include <QSize>
#include <string_view>
#include <vector>

namespace starfolds {

/// Adds a line at the end of a page's grid: the label takes the left column, whose text may have a
/// mnemonic for `buddy`; the widgets stand side by side in the right one.
QLabel* AddLine(QGridLayout& page, const QString& label, QWidget* buddy,
                const std::vector<QWidget*>& widgets);

/// A widget that takes the whole width of the page.
void AddWideLine(QGridLayout& page, QWidget* widget);

/// A page of lines that stays together at its top.
QGridLayout* MakePage(QWidget* page);
void EndPage(QGridLayout& page);

/// A place for a sample, which `ShowSample` fills.
QLabel* MakeSamplePlace(const char* name, const QString& description, QSize size);
void ShowSample(QLabel* place, const QImage& sample);

/// Lets a list be narrower than its longest entry, which shows when it is opened.
void LetShrink(QComboBox* list);

/// Text of ours on a label or button, where "&" stands for itself.
QString Escaped(std::string_view text);

}  // namespace starfolds
