#pragma once
#include <sqlite3.h>

/// Counts the SQL statements of every connection that is opened in its lifetime.
class StatementCount {
 public:
  StatementCount() {
    count_ = 0;
    sqlite3_auto_extension(Entry());
  }
  ~StatementCount() { sqlite3_cancel_auto_extension(Entry()); }
  StatementCount(const StatementCount&) = delete;
  StatementCount& operator=(const StatementCount&) = delete;

  void Restart() { count_ = 0; }
  int Count() const { return count_; }

 private:
  static void (*Entry())() { return reinterpret_cast<void (*)()>(&Attach); }
  static int Attach(sqlite3* database, char**, const void*) {
    return sqlite3_trace_v2(database, SQLITE_TRACE_STMT, &Note, nullptr);
  }
  static int Note(unsigned, void*, void*, void*) {
    ++count_;
    return 0;
  }
  static inline int count_ = 0;
};
