#pragma once
#include <utility>
#include <vector>

#include "core/store/statement.h"

class Recordset;

/// Writing rows. Where access.h traps each failure with a box of its own, these belong to the operation that calls
/// them: they throw Failure for a text too long for its column, a full disk, and the like.

/// What stands in a row, column by column.
class RowValues {
 public:
  RowValues() = default;
  RowValues(std::initializer_list<std::pair<Column, Value>> values) : values_(values) {}
  /// A column that is set again gets the later value.
  void Set(const Column& column, const Value& value) {
    for (auto& [own, present] : values_) {
      if (own.name != column.name) continue;
      present = value;
      return;
    }
    values_.emplace_back(column, value);
  }
  auto begin() const { return values_.begin(); }
  auto end() const { return values_.end(); }

 private:
  std::vector<std::pair<Column, Value>> values_;
};

/// Adds a row; columns that are not named stay null. The number that the table counts its rows by, where it does.
int AddRow(const Table& table, const RowValues& values);

/// Changes the first of the rows; false when there is none.
bool EditRow(const Condition& which, const RowValues& values);

/// Changes the row that a recordset stands on.
void EditRow(Recordset& row, const RowValues& values);

/// Deletes the first of the rows; false when there is none.
bool DeleteRow(const Condition& which);
