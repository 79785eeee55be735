#include "faults/commands.h"
#include "faults/ground.h"
#include "gear/component_editor.h"
#include "gear/component_rules.h"
#include "gear/rig_rules.h"
#include "gear/screens.h"
#include "jobs/gear_deletion.h"
#include "jobs/person_deletion.h"
#include "schedule/gear_moves.h"
#include "support/screens/controls.h"

using namespace Qt::StringLiterals;

namespace {

const Date kDay = Day(3, 10, 2026);

}  // namespace

std::vector<Command> CommandsOnGear() {
  return {
      {"new customer", "Function SaveNewOwner",
       [](Ground&) {
         SaveNewOwner({.organization = u"Org"_s, .lastName = u"Neu"_s, .comment = QString(3000, u'c')}, false);
       }},
      {"first owner of the program", "Function SaveNewOwner",
       [](Ground& ground) {
         ground.screens->WhenShown(u"frmPeople"_s, [](Form& form) {
           QCoreApplication::processEvents();  // the editor opens above it
           Click(form, u"cmdExit"_s);
         });
         ground.screens->WhenShown(u"frmPeopleEdit"_s, [](Form& form) {
           TypeInto(form, u"txtLast"_s, u"Boss"_s);
           Click(form, u"cmdSave"_s);
         });
         ShowPeople(kPeopleAddNew, true);
       }},
      {"change a customer", "Sub UpdateOwner",
       [](Ground& ground) {
         Person person;
         LoadPerson(ground.owner, person);
         person.city = u"Town"_s;
         person.comment = QString(5000, u'd');
         UpdateOwner(ground.owner, person);
       }},
      {"delete a customer with gear and jobs", "Sub DeletePerson",
       [](Ground& ground) {
         int neighbour = 0;
         DeleteCustomer(ground.owner, neighbour);
       },
       &Ground::AddWork},
      {"new rig, its type the usual one from now on", "Sub AddRig",
       [](Ground& ground) {
         ground.person.typed << u"Green"_s;
         ground.screens->WhenShown(u"frmPicker"_s, [](Form& form) {
           TypeInto(form, u"txt"_s, u"Tandem"_s);
           Click(form, u"chkDefault"_s);
           Click(form, u"cmdSelect"_s);
         });
         ChooseMenu(dynamic_cast<QWidget&>(*Forms::Find(u"frmGetRig"_s)), {u"Rigs"_s, u"Add new rig"_s});
       },
       nullptr, [](Ground& ground) { OpenRigs({.customer = ground.owner}); }},
      {"delete a rig", "Sub DeleteRig", [](Ground& ground) { DeleteRig(ground.rig); }, &Ground::AddWork},
      {"another owner for a rig", "Sub ChangeRigOwner", [](Ground& ground) { ChangeRigOwner(ground.rig, ground.ann); }},
      {"move a component into a rig, with its repack", "Sub InstallChosenComponent",
       [](Ground& ground) { InstallAndOfferRepack(ground.red, ground.reserve); },
       [](Ground& ground) {
         ground.AddRepack(kDay);
         SetComponentRig(ground.container, ground.red);
       }},
      {"take a component out of a rig", "Sub RemoveComponentFromRig",
       [](Ground& ground) { RemoveComponentFromRig(ground.rig, ground.reserve); }, &Ground::AddWork},
      {"component editor", "Function SaveComponentEntry",
       [](Ground& ground) {
         ground.screens->WhenShown(u"frmComponentEdit"_s, [](Form& form) {
           TypeInto(form, u"txtSerial"_s, u"S9"_s);
           TypeInto(form, u"txtDom"_s, u"1/14/2015"_s);
           Click(form, u"cmdSave"_s);
         });
         EditComponent(ground.reserve);
       }},
      {"delete a component in use", "Sub DeleteComponent", [](Ground& ground) { DeleteComponent(ground.reserve); },
       &Ground::AddWork},
  };
}
