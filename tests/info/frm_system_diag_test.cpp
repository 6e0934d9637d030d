#include "info/frm_system_diag.h"

#include <QClipboard>
#include <QDeadlineTimer>
#include <QDir>
#include <QImage>
#include <QPixmap>
#include <QRegularExpression>
#include <QScreen>
#include <QWindow>
#include <chrono>

#include "info/diagnostics.h"
#include "settings/registry.h"
#include "toolkit.h"

namespace starfolds {
namespace {

class FrmSystemDiagTest : public testing::Test {
 protected:
  FrmSystemDiag& Open() {
    const ProgramFacts facts{"1.2.3", QDir::homePath().toStdString() + "/.config/settings.db"};
    const auto processorTime = [this] { return UsedTime += std::chrono::seconds(100); };
    Dialog = std::make_unique<FrmSystemDiag>(
        DiagSurroundings{Tree, Desktop, Boxes, HelpBook, facts, processorTime});
    Dialog->ShowInPlace();
    return *Dialog;
  }

  QLineEdit& Field(int index) {
    return Part<QLineEdit>(*Dialog, ("txtDiagnostics_" + std::to_string(index)).c_str());
  }
  std::chrono::nanoseconds UsedTime{};
  MemoryTree Tree;
  MemoryDesktop Desktop;
  ScriptedMessageBoxes Boxes;
  MemoryHelp HelpBook;
  std::unique_ptr<FrmSystemDiag> Dialog;
};

/// Read back from the screen. Runs on an X server as well.
TEST_F(FrmSystemDiagTest, TheCircleIsDrawnInAWindowOfItsOwn) {
  Open();
  QWindow* circle = nullptr;
  const auto lit = [&] {
    QApplication::processEvents();
    for (QWindow* const window : QApplication::allWindows()) {
      if (window->objectName() == "picGraphicsSurface") circle = window;
    }
    if (circle == nullptr) return 0;
    const QImage shown = Dialog->screen()->grabWindow(circle->winId()).toImage();
    int count = 0;
    for (int y = 0; y < shown.height(); ++y) {
      for (int x = 0; x < shown.width(); ++x) count += qGray(shown.pixel(x, y)) > 0 ? 1 : 0;
    }
    return count;
  };
  const QDeadlineTimer patience(30000);
  while (lit() == 0 && !patience.hasExpired()) continue;
  const int points = lit();
  EXPECT_GT(points, 200);
  EXPECT_LT(points, 1000) << "a circle, and no disc";
  ASSERT_NE(circle, nullptr);
  EXPECT_EQ(circle->parent(), Part<QWidget>(*Dialog, "picGraphics").windowHandle());
}

TEST_F(FrmSystemDiagTest, TheReportNamesEverythingButTheUser) {
  Open();
  Part<QPushButton>(*Dialog, "cmdCopyReport").click();
  const QString report = QApplication::clipboard()->text();
  for (const QString& part :
       {QString("build 1.2.3"), QString("Qt ") + qVersion(),
        QString("Platform plug-in: ") + QApplication::platformName(), QString("Screen 1: "),
        QString("~/.config/settings.db, write test OK"), QString(" frames in 1.")}) {
    EXPECT_TRUE(report.contains(part)) << part.toStdString() << "\n" << report.toStdString();
  }
  EXPECT_FALSE(report.contains(QDir::homePath() + "/"));
  const auto cost =
      QRegularExpression("Frame: ([0-9.]+) ms of processor time, (\\d+) frames").match(report);
  const int frames = cost.captured(2).toInt();
  EXPECT_NEAR(cost.captured(1).toDouble() * frames, 100000, 0.001 * frames) << "not the given time";
  EXPECT_FALSE(Part<QLabel>(*Dialog, "lblCopied").text().isEmpty());
}

}  // namespace
}  // namespace starfolds
