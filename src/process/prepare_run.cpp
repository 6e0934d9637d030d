#include "process/prepare_run.h"

namespace starfolds {

void PrepareRun(ProcessState& process) {
  process.RunUniverse = PrepareUniverse(process.Universe);
  PrepareProfiles(process.Prepared, process.Profiles, process.Advanced, process.Random);
  SumMembers(process.MemberSum, process.Composites, process.Prepared);
  BuildPulsarTables(process.Colours, process.Profiles);
  BuildNewStarRamp(process.Colours, process.Profiles);
}

}  // namespace starfolds
