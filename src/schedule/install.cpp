#include "schedule/install.h"

#include "core/clock.h"
#include "core/default_rows.h"
#include "core/store/operation.h"
#include "gear/rig_rules.h"
#include "gear/rigs.h"
#include "schedule/completions.h"
#include "schedule/schedule.h"

using namespace Qt::StringLiterals;

namespace {

void OfferRepack(int rigID, int componentID) {
  if (RepackPartnerInRig(rigID, componentID) == 0) return;
  int taskID = 0;
  const Date repack =
      LastRepackOfPair(ComponentOfTypeInRig(rigID, kContainer), ComponentOfTypeInRig(rigID, kReserveCanopy), taskID);
  if (!repack.IsNone() && AskAddRepackToSchedule(repack)) ReplaceSchedule(rigID, RepackTaskLibID, repack, taskID, 0);
}

}  // namespace

bool InstallAndOfferRepack(int rigID, int componentID) {
  bool installed = false;
  const bool written = Operation({u"Sub InstallChosenComponent"_s, u"Install component"_s}, [&] {
    installed = InstallChosenComponent(rigID, componentID, Today());
    if (installed) OfferRepack(rigID, componentID);
  });
  return written && installed;
}
