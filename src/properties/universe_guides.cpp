#include "properties/universe_guides.h"

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
    {"spnUni_16", "Hue Start"},
    {"spnUni_17", "Hue End"},
    {"cboUniTheme", "Theme of the universe"},
    {"cboUniProfile", "Universe Profile"},
    {"cboTourStarfolds", "Starfolds to visit"},
    {"lstCompStarfold", "Composite starfolds and their relative percent"},
    {"cboCompMajor", "Major starfold type"},
    {"lstCompMinor", "Minor starfold types"},
    {"cmdCompCommit", "Commit the composite starfold"},
    {"cboPropCopyList", "Property to copy"},
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
      control->setAccessibleName(QObject::tr(named.Name));
    }
  }
}

}  // namespace starfolds
