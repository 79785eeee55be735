#include <QtTest>

#include "core/store/connection.h"
#include "reports/golden.h"
#include "reports/invoice.h"
#include "reports/invoice_loft.h"
#include "reports/paint_page.h"
#include "support/refusing_disk.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

/// The invoice from the rows to the page and the file of its mail.
class TestInvoice : public QObject {
  Q_OBJECT

  std::unique_ptr<InvoiceLoft> loft_;

  static Pages Print(int job, FontChoice font = {u"Arial"_s, 10, false, false}) {
    const std::optional<Report> report = InvoiceReport(job);
    return report ? DrawReport(*report, font) : Pages();
  }
  QString Html() const { return loft_->Html(); }
  static QList<PageText> Texts(const Pages& pages, qsizetype page = 0) {
    QList<PageText> texts;
    for (const PageItem& item : pages.pages.at(page))
      if (const auto* text = std::get_if<PageText>(&item)) texts << *text;
    return texts;
  }
  /// Where a text stands; fails the test when it is not there.
  static PageText Find(const Pages& pages, const QString& text) {
    for (qsizetype page = 0; page < pages.pages.size(); ++page)
      for (const PageText& piece : Texts(pages, page))
        if (piece.text == text) return piece;
    QTest::qFail(qPrintable(u"not on the page: "_s + text), __FILE__, __LINE__);
    return {};
  }

 private Q_SLOTS:
  void init() { loft_ = std::make_unique<InvoiceLoft>(); }
  void cleanup() { loft_.reset(); }

  void TheWholeInvoice() {
    const Pages pages = Print(loft_->WholeJob().job);
    QVERIFY(IsGolden(QFINDTESTDATA("reports/golden/invoice-whole-page.txt"), u"invoice-whole-page.txt"_s,
                     PagesAsText(pages)));
    QVERIFY(IsGolden(QFINDTESTDATA("reports/golden/invoice-whole-html.txt"), u"invoice-whole-html.txt"_s, Html()));
  }

  void TheBareInvoiceTellsThatThereIsNoAddress() {
    loft_->ExpectNoAddress();
    const Pages pages = Print(loft_->Job(0, 0, u""_s, Date()));
    QVERIFY(IsGolden(QFINDTESTDATA("reports/golden/invoice-bare-page.txt"), u"invoice-bare-page.txt"_s,
                     PagesAsText(pages)));
    QVERIFY(IsGolden(QFINDTESTDATA("reports/golden/invoice-bare-html.txt"), u"invoice-bare-html.txt"_s, Html()));
  }

  void AnAddressOfBlanksIsNone() {
    loft_->HaveAddress(" \r\n\r\n");
    loft_->ExpectNoAddress();
    Print(loft_->Job(0, 0));
  }

  void CustomerRigAndJobMayBeGone() {
    loft_->HaveAddress();
    const Pages pages = Print(loft_->Job(99, 98));
    Find(pages, u"Rig: "_s);
    Find(pages, u"Total:"_s);
    QVERIFY(!Html().contains(u"(none)"_s));
    QCOMPARE(Html().count(u"<table"_s), 2);
    const Pages ofNoJob = Print(12345);
    Find(ofNoJob, u"Job Title: "_s);
    Find(ofNoJob, u"Invoice #"_s);
  }

  void ValuesCannotBreakTheMail() {
    loft_->HaveAddress("Sm\xC3\xBCller & Sons <riggers>\r\n");
    const int rig = loft_->Rig(u"<b>\"R&D\""_s, loft_->RigTypeOf({1}, u"A<B"_s));
    loft_->Component(rig, 1, loft_->Model(u"J&K <X>"_s, 1, 12), u"<1&2>"_s, u"\"S\""_s, Date::FromParts(2026, 1, 1));
    const int job = loft_->Job(loft_->Person(u"<Ann>"_s, u"O'Neil & Co"_s), rig, u"<script>&"_s);
    loft_->Due(rig, loft_->Task(job, u"Patch <5 cm & sew"_s, 10), 1, Date::FromParts(2027, 1, 1));
    const Pages pages = Print(job);
    Find(pages, u"Job Title: <script>&"_s);
    const QString html = Html();
    for (const auto& text :
         {u"Smüller &amp; Sons &lt;riggers&gt;<br>"_s, u"Job Title: &lt;script&gt;&amp;  <br>"_s,
          u"Rig: &lt;b&gt;&quot;R&amp;D&quot;  <br>"_s, u"&lt;Ann&gt; O'Neil &amp; Co <br>"_s, u"A&lt;B  (Rig name: "_s,
          u"<td>&quot;S&quot; J&amp;K &lt;X&gt;</td><td>&lt;1&amp;2&gt;</td>"_s, u"<td>Patch &lt;5 cm &amp; sew</td>"_s,
          u"     -      Patch &lt;5 cm &amp; sew:   Due on 01/01/27 <br>"_s,
          u"     -      J&amp;K &lt;X&gt; &quot;S&quot; expiration: Expires 01/01/27 <br>"_s})
      QVERIFY2(html.contains(text), qPrintable(text + u"\nin\n"_s + html));
    QVERIFY(!html.contains(u"<script"_s));
  }

  void TheFirstInvoiceGivesTheJobItsNumber() {
    loft_->HaveAddress();
    const int job = loft_->Job(0, 0);
    Find(Print(job), u"Invoice #%1"_s.arg(job));
    QCOMPARE(loft_->Rows(u"select InvoiceNumber from tblJobs"_s), QStringList{QString::number(job)});
    loft_->Run(u"update tblJobs set InvoiceNumber = 'A-7'"_s);
    Find(Print(job), u"Invoice #A-7"_s);
  }

  void HeaderLinesEndAtTheRight() {
    const Pages pages = Print(loft_->WholeJob().job);
    const Canvas measure(PageOrientation::Portrait, {u"Arial"_s, 10, false, false});
    for (const auto& text : {u"Job Title: Spring service"_s, u"Rig: Blue"_s, u"Invoice Date: 03/09/2026"_s})
      QCOMPARE(qRound(Find(pages, text).x + measure.TextWidth(text)), qRound(0.95 * 12240));
  }

  void EmptyLinesOfTheCustomerAreLeftOut() {
    loft_->HaveAddress();
    Print(loft_->Job(loft_->Person(u"Ann"_s, u"Jones"_s), 0));
    QVERIFY(Html().contains(u"12 Elm Street <br>\nDayton, OH   45402 <br>\n555-0123 <br>\n"_s));
    loft_->Run(u"update tblPeople set state = '', zip = '', phonehome = ''"_s);
    Print(loft_->Job(1, 0));
    QVERIFY(Html().contains(u"12 Elm Street <br>\nDayton <br>\n"_s));
  }

  void PartsStandFurtherInThanTasks() {
    const Pages pages = Print(loft_->WholeJob().job);
    QCOMPARE(qRound(Find(pages, u"Closing loop"_s).x), qRound(0.35 * 12240));
    QCOMPARE(qRound(Find(pages, u"      Event documented: Reserve ride"_s).x), qRound(0.3 * 12240));
    QVERIFY(Html().contains(u"<tr><td>-           Closing loop</td><td align=right>5.00</td></tr>"_s));
  }

  void AnEventHasNoAmountButCounts() {
    loft_->HaveAddress();
    const int job = loft_->Job(0, 0);
    loft_->Task(job, u"Rain"_s, 7, 0, true);
    loft_->Task(job, u"Sewing"_s, 10);
    const Pages pages = Print(job);
    const double y = Find(pages, u"      Event documented: Rain"_s).y;
    for (const PageText& text : Texts(pages))
      QVERIFY2(text.y != y || text.text.endsWith(u"Rain"_s), qPrintable(text.text));
    QCOMPARE(Find(pages, u"17"_s).y, Find(pages, u"Total:"_s).y);
    QVERIFY(Html().contains(u"<tr><td>      Event documented: Rain</td><td align=right></td></tr>"_s));
    QVERIFY(Html().contains(u"<tr><td>Total</td><td align=right>$17.00</td></tr>"_s));
  }

  void APartIsAPartEvenAsAnEvent() {
    loft_->HaveAddress();
    const int job = loft_->Job(0, 0);
    loft_->Task(job, u"Closing loop"_s, 5, 12, true);
    QCOMPARE(qRound(Find(Print(job), u"Closing loop"_s).x), qRound(0.35 * 12240));
    QVERIFY(Html().contains(u"<tr><td>-           Closing loop</td><td align=right></td></tr>"_s));
  }

  void NothingLongRunsOverItsNeighbourOrOffThePage() {
    const QString wide(50, u'W');
    loft_->HaveAddress(wide.toUtf8() + "\r\n" + wide.toUtf8() + wide.toUtf8() + "\r\n");
    const int rig = loft_->Rig(wide + wide, loft_->RigTypeOf({1}, wide));
    loft_->Component(rig, 1, loft_->Model(wide, 1, 12), wide, wide, Date::FromParts(2026, 1, 1));
    const int job = loft_->Job(loft_->Person(wide, wide, wide), rig, wide);
    loft_->Due(rig, loft_->Task(job, wide, 10), 1, Date::FromParts(2027, 1, 1));
    loft_->Task(job, wide + wide, 0, 0, true);
    QHash<int, QList<std::pair<double, double>>> lines;
    for (const PageText& text : Texts(Print(job))) {
      Canvas measure(PageOrientation::Portrait, text.font);
      const std::pair piece(text.x, text.x + measure.TextWidth(text.text));
      QVERIFY2(piece.first >= 0.05 * 12240 - 1 && piece.second <= 0.95 * 12240 + 1, qPrintable(text.text));
      for (const auto& [from, to] : lines[qRound(text.y)])
        QVERIFY2(piece.first >= to || piece.second <= from, qPrintable(text.text));
      lines[qRound(text.y)] << piece;
    }
    QVERIFY(Html().contains(u"Job Title: "_s + wide + u"  <br>"_s));
  }

  void LongNamesAreCutBeforeTheAmount() {
    loft_->HaveAddress();
    const int job = loft_->Job(0, 0);
    const QString name = QString(50, u'W');
    loft_->Task(job, name, 1234567);
    const Pages pages = Print(job);
    const Canvas measure(PageOrientation::Portrait, {u"Arial"_s, 10, false, false});
    const QList<PageText> texts = Texts(pages);
    const auto cut =
        std::find_if(texts.begin(), texts.end(), [](const auto& text) { return text.text.startsWith(u"WWW"_s); });
    QVERIFY(cut != texts.end());
    QVERIFY(cut->x + measure.TextWidth(cut->text) < Find(pages, u"1,234,567"_s).x);
    QVERIFY(Html().contains(name));
  }

  void NoLinesGiveATotalOfNothing() {
    loft_->HaveAddress();
    const Pages pages = Print(loft_->Job(0, 0));
    QCOMPARE(Find(pages, u"0"_s).y, Find(pages, u"Total:"_s).y);
    QVERIFY(Html().contains(u"<td align=right>$0.00</td>"_s));
  }

  void TotalsOfManyCentsAreExact() {
    loft_->HaveAddress();
    const int job = loft_->Job(0, 0);
    for (int line = 0; line < 10; ++line) loft_->Task(job, u"x"_s, Money::FromUnits(1000));
    Print(job);
    QVERIFY(Html().contains(u"<td align=right>$1.00</td>"_s));
  }

  void ARigWithoutSchedulesHasNoHeadingOfDates() {
    const InvoiceLoft::Whole whole = loft_->WholeJob();
    loft_->Run(u"delete from tblSchedules"_s);
    const Pages pages = Print(whole.job);
    QVERIFY(!Html().contains(u"Please note the following dates:"_s));
    for (const PageText& text : Texts(pages)) QVERIFY(text.text != u"Please note the following dates:"_s);
    Find(pages, u"Expires 02/28/38"_s);
  }

  void AJobWithoutARigTellsNoDatesOfLooseGear() {
    loft_->HaveAddress();
    const int job = loft_->Job(0, 0);
    loft_->Due(0, loft_->Task(job, u"Sewing"_s, 10), 5, Date::FromParts(2027, 1, 1));
    loft_->Component(0, 4, loft_->Model(u"Cypres 2"_s, 4, 186), u"C2-9"_s, u""_s, Date::FromParts(2020, 1, 15));
    Print(job);
    QVERIFY(!Html().contains(u"Due on"_s));
    QVERIFY(!Html().contains(u"Expires"_s));
  }

  void AServiceLifeNeedsItsDateOfManufacture() {
    const InvoiceLoft::Whole whole = loft_->WholeJob();
    loft_->Run(u"update tblComponents set DOM = 0 where TypeID = 4"_s);
    Print(whole.job);
    QCOMPARE(Html().count(u" expiration: "_s), 1);
    QVERIFY(Html().contains(u"     -      Optimum 143 expiration: Expires 02/28/38 <br>"_s));
  }

  void DatesOfLongNamesKeepTheirColumn() {
    loft_->HaveAddress();
    const int rig = loft_->Rig(u"Blue"_s, loft_->RigTypeOf({1}));
    const QString name = QString(40, u'M');
    loft_->Component(rig, 4, loft_->Model(name, 4, 12), u"1"_s, u""_s, Date::FromParts(2026, 1, 1));
    const Pages pages = Print(loft_->Job(0, rig));
    const PageText date = Find(pages, u"Expires 01/01/27"_s);
    QCOMPARE(qRound(date.x), qRound(0.3 * 12240));
    const Canvas measure(PageOrientation::Portrait, {u"Arial"_s, 10, false, false});
    for (const PageText& text : Texts(pages))
      if (text.y == date.y && text.text != date.text) {
        QVERIFY(text.text.endsWith(u"MM expiration"_s));
        QVERIFY(text.x + measure.TextWidth(text.text) < date.x);
      }
  }

  void LongInvoicesBreakAtNineTenths() {
    loft_->HaveAddress();
    const int job = loft_->Job(0, 0);
    for (int line = 1; line <= 80; ++line) loft_->Task(job, u"Line %1"_s.arg(line), 1);
    const Pages pages = Print(job);
    QCOMPARE(pages.pages.size(), 2);
    const QList<PageText> first = Texts(pages, 0);
    QVERIFY(first.last().y <= 0.9 * 15840);
    QVERIFY(first.last().y > 0.9 * 15840 - 250);
    QCOMPARE(Texts(pages, 1).first().y, 0.0);
    QCOMPARE(Find(pages, u"80"_s).y, Find(pages, u"Total:"_s).y);
    QVERIFY(IsGolden(QFINDTESTDATA("reports/golden/invoice-two-pages.txt"), u"invoice-two-pages.txt"_s,
                     PageAsText(pages.pages.at(0)) + u"\n--\n"_s + PageAsText(pages.pages.at(1)) + u'\n'));
  }

  void NothingIsPrintedBelowNineTenthsHoweverManyLinesThereAre() {
    const InvoiceLoft::Whole whole = loft_->WholeJob();
    constexpr double kLowest = 0.9 * 15840;
    constexpr double kAroundTheRule = 80;
    for (int line = 0; line < 45; ++line) {
      loft_->Task(whole.job, u"Line"_s, 1);
      const Pages pages = Print(whole.job);
      for (qsizetype page = 0; page < pages.pages.size(); ++page)
        for (const PageText& text : Texts(pages, page)) {
          const bool aboveTheRule = text.text.startsWith(u"Due on"_s) || text.text.startsWith(u"Expires"_s) ||
                                    text.text.startsWith(u"Please"_s) || text.text == "Line"_L1;
          QVERIFY2(text.y <= kLowest + (aboveTheRule ? 0 : kAroundTheRule), qPrintable(text.text));
        }
    }
    QCOMPARE(Print(whole.job).pages.size(), 2);
  }

  void TheHtmlOfTheInvoiceBeforeIsReplaced() {
    loft_->HaveAddress();
    loft_->Folder().Write(u"support/HTMLinvoice.txt"_s, QByteArray(100000, 'x'));
    Print(loft_->Job(0, 0));
    QVERIFY(!Html().contains(u"xxx"_s));
  }

  void OnAFullDiskThePageStandsAndNoMailIsLeft() {
    const int job = loft_->WholeJob().job;
    Print(job);
    loft_->Prompts().AnswerRestWith([](const ShownPrompt&) { return Answer::Ok; });
    Pages pages;
    {
      const FullDisk full(200);
      pages = Print(job);
    }
    QCOMPARE(loft_->Prompts().Transcript().size(), 1);
    QCOMPARE(loft_->Prompts().Transcript().first().title, u"Sub Invoice"_s);
    Find(pages, u"Total:"_s);
    QVERIFY(!loft_->HasHtml());
  }

  void AnInvoiceThatCannotBeReadShowsOneBoxAndLeavesNoMail() {
    const int job = loft_->WholeJob().job;
    Print(job);
    QVERIFY(loft_->HasHtml());
    loft_->ChangeSchema("drop table tblPeople");
    loft_->Prompts().AnswerRestWith([](const ShownPrompt&) { return Answer::Ok; });
    QVERIFY(!InvoiceReport(job));
    QCOMPARE(loft_->Prompts().Transcript().size(), 1);
    QCOMPARE(loft_->Prompts().Transcript().first().title, u"Sub Invoice"_s);
    QVERIFY(!loft_->HasHtml());
  }

  void WithoutADatabaseOneBoxTellsIt() {
    loft_->HaveAddress();
    ConnectionString = ConnectionStringFor(loft_->Folder() / u"gone.mdb"_s);
    loft_->Prompts().AnswerRestWith([](const ShownPrompt&) { return Answer::Ok; });
    QVERIFY(!InvoiceReport(1));
    QCOMPARE(loft_->Prompts().Transcript().size(), 1);
    QCOMPARE(loft_->Prompts().Transcript().first().title, u"Sub Invoice"_s);
  }

  void AnotherFontReadsAndAsksNothing() {
    loft_->ExpectNoAddress();
    const int job = loft_->Job(0, 0);
    loft_->Task(job, u"Sewing"_s, 10);
    const std::optional<Report> report = InvoiceReport(job);
    QVERIFY(report);
    loft_->ChangeSchema("drop table tblTasks");
    loft_->Folder().Write(u"support/HTMLinvoice.txt"_s, "left alone");
    for (const double size : {8.0, 24.0}) {
      FontChoice font = {u"Arial"_s, size, false, false};
      QCOMPARE(Find(DrawReport(*report, font), u"Sewing"_s).font.size, size);
    }
    QCOMPARE(Html(), u"left alone"_s);
  }

  void HtmlThatCannotBeWrittenIsToldAndThePageStands() {
    loft_->HaveAddress();
    loft_->Folder().MakeFolder(u"support/HTMLinvoice.txt"_s);
    loft_->Prompts().AnswerRestWith([](const ShownPrompt&) { return Answer::Ok; });
    const Pages pages = Print(loft_->Job(0, 0));
    QCOMPARE(loft_->Prompts().Transcript().size(), 1);
    QCOMPARE(loft_->Prompts().Transcript().first().title, u"Sub Invoice"_s);
    Find(pages, u"Total:"_s);
  }

  void ABoldFontStaysBoldBehindTheTable() {
    const InvoiceLoft::Whole whole = loft_->WholeJob();
    const Pages pages = Print(whole.job, {u"Arial"_s, 12, true, false});
    QVERIFY(Find(pages, u"      Event documented: Reserve ride"_s).font.bold);
    QVERIFY(Find(pages, u"Due on 09/05/26"_s).font.bold);
  }
};

LOFT_TEST_MAIN(TestInvoice)
#include "tst_invoice.moc"
