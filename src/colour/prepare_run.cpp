#include "colour/prepare_run.h"

#include "settings/storage.h"

namespace starfolds {

void PrepareRun(Saver& saver) {
  saver.RunUniverse = PrepareUniverse(saver.Universe);
  PrepareProfiles(saver.Prepared, saver.Profiles, LoadAdvancedFromRegistry(*saver.Tree),
                  saver.Random);
  SumMembers(saver.MemberSum, saver.Composites, saver.Prepared);
  BuildPulsarTables(saver.Colours, saver.Profiles);
  BuildNewStarRamp(saver.Colours, saver.Profiles);
}

}  // namespace starfolds
