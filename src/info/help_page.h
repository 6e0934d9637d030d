// The view of one page of the help.
#pragma once

#include <QTextBrowser>
#include <QTimer>

namespace starfolds {

/// Shows Markdown with a limited line length, tables with rules, and pictures at the screen's
/// resolution. Follows the desktop's colour scheme.
class HelpPage : public QTextBrowser {
  Q_OBJECT

 public:
  explicit HelpPage(QWidget* parent = nullptr);

  /// Shows a page, highlights every match of some words, and scrolls to the first one.
  void ShowMarkdown(const QString& markdown, const QStringList& words = {});

  /// Scrolls to the heading with that text, if there is one.
  void ScrollToHeading(const QString& heading);

  void ZoomBy(int steps);
  void ResetZoom();

 protected:
  QVariant loadResource(int type, const QUrl& name) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  /// Highlights every match of the words, and returns the first one.
  QTextCursor MarkWords();
  void FitLines();
  void LayOut();
  void LayOutAnew();
  void ScrollTo(const QTextCursor& place, int below);
  QSize ShownSize(const QImage& picture) const;
  void StyleBlocks(QTextDocument& page) const;
  void StylePictures(QTextDocument& page) const;
  void StyleTables(QTextDocument& page) const;

  QString markdown_;
  QStringList marked_;
  int zoom_ = 0;    // zoom steps
  QTimer changed_;  // lays the page out again after the current event, which may come in the middle
                    // of a layout
};

}  // namespace starfolds
