#pragma once
#include <QString>

#include "core/date.h"

/// A job is a body of work for one customer, and one invoice. Single fields by job id; a missing job reads empty, 0 or
/// no date.

int JobCustomerID(int jobID);
int JobSystemID(int jobID);  ///< the rig, 0 for none
int JobComponentID(int jobID);
int JobRiggerID(int jobID);
int JobLocationID(int jobID);
Date JobDateStarted(int jobID);
Date JobDatePromised(int jobID);
Date JobDateCompleted(int jobID);
QString JobTitle(int jobID);
QString JobComments(int jobID);
bool JobExists(int jobID);
bool JobsExist();  ///< any at all

void SetJobDateStarted(int jobID, Date date);
void SetJobDatePromised(int jobID, Date date);
void SetJobDateCompleted(int jobID, Date date);
void SetJobRiggerID(int jobID, int riggerID);
void SetJobLocationID(int jobID, int locationID);
void SetJobSystemID(int jobID, int rigID);
void SetJobInvoiceNumber(int jobID, const QString& number);
void SetJobComments(int jobID, const QString& comments);
/// The job shown last, and what belonged to it.
void SetLastJobID(int jobID);
int LastJobID();

/// Longest title, invoice number and name of a line.
constexpr int kJobTextLength = 50;

/// The job's invoice number. The first reader of a blank one assigns it: the job's id.
QString GetInvoiceNumber(int jobID);
/// Assigns the numbers of all jobs that have none, in one step.
void AssignInvoiceNumbers();
/// Cut to 50 characters. A job whose invoice number reads "0" gets its id there too.
void SetJobTitle(int jobID, const QString& title);
/// Is there a job of this title, case and outer blanks aside?
bool JobTitleExists(const QString& title);
/// The customer's job of this name, case and outer blanks aside, `exceptJob` left out; 0 for none, and for an empty
/// name.
int JobOfCustomerNamed(int customerID, const QString& name, int exceptJob);
bool InvoiceNumberIsFree(const QString& number);
/// Writes the flag, and the date when it is set; a false flag clears the date.
void SetJobStatus(int jobID, bool complete, Date date);

/// Adds a job and takes the snapshot of its gear: every component of the rig, or the one component when there is no
/// rig. Without a rigger the default rigger is taken; when there is none a box says so and the job is created all the
/// same. The title is cut to 50 characters; no date means today. `jobID` is its id.
void CreateNewJob(const QString& title, int customerID, int rigID, int componentID, int& jobID, int riggerID,
                  int locationID, Date date);
/// The rigger proposed for new jobs, if that person still is a rigger; 0 otherwise.
int ValidDefaultRigger();

/// The neighbour by id; `noneLeft` when there is none, and the result is then the same job.
int PreviousJobID(int jobID, bool& noneLeft);
int NextJobID(int jobID, bool& noneLeft);
bool IsFirstJob(int jobID);
bool IsLastJob(int jobID);
/// Where to go when a job vanished: the next one by id, the one before it otherwise, 0 when there are no jobs.
int GetNextValidJobID(int jobID);
