#include "hosting/frm_saver.h"

#include <utility>

#include "hosting/captions.h"
#include "settings/storage.h"
#include "universe/host_surface.h"

namespace starfolds {

FrmSaver::FrmSaver(Saver& saver, SeedSource seed)
    : saver_(saver),
      seed_(std::move(seed)),
      backG_(LoadAdvancedFromRegistry(*saver.Tree).Adv_DispBackG),
      input_(LoadAdvancedFromRegistry(*saver.Tree).Adv_MouseMove, backG_),
      surface_(*this) {
  surface_.SetName("frmSaver");
  surface_.SetCaption(kSaverCaption);
}

FrmSaver::~FrmSaver() { saver_.Screen.hDCDraw = nullptr; }

void FrmSaver::Load() {
  saver_.StopRun = false;
  surface_.HidePointer();
  surface_.ShowFullScreen(backG_ ? Stacking::AtBottom : Stacking::OnTop);
  WaitUntilShown(saver_, surface_);
  surface_.TakeWindowSize();
  SetupDisplay(saver_, surface_, seed_());
  RunEffect(saver_, surface_);
}

void FrmSaver::KeyDown(int) {
  if (input_.KeyDown()) QueryUnload();
}

void FrmSaver::MouseDown() {
  if (input_.MouseDown()) QueryUnload();
}

void FrmSaver::DoubleClick() {
  if (input_.DoubleClick()) QueryUnload();
}

void FrmSaver::MouseMove(int, int) {
  if (input_.MouseMove(SecondsSinceMidnight())) QueryUnload();
}

void FrmSaver::CloseRequested() { QueryUnload(); }

void FrmSaver::Destroyed() { saver_.StopRun = true; }

void FrmSaver::QueryUnload() { saver_.StopRun = true; }

}  // namespace starfolds
