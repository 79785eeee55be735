#pragma once
#include "core/date.h"

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
