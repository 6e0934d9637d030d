#include "widgets/still_service.h"

#include <algorithm>
#include <utility>

#include "widgets/samples.h"

namespace starfolds {
namespace {

/// Enough for all bodies in two sizes, and some of their former settings.
constexpr std::size_t kMostCached = 240;
/// More than any view shows at once. What was scrolled past is dropped and asked for again.
constexpr std::size_t kMostWaiting = 80;

StarfoldProfile Unnamed(const StarfoldProfile& profile) {
  StarfoldProfile unnamed = profile;
  unnamed.UniFoldName.clear();
  unnamed.UniFoldPct = 0;
  return unnamed;
}

}  // namespace

StillKey StillOf(const StarfoldProfile& profile, QSize size, qreal ratio) {
  return {{Unnamed(profile)}, size, ratio};
}

StillKey StillOf(const CompositeProfile& composite, const ProfileArray& profiles, QSize size,
                 qreal ratio) {
  StillKey key{{}, size, ratio};
  for (int i = 0; i < composite.MemberCount(); ++i) {
    const Integer member = composite.CompFold_Type[static_cast<std::size_t>(i)];
    if (member < 0 || member >= kProfileCount) continue;
    key.Members.push_back(Unnamed(profiles[static_cast<std::size_t>(member)]));
  }
  return key;
}

StillService::StillService(QObject* parent) : QObject(parent) {
  idle_.setSingleShot(true);
  idle_.setInterval(0);  // after all events that wait
  connect(&idle_, &QTimer::timeout, this, &StillService::RenderNext);
}

QImage StillService::Still(const StillKey& key) {
  if (key.Members.empty() || key.Size.isEmpty()) return {};
  const auto known = std::find_if(cache_.begin(), cache_.end(),
                                  [&](const CachedStill& still) { return still.Key == key; });
  if (known != cache_.end()) {
    cache_.splice(cache_.begin(), cache_, known);
    return known->Picture;
  }
  if (std::find(waiting_.begin(), waiting_.end(), key) == waiting_.end()) {
    waiting_.push_back(key);
    if (waiting_.size() > kMostWaiting) waiting_.pop_front();
  }
  if (!paused_ && !idle_.isActive()) idle_.start();
  return {};
}

void StillService::SetPaused(bool paused) {
  paused_ = paused;
  if (paused) {
    idle_.stop();
  } else if (!waiting_.empty()) {
    idle_.start();
  }
}

void StillService::RenderNext() {
  if (waiting_.empty()) return;
  StillKey key = std::move(waiting_.front());
  waiting_.pop_front();
  QImage picture = SampleOfBody(key.Members, {key.Size, key.Ratio},
                                key.Fit ? SampleView::Fitted : SampleView::OfRun);
  Keep(std::move(key), std::move(picture));
  if (!waiting_.empty()) idle_.start();
  emit Ready();
}

void StillService::Keep(StillKey key, QImage picture) {
  cache_.push_front({std::move(key), std::move(picture)});
  if (cache_.size() > kMostCached) cache_.pop_back();
}

}  // namespace starfolds
