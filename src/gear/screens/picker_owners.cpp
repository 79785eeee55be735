#include "core/default_rows.h"
#include "core/picker.h"
#include "core/prompts.h"
#include "core/store/tables.h"
#include "gear/catalogue.h"
#include "gear/component_types.h"
#include "gear/location_rules.h"
#include "gear/models.h"
#include "gear/person_names.h"
#include "gear/person_record.h"
#include "gear/picker_rows.h"
#include "gear/rig_rules.h"
#include "gear/rig_type_rules.h"
#include "gear/screens.h"
#include "jobs/gear_deletion.h"
#include "jobs/person_deletion.h"
#include "schedule/gear_moves.h"

using namespace Qt::StringLiterals;

namespace {

std::function<QString(int)> Fixed(const QString& text) {
  return [text](int) { return text; };
}

std::function<IdList(int)> Without(IdList (*rows)()) {
  return [rows](int) { return rows(); };
}

IdList WithFirst(const QString& text, const IdList& rows) {
  IdList all;
  all.Add(text, kPickAddNew);
  all.texts += rows.texts;
  all.ids += rows.ids;
  return all;
}

PickerKind Customers() {
  return {.title = Fixed(u"Select Customer"_s),
          .rows =
              [](int) {
                IdList rows = PickerCustomers();
                rows.Add(u"(add new)"_s, kPickAddNewPerson);
                return rows;
              },
          .tables = {tblPeople::kTable},
          .cancelIsExit = true,
          .chosen = SetLastCustomerID,
          .find = FindPersonByTypedName,
          .offersToAdd = true,
          .noun = Fixed(u"customer"_s),
          .whole = u"database"_s,
          .add =
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
          .removeAsks = true};
}

PickerKind Riggers() {
  return {.title = Fixed(u"Select Rigger"_s),
          .rows = Without(PickerRiggers),
          .tables = {tblPeople::kTable, tblMisc::kTable},
          .cancelIsExit = true,
          .defaultCaption = u"Save as default rigger"_s,
          .tellUnmatched = [](const QString& typed) {
            MsgBox(Lines({u"There isn't a rigger named '"_s + typed + u'\'', QString(),
                          u"You can designate a person as a rigger from the"_s, u"customers form"_s}),
                   u"Can't add new rigger here"_s);
          }};
}

PickerKind Models() {
  return {.title =
              [](int type) {
                return type == 0 ? u"Select Misc Item Model"_s : u"Select "_s + ComponentTypeName(type) + u" model"_s;
              },
          .rows =
              [](int type) {
                return type == 0 ? WithFirst(u"(add new model)"_s, LoadModels(kMisc))
                                 : WithFirst(u"(add new)"_s, LoadModels(type));
              },
          .tables = {tblModels::kTable},
          .offersToAdd = true,
          .noun = [](int type) { return ComponentTypeName(type > 0 ? type : int{kMisc}); },
          .whole = u"database"_s,
          .add = [](const QString& name, int type) { return AddModelByName(name, type > 0 ? type : int{kMisc}); },
          .remove = [](int id) { return DeleteModel(id) == ModelDeletion::Deleted; },
          .removeAsks = true};
}

PickerKind Locations() {
  return {.title = Fixed(u"Select Location"_s),
          .rows = Without(PickerLocations),
          .tables = {tblLocation::kTable},
          .defaultCaption = u"Save as default location"_s,
          .offersToAdd = true,
          .noun = Fixed(u"location"_s),
          .whole = u"database"_s,
          .add =
              [](const QString& name, int) {
                LocationEntry entry{.city = name};
                return SaveLocation(entry, 0);
              },
          .remove = DeleteLocation,
          .removeAsks = true};
}

PickerKind Rigs() {
  return {.title = Fixed(u"Select System"_s),
          .rows = [](int) { return WithFirst(u"(add new)"_s, PickerRigs()); },
          .tables = {tblRig::kTable},
          .remove = [](int id) { return ConfirmRigDeletion(id) && DeleteRig(id); },
          .removeAsks = true};
}

PickerKind RigTypes() {
  return {.title = Fixed(u"Select Rig Type"_s),
          .rows = Without(LoadRigTypesById),
          .tables = {tblRigTypes::kTable},
          .remove = [](int id) { return DeleteRigType(id) == RigTypeDeletion::Deleted; },
          .removeAsks = true};
}

PickerKind ComponentTypes() {
  return {.title = Fixed(u"Select Component Type"_s),
          .rows = Without(LoadComponentTypes),
          .tables = {tblComponentTypes::kTable},
          .tellUnmatched =
              [](const QString& typed) {
                MsgBox(Lines({u"There isn't a component type called "_s + typed, QString(),
                              u"To add a new component type, access the SETUP menu"_s}),
                       u"No such component type"_s);
              },
          .remove = DeleteComponentType,
          .removeAsks = true};
}

PickerKind GearReports() {
  return {
      .title = Fixed(u"Select Gear List Report"_s),
      .rows = Without(PickerGearReports),
      .tables = {TblGearReports::kTable},
      .tellUnmatched =
          [](const QString& typed) { MsgBox(u"There isn't a gear list named '"_s + typed + u'\'', u"Sorry....."_s); },
      .removeQuestion = u"Are you sure you want to delete this report?"_s};
}

}  // namespace

void RegisterGearPickers() {
  RegisterPicker(kPickCustomer, Customers());
  RegisterPicker(kPickRigger, Riggers());
  RegisterPicker(kPickMiscItem, Models());
  RegisterPicker(kPickLocation, Locations());
  RegisterPicker(kPickRig, Rigs());
  RegisterPicker(kPickRigType, RigTypes());
  RegisterPicker(kPickComponentType, ComponentTypes());
  RegisterPicker(kPickGearReport, GearReports());
}
