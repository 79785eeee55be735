#include <QCoreApplication>
#include <QFile>
#include <QTest>

#include "core/data_folder.h"
#include "dbcare/version_file.h"
#include "support/data_home.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

class VersionFileTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() {
    QCoreApplication::setApplicationVersion(u"2.1.3"_s);
    home_ = std::make_unique<DataHome>();
  }
  void cleanup() { home_.reset(); }

  void TheNumbersAreJoinedToOneLine() {
    ScriptedPrompts prompts;
    CreateSubFolders();
    CreateVersionFile();
    QCOMPARE(home_->Folder().Read(u"home/loftkeep/support/Version.txt"_s), QByteArray("213\r\n"));
    QVERIFY(VersionIsOK(home_->Folder() / u"home/loftkeep"_s));
  }

  void AFileThatCantBeWrittenIsTold() {
    ScriptedPrompts prompts;
    prompts.ExpectBox(u"Sub CreateVersionFile"_s, u"No such file or directory"_s);
    CreateVersionFile();
  }

  void EqualAndLowerNumbersGoOn_data() {
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("equal") << QByteArray("213\r\n");
    QTest::newRow("lower") << QByteArray("212\n");
    QTest::newRow("blanks") << QByteArray("  213  \n999\n");
    QTest::newRow("leading nought") << QByteArray("099");
  }
  void EqualAndLowerNumbersGoOn() {
    QFETCH(QByteArray, line);
    ScriptedPrompts prompts;
    home_->Folder().Write(u"export/support/version.txt"_s, line);
    QVERIFY(VersionIsOK(home_->Folder() / u"export"_s));
  }

  void AHigherNumberIsRefusedWithTheWayToANewerProgram_data() {
    QTest::addColumn<bool>("goes");
    QTest::newRow("No") << false;
    QTest::newRow("Yes") << true;
  }
  void AHigherNumberIsRefusedWithTheWayToANewerProgram() {
    QFETCH(bool, goes);
    ScriptedPrompts prompts;
    const TempFolder& folder = home_->Folder();
    folder.Write(u"export/support/VERSION.TXT"_s, "214\r\n");
    folder.Write(u"work/download.txt"_s, "https://loft.example/new\n");
    const QString browser = folder.Write(u"bin/xdg-open"_s, "#!/bin/sh\nprintf %s \"$1\" > \"$0.shown\"\n");
    QVERIFY(QFile::setPermissions(browser, QFile::ReadOwner | QFile::ExeOwner));
    const QByteArray pathBefore = qgetenv("PATH");
    qputenv("PATH", (folder / u"bin"_s).toUtf8() + ':' + pathBefore);
    prompts
        .Expect(u"Need to install new version"_s,
                u"You are currently running Loftkeep version 2.1.3\n\n"
                "You are attempting to import files from version 2.1.4\n\n"
                "You must be using the latest version of Loftkeep before importing files.\n\n"
                "You can get it from https://loft.example/new\n\nWould you like to go there now?"_s,
                goes ? Answer::Yes : Answer::No)
        .WithButtons(Buttons::YesNo);
    QVERIFY(!VersionIsOK(folder / u"export"_s));
    qputenv("PATH", pathBefore);
    if (goes) QTRY_VERIFY(folder.Has(u"bin/xdg-open.shown"_s));
    QTest::qWait(goes ? 0 : 50);
    QCOMPARE(folder.Has(u"bin/xdg-open.shown"_s), goes);
    if (goes) QTRY_COMPARE(folder.Read(u"bin/xdg-open.shown"_s), QByteArray("https://loft.example/new"));
  }

  void WithoutABrowserThePersonIsTold() {
    ScriptedPrompts prompts;
    home_->Folder().Write(u"export/support/version.txt"_s, "3000");
    home_->Folder().Write(u"work/download.txt"_s, "https://loft.example/new\n");
    const QByteArray pathBefore = qgetenv("PATH");
    qputenv("PATH", home_->Folder().MakeFolder(u"nothing"_s).toUtf8());
    prompts.AnswerRestWith(
        [](const ShownPrompt& shown) { return shown.buttons == Buttons::YesNo ? Answer::Yes : Answer::Ok; });
    QVERIFY(!VersionIsOK(home_->Folder() / u"export"_s));
    qputenv("PATH", pathBefore);
    QCOMPARE(prompts.Transcript().last().title, u"Function VersionIsOK"_s);
    QCOMPARE(prompts.Transcript().last().text, u"The page could not be opened"_s);
  }

 private:
  std::unique_ptr<DataHome> home_;
};

LOFT_TEST_MAIN(VersionFileTest)
#include "tst_version_file.moc"
