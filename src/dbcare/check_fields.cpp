#include "dbcare/check_fields.h"

#include <QStringList>

#include "core/failure.h"
#include "core/long_work.h"
#include "core/prompts.h"
#include "core/stand_by.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/store/schema.h"
#include "gear/components.h"

using namespace Qt::StringLiterals;

void CheckAllFields(bool showMessages) {
  QString tableName;
  Column field = Schema().front().key;
  bool isAutoInc = false;
  OperationWith(
      u"Sub CheckAllFields"_s,
      [&] {
        LongWork work(u"Checking tables and fields"_s, static_cast<qint64>(Schema().size()),
                      LongWork::Cancelling::Impossible);
        for (const SchemaTable& table : Schema()) {
          tableName = table.table;
          field = table.key;
          isAutoInc = table.autoIncrement;
          if (!TableExists(tableName, showMessages)) CreateTable(tableName, field, field.type, isAutoInc);
          isAutoInc = false;
          for (const Column& wanted : table.columns) {
            field = wanted;
            FieldExists(field.size, showMessages, tableName, field, field.type);
          }
          work.Step();
        }
        CreateIndexes();
      },
      [&] {
        return Lines({u"TableName = "_s + tableName, u"MyField = "_s + QString(field),
                      u"IsAutoInc = "_s + (isAutoInc ? u"True"_s : u"False"_s),
                      u"FieldType ="_s + QString::number(field.type)});
      });
  UnloadStandBy();
}

bool TableExists(const QString& tableName, bool showMessages) {
  try {
    const Bracket bracket;
    const Recordset table(tableName);
    return true;
  } catch (const StorageFailure&) {
    throw;
  } catch (const Failure&) {
    if (showMessages) MsgBox(u"Table "_s + tableName + u" is being added to this database"_s, u"Missing table"_s);
    return false;
  }
}

bool FieldExists(int fieldSize, bool showMessages, const QString& tableName, const QString& myField, int fieldType) {
  Bracket bracket;
  bool exists = false;
  {
    Recordset table(tableName);
    for (const Field& field : table.Fields())
      if (field.name.compare(myField, Qt::CaseInsensitive) == 0) exists = true;
  }
  if (!exists) AddField(tableName, myField, fieldType, showMessages, fieldSize);
  bracket.Close();
  return exists;
}

void AddField(const QString& tableName, const QString& myField, int fieldType, bool showMessages, int fieldSize) {
  if (showMessages)
    MsgBox(Lines({u"A field is being added to your database."_s, QString(), u"Table: "_s + tableName,
                  u"New field: "_s + myField}),
           u"Database updated"_s);
  AppendField(tableName, myField, fieldType, fieldSize);
}

void ReportLostComponentTypes() {
  Operation(u"Sub ReportLostComponentTypes"_s, [] {
    QStringList lost;
    for (const Recordset& component : Rows(tblComponents::TypeID == 0)) {
      const int modelId = component[tblComponents::ModelID].ToInt();
      const QString model = GetValueFromTable(tblModels::ID, modelId, tblModels::Name).ToText();
      lost << model + u" - "_s + component[tblComponents::SubType].ToText();
    }
    if (!lost.isEmpty())
      MsgBox(Lines(QStringList{u"The following components have lost their component type:"_s, QString()} + lost +
                   QStringList{QString(), u"You can correct this by selecting the component "_s,
                               u"on the COMPONENTS screen"_s,
                               u"(The component will only be visible when the ALL COMPONENT TYPES "_s,
                               u"check box is checked)"_s}));
  });
}

void FreeComponentsOfVanishedRigs() {
  Operation(u"Sub FreeComponentsOfVanishedRigs"_s, [] {
    for (const Recordset& component : Rows(Select(tblComponents::RigID > 0).OrderBy(tblComponents::RigID))) {
      const int rig = component[tblComponents::RigID].ToInt();
      if (GetValueFromTable(tblRig::ID, rig, tblRig::ID).ToInt() == rig) continue;
      SetComponentRig(component[tblComponents::ID].ToInt(), 0);
    }
  });
}
