// A page of the help as it is read.
#pragma once

#include <QTextBrowser>
#include <QTimer>

namespace starfolds {

/// Shows Markdown with lines of a length that reads well, tables with rules, and pictures as sharp
/// as the screen can show them. Follows the colours of the desktop.
class HelpPage : public QTextBrowser {
  Q_OBJECT

 public:
  explicit HelpPage(QWidget* parent = nullptr);

  /// Shows a page with every place of some words marked, and the first of them in view.
  void ShowMarkdown(const QString& markdown, const QStringList& words = {});

  void ZoomBy(int steps);
  void ResetZoom();

 protected:
  QVariant loadResource(int type, const QUrl& name) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  /// Marks every place of the words, and gives the first one.
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
  int zoom_ = 0;    // steps
  QTimer changed_;  // the page is laid out anew after the event, which may come in the middle of it
};

}  // namespace starfolds
