#include <QtTest>

#include "core/failure.h"
#include "core/prompts.h"
#include "reports/fonts.h"
#include "reports/primitives.h"
#include "reports/report_keys.h"
#include "support/data_folder_here.h"
#include "support/refusing_disk.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

class TestReport : public QObject {
  Q_OBJECT

  std::unique_ptr<TempFolder> folder_;
  std::unique_ptr<DataFolderHere> here_;
  std::unique_ptr<ScriptedPrompts> prompts_;
  int read_ = 0;

  static QString File() { return u"body.txt"_s; }
  bool HasFile() const { return folder_->Has(u"support/body.txt"_s); }
  /// Paints and writes one word.
  Report Saying(const QString& word) {
    ++read_;
    return Report{.paint = [word](Canvas& page) { PrintJustified(page, 0.1, word); },
                  .html = [word] { return QStringList{word + u"<br>"_s}; }};
  }

 private Q_SLOTS:
  void init() {
    folder_ = std::make_unique<TempFolder>();
    here_ = std::make_unique<DataFolderHere>(*folder_);
    prompts_ = std::make_unique<ScriptedPrompts>();
    read_ = 0;
  }
  void cleanup() {
    prompts_.reset();
    here_.reset();
    folder_.reset();
  }

  void AReportIsReadOnceAndItsMailIsWhole() {
    folder_->Write(u"support/body.txt"_s, QByteArray(5000, 'x'));
    const auto report = MakeReport(u"Sub Test"_s, File(), [this] { return Saying(u"now"_s); });
    QVERIFY(report);
    QCOMPARE(folder_->Read(u"support/body.txt"_s), "now<br>\r\n");
    for (const double size : {8.0, 20.0}) {
      FontChoice font = {u"Arial"_s, size, false, false};
      const Pages pages = DrawReport(*report, font);
      QCOMPARE(std::get<PageText>(pages.pages.first().first()), (PageText{1224, 0, u"now"_s, font}));
      QCOMPARE(pages.orientation, PageOrientation::Portrait);
    }
    QCOMPARE(read_, 1);
  }

  void OneThatCannotBeReadLeavesNoMailOfTheOneBefore() {
    folder_->Write(u"support/body.txt"_s, "before");
    prompts_->ExpectBox(u"Sub Test"_s, u"no such table"_s);
    QVERIFY(!MakeReport(u"Sub Test"_s, File(), []() -> Report { throw Failure(u"no such table"_s); }));
    QVERIFY(!HasFile());
  }

  void OneWhoseMailCannotBeWrittenCanStillBePrinted() {
    folder_->Write(u"support/body.txt"_s, "before");
    prompts_->AnswerRestWith([](const ShownPrompt&) { return Answer::Ok; });
    const FullDisk full(100);
    const auto report = MakeReport(u"Sub Test"_s, File(), [this] { return Saying(QString(200, u'x')); });
    QVERIFY(report && report->paint && !report->html);
    QCOMPARE(prompts_->Transcript().size(), 1);
    QCOMPARE(prompts_->Transcript().first().title, u"Sub Test"_s);
    QVERIFY(!HasFile());
  }

  void OneThatIsNeverMailedWritesNoFile() {
    const QStringList before = QDir(folder_->Path() + u"/support"_s).entryList();
    QVERIFY(MakeReport(u"Sub Test"_s, {}, [] { return Report{.paint = [](Canvas&) {}}; }));
    QCOMPARE(QDir(folder_->Path() + u"/support"_s).entryList(), before);
  }

  void AReportMayLieAcrossThePageAndCutItsFont() {
    const Report wide = {.orientation = PageOrientation::Landscape,
                         .paint = [](Canvas& page) { PrintJustified(page, 0.5, u"x"_s); },
                         .limitFont = LimitLogbookFont};
    FontChoice font = {u"Georgia"_s, 12, false, false};
    prompts_->ExpectBox(u"Font size = 12"_s, u"Logbook cannot have font size > 10\n\nFont size changed to 10"_s);
    const Pages pages = DrawReport(wide, font);
    QCOMPARE(font.size, 10.0);
    QCOMPARE(ReadFonts(), font);
    QCOMPARE(pages.orientation, PageOrientation::Landscape);
    QCOMPARE(std::get<PageText>(pages.pages.first().first()), (PageText{7920, 0, u"x"_s, font}));
    DrawReport(wide, font);
  }

  void UnknownKeysAreTold_data() {
    QTest::addColumn<QString>("key");
    QTest::newRow("nonsense") << u"Nonsense"_s;
    QTest::newRow("the logbook's old key") << u"LogBook"_s;
    QTest::newRow("none") << QString();
  }
  void UnknownKeysAreTold() {
    QFETCH(QString, key);
    prompts_->ExpectBox(kProgramTitle, u"don't know "_s + key);
    QVERIFY(!ReportOfKey(key, 1));
  }
};

LOFT_TEST_MAIN(TestReport)
#include "tst_report.moc"
