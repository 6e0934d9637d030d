#include "info/frm_about.h"

#include <QPushButton>

#include "info/frm_credits.h"
#include "toolkit.h"

namespace starfolds {
namespace {

/// Runs the toolkit's events in each pump, and notes what the box shows.
class AboutPump : public CountedPump {
 public:
  std::function<void(int pump)> OnEach;
  int Pumps = 0;

  void PumpEvents() override {
    QApplication::processEvents();
    if (OnEach) OnEach(++Pumps);
  }
};

class FrmAboutTest : public testing::Test {
 protected:
  FrmAboutTest() {
    Process->Events = &Events;
    Process->Desktop = &Desktop;
  }

  /// Shows the box until `OnEach` closes it.
  void Run(const std::function<void(FrmAbout&, int pump)>& onEach) {
    FrmAbout about({*Process, HelpBook, "1.2.3", [] { return 1U; }});
    Events.OnEach = [&](int pump) {
      onEach(about, pump);
      if (pump > kTooLong) {
        ADD_FAILURE() << "the box does not close";
        Process->QuitApp = true;
        about.close();
      }
    };
    about.exec();
    EXPECT_FALSE(about.isVisible());
  }

  static constexpr int kTooLong = 5000;
  std::unique_ptr<ProcessState> Process = std::make_unique<ProcessState>();
  AboutPump Events;
  MemoryDesktop Desktop;
  MemoryHelp HelpBook;
};

TEST_F(FrmAboutTest, TheCreditsCloseWithTheProcessToo) {
  Run([&](FrmAbout& about, int pump) {
    if (pump != 10) return;
    WhenShown<FrmCredits>([&](FrmCredits& credits) {
      Process->QuitApp = true;
      about.close();
      credits.close();
    });
    Part<QPushButton>(about, "cmdCredits").click();
  });
}

}  // namespace
}  // namespace starfolds
