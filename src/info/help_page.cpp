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

constexpr double kLongestLine = 42;  // in heights of the letters
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

/// Some desktops with dark colours keep the blue of links that only white paper bears.
QColor LinkColour(const QPalette& palette) {
  const QColor link = palette.color(QPalette::Link);
  const bool dark = palette.color(QPalette::Base).lightness() < 128;
  return dark && link.lightness() < 170 ? Between(link, Qt::white, 0.5) : link;
}

struct Stretch {
  int Begin, Length;
};

/// Where the parts of a block stand that have such a format.
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

/// Null where there is none of that name.
QImage ReadPicture(const QString& name) { return QImageReader(kHelpFolder + name).read(); }

}  // namespace

HelpPage::HelpPage(QWidget* parent) : QTextBrowser(parent) {
  setOpenLinks(false);
  setAccessibleName(tr("Text of the help"));
  setLineWrapMode(QTextEdit::FixedPixelWidth);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);  // pages of all lengths have the same width
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
  ScrollTo(first, viewport()->height() / 4);  // with what stands in front of it
}

/// The page is made away from the view, which would lay it out after each change.
void HelpPage::LayOut() {
  FitLines();  // pictures are made for its width
  const QPointer<QTextDocument> former(document());
  auto* const page = new QTextDocument(this);  // asks its parent for pictures
  page->setDefaultFont(font());
  page->setDocumentMargin(kMargin);
  page->setMarkdown(markdown_);
  StyleBlocks(*page);
  StylePictures(*page);
  StyleTables(*page);
  setExtraSelections({});  // of the former page
  setDocument(page);
  delete former;  // the view deletes only the one that it began with
}

/// The same page with other colours or lines of another length; what is read stays in view.
void HelpPage::LayOutAnew() {
  const bool isAtTop = verticalScrollBar()->value() == 0;
  const int reading = cursorForPosition({kMargin, kMargin}).position();  // the edge is not text
  LayOut();
  MarkWords();
  if (isAtTop) return verticalScrollBar()->setValue(0);
  QTextCursor cursor(document());
  cursor.setPosition(std::min(reading, document()->characterCount() - 1));
  ScrollTo(cursor, kMargin);
}

/// Brings a place so far below the top of the view.
void HelpPage::ScrollTo(const QTextCursor& place, int below) {
  QScrollBar& bar = *verticalScrollBar();
  bar.setValue(bar.value() + cursorRect(place).top() - below);
}

void HelpPage::FitLines() {
  const double longest = kLongestLine * QFontInfo(font()).pixelSize();
  setLineWrapColumnOrWidth(std::min(viewport()->width(), static_cast<int>(longest)));
}

/// Headings stand nearer to what follows them, and links can be read on any paper.
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
      // A picture stands on its line as a letter does, and would get a fifth more of its height.
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

/// A page that is not told the size of a picture takes its pixels for it, however dense they are.
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

/// The size of a picture on the page: no longer than a line. One whose name ends in "@2x" is made
/// for dense screens, twice as large as it is shown.
QSize HelpPage::ShownSize(const QImage& picture) const {
  const double room = lineWrapColumnOrWidth() - 2 * kMargin;
  const QSizeF size = picture.deviceIndependentSize();
  return (size * std::min(1.0, room / size.width())).toSize();
}

/// Brought to the density of this screen here: what draws the page would do it roughly.
QVariant HelpPage::loadResource(int type, const QUrl& name) {
  if (type != QTextDocument::ImageResource) return {};
  QImage picture = ReadPicture(name.path());
  if (picture.isNull()) return {};
  const double wanted = ShownSize(picture).width() * devicePixelRatioF();
  const int width = std::min(static_cast<int>(std::lround(wanted)), picture.width());
  picture.setDevicePixelRatio(1);  // with another one, Qt 6.4 faults where it scales a palette
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
