#pragma once
#include <QSet>
#include <QString>
#include <QStringList>

/// Which tables have been written, by whomever.
class Changes {
 public:
  void Note(const QString& table) { tables_.insert(table); }
  void Add(const Changes& others) { tables_ += others.tables_; }
  bool IsEmpty() const { return tables_.isEmpty(); }
  bool Touches(const QString& table) const { return tables_.contains(table); }
  bool TouchesAny(const QStringList& tables) const {
    for (const QString& table : tables)
      if (Touches(table)) return true;
    return false;
  }

 private:
  QSet<QString> tables_;  // as the file spells them
};
