// The table of command lines: what each of them shows, prints and returns, by the real programs.
// Needs an X server.
#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <string>
#include <vector>

namespace starfolds {
namespace {

constexpr int kPatience = 30'000;  // ms, for what must happen in the end
constexpr int kRuns = -1;          // in place of an exit code: opens a window and goes on

const QStringList kNoDesktop{"DISPLAY=", "QT_QPA_PLATFORM="};
const QStringList kOffscreen{"QT_QPA_PLATFORM=offscreen"};
const QStringList kDeadServer{"DISPLAY=:9999"};
const QStringList kNoPlugIn{"QT_QPA_PLATFORM=nonsense"};
const QStringList kGerman{"LANGUAGE=de_AT:en", "DISPLAY=:9999"};

struct Row {
  QStringList Line;  // the arguments; the first one "render" for the renderer
  int ExitCode;
  const char* Output = "";  // pattern of a part; of the window's name for `kRuns`; empty: none
  const char* Errors = "";  // pattern of the only line, behind "starfolds: "; empty: none
  QStringList Environment{};
  const char* Prints = "";  // for `kRuns`: pattern of a part of the output; empty: none
};

class Program : public QProcess {
 public:
  Program(const Row& row, const QString& folder) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LANGUAGE", "en");
    environment.insert("XDG_CONFIG_HOME", folder + "/config");
    environment.insert("XDG_RUNTIME_DIR", folder);  // the toolkit complains where there is none
    environment.remove("XSCREENSAVER_WINDOW");
    for (const QString& variable : row.Environment) {
      environment.insert(variable.section('=', 0, 0), variable.section('=', 1));
    }
    setProcessEnvironment(environment);
    setWorkingDirectory(folder);
    const bool render = row.Line.value(0) == "render";
    start(render ? STARFOLDS_RENDER_PROGRAM : STARFOLDS_PROGRAM, row.Line.mid(render ? 1 : 0));
    closeWriteChannel();
  }
  ~Program() override {
    kill();
    waitForFinished();
  }

  /// Whether it comes to show a window with a name of this pattern.
  bool Shows(const QString& name) {
    const QStringList search{
        "search", "--onlyvisible", "--all", "--pid", QString::number(processId()),
        "--name", "^" + name + "$"};
    for (const QDeadlineTimer deadline(kPatience); !deadline.hasExpired();) {
      QProcess tool;
      tool.start("xdotool", search);
      if (tool.waitForFinished(kPatience) && tool.exitCode() == 0) return true;
      if (waitForFinished(20)) return false;
    }
    return false;
  }
};

QRegularExpression Exactly(const QString& pattern) {
  return QRegularExpression(QRegularExpression::anchoredPattern(pattern));
}

class CommandLines : public testing::Test {
 protected:
  void Check(const std::vector<Row>& rows) {
    ASSERT_TRUE(Folder.isValid());
    for (const Row& row : rows) {
      SCOPED_TRACE(
          ("starfolds " + row.Line.join(' ') + "  " + row.Environment.join(' ')).toStdString());
      Program program(row, Folder.path());
      if (row.ExitCode == kRuns) {
        EXPECT_TRUE(program.Shows(row.Output));
        program.terminate();
      }
      ASSERT_TRUE(program.waitForFinished(kPatience));
      EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
      EXPECT_EQ(program.exitCode(), std::max(row.ExitCode, 0));
      CheckErrors(row, program.readAllStandardError());
      const QString output = program.readAllStandardOutput();
      const QString pattern = row.ExitCode == kRuns ? row.Prints : row.Output;
      if (pattern.isEmpty()) {
        EXPECT_EQ(output.toStdString(), "");
      } else {
        EXPECT_TRUE(QRegularExpression(pattern).match(output).hasMatch()) << output.toStdString();
      }
    }
  }

  QTemporaryDir Folder;

 private:
  static void CheckErrors(const Row& row, const QString& errors) {
    const QString pattern = "starfolds(-render)?: [^\\n]*" + QString(row.Errors) + "[^\\n]*\\n";
    const bool isRight =
        *row.Errors == '\0' ? errors.isEmpty() : Exactly(pattern).match(errors).hasMatch();
    EXPECT_TRUE(isRight) << row.Errors << " is not\n" << errors.toStdString();
  }
};

constexpr const char* kSaver = "TSLN:Starfolds 4\\.1a";
constexpr const char* kDialog = "Starfold Properties";
constexpr const char* kAnyWindow = ".*";

TEST_F(CommandLines, OfSystems) {
  Check({
      {{}, kRuns, kDialog},
      {{"/C"}, kRuns, kDialog},
      {{"/Cx", "--window"}, kRuns, kDialog},
      {{"/S"}, kRuns, kSaver},
      {{"anything"}, kRuns, kSaver},
      {{"/S"}, 1, "", "no desktop", kNoDesktop},
      {{"/S"}, 1, "", "could not connect to display :9999", kDeadServer},
      {{"/P", "12345"}, 0},
      {{"/P", "12345"}, 1, "", "needs an X server", {"DISPLAY=", "QT_QPA_PLATFORM=offscreen"}},
      {{"/P", "12345"}, 1, "", "could not connect to display :9999", kDeadServer},
      {{"/A", "12345"}, 0},
      {{"none.sfd"}, 2, "", "cannot read \"none.sfd\": No such file or directory"},
  });
}

TEST_F(CommandLines, OfPeople) {
  Check({
      {{"--seed=3", "--saver", "--stars", "-5", "--screens", "primary"}, kRuns, kSaver},
      {{"--settings"}, kRuns, kDialog},
      {{"--window", "--size=300x200"}, kRuns, kAnyWindow},
      {{"--full-screen", "--window"}, kRuns, kAnyWindow},
      {{"--saver"}, 1, "", "no desktop", kNoDesktop},
      {{"--window"}, 1, "", "\"nonsense\"", kNoPlugIn},
      {{"--saver"},
       1,
       "",
       "wayland",
       {"DISPLAY=", "QT_QPA_PLATFORM=wayland", "WAYLAND_DISPLAY=none"}},
      {{"--saver", "--screens", "9"}, 1, "", "there is no screen 9"},
      {{"--window", "none.sfd"}, 2, "", "cannot read \"none.sfd\"", kOffscreen},
  });
}

TEST_F(CommandLines, ThatInform) {
  Check({
      {{"-h"}, 0, "(?s)^Usage: starfolds .*\n  --full-screen ", "", kNoDesktop},
      {{"--saver", "--bogus", "--help"}, 0, "^Usage: starfolds ", "", kDeadServer},
      {{"-V"}, 0, "^starfolds [0-9.]+\n$", "", kNoDesktop},
      {{"render", "-h"}, 0, "(?s)^Usage: starfolds-render .*\n  --sheet FILE "},
      {{"render", "-V"}, 0, "^starfolds-render [0-9.]+\n$"},
      {{"render", "--list"}, 0, "(?s)profile 49 .*composite 15 .*theme 8 "},
  });
}

TEST_F(CommandLines, ThatAreWrong) {
  Check({
      {{"--roots"}, 2, "", "unknown option \"--roots\""},
      {{"--window-id", "5", "--saver"}, 2, "", "goes alone"},
      {{"--window", "--size", "5x5", "--full-screen"}, 2, "", "exclude each other"},
      {{"--window-id", "77"}, 1, "", "no X server", kDeadServer},
      {{"--saver=1"}, 2, "", "--saver takes no value"},
      {{"--seed", "--saver"}, 2, "", "--seed needs a value"},
      {{"--saver", "--seed=many"}, 2, "", "--seed: takes a whole number .*, not \"many\""},
      {{"--window", "--size", "0x5"}, 2, "", "--size: takes WIDTHxHEIGHT"},
      {{"--\033[31mred\n"}, 2, "", "unknown option \"--\\?\\[31mred\\?\""},
      {{"render", "x", "--hash"}, 2, "", "unexpected argument \"x\""},
      {{"render", "--hash", "--seed", QString(100'000, '9')}, 2, "", "9{200}\\.\\.\\."},
      {{"render", "--hash", "--template", "none.sfd"}, 2, "", "cannot read \"none.sfd\""},
      {{"--seed=x"}, 2, "", "--seed: braucht .*, nicht \"x\" \\(--help zeigt .*\\)", kGerman},
      {{"--window"}, 1, "", "keine Verbindung zur Anzeige: could not connect.*", kGerman},
  });
  EXPECT_FALSE(QDir(Folder.path()).exists("config")) << "a wrong command line stores nothing";
}

TEST_F(CommandLines, ThatRender) {
  Check({
      {{"render", "--hash", "--frames=2", "--every", "2", "--size=8x8", "--seed", "3"},
       0,
       "^frame 1 [0-9a-f]+\n$"},
      {{"render", "--save", "made.sfd", "--set=Universe_Stars=77"}, 0},
      {{"made.sfd", "--window"}, kRuns, kAnyWindow},
      {{"--window", "--", "made.sfd"}, kRuns, kAnyWindow},
      {{"made.sfd"}, kRuns, kSaver, "", {}, "Stored the universe"},
      {{"render", "--stored", "--save", "stored.sfd"}, 0},
  });
  QFile stored(Folder.filePath("stored.sfd"));
  ASSERT_TRUE(stored.open(QIODevice::ReadOnly));
  EXPECT_TRUE(stored.readAll().contains("Universe_Stars=77"));
}

}  // namespace
}  // namespace starfolds
