#include "gear/rigs.h"

#include "core/default_rows.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/store/rows.h"

using namespace Qt::StringLiterals;

const QString kTempRigName = u"<temp rig name>"_s;

QString RigName(int id) { return GetValueFromTableBySQL(tblRig::ID == id, tblRig::rigAlias).ToText(); }

int RigOwner(int id) { return GetValueFromTable(tblRig::ID, id, tblRig::OwnerID).ToInt(); }
int RigType(int id) { return GetValueFromTable(tblRig::ID, id, tblRig::TypeID).ToInt(); }
bool RigExists(int id) { return id != 0 && GetValueFromTable(tblRig::ID, id, tblRig::ID).ToInt() == id; }
void SetRigName(int id, const QString& name) { UpdateTable(tblRig::rigAlias, name, tblRig::ID, id); }
void SetRigOwner(int id, int owner) { UpdateTable(tblRig::OwnerID, owner, tblRig::ID, id); }
void SetRigType(int id, int type) { UpdateTable(tblRig::TypeID, type, tblRig::ID, id); }

int NumberOfRigs(int owner) { return GetNumberRecordsComplex(tblRig::OwnerID == owner).ToInt(); }

int ComponentOfTypeInRig(int rig, int type) {
  return GetValueFromTableBySQL(tblComponents::RigID == rig && tblComponents::TypeID == type, tblComponents::ID)
      .ToInt();
}

bool RigNameIsTaken(const QString& name, int owner, QString* list) {
  bool taken = false;
  Operation(u"Function RigNameIsTaken"_s, [&] {
    Recordset rigs(tblRig::OwnerID == owner);
    const QString wanted = name.trimmed().toLower();
    QStringList names;
    if (RecordsetHasRows(rigs)) {
      for (; !rigs.Eof(); rigs.MoveNext()) {
        const QString alias = rigs[tblRig::rigAlias].ToText();
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
    id = AddRow(tblRig::kTable, {{tblRig::OwnerID, owner},
                                 {tblRig::TypeID, type},
                                 {tblRig::Comment, u" "},
                                 {tblRig::rigAlias, name.left(kLongestRigName)}});
  });
  return written ? id : 0;
}

void DeleteRigRow(int id) { DeleteRows(tblRig::ID == id); }

int LastSystemID() { return GetValueFromTableBySQL(tblMisc::kTable, tblMisc::LastSystemID).ToInt(); }

void SetLastSystemID(int id) {
  Upkeep(u"Sub SetLastSystemID"_s, [&] { UpdateRows(tblMisc::LastSystemID, id); });
}
