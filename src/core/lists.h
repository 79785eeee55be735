#pragma once
#include <QList>
#include <QString>
#include <QStringList>

/// Lists of records for list and combo boxes: the texts of the rows and, beside them, the ids. A failure shows a box
/// titled with the loader's own name and leaves the list as far as it got.
struct IdList {
  QStringList texts;
  QList<int> ids;

  void Add(const QString& text, int id) {
    texts += text;
    ids += id;
  }
  qsizetype Size() const { return ids.size(); }
};

/// Where a list goes on when one of its records has gone: at the one that stood behind it, else before it. 0 when none
/// of them is left.
int NeighbourOf(int gone, const QList<int>& before, const QList<int>& now);

IdList LoadModelsOfType(int typeId);
IdList LoadTaskList();
IdList LoadTaskOrEventList(bool isEvent);
IdList LoadRigTypes();
/// The component types that a rig type is made of; the ids are those of the component types.
IdList LoadRigTypeComponents(int rigTypeId);
IdList LoadComponentTypes();
/// The library entries that go into the logbook.
IdList GetArrayOfTasksExpanded();
IdList GetArrayOfRigs(int ownerId = 0);  ///< of one owner, or of all
IdList GetArrayOfLocations();            ///< "Location, City, State"
IdList GetArrayOfComponentTypes();
IdList GetArrayOfModels(int typeId);
IdList GetArrayOfRiggers(bool everybody = false);  ///< "Last, First"
/// Last name first; the organization stands in for a person without a name.
IdList GetArrayOfPeopleExpanded();
