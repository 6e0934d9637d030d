#include "info/frm_about.h"

#include <QFile>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QShortcut>
#include <QTabWidget>
#include <QVBoxLayout>

#include "info/frm_credits.h"
#include "settings/factory.h"
#include "settings/product.h"
#include "universe/host_surface.h"
#include "universe/single_body_run.h"
#include "widgets/dialog_parts.h"

namespace starfolds {
namespace {

constexpr QSize kPicture{460, 300};
constexpr double kNameSize = 1.9;  // relative to the ordinary font size

// For each of the bodies.
constexpr Single kZoom = 1.3F;
constexpr Integer kFrames = 400;
constexpr Long kStars = 4000;
constexpr Single kScale = 0.8F;

/// Each paragraph as one line, which the page wraps.
QString Licence() {
  QFile file(":/info/LICENSE");
  if (!file.open(QIODevice::ReadOnly)) return {};
  static const QRegularExpression lineEnd("(?<!\\n)\\n(?!\\n)");
  return QString::fromUtf8(file.readAll()).trimmed().replace(lineEnd, " ");
}

QWidget* MakeLicencePage() {
  auto* text = new QPlainTextEdit(Licence());
  text->setObjectName("txtLicence");
  text->setReadOnly(true);
  text->setFrameShape(QFrame::NoFrame);
  text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  text->setLineWrapMode(QPlainTextEdit::WidgetWidth);
  return text;
}

}  // namespace

FrmAbout::FrmAbout(const AboutSurroundings& surroundings, QWidget* parent)
    : QDialog(parent),
      around_(surroundings),
      running_(std::make_unique<ProcessState>()),
      events_(surroundings.Process, *running_),
      run_(*running_) {
  running_->Tree = &noTree_;
  running_->Events = &events_;
  running_->Desktop = surroundings.Process.Desktop;
  running_->Mode = RunMode::ScreenSaver;
  setObjectName("frmAbout");
  setWindowTitle(tr("About Starfolds"));
  setWindowModality(Qt::WindowModal);
  auto* rows = new QVBoxLayout(this);
  rows->setSizeConstraint(QLayout::SetFixedSize);
  auto* pages = new QTabWidget;
  pages->setObjectName("tabAbout");
  pages->addTab(MakeAboutPage(), tr("&About"));
  pages->addTab(MakeLicencePage(), tr("&Licence"));
  rows->addWidget(pages);
  rows->addLayout(MakeButtons());
  begin_.setSingleShot(true);
  connect(&begin_, &QTimer::timeout, this, &FrmAbout::Run);
  connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this,
          [this] { around_.HelpBook.ShowTopic(help::kAbout); });
}

FrmAbout::~FrmAbout() = default;

QWidget* FrmAbout::MakeAboutPage() {
  auto* page = new QWidget;
  auto* rows = new QVBoxLayout(page);
  picAbout_ = new PictureBox;
  picAbout_->setObjectName("picAbout");
  picAbout_->setAccessibleName(tr("A body of stars"));
  picAbout_->setFixedSize(kPicture);
  rows->addWidget(picAbout_);
  lblBody_ = new QLabel;
  lblBody_->setObjectName("lblBody");
  lblBody_->setForegroundRole(QPalette::PlaceholderText);
  lblBody_->setAlignment(Qt::AlignRight);
  lblBody_->setTextFormat(Qt::PlainText);
  rows->addWidget(lblBody_);
  auto* name = new QLabel(Shown(kProductName) + " " + Shown(kProductVersion));
  QFont large = name->font();
  large.setPointSizeF(large.pointSizeF() * kNameSize);
  name->setFont(large);
  rows->addWidget(name);
  rows->addWidget(new QLabel(tr("A universe on your screen, each star a single pixel.")));
  auto* small = new QLabel(tr("Build %1, with Qt %2.\n%3.\nFree software under the MIT licence.")
                               .arg(Shown(around_.Version), qVersion(), Shown(kCopyright)));
  small->setObjectName("lblVersion");
  small->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  rows->addWidget(small);
  return page;
}

QLayout* FrmAbout::MakeButtons() {
  auto* line = new QHBoxLayout;
  QPushButton* cmdCredits = MakeButton(tr("&Credits..."), "cmdCredits");
  QPushButton* cmdDismiss = MakeButton(tr("OK"), "cmdDismiss");
  cmdDismiss->setDefault(true);
  cmdDismiss->setFocus();
  connect(cmdCredits, &QPushButton::clicked, this, &FrmAbout::ShowCredits);
  connect(cmdDismiss, &QPushButton::clicked, this, &FrmAbout::accept);
  line->addWidget(cmdCredits);
  line->addStretch();
  line->addWidget(cmdDismiss);
  return line;
}

/// The run must be called inside the dialog's event loop, so that closing it returns from `exec`.
void FrmAbout::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (!run_.IsOn()) begin_.start();
}

/// A click shows the next body.
void FrmAbout::mousePressEvent(QMouseEvent* event) {
  const QPoint place = picAbout_->mapFrom(this, event->pos());
  if (picAbout_->isVisible() && picAbout_->rect().contains(place)) running_->Requests.AskNewRun();
}

void FrmAbout::done(int result) {
  if (run_.DelaysClose()) {
    setResult(result);
    return;
  }
  QDialog::done(result);
}

void FrmAbout::Run() {
  const auto factory = std::make_unique<SettingsRecords>();
  LoadFactorySet(*factory, FactorySet::Starfolds4x);
  Integer body = 0;
  const PreviewEnd end = run_.Start([&] {
    while (!running_->Requests.StopRun()) {
      TakeUniverseSettings(*running_, *factory, false);
      Surface& surface = picAbout_->BeginRun();
      SetupPreviewSurface(*running_, surface, true, kZoom, around_.Seed());
      lblBody_->setText(Shown(running_->Composites[body].CompFoldName));
      SingleBodyRun(*running_, {.Body = body,
                                .IsComposite = true,
                                .Stars = kStars,
                                .StarScale = kScale,
                                .FrameLimit = kFrames});
      body = static_cast<Integer>((body + 1) % kCompositeCount);
    }
    running_->Screen.hDCDraw = nullptr;
  });
  if (end == PreviewEnd::Close) QDialog::done(result());
}

/// Blocks the body's run meanwhile: only one run is shown at a time.
void FrmAbout::ShowCredits() { FrmCredits(around_.Seed(), this).exec(); }

}  // namespace starfolds
