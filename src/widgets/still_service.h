// Stills of bodies for lists: rendered in idle time, one by one, and cached.
#pragma once

#include <QImage>
#include <QObject>
#include <QSize>
#include <QTimer>
#include <deque>
#include <list>
#include <vector>

#include "settings/records.h"

namespace starfolds {

/// What a still shows. Two bodies with the same settings have the same still, whatever their names
/// and weights.
struct StillKey {
  std::vector<StarfoldProfile> Members;  // one profile, or those of a composite; none: no still
  QSize Size;                            // logical pixels
  qreal Ratio = 1;                       // physical pixels per logical pixel
  bool Fit = false;                      // enlarged to fill the picture

  bool operator==(const StillKey&) const = default;
};

StillKey StillOf(const StarfoldProfile& profile, QSize size, qreal ratio);
/// Without members if the composite has none.
StillKey StillOf(const CompositeProfile& composite, const ProfileArray& profiles, QSize size,
                 qreal ratio);

/// Lives as long as the dialog that shows the stills; what is not rendered by then is dropped.
class StillService : public QObject {
  Q_OBJECT

 public:
  explicit StillService(QObject* parent = nullptr);

  /// The picture, or a null image if it is not rendered yet: then it is rendered after those that
  /// were asked for before, and `Ready` follows. Never renders in the call, so that it can be
  /// called from a paint event. Always null for a key without members.
  QImage Still(const StillKey& key);

  /// While paused, nothing is rendered; requests are kept.
  void SetPaused(bool paused);

 signals:
  /// A picture was rendered: views repaint, and ask again for what they show.
  void Ready();

 private:
  struct CachedStill {
    StillKey Key;
    QImage Picture;
  };

  void RenderNext();
  void Keep(StillKey key, QImage picture);

  QTimer idle_;
  bool paused_ = false;
  std::deque<StillKey> waiting_;
  std::list<CachedStill> cache_;  // the one used last is in front
};

}  // namespace starfolds
