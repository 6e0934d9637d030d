#include "body_editors/frm_user_def_ifs.h"

#include <QGroupBox>

#include "desktop/translation.h"
#include "numbers/conversions.h"
#include "numbers/text.h"
#include "settings/factory.h"
#include "settings/registry.h"
#include "widgets/lines.h"

namespace starfolds {
namespace {

/// A column of the points: control array, setting, and the two lines of its heading. The fields of
/// a theme's row are in the same order.
struct PointColumn {
  const char* Array;
  Setting<IfsPoint> What;
  const char* Heading;
};
constexpr PointColumn kColumns[kThemeRowFields] = {
    {"LocX", &IfsPoint::IFS_LocX, STARFOLDS_TEXT("Loc X\n(0-9999):")},
    {"LocY", &IfsPoint::IFS_LocY, STARFOLDS_TEXT("Loc Y\n(0-9999):")},
    {"LocZ", &IfsPoint::IFS_LocZ, STARFOLDS_TEXT("Loc Z\n(0-9999):")},
    {"Scale", &IfsPoint::IFS_Scale, STARFOLDS_TEXT("Scale\n(0-100):")},
    {"cboRAxis", &IfsPoint::IFS_Axis, STARFOLDS_TEXT("Axis\n(X,Y,Z):")},
    {"Angle", &IfsPoint::IFS_Angle, STARFOLDS_TEXT("Angle\n(0-360):")},
    {"Percent", &IfsPoint::IFS_RelPct, STARFOLDS_TEXT("Rel.Pct.\n(0-9999):")}};
constexpr int kAxisColumn = 4;
constexpr int kWeightColumn = 6;
constexpr int kLeastPoints = 2;

const char kTooFewPoints[] = STARFOLDS_TEXT(
    "You must specify two or more Attractor Points in order to Preview the I.F.S.  \n"
    "Consider selecting one of the Themes in order to see a sample I.F.S.  \n"
    "or press Cancel to return to the Starfold Settings.");

}  // namespace

FrmUserDefIfs::FrmUserDefIfs(const BodyEditing& editing, QWidget* parent)
    : ThemedEditor({"frmUserDefIFS", sections::kIfsPlace, help::kIfs,
                    tr("%1 User Defined Iterated Function System (IFS):  "), tr("IFS Preview - %1"),
                    tr("Preview I.F.S."), RangedEditor::Themed},
                   editing, IfsThemes(), parent) {
  Controls().addLayout(MakeBodyAndCenter());
  Controls().addWidget(MakePoints());
  Controls().addStretch();
  AddPreviewAndButtons(MakeClearButton());
  center_ = BindCenter(IfsCenterFields());
  ShowRecord();
}

QWidget* FrmUserDefIfs::MakePoints() {
  auto* frame = new QGroupBox(tr("Attractor Points"));
  auto* grid = new QGridLayout(frame);
  for (int column = 0; column < kThemeRowFields; ++column) {
    grid->addWidget(new QLabel(Translated(kColumns[column].Heading)), 0, column + 1);
  }
  for (int i = 0; i < kMaxIfsPoints; ++i) AddPoint(*grid);
  return frame;
}

void FrmUserDefIfs::AddPoint(QGridLayout& grid) {
  const int index = static_cast<int>(points_.size());
  const int line = grid.rowCount();
  const QString name = tr("Point %1").arg(index + 1);
  auto* lblPoint = new QLabel(tr("Point %1:").arg(index + 1));
  lblPoint->setObjectName("lblPoint_" + QString::number(index));
  grid.addWidget(lblPoint, line, 0);
  PointRow row;
  for (int column = 0; column < kThemeRowFields; ++column) {
    const PointColumn& about = kColumns[column];
    const Field<IfsPoint>* field = &FieldOf(about.What);
    QWidget* control = nullptr;
    if (column == kAxisColumn) {
      control = row.cboRAxis = new QComboBox;
      row.cboRAxis->addItems({"X", "Y", "Z"});
      row.cboRAxis->setObjectName("cboRAxis_" + QString::number(index));
      connect(row.cboRAxis, &QComboBox::currentIndexChanged, this, &FrmUserDefIfs::Touched);
    } else {
      auto* box = new NumberBox;
      box->SetNames(about.Array, index);
      box->SetRange(RangeOf(*field));
      box->SetBlankAllowed();
      connect(box, &NumberBox::Changed, this, &FrmUserDefIfs::Touched);
      row.Boxes.push_back({box, field});
      control = box;
    }
    control->setAccessibleName(tr("%1, %2").arg(name, Translated(field->Label)));
    Guide(*control, *field);
    grid.addWidget(control, line, column + 1);
    if (column == 0) lblPoint->setBuddy(control);
  }
  points_.push_back(row);
}

void FrmUserDefIfs::ShowRecord() {
  const StarfoldProfile& body = Record();
  ShowBodyBoxes(body);
  for (const auto& box : center_) box.Show(body.IFS);
  for (int i = 0; i < kMaxIfsPoints; ++i) {
    if (i < body.Starfold_IFS_Points) {
      ShowPoint(points_[i], body.IFS.Points[i]);
    } else {
      BlankPoint(points_[i]);
    }
  }
}

void FrmUserDefIfs::ShowPoint(const PointRow& row, const IfsPoint& point) {
  for (const auto& box : row.Boxes) box.Show(point);
  row.cboRAxis->setCurrentIndex(point.IFS_Axis);
}

void FrmUserDefIfs::BlankPoint(const PointRow& row) {
  for (const auto& box : row.Boxes) box.Clear();
  row.cboRAxis->setCurrentIndex(-1);
}

IfsPoint FrmUserDefIfs::PointIn(const PointRow& row) const {
  IfsPoint point;
  for (const auto& box : row.Boxes) box.Store(point);
  point.IFS_Axis = ClampTo<Integer>(static_cast<Integer>(row.cboRAxis->currentIndex()), 0, 2);
  return point;
}

void FrmUserDefIfs::LoadThemeText(const std::string& text) {
  LoadThemeHead(text, kIfsThemeCenter, kIfsThemeBody);
  for (int i = 0; i < kMaxIfsPoints; ++i) {
    const int first = kIfsThemeRows + i * kThemeRowFields;
    BlankPoint(points_[i]);
    if (LenientNumber(GetField(text, first + kWeightColumn)) <= 0) continue;
    IfsPoint point;
    for (int column = 0; column < kThemeRowFields; ++column) {
      const Field<IfsPoint>* field = &FieldOf(kColumns[column].What);
      SetFieldText(point, *field, GetField(text, first + column));
    }
    ShowPoint(points_[i], point);
  }
}

void FrmUserDefIfs::Clear() {
  ThemedEditor::Clear();
  for (const PointRow& row : points_) BlankPoint(row);
}

std::string FrmUserDefIfs::Gather(StarfoldProfile& body) const {
  for (const auto& box : center_) box.Store(body.IFS);
  Integer count = 0;
  for (const PointRow& row : points_) {
    const IfsPoint point = PointIn(row);
    if (point.IFS_RelPct > 0) body.IFS.Points[count++] = point;
  }
  for (int i = count; i < kMaxIfsPoints; ++i) body.IFS.Points[i].IFS_RelPct = 0;
  const bool isSystem = count >= kLeastPoints;
  body.Starfold_IFS_Points = isSystem ? count : Integer{0};
  return isSystem ? std::string() : kTooFewPoints;
}

}  // namespace starfolds
