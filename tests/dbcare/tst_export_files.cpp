#include <QCoreApplication>
#include <QFile>
#include <QTest>

#include "core/data_folder.h"
#include "core/files.h"
#include "core/stand_by.h"
#include "core/text.h"
#include "dbcare/export_files.h"
#include "dbcare/import_files.h"
#include "support/data_home.h"
#include "support/exported_loft.h"
#include "support/refusing_disk.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/work_watch.h"

using namespace Qt::StringLiterals;

namespace {

/// The questions of an export, in their order.
enum Question { kMove, kReady, kArchive, kSelect, kExport };

const QString kTitles[] = {u"Move Loftkeep"_s, u"Move Loftkeep"_s, u"Includ deleted photos?"_s,
                           u"Select a destingation folder"_s, u"Export files"_s};

QStringList steps;  // what the wait notice showed

}  // namespace

/// The data of this computer go to a folder, from which another one takes them.
class ExportFilesTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() {
    QCoreApplication::setApplicationVersion(u"0.1.0"_s);
    home_ = std::make_unique<DataHome>();
    ConnectionString = ConnectionStringFor(DatabaseFile());
    CreateSubFolders();
    MakeDatabaseFile(DatabaseFile(), u"Lee"_s);
    target_ = home_->Folder().MakeFolder(u"Ann's stick"_s);
    Write(u"photos/hires/c1.jpg"_s, "large");
    Write(u"photos/hires/c2.jpg"_s, "large too");
    Write(u"photos/thumbnail/c1.jpg"_s, "small");
    Write(u"backup/db00001.mdb"_s, "a backup");
    Write(u"support/address.txt"_s, "Lee's Loft");
    Write(u"loftkeep.lock"_s, "ours");
    steps.clear();
  }
  void cleanup() {
    SetStandByNotice({});
    home_.reset();
  }

  void AllGoesToTheFolder() {
    ScriptedPrompts prompts;
    Write(u"photos/archive/old.jpg"_s, "deleted");
    SetStandByNotice({[](const QString& text) { steps << text; }, [] {}, [] {}});
    const double size = GetTotalExportSize();
    QCOMPARE(size, QFile(DatabaseFile()).size() + 5 + 9 + 5);
    ExpectQuestions(prompts, kExport + 1, size + 7);
    ExpectListing(prompts,
                  u"Your main database file.\n2 hi resolution photos\n1 thumbnail photos\n"
                  "1 archived photos\n1 backup database files\n2 support files"_s);
    ExpectDone(prompts);
    const auto before = FilesBelow(DataPath);
    MoveProgram([this] { return target_; });
    auto expected = before;
    expected[u"support/Version.txt"_s] = "010\r\n";
    QCOMPARE(FilesBelow(DataPath), expected);
    expected.remove(u"loftkeep.lock"_s);
    expected.remove(u"other"_s);
    expected.remove(u"loftkeep.mdb-journal"_s);
    auto exported = FilesBelow(target_);
    QCOMPARE(exported.keys(), expected.keys());
    QCOMPARE(CustomersIn(target_ + u"/loftkeep.mdb"_s), CustomersIn(DatabaseFile()));
    for (auto* files : {&exported, &expected}) files->remove(u"loftkeep.mdb"_s);
    QCOMPARE(exported, expected);
    QCOMPARE(steps.first(), u"copying database file"_s);
    QVERIFY(steps.contains(u"copying old.jpg"_s) && steps.contains(u"copying db00001.mdb"_s));
    QVERIFY(!prompts.ShowsBusyPointer());
  }

  void WithoutDeletedPhotosNothingIsAskedAboutThem() {
    ScriptedPrompts prompts;
    ExpectQuestions(prompts, kExport + 1, GetTotalExportSize(), false);
    ExpectListing(prompts,
                  u"Your main database file.\n2 hi resolution photos\n1 thumbnail photos\n"
                  "1 backup database files\n2 support files"_s);
    ExpectDone(prompts);
    MoveProgram([this] { return target_; });
    QVERIFY(!FolderExists(target_ + u"/photos/archive"_s));
  }

  void DeletedPhotosStayWhereThePersonSaysSo() {
    ScriptedPrompts prompts;
    Write(u"photos/archive/old.jpg"_s, "deleted");
    double size = 99;
    prompts.Expect(kTitles[kArchive], TextOf(kArchive, 0), Answer::No);
    QVERIFY(!AskArchivePhotos(size));
    QCOMPARE(size, 7.0);
    ExpectQuestions(prompts, kArchive, 0, false);
    prompts.Expect(kTitles[kArchive], TextOf(kArchive, 0), Answer::No);
    prompts.Expect(kTitles[kSelect], TextOf(kSelect, GetTotalExportSize()), Answer::No);
    MoveProgram([this] { return target_; });
  }

  void EachNoEndsTheExport_data() {
    QTest::addColumn<int>("question");
    QTest::newRow("first") << int(kMove);
    QTest::newRow("second") << int(kReady);
    QTest::newRow("third") << int(kSelect);
    QTest::newRow("last") << int(kExport);
  }
  void EachNoEndsTheExport() {
    QFETCH(int, question);
    ScriptedPrompts prompts;
    ExpectQuestions(prompts, question, GetTotalExportSize(), false);
    prompts.Expect(kTitles[question], TextOf(question, GetTotalExportSize()), Answer::No).WithPreset(Answer::No);
    int chosen = 0;
    MoveProgram([&] {
      ++chosen;
      return target_;
    });
    QCOMPARE(chosen, question == kExport ? 1 : 0);
    QCOMPARE(FilesBelow(target_).size(), 0);
    QCOMPARE(ExistFile(SupportFile(u"Version.txt"_s)), question > kReady);
  }

  void WithoutAFolderNothingIsExported() {
    ScriptedPrompts prompts;
    for (const QString& folder : {QString(), u"cancel"_s, target_ + u"/gone"_s}) {
      ExpectQuestions(prompts, kExport, GetTotalExportSize(), false);
      if (folder.contains(u'/')) prompts.ExpectBox(u"Error"_s, u"Can't find folder called "_s + folder);
      MoveProgram([&] { return folder; });
      prompts.Finish();
    }
    QCOMPARE(FilesBelow(target_).size(), 0);
  }

  void WhatCantBeCopiedIsLeftOutAndNoSuccessIsTold() {
    ScriptedPrompts prompts;
    Write(u"photos/hires/c1.jpg"_s, QByteArray(700000, 'x'));
    ExpectQuestions(prompts, kExport + 1, GetTotalExportSize(), false);
    prompts.ExpectBox(u"Sub MyFileCopy"_s, u"File too large\nSource file = "_s + target_ + u"/photos/hires/c1.jpg"_s);
    ExpectListing(prompts,
                  u"Your main database file.\n1 hi resolution photos\n1 thumbnail photos\n"
                  "1 backup database files\n2 support files"_s);
    const FullDisk disk(600000);
    MoveProgram([this] { return target_; });
    QVERIFY(!ExistFile(target_ + u"/photos/hires/c1.jpg"_s));
    QVERIFY(ExistFile(target_ + u"/photos/hires/c2.jpg"_s));
  }

  void ADatabaseThatDoesNotFitIsNotCalledCopied() {
    ScriptedPrompts prompts;
    ExpectQuestions(prompts, kExport + 1, GetTotalExportSize(), false);
    prompts.ExpectBox(u"Function CopyLoftForOthers"_s, u"disk I/O error"_s);
    ExpectListing(prompts, u"2 hi resolution photos\n1 thumbnail photos\n1 backup database files\n2 support files"_s);
    const FullDisk disk(1000);
    MoveProgram([this] { return target_; });
    QVERIFY(!ExistFile(target_ + u"/loftkeep.mdb"_s));
  }

  void WhoCancelsIsToldWhatWasCopiedAndNotOfSuccess() {
    ScriptedPrompts prompts;
    WorkWatch watch;
    SetStandByNotice({[](const QString& text) {
                        if (text == "copying c2.jpg"_L1) WorkWatch::LetTimePass();
                      },
                      [] {}, [] {}});
    watch.meanwhile = [&] { watch.cancels = true; };
    ExpectQuestions(prompts, kExport + 1, GetTotalExportSize(), false);
    ExpectListing(prompts,
                  u"Your main database file.\n1 hi resolution photos\n0 thumbnail photos\n"
                  "0 backup database files\n0 support files"_s);
    MoveProgram([this] { return target_; });
    QCOMPARE(watch.shown[0].total, 7);
    QCOMPARE(watch.shown[0].done, 2);
    QVERIFY(!watch.isShown);
    QVERIFY(!prompts.ShowsBusyPointer());
    QCOMPARE(FilesBelow(target_ + u"/photos/hires"_s).keys(), QStringList(u"c1.jpg"_s));
    QVERIFY(!FolderExists(DataPath + u"loftkeep.mdb.scratch"_s));
  }

  void AnotherComputerTakesTheExport() {
    ScriptedPrompts prompts;
    home_->Folder().Write(u"work/blank.mdb"_s, "an empty database");
    prompts.AnswerRestWith([](const ShownPrompt& p) { return p.buttons == Buttons::YesNo ? Answer::Yes : Answer::Ok; });
    MoveProgram([this] { return target_; });
    qputenv("XDG_DATA_HOME", home_->Folder().MakeFolder(u"new computer"_s).toUtf8());
    SetDataFolder();
    QVERIFY(!FolderExists(DataPath));
    ConnectionString = ConnectionStringFor(DatabaseFile());
    QVERIFY(Importingfiles(target_));
    QCOMPARE(CustomersIn(DatabaseFile()), QStringList{u"Lee"_s});
    QCOMPARE(ReadFile(DataPath + u"photos/hires/c2.jpg"_s), QByteArray("large too"));
    QCOMPARE(ReadFile(DataPath + u"backup/db00001.mdb"_s), QByteArray("a backup"));
    QCOMPARE(ReadFile(DataPath + u"support/address.txt"_s), QByteArray("Lee's Loft"));
  }

  void OnlyAnEmptyFolderTakesAnExport() {
    ScriptedPrompts prompts;
    QVERIFY(AcceptExportFolder(target_));
    home_->Folder().Write(u"Ann's stick/a.txt"_s, "a");
    prompts.ExpectBox(u"Loftkeep"_s,
                      u"There is 1 file in the selected folder.\nPlease select or create an empty folder"_s);
    QVERIFY(!AcceptExportFolder(target_));
    home_->Folder().Write(u"Ann's stick/b.txt"_s, "b");
    prompts.ExpectBox(u"Loftkeep"_s,
                      u"There are 2 files in the selected folder.\nPlease select or create an empty folder"_s);
    QVERIFY(!AcceptExportFolder(target_));
  }

 private:
  void Write(const QString& name, const QByteArray& content) const {
    home_->Folder().Write(u"home/loftkeep/"_s + name, content);
  }

  QString TextOf(int question, double size) const {
    switch (question) {
      case kMove:
        return u"If you are installing Loftkeep on a new computer,\nthis tool will allow you to move your data files\n"
               "to a temporary location for exporting.  This location can be\n"
               "a USB flash drive, portable hard drive, local folder, etc.\n\n"
               "Would you like to move your data files to a location\nfor exporting?"_s;
      case kReady:
        return u"This will copy your database and photo files for moving to\n"
               "another computer.  Remember that this moves your data files\n"
               "only, not the actual Loftkeep program.\n\n"
               "The actual Loftkeep program must be installed on your new\n"
               "computer by running 'LK_install.exe'\n\nAre you ready to export your files?"_s;
      case kArchive:
        return u"There are 1 photos in your deleted photos folder (archive)\nSpace required = 0 kB  (0.0 MB)\n"
               "They are stored in this location:\n      %1photos/archive\n"
               "Do you want these deleted photos copied also?"_s.arg(DataPath);
      case kSelect:
        return u"On the next screen, you will select a folder for exporting\n"
               "your database and photo files.  The folder can exist on a USB\n"
               "flash drive or portable hard drive for moving files to a new computer\n\n"
               "The space required depends on the size of your database file and\nby the number of photos.\n\n"
               "The folder must be able to hold %1\n\n"
               "It is necessary that you select or create an empty folder\nfor exporting these files\n\n"
               "Are you ready to select a folder for exporting?"_s.arg(FormatFileSize(size));
      default:
        return u"Preparing to export files to %1\n\n(Please remember that folder location) \n\n"
               "Are you ready to export files?"_s.arg(target_);
    }
  }

  /// Yes to each question before `end`.
  void ExpectQuestions(ScriptedPrompts& prompts, int end, double size, bool hasArchive = true) const {
    for (int question = kMove; question < end; ++question)
      if (question != kArchive || hasArchive)
        prompts.Expect(kTitles[question], TextOf(question, size), Answer::Yes)
            .WithButtons(Buttons::YesNo)
            .WithPreset(Answer::No);
  }

  static void ExpectListing(ScriptedPrompts& prompts, const QString& lines) {
    prompts.ExpectBox(u"Loftkeep"_s, u"The following files were copied:\n\n"_s + lines);
  }

  void ExpectDone(ScriptedPrompts& prompts) const {
    prompts.ExpectBox(u"Done"_s,
                      u"Files exported successfully to the following location:\n\n      %1\n\n"
                      "You are now ready to move these files to your new computer.\n\n"
                      "You will need to copy your export folder to portable media such as\n"
                      "a flash drive or portable hard drive.\n\n"
                      "Once you have downloaded and installed Loftkeep on your new \n"
                      "computer, you can import these files from the TOOLS menu.\n"
                      "(see 'import files from another computer')"_s.arg(target_));
  }

  std::unique_ptr<DataHome> home_;
  QString target_;
};

LOFT_TEST_MAIN(ExportFilesTest)
#include "tst_export_files.moc"
