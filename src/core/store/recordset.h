#pragma once
#include <QString>

#include <memory>
#include <optional>
#include <vector>

#include "core/store/database.h"
#include "core/store/tables.h"
#include "core/value.h"

/// What reading or writing says where no row is.
extern const QString kNoCurrentRecord;

/// The rows of a select or of a bare table name, over the shared connection or in another file: static (what others
/// write meanwhile does not show), updatable in place when it stands on one table. It must not outlive the routine that
/// opened it. Everything throws Failure: a closed connection, an unknown field, reading where no row is, a text too
/// long for its field, a full disk.
class Recordset {
 public:
  explicit Recordset(const QString& source);
  Recordset(Database& file, const QString& source);
  ~Recordset();
  Recordset(const Recordset&) = delete;
  Recordset& operator=(const Recordset&) = delete;

  bool Bof() const;  ///< before the first row, or no rows
  bool Eof() const;  ///< behind the last row, or no rows
  void MoveFirst();
  void MoveNext();
  void MovePrevious();
  void MoveLast();
  /// The number of rows, known whatever the position.
  int RecordCount();

  /// The current row's value of a field, by name without regard to case.
  Value operator[](QStringView field) const;
  Value operator[](const Column& column) const;
  Value At(int column) const;
  int FieldType(QStringView field) const;  ///< ADO's number
  int FieldType(int column) const;
  const std::vector<Field>& Fields() const { return *fields_; }
  /// The column of a field, for loops that read it often.
  int ColumnOf(QStringView field) const;

  /// Starts a new row; its fields are null until they are set. Update writes it and makes it the current row.
  void AddNew();
  void Set(QStringView field, const Value& value);
  void Set(const Column& column, const Value& value);
  void Update();
  /// Deletes the current row; the row can't be read any more, MoveNext goes to the one behind it.
  void Delete();
  void Close();

 private:
  friend class Database;
  struct Row {
    std::vector<Value> values;
    qint64 id = 0;
    bool deleted = false;
  };

  bool Holds(const Column& column) const;
  void Freeze();        // reads the rest, so that the statement can be given back
  void Drop();          // the transaction is taken back: what was not read yet can't be read any more
  void LoseDatabase();  // the file is let go of
  void ReadAll();
  void ReadRest();
  bool OnlyAdds() const;
  void Arrive() const;  // MoveLast puts off its reading until a row is wanted
  Row ReadRow() const;
  Row& Current();
  const Row& Current() const;
  bool IsStreaming() const { return prepared_ != nullptr; }
  void WriteNewRow();
  void WriteChanges();

  Database* database_;            // null once the file has been let go of
  Prepared* prepared_ = nullptr;  // while rows are still read from the statement
  QString source_;
  QString table_;
  std::shared_ptr<const std::vector<Field>> fields_;
  bool streamedRow_ = false;  // the statement stands on a row
  bool goingLast_ = false;    // MoveLast was asked for; a count alone needs no row
  bool restWaits_ = false;    // rows_ holds the added rows alone; those before them are read when they are asked for
  std::vector<Row> rows_;
  qsizetype at_ = 0;  // -1 before the first row
  std::optional<std::vector<std::pair<int, Value>>> edits_;
  bool adding_ = false;
};

/// False when there are no rows; otherwise moves to the first one and returns true. Every reader asks this before it
/// touches a field.
bool RecordsetHasRows(Recordset& recordset);

/// The rows of a select from the first to the last, each one the recordset that stands on it; a row may be changed or
/// deleted on the way: `for (Recordset& rig : Rows(u"Select * from tblRig"_s))`. The recordset goes with the loop.
class Rows {
 public:
  class Iterator {
   public:
    explicit Iterator(Recordset* recordset) : recordset_(recordset) {}
    Recordset& operator*() const { return *recordset_; }
    Iterator& operator++() {
      recordset_->MoveNext();
      return *this;
    }
    bool operator!=(const Iterator&) const { return !recordset_->Eof(); }

   private:
    Recordset* recordset_;
  };

  explicit Rows(const QString& source) : recordset_(source) {}
  Rows(Database& file, const QString& source) : recordset_(file, source) {}
  Iterator begin() {
    RecordsetHasRows(recordset_);
    return Iterator(&recordset_);
  }
  Iterator end() { return Iterator(&recordset_); }

 private:
  Recordset recordset_;
};
