#pragma once
#include <QString>

#include "core/store/changes.h"

class Database;

/// The one shared connection to the database file, opened on demand and closed by the routine that opened it.
///
/// Every routine that touches the database follows one bracket: when the connection is closed it opens it, does its
/// work, and closes it again if it was the one who opened it. So the connection is held for the length of the
/// outermost routine. Beneath, that length is one transaction, unless an operation (core/store/operation.h) stands,
/// which is one. The busy pointer shows while the connection is open.

extern QString ConnectionString;  ///< "Provider=...;Data Source=<file>;..."
extern bool ConnectionIsOpen;     ///< every routine tests this flag
extern bool KeepConnectionOpen;   ///< while set, ConnectionClose does nothing
extern int ConnectionCount;       ///< opens counted for the developer; -999 tells the start-up to stop at once
extern bool CountDbAccess;        ///< the developer switch that counts
extern void (*ShowConnectionCount)(int count);  ///< where the count shows

/// The connection text for a database file.
QString ConnectionStringFor(const QString& path);
/// The file that the present connection text names.
QString DatabasePath();

/// Opens the connection. A failure shows its box, titled "Sub ConnectionStart", and leaves the connection closed.
void ConnectionStart();

/// Closes the connection and commits what its bracket wrote. Closed already: a box says so. A commit that fails takes
/// the bracket's writes back and throws Failure, with the connection closed.
void ConnectionClose();

/// The open database; throws Failure when the connection is closed.
Database& OpenDatabase();

/// Closes the file's handle, which otherwise stays warm; whoever copies, deletes or replaces the file calls this first.
/// The connection must be closed.
void ReleaseDatabaseFile();

/// Commits what has been written so far, unless an operation stands; a failure shows its box. Called before anything
/// waits for the person.
void SettleConnection();

/// For the ends of an operation. CommitConnection throws StorageFailure, with everything taken back.
void CommitConnection();
void RollBackConnection();
/// True when a failure of the file met a routine that writes.
bool ConnectionFailedWriting();
/// While set, a failure of the file refuses every statement until RollBackConnection.
void HoldConnection(bool holds);
/// The tables written by the transactions that have ended since this was asked.
Changes TakeCommittedChanges();

/// The bracket of a routine.
class Bracket {
 public:
  Bracket();
  /// Leaves the connection to the bracket outside, or closes it.
  ~Bracket();
  Bracket(const Bracket&) = delete;
  Bracket& operator=(const Bracket&) = delete;
  /// The regular end; a failing commit throws from here.
  void Close();
  /// Ends the bracket without closing what it opened.
  void LeaveOpen() { opened_ = false; }
  /// True while some routine stands inside its bracket.
  static bool Stands() { return standing_ > 0; }

 private:
  bool opened_ = false;
  static inline int standing_ = 0;
};

/// Closes a connection that was left open by a routine that failed; one in use by a routine stays.
void CloseLeftOpenConnection();
