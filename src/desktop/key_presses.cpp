#include "desktop/key_presses.h"

namespace starfolds {
namespace {

bool IsModifier(int key) {
  switch (key) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Meta:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
    case Qt::Key_ScrollLock:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
    case Qt::Key_Hyper_L:
    case Qt::Key_Hyper_R:
    case Qt::Key_Mode_switch: return true;
    default: return false;
  }
}

bool IsMediaKey(int key) {
  switch (key) {
    case Qt::Key_VolumeDown:
    case Qt::Key_VolumeMute:
    case Qt::Key_VolumeUp:
    case Qt::Key_MicMute:
    case Qt::Key_MicVolumeUp:
    case Qt::Key_MicVolumeDown:
    case Qt::Key_BassBoost:
    case Qt::Key_BassUp:
    case Qt::Key_BassDown:
    case Qt::Key_TrebleUp:
    case Qt::Key_TrebleDown:
    case Qt::Key_MediaPlay:
    case Qt::Key_MediaStop:
    case Qt::Key_MediaPrevious:
    case Qt::Key_MediaNext:
    case Qt::Key_MediaRecord:
    case Qt::Key_MediaPause:
    case Qt::Key_MediaTogglePlayPause:
    case Qt::Key_AudioRewind:
    case Qt::Key_AudioForward:
    case Qt::Key_AudioRepeat:
    case Qt::Key_AudioRandomPlay:
    case Qt::Key_AudioCycleTrack:
    case Qt::Key_Eject:
    case Qt::Key_MonBrightnessUp:
    case Qt::Key_MonBrightnessDown:
    case Qt::Key_KeyboardLightOnOff:
    case Qt::Key_KeyboardBrightnessUp:
    case Qt::Key_KeyboardBrightnessDown: return true;
    default: return false;
  }
}

}  // namespace

/// An X server sends a release and a press for each repeat, both with the same time stamp. Qt
/// reports the press as a new one if it has read the release before the press arrived.
bool KeyPresses::Counts(const QKeyEvent& press) const {
  const bool repeats =
      press.isAutoRepeat() || (releaseTime_ != 0 && press.timestamp() == releaseTime_ &&
                               press.nativeScanCode() == releasedKey_);
  return !repeats && !IsModifier(press.key()) && !IsMediaKey(press.key());
}

void KeyPresses::Released(const QKeyEvent& release) {
  releasedKey_ = release.nativeScanCode();
  releaseTime_ = release.timestamp();
}

}  // namespace starfolds
