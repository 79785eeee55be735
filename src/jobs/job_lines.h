#pragma once
#include <QList>
#include <QString>

#include "core/money.h"

/// The lines of a job as its screen shows them.

struct JobLine {
  int taskID = 0;
  int riggerID = 0;
  int partID = 0;
  QString task;    ///< the name, five blanks before a part's
  QString rigger;  ///< last name, of tasks alone
  Money price;
  QString status;  ///< "Completed", "Installed" for a part, "   (event)", empty while incomplete
  QString date;    ///< "mm/dd/yyyy", empty while incomplete
};

/// What stands before the name of a part.
inline const QString kPartIndent = QStringLiteral("     ");

/// All lines of a job, in the order they were entered.
QList<JobLine> LoadJobLines(int jobID);
/// One line; an empty one when there is no such row.
JobLine LoadJobLine(int taskID);
