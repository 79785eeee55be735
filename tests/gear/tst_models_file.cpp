#include <QtTest>

#include "core/data_folder.h"
#include "core/store/connection.h"
#include "gear/models_file.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"
#include "support/work_watch.h"

using namespace Qt::StringLiterals;

namespace {

/// A loft without models whose support folder is the test's own.
struct EmptyCatalogue {
  ThrowAwayLoft loft;
  TempFolder data;
  ScriptedPrompts prompts;

  EmptyCatalogue() {
    data.MakeFolder(u"support"_s);
    DataPath = data.Path() + u'/';
  }
  ~EmptyCatalogue() { DataPath.clear(); }
  EmptyCatalogue(const EmptyCatalogue&) = delete;
  EmptyCatalogue& operator=(const EmptyCatalogue&) = delete;

  /// As at the start of the program.
  void ImportSilently(const QByteArray& content) const {
    data.Write(u"support/models.txt"_s, content);
    ImportModels(true);
  }
  /// By the menu; what comes after the choice of the file is up to the test.
  void Choose(const QString& file) {
    prompts.Expect(kProgramTitle, u"Import models and manufacturers?"_s, Answer::Yes);
    prompts.ExpectOpenFile(u"Find file 'models.txt"_s, file);
  }
  QStringList Makers() const { return loft.Rows(u"select ID, Name from tblManufacturers"_s); }
  QStringList Models() const { return loft.Rows(u"select Name, ManfID, TypeID, Price, ServiceLife from tblModels"_s); }
};

}  // namespace

/// The models file as it comes from other hands.
class TestModelsFile : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void BlanksAndLineEndsMakeNoDifference_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("plain") << "<mfg>\r\nPD\r\n4\r\n<end mfg>\r\nStorm\r\n4\r\n2\r\n12.5\r\n"_ba;
    QTest::newRow("blanks around numbers") << "<mfg>\r\nPD\r\n 4 \r\n<end mfg>\r\nStorm\r\n 4 \r\n 2\r\n 12.5 \r\n"_ba;
    QTest::newRow("line feeds") << "<mfg>\nPD\n4\n<end mfg>\nStorm\n4\n2\n12.5\n"_ba;
    QTest::newRow("no closing line end") << "<mfg>\nPD\n4\n<end mfg>\nStorm\n4\n2\n12.5"_ba;
    QTest::newRow("byte order mark") << "\xEF\xBB\xBF<mfg>\r\nPD\r\n4\r\n<end mfg>\r\nStorm\r\n4\r\n2\r\n12.5\r\n"_ba;
  }
  void BlanksAndLineEndsMakeNoDifference() {
    QFETCH(QByteArray, content);
    const EmptyCatalogue shop;
    shop.ImportSilently(content);
    QCOMPARE(shop.Makers(), QStringList(u"4|PD"_s));
    QCOMPARE(shop.Models(), QStringList(u"Storm|4|2|0|0"_s));
  }

  void ACancelledImportTakesNothingIn() {
    const EmptyCatalogue shop;
    WorkWatch watch;
    watch.cancels = true;
    QByteArray content = "<mfg>\nPD\n4\n<end mfg>\n";
    for (int i = 0; i < 50000; ++i) content += "Storm " + QByteArray::number(i) + "\n4\n2\n0\n";
    shop.ImportSilently(content);
    QCOMPARE(watch.shown.size(), 1);
    QCOMPARE(watch.shown[0].total, 200004);
    QVERIFY(watch.shown[0].done > 4 && watch.shown[0].done < 200004);
    QCOMPARE(shop.Makers(), QStringList());
    QCOMPARE(shop.Models(), QStringList());
  }

  void NamesAreReadInTheirEncoding_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("UTF-8") << "Zo\xC3\xAB's \xE2\x80\x9Cq\xE2\x80\x9D"_ba;
    QTest::newRow("Windows-1252") << "Zo\xEB's \x93q\x94"_ba;
  }
  void NamesAreReadInTheirEncoding() {
    QFETCH(QByteArray, bytes);
    const EmptyCatalogue shop;
    shop.ImportSilently("<mfg>\r\n" + bytes + "\r\n4\r\n<end mfg>\r\n" + bytes + "\r\n4\r\n2\r\n0\r\n");
    QCOMPARE(shop.Makers(), QStringList(u"4|Zo\u00EB's \u201Cq\u201D"_s));
    QCOMPARE(shop.Models(), QStringList(u"Zo\u00EB's \u201Cq\u201D|4|2|0|0"_s));
  }

  void AFileThatIsCutShortGivesWhatItHas_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("makers");
    QTest::addColumn<QStringList>("models");
    const QStringList pd{u"4|PD"_s};
    QTest::newRow("in a model") << "<mfg>\nPD\n4\n<end mfg>\nStorm\n4\n2\n0\nPilot\n4"_ba << pd
                                << QStringList{u"Storm|4|2|0|0"_s, u"Pilot|4|0|0|0"_s};
    QTest::newRow("behind the makers") << "<mfg>\nPD\n4\n<end mfg>"_ba << pd << QStringList();
    QTest::newRow("in a maker") << "<mfg>\nPD\n4\nIcarus"_ba << QStringList{u"4|PD"_s, u"0|Icarus"_s} << QStringList();
    QTest::newRow("behind the first line") << "<mfg>"_ba << QStringList() << QStringList();
    QTest::newRow("empty") << ""_ba << QStringList() << QStringList();
  }
  void AFileThatIsCutShortGivesWhatItHas() {
    QFETCH(QByteArray, content);
    const EmptyCatalogue shop;
    shop.ImportSilently(content);
    QTEST(shop.Makers(), "makers");
    QTEST(shop.Models(), "models");
    QVERIFY(!ConnectionIsOpen);
  }

  void WithoutItsFirstMarkerAFileHasNoMakers() {
    EmptyCatalogue shop;
    const QByteArray content = "models\nStorm\n4\n2\n0\n";
    shop.Choose(shop.data.Write(u"other.txt"_s, content));
    shop.prompts.ExpectBox(u"wrong file"_s, u"that isn't a valid models text file"_s);
    ImportModels(false);
    QCOMPARE(shop.Models(), QStringList());
    shop.ImportSilently(content);  // the program's own copy is not asked for its markers
    QCOMPARE(shop.Makers(), QStringList());
    QCOMPARE(shop.Models(), QStringList(u"Storm|4|2|0|0"_s));
  }

  void AFileThatCantBeReadIsTold() {
    EmptyCatalogue shop;
    const QStringList before = shop.loft.Snapshot();
    shop.Choose(shop.data / u"gone.txt"_s);
    shop.prompts.ExpectBox(u"Sub ImportModels"_s, u"File not found"_s);
    ImportModels(false);
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void ANumberThatIsTooHighIsTold() {
    EmptyCatalogue shop;
    shop.prompts.ExpectBox(u"Sub ImportModels"_s, u"Overflow"_s);
    shop.ImportSilently("<mfg>\nPD\n4\n<end mfg>\nStorm\n99999999999\n2\n0\n");
    QCOMPARE(shop.Models(), QStringList());
    QVERIFY(!ConnectionIsOpen);
  }

  void AnExportThatCantBeWrittenIsTold() {
    EmptyCatalogue shop;
    const TempFolder folder;
    folder.MakeFolder(u"models.txt"_s);
    const QString here = QDir::currentPath();
    QDir::setCurrent(folder.Path());
    shop.prompts.Expect(kProgramTitle, u"ready to export to file?"_s, Answer::Yes);
    shop.prompts.AnswerRestWith([](const ShownPrompt&) { return Answer::Ok; });
    ExportModels();
    QDir::setCurrent(here);
    QCOMPARE(shop.prompts.Transcript().size(), 2);
    QCOMPARE(shop.prompts.Transcript().last().title, u"Sub ExportModels"_s);
    QVERIFY(!ConnectionIsOpen);
  }
};

LOFT_TEST_MAIN(TestModelsFile)
#include "tst_models_file.moc"
