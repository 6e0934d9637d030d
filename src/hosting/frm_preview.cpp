#include "hosting/frm_preview.h"

#include <utility>

#include "widgets/captions.h"

namespace starfolds {

FrmPreview::FrmPreview(ProcessState& process, SeedSource seed)
    : window_(process, std::move(seed), process.PreviewParent) {
  window_.Drawing().SetName("frmPreview");
  window_.Drawing().SetCaption(kPreviewCaption);
}

void FrmPreview::Load() { PreviewRun(); }

void FrmPreview::PreviewRun() { window_.Run(true); }

}  // namespace starfolds
