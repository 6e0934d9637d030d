// The editor of composites: what it shows of the records, and what it makes of a commit.
#include "properties/composite_editor.h"

#include <gmock/gmock.h>

#include "widgets/dialog_test.h"

namespace starfolds {
namespace {

using testing::ElementsAre;

const char* const kIfsWarning =
    "Note:\n\nTwo or more of the selected Starfold Types have a Style of IFS.\n"
    "This may result in strange looking Starfolds.";

class CompositeEditorTest : public EditorTest {
 protected:
  CompositeEditorTest() {
    Process->Composites[2] = {"Rings", 70, 3, {9, 4, 6}};
    Names = {};
    for (const StarfoldProfile& profile : Process->Profiles) Names.push_back(profile.UniFoldName);
    Editor.SetBodies(Names);
    Editor.Rebuild();
  }

  void Select(int composite) { Composites.setCurrentRow(composite); }
  void Choose(int major, std::initializer_list<int> minors) {
    Major.setCurrentIndex(major);
    Minors.clearSelection();
    for (const int minor : minors) Minors.item(minor)->setSelected(true);
  }
  std::vector<int> ChosenMinors() const {
    std::vector<int> rows;
    for (int i = 0; i < Minors.count(); ++i) {
      if (Minors.item(i)->isSelected()) rows.push_back(i);
    }
    return rows;
  }
  std::vector<int> Members(int composite) const {
    const CompositeProfile& record = Process->Composites[composite];
    return {record.CompFold_Type.begin(), record.CompFold_Type.begin() + record.MemberCount()};
  }
  QWidget& Window() override { return Editor; }
  QRgb NameColour() const { return Name.palette().color(QPalette::Base).rgb(); }

  std::vector<std::string> Names;
  CompositeEditor Editor{Model};
  BodyList& Composites = Part<BodyList>(Editor, "lstCompStarfold");
  QLineEdit& Name = Part<QLineEdit>(Editor, "txtCompFoldName");
  QLineEdit& Percent = Part<QLineEdit>(Editor, "txtCompFoldPct");
  QComboBox& Major = Part<QComboBox>(Editor, "cboCompMajor");
  QListWidget& Minors = Part<QListWidget>(Editor, "lstCompMinor");
  QLineEdit& ResetPercent = Part<QLineEdit>(Editor, "txtResetCompPct");
};

TEST_F(CompositeEditorTest, ShowsTheRecordThatIsSelected) {
  ASSERT_EQ(Composites.count(), kCompositeCount);
  EXPECT_EQ(Composites.EntryName(2), "Rings");
  EXPECT_EQ(Editor.Selected(), -1);
  Select(2);
  EXPECT_EQ(Editor.Selected(), 2);
  EXPECT_EQ(Name.text(), "Rings");
  EXPECT_EQ(Percent.text(), "70");
  EXPECT_EQ(Major.currentIndex(), 9);
  EXPECT_THAT(ChosenMinors(), ElementsAre(4, 6));
  Select(0);  // which has no members
  EXPECT_EQ(Name.text(), "< Composite Starfold 1 >");
  EXPECT_EQ(Major.currentIndex(), -1);
  EXPECT_TRUE(ChosenMinors().empty());
}

TEST_F(CompositeEditorTest, InvalidRecordsAreHarmless) {
  Process->Composites[1].CompFold_Count = 49;
  Process->Composites[1].CompFold_Type.fill(30000);
  Process->Composites[1].CompFold_Type[5] = -1;
  Select(1);
  EXPECT_EQ(Major.currentIndex(), -1);
  EXPECT_TRUE(ChosenMinors().empty());
}

TEST_F(CompositeEditorTest, CommitStoresTheMajorFirstAndOnceThenTheMinorsAndNameAndPercent) {
  const struct {
    int Major;
    std::initializer_list<int> Minors;
    std::vector<int> Members;
  } rows[] = {
      {7, {7}, {7}},
      {7, {49, 7, 0, 12}, {7, 0, 12, 49}},
      {0, {1}, {0, 1}},
  };
  Select(2);
  for (const auto& row : rows) {
    Choose(row.Major, row.Minors);
    Click("cmdCompCommit");
    EXPECT_EQ(Members(2), row.Members);
  }
  Minors.selectAll();
  Name.setText("Halo");
  Percent.setMaxLength(9);
  Percent.setText("12000");
  Click("cmdCompCommit");
  EXPECT_EQ(LastBox(), "");
  EXPECT_EQ(Process->Composites[2].CompFold_Count, kMaxMembers) << "more than there is room for";
  EXPECT_EQ(Process->Composites[2].CompFoldName, "Halo");
  EXPECT_EQ(Process->Composites[2].CompFoldPct, 9999);
  EXPECT_EQ(Composites.EntryName(2), "Halo");
  EXPECT_TRUE(Composites.item(2)->text().endsWith("9999"));
  EXPECT_EQ(Editor.Selected(), 2);
}

TEST_F(CompositeEditorTest, TwoIteratedFunctionSystemsAreWarnedOfAndStored) {
  for (Integer style = 0; style < kStyleCount; ++style) {
    Process->Profiles[style].Starfold_FoldStyle = style;
  }
  const struct {
    int Major;
    std::initializer_list<int> Minors;
    bool Warns;
  } rows[] = {
      {1, {}, false},  {1, {2}, true},     {0, {3, 8}, true},  {1, {1}, false},
      {8, {9}, false}, {-1, {1, 2}, true}, {0, {1, 4}, false},
  };
  Select(2);
  const QRgb usual = NameColour();
  for (const auto& row : rows) {
    Choose(row.Major, row.Minors);
    EXPECT_EQ(NameColour(), row.Warns ? qRgb(0, 255, 255) : usual);
    if (row.Major < 0) continue;
    Click("cmdCompCommit");
    EXPECT_EQ(LastBox(), row.Warns ? kIfsWarning : "");
    EXPECT_EQ(Members(2)[0], row.Major);
  }
  Choose(1, {2});
  Editor.ClearEditor();
  EXPECT_EQ(Editor.Selected(), -1);
  EXPECT_EQ(NameColour(), usual);
}

TEST_F(CompositeEditorTest, ResetSetsEveryPercent) {
  Select(2);
  Click("cmdResetCompPct");
  EXPECT_EQ(LastBox(), "Please enter a value for the Reset percent.");
  EXPECT_EQ(Process->Composites[2].CompFoldPct, 70);

  Leave(Part<NumberBox>(Editor, "spnResetCompPct"));
  EXPECT_EQ(ResetPercent.text(), "") << "no number is not 0";
  for (const auto& [typed, expected] : {std::pair{"50", 50}, {"99999", 9999}, {"0", 0}}) {
    ResetPercent.setMaxLength(9);
    ResetPercent.setText(typed);
    Click("cmdResetCompPct");
    for (int i = 0; i < kCompositeCount; ++i) {
      EXPECT_EQ(Process->Composites[i].CompFoldPct, expected);
      EXPECT_TRUE(Composites.item(i)->text().endsWith(" " + QString::number(expected)));
    }
    EXPECT_EQ(Percent.text().toInt(), expected) << "a commit would bring the former one back";
  }
  EXPECT_EQ(LastBox(), "");
}

}  // namespace
}  // namespace starfolds
