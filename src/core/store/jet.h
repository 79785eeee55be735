#pragma once
#include <QByteArray>
#include <QString>
#include <QStringList>

#include <string>
#include <vector>

#include "core/value.h"

/// The statements of the program are text in the Jet dialect with their values joined in. This turns them into
/// SQLite's dialect in one pass over the tokens and takes the literals out as parameters, so that all the statements
/// that differ only in their values share one prepared statement.
namespace jet {

/// The kinds of column that change how a value is stored; the numbers are those of ADO.
enum FieldType : int {
  kInt16 = 2,
  kInt32 = 3,
  kSingle = 4,
  kDouble = 5,
  kMoney = 6,
  kDate = 7,
  kBool = 11,
  kText = 202,
  kMemo = 203,
};

/// One literal of a statement, in the order of the text, without its signs. A number keeps its text, so that an amount
/// never passes through a binary float. The text is that of the statement and lives no longer.
struct Literal {
  enum class Kind { Number, Text, Date } kind = Kind::Number;
  QStringView text;
};

/// What a text literal says: a doubled quote in it is one quote.
QString TextOf(const Literal& literal);

/// A statement cut into what is the same for all of its kind and what is its own. Reused from call to call.
struct Cut {
  std::string key;  ///< the statement in lower case, blanks folded, a mark in place of each literal
  std::vector<Literal> literals;
};

/// Cuts a statement. A quote, bracket or date sign without its partner throws Failure.
void CutStatement(QStringView statement, Cut& cut);

/// What SQLite is given for a statement.
struct Translation {
  QByteArray sql;                   ///< parameters ?1, ?2 ... in the order of the literals
  bool isQuery = false;             ///< a select or a bare table name
  QString table;                    ///< the one table whose rows can be written through the result, or empty
  QStringList tables;               ///< every table named
  std::vector<QString> comparedTo;  ///< for each literal the column that it is compared with or assigned to, or empty
};

/// Translates a statement; called once for all statements of one key.
Translation Translate(QStringView statement);

/// Reads what stands between # signs: month/day/year, with a time or without. Throws Failure for anything else.
Date ParseDateLiteral(QStringView text);

}  // namespace jet
