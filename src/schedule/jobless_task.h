#pragma once
#include <QList>
#include <QString>

#include "core/date.h"

/// Completed work that belongs to no job: what is entered into a history by hand, and gear that moved on its own.
struct JoblessTask {
  int taskLibID = 0;
  QString name = {};
  int rigID = 0;  ///< its owner becomes the customer
  Date date = {};
  int locationID = 0;
  QList<int> components = {};  ///< what it was done on
};
/// Writes it with its ties to the components; its id. Traps nothing: throws Failure.
int WriteJoblessTask(const JoblessTask& task);
