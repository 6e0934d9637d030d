#include "info/help_page.h"

#include <QImageReader>
#include <QPointer>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextFrame>
#include <QTextTable>
#include <algorithm>
#include <cmath>
#include <vector>

#include "info/help_book.h"

namespace starfolds {
namespace {

constexpr double kLongestLine = 42;  // in line heights
constexpr int kMargin = 16;
constexpr int kCellPadding = 5;
constexpr int kMostMarks = 500;
constexpr int kSmallestZoom = -4;
constexpr int kLargestZoom = 12;

QColor Between(const QColor& a, const QColor& b, double share) {
  const auto mix = [share](int from, int to) {
    return static_cast<int>(std::lround(from + (to - from) * share));
  };
  return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

/// Some dark colour schemes keep a link colour that is readable on white only.
QColor LinkColour(const QPalette& palette) {
  const QColor link = palette.color(QPalette::Link);
  const bool dark = palette.color(QPalette::Base).lightness() < 128;
  return dark && link.lightness() < 170 ? Between(link, Qt::white, 0.5) : link;
}

struct Stretch {
  int Begin, Length;
};

/// The ranges of a block that have such a format.
std::vector<Stretch> StretchesOf(const QTextBlock& block,
                                 bool (*isSuch)(const QTextCharFormat& format)) {
  std::vector<Stretch> found;
  for (auto part = block.begin(); !part.atEnd(); ++part) {
    const QTextFragment text = part.fragment();
    if (isSuch(text.charFormat())) found.push_back({text.position(), text.length()});
  }
  return found;
}

std::vector<Stretch> LinksOf(const QTextBlock& block) {
  return StretchesOf(block, [](const QTextCharFormat& format) { return format.isAnchor(); });
}

std::vector<Stretch> PicturesOf(const QTextBlock& block) {
  return StretchesOf(block, [](const QTextCharFormat& format) { return format.isImageFormat(); });
}

/// Null if there is no picture of that name.
QImage ReadPicture(const QString& name) { return QImageReader(kHelpFolder + name).read(); }

}  // namespace

HelpPage::HelpPage(QWidget* parent) : QTextBrowser(parent) {
  setOpenLinks(false);
  setAccessibleName(tr("Text of the help"));
  setLineWrapMode(QTextEdit::FixedPixelWidth);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);  // the same text width for all pages
  changed_.setSingleShot(true);
  changed_.setInterval(0);
  connect(&changed_, &QTimer::timeout, this, &HelpPage::LayOutAnew);
}

void HelpPage::ShowMarkdown(const QString& markdown, const QStringList& words) {
  markdown_ = markdown;
  marked_ = words;
  LayOut();
  const QTextCursor first = MarkWords();
  verticalScrollBar()->setValue(0);
  if (first.isNull()) return;
  setTextCursor(first);
  ScrollTo(first, viewport()->height() / 4);  // with some of the text before it
}

void HelpPage::ScrollToHeading(const QString& heading) {
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() == 0 || block.text() != heading) continue;
    const QTextCursor place(block);
    setTextCursor(place);
    return ScrollTo(place, kMargin);
  }
}

/// The page is built separately from the view, which would lay it out after each change.
void HelpPage::LayOut() {
  FitLines();  // before pictures are scaled to the width
  const QPointer<QTextDocument> former(document());
  auto* const page = new QTextDocument(this);  // loads pictures through its parent
  page->setDefaultFont(font());
  page->setDocumentMargin(kMargin);
  page->setMarkdown(markdown_);
  StyleBlocks(*page);
  StylePictures(*page);
  StyleTables(*page);
  setExtraSelections({});  // those of the former page
  setDocument(page);
  delete former;  // the view only deletes its initial document
}

/// Builds the same page with other colours or another line length, and keeps the scroll position.
void HelpPage::LayOutAnew() {
  const bool isAtTop = verticalScrollBar()->value() == 0;
  const int reading = cursorForPosition({kMargin, kMargin}).position();  // the margin is not text
  LayOut();
  MarkWords();
  if (isAtTop) return verticalScrollBar()->setValue(0);
  QTextCursor cursor(document());
  cursor.setPosition(std::min(reading, document()->characterCount() - 1));
  ScrollTo(cursor, kMargin);
}

/// Scrolls so that a position is `below` pixels below the top of the view.
void HelpPage::ScrollTo(const QTextCursor& place, int below) {
  QScrollBar& bar = *verticalScrollBar();
  bar.setValue(bar.value() + cursorRect(place).top() - below);
}

void HelpPage::FitLines() {
  const double longest = kLongestLine * QFontInfo(font()).pixelSize();
  setLineWrapColumnOrWidth(std::min(viewport()->width(), static_cast<int>(longest)));
}

/// Moves headings closer to the text after them, and gives links a readable colour.
void HelpPage::StyleBlocks(QTextDocument& page) const {
  const int letter = QFontInfo(font()).pixelSize();
  QTextBlockFormat airy;
  airy.setLineHeight(120, QTextBlockFormat::ProportionalHeight);
  QTextCursor cursor(&page);
  cursor.select(QTextCursor::Document);
  cursor.mergeBlockFormat(airy);
  QTextCharFormat linkFormat;
  linkFormat.setForeground(LinkColour(palette()));
  for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
    cursor = QTextCursor(block);
    QTextBlockFormat format;
    if (block.blockFormat().headingLevel() > 0) {
      format.setTopMargin(block.blockNumber() == 0 ? 0 : letter * 1.4);
      format.setBottomMargin(letter * 0.4);
      cursor.mergeBlockFormat(format);
    } else if (block.text().contains(QChar::ObjectReplacementCharacter)) {
      // A picture is laid out like a letter, and would get a line height of 120% of its own.
      format.setLineHeight(100, QTextBlockFormat::ProportionalHeight);
      cursor.mergeBlockFormat(format);
    }
    for (const auto& [begin, length] : LinksOf(block)) {
      cursor.setPosition(begin);
      cursor.setPosition(begin + length, QTextCursor::KeepAnchor);
      cursor.mergeCharFormat(linkFormat);
    }
  }
}

/// Without an explicit size a page takes the physical pixels of a picture as its size.
void HelpPage::StylePictures(QTextDocument& page) const {
  for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
    for (const auto& [begin, length] : PicturesOf(block)) {
      QTextCursor cursor(&page);
      cursor.setPosition(begin);
      cursor.setPosition(begin + length, QTextCursor::KeepAnchor);
      QTextImageFormat format = cursor.charFormat().toImageFormat();
      const QImage picture = ReadPicture(format.name());
      if (picture.isNull()) continue;
      const QSize size = ShownSize(picture);
      format.setWidth(size.width());
      format.setHeight(size.height());
      cursor.setCharFormat(format);
    }
  }
}

void HelpPage::StyleTables(QTextDocument& page) const {
  const QColor paper = palette().color(QPalette::Base);
  const QColor ink = palette().color(QPalette::Text);
  for (QTextFrame* frame : page.rootFrame()->childFrames()) {
    auto* const table = qobject_cast<QTextTable*>(frame);
    if (table == nullptr) continue;
    QTextTableFormat format = table->format();
    format.setBorder(1);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderBrush(Between(paper, ink, 0.25));
    format.setBorderCollapse(true);
    format.setCellPadding(kCellPadding);
    format.setCellSpacing(0);
    format.setBottomMargin(QFontInfo(font()).pixelSize() * 0.7);
    format.setHeaderRowCount(1);
    table->setFormat(format);
    QTextCursor cells = table->firstCursorPosition();
    cells.setPosition(table->lastPosition(), QTextCursor::KeepAnchor);
    QTextBlockFormat close;
    close.setTopMargin(0);
    close.setBottomMargin(0);
    cells.mergeBlockFormat(close);
    for (int column = 0; column < table->columns(); ++column) {
      QTextTableCell cell = table->cellAt(0, column);
      QTextCharFormat header = cell.format();
      header.setBackground(Between(paper, ink, 0.08));
      cell.setFormat(header);
    }
  }
}

QTextCursor HelpPage::MarkWords() {
  QList<ExtraSelection> marks;
  QTextCursor first;
  for (const QString& word : marked_) {
    QTextCursor place = document()->find(word);
    for (; !place.isNull() && marks.size() < kMostMarks; place = document()->find(word, place)) {
      if (first.isNull() || place.position() < first.position()) first = place;
      ExtraSelection mark;
      mark.cursor = place;
      mark.format.setBackground(palette().highlight());
      mark.format.setForeground(palette().highlightedText());
      marks.append(mark);
    }
  }
  setExtraSelections(marks);
  first.clearSelection();
  return first;
}

void HelpPage::ZoomBy(int steps) {
  const int zoom = std::clamp(zoom_ + steps, kSmallestZoom, kLargestZoom);
  zoomIn(zoom - zoom_);
  zoom_ = zoom;
  LayOutAnew();
}

void HelpPage::ResetZoom() { ZoomBy(-zoom_); }

/// The size of a picture on the page, at most the line's width. One whose name ends in "@2x" is
/// meant for dense screens, and shown at half its size in pixels.
QSize HelpPage::ShownSize(const QImage& picture) const {
  const double room = lineWrapColumnOrWidth() - 2 * kMargin;
  const QSizeF size = picture.deviceIndependentSize();
  return (size * std::min(1.0, room / size.width())).toSize();
}

/// Scales to the screen's density here, because the layout's own scaling is of low quality.
QVariant HelpPage::loadResource(int type, const QUrl& name) {
  if (type != QTextDocument::ImageResource) return {};
  QImage picture = ReadPicture(name.path());
  if (picture.isNull()) return {};
  const double wanted = ShownSize(picture).width() * devicePixelRatioF();
  const int width = std::min(static_cast<int>(std::lround(wanted)), picture.width());
  // When Qt 6.4 scales a palette picture, it dithers it to 216 colours, and it crashes if the
  // picture has a pixel ratio.
  picture.convertTo(QImage::Format_ARGB32_Premultiplied);
  picture.setDevicePixelRatio(1);
  return picture.scaledToWidth(width, Qt::SmoothTransformation);
}

void HelpPage::resizeEvent(QResizeEvent* event) {
  const int before = lineWrapColumnOrWidth();
  QTextBrowser::resizeEvent(event);
  FitLines();
  if (lineWrapColumnOrWidth() != before) changed_.start();
}

void HelpPage::changeEvent(QEvent* event) {
  QTextBrowser::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) changed_.start();
}

}  // namespace starfolds
