#include "gear/rig_rules.h"

#include <QHash>

#include "core/default_rows.h"
#include "core/format.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "gear/components.h"
#include "gear/diagnostic_ids.h"
#include "gear/models.h"
#include "gear/people.h"
#include "gear/rig_types.h"
#include "gear/rigs.h"

using namespace Qt::StringLiterals;

namespace {

QString RigText(const Recordset& rig) { return WithId(rig[u"rigAlias"].ToText(), rig[u"ID"].ToInt()); }

void TellDoubledTypes(int rig) {
  QList<int> types;
  {
    Recordset rows(u"tblComponentTypes"_s);
    if (!RecordsetHasRows(rows)) return;
    for (; !rows.Eof(); rows.MoveNext()) types << rows[u"ID"].ToInt();
  }
  for (int type : types) {
    const int count =
        GetNumberRecordsComplex(u"Select * from tblComponents where rigID = %1 and TypeID = %2"_s.arg(rig).arg(type))
            .ToInt();
    if (count > 1)
      MsgBox(RigName(rig) + u" has "_s + QString::number(count) + u' ' + ComponentTypeName(type), u"uh oh!"_s,
             Icon::Exclamation);
  }
}

RigComponentRow ReadRow(int rig, int type) {
  RigComponentRow row{type, ComponentOfTypeInRig(rig, type), WithId(ComponentTypeName(type), type), {}, {}, {}};
  if (row.component == 0) return row;
  row.name = ComponentDescription(row.component);
  row.serial = ComponentSerial(row.component);
  const Date dom = ComponentDom(row.component);
  if (!dom.IsNone()) row.dom = Format(dom, u"mm/dd/yyyy"_s);
  return row;
}

/// One walk over the rigs: a question to each of thousands of customers would be slow.
QHash<int, int> CountRigs() {
  QHash<int, int> counts;
  Operation(u"Function CountRigs"_s, [&] {
    for (const Recordset& rig : Rows(u"select * from tblRig"_s)) ++counts[rig[u"OwnerID"].ToInt()];
  });
  return counts;
}

/// False, after the box, when the owner has a rig of that name already.
bool NameIsFree(const QString& name, int owner, Icon icon) {
  if (!RigNameIsTaken(name, owner)) return true;
  MsgBox(PersonDisplayName(owner) + u" already has a rig named "_s + name, u"Duplicate rig name"_s, icon);
  return false;
}

}  // namespace

IdList LoadRigs(int owner, int type) {
  IdList list;
  Operation(u"Function LoadRigs"_s, [&] {
    for (const Recordset& rig : Rows(owner == 0 ? u"select * from tblRig"_s
                                                : u"select * from tblRig where Ownerid = "_s + QString::number(owner)))
      if (type == 0 || rig[u"TypeID"].ToInt() == type) list.Add(RigText(rig), rig[u"ID"].ToInt());
  });
  return list;
}

QString RigCountSuffix(int rigs) {
  if (rigs == 0) return u"(no rigs)"_s;
  return rigs == 1 ? u"(1 rig)"_s : u'(' + QString::number(rigs) + u" rigs)"_s;
}

IdList LoadCustomers(bool withRigCounts) {
  IdList customers = GetArrayOfPeopleExpanded();
  if (withRigCounts) {
    const QHash<int, int> counts = CountRigs();
    for (qsizetype i = 0; i < customers.Size(); ++i)
      customers.texts[i] += u"  "_s + RigCountSuffix(counts.value(customers.ids.at(i)));
  }
  return WithIds(customers);
}

int FirstRigOf(int owner) { return LoadRigs(owner, 0).ids.value(0); }

bool PhotosAreHidden() { return GetValueFromTableBySQL(u"tblMisc"_s, u"HidePhotos"_s).ToBool(); }

void SetPhotosHidden(bool hidden) {
  UnrecordedOperation(u"Sub SetPhotosHidden"_s, [&] {
    UpdateTableBySQL(u"update tblMisc set HidePhotos = "_s + (hidden ? u"true"_s : u"false"_s));
  });
}

QList<RigComponentRow> LoadRigComponents(int rig) {
  QList<RigComponentRow> rows;
  Upkeep(u"Sub LoadRigComponents"_s, [&] {
    SetLastSystemID(rig);
    TellDoubledTypes(rig);
    for (int type : ComponentTypesOfRigType(RigType(rig))) rows << ReadRow(rig, type);
  });
  return rows;
}

QString AskNewRigName(int owner) {
  const QString name = InputBox(u"What do you want to call this new rig?"_s).trimmed();
  return !name.isEmpty() && NameIsFree(name, owner, Icon::Exclamation) ? name : QString();
}

bool RenameRig(int rig) {
  const QString current = RigName(rig);
  const QString name = InputBox(u"Enter Rig Name"_s, u"Change Rig Name"_s, current);
  if (name == current || name.trimmed().isEmpty()) return false;
  // The rig's own name in other capitals is no other rig's.
  if (name.trimmed().toLower() != current.trimmed().toLower() && !NameIsFree(name, RigOwner(rig), Icon::None))
    return false;
  return Operation(u"Sub RenameRig"_s, [&] { SetRigName(rig, name); });
}

bool ChangeRigOwner(int rig, int newOwner) {
  const int owner = RigOwner(rig);
  if (newOwner < 1 || newOwner == owner) return false;
  const QString newName = PersonDisplayName(newOwner);
  const QString text = PersonExists(owner)
                           ? u"Change rig owner from "_s + PersonDisplayName(owner) + u" to "_s + newName + u'?'
                           : u"Assign rig to "_s + newName + u'?';
  if (!AskYes(text, RigName(rig))) return false;
  return Operation(u"Sub ChangeRigOwner"_s, [&] { SetRigOwner(rig, newOwner); });
}

bool AssignRig(int rig, int owner) {
  if (!AskYes(u"Assign rig "_s + RigName(rig) + u" to "_s + PersonDisplayName(owner) + u'?', u"Assign Rig?"_s))
    return false;
  return Operation(u"Sub AssignRig"_s, [&] { SetRigOwner(rig, owner); });
}

bool ChangeRigType(int rig, int newType) {
  const int type = RigType(rig);
  if (newType < 1 || newType == type) return false;
  // A rig of nobody's is asked about without words.
  const QString text = PersonExists(RigOwner(rig))
                           ? u"Change rig type from "_s + RigTypeName(type) + u" to "_s + RigTypeName(newType) + u'?'
                           : QString();
  if (!AskYes(text, RigName(rig))) return false;
  return Operation(u"Sub ChangeRigType"_s, [&] { SetRigType(rig, newType); });
}

bool RemoveComponentFromRig(int rig, int component) {
  const int type = ComponentTypeOf(component);
  if (!AskYes(Lines({u"Remove "_s + ComponentDescription(component) + u" from "_s + RigName(rig) + u'?', QString(),
                     u"(component will still be in the database)"_s}),
              u"Remove "_s + ComponentTypeName(type) + u'?'))
    return false;
  return Operation(u"Sub RemoveComponentFromRig"_s, [&] {
    DetachComponent(rig, component, type);
    SetComponentRig(component, 0);
  });
}

bool DeleteRig(int rig) {
  return Operation(u"Sub DeleteRig"_s, [&] {
    DeleteRepackEntries(rig);
    DeleteRigRow(rig);
  });
}

QString RigComment(int rig) { return GetValueFromTable(u"tblRig"_s, u"id"_s, rig, u"comment"_s).ToText(); }

void SetRigComment(int rig, const QString& comment) {
  Operation({u"Sub SetRigComment"_s, u"Edit rig comment"_s}, [&] {
    UpdateTable(u"tblRig"_s, u"comment"_s, comment.trimmed().isEmpty() ? u" "_s : comment, u"id"_s, rig);
  });
}

bool InstallChosenComponent(int rig, int component, Date today) {
  bool installed = false;
  const bool written = Operation(u"Sub InstallChosenComponent"_s, [&] {
    SetLastComponentID(component);
    const int type = ComponentTypeOf(component);
    if (!CheckMove(type, rig, component, false, today) || !CheckOwner(rig, component)) return;
    if (ComponentRig(component) != rig) FreePlace(rig, type);
    SetComponentRig(component, rig);
    UpdateTable(u"tblPhotos"_s, u"rigid"_s, rig, u"componentid"_s, component);
    CheckComponentType(component);
    installed = true;
  });
  return written && installed;
}

int RepackPartnerInRig(int rig, int component) {
  switch (ComponentTypeOf(component)) {
    case kContainer:
      return ComponentOfTypeInRig(rig, kReserveCanopy);
    case kReserveCanopy:
      return ComponentOfTypeInRig(rig, kContainer);
    default:
      return 0;
  }
}

bool AskAddRepackToSchedule(Date repack) {
  const QString pattern = u"mm/dd/yyyy"_s;
  const int cycle = GetValueFromTableBySQL(u"tblMisc"_s, u"RepackCycle"_s).ToInt();
  return AskYes(
      Lines({u"There is a reserve repack task found for this"_s, u"container and reserve.   "_s, QString(),
             u"Repack date: "_s + Format(repack, pattern), u"Expiration date: "_s + Format(repack + cycle, pattern),
             QString(), u"Would you like this to appear on the schedule?"_s}),
      u"Add repack to schedule?"_s);
}

void ShowExpirationHelp() {
  MsgBox(Lines({u"A component's expiration date is based on:"_s, QString(), u"      Component's date of manufacture"_s,
                u"      Component model's service life"_s, QString(),
                u"You cannot manually change the expiration date but you can"_s,
                u"change the date of manufacture in the grid above."_s, QString(),
                u"You can also change the model's service life using the GEAR menu"_s, u"on the main screen."_s,
                u"(select Component Models)"_s}));
}
