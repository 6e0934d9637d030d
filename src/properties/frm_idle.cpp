#include "properties/frm_idle.h"

#include <QCoreApplication>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QStandardPaths>
#include <QVBoxLayout>

#include "settings/registry.h"
#include "widgets/dialog_parts.h"
#include "widgets/editor_ranges.h"
#include "widgets/lines.h"
#include "widgets/setting_guide.h"

namespace starfolds {
namespace {

constexpr int kTextWidth = 460;    // of wrapped texts, in pixels
constexpr int kLongestEnd = 3000;  // of a program, in milliseconds
constexpr int kLinesOfFound = 3;   // room that the answer will need

using I = IdleSettings;

/// A text in lines of readable length, which may come from another program.
QLabel* MakeText(const char* name, const QString& text) {
  auto* label = new QLabel(text);
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setMinimumWidth(kTextWidth);
  return label;
}

QString OutputOf(QProcess& process) {
  return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

void End(QProcess& process) {
  process.disconnect();
  if (process.state() == QProcess::NotRunning) return;
  process.terminate();
  if (!process.waitForFinished(kLongestEnd)) process.kill();
}

}  // namespace

QString FindIdleProgram() {
  const QString name = "starfolds-idle";
  const QString beside =
      QStandardPaths::findExecutable(name, {QCoreApplication::applicationDirPath()});
  return beside.isEmpty() ? QStandardPaths::findExecutable(name) : beside;
}

FrmIdle::FrmIdle(KeyValueTree& tree, Help& helpBook, const QString& program, QWidget* parent)
    : PlacedDialog({tree, sections::kIdlePlace, helpBook, help::kIdle}, parent),
      tree_(tree),
      help_(helpBook),
      program_(program) {
  setObjectName("frmIdle");
  setWindowTitle(tr("When Idle"));
  auto* column = new QVBoxLayout(this);
  column->addWidget(MakeSettingsFrame());
  column->addWidget(MakeFoundFrame());
  column->addWidget(MakeText(
      "lblNoLock",
      tr("This locks nothing. If your desktop locks the screen after some time, choose fewer "
         "minutes here: the saver starts before the lock, and ends when it comes.")));
  column->addStretch(1);
  column->addLayout(MakeButtons());
  ShowSettings(ReadIdleSettings(tree_, [](const UserText&) {}).value_or(IdleSettings()));
  AskWhatIsFound();
}

FrmIdle::~FrmIdle() {
  End(status_);
  End(test_);
}

NumberBox* FrmIdle::MakeBox(Setting<IdleSettings> setting, const char* name) {
  auto* box = new NumberBox;
  box->SetNames(name);
  box->SetRange(RangeOf(FieldOf(setting)));
  new SettingGuide(*box, help_, [setting] { return Guided(FieldOf(setting)); });
  return box;
}

QWidget* FrmIdle::MakeSettingsFrame() {
  auto* frame = new QGroupBox(tr("Screen Saver"));
  auto* page = MakePage(frame);
  chkIdleOn_ = new QCheckBox(tr("&Start the screen saver when there is no input"));
  chkIdleOn_->setObjectName("chkIdleOn");
  new SettingGuide(*chkIdleOn_, help_, [] { return Guided(FieldOf(&I::Idle_On)); });
  txtMinutes_ = MakeBox(&I::Idle_Minutes, "IdleMinutes");
  txtBattery_ = MakeBox(&I::Idle_Battery, "IdleBattery");
  AddWideLine(*page, chkIdleOn_);
  AddLine(*page, tr("&Minutes without input (1 - 240):"), txtMinutes_, {txtMinutes_});
  AddLine(*page, tr("Least charge on &battery in % (0 - 100):"), txtBattery_, {txtBattery_});
  return frame;
}

QWidget* FrmIdle::MakeFoundFrame() {
  auto* frame = new QGroupBox(tr("Found Here"));
  auto* column = new QVBoxLayout(frame);
  lblFound_ = MakeText("lblFound", tr("Asking the desktop..."));
  lblFound_->setMinimumHeight(lblFound_->fontMetrics().lineSpacing() * kLinesOfFound);
  lblFound_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  cmdTest_ = MakeButton(QString(), "cmdTest");
  cmdTest_->setAutoDefault(false);
  lblTest_ = MakeText("lblTest", QString());
  auto* line = new QHBoxLayout;
  line->addWidget(cmdTest_);
  line->addWidget(lblTest_, 1);
  lblTest_->setMinimumWidth(0);
  column->addWidget(lblFound_);
  column->addLayout(line);
  connect(cmdTest_, &QPushButton::clicked, this, &FrmIdle::ToggleTest);
  connect(&test_, &QProcess::readyReadStandardOutput, this, &FrmIdle::ShowTestLines);
  connect(&test_, &QProcess::finished, this, &FrmIdle::TestEnded);
  cmdTest_->setText(tr("&Test in Five Seconds"));
  return frame;
}

QLayout* FrmIdle::MakeButtons() {
  QPushButton* ok = MakeButton(tr("OK"), "cmdOK");
  ok->setDefault(true);
  QPushButton* cancel = MakeButton(tr("Cancel"), "cmdDismiss");
  auto* line = new QHBoxLayout;
  line->addStretch();
  for (QPushButton* button : {ok, cancel, MakeHelpButton()}) line->addWidget(button);
  connect(cancel, &QPushButton::clicked, this, &FrmIdle::reject);
  connect(ok, &QPushButton::clicked, this, &FrmIdle::Accept);
  return line;
}

void FrmIdle::ShowSettings(const IdleSettings& settings) {
  chkIdleOn_->setChecked(settings.Idle_On);
  txtMinutes_->SetText(FieldText(settings, FieldOf(&I::Idle_Minutes)));
  txtBattery_->SetText(FieldText(settings, FieldOf(&I::Idle_Battery)));
}

/// Return presses the button without taking the focus from a box, which would clamp its number.
IdleSettings FrmIdle::Settings() const {
  txtMinutes_->ClampTextField();
  txtBattery_->ClampTextField();
  IdleSettings settings;
  settings.Idle_On = chkIdleOn_->isChecked();
  SetFieldText(settings, FieldOf(&I::Idle_Minutes), txtMinutes_->Text());
  SetFieldText(settings, FieldOf(&I::Idle_Battery), txtBattery_->Text());
  return settings;
}

/// A running service notices the new settings itself, and ends if they turn it off. A second one
/// ends at once.
void FrmIdle::Accept() {
  const IdleSettings settings = Settings();
  if (!StoreIdleSettings(tree_, settings)) {
    return lblTest_->setText(tr("The settings cannot be stored."));
  }
  if (settings.Idle_On) {
    QProcess service;
    service.setProgram(program_);
    service.setStandardInputFile(QProcess::nullDevice());
    service.setStandardOutputFile(QProcess::nullDevice());
    service.startDetached();
  }
  accept();
}

void FrmIdle::AskWhatIsFound() {
  connect(&status_, &QProcess::finished, this, &FrmIdle::ShowWhatIsFound);
  connect(&status_, &QProcess::errorOccurred, this,
          [this] { lblFound_->setText(tr("%1 cannot be run.").arg(program_)); });
  status_.start(program_, {"--status"});
}

/// The last line tells the stored settings, which the dialog shows itself.
void FrmIdle::ShowWhatIsFound() {
  QStringList lines = OutputOf(status_).split('\n');
  if (lines.size() > 1) lines.removeLast();
  lblFound_->setText(lines.join('\n'));
}

void FrmIdle::ToggleTest() {
  if (test_.state() != QProcess::NotRunning) return test_.terminate();
  cmdTest_->setText(tr("Stop the &Test"));
  lblTest_->clear();
  test_.start(program_, {"--test"});
}

void FrmIdle::ShowTestLines() {
  const QString lines = OutputOf(test_);
  if (!lines.isEmpty()) lblTest_->setText(lines.section('\n', -1));
}

void FrmIdle::TestEnded() {
  const QString fault = QString::fromUtf8(test_.readAllStandardError()).trimmed();
  if (test_.exitCode() != 0) lblTest_->setText(fault.section('\n', -1));
  cmdTest_->setText(tr("&Test in Five Seconds"));
}

}  // namespace starfolds
