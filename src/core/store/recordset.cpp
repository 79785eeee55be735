#include "core/store/recordset.h"

#include <algorithm>
#include <sqlite3.h>

#include "core/failure.h"
#include "core/store/connection.h"

using namespace Qt::StringLiterals;

const QString kNoCurrentRecord =
    u"Either BOF or EOF is True, or the current record has been deleted. "
    "Requested operation requires a current record."_s;

Recordset::Recordset(const QString& source) : Recordset(OpenDatabase(), source) {}

Recordset::Recordset(Database& file, const QString& source) : database_(&file), source_(source) {
  prepared_ = database_->Take(source);
  if (!prepared_->isQuery) {
    Database::GiveBack(prepared_);
    throw Failure(u"Operation is not allowed when the object is closed."_s);
  }
  table_ = prepared_->table;
  fields_ = prepared_->fields;
  try {
    streamedRow_ = database_->Step(prepared_->handle);
  } catch (...) {
    Database::GiveBack(prepared_);
    throw;
  }
  database_->Register(this);
}

Recordset::~Recordset() { Close(); }

void Recordset::Close() {
  if (prepared_) Database::GiveBack(prepared_);
  prepared_ = nullptr;
  if (database_) database_->Unregister(this);
}

// A count after moving to the last row is all that many callers want; they never pay for the rows.
void Recordset::Arrive() const {
  if (!goingLast_) return;
  auto* self = const_cast<Recordset*>(this);
  self->goingLast_ = false;
  if (IsStreaming()) self->ReadAll();
  self->at_ = static_cast<qsizetype>(rows_.size()) - 1;
}

void Recordset::Drop() {
  if (prepared_) Database::GiveBack(prepared_);
  prepared_ = nullptr;
  restWaits_ = goingLast_ = streamedRow_ = false;
  rows_.clear();
}

void Recordset::LoseDatabase() {
  try {
    Freeze();
  } catch (const Failure&) {
    Drop();
  }
  database_ = nullptr;
}

bool Recordset::Bof() const { return IsStreaming() ? at_ == 0 && !streamedRow_ : at_ < 0 || rows_.empty(); }

bool Recordset::Eof() const {
  if (goingLast_) return false;
  return IsStreaming() ? !streamedRow_ : at_ >= static_cast<qsizetype>(rows_.size());
}

void Recordset::MoveFirst() {
  goingLast_ = false;
  ReadRest();
  if (IsStreaming() && at_ > 0) ReadAll();
  at_ = 0;
}

void Recordset::MoveNext() {
  Arrive();
  if (Eof()) throw Failure(kNoCurrentRecord);
  if (IsStreaming()) streamedRow_ = database_->Step(prepared_->handle);
  ++at_;
}

void Recordset::MovePrevious() {
  Arrive();
  ReadRest();
  if (IsStreaming()) ReadAll();
  if (at_ >= 0) --at_;
}

void Recordset::MoveLast() {
  if (!Bof() || !Eof()) goingLast_ = true;
}

int Recordset::RecordCount() {
  ReadRest();
  if (!IsStreaming()) return static_cast<int>(rows_.size());
  Prepared* counting = database_->Take(source_, Database::Want::Count);
  int count = 0;
  try {
    if (database_->Step(counting->handle)) count = sqlite3_column_int(counting->handle, 0);
  } catch (...) {
    Database::GiveBack(counting);
    throw;
  }
  Database::GiveBack(counting);
  return count;
}

Recordset::Row Recordset::ReadRow() const {
  Row row;
  row.values.reserve(Fields().size());
  for (size_t i = 0; i < Fields().size(); ++i)
    row.values.push_back(ReadColumn(prepared_->handle, static_cast<int>(i), Fields()[i].type));
  if (!table_.isEmpty()) row.id = sqlite3_column_int64(prepared_->handle, static_cast<int>(Fields().size()));
  return row;
}

// Nothing has been written since the statement began, or Freeze would have come first; so reading it again from the
// start gives the same rows.
void Recordset::ReadAll() {
  sqlite3_reset(prepared_->handle);
  rows_.clear();
  while (database_->Step(prepared_->handle)) rows_.push_back(ReadRow());
  Database::GiveBack(prepared_);
  prepared_ = nullptr;
}

// What was added here stands at the end already; nothing else has been written since, or Freeze would have come first.
void Recordset::ReadRest() {
  if (!restWaits_) return;
  restWaits_ = false;
  const std::vector<Row> added = std::move(rows_);
  const qsizetype at = at_;
  prepared_ = database_->Take(source_);
  ReadAll();
  std::erase_if(rows_, [&](const Row& row) {
    return std::any_of(added.begin(), added.end(), [&](const Row& own) { return own.id == row.id; });
  });
  at_ = at + static_cast<qsizetype>(rows_.size());
  rows_.insert(rows_.end(), added.begin(), added.end());
}

/// A recordset that was opened to add rows need not read those of a long table.
bool Recordset::OnlyAdds() const { return restWaits_ || (adding_ && IsStreaming()); }

void Recordset::Freeze() {
  ReadRest();
  if (IsStreaming()) ReadAll();
}

const Recordset::Row& Recordset::Current() const {
  if (at_ < 0 || at_ >= static_cast<qsizetype>(rows_.size()) || rows_[static_cast<size_t>(at_)].deleted)
    throw Failure(kNoCurrentRecord);
  return rows_[static_cast<size_t>(at_)];
}

Recordset::Row& Recordset::Current() { return const_cast<Row&>(std::as_const(*this).Current()); }

int Recordset::ColumnOf(QStringView field) const { return ColumnOfField(Fields(), field); }

Value Recordset::operator[](QStringView field) const { return At(ColumnOf(field)); }

/// The rows of several tables hold the columns of each.
bool Recordset::Holds(const Column& column) const {
  return table_.isEmpty() || column.table.compare(table_, Qt::CaseInsensitive) == 0;
}

Value Recordset::operator[](const Column& column) const {
  Q_ASSERT_X(Holds(column), qPrintable(table_), qPrintable(QString(column)));
  return At(ColumnOf(column.name));
}

Value Recordset::At(int column) const {
  if (edits_)
    for (const auto& [edited, value] : *edits_)
      if (edited == column) return value;
  if (adding_) return Value::Null();
  Arrive();
  if (IsStreaming() && streamedRow_)
    return ReadColumn(prepared_->handle, column, Fields()[static_cast<size_t>(column)].type);
  return Current().values[static_cast<size_t>(column)];
}

int Recordset::FieldType(QStringView field) const { return FieldType(ColumnOf(field)); }

int Recordset::FieldType(int column) const { return Fields()[static_cast<size_t>(column)].type; }

void Recordset::AddNew() {
  if (table_.isEmpty()) throw Failure(u"Current Recordset does not support updating."_s);
  edits_.emplace();
  adding_ = true;
}

void Recordset::Set(QStringView field, const Value& value) {
  const int column = ColumnOf(field);
  if (!edits_) edits_.emplace();
  for (auto& [edited, present] : *edits_) {
    if (edited == column) {
      present = value;
      return;
    }
  }
  edits_->emplace_back(column, value);
}

void Recordset::Set(const Column& column, const Value& value) {
  Q_ASSERT_X(Holds(column), qPrintable(table_), qPrintable(QString(column)));
  Set(column.name, value);
}

void Recordset::Update() {
  if (!edits_) return;
  Arrive();
  if (table_.isEmpty()) throw Failure(u"Current Recordset does not support updating."_s);
  const bool onlyAdds = OnlyAdds();
  restWaits_ = false;
  if (onlyAdds && IsStreaming()) {
    Database::GiveBack(prepared_);
    prepared_ = nullptr;
  }
  database_->FreezeRecordsets();
  if (adding_)
    WriteNewRow();
  else
    WriteChanges();
  restWaits_ = onlyAdds;
  edits_.reset();
  adding_ = false;
}

namespace {

QByteArray NameList(const std::vector<Field>& fields, const std::vector<std::pair<int, Value>>& edits,
                    const QByteArray& behind) {
  QByteArray list;
  for (const auto& [column, value] : edits) {
    if (!list.isEmpty()) list += ", ";
    list += '[' + fields[static_cast<size_t>(column)].name.toUtf8() + ']' + behind;
  }
  return list;
}

}  // namespace

void Recordset::WriteNewRow() {
  QByteArray sql = "INSERT INTO [" + table_.toUtf8() + "]";
  sql += edits_->empty() ? QByteArray(" DEFAULT VALUES")
                         : " (" + NameList(Fields(), *edits_, "") + ") VALUES (?" +
                               QByteArray(",?").repeated(static_cast<qsizetype>(edits_->size()) - 1) + ')';
  sqlite3_stmt* insert = database_->Plain(sql);
  int parameter = 0;
  for (const auto& [column, value] : *edits_) BindValue(insert, ++parameter, value, FieldType(column));
  database_->Step(insert);
  sqlite3_reset(insert);

  // The new row is read back as it was stored, its number with it.
  const qint64 id = database_->LastInsertId();
  sqlite3_stmt* select = database_->Plain("SELECT " + [this] {
    QByteArray names;
    for (const Field& field : Fields()) names += '[' + field.name.toUtf8() + "], ";
    return names;
  }() + "rowid FROM [" + table_.toUtf8() + "] WHERE rowid = ?1");
  sqlite3_bind_int64(select, 1, id);
  database_->Step(select);
  Row row;
  row.id = id;
  for (size_t i = 0; i < Fields().size(); ++i)
    row.values.push_back(ReadColumn(select, static_cast<int>(i), Fields()[i].type));
  sqlite3_reset(select);
  rows_.push_back(std::move(row));
  at_ = static_cast<qsizetype>(rows_.size()) - 1;
}

void Recordset::WriteChanges() {
  Row& row = Current();
  sqlite3_stmt* update =
      database_->Plain("UPDATE [" + table_.toUtf8() + "] SET " + NameList(Fields(), *edits_, " = ?") +
                       " WHERE rowid = ?" + QByteArray::number(static_cast<qlonglong>(edits_->size()) + 1));
  int parameter = 0;
  for (const auto& [column, value] : *edits_) BindValue(update, ++parameter, value, FieldType(column));
  sqlite3_bind_int64(update, ++parameter, row.id);
  database_->Step(update);
  sqlite3_reset(update);
  for (const auto& [column, value] : *edits_) row.values[static_cast<size_t>(column)] = value;
}

void Recordset::Delete() {
  if (table_.isEmpty()) throw Failure(u"Current Recordset does not support updating."_s);
  Arrive();
  database_->FreezeRecordsets();
  Row& row = Current();
  sqlite3_stmt* remove = database_->Plain("DELETE FROM [" + table_.toUtf8() + "] WHERE rowid = ?1");
  sqlite3_bind_int64(remove, 1, row.id);
  database_->Step(remove);
  sqlite3_reset(remove);
  row.deleted = true;
}

bool RecordsetHasRows(Recordset& recordset) {
  if (recordset.Bof() && recordset.Eof()) return false;
  recordset.MoveFirst();
  return true;
}
