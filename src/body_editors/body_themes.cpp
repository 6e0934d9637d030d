#include "body_editors/body_themes.h"

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

}  // namespace

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
