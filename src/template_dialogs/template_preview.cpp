#include "template_dialogs/template_preview.h"

#include <QFileInfo>
#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>
#include <memory>
#include <utility>

#include "desktop/translation.h"
#include "settings/templates.h"
#include "widgets/dialog_parts.h"

namespace starfolds {
namespace {

constexpr int kPauseMs = 80;  // after the last change of the name
constexpr QSize kTile{96, 72};
constexpr int kColumns = 2;
constexpr int kRows = 3;
constexpr std::size_t kMostNamed = 6;

/// A body of a template, and its share of all weights.
struct WeightedBody {
  int Body;
  int Weight;
};

std::vector<WeightedBody> HeaviestFirst(const SettingsRecords& records) {
  std::vector<WeightedBody> bodies;
  for (int i = 0; i < kBodyCount; ++i) {
    const int weight =
        i < kProfileCount
            ? records.Profiles[static_cast<std::size_t>(i)].UniFoldPct
            : records.Composites[static_cast<std::size_t>(i - kFirstComposite)].CompFoldPct;
    if (weight > 0) bodies.push_back({i, weight});
  }
  std::stable_sort(bodies.begin(), bodies.end(), [](const WeightedBody& a, const WeightedBody& b) {
    return a.Weight > b.Weight;
  });
  return bodies;
}

const std::string& NameOf(const SettingsRecords& records, int body) {
  if (body < kProfileCount) return records.Profiles[static_cast<std::size_t>(body)].UniFoldName;
  return records.Composites[static_cast<std::size_t>(body - kFirstComposite)].CompFoldName;
}

QString FactsOf(const SettingsRecords& records, const std::vector<WeightedBody>& bodies) {
  int sum = 0;
  for (const WeightedBody& body : bodies) sum += body.Weight;
  QString text = Translated(STARFOLDS_TEXT("%1 stars in %2 starfolds of %3 types:"))
                     .arg(records.Universe.Universe_Stars)
                     .arg(records.Universe.Universe_Starfold)
                     .arg(bodies.size());
  for (std::size_t i = 0; i < std::min(bodies.size(), kMostNamed); ++i) {
    constexpr qsizetype longest = 30;
    const QString name = Shown(NameOf(records, bodies[i].Body));
    text += QString("\n%1 %  %2")
                .arg(bodies[i].Weight * 100 / sum)
                .arg(name.size() > longest ? name.left(longest) + "…" : name);
  }
  if (bodies.size() > kMostNamed) {
    text += '\n' + Translated(STARFOLDS_TEXT("and %1 more")).arg(bodies.size() - kMostNamed);
  }
  return text;
}

}  // namespace

TemplatePreview::TemplatePreview(Files& disk, StillService& stills, QWidget* parent)
    : QWidget(parent),
      disk_(disk),
      stills_(stills),
      picture_(new QWidget(this)),
      name_(new ElidedLabel(this)),
      facts_(new QLabel(this)) {
  setObjectName("templatePreview");
  picture_->setFixedSize(kTile.width() * kColumns, kTile.height() * kRows);
  picture_->setAccessibleName(tr("Pictures of the bodies of the template"));
  name_->setObjectName("lblTemplateName");
  QFont bold = name_->font();
  bold.setBold(true);
  name_->setFont(bold);
  facts_->setObjectName("lblTemplateFacts");
  facts_->setWordWrap(true);
  facts_->setTextFormat(Qt::PlainText);
  facts_->setMinimumHeight(facts_->fontMetrics().lineSpacing() *
                           (static_cast<int>(kMostNamed) + 2));
  facts_->setAlignment(Qt::AlignTop);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(name_);
  column->addWidget(picture_);
  column->addWidget(facts_, 1);
  setFixedWidth(picture_->width());
  pause_.setSingleShot(true);
  pause_.setInterval(kPauseMs);
  connect(&pause_, &QTimer::timeout, this, &TemplatePreview::Read);
  connect(&stills, &StillService::Ready, this, qOverload<>(&QWidget::update));
}

void TemplatePreview::ShowFile(const QString& path) {
  if (path == path_) return;
  path_ = path;
  pause_.start();
}

void TemplatePreview::Read() {
  bodies_.clear();
  name_->clear();
  facts_->clear();
  update();
  if (!QFileInfo(path_).isFile()) return;
  const auto records = std::make_unique<SettingsRecords>();
  TemplateFile file(disk_);
  if (ReadTemplate(file, path_.toStdString(), *records)) return;
  name_->setText(QFileInfo(path_).completeBaseName());
  ShowRecords(*records);
}

void TemplatePreview::ShowRecords(const SettingsRecords& records) {
  const std::vector<WeightedBody> bodies = HeaviestFirst(records);
  facts_->setText(FactsOf(records, bodies));
  const qreal ratio = devicePixelRatioF();
  for (const WeightedBody& body : bodies) {
    if (bodies_.size() == kColumns * kRows) break;
    bodies_.push_back(
        body.Body < kProfileCount
            ? StillOf(records.Profiles[static_cast<std::size_t>(body.Body)], kTile, ratio)
            : StillOf(records.Composites[static_cast<std::size_t>(body.Body - kFirstComposite)],
                      records.Profiles, kTile, ratio));
  }
}

void TemplatePreview::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(picture_->geometry(), Qt::black);
  for (std::size_t i = 0; i < bodies_.size(); ++i) {
    const QImage still = stills_.Still(bodies_[i]);
    const QPoint place(static_cast<int>(i) % kColumns * kTile.width(),
                       static_cast<int>(i) / kColumns * kTile.height());
    if (!still.isNull()) painter.drawImage(picture_->pos() + place, still);
  }
}

}  // namespace starfolds
