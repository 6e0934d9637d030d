// What the editors of bodies made of points share: a list of themes, and a centre.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <array>
#include <vector>

#include "body_editors/body_editor.h"
#include "body_editors/body_themes.h"

namespace starfolds {

class ThemedEditor : public BodyEditor {
  Q_OBJECT

 protected:
  ThemedEditor(const Texts& texts, const BodyEditing& editing, std::span<const BodyTheme> themes,
               QWidget* parent);

  /// The frames with the body's numbers and with the centre, side by side.
  QLayout* MakeBodyAndCenter();
  /// Sets the record that the boxes of the centre edit, and their ranges.
  template <class Record>
  std::vector<BoundBox<Record>> BindCenter(std::span<const Field<Record>> fields) const {
    std::vector<BoundBox<Record>> bound;
    for (std::size_t i = 0; i < txtCenter_.size(); ++i) {
      txtCenter_[i]->SetRange(RangeOf(fields[i]));
      Guide(*txtCenter_[i], fields[i]);
      bound.push_back({txtCenter_[i], &fields[i]});
    }
    return bound;
  }

  /// The text of the theme at a position of `cboTheme`; empty for position 0.
  std::string ThemeText(int index) const;
  virtual std::string TextOf(const BodyTheme& theme) const = 0;
  /// The body of a theme, for its picture.
  virtual StarfoldProfile BodyOf(const BodyTheme& theme) const = 0;
  /// Shows the values of a theme in the controls.
  virtual void LoadThemeText(const std::string& text) = 0;
  /// Shows the values that all themes have.
  void LoadThemeHead(const std::string& text, int centerAt, int bodyAt);

  QPushButton* MakeClearButton();
  /// `cmdClear`. The base class clears the boxes of the centre.
  virtual void Clear();

 private:
  void ChooseTheme(int index);

  std::span<const BodyTheme> themes_;
  QComboBox* cboTheme_ = nullptr;
  QLabel* lblTheme_ = nullptr;
  std::array<NumberBox*, 3> txtCenter_{};
};

}  // namespace starfolds
