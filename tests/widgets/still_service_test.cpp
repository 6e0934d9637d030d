#include "widgets/still_service.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QWindow>

#include "settings/factory.h"
#include "toolkit.h"
#include "widgets/placed_qt_window.h"

namespace starfolds {
namespace {

constexpr QSize kSize{40, 30};

TEST(StillService, RendersLaterOnceAndWhatIsTheSameHasOnePicture) {
  StarfoldProfile body;
  LoadFactoryProfile(body, FactorySet::Starfolds4x, 1);
  StarfoldProfile other = body;
  other.UniFoldName = "Another name";
  other.UniFoldPct = 99;
  StillService service;
  const QSignalSpy ready(&service, &StillService::Ready);
  EXPECT_TRUE(service.Still(StillOf(body, kSize, 1)).isNull()) << "never in the call";
  EXPECT_TRUE(service.Still(StillOf(other, kSize, 1)).isNull());
  EXPECT_TRUE(QTest::qWaitFor([&] { return ready.count() > 0; }, 30000));
  const QImage still = service.Still(StillOf(body, kSize, 1));
  EXPECT_EQ(still.size(), kSize);
  EXPECT_EQ(service.Still(StillOf(other, kSize, 1)), still);
  other.Starfold_HueBase = 90;
  EXPECT_TRUE(service.Still(StillOf(other, kSize, 1)).isNull()) << "other settings";
  EXPECT_TRUE(service.Still(StillOf(body, kSize, 2)).isNull()) << "a dense screen";

  const ProfileArray profiles{};
  EXPECT_TRUE(StillOf(CompositeProfile{}, profiles, kSize, 1).Members.empty());
  const CompositeProfile damaged{"", 0, 3, {1, 30000, -1}};
  EXPECT_EQ(StillOf(damaged, profiles, kSize, 1).Members.size(), 1U);
}

/// A stored placement may come from another desktop.
TEST(PlacedQtWindowTest, NoPartOfAWindowIsOffTheScreen) {
  constexpr Long twips = 15;
  const WindowBounds stored[] = {{0, 0, 99999, 99999},
                                 {99999, 99999, 300 * twips, 200 * twips},
                                 {500 * twips, 700 * twips, 600 * twips, 300 * twips},
                                 {0, 0, 0, 0}};
  for (const WindowBounds& bounds : stored) {
    QWindow window;
    window.create();
    PlacedQtWindow(window).Move(bounds);
    const QRect room = window.screen()->availableGeometry();
    EXPECT_TRUE(room.contains(QRect(window.framePosition(), window.size())))
        << bounds.Left << " " << bounds.Top << " " << bounds.Width;
  }
}

}  // namespace
}  // namespace starfolds
