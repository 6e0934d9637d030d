#include "settings/field_order.h"

namespace starfolds {

const FieldOrder<StarfoldProfile>& StoredProfileOrder() {
  static constexpr Moved moves[] = {{"Starfold_ColorMult", "Starfold_RadBFill"},
                                    {"Starfold_StdLevels", "Starfold_QG_Force"},
                                    {"Starfold_StdLevDRad", "Starfold_StdLevels"},
                                    {"Starfold_StdLevHSca", "Starfold_StdLevDRad"},
                                    {"Starfold_StdLevB_HS", "Starfold_StdLevHSca"},
                                    {"Starfold_StdLevB_A0", "Starfold_StdLevB_HS"},
                                    {"Starfold_StdLevB_A1", "Starfold_StdLevB_A0"}};
  static const FieldOrder<StarfoldProfile> order = OrderOf(ProfileFields(), moves);
  return order;
}

}  // namespace starfolds
