#include "settings/field_order.h"

namespace starfolds {

const FieldOrder<StarfoldProfile>& StoredProfileOrder() {
  using P = StarfoldProfile;
  static constexpr Moved<P> moves[] = {{&P::Starfold_ColorMult, &P::Starfold_RadBFill},
                                       {&P::Starfold_StdLevels, &P::Starfold_QG_Force},
                                       {&P::Starfold_StdLevDRad, &P::Starfold_StdLevels},
                                       {&P::Starfold_StdLevHSca, &P::Starfold_StdLevDRad},
                                       {&P::Starfold_StdLevB_HS, &P::Starfold_StdLevHSca},
                                       {&P::Starfold_StdLevB_A0, &P::Starfold_StdLevB_HS},
                                       {&P::Starfold_StdLevB_A1, &P::Starfold_StdLevB_A0}};
  static const FieldOrder<StarfoldProfile> order = OrderOf<P>(ProfileFields(), moves);
  return order;
}

}  // namespace starfolds
