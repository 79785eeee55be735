#include "core/store/connection.h"

#include <QDir>
#include <QFileInfo>

#include <memory>

#include "core/failure.h"
#include "core/prompts.h"
#include "core/store/database.h"
#include "core/store/operation.h"
#include "core/trap.h"

using namespace Qt::StringLiterals;

QString ConnectionString;
bool ConnectionIsOpen = false;
bool KeepConnectionOpen = false;
int ConnectionCount = 0;
bool CountDbAccess = false;
void (*ShowConnectionCount)(int count) = nullptr;

namespace {

Changes committed;                   // since the screens were told
std::unique_ptr<Database> database;  // stays open between brackets: opening anew is what a getter would spend most on

const QString kProvider = u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s;
const QString kBehindPath = u";Persist Security Info=False"_s;

}  // namespace

QString ConnectionStringFor(const QString& path) { return kProvider + path + kBehindPath; }

QString DatabasePath() {
  if (!ConnectionString.startsWith(kProvider)) return {};
  return ConnectionString.mid(kProvider.size())
      .chopped(ConnectionString.endsWith(kBehindPath) ? kBehindPath.size() : 0);
}

void ConnectionStart() {
  Trap(u"Sub ConnectionStart"_s, [] {
    try {
      const QString path = DatabasePath();
      if (database && (database->Path() != path || !QFileInfo::exists(path))) database.reset();
      if (!database) {
        database = std::make_unique<Database>(path);
        database->SetHolds(OperationScope::AnyStands());
      }
    } catch (...) {
      if (ConnectionIsOpen) SetBusyPointer(false);
      ConnectionIsOpen = false;
      throw;
    }
    SetBeforePrompt(&SettleConnection);
    ConnectionIsOpen = true;
    SetBusyPointer(true);
    if (CountDbAccess) {
      ++ConnectionCount;
      if (ShowConnectionCount) ShowConnectionCount(ConnectionCount);
    }
  });
}

void ConnectionClose() {
  if (KeepConnectionOpen) return;
  if (!ConnectionIsOpen) MsgBox(u"connection already closed"_s);
  ConnectionIsOpen = false;
  SetBusyPointer(false);
  if (!OperationScope::AnyStands()) CommitConnection();
}

Database& OpenDatabase() {
  if (!ConnectionIsOpen || !database) throw Failure(u"Operation is not allowed when the object is closed."_s);
  return *database;
}

void ReleaseDatabaseFile() {
  if (OperationScope::AnyStands()) throw Failure(u"The database file is in use."_s);
  database.reset();
}

void SettleConnection() {
  if (!OperationScope::AnyStands()) Trap(u"Sub SettleConnection"_s, [] { CommitConnection(); });
}

void CommitConnection() {
  if (!database) return;
  database->Settle();
  committed.Add(database->TakeChanges());
}

void RollBackConnection() {
  if (database) database->TakeBack();
}

bool ConnectionFailedWriting() { return database && database->FailedWriting(); }

void HoldConnection(bool holds) {
  if (database) database->SetHolds(holds);
}

Changes TakeCommittedChanges() { return std::exchange(committed, Changes()); }

Bracket::Bracket() {
  if (!ConnectionIsOpen) {
    ConnectionStart();
    opened_ = true;
  }
  ++standing_;
}

void Bracket::Close() {
  const bool opened = std::exchange(opened_, false);
  if (!opened || !ConnectionIsOpen) return;
  ConnectionClose();
  TellChanges();
}

Bracket::~Bracket() {
  --standing_;
  if (!opened_ || !ConnectionIsOpen) return;
  try {
    Trap(u"Sub ConnectionClose"_s, [] { ConnectionClose(); });
  } catch (const std::exception&) {
    // Nobody is there to be told; the transaction has been taken back.
  }
}

void CloseLeftOpenConnection() {
  if (ConnectionIsOpen && !Bracket::Stands()) Trap(u"Sub ConnectionClose"_s, [] { ConnectionClose(); });
}
