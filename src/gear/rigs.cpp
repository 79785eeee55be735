#include "gear/rigs.h"

#include "core/default_rows.h"
#include "core/store/access.h"
#include "core/store/operation.h"

using namespace Qt::StringLiterals;

const QString kTempRigName = u"<temp rig name>"_s;

QString RigName(int id) {
  return GetValueFromTableBySQL(u"select * from tblrig where id = "_s + QString::number(id), u"rigAlias"_s).ToText();
}

int RigOwner(int id) { return GetValueFromTable(u"tblRig"_s, u"ID"_s, id, u"OwnerID"_s).ToInt(); }
int RigType(int id) { return GetValueFromTable(u"tblRig"_s, u"ID"_s, id, u"TypeID"_s).ToInt(); }
bool RigExists(int id) { return id != 0 && GetValueFromTable(u"tblRig"_s, u"ID"_s, id, u"ID"_s).ToInt() == id; }
void SetRigName(int id, const QString& name) { UpdateTable(u"tblRig"_s, u"rigAlias"_s, name, u"ID"_s, id); }
void SetRigOwner(int id, int owner) { UpdateTable(u"tblrig"_s, u"OwnerID"_s, owner, u"ID"_s, id); }
void SetRigType(int id, int type) { UpdateTable(u"tblrig"_s, u"TypeID"_s, type, u"ID"_s, id); }

int NumberOfRigs(int owner) {
  return GetNumberRecordsComplex(u"Select * from tblRig where OwnerID = "_s + QString::number(owner)).ToInt();
}

int ComponentOfTypeInRig(int rig, int type) {
  return GetValueFromTableBySQL(u"Select * from tblComponents where Rigid = %1 and TypeID = %2"_s.arg(rig).arg(type),
                                u"ID"_s)
      .ToInt();
}

bool RigNameIsTaken(const QString& name, int owner, QString* list) {
  bool taken = false;
  Operation(u"Function RigNameIsTaken"_s, [&] {
    Recordset rigs(u"select * from tblRig where Ownerid = "_s + QString::number(owner));
    const QString wanted = name.trimmed().toLower();
    QStringList names;
    if (RecordsetHasRows(rigs)) {
      for (; !rigs.Eof(); rigs.MoveNext()) {
        const QString alias = rigs[u"rigAlias"].ToText();
        if (alias != kTempRigName) names << u"      "_s + alias;
        if (alias.trimmed().toLower() == wanted) taken = true;
      }
    }
    if (list) *list = Lines(names);
  });
  return taken;
}

int CreateRig(int owner, int type, const QString& name) {
  int id = 0;
  const bool written = Operation(u"Function CreateRig"_s, [&] {
    Recordset rigs(u"tblRig"_s);
    rigs.AddNew();
    rigs.Set(u"OwnerID", owner);
    rigs.Set(u"TypeID", type);
    rigs.Set(u"Comment", u" ");
    rigs.Set(u"rigAlias", name.left(kLongestRigName));
    rigs.Update();
    id = rigs[u"ID"].ToInt();
  });
  return written ? id : 0;
}

void DeleteRigRow(int id) { DeleteRecordsFromTableBySQL(u"Delete * from tblRig where id = "_s + QString::number(id)); }

void DeleteRepackEntries(int rig) {
  DeleteRecordsFromTableBySQL(
      u"delete * from tblSchedules where rigID = %1 and TaskLibID = %2"_s.arg(rig).arg(RepackTaskLibID));
}

int LastSystemID() { return GetValueFromTableBySQL(u"tblMisc"_s, u"LastSystemID"_s).ToInt(); }

void SetLastSystemID(int id) { UpdateTableBySQL(u"update tblMisc set LastSystemID = "_s + QString::number(id)); }
