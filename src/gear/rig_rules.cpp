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

QString RigText(const Recordset& rig) { return WithId(rig[tblRig::rigAlias].ToText(), rig[tblRig::ID].ToInt()); }

void TellDoubledTypes(int rig) {
  QList<int> types;
  {
    Recordset rows(tblComponentTypes::kTable);
    if (!RecordsetHasRows(rows)) return;
    for (; !rows.Eof(); rows.MoveNext()) types << rows[tblComponentTypes::ID].ToInt();
  }
  for (int type : types) {
    const int count = GetNumberRecordsComplex(tblComponents::RigID == rig && tblComponents::TypeID == type).ToInt();
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
    for (const Recordset& rig : Rows(tblRig::kTable)) ++counts[rig[tblRig::OwnerID].ToInt()];
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
    for (const Recordset& rig : Rows(owner == 0 ? Select(tblRig::kTable) : Select(tblRig::OwnerID == owner)))
      if (type == 0 || rig[tblRig::TypeID].ToInt() == type) list.Add(RigText(rig), rig[tblRig::ID].ToInt());
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

bool PhotosAreHidden() { return GetValueFromTableBySQL(tblMisc::kTable, tblMisc::HidePhotos).ToBool(); }

void SetPhotosHidden(bool hidden) {
  UnrecordedOperation(u"Sub SetPhotosHidden"_s, [&] { UpdateRows(tblMisc::HidePhotos, hidden); });
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

QString RigComment(int rig) { return GetValueFromTable(tblRig::ID, rig, tblRig::Comment).ToText(); }

void SetRigComment(int rig, const QString& comment) {
  Operation({u"Sub SetRigComment"_s, u"Edit rig comment"_s},
            [&] { UpdateTable(tblRig::Comment, comment.trimmed().isEmpty() ? u" "_s : comment, tblRig::ID, rig); });
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
  const int cycle = GetValueFromTableBySQL(tblMisc::kTable, tblMisc::RepackCycle).ToInt();
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
