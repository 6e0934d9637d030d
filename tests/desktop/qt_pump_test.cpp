#include "desktop/qt_pump.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QObject>
#include <chrono>
#include <thread>

#include "desktop/pumped_test.h"
#include "storage/processor_time.h"

namespace starfolds {
namespace {

using AlarmMaker = std::unique_ptr<Alarm> (*)();

class QtPumpWith : public testing::TestWithParam<AlarmMaker> {
 protected:
  Long Since(Long begin) { return Events.TickCount() - begin; }

  QtPump Events{GetParam()()};
};

TEST_P(QtPumpWith, SleepsUntilTheTimeHasPassed) {
  const auto processorBegin = ProcessorTime();
  const Long begin = Events.TickCount();
  int rounds = 0;
  while (Since(begin) < 300) {
    Events.WaitForEvents(300 - Since(begin));
    ++rounds;
  }
  // A wait that returned at once would go round many thousand times; one that never woke would not
  // come here.
  EXPECT_LT(rounds, 50);
  EXPECT_LT(ProcessorTime() - processorBegin, std::chrono::milliseconds(150));
}

TEST_P(QtPumpWith, WakesForAnEventAndRunsIt) {
  QObject receiver;
  bool ran = false;
  std::thread sender([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    QMetaObject::invokeMethod(
        &receiver, [&] { ran = true; }, Qt::QueuedConnection);
  });
  const Long begin = Events.TickCount();
  while (!ran && Since(begin) < 20'000) Events.WaitForEvents(20'000);
  sender.join();
  EXPECT_TRUE(ran);
  EXPECT_LT(Since(begin), 10'000);
}

INSTANTIATE_TEST_SUITE_P(Alarms, QtPumpWith, testing::Values(&MakeAlarm, &MakeToolkitAlarm),
                         [](const auto& alarm) {
                           return alarm.param == &MakeAlarm ? "Best" : "Toolkit";
                         });

}  // namespace
}  // namespace starfolds
