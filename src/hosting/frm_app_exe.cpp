#include "hosting/frm_app_exe.h"

#include <Qt>
#include <chrono>
#include <utility>

#include "desktop/qimage_of_surface.h"
#include "hosting/lock_message.h"
#include "hosting/saved_picture.h"
#include "platform/user_text.h"
#include "settings/registry.h"
#include "universe/host_surface.h"
#include "widgets/captions.h"
#include "widgets/placed_qt_window.h"

namespace starfolds {
namespace {

using std::chrono::milliseconds;

/// Time to read the line.
constexpr milliseconds kHintTime{7000};
constexpr milliseconds kForGood{0};

/// Interval at which a paused window checks whether the process must end.
constexpr Long kPauseLookMs = 250;

const char kKeys[] = STARFOLDS_TEXT(
    "Esc: leave    F5: next universe    Ctrl+P: pause    Ctrl+S: save a picture    F1: help    "
    "any other key: settings");
const char kFewKeys[] = STARFOLDS_TEXT("Esc: leave    F1: help    any other key: settings");

}  // namespace

FrmAppExe::FrmAppExe(ProcessState& process, SeedSource seed, ShowPropertiesDialog frmProps,
                     AppWindowShape shape)
    : process_(process),
      seed_(std::move(seed)),
      frmProps_(std::move(frmProps)),
      shape_(shape),
      surface_(*this),
      picMessage_(surface_.Window()),
      hints_(surface_.Window()) {
  surface_.SetName("frmAppEXE");
  // It may have the saver's caption, but must not keep a saver from starting.
  surface_.HideFromSearch();
}

FrmAppExe::~FrmAppExe() { process_.Screen.hDCDraw = nullptr; }

void FrmAppExe::Activate() {
  while (!started_ && !process_.Requests.QuitApp()) {
    started_ = true;
    AppRun();
  }
  SavePlacement();
}

/// If the process ends before its window is shown, there is no placement to store.
void FrmAppExe::SavePlacement() {
  if (!framed_ || shape_.IsForThisRun()) return;
  SaveWindowPlacement(PlacedQtWindow(surface_.Window()), *process_.Tree, sections::kGeneral);
}

bool FrmAppExe::WantsFrame() const {
  if (shape_.FullScreen) return false;
  return shape_.Size || shape_.Framed || process_.Advanced.Adv_WinResize;
}

/// Does nothing if the window already has the state that the settings ask for.
void FrmAppExe::Show() {
  const bool framed = WantsFrame();
  if (framed_ == framed) return;
  framed_ = framed;
  if (framed) return ShowFramed();
  surface_.SetCaption("");
  surface_.HidePointer();
  surface_.ShowFullScreen(Stacking::Ordinary);
}

void FrmAppExe::ShowFramed() {
  surface_.SetCaption(kSaverCaption);
  surface_.ShowPointer();
  surface_.ShowResizable([this](QWindow& window) {
    PlacedQtWindow placed(window);
    if (!shape_.Size && process_.Advanced.Adv_WinResize) {
      RestoreWindowPlacement(placed, *process_.Tree, sections::kGeneral);
    } else {
      if (shape_.Size) window.resize(*shape_.Size);
      placed.CentreOnScreen();
    }
  });
}

/// Shows the key hints once, when the first universe begins.
void FrmAppExe::ShowKeys() {
  if (!keysShown_) hints_.Show(kKeys, kFewKeys, kHintTime);
  keysShown_ = true;
}

/// The surface is resized to the window only here: a window that is resized during a run gets a
/// matching surface with the next run. Clears the flags that asked for this run.
void FrmAppExe::AppRun() {
  process_.Requests.BeginRun();
  ReadAdvancedSettings(process_);
  Show();
  WaitUntilShown(process_, surface_);
  surface_.TakeWindowSize();
  SetupDisplay(process_, surface_, seed_());
  ShowLockMessage(picMessage_, process_.Advanced);
  ShowKeys();
  running_ = true;
  RunEffect(process_, surface_);
  running_ = false;
}

void FrmAppExe::AppQuit() { process_.Requests.AskQuit(); }

/// Ends the run at its next frame, in any stage; `Activate` then starts another one. A run started
/// from here would nest in the pump of the old one and keep its memory until the end.
void FrmAppExe::BeginAnew() {
  started_ = false;
  process_.Requests.AskStop();
}

void FrmAppExe::ShowProperties(bool help) {
  SavePlacement();
  frmProps_(surface_.Window(), help);
  if (process_.Requests.QuitApp()) return;
  BeginAnew();
}

/// The run waits in the pump of its frame until the key is pressed again or the run must end. The
/// dialog that another key opens does not end the pause, but the new run after it does.
void FrmAppExe::TogglePause() {
  paused_ = !paused_;
  if (!paused_) return hints_.Hide();
  hints_.Show(STARFOLDS_TEXT("Paused. Ctrl+P: go on"), STARFOLDS_TEXT("Paused"), kForGood);
  while (paused_ && !process_.Requests.StopRun()) {
    process_.Events->PumpEvents();
    if (paused_ && !process_.Requests.StopRun()) process_.Events->WaitForEvents(kPauseLookMs);
  }
  paused_ = false;
  hints_.Hide();
}

void FrmAppExe::SavePictureOfUniverse() {
  surface_.ShowNewest();
  const SavedPicture saved = SavePicture(ImageOf(surface_));
  if (saved.Path.isEmpty()) {
    return hints_.Show(
        {STARFOLDS_TEXT("The picture could not be saved: %1"), {saved.Fault.toStdString()}},
        STARFOLDS_TEXT("Not saved"), kHintTime);
  }
  hints_.Show({STARFOLDS_TEXT("Saved as %1"), {saved.Path.toStdString()}}, STARFOLDS_TEXT("Saved"),
              kHintTime);
}

/// Every key without a modifier has a function: all but Esc and F5 open the properties.
void FrmAppExe::KeyDown(int key, Qt::KeyboardModifiers modifiers) {
  if (modifiers == Qt::ControlModifier && key == Qt::Key_P) return TogglePause();
  if (modifiers == Qt::ControlModifier && key == Qt::Key_S) return SavePictureOfUniverse();
  switch (key) {
    case Qt::Key_Escape: return AppQuit();
    case Qt::Key_F5: SavePlacement(); return BeginAnew();
    default: return ShowProperties(key == Qt::Key_F1);
  }
}

void FrmAppExe::MouseDown() { ShowProperties(false); }

/// The surface keeps its size until the next run; message and hints follow the window.
void FrmAppExe::Resized() {
  if (!running_) return;
  ShowLockMessage(picMessage_, process_.Advanced);
  hints_.FollowWindow();
  if (!paused_ && !surface_.HasWindowSize())
    hints_.Show(STARFOLDS_TEXT("F5: next universe, in this size"), "F5", kHintTime);
}

void FrmAppExe::CloseRequested() { AppQuit(); }

void FrmAppExe::Destroyed() { AppQuit(); }

}  // namespace starfolds
