#pragma once
#include <QHash>

#include <functional>

/// Answers of a routine that reads the database, each asked for once: for loaders of thousands of rows that share few
/// names. It lives no longer than one loading.
template <class Answer>
class Remembered {
 public:
  explicit Remembered(std::function<Answer(int id)> read) : read_(std::move(read)) {}
  const Answer& operator()(int id) {
    auto known = known_.find(id);
    if (known == known_.end()) known = known_.insert(id, read_(id));
    return *known;
  }

 private:
  std::function<Answer(int id)> read_;
  QHash<int, Answer> known_;
};
