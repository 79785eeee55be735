#include <QtTest>

#include "core/platform.h"
#include "core/text.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

class TestText : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void JoinsPaths() {
    QCOMPARE(JoinPath(u"C:\\data"_s, u"a.txt"_s), u"C:\\data\\a.txt"_s);
    QCOMPARE(JoinPath(u"C:\\data\\"_s, u"\\a.txt"_s), u"C:\\data\\a.txt"_s);
    QCOMPARE(JoinPath(u"/data"_s, u"a.txt"_s), u"/data/a.txt"_s);
    QCOMPARE(JoinPath(u"/data/"_s, u"/a.txt"_s), u"/data/a.txt"_s);
    QCOMPARE(JoinPath(u"data"_s, u"a.txt"_s), u"data\\a.txt"_s);
    QCOMPARE(JoinPath(u"C:\\a/b"_s, u"c"_s), u"C:\\a/b\\c"_s);
    QCOMPARE(JoinPath(u"/data"_s, u"support\\a.txt"_s), u"/data/support\\a.txt"_s);
    QCOMPARE(JoinPath(QString(), u"/a.txt"_s), u"a.txt"_s);
    QCOMPARE(JoinPath(u"/data"_s, QString()), u"/data/"_s);
  }

  void ClosesFolders() {
    QCOMPARE(AddClosingSeparator(QString()), QString());
    QCOMPARE(AddClosingSeparator(u"a"_s), u"a\\"_s);
    QCOMPARE(AddClosingSeparator(u"/a"_s), u"/a/"_s);
    QCOMPARE(AddClosingSeparator(u"/a/"_s), u"/a/"_s);
    QCOMPARE(AddClosingSeparator(u"c:\\a\\"_s), u"c:\\a\\"_s);
  }

  void KnowsSlashes() {
    for (const QString& text : {u"a/b"_s, u"a\\b"_s, u"/"_s}) {
      QCOMPARE(IsPath(text), true);
      QCOMPARE(HasSlash(text), true);
    }
    QCOMPARE(IsPath(u"a.b"_s), false);
    QCOMPARE(HasSlash(QString()), false);
  }

  void ChangesExtensions() {
    QCOMPARE(ChangeFileExtention(u"photo.bmp"_s, u"jpg"_s), u"photo.jpg"_s);
    QCOMPARE(ChangeFileExtention(u"photo.old.bmp"_s, u"jpg"_s), u"photo.jpg"_s);
    QCOMPARE(ChangeFileExtention(u"photo"_s, u"jpg"_s), u"photo.jpg"_s);
    QCOMPARE(MakeWildcardName(u"photo.old.bmp"_s, u".jpg"_s), u"photo*.jpg"_s);
    QCOMPARE(MakeWildcardName(u"photo"_s, u".jpg"_s), u"photo*.jpg"_s);
  }

  void KnowsNumbersAndCharacters() {
    QCOMPARE(IsEven(4), true);
    QCOMPARE(IsEven(0), true);
    QCOMPARE(IsEven(-3), false);
    QCOMPARE(IsEven(2.5), false);
    QCOMPARE(IsAllDigits(u"0129"_s), true);
    QCOMPARE(IsAllDigits(QString()), false);
    QCOMPARE(IsAllDigits(u"1.5"_s), false);
    QCOMPARE(IsAllDigits(u"\u0661"_s), false);
    QCOMPARE(IsPrintable(31), false);
    QCOMPARE(IsPrintable(32), true);
    QCOMPARE(IsPrintable(125), true);
    QCOMPARE(IsPrintable(126), false);
  }

  void CleansTexts() {
    QCOMPARE(ReplaceChar(u"1\\2\\10"_s, u'\\', u'/'), u"1/2/10"_s);
    QCOMPARE(ReplaceChar(u"abc"_s, u'x', u'y'), u"abc"_s);
    QCOMPARE(RemoveDoubleSpaces(u"  a   b c  "_s), u"a b c"_s);
    QCOMPARE(RemoveDoubleSpaces(u"a \n b"_s), u"a \n b"_s);
    QCOMPARE(RemoveDoubleSpaces(u"   "_s), QString());
    QCOMPARE(ProperCase(u"  john van dyke "_s), u"John Van Dyke"_s);
    QCOMPARE(ProperCase(u"mcDONALD"_s), u"McDONALD"_s);
    QCOMPARE(ProperCase(QString()), QString());
  }

  void FindsTheArticle() {
    for (const QString& word : {u"AAD"_s, u"event"_s, u"Item"_s, u"old"_s, u"upper"_s, u"8-cell"_s}) {
      QCOMPARE(ArticleFor(word), u"an "_s);
    }
    QCOMPARE(ArticleFor(u"reserve"_s), u"a "_s);
    QCOMPARE(ArticleFor(QString()), QString());
  }

  void SplitsNames_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expectedLast");
    QTest::addColumn<QString>("expectedFirst");
    QTest::newRow("comma and blank") << u"Smith, John"_s << u"Smith"_s << u"John"_s;
    QTest::newRow("blank before the comma") << u"Smith , John"_s << u"Smith"_s << u"John"_s;
    QTest::newRow("two commas") << u"Smith, John, Jr"_s << u"Smith"_s << u"John, Jr"_s;
    QTest::newRow("comma") << u"Smith,John"_s << u"Smith"_s << u"John"_s;
    QTest::newRow("words behind the comma") << u"van Dyke,  John  Paul "_s << u"van Dyke"_s << u"John Paul"_s;
    QTest::newRow("two words") << u" John   Smith "_s << u"Smith"_s << u"John"_s;
    QTest::newRow("three words") << u"John Paul Smith"_s << u"Smith"_s << u"John Paul"_s;
    QTest::newRow("one word") << u"Smith"_s << u"Smith"_s << QString();
    QTest::newRow("closing comma") << u"Smith,"_s << u"Smith"_s << QString();
    QTest::newRow("empty") << QString() << QString() << QString();
  }
  void SplitsNames() {
    QFETCH(QString, text);
    QString last = u"old"_s;
    QString first = u"old"_s;
    SplitName(text, last, first);
    QTEST(last, "expectedLast");
    QTEST(first, "expectedFirst");
  }

  void Searches() {
    QCOMPARE(FindLast(u"a.b.c"_s, u'.'), 4);
    QCOMPARE(FindLast(u"abc"_s, u'a'), 1);
    QCOMPARE(FindLast(u"abc"_s, u'.'), 0);
    QCOMPARE(CountOccurrences(u"Aa aA b"_s, u"a"_s, false), 4);
    QCOMPARE(CountOccurrences(u"Aa aA b"_s, u"a"_s, true), 2);
    QCOMPARE(CountOccurrences(u"abc"_s, QString(), false), 0);
    QCOMPARE(IdInArray(3, {1, 3}), true);
    QCOMPARE(IdInArray(2, {1, 3}), false);
    QCOMPARE(IdInArray(0, {}), false);
  }

  void TellsFileSizes() {
    QCOMPARE(FormatFileSize(1048576), u"1,024 kB  (1.0 MB)"_s);
    QCOMPARE(FormatFileSize(0), u"0 kB  (0.0 MB)"_s);
    QCOMPARE(FormatFileSize(5e9), u"4,882,813 kB  (4,882.8 MB)"_s);
  }

  void NamesTheVersionsOfWindows() {
    using Version = WindowsVersion;
    const auto name = [](Version::Family family, int major, int minor) {
      return WindowsVersionName(Version{family, major, minor});
    };
    QCOMPARE(name(Version::Win32s, 1, 30), u"Win32s on Windows 3.1"_s);
    QCOMPARE(name(Version::Windows9x, 4, 0), u"Windows 95"_s);
    QCOMPARE(name(Version::Windows9x, 4, 10), u"Windows 98"_s);
    QCOMPARE(name(Version::Windows9x, 4, 90), u"Windows Me"_s);
    QCOMPARE(name(Version::WindowsNT, 3, 10), u"Windows NT"_s);
    QCOMPARE(name(Version::WindowsNT, 3, 50), u"Windows NT 3.5"_s);
    QCOMPARE(name(Version::WindowsNT, 4, 0), u"Windows NT 4.0"_s);
    QCOMPARE(name(Version::WindowsNT, 5, 0), u"Windows 2000"_s);
    QCOMPARE(name(Version::WindowsNT, 5, 1), u"Windows XP"_s);
    QCOMPARE(name(Version::WindowsNT, 5, 2), u"Windows Server 2003"_s);
    QCOMPARE(name(Version::WindowsNT, 6, 0), u"Windows Vista/Server 2008"_s);
    QCOMPARE(name(Version::WindowsNT, 6, 1), u"Windows 7/Server 2008 R2"_s);
    QCOMPARE(name(Version::WindowsNT, 10, 0), u"Unable to identify your version of Windows."_s);
    QCOMPARE(WindowsVersionName(std::nullopt), u"Unable to identify your version of Windows."_s);
#ifndef Q_OS_WIN
    QCOMPARE(GetWindowsVersionText(), u"Unable to identify your version of Windows."_s);
#endif
  }

  void WritesPathsAsThePlatformDoes() {
    QCOMPARE(PlatformPath(u"a\\b/c"_s), u"a%1b%1c"_s.arg(QDir::separator()));
    qputenv("XDG_DATA_HOME", "/tmp/data home");
#ifdef Q_OS_LINUX
    QCOMPARE(CommonDataFolder(), u"/tmp/data home"_s);
#endif
    QVERIFY(!CommonDataFolder().endsWith(u'/'));
  }
};

LOFT_TEST_MAIN(TestText)
#include "tst_text.moc"
