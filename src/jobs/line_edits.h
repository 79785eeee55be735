#pragma once
#include <QString>

/// Changes to one line of a job by hand, each by the rules of the job screen.

/// What became of a text that a person typed.
struct EditResult {
  QString shown;         ///< what the cell or label shows now
  bool refused = false;  ///< a box told why; the text may be typed again
  bool changed = false;  ///< something was written
};

/// The name, cut to 50 characters. An empty or unchanged text writes nothing.
EditResult SaveLineName(int taskID, const QString& text);
/// The price, the number that the text begins with; more than 1,000,000,000 is refused. The total may have changed.
EditResult SaveLinePrice(int taskID, const QString& text);
/// The completion date of a line. The schedule stays as it is until the line is completed anew.
EditResult SaveLineDate(int taskID, const QString& text);

/// Back to the price or the name of the library or the part; a box tells where there is none or nothing changed. True
/// when the line was written.
bool RestorePrice(int taskID);
bool RestoreTaskName(int taskID);

void SetLineRigger(int taskID, int riggerID);
QString LineComments(int taskID);
void SetLineComments(int taskID, const QString& comments);
/// "Task: ", "Event: " or "Misc part: " and the name.
QString LineHeading(int taskID);
/// "task", "event" or "part".
QString LineKind(int taskID);
QString LineName(int taskID);
