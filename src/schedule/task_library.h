#pragma once
#include <QList>
#include <QString>

#include "core/money.h"

/// Single fields of the task and event library, by library id. A missing entry reads empty, 0 or false.

QString TaskLibName(int taskLibID);
Money TaskLibFlatRate(int taskLibID);
Money TaskLibHourlyRate(int taskLibID);
bool TaskLibLogBook(int taskLibID);
bool TaskLibAllowMultiple(int taskLibID);
bool TaskLibIsEvent(int taskLibID);
/// The one model that the entry is tied to; 0 for any.
int TaskLibModelID(int taskLibID);
bool TaskLibExists(int taskLibID);
/// "task" or "event".
QString TaskLibKind(int taskLibID);
/// The entry of this name, outer blanks and case aside; tasks and events share one name space. 0 when the name is free.
int FindTaskLib(const QString& name);
/// The repack, the installation and the removal of a component can't be deleted.
bool IsFixedTask(int taskLibID);

/// Length of the service interval; 0 when the entry is not scheduled.
int IntervalNumber(int taskLibID);

/// Units of a service interval.
enum IntervalUnit : int { kNoInterval = 0, kDays = 1, kMonths = 2, kYears = 3 };
/// 1 days, 2 months, 3 years.
int IntervalType(int taskLibID);

/// The component types that an entry requires, in the order they were written; none is an empty list.
QList<int> RequiredComponentTypes(int taskLibID);

/// The component types that work of this entry touches: the model's type for a model-specific entry, the required types
/// otherwise. An entry without any yields the one element 0.
void GetComponentTypesForTask(QList<int>& types, int taskLibID);
