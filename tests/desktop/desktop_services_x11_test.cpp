// Needs an X server; runs without and with a window manager.
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QWindow>
#include <memory>

#include "desktop/desktop_services_qt.h"
#include "desktop/pumped_test.h"

namespace starfolds {
namespace {

class X11DesktopTest : public PumpedTest {
 protected:
  void Show(QWindow& window, const char* caption) {
    window.setTitle(QString::fromUtf8(caption));
    window.setGeometry(50, 50, 200, 100);
    window.show();
    ASSERT_TRUE(PumpUntil([&] { return window.isExposed(); }));
  }

  std::unique_ptr<DesktopServices> Desktop = MakeDesktopServices();
};

TEST_F(X11DesktopTest, FindsWindowsByTheirWholeCaption) {
  QWindow window;
  Show(window, "TSLN:Sterne \xC3\xBC");
  EXPECT_TRUE(PumpUntil([&] { return Desktop->WindowExists("TSLN:Sterne \xC3\xBC"); }));
  EXPECT_FALSE(Desktop->WindowExists("TSLN:Sterne"));
  EXPECT_FALSE(Desktop->WindowExists("tsln:sterne \xC3\xBC"));
  EXPECT_FALSE(Desktop->WindowExists(""));
  window.destroy();
  EXPECT_TRUE(PumpUntil([&] { return !Desktop->WindowExists("TSLN:Sterne \xC3\xBC"); }));
}

TEST_F(X11DesktopTest, BringsTheNamedWindowForward) {
  QWindow below;
  QWindow above;
  Show(below, "below");
  Show(above, "above");
  above.requestActivate();
  ASSERT_TRUE(PumpUntil([&] { return QGuiApplication::focusWindow() == &above; }));
  Desktop->BringToFront("nobody");
  Desktop->BringToFront("below");
  EXPECT_TRUE(PumpUntil([&] { return QGuiApplication::focusWindow() == &below; }));
}

}  // namespace
}  // namespace starfolds
