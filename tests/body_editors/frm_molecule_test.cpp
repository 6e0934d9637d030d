#include <gtest/gtest.h>

#include <QLabel>

#include "body_editors/body_editors_test.h"

namespace starfolds {
namespace {

class FrmMoleculeTest : public BodyEditorsTest {
 protected:
  /// Fills the molecule's element box.
  void Choose(int element, int structure, const std::string& symmetry) {
    List("cboElement").setCurrentIndex(element - 1);
    List("cboType").setCurrentIndex(structure);
    Put("txtProps_4", symmetry);
  }
};

TEST_F(FrmMoleculeTest, AtomsAreAddedChangedAndRemoved) {
  Open(Kind::Molecule);
  struct Refusal {
    std::string Button;
    int Element, Structure;
    std::string Symmetry, Message, FocusOn;
  };
  const Refusal refusals[] = {
      {"cmdAction_0", 0, 0, "", "Please select an Element.", "cboElement"},
      {"cmdAction_0", 6, -1, "", "Please select an Atomic Structure Type.", "cboType"},
      {"cmdAction_0", 6, 3, "", "Please enter a Symmetry Radius.", "spnProps_4"},
      {"cmdAction_1", 6, 0, "", "Please select an Element to update.", ""},
      {"cmdAction_2", 6, 0, "", "Please select one or more Elements to remove.", ""}};
  for (const Refusal& row : refusals) {
    Choose(row.Element, row.Structure, row.Symmetry);
    Click(row.Button);
    EXPECT_EQ(LastBox(), row.Message);
    EXPECT_EQ(Atoms().count(), 0);
    if (!row.FocusOn.empty()) {
      EXPECT_TRUE(The<QWidget>(row.FocusOn).hasFocus()) << row.Message;
    }
  }

  for (int i = 0; i < kMaxAtoms; ++i) {
    Choose(1 + i % 17, 0, "");
    Put("txtProps_0", std::to_string(i));
    Click("cmdAction_0");
    EXPECT_EQ(Atoms().currentRow(), i);
    EXPECT_EQ(List("cboElement").currentIndex(), -1);
  }
  Choose(1, 0, "");
  Click("cmdAction_0");
  EXPECT_NE(LastBox(), "");
  EXPECT_EQ(Atoms().count(), kMaxAtoms);

  Atoms().setCurrentRow(5, QItemSelectionModel::ClearAndSelect);
  EXPECT_EQ(List("cboElement").currentText(), "Carbon");
  EXPECT_EQ(Text("txtProps_0"), "5");
  Choose(8, 4, "120");
  Click("cmdAction_1");
  EXPECT_TRUE(Boxes.Log.empty()) << "a full list can be changed";
  EXPECT_TRUE(Atoms().item(5)->text().startsWith("Oxygen            26 Shell  "));

  Atoms().clearSelection();
  for (const int row : {0, 1, 30, 6}) Atoms().item(row)->setSelected(true);
  Click("cmdAction_2");
  ASSERT_EQ(Atoms().count(), kMaxAtoms - 4);
  Click("cmdOK");
  std::vector<int> order;
  for (int i = 0; i < Record().Starfold_Atoms; ++i) {
    order.push_back(Record().Atom.Atoms[i].Atom_LocX);
  }
  std::vector<int> expected{2, 3, 4, 5};
  for (int i = 7; i < kMaxAtoms; ++i) {
    if (i != 30) expected.push_back(i);
  }
  EXPECT_EQ(order, expected);
}

/// Sulphur is yellow (60); on a wheel that is turned by 60 degrees it shows green.
TEST_F(FrmMoleculeTest, AnElementShowsItsColours) {
  Record().Starfold_HueStart = 420;
  Open(Kind::Molecule);
  List("cboElement").setCurrentIndex(15);
  EXPECT_EQ(Text("txtPropNumber") + Text("txtPropSymbol") + Text("txtPropShells"), "16S2,8,6");
  const auto shown = [&](const char* name) {
    return The<QLabel>(name).pixmap().toImage().pixelColor(3, 3).rgb();
  };
  EXPECT_EQ(shown("picPropColor"), qRgb(254, 254, 0));
  EXPECT_EQ(shown("picDispColor"), qRgb(0, 254, 0));
  List("cboElement").setCurrentIndex(7);
  EXPECT_EQ(shown("picPropColor"), qRgb(254, 0, 0)) << "hue 0 is a colour as well";
}

}  // namespace
}  // namespace starfolds
