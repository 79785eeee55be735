#include "gear/component_types.h"

#include "core/default_rows.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/store/rows.h"
#include "gear/models.h"

using namespace Qt::StringLiterals;

namespace {

int NextTypeId() {
  int next = 1;
  Operation(u"Function NextTypeId"_s, [&] {
    Recordset types(Select(tblComponentTypes::kTable).OrderBy(tblComponentTypes::ID));
    if (RecordsetHasRows(types)) {
      types.MoveLast();
      next = types[tblComponentTypes::ID].ToInt() + 1;
    } else {
      MsgBox(u"you shouldn't be here"_s);
    }
  });
  return next;
}

}  // namespace

IdList LoadMajorComponentTypes() {
  const IdList all = LoadComponentTypes();
  IdList major;
  for (qsizetype i = 0; i < all.Size(); ++i)
    if (all.ids.at(i) != kMisc) major.Add(all.texts.at(i), all.ids.at(i));
  return major;
}

QString TypeInSentence(int type) {
  const QString name = ComponentTypeName(type);
  return name == u"AAD"_s ? name : name.toLower();
}

int AddNewComponentType() {
  const int id = NextTypeId();
  const QString name = InputBox(u"Enter name of new component"_s);
  if (name.isEmpty()) return 0;
  const bool added = Operation(u"Function AddNewComponentType"_s, [&] {
    AddRow(tblComponentTypes::kTable, {{tblComponentTypes::Name, name}, {tblComponentTypes::ID, id}});
  });
  return added ? id : 0;
}

bool RenameComponentType(int id) {
  const QString name = InputBox(u"Enter component type name"_s, u"Rename"_s, ComponentTypeName(id));
  if (name.trimmed().isEmpty()) return false;
  return Operation(u"Sub RenameComponentType"_s, [&] {
    EditRow(tblComponentTypes::ID == id, {{tblComponentTypes::Name, name}});
  });
}

bool DeleteComponentType(int id) {
  if (id == 0) {
    MsgBox(u"Please select a component to delete"_s);
    return false;
  }
  if (id < kFirstUserType) {
    MsgBox(Lines({u"This is a fixed component type."_s, u"It cannot be deleted."_s}),
           u"Cannot delete this component type"_s);
    return false;
  }
  const int used = GetNumberRecordsComplex(tblModels::TypeID == id).ToInt() +
                   GetNumberRecordsComplex(tblComponents::TypeID == id).ToInt();
  if (used != 0) {
    MsgBox(
        Lines({u"There are either models or actual components of this type."_s,
               u"This component type cannot be deleted until those"_s, u"components and models have been deleted"_s}),
        u"Component type is being used"_s);
    return false;
  }
  if (!AskYes(u"Delete "_s + ComponentTypeName(id) + u'?', u"Are you sure?"_s)) return false;
  return Operation(u"Sub DeleteComponentType"_s, [&] { DeleteRecordsFromTable(tblComponentTypes::ID, id); });
}

void ShowComponentTypeHelp() {
  MsgBox(Lines({u"Major components have a serial number and a date of manufacture."_s,
                u"Other items, such as risers, pilot chutes and toggles, are misc items."_s,
                u"The main difference is that misc items have no serial number."_s, QString(),
                u"Component types are general categories.  The name of a design is a"_s,
                u"model under the container type, not a component type."_s, QString(),
                u"The predefined component types are Containers, Main Canopies,"_s,
                u"Reserve Canopies, AAD's and Tandem Passenger Harness."_s}),
         u"Component Types"_s);
}
