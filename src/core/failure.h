#pragma once
#include <QString>

#include <exception>

/// A run-time error with the text that a person is shown. The store, the file system, the platform and the
/// conversions of values throw it; a routine's Trap shows it and lets the caller go on.
class Failure : public std::exception {
 public:
  explicit Failure(QString text) : text_(std::move(text)), utf8_(text_.toUtf8()) {}
  const QString& Text() const { return text_; }
  const char* what() const noexcept override { return utf8_.constData(); }

 private:
  QString text_;
  QByteArray utf8_;
};

/// The file itself failed: a full disk, an unreadable page, a commit that did not go through. What the running
/// operation wrote has been taken back, and traps let it pass to the outermost operation, or to the end of what the
/// person did.
class StorageFailure : public Failure {
 public:
  using Failure::Failure;
  /// The outermost routine that has let it pass, empty for none.
  const QString& Routine() const { return routine_; }
  void PassedBy(const QString& routine) const { routine_ = routine; }

 private:
  mutable QString routine_;
};
