// `frmMolecule`: the editor of molecules.
#pragma once

#include <QLineEdit>
#include <QListWidget>
#include <array>
#include <vector>

#include "body_editors/themed_editor.h"

namespace starfolds {

/// The list is the only copy of the atoms until `Gather`.
class FrmMolecule : public ThemedEditor {
  Q_OBJECT

 public:
  explicit FrmMolecule(const BodyEditing& editing, QWidget* parent = nullptr);

 private:
  enum Action { kAdd, kUpdate, kRemove };

  QLayout* MakeList();
  QWidget* MakeElement();
  void AddElementLines(QGridLayout& page);
  void AddProps(QGridLayout& page);
  QLayout* MakeActions();

  void ShowElement(int position);
  void ShowStructure(int structure);
  void ShowAtom(const AtomPoint& atom);
  void ShowRow(int row);
  AtomPoint AtomInControls() const;
  void FillList(const std::vector<AtomPoint>& atoms);

  void Act(Action action);
  /// Whether the controls define an atom. If not, shows what is missing and moves the focus there.
  bool HasAtom();
  void AddRow();
  void UpdateRow(int row);
  void RemoveRows(QList<int> rows);
  /// In ascending order.
  QList<int> SelectedRows() const;

  std::string TextOf(const BodyTheme& theme) const override { return MoleculeThemeText(theme); }
  StarfoldProfile BodyOf(const BodyTheme& theme) const override {
    return BodyOfMoleculeTheme(theme);
  }
  void LoadThemeText(const std::string& text) override;
  void Clear() override;
  /// `GatherMolecule`.
  std::string Gather(StarfoldProfile& body) const override;

  std::vector<BoundBox<AtomRecord>> center_;
  QListWidget* lstElements_ = nullptr;
  QComboBox* cboElement_ = nullptr;
  QLineEdit* txtPropNumber_ = nullptr;
  QLineEdit* txtPropSymbol_ = nullptr;
  QLineEdit* txtPropShells_ = nullptr;
  QLabel* picPropColor_ = nullptr;
  QLabel* picDispColor_ = nullptr;
  QComboBox* cboType_ = nullptr;
  std::array<QLabel*, 5> lblProps_{};
  std::vector<BoundBox<AtomPoint>> txtProps_;
};

}  // namespace starfolds
