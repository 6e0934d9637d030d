#include "properties/frm_welcome.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <iterator>
#include <memory>
#include <utility>

#include "desktop/translation.h"
#include "settings/factory.h"
#include "widgets/dialog_model.h"
#include "widgets/samples.h"

namespace starfolds {
namespace {

constexpr int kTextWidth = 460;
constexpr int kEdge = 24;
constexpr int kStatusHeight = 12;
constexpr int kBannerHeight = 96;
constexpr int kBannerBodies[] = {9, 18, 22, 38};

/// The double blanks are part of the text.
QString AsItStands(const QString& text) {
  return "<span style='white-space: pre-wrap'>" + text.toHtmlEscaped() + "</span>";
}

/// The page's paragraphs are separated by empty lines. One of several lines is a list: first the
/// notes, then the new features; `headings` are theirs.
QString PageAsHtml(const QString& text, QStringList headings) {
  QString html;
  for (const QString& block : text.split("\n\n")) {
    const QStringList lines = block.split('\n');
    if (lines.size() == 1) {
      html += "<p>" + AsItStands(block) + "</p>";
      continue;
    }
    if (!headings.isEmpty()) html += "<h4>" + headings.takeFirst() + "</h4>";
    html += "<ul style='margin-left: -20px'>";
    for (const QString& line : lines) html += "<li>" + AsItStands(line) + "</li>";
    html += "</ul>";
  }
  return html;
}

/// A row of pictures of factory bodies.
QImage Banner(qreal ratio) {
  const auto factory = std::make_unique<SettingsRecords>();
  LoadFactorySet(*factory, FactorySet::Starfolds4x);
  constexpr int count = static_cast<int>(std::size(kBannerBodies));
  const QSize tile((kTextWidth + 2 * kEdge) / count, kBannerHeight);
  QImage banner(QSize(tile.width() * count, tile.height()) * ratio, QImage::Format_RGB32);
  banner.setDevicePixelRatio(ratio);
  banner.fill(Qt::black);
  QPainter painter(&banner);
  for (int i = 0; i < count; ++i) {
    const QImage body = ProfileSample(factory->Profiles, kBannerBodies[i], {tile, ratio});
    painter.drawImage(i * tile.width(), 0, body);
  }
  return banner;
}

}  // namespace

FrmWelcome::FrmWelcome(const WelcomePage& page, SafetyCopy saveCopy, Help& helpBook,
                       QWidget* parent)
    : QDialog(parent), saveCopy_(std::move(saveCopy)) {
  setObjectName("frmWelcome");
  setWindowModality(Qt::WindowModal);  // the help can be read beside it
  connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this,
          [&helpBook] { helpBook.ShowTopic(help::kGettingStarted); });
  setWindowTitle(Shown(kProductName));
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(0, 0, 0, 0);
  all->setSizeConstraint(QLayout::SetFixedSize);
  AddBanner();
  column_ = new QVBoxLayout;
  all->addLayout(column_);
  column_->setContentsMargins(kEdge, kEdge * 2 / 3, kEdge, kEdge);
  column_->setSpacing(kEdge / 2);
  AddText(page);
  AddButtons(page);
}

void FrmWelcome::AddBanner() {
  auto* banner = new QLabel(this);
  banner->setObjectName("picBanner");
  banner->setPixmap(QPixmap::fromImage(Banner(devicePixelRatioF())));
  layout()->addWidget(banner);
}

void FrmWelcome::AddText(const WelcomePage& page) {
  auto* title = new QLabel(Translated(page.Caption), this);
  title->setObjectName("lblCaption");
  QFont large = title->font();
  large.setPointSizeF(large.pointSizeF() * 1.6);
  large.setBold(true);
  title->setFont(large);
  title->setTextFormat(Qt::PlainText);
  column_->addWidget(title);

  auto* text =
      new QLabel(PageAsHtml(Translated(page.Text), {tr("Notes"), tr("New in this version")}), this);
  text->setObjectName("lblPage");
  text->setTextFormat(Qt::RichText);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse);
  text->setWordWrap(true);
  text->setFixedWidth(kTextWidth);
  column_->addWidget(text);
}

void FrmWelcome::AddButtons(const WelcomePage& page) {
  picStatus_ = new PictureBox(this);
  picStatus_->setObjectName("picStatus");
  picStatus_->setAccessibleName(tr("Progress of the safety copy"));
  picStatus_->setFixedHeight(kStatusHeight);
  QSizePolicy policy = picStatus_->sizePolicy();
  policy.setRetainSizeWhenHidden(page.OffersReset);  // so that the layout does not change
  picStatus_->setSizePolicy(policy);
  picStatus_->hide();
  column_->addWidget(picStatus_);

  cmdReset_ = new QPushButton(tr("&Reset the Properties"), this);
  cmdReset_->setObjectName("cmdReset");
  cmdReset_->setToolTip(tr("Saves the current settings to propsave.sfd, then resets them"));
  cmdReset_->setVisible(page.OffersReset);
  cmdDismiss_ = new QPushButton(Translated(page.Dismiss), this);
  cmdDismiss_->setObjectName("cmdDismiss");
  cmdDismiss_->setDefault(true);
  cmdDismiss_->setFocus();
  connect(cmdReset_, &QPushButton::clicked, this, &FrmWelcome::Reset);
  connect(cmdDismiss_, &QPushButton::clicked, this, &FrmWelcome::reject);

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cmdReset_);
  buttons->addWidget(cmdDismiss_);
  column_->addLayout(buttons);
}

/// The dialog cannot be closed while the copy is written, which may show a message box.
void FrmWelcome::Reset() {
  saving_ = true;
  cmdReset_->setEnabled(false);
  cmdDismiss_->setEnabled(false);
  picStatus_->show();
  picStatus_->Clear();
  saveCopy_(picStatus_);
  saving_ = false;
  resetRequested_ = true;
  accept();
}

void FrmWelcome::reject() {
  if (!saving_) QDialog::reject();
}

bool RunWelcome(QWidget* parent, const WelcomePage& page, const SafetyCopy& saveCopy,
                Help& helpBook) {
  FrmWelcome dialog(page, saveCopy, helpBook, parent);
  dialog.exec();
  return dialog.ResetRequested();
}

}  // namespace starfolds
