// What the tests of editors share.
#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QListWidget>
#include <functional>
#include <memory>
#include <random>
#include <string>

#include "editors/props_model.h"
#include "toolkit.h"

namespace starfolds {

/// The records of a dialog, with boxes that answer by themselves.
class EditorTest : public testing::Test {
 protected:
  EditorTest() {
    const SettingsRecords records;
    Process->Profiles = records.Profiles;
    Process->Composites = records.Composites;
  }

  /// The text of the last box, which is forgotten; empty if there was none.
  std::string LastBox() {
    std::string text;
    if (!Boxes.Log.empty()) {
      text = Boxes.Log.back().Text;
      EXPECT_EQ(Boxes.Log.back().Style, BoxStyle::Information);
      EXPECT_EQ(Boxes.Log.back().Caption, "Starfolds");
    }
    Boxes.Log.clear();
    return text;
  }

  std::unique_ptr<Saver> Process = std::make_unique<Saver>();
  ScriptedMessageBoxes Boxes;
  MemoryHelp HelpBook;
  PropsModel Model{*Process, Boxes, HelpBook};
};

/// A user who presses, types and chooses anywhere in a window.
class RandomHands {
 public:
  explicit RandomHands(unsigned seed) : random_(seed) {}

  /// From 0 to below `end`.
  int Draw(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }

  /// Does something to one of the window's widgets, unless `spared` holds for its name.
  void Act(QWidget& window, const std::function<bool(const QString& name)>& spared) {
    const QWidgetList widgets = window.findChildren<QWidget*>();
    QWidget* widget = widgets[Draw(static_cast<int>(widgets.size()))];
    if (!widget->isEnabled() || !widget->isVisible() || spared(widget->objectName())) return;
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
      button->click();
    } else if (auto* list = qobject_cast<QComboBox*>(widget)) {
      if (list->count() > 0) list->setCurrentIndex(Draw(list->count()));
    } else if (auto* items = qobject_cast<QListWidget*>(widget)) {
      if (items->count() > 0) items->setCurrentRow(Draw(items->count()));
    } else {
      const int key = Qt::Key_Space + Draw(95);
      Press(*widget, key, QChar(key));
    }
    if (Draw(50) == 0) Leave(*widget);
  }

 private:
  std::mt19937 random_;
};

}  // namespace starfolds
