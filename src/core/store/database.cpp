#include "core/store/database.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <limits>

#define SQLITE_ENABLE_PREUPDATE_HOOK
#include <sqlite3.h>

#include "core/failure.h"
#include "core/store/recordset.h"
#include "core/store/undo_rows.h"

namespace {

using namespace Qt::StringLiterals;

bool IsAscii(const void* text, int length) {
  const auto* bytes = static_cast<const unsigned char*>(text);
  for (int i = 0; i < length; ++i)
    if (bytes[i] > 127) return false;
  return true;
}

/// The letters alone: case and accents taken away, so that e and é stand together.
QString Letters(const QString& folded) {
  QString letters;
  for (QChar c : folded.normalized(QString::NormalizationForm_D))
    if (!c.isMark()) letters += c;
  return letters;
}

int CompareTexts(void*, int lengthA, const void* a, int lengthB, const void* b) {
  if (IsAscii(a, lengthA) && IsAscii(b, lengthB)) {
    const int order =
        sqlite3_strnicmp(static_cast<const char*>(a), static_cast<const char*>(b), qMin(lengthA, lengthB));
    return order != 0 ? order : lengthA - lengthB;
  }
  const QString foldedA = QString::fromUtf8(static_cast<const char*>(a), lengthA).toCaseFolded();
  const QString foldedB = QString::fromUtf8(static_cast<const char*>(b), lengthB).toCaseFolded();
  const int order = QString::compare(Letters(foldedA), Letters(foldedB));
  return order != 0 ? order : QString::compare(foldedA, foldedB);
}

QString ErrorText(int error, const QString& message, const QString& path) {
  switch (error & 0xff) {
    case SQLITE_FULL:
      return u"There is not enough space on the disk."_s;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return u"Could not use '%1'; file already in use."_s.arg(QDir::toNativeSeparators(path));
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
      return u"Unrecognized database format '%1'."_s.arg(QDir::toNativeSeparators(path));
    case SQLITE_READONLY:
      return u"Cannot update.  Database or object is read-only."_s;
    case SQLITE_CANTOPEN:
      return u"Could not open file '%1'."_s.arg(QDir::toNativeSeparators(path));
    case SQLITE_CONSTRAINT:
      return u"The field is too small to accept the amount of data you attempted to add.  "
             "Try inserting or pasting less data."_s;
    default:
      break;
  }
  if (message.startsWith("no such table: "_L1)) return u"Could not find the table '%1'."_s.arg(message.mid(15));
  if (message.startsWith("no such column: "_L1)) return u"Could not find the field '%1'."_s.arg(message.mid(16));
  return message;
}

QString ErrorText(sqlite3* handle, const QString& path) {
  if (!handle) return ErrorText(SQLITE_NOMEM, u"out of memory"_s, path);
  return ErrorText(sqlite3_errcode(handle), QString::fromUtf8(sqlite3_errmsg(handle)), path);
}

/// Whether the file, not the statement, is at fault.
bool IsOfTheFile(int error) {
  switch (error & 0xff) {
    case SQLITE_FULL:
    case SQLITE_IOERR:
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
    case SQLITE_READONLY:
    case SQLITE_CANTOPEN:
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_PROTOCOL:
    case SQLITE_NOMEM:
    case SQLITE_ABORT:
      return true;
    default:
      return false;
  }
}

void TellRow(void* log, sqlite3* handle, int what, const char*, const char* table, sqlite3_int64 oldRow,
             sqlite3_int64 newRow) {
  static_cast<ChangeLog*>(log)->Row(handle, what, table, oldRow, newRow);
}

struct TypeName {
  int type;
  const char* name;
};
// The names give each column the affinity that keeps its values as they are bound.
constexpr TypeName kTypeNames[] = {{jet::kInt16, "Int16"},   {jet::kInt32, "Int32"},  {jet::kSingle, "Float"},
                                   {jet::kDouble, "Double"}, {jet::kMoney, "Money"},  {jet::kDate, "Date"},
                                   {jet::kBool, "Bool"},     {jet::kMemo, "MemoText"}};

int DefaultTextSize() { return 255; }

}  // namespace

int ColumnOfField(const std::vector<Field>& fields, QStringView name) {
  for (size_t i = 0; i < fields.size(); ++i)
    if (name.compare(fields[i].name, Qt::CaseInsensitive) == 0) return static_cast<int>(i);
  throw Failure(u"Item cannot be found in the collection corresponding to the requested name or ordinal."_s);
}

QString DeclaredType(int type, int size) {
  if (type == jet::kText) return u"Text(%1)"_s.arg(size > 0 ? size : DefaultTextSize());
  for (const TypeName& known : kTypeNames)
    if (known.type == type) return QString::fromLatin1(known.name);
  throw Failure(u"Type is invalid."_s);
}

Field FieldFromDeclared(const QString& name, const QString& declared) {
  static const QRegularExpression text(u"^Text\\((\\d+)\\)$"_s);
  if (const QRegularExpressionMatch match = text.match(declared); match.hasMatch())
    return {name, jet::kText, match.captured(1).toInt()};
  for (const TypeName& known : kTypeNames)
    if (declared == QLatin1StringView(known.name)) return {name, known.type, 0};
  if (declared == "INTEGER"_L1) return {name, jet::kInt32, 0};
  return {name, 0, 0};
}

Value ReadColumn(sqlite3_stmt* statement, int column, int type) {
  const int stored = sqlite3_column_type(statement, column);
  if (stored == SQLITE_NULL) return Value::Null();
  switch (type) {
    case jet::kMoney:
      return Money::FromUnits(sqlite3_column_int64(statement, column));
    case jet::kDate:
      return Date(sqlite3_column_double(statement, column));
    case jet::kBool:
      return sqlite3_column_int(statement, column) != 0;
    case jet::kSingle:
    case jet::kDouble:
      return sqlite3_column_double(statement, column);
    default:
      break;
  }
  if (stored == SQLITE_INTEGER) return static_cast<qint64>(sqlite3_column_int64(statement, column));
  if (stored == SQLITE_FLOAT) return sqlite3_column_double(statement, column);
  const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
  return QString::fromUtf8(bytes, sqlite3_column_bytes(statement, column));
}

void BindValue(sqlite3_stmt* statement, int parameter, const Value& value, int type) {
  if (value.IsNull() || value.IsEmpty()) {
    sqlite3_bind_null(statement, parameter);
    return;
  }
  switch (type) {
    case jet::kInt16:
      sqlite3_bind_int(statement, parameter, value.ToInt16());
      return;
    case jet::kInt32:
      sqlite3_bind_int(statement, parameter, value.ToInt());
      return;
    case jet::kSingle:
      sqlite3_bind_double(statement, parameter, static_cast<double>(static_cast<float>(value.ToDouble())));
      return;
    case jet::kDouble:
      sqlite3_bind_double(statement, parameter, value.ToDouble());
      return;
    case jet::kMoney:
      sqlite3_bind_int64(statement, parameter, value.ToMoney().Units());
      return;
    case jet::kDate:
      sqlite3_bind_double(statement, parameter, value.ToDate().Serial());
      return;
    case jet::kBool:
      sqlite3_bind_int(statement, parameter, value.ToBool() ? -1 : 0);
      return;
    default:
      break;
  }
  const QByteArray text = value.ToText().toUtf8();
  sqlite3_bind_text(statement, parameter, text.constData(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

Prepared::~Prepared() { sqlite3_finalize(handle); }

Database::Database(const QString& path, Use use) : path_(path) {
  if (!QFileInfo::exists(path)) throw Failure(u"Could not find file '%1'."_s.arg(QDir::toNativeSeparators(path)));
  // One thread uses the connection, so it needs no lock of its own. A file that is only read is opened to write all the
  // same: what a crash left half-written in it is taken back first.
  const int opened =
      sqlite3_open_v2(path.toUtf8().constData(), &handle_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
  try {
    if (opened != SQLITE_OK) Fail();
    sqlite3_extended_result_codes(handle_, 0);
    sqlite3_busy_timeout(handle_, 500);
    // The program's own order takes the place of the plain one in its connection; no index is built on a text.
    sqlite3_create_collation(handle_, "NOCASE", SQLITE_UTF8, nullptr, CompareTexts);
    // One process owns the file; a truncated journal with full syncs loses nothing when the power goes. The cache, in
    // KiB, holds what long work on a big loft reads again and again.
    ExecuteRaw(use == Use::Read ? "PRAGMA query_only = ON"
                                : "PRAGMA locking_mode = EXCLUSIVE; PRAGMA journal_mode = TRUNCATE;"
                                  "PRAGMA synchronous = FULL; PRAGMA cache_size = -16384");
    ExecuteRaw("SELECT count(*) FROM sqlite_master");
    begin_ = Plain("BEGIN");
    commit_ = Plain("COMMIT");
    sqlite3_preupdate_hook(handle_, TellRow, &log_);
  } catch (const Failure& failure) {
    for (sqlite3_stmt* statement : std::as_const(plain_)) sqlite3_finalize(statement);
    sqlite3_close(handle_);
    throw Failure(failure.Text());  // a file that does not open takes nothing back
  }
}

Database::~Database() {
  for (Recordset* recordset : std::vector<Recordset*>(recordsets_)) recordset->LoseDatabase();
  if (InTransaction()) sqlite3_exec(handle_, "ROLLBACK", nullptr, nullptr, nullptr);
  prepared_.clear();
  for (sqlite3_stmt* statement : std::as_const(plain_)) sqlite3_finalize(statement);
  sqlite3_close(handle_);
}

void Database::CreateFile(const QString& path) {
  if (QFileInfo::exists(path)) throw Failure(u"Database already exists."_s);
  sqlite3* handle = nullptr;
  int result = sqlite3_open_v2(path.toUtf8().constData(), &handle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
  // A version of the schema makes SQLite write the file's first page at once.
  if (result == SQLITE_OK) result = sqlite3_exec(handle, "PRAGMA user_version = 1", nullptr, nullptr, nullptr);
  const QString error = result == SQLITE_OK ? QString() : ErrorText(handle, path);
  sqlite3_close(handle);
  if (!error.isEmpty()) throw Failure(error);
}

void Database::Fail(bool writing) {
  const QString error = ErrorText(handle_, path_);
  if (!IsOfTheFile(sqlite3_errcode(handle_))) throw Failure(error);
  if (holds_) failure_ = error;
  failedWriting_ = writing || !log_.Tables().IsEmpty();
  RollBack();
  throw StorageFailure(error);
}

void Database::RefuseAfterFailure() const {
  if (!failure_.isNull()) throw StorageFailure(failure_);
}

/// SQLite has done so by itself after some errors, and not after others.
void Database::RollBack() {
  for (Recordset* recordset : std::vector<Recordset*>(recordsets_)) recordset->Drop();
  if (InTransaction()) sqlite3_exec(handle_, "ROLLBACK", nullptr, nullptr, nullptr);
  fields_.clear();  // a table made in this transaction is gone again
  log_.Clear();
}

void Database::TakeBack() {
  RollBack();
  failure_ = QString();
  failedWriting_ = false;
}

Changes Database::TakeChanges() { return std::exchange(committed_, Changes()); }

void Database::LearnRemembered() {
  std::vector<int> columns;
  const std::vector<Field>& fields = FieldsOf(u"tblMisc"_s);
  for (size_t i = 0; i < fields.size(); ++i)
    for (const char* name : {"LastSystemID", "LastJobID", "LastCustomerID", "LastComponentID"})
      if (fields[i].name == QLatin1StringView(name)) columns.push_back(static_cast<int>(i));
  log_.SetRemembered("tblMisc", std::move(columns));
}

void Database::ExecuteRaw(const QByteArray& sql) {
  if (sqlite3_exec(handle_, sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK) Fail();
}

void Database::Execute(const QString& statement) {
  FreezeRecordsets();
  Prepared* prepared = Take(statement);
  try {
    while (Step(prepared->handle)) {
    }
  } catch (...) {
    GiveBack(prepared);
    throw;
  }
  GiveBack(prepared);
}

Prepared* Database::Take(const QString& statement, Want want) {
  RefuseAfterFailure();
  jet::CutStatement(statement, cut_);
  if (want == Want::Count) cut_.key += "count";
  std::vector<std::unique_ptr<Prepared>>& pool = prepared_[cut_.key];
  Prepared* free = nullptr;
  for (const std::unique_ptr<Prepared>& candidate : pool)
    if (!candidate->inUse) free = candidate.get();
  if (!free) {
    pool.push_back(Prepare(statement, want));
    free = pool.back().get();
  }
  free->inUse = true;
  try {
    BindLiterals(*free, cut_.literals);
  } catch (...) {
    GiveBack(free);
    throw;
  }
  return free;
}

void Database::GiveBack(Prepared* prepared) {
  sqlite3_reset(prepared->handle);
  prepared->inUse = false;
}

std::unique_ptr<Prepared> Database::Prepare(const QString& statement, Want want) {
  jet::Translation translation = jet::Translate(statement);
  if (want == Want::Count) {
    translation.sql = "SELECT count(*) FROM (" + translation.sql + ')';
    translation.table.clear();
  }
  auto prepared = std::make_unique<Prepared>();
  const char* rest = nullptr;
  if (sqlite3_prepare_v3(handle_, translation.sql.constData(), static_cast<int>(translation.sql.size()),
                         SQLITE_PREPARE_PERSISTENT, &prepared->handle, &rest) != SQLITE_OK)
    Fail();
  if (!prepared->handle) throw Failure(u"Invalid SQL statement."_s);
  prepared->isQuery = translation.isQuery;
  prepared->table = translation.table;
  const int hidden = translation.table.isEmpty() ? 0 : 1;
  const int columns = sqlite3_column_count(prepared->handle) - hidden;
  std::vector<Field> fields;
  fields.reserve(static_cast<size_t>(columns));
  for (int i = 0; i < columns; ++i) {
    fields.push_back(FieldFromDeclared(QString::fromUtf8(sqlite3_column_name(prepared->handle, i)),
                                       QString::fromUtf8(sqlite3_column_decltype(prepared->handle, i))));
  }
  prepared->fields = std::make_shared<const std::vector<Field>>(std::move(fields));
  for (const QString& column : translation.comparedTo) {
    int type = 0;
    for (const QString& table : translation.tables)
      for (const Field& field : FieldsOf(table))
        if (field.name.compare(column, Qt::CaseInsensitive) == 0) type = field.type;
    prepared->literalTypes.push_back(type);
  }
  return prepared;
}

void Database::BindLiterals(Prepared& prepared, const std::vector<jet::Literal>& literals) {
  int parameter = 0;
  for (const jet::Literal& literal : literals) {
    const int type = prepared.literalTypes[static_cast<size_t>(parameter++)];
    if (literal.kind == jet::Literal::Kind::Date) {
      sqlite3_bind_double(prepared.handle, parameter, jet::ParseDateLiteral(literal.text).Serial());
    } else if (literal.kind == jet::Literal::Kind::Text) {
      const QByteArray text = jet::TextOf(literal).toUtf8();
      sqlite3_bind_text(prepared.handle, parameter, text.constData(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
    } else if (type == jet::kMoney) {
      sqlite3_bind_int64(prepared.handle, parameter, Money::FromText(literal.text.toString()).Units());
    } else {
      bool whole = false;
      const qint64 number = literal.text.toLongLong(&whole);
      if (whole)
        sqlite3_bind_int64(prepared.handle, parameter, number);
      else
        sqlite3_bind_double(prepared.handle, parameter, literal.text.toDouble());
    }
  }
}

bool Database::ReadFirst(const QString& statement, QStringView field, Value& value, int& type) {
  Prepared* prepared = Take(statement);
  try {
    const bool found = Step(prepared->handle);
    if (found) {
      const int column = ColumnOfField(*prepared->fields, field);
      type = (*prepared->fields)[static_cast<size_t>(column)].type;
      value = ReadColumn(prepared->handle, column, type);
    }
    GiveBack(prepared);
    return found;
  } catch (...) {
    GiveBack(prepared);
    throw;
  }
}

bool Database::Step(sqlite3_stmt* statement) {
  RefuseAfterFailure();
  BeginIfNeeded();
  if (!log_.KnowsRemembered()) LearnRemembered();
  return Next(statement);
}

bool Database::Next(sqlite3_stmt* statement) {
  const ChangeLog::Mark mark = log_.Here();
  const int result = sqlite3_step(statement);
  if (result == SQLITE_ROW) return true;
  if (result == SQLITE_DONE) return false;
  log_.GoBackTo(mark);
  try {
    Fail(sqlite3_stmt_readonly(statement) == 0);
  } catch (...) {
    sqlite3_reset(statement);
    throw;
  }
}

sqlite3_stmt* Database::Plain(const QByteArray& sql) {
  sqlite3_stmt*& statement = plain_[sql];
  if (!statement && sqlite3_prepare_v3(handle_, sql.constData(), static_cast<int>(sql.size()),
                                       SQLITE_PREPARE_PERSISTENT, &statement, nullptr) != SQLITE_OK) {
    plain_.remove(sql);
    Fail();
  }
  sqlite3_reset(statement);
  return statement;
}

const std::vector<Field>& Database::FieldsOf(const QString& table) {
  const QString key = table.toLower();
  if (auto found = fields_.constFind(key); found != fields_.constEnd()) return *found;
  std::vector<Field> fields;
  sqlite3_stmt* info = Plain("SELECT name, type FROM pragma_table_info(?1)");
  const QByteArray name = table.toUtf8();
  sqlite3_bind_text(info, 1, name.constData(), static_cast<int>(name.size()), SQLITE_TRANSIENT);
  while (Next(info))
    fields.push_back(
        FieldFromDeclared(ReadColumn(info, 0, jet::kText).ToText(), ReadColumn(info, 1, jet::kText).ToText()));
  sqlite3_reset(info);
  return *fields_.insert(key, fields);
}

void Database::ChangeSchema(const QByteArray& sql) {
  FreezeRecordsets();
  ForgetPrepared();
  BeginIfNeeded();
  ExecuteRaw(sql);
}

void Database::CopyTo(const QString& path, const std::function<void(int, int)>& tell) {
  constexpr int kPagesAtOnce = 256;
  sqlite3* opened = nullptr;
  const int found = sqlite3_open_v2(path.toUtf8().constData(), &opened,
                                    SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr);
  const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> copy(opened, sqlite3_close);
  // Nobody waits for the copy after a crash, so it needs neither a journal nor syncs.
  if (found != SQLITE_OK ||
      sqlite3_exec(opened, "PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF", nullptr, nullptr, nullptr))
    throw Failure(ErrorText(opened, path));
  const std::unique_ptr<sqlite3_backup, decltype(&sqlite3_backup_finish)> backup(
      sqlite3_backup_init(opened, "main", handle_, "main"), sqlite3_backup_finish);
  if (!backup) throw Failure(ErrorText(opened, path));
  int result = SQLITE_OK;
  while ((result = sqlite3_backup_step(backup.get(), kPagesAtOnce)) == SQLITE_OK) {
    const int total = sqlite3_backup_pagecount(backup.get());
    tell(total - sqlite3_backup_remaining(backup.get()), total);
  }
  if (result != SQLITE_DONE) throw Failure(ErrorText(result, QString::fromUtf8(sqlite3_errstr(result)), path));
}

void Database::DropAndCompact(const QString& table) {
  ChangeSchema("DROP TABLE IF EXISTS [" + table.toUtf8() + ']');
  Settle();
  ExecuteRaw("VACUUM");
}

void Database::ForgetPrepared() {
  prepared_.clear();
  fields_.clear();
  log_.ForgetTables();
}

int Database::CountIndexes() {
  sqlite3_stmt* count = Plain("SELECT count(*) FROM sqlite_master WHERE type = 'index'");
  const int indexes = Next(count) ? sqlite3_column_int(count, 0) : 0;
  sqlite3_reset(count);
  return indexes;
}

bool Database::InTransaction() const { return !sqlite3_get_autocommit(handle_); }

void Database::BeginIfNeeded() {
  if (InTransaction()) return;
  const int result = sqlite3_step(begin_);
  if (result != SQLITE_DONE) Fail();
  sqlite3_reset(begin_);
}

void Database::Settle() {
  RefuseAfterFailure();
  if (!InTransaction()) return;
  FreezeRecordsets();
  const int result = sqlite3_step(commit_);
  if (result == SQLITE_DONE) {
    sqlite3_reset(commit_);
    committed_.Add(log_.Tables());
    log_.Clear();
    return;
  }
  const QByteArray written = log_.RowCount() > 0 ? PackRows(log_) : QByteArray();
  try {
    Fail();
  } catch (const StorageFailure&) {
    sqlite3_reset(commit_);
    if (!written.isEmpty() && MayStand(written)) failedWriting_ = false;
    throw;
  } catch (...) {
    sqlite3_reset(commit_);
    throw;
  }
}

/// The last step of a commit may fail when all is on the disk already.
bool Database::MayStand(const QByteArray& written) {
  const QString failure = std::exchange(failure_, QString());
  const bool failedWriting = failedWriting_;
  bool stands = true;
  try {
    stands = RowsStand(*this, written);
    if (stands) committed_.Add(TablesOf(written));
  } catch (const Failure&) {
    // It can't be told as long as the file can't be read.
  }
  failure_ = failure;
  failedWriting_ = failedWriting;
  return stands;
}

void Database::Register(Recordset* recordset) { recordsets_.push_back(recordset); }

void Database::Unregister(Recordset* recordset) { std::erase(recordsets_, recordset); }

void Database::FreezeRecordsets() {
  const std::vector<Recordset*> open = recordsets_;
  for (Recordset* recordset : open) recordset->Freeze();
}

qint64 Database::LastInsertId() const { return sqlite3_last_insert_rowid(handle_); }
