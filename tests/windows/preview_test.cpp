// The preview in a window of the same process, whose pixels can be read.
#include "hosting/frm_preview.h"

#include <QDeadlineTimer>

#include "desktop/windows_api.h"
#include "hosting/host_fixture.h"

namespace starfolds {
namespace {

/// The other tests with this fixture show nothing.
const bool kOnScreen = qputenv("QT_QPA_PLATFORM", "windows");

class PreviewTest : public HostTest {
 protected:
  PreviewTest() {
    Store("Advanced", "Adv_TimeDelay", 0);
    UniverseSettings universe;
    universe.Universe_ESteps = 20;
    SaveUniverseToRegistry(Tree, universe);
    Parent = CreateWindowW(L"STATIC", L"", WS_POPUP | WS_CLIPCHILDREN | WS_VISIBLE, 50, 50, 152,
                           112, nullptr, nullptr, nullptr, nullptr);
    State->Mode = RunMode::Preview;
    State->PreviewParent = static_cast<Long>(reinterpret_cast<LONG_PTR>(Parent));
    Desktop.Windows = {State->PreviewParent};
  }
  ~PreviewTest() override { DestroyWindow(Parent); }

  HWND Child() const { return GetWindow(Parent, GW_CHILD); }

  QSize ChildSize() const {
    RECT inside{};
    GetClientRect(Child(), &inside);
    return {static_cast<int>(inside.right), static_cast<int>(inside.bottom)};
  }

  int Stars() const {
    const HDC picture = GetDC(Child());
    const QSize size = ChildSize();
    int stars = 0;
    for (int y = 0; y < size.height(); ++y) {
      for (int x = 0; x < size.width(); ++x) stars += GetPixel(picture, x, y) != 0;
    }
    ReleaseDC(Child(), picture);
    return stars;
  }

  /// The end of a window or a new size is noticed some time later.
  void AwaitStop() {
    const QDeadlineTimer patience(30000);
    while (!State->Requests.StopRun() && !patience.hasExpired()) QCoreApplication::processEvents();
    EXPECT_TRUE(State->Requests.StopRun());
  }

  HWND Parent = nullptr;
};

TEST_F(PreviewTest, ShowsStarsFollowsTheSizeAndEndsWithItsWindow) {
  Events.Plan[40] = [&] {
    EXPECT_EQ(ChildSize(), QSize(152, 112));
    EXPECT_GT(Stars(), 50);
    EXPECT_LT(Stars(), 152 * 112 / 2);
    SetWindowPos(Parent, nullptr, 0, 0, 304, 224, SWP_NOMOVE | SWP_NOZORDER);
    AwaitStop();
  };
  Events.Plan[90] = [&] {
    EXPECT_EQ(ChildSize(), QSize(304, 224));
    EXPECT_GT(Stars(), 50);
    DestroyWindow(Parent);
    AwaitStop();
  };
  FrmPreview(*State, NextSeed).Load();
  EXPECT_EQ(Seeds, 2);
  EXPECT_EQ(Events.Pumps, 90);
}

}  // namespace
}  // namespace starfolds
