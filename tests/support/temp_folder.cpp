#include "support/temp_folder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtTest>

QString TempFolder::Template() {
  const QString memory = QStringLiteral("/dev/shm");
  return QDir(QFileInfo(memory).isWritable() ? memory : QDir::tempPath()).filePath(QStringLiteral("loftkeep-XXXXXX"));
}

QString TempFolder::Write(const QString& name, const QByteArray& content) const {
  const QString path = *this / name;
  QDir().mkpath(QFileInfo(path).path());
  QFile file(path);
  if (!file.open(QFile::WriteOnly) || file.write(content) != content.size()) {
    QTest::qFail(("Can't write " + path.toUtf8()).constData(), __FILE__, __LINE__);
  }
  return path;
}

QByteArray TempFolder::Read(const QString& name) const {
  QFile file(*this / name);
  if (!file.open(QFile::ReadOnly)) {
    QTest::qFail(("Can't read " + file.fileName().toUtf8()).constData(), __FILE__, __LINE__);
  }
  return file.readAll();
}

QString TempFolder::MakeFolder(const QString& name) const {
  const QString path = *this / name;
  QDir().mkpath(path);
  return path;
}

bool TempFolder::Has(const QString& name) const { return QFileInfo::exists(*this / name); }

QStringList TempFolder::Names() const {
  return QDir(Path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}
