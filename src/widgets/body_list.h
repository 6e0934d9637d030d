// A list of bodies with their weights: `lstUniStarfold` and `lstCompStarfold`.
#pragma once

#include <QListWidget>
#include <string>

#include "widgets/still_delegate.h"

namespace starfolds {

/// The text of an entry is a name, blanks up to a column, and the weight in four characters. It is
/// painted as a still, the name, the weight as a number and as a bar, and its share of all weights.
/// Bodies of weight 0, which no universe shows, are dimmed.
class BodyList : public QListWidget {
  Q_OBJECT

 public:
  explicit BodyList(QWidget* parent = nullptr);

  /// From now on entries have a still. `stills` must outlive the list; nullptr: none.
  void ShowStills(StillService* stills, StillOfRow stillOfRow);

  /// `AddListEntry`: appends an entry, or replaces the one at `position`.
  void AddEntry(const std::string& name, int weight);
  void ReplaceEntry(int position, const std::string& name, int weight);

  /// The name in an entry: its text without the last four characters, trimmed. Empty if `position`
  /// is beyond the end.
  std::string EntryName(int position) const;

  /// Index of the selected entry, or -1.
  int Selected() const;

  /// Index of the first entry of the highest weight, or -1 if all weights are 0.
  int Heaviest() const;
  /// The sum of the weights of all entries.
  int Weights() const;
  /// The sum of the weights of the bodies that are not in this list but share a universe with them.
  void SetOtherWeights(int weights);

  /// Marks an entry as changed since the settings were accepted.
  void MarkChanged(int position, bool changed);

  /// Shows only the entries whose name contains the text, without regard to case; all if it is
  /// empty. The selection is kept.
  void SetFilter(const QString& text);

  /// Shows large stills side by side instead of rows.
  void ShowAsGrid(bool grid);

 signals:
  /// Return was pressed on an entry, or it was double-clicked.
  void Opened(int position);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  class EntryDelegate;

  void SetEntry(QListWidgetItem& item, const std::string& name, int weight);
  void ApplyFilter(int position);

  EntryDelegate* delegate_;
  int otherWeights_ = 0;
  QString filter_;
};

}  // namespace starfolds
