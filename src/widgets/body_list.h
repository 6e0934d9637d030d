// A list of bodies with their weights: `lstUniStarfold` and `lstCompStarfold`.
#pragma once

#include <QListWidget>
#include <string>

namespace starfolds {

/// An entry is a name, blanks up to a column, and the weight in four characters. It is drawn with
/// the weight at the right edge, whatever the font.
class BodyList : public QListWidget {
  Q_OBJECT

 public:
  explicit BodyList(QWidget* parent = nullptr);

  /// `AddListEntry`: a new entry at the end, or in place of the one at `position`.
  void AddEntry(const std::string& name, int weight);
  void ReplaceEntry(int position, const std::string& name, int weight);

  /// The name in an entry: its text less the last four characters, trimmed. Empty beyond the end.
  std::string EntryName(int position) const;

  /// The selected entry, or -1.
  int Selected() const;

 private:
  void SetEntry(QListWidgetItem& item, const std::string& name, int weight);
};

}  // namespace starfolds
