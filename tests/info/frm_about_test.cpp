#include "info/frm_about.h"

#include <QPushButton>

#include "info/frm_credits.h"
#include "toolkit.h"

namespace starfolds {
namespace {

TEST(FrmAbout, ClosesWithTheProcessAndSoDoTheCredits) {
  const auto process = std::make_unique<ProcessState>();
  PlannedPump events;
  MemoryDesktop desktop;
  MemoryHelp helpBook;
  process->Events = &events;
  process->Desktop = &desktop;
  FrmAbout about({*process, helpBook, "1.2.3", [] { return 1U; }});
  const auto end = [&] {
    process->Requests.AskQuit();
    about.close();
  };
  events.OnTooLong = [&] {
    ADD_FAILURE() << "the box does not close";
    end();
  };
  events.Plan[10] = [&] {
    EXPECT_TRUE(Part<QLabel>(about, "lblVersion").text().contains("1.2.3"));
    EXPECT_FALSE(Part<QLabel>(about, "lblBody").text().isEmpty());
    WhenShown<FrmCredits>([&](FrmCredits& credits) {
      end();
      credits.close();
    });
    Part<QPushButton>(about, "cmdCredits").click();
  };
  about.exec();
  EXPECT_FALSE(about.isVisible());
}

}  // namespace
}  // namespace starfolds
