#include "widgets/visible_boxes.h"

#include <QPainter>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>

namespace starfolds {
namespace {

class OutlinedBoxes : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isBox = element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck;
    if (!isBox && element != PE_IndicatorRadioButton) return;
    QColor outline = option->palette.color(QPalette::WindowText);
    outline.setAlphaF(option->state.testFlag(State_Enabled) ? 0.65F : 0.5F);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, !isBox);
    painter->setPen(outline);
    painter->setBrush(Qt::NoBrush);
    const QRect edge = option->rect.adjusted(0, 0, -1, -1);
    isBox ? painter->drawRect(edge) : painter->drawEllipse(edge);
    painter->restore();
  }
};

}  // namespace

void ShowUncheckedBoxes(QApplication& application) {
  const QString name = QApplication::style()->name();
  if (name.compare("fusion", Qt::CaseInsensitive) != 0) return;
  application.setStyle(new OutlinedBoxes(QStyleFactory::create(name)));
}

}  // namespace starfolds
