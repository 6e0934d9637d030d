#include "info/frm_system_diag.h"

#include <QClipboard>
#include <QFormLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QOperatingSystemVersion>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <cmath>

#include "desktop/translation.h"
#include "settings/product.h"
#include "settings/registry.h"
#include "widgets/dialog_parts.h"
#include "widgets/surface_box.h"

namespace starfolds {
namespace {

constexpr int kCircleBox = 150;
constexpr double kTwipsPerInch = 1440;
constexpr double kMeasuredSeconds = 1;

const char kUnknown[] = "???";

const char kRegistryText[] = STARFOLDS_TEXT(
    "The Registry is used to store the values necessary for this product.  \n"
    "If the word OK appears in the test field, then you have write access.  \n"
    "If you do not have write access, then you will have to change your \n"
    "administrative privileges with respect to your user account.");

const char kGraphicsText[] = STARFOLDS_TEXT(
    "The %1 is used to render the effects to the \n"
    "display device.  If a circle does not appear in the region to the right, \n"
    "then your display hardware or driver may not support the API.  \n"
    "You may need to install the latest driver.  Consult the website for \n"
    "your hardware vendor for current information.");

bool IsWindows() {
  return QOperatingSystemVersion::currentType() == QOperatingSystemVersion::Windows;
}

/// Problems are red, in a shade that is readable on light and dark backgrounds.
void ShowField(QLineEdit& field, const QString& text, bool isProblem) {
  field.setText(text);
  field.setCursorPosition(0);
  QPalette palette = field.parentWidget()->palette();
  const bool isDark = palette.color(QPalette::Base).lightness() < 128;
  if (isProblem) palette.setColor(QPalette::Text, isDark ? QColor(255, 110, 100) : Qt::red);
  field.setPalette(palette);
}

QString KnownOrNot(std::uint64_t number) { return number == 0 ? kUnknown : Shown(Grouped(number)); }

}  // namespace

FrmSystemDiag::FrmSystemDiag(const DiagSurroundings& surroundings, QWidget* parent)
    : PlacedDialog(
          {surroundings.Tree, sections::kSystemDiagPlace, surroundings.HelpBook, help::kSystemDiag},
          parent),
      around_(surroundings) {
  setObjectName("frmSystemDiag");
  setWindowTitle(tr("System Diagnostics"));
  auto* rows = new QVBoxLayout(this);
  rows->addWidget(MakeRegistryFrame());
  rows->addWidget(MakeGraphicsFrame());
  auto* columns = new QHBoxLayout;
  columns->addWidget(MakeSystemFrame(), 2);
  columns->addWidget(MakeDisplayFrame(), 3);
  rows->addLayout(columns);
  rows->addStretch();
  rows->addLayout(MakeButtons());
}

void FrmSystemDiag::showEvent(QShowEvent* event) {
  PlacedDialog::showEvent(event);
  RunDiagnostics();
}

void FrmSystemDiag::RunDiagnostics() {
  ShowDisplay();
  ShowField(*version_, Shown(SystemVersion()), false);
  const std::string access = TestRegistryAccess(around_.Tree);
  ShowField(*access_, Translated(access), access != kWriteTestPassed);
}

void FrmSystemDiag::ShowDisplay() {
  const QScreen& display = *screen();
  const double dotsPerInch = display.logicalDotsPerInch();
  const double ratio = dotsPerInch > 0 ? kTwipsPerInch / dotsPerInch : 0;
  const auto twips = [ratio](int pixels) {
    return static_cast<std::uint64_t>(std::lround(pixels * ratio));
  };
  const std::uint64_t width = twips(display.geometry().width());
  const std::uint64_t height = twips(display.geometry().height());
  ShowField(*size_, KnownOrNot(width) + ",  " + KnownOrNot(height), width == 0 || height == 0);
  ShowField(*twipsPerPixel_, ratio > 0 ? QString::number(ratio, 'g', 4) : kUnknown, ratio <= 0);
  const std::uint64_t colours = ColoursOf(display.depth());
  ShowField(*colours_, KnownOrNot(colours), colours == 0);
}

void FrmSystemDiag::ShowSystemInfo() {
  if (around_.Desktop.ShowSystemInfo()) return;
  around_.Boxes.Show(tr("System Information Is Unavailable.").toStdString(), BoxStyle::Information,
                     std::string(kProductName));
}

/// Shows a busy pointer, because the measurement takes a second.
void FrmSystemDiag::CopyReport() {
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  const QSize size = screen()->size();
  const FrameCost cost = MeasureFrames(around_.Tree, around_.Desktop, around_.ProcessorTime,
                                       size.width(), size.height(), kMeasuredSeconds);
  QGuiApplication::restoreOverrideCursor();
  QGuiApplication::clipboard()->setText(
      Shown(DiagnosticsReport(around_.Facts, TestRegistryAccess(around_.Tree), cost)));
  lblCopied_->setText(tr("The report is on the clipboard."));
}

QLineEdit* FrmSystemDiag::MakeField() {
  auto* field = new QLineEdit;
  field->setObjectName("txtDiagnostics_" + QString::number(fields_++));
  field->setReadOnly(true);
  return field;
}

QGroupBox* FrmSystemDiag::MakeRegistryFrame() {
  auto* frame = new QGroupBox(tr("Registry Access"));
  auto* rows = new QVBoxLayout(frame);
  auto* line = new QHBoxLayout;
  auto* label = new QLabel(tr("Registry write test (passed test if value is OK):"));
  access_ = MakeField();
  label->setBuddy(access_);
  QPushButton* cmdSysInfo = MakeButton(tr("&Complete System   Info..."), "cmdSysInfo");
  connect(cmdSysInfo, &QPushButton::clicked, this, &FrmSystemDiag::ShowSystemInfo);
  line->addWidget(label);
  line->addWidget(access_, 1);
  line->addWidget(cmdSysInfo);
  rows->addLayout(line);
  rows->addWidget(new QLabel(Translated(kRegistryText)));
  return frame;
}

QGroupBox* FrmSystemDiag::MakeGraphicsFrame() {
  auto* frame = new QGroupBox(tr("Graphics Test"));
  auto* columns = new QHBoxLayout(frame);
  const QString api = IsWindows() ? tr("Windows Graphical API")
                                  : tr("Window System (%1)").arg(QGuiApplication::platformName());
  auto* lblGraphics = new QLabel(Translated(kGraphicsText).arg(api));
  lblGraphics->setObjectName("lblGraphics");
  lblGraphics->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  auto* picGraphics = new SurfaceBox(PlotTestCircle);
  picGraphics->setObjectName("picGraphics");
  picGraphics->setAccessibleName(tr("A circle, if stars can be plotted"));
  picGraphics->setFixedSize(kCircleBox, kCircleBox);
  columns->addWidget(lblGraphics, 1);
  columns->addWidget(picGraphics);
  return frame;
}

QGroupBox* FrmSystemDiag::MakeSystemFrame() {
  auto* frame = new QGroupBox(tr("Operating System"));
  auto* rows = new QVBoxLayout(frame);
  auto* label = new QLabel(IsWindows() ? tr("Windows OS Version:") : tr("OS Version:"));
  version_ = MakeField();
  label->setBuddy(version_);
  rows->addWidget(label);
  rows->addWidget(version_);
  auto* lblSystem = new QLabel(Shown(SystemName()));
  lblSystem->setObjectName("lblSystem");
  lblSystem->setTextFormat(Qt::PlainText);
  lblSystem->setWordWrap(true);
  rows->addWidget(lblSystem);
  rows->addStretch();
  return frame;
}

QGroupBox* FrmSystemDiag::MakeDisplayFrame() {
  auto* frame = new QGroupBox(tr("Display"));
  auto* lines = new QFormLayout(frame);
  size_ = MakeField();
  twipsPerPixel_ = MakeField();
  colours_ = MakeField();
  lines->addRow(tr("Width, height (twips):"), size_);
  lines->addRow(tr("Device Twips per pixel ratio:"), twipsPerPixel_);
  lines->addRow(tr("Total display colors:"), colours_);
  lines->addRow(new QLabel(tr("Problematic values are noted in Red.")));
  return frame;
}

QLayout* FrmSystemDiag::MakeButtons() {
  auto* line = new QHBoxLayout;
  QPushButton* cmdCopyReport = MakeButton(tr("Copy &Report"), "cmdCopyReport");
  cmdCopyReport->setToolTip(
      tr("Puts all of this on the clipboard, with versions, screens and the cost of a frame"));
  lblCopied_ = new QLabel;
  lblCopied_->setObjectName("lblCopied");
  QPushButton* cmdDismiss = MakeButton(tr("OK"), "cmdDismiss");
  cmdDismiss->setDefault(true);
  connect(cmdCopyReport, &QPushButton::clicked, this, &FrmSystemDiag::CopyReport);
  connect(cmdDismiss, &QPushButton::clicked, this, &FrmSystemDiag::accept);
  line->addWidget(cmdCopyReport);
  line->addWidget(lblCopied_, 1);
  line->addWidget(cmdDismiss);
  line->addWidget(MakeHelpButton());
  return line;
}

}  // namespace starfolds
