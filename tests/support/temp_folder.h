#pragma once
#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// A folder that goes with its test.
class TempFolder {
 public:
  QString Path() const { return folder_.path(); }
  QString operator/(const QString& name) const { return folder_.filePath(name); }
  /// Writes a file, its folders made as needed; its path.
  QString Write(const QString& name, const QByteArray& content) const;
  /// The content of a file; fails the test when it can't be read.
  QByteArray Read(const QString& name) const;
  QString MakeFolder(const QString& name) const;
  bool Has(const QString& name) const;
  /// All that lies in the folder itself, sorted.
  QStringList Names() const;

 private:
  /// In memory where the system offers that: a loft writes its file through to the disk at every step.
  static QString Template();

  QTemporaryDir folder_{Template()};
};
