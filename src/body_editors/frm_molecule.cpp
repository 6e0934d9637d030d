#include "body_editors/frm_molecule.h"

#include <QGroupBox>
#include <QShortcut>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <algorithm>

#include "body_editors/atom_rows.h"
#include "colour/tables.h"
#include "desktop/translation.h"
#include "numbers/conversions.h"
#include "numbers/text.h"
#include "settings/elements.h"
#include "settings/factory.h"
#include "settings/registry.h"
#include "widgets/lines.h"

namespace starfolds {
namespace {

constexpr QSize kSwatchSize{44, 20};
constexpr int kElementStrength = 127;  // maximum of each channel of an element's own colour
constexpr int kListLines = 11;

/// The boxes of `txtProps`, with the labels that they have for shells.
struct PropRow {
  Setting<AtomPoint> What;
  const char* Label;
};
constexpr PropRow kProps[] = {{&AtomPoint::Atom_LocX, STARFOLDS_TEXT("Loc X\n(0-9999):")},
                              {&AtomPoint::Atom_LocY, STARFOLDS_TEXT("Loc Y\n(0-9999):")},
                              {&AtomPoint::Atom_LocZ, STARFOLDS_TEXT("Loc Z\n(0-9999):")},
                              {&AtomPoint::Atom_Size, STARFOLDS_TEXT("Radius")},
                              {&AtomPoint::Atom_Radius, STARFOLDS_TEXT("Symmetry Radius")}};
constexpr int kPropX = 0;
constexpr int kPropY = 1;
constexpr int kPropZ = 2;
constexpr int kPropSymmetry = 4;
// Labels for lattices, if different.
const char kEdgeLabel[] = STARFOLDS_TEXT("Points per\nEdge (1-99)");
const char kAtomOffset[] = STARFOLDS_TEXT("Atom Offset");
constexpr NumberRange kEdgeRange{NumberKind::AsInteger, kPointsPerEdge.Low, kPointsPerEdge.High};

const char kNoAtoms[] = STARFOLDS_TEXT(
    "You must specify at least one Atomic Structure in order to Preview the Molecule.  \n"
    "Consider selecting one of the Themes in order to see a sample Molecule  \n"
    "or press Cancel to return to the Starfold Settings.");
const char kListIsFull[] = STARFOLDS_TEXT(
    "You have reached the limit with respect to the number \n"
    "elements that can be associated with a given molecule.");

QFont FixedPitch() {
  QFont font("Courier New");
  font.setStyleHint(QFont::Monospace);
  font.setFixedPitch(true);
  return font;
}

/// Shows the rows of atoms in the user's language. Their text stays English: the editor parses it.
class AtomRowDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QString displayText(const QVariant& row, const QLocale&) const override {
    const std::string english = row.toString().toStdString();
    const AtomPoint atom = ReadAtomRow(english);
    const QString name = Translated(ElementInfo(atom.Atom_Element).Name);
    const QString structure = Translated(AtomStructureName(atom.Atom_Structure));
    return name.leftJustified(kAtomNameWidth, ' ', true) +
           structure.leftJustified(kAtomStructureWidth, ' ', true) +
           Shown(english).mid(kAtomNameWidth + kAtomStructureWidth);
  }
};

QLineEdit* MakeField(const char* name, const QString& about) {
  auto* field = new QLineEdit;
  field->setObjectName(name);
  field->setAccessibleName(about);
  field->setReadOnly(true);
  field->setFrame(false);  // a fact, not a box to type in
  QPalette asLabel = field->palette();
  asLabel.setColor(QPalette::Base, Qt::transparent);
  field->setPalette(asLabel);
  field->setMaximumWidth(field->fontMetrics().averageCharWidth() * 9);
  return field;
}

void ShowColour(QLabel* swatch, Colour colour) {
  QImage image(swatch->size(), QImage::Format_RGB32);
  image.fill(ScreenWord(colour));
  ShowSample(swatch, image);
}

/// `StarColorAt`: a colour of the profile's hue wheel.
Colour StarColorAt(const StarfoldProfile& profile, int hue) {
  std::array<Colour, 361> wheel{};
  BuildHueWheel(wheel, profile);
  return wheel[static_cast<std::size_t>(WrapIndex(hue, 360))];
}

}  // namespace

FrmMolecule::FrmMolecule(const BodyEditing& editing, QWidget* parent)
    : ThemedEditor({"frmMolecule", sections::kAtomicsPlace, help::kMolecule,
                    tr("%1 User Defined Molecular Structure:  "), tr("Molecule Preview - %1"),
                    tr("Preview Molecule"), RangedEditor::Themed},
                   editing, MoleculeThemes(), parent) {
  auto* columns = new QHBoxLayout;
  auto* left = new QVBoxLayout;
  left->addLayout(MakeList(), 1);
  left->addLayout(MakeBodyAndCenter());
  columns->addLayout(left);
  columns->addWidget(MakeElement());
  Controls().addLayout(columns);
  AddPreviewAndButtons(MakeClearButton());
  center_ = BindCenter(AtomCenterFields());

  const StarfoldProfile& body = Record();
  ShowBodyBoxes(body);
  for (const auto& box : center_) box.Show(body.Atom);
  const auto count = ClampTo<int>(body.Starfold_Atoms, 0, kMaxAtoms);
  FillList({body.Atom.Atoms.begin(), body.Atom.Atoms.begin() + count});
}

// --- Its parts ---

/// The heading is aligned with the columns: it has the same font and indentation.
QLayout* FrmMolecule::MakeList() {
  lstElements_ = new QListWidget;
  lstElements_->setObjectName("lstElements");
  lstElements_->setAccessibleName(tr("Atoms"));
  lstElements_->setFont(FixedPitch());
  lstElements_->setSelectionMode(QAbstractItemView::ExtendedSelection);
  lstElements_->setUniformItemSizes(true);
  lstElements_->setItemDelegate(new AtomRowDelegate(lstElements_));
  const QFontMetrics metrics(lstElements_->font());
  const int margin = lstElements_->frameWidth() +
                     lstElements_->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1;
  const int bar = lstElements_->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  lstElements_->setMinimumWidth(metrics.horizontalAdvance(Translated(kAtomRowHeading)) + bar +
                                4 * margin);
  lstElements_->setMinimumHeight(metrics.lineSpacing() * kListLines);

  auto* heading = new QLabel(Translated(kAtomRowHeading));
  heading->setObjectName("lblElements");
  heading->setFont(lstElements_->font());
  heading->setIndent(margin);
  heading->setTextFormat(Qt::PlainText);

  // A click also shows a row that is the current one already.
  connect(lstElements_, &QListWidget::currentRowChanged, this, &FrmMolecule::ShowRow);
  connect(lstElements_, &QListWidget::itemClicked, this,
          [this] { ShowRow(lstElements_->currentRow()); });
  auto* remove = new QShortcut(QKeySequence::Delete, lstElements_);
  remove->setContext(Qt::WidgetShortcut);
  connect(remove, &QShortcut::activated, this, [this] { Act(kRemove); });

  auto* column = new QVBoxLayout;
  column->setSpacing(2);
  column->addWidget(heading);
  column->addWidget(lstElements_, 1);
  return column;
}

QWidget* FrmMolecule::MakeElement() {
  auto* frame = new QGroupBox(tr("Element"));
  QGridLayout* page = MakePage(frame);
  AddElementLines(*page);
  AddProps(*page);
  page->addLayout(MakeActions(), page->rowCount(), 0, 1, page->columnCount());
  EndPage(*page);
  ShowElement(-1);
  return frame;
}

void FrmMolecule::AddElementLines(QGridLayout& page) {
  cboElement_ = new QComboBox;
  cboElement_->setObjectName("cboElement");
  for (int element = 1; element <= kElementCount; ++element) {
    cboElement_->addItem(Translated(ElementInfo(element).Name));
  }
  cboElement_->setCurrentIndex(-1);
  AddLine(page, tr("Periodic Table &Element:"), cboElement_, {cboElement_});
  connect(cboElement_, &QComboBox::currentIndexChanged, this, &FrmMolecule::ShowElement);

  txtPropNumber_ = MakeField("txtPropNumber", tr("Atomic number"));
  txtPropSymbol_ = MakeField("txtPropSymbol", tr("Symbol"));
  AddLine(page, tr("Number, Symbol:"), txtPropNumber_, {txtPropNumber_, txtPropSymbol_});
  txtPropShells_ = MakeField("txtPropShells", tr("Electrons per shell"));
  AddLine(page, tr("Electron Shells:"), txtPropShells_, {txtPropShells_});
  picPropColor_ = MakeSamplePlace("picPropColor", tr("Color of the element"), kSwatchSize);
  picPropColor_->setToolTip(tr("The element's own color"));
  picDispColor_ = MakeSamplePlace("picDispColor", tr("Color in this starfold"), kSwatchSize);
  picDispColor_->setToolTip(tr("The color that it has in this starfold"));
  AddLine(page, tr("Color, in Starfold:"), nullptr, {picPropColor_, picDispColor_});

  cboType_ = new QComboBox;
  cboType_->setObjectName("cboType");
  cboType_->setFont(FixedPitch());
  for (int structure = 0; structure < kAtomStructureCount; ++structure) {
    cboType_->addItem(Translated(AtomStructureName(structure)));
  }
  cboType_->setCurrentIndex(-1);
  AddLine(page, tr("Atomic &Structure:"), cboType_, {cboType_});
  connect(cboType_, &QComboBox::currentIndexChanged, this, &FrmMolecule::ShowStructure);
}

void FrmMolecule::AddProps(QGridLayout& page) {
  for (const PropRow& row : kProps) {
    const auto index = static_cast<int>(txtProps_.size());
    const Field<AtomPoint>* field = &FieldOf(row.What);
    auto* box = new NumberBox;
    box->SetNames("Props", index);
    box->SetRange(RangeOf(*field));
    box->SetBlankAllowed();
    box->setAccessibleName(tr("Atom, %1").arg(SpokenLabel(Translated(row.Label))));
    Guide(*box, *field);
    lblProps_[index] = AddLine(page, Translated(row.Label), box, {box});
    lblProps_[index]->setObjectName("lblProps_" + QString::number(index));
    lblProps_[index]->setMinimumWidth(lblProps_[index]->sizeHint().width());  // boxes stay put
    txtProps_.push_back({box, field});
  }
}

QLayout* FrmMolecule::MakeActions() {
  auto* line = new QHBoxLayout;
  const QString captions[] = {tr("&Add"), tr("&Update"), tr("&Remove")};
  for (const Action action : {kAdd, kUpdate, kRemove}) {
    auto* button = MakeButton(captions[action], {});
    button->setObjectName("cmdAction_" + QString::number(action));
    connect(button, &QPushButton::clicked, this, [this, action] { Act(action); });
    line->addWidget(button);
  }
  return line;
}

// --- What the controls show ---

void FrmMolecule::ShowElement(int position) {
  const bool isElement = position >= 0;
  picPropColor_->setVisible(isElement);
  picDispColor_->setVisible(isElement);
  if (!isElement) {
    for (QLineEdit* field : {txtPropNumber_, txtPropSymbol_, txtPropShells_}) field->clear();
    return;
  }
  const Element& element = ElementInfo(position + 1);
  txtPropNumber_->setText(QString::number(position + 1));
  txtPropSymbol_->setText(Shown(element.Symbol));
  txtPropShells_->setText(Shown(element.Shells));
  ShowColour(picPropColor_,
             HueToRgb(element.Color, 0, kElementStrength, kElementStrength, kElementStrength));
  ShowColour(picDispColor_, StarColorAt(Record(), element.Color + Record().Starfold_HueStart));
}

/// A lattice has points per edge in place of a location; a single point has no symmetry.
void FrmMolecule::ShowStructure(int structure) {
  const bool lattice = IsLattice(static_cast<Integer>(structure));
  lblProps_[kPropX]->setText(Translated(lattice ? kEdgeLabel : kProps[kPropX].Label));
  lblProps_[kPropSymmetry]->setText(
      Translated(lattice ? kAtomOffset : kProps[kPropSymmetry].Label));
  const auto& x = txtProps_[kPropX];
  x.Box->SetRange(lattice ? kEdgeRange : RangeOf(*x.Row));
  txtProps_[kPropY].Box->setEnabled(!lattice);
  txtProps_[kPropZ].Box->setEnabled(!lattice);
  txtProps_[kPropSymmetry].Box->setEnabled(structure != 0);
  for (std::size_t i = 0; i < txtProps_.size(); ++i) {
    txtProps_[i].Box->setAccessibleName(tr("Atom, %1").arg(SpokenLabel(lblProps_[i]->text())));
  }
}

void FrmMolecule::ShowAtom(const AtomPoint& atom) {
  cboElement_->setCurrentIndex(atom.Atom_Element - 1);
  cboType_->setCurrentIndex(atom.Atom_Structure);
  for (const auto& box : txtProps_) box.Show(atom);
}

void FrmMolecule::ShowRow(int row) {
  if (row >= 0) ShowAtom(ReadAtomRow(lstElements_->item(row)->text().toStdString()));
}

AtomPoint FrmMolecule::AtomInControls() const {
  AtomPoint atom;
  atom.Atom_Element = static_cast<Integer>(cboElement_->currentIndex() + 1);
  atom.Atom_Structure = static_cast<Integer>(cboType_->currentIndex());
  for (const auto& box : txtProps_) box.Store(atom);
  return atom;
}

void FrmMolecule::FillList(const std::vector<AtomPoint>& atoms) {
  const QSignalBlocker quiet(lstElements_);
  lstElements_->clear();
  for (const AtomPoint& atom : atoms) lstElements_->addItem(Shown(FormatAtomRow(atom)));
  Touched();
}

// --- What the buttons do ---

void FrmMolecule::Act(Action action) {
  const QList<int> rows = SelectedRows();
  switch (action) {
    case kAdd:
      if (lstElements_->count() >= kMaxAtoms) return Model().Inform(Translated(kListIsFull));
      if (HasAtom()) AddRow();
      break;
    case kUpdate:
      if (rows.isEmpty()) return Model().Inform(tr("Please select an Element to update."));
      if (HasAtom()) UpdateRow(rows.first());
      break;
    case kRemove:
      if (rows.isEmpty())
        return Model().Inform(tr("Please select one or more Elements to remove."));
      RemoveRows(rows);
      break;
  }
  Touched();
}

bool FrmMolecule::HasAtom() {
  const auto lacks = [this](const QString& message, QWidget* where) {
    Model().Inform(message);
    where->setFocus();
    return false;
  };
  if (cboElement_->currentIndex() < 0) return lacks(tr("Please select an Element."), cboElement_);
  if (cboType_->currentIndex() < 0) {
    return lacks(tr("Please select an Atomic Structure Type."), cboType_);
  }
  NumberBox* symmetry = txtProps_[kPropSymmetry].Box;
  if (cboType_->currentIndex() > 0 && LenientNumber("0" + symmetry->Text()) == 0) {
    return lacks(tr("Please enter a Symmetry Radius."), symmetry);
  }
  return true;
}

void FrmMolecule::AddRow() {
  const QSignalBlocker quiet(lstElements_);  // the boxes keep their numbers for the next atom
  lstElements_->addItem(Shown(FormatAtomRow(AtomInControls())));
  lstElements_->setCurrentRow(lstElements_->count() - 1, QItemSelectionModel::ClearAndSelect);
  cboElement_->setCurrentIndex(-1);
}

/// The element stays selected, so that several values can be tried.
void FrmMolecule::UpdateRow(int row) {
  lstElements_->item(row)->setText(Shown(FormatAtomRow(AtomInControls())));
}

void FrmMolecule::RemoveRows(QList<int> rows) {
  const QSignalBlocker quiet(lstElements_);
  std::reverse(rows.begin(), rows.end());
  for (const int row : rows) delete lstElements_->takeItem(row);
  lstElements_->clearSelection();
}

QList<int> FrmMolecule::SelectedRows() const {
  QList<int> rows;
  for (int row = 0; row < lstElements_->count(); ++row) {
    if (lstElements_->item(row)->isSelected()) rows.append(row);
  }
  return rows;
}

void FrmMolecule::LoadThemeText(const std::string& text) {
  LoadThemeHead(text, kMoleculeThemeCenter, kMoleculeThemeBody);
  const auto number = [&](int field) {
    return RoundedToLimits<Integer>(LenientNumber(GetField(text, field)));
  };
  std::vector<AtomPoint> atoms;
  for (int i = 0; i < ClampTo<int>(number(kMoleculeThemeCount), 0, kMaxAtoms); ++i) {
    const int first = kMoleculeThemeRows + i * kThemeRowFields;
    AtomPoint atom;
    atom.Atom_Element = number(first);
    atom.Atom_Structure = number(first + 1);
    atom.Atom_LocX = number(first + 2);
    atom.Atom_LocY = number(first + 3);
    atom.Atom_LocZ = number(first + 4);
    atom.Atom_Size = number(first + 5);
    atom.Atom_Radius = number(first + 6);
    atoms.push_back(atom);
  }
  FillList(atoms);
}

void FrmMolecule::Clear() {
  ThemedEditor::Clear();
  FillList({});
  cboElement_->setCurrentIndex(-1);
  cboType_->setCurrentIndex(-1);
  for (const auto& box : txtProps_) box.Clear();
}

std::string FrmMolecule::Gather(StarfoldProfile& body) const {
  for (const auto& box : center_) box.Store(body.Atom);
  const int count = std::min(lstElements_->count(), kMaxAtoms);
  for (int i = 0; i < count; ++i) {
    body.Atom.Atoms[i] = ReadAtomRow(lstElements_->item(i)->text().toStdString());
  }
  body.Starfold_Atoms = static_cast<Integer>(count);
  return count > 0 ? std::string() : kNoAtoms;
}

}  // namespace starfolds
