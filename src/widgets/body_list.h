// A list of bodies with their weights: `lstUniStarfold` and `lstCompStarfold`.
#pragma once

#include <QListWidget>
#include <string>

namespace starfolds {

/// The text of an entry is a name, blanks up to a column, and the weight in four characters. It is
/// painted with the weight at the right edge, whatever the font.
class BodyList : public QListWidget {
  Q_OBJECT

 public:
  explicit BodyList(QWidget* parent = nullptr);

  /// `AddListEntry`: appends an entry, or replaces the one at `position`.
  void AddEntry(const std::string& name, int weight);
  void ReplaceEntry(int position, const std::string& name, int weight);

  /// The name in an entry: its text without the last four characters, trimmed. Empty if `position`
  /// is beyond the end.
  std::string EntryName(int position) const;

  /// Index of the selected entry, or -1.
  int Selected() const;

 private:
  void SetEntry(QListWidgetItem& item, const std::string& name, int weight);
};

}  // namespace starfolds
