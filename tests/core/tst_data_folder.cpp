#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTest>

#include "core/clock.h"
#include "core/data_folder.h"
#include "core/files.h"
#include "core/splash_info.h"
#include "support/data_home.h"
#include "support/fixed_clock.h"
#include "support/scripted_prompts.h"
#include "support/store_fixture.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

void SetFileTime(const QString& path, const QDateTime& time) {
  QFile file(path);
  QVERIFY(file.open(QIODevice::ReadWrite));
  QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
}

void AddScheduled(Date due) {
  Bracket bracket;
  Recordset rows(u"tblSchedules"_s);
  rows.AddNew();
  rows.Set(u"DateDue", due);
  rows.Update();
}

}  // namespace

/// The data folder and what the splash screen counts in it. The working folder is a throw-away one: files that come
/// with the program are looked for there first.
class DataFolderTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() { home_ = std::make_unique<DataHome>(); }
  void cleanup() { home_.reset(); }

  void LiesInTheCommonDataFolder() {
    QCOMPARE(SpecialFolder, Folder() / u"home"_s);
    QCOMPARE(DataPath, Folder() / u"home/loftkeep/"_s);
    QCOMPARE(DatabaseFile(), Folder() / u"home/loftkeep/loftkeep.mdb"_s);
    QCOMPARE(SupportFile(u"x.txt"_s), Folder() / u"home/loftkeep/support/x.txt"_s);
  }

  void ItsFoldersAreMadeOnce() {
    ScriptedPrompts prompts;
    CreateSubFolders();
    CreateSubFolders();
    for (const QString& name : {u"photos"_s, u"backup"_s, u"support"_s, u"other"_s, u"photos/thumbnail"_s,
                                u"photos/hires"_s, u"photos/archive"_s})
      QVERIFY2(FolderExists(DataPath + name), qPrintable(name));
    QCOMPARE(QDir(DataPath).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 4);
  }

  void AFolderThatCantBeMadeIsNamed() {
    Folder().Write(u"home/loftkeep/photos"_s, "a file in the way");
    ScriptedPrompts prompts;
    for (const QString& name : {u"photos"_s, u"photos/thumbnail"_s, u"photos/hires"_s, u"photos/archive"_s})
      prompts.ExpectBox(DataPath + name, u"Unable to create new folder - Sub CreateFolder()"_s);
    CreateSubFolders();
    QVERIFY(FolderExists(DataPath + u"support"_s));
  }

  void TheEmptyDatabaseIsCopiedWhenItIsMissing() {
    ScriptedPrompts prompts;
    CreateSubFolders();
    Folder().Write(u"work/blank.mdb"_s, "first");
    CheckBlankmb();
    QCOMPARE(Folder().Read(u"home/loftkeep/support/blank.mdb"_s), QByteArray("first"));
    Folder().Write(u"work/blank.mdb"_s, "second");
    CheckBlankmb();
    QCOMPARE(Folder().Read(u"home/loftkeep/support/blank.mdb"_s), QByteArray("first"));
    QVERIFY(QFile::remove(SupportFile(u"blank.mdb"_s)));
    QVERIFY(QFile::remove(Folder() / u"work/blank.mdb"_s));
    prompts.ExpectBox(u"sub CheckBlankmb"_s, u"file 'blank.mdb' not found"_s);
    CheckBlankmb();
  }

  void ANewerHelpTextReplacesTheOldOneAndSaysSo() {
    const StoreFixture store;
    ScriptedPrompts prompts;
    CreateSubFolders();
    CheckHelpFile();
    QVERIFY(!ExistFile(SupportFile(u"helptext.txt"_s)));
    const QString source = Folder().Write(u"work/helptext.txt"_s, "first");
    CheckHelpFile();
    QCOMPARE(Folder().Read(u"home/loftkeep/support/helptext.txt"_s), QByteArray("first"));
    CheckHelpFile();
    Folder().Write(u"work/helptext.txt"_s, "second");
    SetFileTime(source, QDateTime::currentDateTime().addSecs(60));
    prompts.ExpectBox(u"Loftkeep"_s, u"Help files have been updated"_s).Meanwhile([] { QVERIFY(!ConnectionIsOpen); });
    ConnectionStart();
    CheckHelpFile();
    QVERIFY(ConnectionIsOpen);
    ConnectionClose();
    QCOMPARE(Folder().Read(u"home/loftkeep/support/helptext.txt"_s), QByteArray("second"));
    prompts.Finish();
    CheckHelpFile();  // the next start finds nothing newer
    QCOMPARE(prompts.Transcript().size(), 1);
  }

  void TheSplashCountsTheLoft() {
    const StoreFixture store;
    ScriptedPrompts prompts;
    FixedClock clock(2026, 11, 21);
    QCOMPARE(GetSplashInfo(),
             u"0 customers \n0 rigs\n\n0 invoices\n0 tasks\n0 reserve pack jobs\n0 manufactures\n0 models\n\n"
             "0 scheduled tasks\n0 riggers\n\nThere are 0 tasks overdue\nThere are 0 tasks due within 30 days\n"
             "There are 0 tasks due within 60 days\nThere are 0 tasks due within 90 days"_s);
    for (const QString& statement :
         {u"insert into tblPeople (LastName, rigger) values ('Lee', -1)"_s,
          u"insert into tblPeople (LastName) values ('Poe')"_s, u"insert into tblRig (rigAlias) values ('Red')"_s,
          u"insert into tblJobs (JobTitle) values ('a')"_s, u"insert into tblTasks (TaskLibID) values (1)"_s,
          u"insert into tblTasks (TaskLibID) values (4)"_s,
          u"insert into tblManufacturers (ID, Name) values (1, 'x')"_s, u"insert into tblModels (Name) values ('m')"_s})
      UpdateTableBySQL(statement);
    for (int days : {-1, 0, 30, 31, 60, 90, 91}) AddScheduled(Today() + days);
    QCOMPARE(GetSplashInfo(),
             u"2 customers \n1 rigs\n\n1 invoices\n2 tasks\n1 reserve pack jobs\n1 manufactures\n1 models\n\n"
             "7 scheduled tasks\n1 rigger\n\nThere is 1 task overdue\nThere are 3 tasks due within 30 days\n"
             "There are 5 tasks due within 60 days\nThere are 6 tasks due within 90 days"_s);
  }

  void WhatWasDueYesterdayIsOverdueAndTodayIsNot() {
    const StoreFixture store;
    ScriptedPrompts prompts;
    FixedClock clock(2026, 11, 21);
    AddScheduled(Today() - 1);
    AddScheduled(Today());
    QVERIFY(GetSplashInfo().contains(u"There is 1 task overdue"_s));
    QVERIFY(GetSplashInfo().contains(u"There are 2 tasks due within 30 days"_s));
  }

  void TheLastBackupIsADateOrNever() {
    const StoreFixture store;
    ScriptedPrompts prompts;
    QCOMPARE(LastBackupText(), u"Last database backup was performed on (never!)"_s);
    UpdateTableBySQL(u"insert into tblMisc (LastBackupDate) values (#11/20/2026#)"_s);
    QCOMPARE(LastBackupText(), u"Last database backup was performed on 11/20/2026"_s);
  }

 private:
  const TempFolder& Folder() const { return home_->Folder(); }

  std::unique_ptr<DataHome> home_;
};

LOFT_TEST_MAIN(DataFolderTest)
#include "tst_data_folder.moc"
