#include "body_editors/body_themes.h"

#include <algorithm>

#include "settings/fields.h"
#include "settings/records.h"

namespace starfolds {
namespace {

constexpr std::size_t kRowWidth = 60;  // including the comma at the end

std::string Padded(std::string row) {
  if (row.size() < kRowWidth - 1) row.resize(kRowWidth - 1, ' ');
  return row + ",";
}

std::string RowOf(std::span<const Integer> fields) {
  std::string row;
  for (const Integer field : fields) {
    if (!row.empty()) row += ", ";
    row += std::to_string(field);
  }
  return Padded(std::move(row));
}

StarfoldProfile BodyOf(const BodyTheme& theme, FoldStyle style) {
  StarfoldProfile body;
  body.Starfold_FoldStyle = static_cast<Integer>(style);
  body.Starfold_Radius = theme.Body[0];
  body.Starfold_Rotation = theme.Body[1];
  body.Starfold_Distance = theme.Body[2];
  return body;
}

}  // namespace

StarfoldProfile BodyOfIfsTheme(const BodyTheme& theme) {
  StarfoldProfile body = BodyOf(theme, FoldStyle::UserIfs);
  body.IFS.IFS_CenterX = theme.Center[0];
  body.IFS.IFS_CenterY = theme.Center[1];
  body.IFS.IFS_CenterZ = theme.Center[2];
  const std::size_t points = std::min(theme.Rows.size(), body.IFS.Points.size());
  body.Starfold_IFS_Points = static_cast<Integer>(points);
  for (std::size_t i = 0; i < points; ++i) {
    const ThemeRow& row = theme.Rows[i];
    body.IFS.Points[i] = {row[0], row[1], row[2], row[3], row[4], row[5], row[6]};
  }
  return body;
}

StarfoldProfile BodyOfMoleculeTheme(const BodyTheme& theme) {
  StarfoldProfile body = BodyOf(theme, FoldStyle::Molecule);
  body.Atom.Atom_CenterX = theme.Center[0];
  body.Atom.Atom_CenterY = theme.Center[1];
  body.Atom.Atom_CenterZ = theme.Center[2];
  const std::size_t atoms = std::min(theme.Rows.size(), body.Atom.Atoms.size());
  body.Starfold_Atoms = static_cast<Integer>(atoms);
  for (std::size_t i = 0; i < atoms; ++i) {
    const ThemeRow& row = theme.Rows[i];
    body.Atom.Atoms[i] = {.Atom_Element = row[0],
                          .Atom_LocX = row[2],
                          .Atom_LocY = row[3],
                          .Atom_LocZ = row[4],
                          .Atom_Structure = row[1],
                          .Atom_Size = row[5],
                          .Atom_Radius = row[6],
                          .Atom_Count = AtomPoints(row[1])};
  }
  return body;
}

std::string IfsThemeText(const BodyTheme& theme) {
  std::string text =
      Padded(std::string(theme.Description)) + RowOf(theme.Center) + RowOf(theme.Body);
  for (std::size_t i = 0; i < kMaxIfsPoints; ++i) {
    text += RowOf(i < theme.Rows.size() ? theme.Rows[i] : ThemeRow{});
  }
  return text;
}

std::string MoleculeThemeText(const BodyTheme& theme) {
  const Integer head[] = {static_cast<Integer>(theme.Rows.size()), theme.Center[0], theme.Center[1],
                          theme.Center[2]};
  std::string text = Padded(std::string(theme.Description)) + RowOf(head) + RowOf(theme.Body);
  for (const ThemeRow& row : theme.Rows) text += RowOf(row);
  return text;
}

}  // namespace starfolds
