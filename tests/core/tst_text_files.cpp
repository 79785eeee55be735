#include <QtTest>

#include <sys/stat.h>

#include "core/failure.h"
#include "core/text_files.h"
#include "support/refusing_disk.h"
#include "support/scripted_prompts.h"
#include "support/temp_folder.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

class TestTextFiles : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void SplitsLines_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("expected");
    const QStringList two = {u"a"_s, u"b"_s};
    QTest::newRow("CR LF") << QByteArray("a\r\nb\r\n") << two;
    QTest::newRow("LF") << QByteArray("a\nb\n") << two;
    QTest::newRow("CR") << QByteArray("a\rb\r") << two;
    QTest::newRow("mixed") << QByteArray("a\rb\nc\r\nd") << QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s};
    QTest::newRow("no closing line end") << QByteArray("a\r\nb") << two;
    QTest::newRow("blank lines") << QByteArray("\r\na\r\n\r\n") << QStringList{QString(), u"a"_s, QString()};
    QTest::newRow("one blank line") << QByteArray("\n") << QStringList{QString()};
    QTest::newRow("empty") << QByteArray() << QStringList();
    QTest::newRow("byte order mark") << QByteArray(
                                            "\xEF\xBB\xBF"
                                            "a\nb")
                                     << two;
    QTest::newRow("UTF-8") << QByteArray("Zo\xC3\xAB \xE2\x82\xAC") << QStringList{u"Zo\u00EB \u20AC"_s};
    QTest::newRow("Windows-1252") << QByteArray("Zo\xEB \x80 \x93q\x94 \x99")
                                  << QStringList{u"Zo\u00EB \u20AC \u201Cq\u201D \u2122"_s};
    QTest::newRow("Windows-1252 at its end") << QByteArray("\x9F") << QStringList{u"\u0178"_s};
    QTest::newRow("quotes") << QByteArray("it's \"a\"\n") << QStringList{u"it's \"a\""_s};
  }
  void SplitsLines() {
    QFETCH(QByteArray, content);
    QFETCH(QStringList, expected);
    const TempFolder temp;
    ScriptedPrompts prompts;
    const QString fn = temp.Write(u"a file.txt"_s, content);
    QStringList lines = {u"old"_s};
    ReadFileIntoArray(fn, lines);
    QCOMPARE(lines, expected);
    QCOMPARE(GetNumberLinesInFile(fn), expected.size());
    QCOMPARE(GetFileText(fn), expected.isEmpty() ? QString() : expected.join(u'\n') + u'\n');
  }

  void FilesThatCannotBeReadShowABox() {
    const TempFolder temp;
    ScriptedPrompts prompts;
    QStringList lines = {u"old"_s};
    for (const auto& [path, text] : {std::pair(temp / u"missing.txt"_s, u"File not found"_s),
                                     std::pair(temp.Path(), u"Path/File access error"_s)}) {
      prompts.ExpectBox(u"function GetFileText(fn As String)"_s, text).WithIcon(Icon::Exclamation);
      QCOMPARE(GetFileText(path), QString());
      prompts.ExpectBox(u"Sub ReadFileIntoArray"_s, text);
      ReadFileIntoArray(path, lines);
      QCOMPARE(lines, QStringList());
      prompts.ExpectBox(u"Function GetNumberLinesInFile"_s, text);
      QCOMPARE(GetNumberLinesInFile(path), 0);
      prompts.ExpectBox(u"Function StringExistsInFile"_s, text);
      QCOMPARE(StringExistsInFile(path, u"a"_s), false);
      prompts.ExpectBox(u"Sub StripFile"_s, text);
      StripFile(path);
      prompts.ExpectBox(path, u"File not found"_s);
      RemoveItemFromFile(path, u"a"_s);
    }
    QCOMPARE(temp.Names(), QStringList());
  }

  void CountsLinesUpToTheLimit() {
    const TempFolder temp;
    ScriptedPrompts prompts;
    QCOMPARE(GetNumberLinesInFile(temp.Write(u"full"_s, QByteArray(32767, '\n'))), 32767);
    prompts.ExpectBox(u"Function GetNumberLinesInFile"_s, u"Overflow"_s);
    QCOMPARE(GetNumberLinesInFile(temp.Write(u"over"_s, QByteArray(32768, '\n'))), 0);
  }

  void FindsWholeLines() {
    const TempFolder temp;
    ScriptedPrompts prompts;
    const QString fn = temp.Write(u"paths.txt"_s, "C:\\Photos\r\nD:\\it's\r\n");
    QCOMPARE(StringExistsInFile(fn, u"c:\\photos"_s), true);
    QCOMPARE(StringExistsInFile(fn, u"D:\\it's"_s), true);
    QCOMPARE(StringExistsInFile(fn, u"C:\\Photo"_s), false);
    QCOMPARE(StringExistsInFile(fn, QString()), false);
  }

  void RemovesLines() {
    const TempFolder temp;
    ScriptedPrompts prompts;
    const QString fn = temp.Write(u"paths.txt"_s, "a\nA\n\nb\na");
    RemoveItemFromFile(fn, u"a"_s);
    QCOMPARE(temp.Read(u"paths.txt"_s), QByteArray("A\r\n\r\nb\r\n"));
    RemoveItemFromFile(fn, u"ab"_s);
    QCOMPARE(temp.Read(u"paths.txt"_s), QByteArray("A\r\n\r\nb\r\n"));
    for (const QString& line : {QString(), u"A"_s, u"b"_s}) RemoveItemFromFile(fn, line);
    QCOMPARE(temp.Read(u"paths.txt"_s), QByteArray());
    QCOMPARE(temp.Names(), QStringList{u"paths.txt"_s});
  }

  void AFileWithNothingToRemoveKeepsItsBytes() {
    const TempFolder temp;
    ScriptedPrompts prompts;
    const QString fn = temp.Write(u"paths.txt"_s, "a\nb");
    RemoveItemFromFile(fn, u"c"_s);
    StripFile(fn);
    QCOMPARE(temp.Read(u"paths.txt"_s), QByteArray("a\nb"));
  }

  void ARemovalThatFailsKeepsTheFile() {
    const TempFolder temp;
    ScriptedPrompts prompts;
    const QByteArray content = QByteArray(100000, 'x') + "\r\na\r\n";
    const QString fn = temp.Write(u"paths.txt"_s, content);
    prompts.ExpectBox(u"Sub RemoveItemFromFile"_s, u"File too large\nFile: "_s + fn + u"\nText: a"_s);
    {
      const FullDisk disk(1000);
      RemoveItemFromFile(fn, u"a"_s);
    }
    QCOMPARE(temp.Read(u"paths.txt"_s), content);
    QCOMPARE(temp.Names(), QStringList{u"paths.txt"_s});
  }

  void StripsBlankLinesFromTheEnd() {
    const TempFolder temp;
    ScriptedPrompts prompts;
    const QString fn = temp.Write(u"address.txt"_s, "\nLoft\n\n  Street \n \n\t\n\n");
    StripFile(fn);
    QCOMPARE(temp.Read(u"address.txt"_s), QByteArray("\r\nLoft\r\n\r\n  Street \r\n"));
    StripFile(fn);
    QCOMPARE(temp.Read(u"address.txt"_s), QByteArray("\r\nLoft\r\n\r\n  Street \r\n"));
    StripFile(temp.Write(u"blank.txt"_s, " \n\n"));
    QCOMPARE(temp.Read(u"blank.txt"_s), QByteArray());
    StripFile(temp.Write(u"empty.txt"_s, ""));
    QCOMPARE(temp.Read(u"empty.txt"_s), QByteArray());
  }

  void AFolderThatCannotBeWrittenKeepsItsFile() {
    const TempFolder temp;
    const QString fn = temp.Write(u"address.txt"_s, "Loft\n\n");
    QCOMPARE(chmod(QFile::encodeName(temp.Path()).constData(), 0555), 0);
    {
      const OrdinaryUser user;
      ScriptedPrompts prompts;
      prompts.ExpectBox(u"Sub StripFile"_s, u"Permission denied"_s);
      StripFile(fn);
    }
    QCOMPARE(chmod(QFile::encodeName(temp.Path()).constData(), 0755), 0);
    QCOMPARE(temp.Read(u"address.txt"_s), QByteArray("Loft\n\n"));
  }

  void WritesLinesBack() {
    const TempFolder temp;
    const QStringList lines = {u"Zo\u00EB"_s, QString(), u"\u20AC"_s};
    WriteLines(temp / u"a.txt"_s, lines);
    QCOMPARE(temp.Read(u"a.txt"_s), QByteArray("Zo\xC3\xAB\r\n\r\n\xE2\x82\xAC\r\n"));
    QCOMPARE(ReadLines(temp / u"a.txt"_s), lines);
    QVERIFY_THROWS_EXCEPTION(Failure, ReadLines(temp / u"missing"_s));
    QVERIFY_THROWS_EXCEPTION(Failure, WriteLines(temp / u"missing/a.txt"_s, lines));
  }
};

LOFT_TEST_MAIN(TestTextFiles)
#include "tst_text_files.moc"
