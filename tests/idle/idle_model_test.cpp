#include "idle/idle_model.h"

#include <gtest/gtest.h>

#include <string>

#include "numbers/text.h"
#include "settings/idle_settings.h"
#include "settings/registry.h"

namespace starfolds {
namespace {

constexpr IdleTime kTimeout{300'000};

/// What a step does, in the notation of the table below.
std::string Written(const IdleStep& step) {
  std::string text;
  if (step.StartSaver) text += " start";
  if (step.StopSaver) text += " stop";
  if (step.Watch) text += " watch " + std::to_string(step.Watch->count());
  if (step.Timer && step.Timer->count() > 0)
    text += " timer " + std::to_string(step.Timer->count());
  return text;
}

/// Applies events, one letter each, and writes down what they ask for.
std::string StepsOf(std::string_view events, bool endsOnInput) {
  IdleModel model(kTimeout, endsOnInput);
  std::string log = Written(model.Begin(kTimeout, endsOnInput));
  for (const char event : events) {
    log += " |";
    switch (event) {
      case 'i': log += Written(model.Idled()); break;
      case 'r': log += Written(model.Resumed()); break;
      case 't': log += Written(model.TimerElapsed()); break;
      case 'e': log += Written(model.SaverEnded()); break;
      case 'H': log += Written(model.Hindered(true)); break;
      case 'h': log += Written(model.Hindered(false)); break;
      case 'L': log += Written(model.LockAsked()); break;
    }
  }
  return log;
}

struct Case {
  const char* What;
  const char* Events;
  const char* Steps;
  bool EndsOnInput = true;
};

TEST(IdleModelTest, StartsAndEndsTheSaver) {
  const std::string watch = " watch 300000";
  const Case cases[] = {
      {"input ends the saver itself", "irei",
       " | start | watch 1000 timer 2000 | watch 300000 | start"},
      {"the saver sees the input first", "ieriH", " | start | | watch 300000 | start | stop"},
      {"input that goes on", "irtei",
       " | start | watch 1000 timer 2000 | stop watch 300000 | | start"},
      {"one bump of the table", "iritr",
       " | start | watch 1000 timer 2000 | timer 10000 | | watch 1000 timer 2000"},
      {"two bumps in a row", "irire",
       " | start | watch 1000 timer 2000 | timer 10000 | stop watch 300000 |"},
      {"input that does not end it", "iriei", " | start | | | | ", false},
      {"it ends later than input came", "irei", " | start | | watch 300000 | start", false},
      {"a film", "Hihtr", " | | | timer 300000 | start | watch 1000 timer 2000"},
      {"a film ends, and the next begins", "HihHrhi",
       " | | | timer 300000 | | watch 300000 | | start"},
      {"a call comes", "iHehtH", " | start | stop | | timer 300000 | start | stop"},
      {"a call comes while the mouse moves", "irHeh",
       " | start | watch 1000 timer 2000 | stop watch 300000 | | "},
      {"a lock that never tells its end", "iLeri", " | start | stop | | watch 300000 | start"},
      {"a lock after a film", "HiLhr", " | | | | | watch 300000"},
      {"a crash: not again before input", "ieeihr", " | start | | | | | watch 300000"},
  };
  for (const Case& each : cases) {
    std::string expected = watch + each.Steps;
    while (expected.ends_with(' ')) expected.pop_back();
    EXPECT_EQ(StepsOf(each.Events, each.EndsOnInput), expected) << each.What;
  }
}

TEST(IdleSettingsTest, AreStoredTogetherAndRepaired) {
  MemoryTree tree;
  std::string complaints;
  const auto read = [&] {
    return ReadIdleSettings(tree,
                            [&](const UserText& line) { complaints += InOneLine(line) + '\n'; });
  };
  const IdleSettings chosen{true, 12, 100};
  EXPECT_EQ(read(), IdleSettings());
  EXPECT_TRUE(StoreIdleSettings(tree, chosen));
  EXPECT_EQ(read(), chosen);
  EXPECT_EQ(complaints, "");

  RegistryWrite(tree, "Idle", "Idle_Minutes", "soon");
  RegistryWrite(tree, "Idle", "Idle_Battery", "101");
  EXPECT_EQ(read(), (IdleSettings{true, 5, 20}));
  EXPECT_NE(complaints.find("Idle_Minutes is \"soon\""), std::string::npos) << complaints;
  EXPECT_NE(complaints.find("Idle_Battery is \"101\""), std::string::npos) << complaints;

  tree.Readable = false;
  EXPECT_EQ(read(), std::nullopt);
}

}  // namespace
}  // namespace starfolds
