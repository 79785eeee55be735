#include "dbcare/check_fields.h"

#include <QStringList>

#include "core/failure.h"
#include "core/prompts.h"
#include "core/stand_by.h"
#include "core/store/access.h"
#include "core/store/operation.h"
#include "core/store/schema.h"

using namespace Qt::StringLiterals;

void CheckAllFields(bool showMessages) {
  QString tableName;
  SchemaField field{};
  bool isAutoInc = false;
  OperationWith(
      u"Sub CheckAllFields"_s,
      [&] {
        for (const SchemaTable& table : Schema()) {
          tableName = QString::fromLatin1(table.name);
          field = table.key;
          isAutoInc = table.autoIncrement;
          if (!TableExists(tableName, showMessages))
            CreateTable(tableName, QString::fromLatin1(field.name), field.type, isAutoInc);
          isAutoInc = false;
          for (const SchemaField& wanted : table.fields) {
            field = wanted;
            FieldExists(field.size, showMessages, tableName, QString::fromLatin1(field.name), field.type);
          }
        }
        CreateIndexes();
      },
      [&] {
        return Lines({u"TableName = "_s + tableName, u"MyField = "_s + QString::fromLatin1(field.name),
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
    for (const Recordset& component : Rows(u"Select * from tblComponents where TypeID =0"_s)) {
      const int modelId = component[u"ModelID"].ToInt();
      const QString model = GetValueFromTable(u"tblModels"_s, u"ID"_s, modelId, u"Name"_s).ToText();
      lost << model + u" - "_s + component[u"SubType"].ToText();
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
    for (Recordset& component : Rows(u"Select * from tblComponents where rigid > 0 order by rigid"_s)) {
      const int rig = component[u"RigID"].ToInt();
      if (GetValueFromTable(u"tblRig"_s, u"ID"_s, rig, u"ID"_s).ToInt() == rig) continue;
      component.Set(u"RigID", 0);
      component.Update();
    }
  });
}
