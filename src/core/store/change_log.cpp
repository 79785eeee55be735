#include "core/store/change_log.h"

#include <algorithm>
#include <cstring>

#define SQLITE_ENABLE_PREUPDATE_HOOK
#include <sqlite3.h>

namespace {

template <typename Plain>
void Put(QByteArray& bytes, Plain value) {
  bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
}

void PutValue(QByteArray& bytes, sqlite3_value* value) {
  const int type = sqlite3_value_type(value);
  bytes.append(static_cast<char>(type));
  switch (type) {
    case SQLITE_INTEGER:
      Put(bytes, static_cast<qint64>(sqlite3_value_int64(value)));
      break;
    case SQLITE_FLOAT:
      Put(bytes, sqlite3_value_double(value));
      break;
    case SQLITE_NULL:
      break;
    default: {
      const void* data = sqlite3_value_blob(value);
      const int size = sqlite3_value_bytes(value);
      Put(bytes, static_cast<qint32>(size));
      bytes.append(static_cast<const char*>(data), size);
    }
  }
}

bool SameValue(sqlite3_value* a, sqlite3_value* b) {
  const auto isNumber = [](int type) { return type == SQLITE_INTEGER || type == SQLITE_FLOAT; };
  const int type = sqlite3_value_type(a);
  if (const int other = sqlite3_value_type(b); type != other)
    return isNumber(type) && isNumber(other) && sqlite3_value_double(a) == sqlite3_value_double(b);
  switch (type) {
    case SQLITE_INTEGER:
      return sqlite3_value_int64(a) == sqlite3_value_int64(b);
    case SQLITE_FLOAT:
      return sqlite3_value_double(a) == sqlite3_value_double(b);
    case SQLITE_NULL:
      return true;
    default:
      break;
  }
  const int size = sqlite3_value_bytes(a);
  return size == sqlite3_value_bytes(b) &&
         (size == 0 ||  // an empty value has no place
          std::memcmp(sqlite3_value_blob(a), sqlite3_value_blob(b), static_cast<size_t>(size)) == 0);
}

}  // namespace

void ChangeLog::SetRemembered(const QByteArray& table, std::vector<int> columns) {
  rememberedIn_ = table;
  remembered_ = std::move(columns);
  lastName_ = nullptr;
}

int ChangeLog::PlaceOf(const char* table) {
  if (table == lastName_) return lastPlace_;
  const auto known = std::find(names_.begin(), names_.end(), table);
  lastPlace_ = static_cast<int>(known - names_.begin());
  if (known == names_.end()) names_.emplace_back(table);
  lastName_ = table;
  inRemembered_ = rememberedIn_ == table;
  return lastPlace_;
}

bool ChangeLog::IsRemembered(const QByteArray& table, int column) const {
  return table == rememberedIn_ && std::find(remembered_.begin(), remembered_.end(), column) != remembered_.end();
}

/// The place where the number of columns stands.
qsizetype ChangeLog::PutHead(Kind kind, int table, qint64 rowid, int columns) {
  bytes_.append(static_cast<char>(kind));
  bytes_.append(static_cast<char>(table));
  Put(bytes_, rowid);
  Put(bytes_, static_cast<qint16>(columns));
  return bytes_.size() - static_cast<qsizetype>(sizeof(qint16));
}

void ChangeLog::Row(sqlite3* handle, int what, const char* table, qint64 oldRow, qint64 newRow) {
  if (std::strcmp(table, kUndoTable) == 0) {
    changes_.Note(QString::fromLatin1(kUndoTable));
    return;
  }
  const int place = PlaceOf(table);
  const int columns = sqlite3_preupdate_count(handle);
  sqlite3_value* old = nullptr;
  sqlite3_value* fresh = nullptr;
  if (what == SQLITE_UPDATE && oldRow == newRow) {
    const qsizetype before = bytes_.size();
    const qsizetype count = PutHead(Kind::Update, place, oldRow, 0);
    qint16 changed = 0;
    for (int column = 0; column < columns; ++column) {
      sqlite3_preupdate_old(handle, column, &old);
      sqlite3_preupdate_new(handle, column, &fresh);
      if (SameValue(old, fresh) || (inRemembered_ && IsRemembered(rememberedIn_, column))) continue;
      Put(bytes_, static_cast<qint16>(column));
      PutValue(bytes_, old);
      PutValue(bytes_, fresh);
      ++changed;
    }
    if (changed == 0) {
      bytes_.truncate(before);
      return;
    }
    std::memcpy(bytes_.data() + count, &changed, sizeof changed);
    ++rows_;
  } else {
    if (what != SQLITE_INSERT) {
      PutHead(Kind::Delete, place, oldRow, columns);
      for (int column = 0; column < columns; ++column) {
        sqlite3_preupdate_old(handle, column, &old);
        PutValue(bytes_, old);
      }
      ++rows_;
    }
    if (what != SQLITE_DELETE) {
      PutHead(Kind::Insert, place, newRow, columns);
      for (int column = 0; column < columns; ++column) {
        sqlite3_preupdate_new(handle, column, &fresh);
        PutValue(bytes_, fresh);
      }
      ++rows_;
    }
  }
  changes_.Note(QString::fromUtf8(names_[static_cast<size_t>(place)]));
}

void ChangeLog::GoBackTo(const Mark& mark) {
  bytes_.truncate(mark.bytes);
  rows_ = mark.rows;
}

void ChangeLog::Clear() {
  bytes_.resize(0);
  rows_ = 0;
  changes_ = {};
  names_.clear();
  lastName_ = nullptr;
}
