#include "process/prepare_run.h"

#include "settings/stored_records.h"

namespace starfolds {

void PrepareRun(ProcessState& process) {
  process.RunUniverse = PrepareUniverse(process.Universe);
  PrepareProfiles(process.Prepared, process.Profiles, LoadAdvancedFromRegistry(*process.Tree),
                  process.Random);
  SumMembers(process.MemberSum, process.Composites, process.Prepared);
  BuildPulsarTables(process.Colours, process.Profiles);
  BuildNewStarRamp(process.Colours, process.Profiles);
}

}  // namespace starfolds
