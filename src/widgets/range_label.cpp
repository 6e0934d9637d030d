#include "widgets/range_label.h"

#include <QPainter>
#include <QRegularExpression>
#include <QStyle>

namespace starfolds {
namespace {

constexpr int kDrawn = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic;

/// Contrast with the window stays above 4.5 : 1 with black on light grey and light grey on dark.
constexpr double kQuiet = 0.36;

struct Piece {
  QString Text;
  bool IsRange = false;
};

QList<Piece> PiecesOf(const QString& line) {
  static const QRegularExpression range(R"(\([^()]*\))");
  QList<Piece> pieces;
  qsizetype done = 0;
  for (auto found = range.globalMatch(line); found.hasNext();) {
    const QRegularExpressionMatch match = found.next();
    pieces.append({line.mid(done, match.capturedStart() - done)});
    pieces.append({match.captured(), true});
    done = match.capturedEnd();
  }
  pieces.append({line.mid(done)});
  return pieces;
}

int WidthOfPiece(const QString& text, const QFontMetrics& metrics) {
  return text.isEmpty() ? 0 : metrics.size(kDrawn | Qt::TextSingleLine, text).width();
}

QColor Quiet(const QPalette& palette) {
  const QColor ink = palette.color(QPalette::WindowText);
  const QColor paper = palette.color(QPalette::Window);
  const auto mix = [](int from, int to) { return static_cast<int>(from + (to - from) * kQuiet); };
  return {mix(ink.red(), paper.red()), mix(ink.green(), paper.green()),
          mix(ink.blue(), paper.blue())};
}

}  // namespace

RangeLabel::RangeLabel(const QString& text, QWidget* parent) : QLabel(text, parent) {
  setTextFormat(Qt::PlainText);
}

int RangeLabel::WidthOf(const QString& text, const QFontMetrics& metrics) {
  int width = 0;
  for (const Piece& piece : PiecesOf(text)) width += WidthOfPiece(piece.Text, metrics);
  return width;
}

QSize RangeLabel::sizeHint() const {
  if (!wordWrap()) return QLabel::sizeHint();
  const int width = WidthOf(text(), fontMetrics()) + 1;
  return {width, heightForWidth(width)};
}

/// In a label that may wrap and is too narrow, a range begins a line.
QStringList RangeLabel::Lines() const {
  QString shown = text();
  if (wordWrap() && WidthOf(shown, fontMetrics()) > contentsRect().width()) {
    shown.replace(" (", "\n(");
  }
  return shown.split('\n');
}

void RangeLabel::paintEvent(QPaintEvent* event) {
  const QStringList lines = Lines();
  for (const QString& line : lines) {
    if (wordWrap() && WidthOf(line, fontMetrics()) > contentsRect().width()) {
      return QLabel::paintEvent(event);
    }
  }
  QPainter painter(this);
  const int height = fontMetrics().lineSpacing();
  QRect room = contentsRect();
  room.setTop(room.center().y() + 1 - height * static_cast<int>(lines.size()) / 2);
  room.setHeight(height);
  const QColor quiet = isEnabled() ? Quiet(palette()) : palette().color(QPalette::WindowText);
  for (const QString& line : lines) {
    int left = room.left();
    for (const Piece& piece : PiecesOf(line)) {
      painter.setPen(piece.IsRange ? quiet : palette().color(QPalette::WindowText));
      painter.drawText(QRect(left, room.top(), width() - left, height), kDrawn, piece.Text);
      left += WidthOfPiece(piece.Text, fontMetrics());
    }
    room.translate(0, height);
  }
}

}  // namespace starfolds
