#include "properties/universe_guides.h"

#include "desktop/translation.h"
#include "settings/dialog_rows.h"
#include "widgets/number_box.h"
#include "widgets/setting_guide.h"

namespace starfolds {
namespace {

using U = UniverseSettings;

struct Named {
  const char* Object;
  const char* Name;
};
constexpr Named kNames[] = {
    {"spnUni_16", STARFOLDS_TEXT("Hue Start")},
    {"spnUni_17", STARFOLDS_TEXT("Hue End")},
    {"cboUniTheme", STARFOLDS_TEXT("Theme of the universe")},
    {"cboUniProfile", STARFOLDS_TEXT("Universe Profile")},
    {"cboTourStarfolds", STARFOLDS_TEXT("Starfolds to visit")},
    {"lstCompStarfold", STARFOLDS_TEXT("Composite starfolds and their relative percent")},
    {"cboCompMajor", STARFOLDS_TEXT("Major starfold type")},
    {"lstCompMinor", STARFOLDS_TEXT("Minor starfold types")},
    {"cmdCompCommit", STARFOLDS_TEXT("Commit the composite starfold")},
    {"cboPropCopyList", STARFOLDS_TEXT("Property to copy")},
};

/// The controls of settings that are no numbers.
struct GuidedControl {
  const char* Object;
  Setting<U> What;
};
constexpr GuidedControl kGuided[] = {{"chkUniTour", &U::Universe_Tour},
                                     {"chkVisitSeq", &U::Universe_GVisit},
                                     {"chkRotCamera", &U::Universe_RotCam},
                                     {"cboUniProfile", &U::Universe_Profile}};

void Guide(QWidget& control, Help& help, Setting<U> setting) {
  new SettingGuide(control, help, [setting] { return Guided(FieldOf(setting)); });
}

}  // namespace

void GuideUniverse(QWidget& view, Help& help) {
  for (const UniverseRow& row : UniverseRows()) {
    auto* const box = view.findChild<NumberBox*>("spnUni_" + QString::number(row.Index));
    if (box) Guide(*box, help, row.What);
  }
  for (const GuidedControl& guided : kGuided) {
    if (auto* const control = view.findChild<QWidget*>(guided.Object)) {
      Guide(*control, help, guided.What);
    }
  }
  for (const Named& named : kNames) {
    if (auto* const control = view.findChild<QWidget*>(named.Object)) {
      control->setAccessibleName(Translated(named.Name));
    }
  }
}

}  // namespace starfolds
