#pragma once
#include <QString>

/// Deleting an entry of the library, and with it every line of work that was made from it.

/// What else goes with an entry, as the question before deleting it; empty when no line was made from it.
QString TaskTypeUsage(int taskLibID);

/// Deletes an entry with its component types, parts and due dates, and every line made from it. With `Ask` the person
/// is asked first when there are such lines; `cancelled` tells a No.
void DeleteTaskType(int taskLibID, bool Ask, bool& cancelled);

/// Deletes the entry that a form shows, after its question; a fixed task is refused. True when it is gone.
bool DeleteTaskTypeOfForm(int taskLibID);
/// Deletes the entry that is selected in the chooser of events or of tasks, 0 for none.
bool DeleteTaskTypeFromList(int taskLibID, bool isEvent);
