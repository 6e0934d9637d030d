#include "hosting/frm_preview.h"

#include <utility>

#include "hosting/captions.h"

namespace starfolds {

FrmPreview::FrmPreview(Saver& saver, SeedSource seed)
    : window_(saver, std::move(seed), saver.PreviewParent) {
  window_.Drawing().SetName("frmPreview");
  window_.Drawing().SetCaption(kPreviewCaption);
}

void FrmPreview::Load() { PreviewRun(); }

void FrmPreview::PreviewRun() { window_.Run(true); }

}  // namespace starfolds
