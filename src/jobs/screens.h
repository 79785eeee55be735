#pragma once
#include <QString>

#include "core/date.h"
#include "core/money.h"

/// The doors to the job screens.

/// Starts a job for a customer: asks what it is performed on where that is not given, then names it and opens it on the
/// job screen. True when a job was started or loaded.
bool StartNewJob(int customerID, int rigID, int componentID, Date date);

/// The same once customer, rig and component are known. `riggerID` and `locationID` are asked for where they are 0;
/// `jobID` is the job that the job screen shows in the end, 0 after a cancel.
void StartJobDialog(int customerID, int rigID, int componentID, int& jobID, int riggerID, int locationID, Date date);

/// Shows a job on the job screen.
void GotoJob(int jobID);
/// Shows the job that was shown last. Without any job a box says so.
void ShowJob();

/// Asks for the day on which a scheduled entry was done on a rig, and records it as a job of one line.
void ShowQuickFix(int rigID, int customerID, int taskLibID);

/// A part as it is entered.
struct MiscItem {
  QString name;
  Money price;
};
struct MiscItemQuestion {
  QString caption = QStringLiteral("Enter New Misc Item");
  bool nameIsFixed = false;
  bool thisJobOnly = false;  ///< tells that the library keeps its own name and price
};
/// Asks for the name and price of a part, `item` proposed. False, and nothing changed, when it was left or has no name.
bool EnterMiscItem(MiscItem& item, const MiscItemQuestion& question = {});

/// What the job list opens on.
struct JobListStart {
  int customer = 0;   ///< the jobs of this customer; 0 for all
  int taskLibID = 0;  ///< the jobs with a line of this library entry; 0 for all
};
/// Opens the job list beside the other screens, or brings it forward.
void OpenJobList(const JobListStart& start = {});

/// Shows the prices of the reserve repack, modally.
void ShowRepackPrices();
/// Opens the repack calculator beside the other screens, or brings it forward.
void OpenRepackCalculator();

/// Edits one line outside its job; true when it was written. A line that has gone is not shown.
bool EditTask(int taskID);
