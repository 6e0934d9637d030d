#include "widgets/page_tabs.h"

namespace starfolds {

QTabBar* MakePageTabs(QComboBox& list, const QStringList& shortNames) {
  auto* tabs = new QTabBar;
  tabs->setObjectName("tab" + list.objectName());
  tabs->setAccessibleName(list.accessibleName());
  tabs->setExpanding(false);
  tabs->setUsesScrollButtons(true);  // in a narrow window
  tabs->setDrawBase(false);
  for (int i = 0; i < list.count(); ++i) {
    const QString name = list.itemText(i);
    tabs->addTab(i < shortNames.size() ? shortNames[i] : name);
    tabs->setTabToolTip(i, name);
  }
  tabs->setCurrentIndex(list.currentIndex());
  QObject::connect(tabs, &QTabBar::currentChanged, &list, &QComboBox::setCurrentIndex);
  QObject::connect(&list, &QComboBox::currentIndexChanged, tabs, &QTabBar::setCurrentIndex);
  return tabs;
}

void TurnPage(QComboBox& list, int steps) {
  const int count = list.count();
  if (count > 0) list.setCurrentIndex(((list.currentIndex() + steps) % count + count) % count);
}

}  // namespace starfolds
