#include <QtTest>

#include <sys/stat.h>

#include "core/failure.h"
#include "core/files.h"
#include "support/refusing_disk.h"
#include "support/scripted_prompts.h"
#include "support/temp_folder.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

void SetMode(const QString& path, mode_t mode) { QCOMPARE(chmod(QFile::encodeName(path).constData(), mode), 0); }

void SetTime(const QString& path, const QDateTime& time) {
  QFile file(path);
  QVERIFY(file.open(QFile::ReadWrite));
  QVERIFY(file.setFileTime(time, QFile::FileModificationTime));
}

QDateTime Moment(int hour) { return QDateTime(QDate(2010, 12, 25), QTime(hour, 0)); }

QString Backslashed(QString path) { return path.replace(u'/', u'\\'); }

}  // namespace

class TestFiles : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void KnowsFilesAndFolders() {
    const TempFolder temp;
    const QString file = temp.Write(u"it's \"a\" file.txt"_s, "x");
    QCOMPARE(ExistFile(file), true);
    QCOMPARE(ExistFile(Backslashed(file)), true);
    QCOMPARE(ExistFile(temp.Path()), false);
    QCOMPARE(ExistFile(temp / u"missing"_s), false);
    QCOMPARE(ExistFile(QString()), false);
    QCOMPARE(ExistFile(file + u"/below"_s), false);
    QCOMPARE(ExistFile(u"?*<>|:\t"_s), false);
    QCOMPARE(ExistFile(QString(5000, u'a')), false);
    QCOMPARE(FolderExists(Backslashed(temp.Path()) + u'\\'), true);
    QCOMPARE(FolderExists(file), false);
    QCOMPARE(FolderExists(QString()), false);
  }

  void MakesFolders() {
    const TempFolder temp;
    ScriptedPrompts prompts;
    const QString path = Backslashed(temp / u"photos/thumbnail"_s);
    CreateFolder(path);
    CreateFolder(path);
    QCOMPARE(FolderExists(temp / u"photos/thumbnail"_s), true);

    const QString blocked = temp.Write(u"file"_s, "x") + u"/below"_s;
    for (const QString& bad : {blocked, temp / u"file"_s, QString()}) {
      prompts.ExpectBox(bad, u"Unable to create new folder - Sub CreateFolder()"_s);
      CreateFolder(bad);
    }
  }

  void ListsFolders() {
    const TempFolder temp;
    ScriptedPrompts prompts;
    for (const char* name : {"b.txt", "A.txt", "none", "zqxERROR", "sub/inner.txt", "empty folder/x"}) {
      temp.Write(QString::fromUtf8(name), "x");
    }
    QStringList names = {u"old"_s};
    GetFilesInFolder(Backslashed(temp.Path()), names);
    QCOMPARE(names, QStringList({u"A.txt"_s, u"b.txt"_s, u"none"_s}));
    GetFolderFiles(temp.Path(), names);
    QCOMPARE(names, QStringList({u"A.txt"_s, u"b.txt"_s, u"none"_s, u"zqxERROR"_s}));
    GetSubFolders(temp.Path(), names);
    QCOMPARE(names, QStringList({u"empty folder"_s, u"sub"_s}));
    QCOMPARE(NumberFilesInFolder(temp.Path()), 4);
    QCOMPARE(NumberFilesInFolder(temp / u"missing"_s), 0);
    QCOMPARE(NumberFilesInFolder(QString()), 0);
    GetFilesInFolder(temp / u"missing"_s, names);
    QCOMPARE(names, QStringList());
  }

  void FoldersThatCannotBeReadShowABox() {
    const TempFolder temp;
    const QString closed = temp.MakeFolder(u"closed"_s);
    SetMode(temp.Path(), 0755);
    SetMode(closed, 0333);
    {
      const OrdinaryUser user;
      ScriptedPrompts prompts;
      QStringList names;
      prompts.ExpectBox(u"Function NumberFilesInFolder()"_s, u"Permission denied"_s);
      QCOMPARE(NumberFilesInFolder(closed), 0);
      prompts.ExpectBox(u"Sub GetFilesInFolder"_s, u"Permission denied"_s);
      GetFilesInFolder(closed, names);
      prompts.ExpectBox(u"Sub GetFolderFiles"_s, u"Permission denied"_s);
      GetFolderFiles(closed, names);
      prompts.ExpectBox(u"Sub GetSubFolders"_s, u"Permission denied"_s);
      GetSubFolders(closed, names);
    }
    SetMode(closed, 0755);
  }

  void DeletesFolders() {
    const TempFolder temp;
    ScriptedPrompts prompts;
    const QString kept = temp.Write(u"kept/file"_s, "x");
    temp.Write(u"tree/a/b/c"_s, "x");
    temp.Write(u"tree/.hidden"_s, "x");
    QVERIFY(QFile::link(temp / u"kept"_s, temp / u"tree/link"_s));
    DeleteFolderTree(Backslashed(temp / u"tree"_s) + u'\\');
    QCOMPARE(temp.Names(), QStringList{u"kept"_s});
    QCOMPARE(ExistFile(kept), true);

    for (const QString& bad : {temp / u"tree"_s, kept, QString()}) {
      prompts.ExpectBox(u"Sub DeleteFolderTree"_s, u"Path not found"_s);
      DeleteFolderTree(bad);
    }
    QCOMPARE(ExistFile(kept), true);
  }

  void FoldersThatCannotBeDeletedShowABox() {
    const TempFolder temp;
    temp.Write(u"fixed/file"_s, "x");
    SetMode(temp.Path(), 0755);
    SetMode(temp / u"fixed"_s, 0555);
    {
      const OrdinaryUser user;
      ScriptedPrompts prompts;
      prompts.ExpectBox(u"Sub DeleteFolderTree"_s, u"Path/File access error"_s);
      DeleteFolderTree(temp / u"fixed"_s);
    }
    SetMode(temp / u"fixed"_s, 0755);
    QCOMPARE(temp.Has(u"fixed/file"_s), true);
  }

  void ComparesTimes() {
    const TempFolder temp;
    ScriptedPrompts prompts;
    const QString old = temp.Write(u"old"_s, "x");
    const QString fresh = temp.Write(u"fresh"_s, "x");
    SetTime(old, Moment(6));
    SetTime(fresh, Moment(7));
    QCOMPARE(FileIsNewer(old, fresh), true);
    QCOMPARE(FileIsNewer(fresh, old), false);
    QCOMPARE(FileIsNewer(old, old), false);
    prompts.ExpectBox(u"Function FileIsNewer"_s, u"File not found"_s);
    QCOMPARE(FileIsNewer(temp / u"missing"_s, fresh), false);
  }

  void ComparesContents() {
    const TempFolder temp;
    ScriptedPrompts prompts;
    const QString a = temp.Write(u"a"_s, QByteArray(1000, 'a') + "end");
    const QString same = temp.Write(u"same"_s, QByteArray(1000, 'a') + "another end");
    const QString other = temp.Write(u"other"_s, QByteArray(999, 'a') + "b");
    const QString shorter = temp.Write(u"shorter"_s, QByteArray(999, 'a'));
    QCOMPARE(FilesAreSame(a, same), true);
    QCOMPARE(FilesAreSame(a, other), false);
    QCOMPARE(FilesAreSame(a, shorter), false);
    QCOMPARE(FilesAreSame(temp.Write(u"e1"_s, ""), temp.Write(u"e2"_s, "")), true);
    prompts.ExpectBox(u"Function FilesAreSame"_s, u"File not found"_s);
    QCOMPARE(FilesAreSame(a, temp / u"missing"_s), false);
    prompts.ExpectBox(u"Function FilesAreSame"_s, u"Path/File access error"_s);
    QCOMPARE(FilesAreSame(temp.Path(), a), false);
  }

  void CopiesFiles() {
    const TempFolder temp;
    ScriptedPrompts prompts;
    const QByteArray content = QByteArray(3 << 20, 'p') + "end";
    const QString source = temp.Write(u"a'b.jpg"_s, content);
    SetTime(source, Moment(6));
    const QString target = temp.Write(u"there/copy.jpg"_s, "old");
    QCOMPARE(MyFileCopy(Backslashed(source), Backslashed(target)), true);
    QCOMPARE(temp.Read(u"there/copy.jpg"_s), content);
    QCOMPARE(QFileInfo(target).lastModified(), Moment(6));
    QCOMPARE(MyFileCopy(temp.Write(u"empty"_s, ""), temp / u"copy of empty"_s), true);
    QCOMPARE(temp.Read(u"copy of empty"_s), QByteArray());
    QCOMPARE(MyFileCopy(source, temp / u"there/../a'b.jpg"_s), true);
    QCOMPARE(temp.Read(u"a'b.jpg"_s), content);
  }

  void CopiesThatFailShowABoxAndKeepTheOldFile() {
    const TempFolder temp;
    ScriptedPrompts prompts;
    const QString missing = temp / u"missing"_s;
    const QString source = temp.Write(u"source"_s, QByteArray(100000, 'x'));
    const QString target = temp.Write(u"target"_s, "old");
    for (const QString& bad : {missing, temp.Path()}) {
      prompts.ExpectBox(u"Can't copy file"_s, bad + u" doesn't exist"_s);
      QCOMPARE(MyFileCopy(bad, target), false);
    }
    prompts.ExpectBox(u"Sub MyFileCopy"_s, u"Filename refers to a directory\nSource file = "_s + temp.Path());
    QCOMPARE(MyFileCopy(source, temp.Path()), false);
    prompts.ExpectBox(u"Sub MyFileCopy"_s, u"No such file or directory\nSource file = "_s + (temp / u"no/copy"_s));
    QCOMPARE(MyFileCopy(source, temp / u"no/copy"_s), false);
    prompts.ExpectBox(u"Sub MyFileCopy"_s, u"File too large\nSource file = "_s + target);
    {
      const FullDisk disk(50000);
      QCOMPARE(MyFileCopy(source, target), false);
    }
    QCOMPARE(temp.Read(u"target"_s), QByteArray("old"));
    QCOMPARE(temp.Names(), QStringList({u"source"_s, u"target"_s}));
  }

  void ReplacesFilesWholeOrNotAtAll() {
    const TempFolder temp;
    const QString path = temp.Write(u"file"_s, "old");
    ReplaceFileSafely(Backslashed(path), "new");
    QCOMPARE(ReadFile(Backslashed(path)), QByteArray("new"));
    QVERIFY_THROWS_EXCEPTION(Failure, ReadFile(temp / u"missing"_s));
    QVERIFY_THROWS_EXCEPTION(Failure, ReadFile(temp.Path()));
    QVERIFY_THROWS_EXCEPTION(Failure, ReplaceFileSafely(temp.Path(), "new"));
    for (const int size : {3000, 100000}) {  // one that fits into a buffer, and one that does not
      const FullDisk disk(1000);
      QString error;
      try {
        ReplaceFileSafely(path, QByteArray(size, 'x'));
      } catch (const Failure& failure) {
        error = failure.Text();
      }
      QCOMPARE(error, u"File too large"_s);
    }
    QCOMPARE(temp.Read(u"file"_s), QByteArray("new"));
    SetMode(temp.Path(), 0555);
    {
      const OrdinaryUser user;
      QVERIFY_THROWS_EXCEPTION(Failure, ReplaceFileSafely(temp / u"other"_s, "new"));
    }
    SetMode(temp.Path(), 0755);
    QCOMPARE(temp.Names(), QStringList{u"file"_s});
  }
};

LOFT_TEST_MAIN(TestFiles)
#include "tst_files.moc"
