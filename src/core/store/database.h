#pragma once
#include <QHash>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "core/store/change_log.h"
#include "core/store/jet.h"
#include "core/value.h"

struct sqlite3;
struct sqlite3_stmt;
class Recordset;

/// A column of a table or of a result.
struct Field {
  QString name;
  int type = 0;  ///< ADO's number, see jet::FieldType
  int size = 0;  ///< characters that a text holds; 0 for other types
};

/// The column of a field, without regard to case; an unknown one throws Failure.
int ColumnOfField(const std::vector<Field>& fields, QStringView name);

/// The column type as the schema writes it; it carries the ADO type of the field.
QString DeclaredType(int type, int size);
Field FieldFromDeclared(const QString& name, const QString& declared);

/// Reads one column of the row that a statement stands on, by the type of its field.
Value ReadColumn(sqlite3_stmt* statement, int column, int type);
/// Binds a value the way a field of that type stores it. What the field can't hold throws Failure.
void BindValue(sqlite3_stmt* statement, int parameter, const Value& value, int type);

/// A prepared statement, kept for all statements of the same key.
struct Prepared {
  ~Prepared();
  sqlite3_stmt* handle = nullptr;
  bool isQuery = false;
  QString table;                                     ///< see jet::Translation
  std::shared_ptr<const std::vector<Field>> fields;  ///< of the result, without the hidden row id
  std::vector<int> literalTypes;                     ///< the field type that each literal meets, 0 when unknown
  bool inUse = false;
};

/// One database file. Statements come in the Jet dialect. In the file a date is days since 30 December 1899, money
/// whole ten-thousandths, a boolean -1 or 0; texts compare without regard to case, accents next to their letters.
/// Everything throws Failure, with a text that a person can read; StorageFailure where the file itself failed.
class Database {
 public:
  /// The loft's own file, which nobody else may open meanwhile, or another one, which stays as it is: a statement that
  /// writes fails.
  enum class Use { Own, Read };
  /// Opens an existing file; a missing one, one that is no database and one in use by another process throw Failure.
  /// Each thread opens its own.
  explicit Database(const QString& path, Use use = Use::Own);
  ~Database();
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  /// Makes an empty database file; an existing one throws Failure.
  static void CreateFile(const QString& path);

  const QString& Path() const { return path_; }

  /// Runs an action statement.
  void Execute(const QString& statement);
  /// Creates or alters, in SQLite's own dialect; what was prepared before is forgotten.
  void ChangeSchema(const QByteArray& sql);

  /// Copies what has been committed into a new file, page by page; the open transaction must not have written. `tell`
  /// hears how many pages are done, of how many; what it throws ends the copying.
  void CopyTo(const QString& path, const std::function<void(int done, int total)>& tell);
  /// Drops a table, if it is there, and writes the file anew, so that no byte is left of what was ever deleted. Rows
  /// may get other row ids, so this is for copies alone: the record of operations names its rows by theirs.
  void DropAndCompact(const QString& table);

  /// What is wanted of a query: its rows, or only how many there are.
  enum class Want { Rows, Count };
  /// Takes the prepared statement for a text out of the cache, with its literals bound. GiveBack returns it.
  Prepared* Take(const QString& statement, Want want = Want::Rows);
  static void GiveBack(Prepared* prepared);
  /// One field of the first row of a query, without a recordset around it; false when there is no row.
  bool ReadFirst(const QString& statement, QStringView field, Value& value, int& type);
  /// Steps a statement: true for a row, false at the end.
  bool Step(sqlite3_stmt* statement);
  /// SQLite's own dialect, prepared and kept.
  sqlite3_stmt* Plain(const QByteArray& sql);

  /// Fields of a table, empty when there is no such table.
  const std::vector<Field>& FieldsOf(const QString& table);
  int CountIndexes();

  /// The open transaction: begun by the first statement after Settle, ended by Settle or TakeBack. A failure of the
  /// file, in a statement or in the commit, takes back the whole transaction and throws StorageFailure; while `Holds`,
  /// every statement from then on throws the same, until TakeBack.
  void Settle();
  void TakeBack();
  void SetHolds(bool holds) { holds_ = holds; }
  bool InTransaction() const;
  /// True when the failure of the file met a statement that writes, or one that came after such, and nothing of it is
  /// in the file.
  bool FailedWriting() const { return failedWriting_; }
  /// What the open transaction has written.
  ChangeLog& Log() { return log_; }
  /// The tables written by the transactions that have ended since this was asked.
  Changes TakeChanges();

  /// Recordsets that still step through their statement read to their end before anything is written.
  void Register(Recordset* recordset);
  void Unregister(Recordset* recordset);
  void FreezeRecordsets();

  qint64 LastInsertId() const;

 private:
  void ExecuteRaw(const QByteArray& sql);
  void ForgetPrepared();
  void BeginIfNeeded();
  std::unique_ptr<Prepared> Prepare(const QString& statement, Want want);
  void BindLiterals(Prepared& prepared, const std::vector<jet::Literal>& literals);
  [[noreturn]] void Fail(bool writing = false);
  void RollBack();
  bool Next(sqlite3_stmt* statement);
  void RefuseAfterFailure() const;
  bool MayStand(const QByteArray& written);
  void LearnRemembered();

  QString path_;
  sqlite3* handle_ = nullptr;
  jet::Cut cut_;
  std::unordered_map<std::string, std::vector<std::unique_ptr<Prepared>>> prepared_;
  QHash<QByteArray, sqlite3_stmt*> plain_;
  QHash<QString, std::vector<Field>> fields_;
  std::vector<Recordset*> recordsets_;
  ChangeLog log_;
  Changes committed_;
  bool holds_ = false;
  QString failure_;  // of the file, while it stands
  bool failedWriting_ = false;
  sqlite3_stmt* begin_ = nullptr;
  sqlite3_stmt* commit_ = nullptr;
};
