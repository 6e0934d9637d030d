// The search of the help: a line to type in, and what it finds.
#pragma once

#include <QLineEdit>
#include <QListWidget>
#include <QWidget>

#include "info/help_book.h"

namespace starfolds {

/// Finds while one types. Enter opens the first topic, the arrow down leads to the list.
class HelpSearch : public QWidget {
  Q_OBJECT

 public:
  explicit HelpSearch(const HelpBook& book, QWidget* parent = nullptr);

  /// Leads the keyboard to the line, whose text is ready to be typed over.
  void Begin();
  /// What is searched for.
  QStringList Words() const { return SearchWords(txtSearch_->text()); }

 signals:
  void TopicChosen(int topic);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Find();
  void Choose(const QListWidgetItem* item);

  const HelpBook& book_;
  QLineEdit* txtSearch_ = nullptr;
  QListWidget* lstFound_ = nullptr;
};

}  // namespace starfolds
