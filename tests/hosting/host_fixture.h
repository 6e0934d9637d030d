// A host window without a screen: time is counted, and the test says what happens in which frame.
#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWindow>
#include <functional>
#include <memory>

#include "application.h"
#include "planned_pump.h"
#include "process/process_state.h"
#include "settings/stored_records.h"

namespace starfolds {

inline testing::Environment* const kToolkit =
    testing::AddGlobalTestEnvironment(new ApplicationEnvironment<QGuiApplication>);

class HostTest : public testing::Test {
 protected:
  HostTest() {
    State->Events = &Events;
    Events.OnTooLong = [this] { State->Requests.AskQuit(); };
    State->Desktop = &Desktop;
    State->Platform = &Platform;
    State->Tree = &Tree;
    UniverseSettings universe;
    universe.Universe_Stars = 50;
    universe.Universe_Starfold = 1;
    universe.Universe_AmStar = 0;
    universe.Universe_ESteps = 20;
    universe.Universe_GSteps = 20;
    universe.Universe_GPCtrl = 1;
    universe.Universe_GCCtrl = 0;
    SaveUniverseToRegistry(Tree, universe);
    RegistryWrite(Tree, "General", "AnimationType", Long{0});  // a complete set
  }

  /// Changes what is stored.
  void Store(std::string_view section, std::string_view key, Long value) {
    RegistryWrite(Tree, section, key, value);
  }

  static void Send(QWindow& window, QEvent&& event) {
    QCoreApplication::sendEvent(&window, &event);
  }
  static void Press(QWindow& window, int key, Qt::KeyboardModifiers held = Qt::NoModifier) {
    Send(window, QKeyEvent(QEvent::KeyPress, key, held));
  }
  static void Click(QWindow& window, QEvent::Type type = QEvent::MouseButtonPress) {
    Send(window, QMouseEvent(type, QPointF(5, 5), QPointF(5, 5), Qt::LeftButton, Qt::LeftButton,
                             Qt::NoModifier));
  }
  static void Move(QWindow& window, int x) {
    Send(window, QMouseEvent(QEvent::MouseMove, QPointF(x, 5), QPointF(x, 5), Qt::NoButton,
                             Qt::NoButton, Qt::NoModifier));
  }

  std::unique_ptr<ProcessState> State = std::make_unique<ProcessState>();
  PlannedPump Events;
  MemoryDesktop Desktop;
  ScriptedPlatform Platform;
  MemoryTree Tree;
  int Seeds = 0;  // how often a host has set up a run
  std::function<std::uint64_t()> NextSeed = [this] { return static_cast<std::uint64_t>(++Seeds); };
};

}  // namespace starfolds
