#include "faults/commands.h"
#include "faults/ground.h"
#include "gear/catalogue.h"
#include "gear/component_types.h"
#include "gear/rig_type_rules.h"
#include "gear/service_lives.h"

using namespace Qt::StringLiterals;

std::vector<Command> CommandsOnTheCatalogue() {
  return {
      {"new location, its tax for the whole state", "Sub SaveLocation",
       [](Ground&) {
         LocationEntry entry{u"Third"_s, u"CA"_s, u"8.5"_s, true};
         SaveLocation(entry, 0);
       }},
      {"service life of a model", "Sub SaveServiceLife",
       [](Ground& ground) { SaveServiceLife(ComponentModel(ground.aad), 144); }},
      {"delete a model with its components", "Sub DeleteModel",
       [](Ground& ground) { DeleteModel(ComponentModel(ground.aad)); }},
      {"component types of a rig type", "Sub SetComponentTypesOfRigType",
       [](Ground&) {
         SetComponentTypesOfRigType(1, {kContainer, kReserveCanopy, kMainCanopy});
       }},
  };
}
