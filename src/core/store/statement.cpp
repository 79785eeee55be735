#include "core/store/statement.h"

#include <QStringBuilder>

#include "core/format.h"

using namespace Qt::StringLiterals;

QString Literal(const Value& value) {
  if (value.IsText()) return u'\'' + value.ToText() + u'\'';
  if (value.IsDate()) return u'#' + Format(value.ToDate(), u"mm/dd/yyyy"_s) + u'#';
  if (value.IsBool()) return value.ToBool() ? u"true"_s : u"false"_s;
  return value.ToText();
}

Condition::Condition(const Column& column, const char16_t* comparison, const Value& value)
    : table_(column.table), text_(column.name % QStringView(comparison) % Literal(value)) {}

Condition operator&&(const Condition& left, const Condition& right) {
  Condition both = left;
  both.text_ += u" and "_s + right.text_;
  return both;
}

Condition operator||(const Condition& left, const Condition& right) {
  Condition either = left;
  either.text_ = u'(' + left.text_ + u" or "_s + right.text_ + u')';
  return either;
}

Condition::operator QString() const { return u"Select * from "_s % table_ % u" where "_s % text_; }

Select::Select(const Table& table) : text_(u"Select * from "_s % table.name) {}

Select::Select(const Condition& condition) : text_(condition) {}

Select::Select(std::initializer_list<Column> columns) {
  for (const Column& column : columns) text_ += (text_.isEmpty() ? u"Select "_s : u", "_s) % column.name;
  text_ += u" from "_s % columns.begin()->table;
}

Select& Select::Then(const Column& column, QStringView direction) {
  text_ += (ordered_ ? u", "_s : u" order by "_s) % column.name % direction;
  ordered_ = true;
  return *this;
}
