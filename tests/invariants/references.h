#pragma once
#include <QStringList>

/// Every row that points to a row which is gone: "tblRig.OwnerID of 3 points to 7 of tblPeople, which is gone". Where
/// the system means it so, the column stands in the list of exceptions, with the reason.
QStringList LostReferences();

/// Columns of the schema that hold the id of another row by their name, and are in no list here.
QStringList UnlistedReferences();
