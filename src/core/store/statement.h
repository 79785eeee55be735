#pragma once
#include <QString>

#include <concepts>
#include <initializer_list>

#include "core/store/tables.h"
#include "core/value.h"

/// Statements made of tables and columns. They are the same text that access.h takes (core/store/jet.h), with the
/// values joined in as they stand: a quote in a value breaks the statement.

/// Which rows of one table: `tblTasks::JobID == jobID && tblTasks::Status == kComplete`. Read as a text it selects
/// them.
class Condition {
 public:
  Condition(const Column& column, const char16_t* comparison, const Value& value);
  friend Condition operator&&(const Condition& left, const Condition& right);
  friend Condition operator||(const Condition& left, const Condition& right);
  QStringView TableName() const { return table_; }
  const QString& Text() const { return text_; }
  operator QString() const;

 private:
  QStringView table_;
  QString text_;
};

/// Whatever a value can be made of.
template <typename T>
concept Comparable = std::convertible_to<T, Value>;

template <Comparable T>
Condition operator==(const Column& column, const T& value) {
  return {column, u" = ", value};
}
template <Comparable T>
Condition operator!=(const Column& column, const T& value) {
  return {column, u" <> ", value};
}
template <Comparable T>
Condition operator<(const Column& column, const T& value) {
  return {column, u" < ", value};
}
template <Comparable T>
Condition operator>(const Column& column, const T& value) {
  return {column, u" > ", value};
}
template <Comparable T>
Condition operator<=(const Column& column, const T& value) {
  return {column, u" <= ", value};
}

/// The rows of one table in an order: `Select(tblTasks::JobID == jobID).OrderBy(tblTasks::ID)`.
class Select {
 public:
  Select(const Table& table);          ///< all of them
  Select(const Condition& condition);  ///< those
  Select(std::initializer_list<Column> columns);
  Select& OrderBy(const Column& column) { return Then(column); }
  Select& OrderByLatest(const Column& column) { return Then(column, u" desc"); }
  operator QString() const { return text_; }

 private:
  Select& Then(const Column& column, QStringView direction = {});

  QString text_;
  bool ordered_ = false;
};

/// As a value stands in a statement: a text between quotes, a date between number signs.
QString Literal(const Value& value);
