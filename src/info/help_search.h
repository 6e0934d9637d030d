// The search of the help: an input line and its results.
#pragma once

#include <QLineEdit>
#include <QListWidget>
#include <QWidget>

#include "info/help_book.h"

namespace starfolds {

/// Searches while the user types. Enter opens the first result, the down key moves to the list.
class HelpSearch : public QWidget {
  Q_OBJECT

 public:
  explicit HelpSearch(const HelpBook& book, QWidget* parent = nullptr);

  /// Moves the focus to the line and selects its text.
  void Begin();
  /// The words of the current search.
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
