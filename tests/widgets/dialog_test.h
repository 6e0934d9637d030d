// What the tests of editors share.
#pragma once

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QCryptographicHash>
#include <QListWidget>
#include <QPushButton>
#include <QWheelEvent>
#include <functional>
#include <memory>
#include <random>
#include <string>

#include "toolkit.h"
#include "widgets/dialog_model.h"

namespace starfolds {

/// What dialogs are made over: a tree and a help in memory, and boxes that answer by themselves.
class DialogTest : public testing::Test {
 protected:
  virtual QWidget& Window() = 0;

  template <class Widget>
  Widget& The(const std::string& name) {
    return Part<Widget>(Window(), name.c_str());
  }
  QLineEdit& Edit(const std::string& name) { return The<QLineEdit>(name); }
  QComboBox& List(const std::string& name) { return The<QComboBox>(name); }
  QCheckBox& Check(const std::string& name) { return The<QCheckBox>(name); }
  void Click(const std::string& name) { The<QPushButton>(name).click(); }

  /// The text of the last box, which is forgotten; empty if there was none.
  std::string LastBox() {
    const std::string text = Boxes.Log.empty() ? "" : Boxes.Log.back().Text;
    if (!text.empty()) {
      EXPECT_EQ(Boxes.Log.back().Caption, "Starfolds");
    }
    Boxes.Log.clear();
    return text;
  }

  MemoryTree Tree;
  MemoryHelp HelpBook;
  ScriptedMessageBoxes Boxes;
};

/// The records of a dialog.
class EditorTest : public DialogTest {
 protected:
  EditorTest() {
    const SettingsRecords records;
    Process->Profiles = records.Profiles;
    Process->Composites = records.Composites;
  }

  std::unique_ptr<ProcessState> Process = std::make_unique<ProcessState>();
  PropsModel Model{*Process, Boxes, HelpBook};
};

/// For long texts that are pinned.
inline std::string HashOf(const QString& text) {
  return QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Md5).toHex().toStdString();
}

/// One notch of the wheel with the pointer over a widget. Returns whether the widget took it.
inline bool TurnWheel(QWidget& widget, int angle) {
  const QPointF place = widget.rect().center();
  QWheelEvent turn(place, widget.mapToGlobal(place), {}, {0, angle}, Qt::NoButton, Qt::NoModifier,
                   Qt::NoScrollPhase, false);
  QApplication::sendEvent(&widget, &turn);
  return turn.isAccepted();
}

/// A user who clicks, types and chooses at random places of a window.
class RandomHands {
 public:
  explicit RandomHands(unsigned seed) : random_(seed) {}

  /// From 0 to below `end`.
  int Draw(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }

  /// Uses one of the window's widgets, unless `spared` holds for its name.
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
