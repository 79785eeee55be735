#include "core/picker.h"
#include "gear/catalogue.h"
#include "gear/component_types.h"
#include "gear/location_rules.h"
#include "gear/models.h"
#include "gear/person_deletion.h"
#include "gear/person_names.h"
#include "gear/rig_rules.h"
#include "gear/rig_type_rules.h"
#include "gear/screens.h"

void RegisterGearPickers() {
  RegisterPickerOwner(kPickCustomer, {.add =
                                          [](const QString& name, int) {
                                            int id = 0;
                                            AddPersonByName(name, id);
                                            return id;
                                          },
                                      .remove =
                                          [](int id) {
                                            int neighbour = 0;
                                            return DeleteCustomer(id, neighbour);
                                          },
                                      .removeAsks = true});
  RegisterPickerOwner(kPickMiscItem, {.add = [](const QString& name, int type) { return AddModel(name, type); },
                                      .remove = [](int id) { return DeleteModel(id) == ModelDeletion::Deleted; },
                                      .removeAsks = true});
  RegisterPickerOwner(kPickLocation, {.add =
                                          [](const QString& name, int) {
                                            LocationEntry entry{.city = name};
                                            return SaveLocation(entry, 0);
                                          },
                                      .remove = DeleteLocation,
                                      .removeAsks = true});
  RegisterPickerOwner(kPickRigType, {.remove = [](int id) { return DeleteRigType(id) == RigTypeDeletion::Deleted; },
                                     .removeAsks = true});
  RegisterPickerOwner(kPickComponentType, {.remove = DeleteComponentType, .removeAsks = true});
  RegisterPickerOwner(kPickRig, {.remove =
                                     [](int id) {
                                       if (!ConfirmRigDeletion(id)) return false;
                                       DeleteRig(id);
                                       return true;
                                     },
                                 .removeAsks = true});
}
