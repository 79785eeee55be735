#include <QtTest>

#include "core/date.h"
#include "reports/fonts.h"
#include "reports/golden.h"
#include "reports/invoice.h"
#include "reports/paint_page.h"
#include "reports/reports.h"
#include "support/data_folder_here.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

class TestInvoice : public QObject {
  Q_OBJECT

  std::unique_ptr<ThrowAwayLoft> loft_;
  std::unique_ptr<DataFolderHere> here_;
  std::unique_ptr<ScriptedPrompts> prompts_;

  void HaveAddress(const QByteArray& lines = "Sky Loft\r\n1 Airport Road\r\nSpringfield, OH\r\n") const {
    loft_->Folder().Write(u"support/address.txt"_s, lines);
  }
  int Person(const QString& first, const QString& last, const QString& address2 = {}) const {
    return loft_->Add(u"tblPeople"_s, {{u"firstname"_s, first},
                                       {u"lastname"_s, last},
                                       {u"address1"_s, u"12 Elm Street"_s},
                                       {u"address2"_s, address2},
                                       {u"city"_s, u"Dayton"_s},
                                       {u"state"_s, u"OH"_s},
                                       {u"zip"_s, u"45402"_s},
                                       {u"phonehome"_s, u"555-0123"_s}});
  }
  int Model(const QString& name, int type, int serviceLife = 0) const {
    return loft_->Add(u"tblModels"_s, {{u"Name"_s, name}, {u"TypeID"_s, type}, {u"ServiceLife"_s, serviceLife}});
  }
  int RigTypeOf(const QList<int>& types, const QString& name = u"Sport rig"_s) const {
    const int id = loft_->Add(u"tblRigTypes"_s, {{u"Name"_s, name}});
    for (const int type : types)
      loft_->Add(u"tblRigTypeComponents"_s, {{u"RigTypeID"_s, id}, {u"ComponentTypeID"_s, type}});
    return id;
  }
  int Rig(const QString& alias, int type) const {
    return loft_->Add(u"tblRig"_s, {{u"rigAlias"_s, alias}, {u"TypeID"_s, type}, {u"OwnerID"_s, 1}});
  }
  int Component(int rig, int type, int model, const QString& serial, const QString& subType, Date dom = {}) const {
    return loft_->Add(u"tblComponents"_s, {{u"RigID"_s, rig},
                                           {u"TypeID"_s, type},
                                           {u"ModelID"_s, model},
                                           {u"SerialNumber"_s, serial},
                                           {u"SubType"_s, subType},
                                           {u"DOM"_s, dom}});
  }
  int Job(int customer, int rig, const QString& title = u"Spring service"_s,
          Date started = Date::FromParts(2026, 3, 9)) const {
    return loft_->Add(u"tblJobs"_s, {{u"JobTitle"_s, title},
                                     {u"CustomerID"_s, customer},
                                     {u"SystemID"_s, rig},
                                     {u"InvoiceNumber"_s, u""},
                                     {u"DateStarted"_s, started}});
  }
  int Task(int job, const QString& name, qint64 price, int part = 0, bool event = false) const {
    return loft_->Add(u"tblTasks"_s, {{u"JobID"_s, job},
                                      {u"TaskName"_s, name},
                                      {u"FlatRate"_s, Money::Whole(price)},
                                      {u"PartID"_s, part},
                                      {u"IsEvent"_s, event}});
  }
  void Due(int rig, int task, int taskLib, Date due) const {
    loft_->Add(u"tblSchedules"_s,
               {{u"rigID"_s, rig}, {u"TaskID"_s, task}, {u"TaskLibID"_s, taskLib}, {u"DateDue"_s, due}});
  }

  static Pages Print(int job) {
    FontChoice font = {u"Arial"_s, 10, false, false};
    return BuildReport(u"Invoice"_s, job, font).value_or(Pages());
  }
  QString Html() const { return QString::fromUtf8(loft_->Folder().Read(u"support/HTMLinvoice.txt"_s)).remove(u'\r'); }
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

  struct Whole {
    int job = 0;
    int rig = 0;
  };
  Whole WholeLoft() const {
    HaveAddress();
    const int customer = Person(u"Ann"_s, u"Jones"_s, u"Apartment 4"_s);
    const int rig = Rig(u"Blue"_s, RigTypeOf({1, 3, 2, 4}));
    Component(rig, 1, Model(u"Javelin"_s, 1), u"J-1001"_s, u"J3K"_s, Date::FromParts(2019, 5, 1));
    Component(rig, 3, Model(u"Optimum 143"_s, 3, 240), u"OP-77"_s, u""_s, Date::FromParts(2018, 2, 28));
    Component(rig, 4, Model(u"Cypres 2"_s, 4, 186), u"C2-9"_s, u"Expert"_s, Date::FromParts(2020, 1, 15));
    const int job = Job(customer, rig);
    const int repack = Task(job, u"Inspect and repack reserve"_s, 70);
    Task(job, u"Closing loop"_s, 5, 12);
    Task(job, u"Reserve ride"_s, 0, 0, true);
    Task(job, u"Replace all lines of the main canopy, very tidy"_s, 1250);
    Due(rig, repack, 1, Date::FromParts(2026, 9, 5));
    Due(rig, 0, 2, Date::FromParts(2027, 3, 9));
    return {job, rig};
  }

 private Q_SLOTS:
  void init() {
    prompts_ = std::make_unique<ScriptedPrompts>();
    loft_ = std::make_unique<ThrowAwayLoft>();
    here_ = std::make_unique<DataFolderHere>(loft_->Folder());
  }
  void cleanup() {
    here_.reset();
    loft_.reset();
    prompts_.reset();
  }

  void TheWholeInvoice() {
    const Pages pages = Print(WholeLoft().job);
    QVERIFY(IsGolden(QFINDTESTDATA("reports/golden/invoice-whole-page.txt"), u"invoice-whole-page.txt"_s,
                     PagesAsText(pages)));
    QVERIFY(IsGolden(QFINDTESTDATA("reports/golden/invoice-whole-html.txt"), u"invoice-whole-html.txt"_s, Html()));
  }

  void TheBareInvoiceTellsThatThereIsNoAddress() {
    prompts_->ExpectBox(u"No business address"_s,
                        u"You haven't entered a business address yet.\nYou can do this from the main screen.\n"
                        u"(See the SETUP menu)"_s);
    const Pages pages = Print(Job(0, 0, u""_s, Date()));
    QVERIFY(IsGolden(QFINDTESTDATA("reports/golden/invoice-bare-page.txt"), u"invoice-bare-page.txt"_s,
                     PagesAsText(pages)));
    QVERIFY(IsGolden(QFINDTESTDATA("reports/golden/invoice-bare-html.txt"), u"invoice-bare-html.txt"_s, Html()));
  }

  void AnAddressOfBlanksIsNone() {
    HaveAddress(" \r\n\r\n");
    prompts_->ExpectBox(u"No business address"_s,
                        u"You haven't entered a business address yet.\nYou can do this from the main screen.\n"
                        u"(See the SETUP menu)"_s);
    Print(Job(0, 0));
  }

  void CustomerRigAndJobMayBeGone() {
    HaveAddress();
    const Pages pages = Print(Job(99, 98));
    Find(pages, u"Rig: "_s);
    Find(pages, u"Total:"_s);
    QVERIFY(!Html().contains(u"(none)"_s));
    QCOMPARE(Html().count(u"<table"_s), 2);
    const Pages ofNoJob = Print(12345);
    Find(ofNoJob, u"Job Title: "_s);
    Find(ofNoJob, u"Invoice #"_s);
  }

  void ValuesCannotBreakTheMail() {
    HaveAddress("Sm\xC3\xBCller & Sons <riggers>\r\n");
    const int rig = Rig(u"<b>\"R&D\""_s, RigTypeOf({1}, u"A<B"_s));
    Component(rig, 1, Model(u"J&K <X>"_s, 1, 12), u"<1&2>"_s, u"\"S\""_s, Date::FromParts(2026, 1, 1));
    const int job = Job(Person(u"<Ann>"_s, u"O'Neil & Co"_s), rig, u"<script>&"_s);
    Due(rig, Task(job, u"Patch <5 cm & sew"_s, 10), 1, Date::FromParts(2027, 1, 1));
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
    HaveAddress();
    const int job = Job(0, 0);
    Find(Print(job), u"Invoice #%1"_s.arg(job));
    QCOMPARE(loft_->Rows(u"select InvoiceNumber from tblJobs"_s), QStringList{QString::number(job)});
    loft_->Run(u"update tblJobs set InvoiceNumber = 'A-7'"_s);
    Find(Print(job), u"Invoice #A-7"_s);
  }

  void HeaderLinesEndAtTheRight() {
    const Pages pages = Print(WholeLoft().job);
    const Canvas measure(PageOrientation::Portrait, {u"Arial"_s, 10, false, false});
    for (const auto& text : {u"Job Title: Spring service"_s, u"Rig: Blue"_s, u"Invoice Date: 03/09/2026"_s})
      QCOMPARE(qRound(Find(pages, text).x + measure.TextWidth(text)), qRound(0.95 * 12240));
  }

  void EmptyLinesOfTheCustomerAreLeftOut() {
    HaveAddress();
    Print(Job(Person(u"Ann"_s, u"Jones"_s), 0));
    QVERIFY(Html().contains(u"12 Elm Street <br>\nDayton, OH   45402 <br>\n555-0123 <br>\n"_s));
    loft_->Run(u"update tblPeople set state = '', zip = '', phonehome = ''"_s);
    Print(Job(1, 0));
    QVERIFY(Html().contains(u"12 Elm Street <br>\nDayton <br>\n"_s));
  }

  void PartsStandFurtherInThanTasks() {
    const Pages pages = Print(WholeLoft().job);
    QCOMPARE(qRound(Find(pages, u"Closing loop"_s).x), qRound(0.35 * 12240));
    QCOMPARE(qRound(Find(pages, u"      Event documented: Reserve ride"_s).x), qRound(0.3 * 12240));
    QVERIFY(Html().contains(u"<tr><td>-           Closing loop</td><td align=right>5.00</td></tr>"_s));
  }

  void AnEventHasNoAmountButCounts() {
    HaveAddress();
    const int job = Job(0, 0);
    Task(job, u"Rain"_s, 7, 0, true);
    Task(job, u"Sewing"_s, 10);
    const Pages pages = Print(job);
    const double y = Find(pages, u"      Event documented: Rain"_s).y;
    for (const PageText& text : Texts(pages))
      QVERIFY2(text.y != y || text.text.endsWith(u"Rain"_s), qPrintable(text.text));
    QCOMPARE(Find(pages, u"17"_s).y, Find(pages, u"Total:"_s).y);
    QVERIFY(Html().contains(u"<tr><td>      Event documented: Rain</td><td align=right></td></tr>"_s));
    QVERIFY(Html().contains(u"<tr><td>Total</td><td align=right>$17.00</td></tr>"_s));
  }

  void APartIsAPartEvenAsAnEvent() {
    HaveAddress();
    const int job = Job(0, 0);
    Task(job, u"Closing loop"_s, 5, 12, true);
    QCOMPARE(qRound(Find(Print(job), u"Closing loop"_s).x), qRound(0.35 * 12240));
    QVERIFY(Html().contains(u"<tr><td>-           Closing loop</td><td align=right></td></tr>"_s));
  }

  void NothingLongRunsOverItsNeighbourOrOffThePage() {
    const QString wide(50, u'W');
    HaveAddress(wide.toUtf8() + "\r\n" + wide.toUtf8() + wide.toUtf8() + "\r\n");
    const int rig = Rig(wide + wide, RigTypeOf({1}, wide));
    Component(rig, 1, Model(wide, 1, 12), wide, wide, Date::FromParts(2026, 1, 1));
    const int job = Job(Person(wide, wide, wide), rig, wide);
    Due(rig, Task(job, wide, 10), 1, Date::FromParts(2027, 1, 1));
    Task(job, wide + wide, 0, 0, true);
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
    HaveAddress();
    const int job = Job(0, 0);
    const QString name = QString(50, u'W');
    Task(job, name, 1234567);
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
    HaveAddress();
    const Pages pages = Print(Job(0, 0));
    QCOMPARE(Find(pages, u"0"_s).y, Find(pages, u"Total:"_s).y);
    QVERIFY(Html().contains(u"<td align=right>$0.00</td>"_s));
  }

  void TotalsOfManyCentsAreExact() {
    HaveAddress();
    const int job = Job(0, 0);
    for (int line = 0; line < 10; ++line)
      loft_->Add(u"tblTasks"_s, {{u"JobID"_s, job}, {u"TaskName"_s, u"x"_s}, {u"FlatRate"_s, Money::FromUnits(1000)}});
    Print(job);
    QVERIFY(Html().contains(u"<td align=right>$1.00</td>"_s));
  }

  void ARigWithoutSchedulesHasNoHeadingOfDates() {
    const Whole whole = WholeLoft();
    loft_->Run(u"delete from tblSchedules"_s);
    const Pages pages = Print(whole.job);
    QVERIFY(!Html().contains(u"Please note the following dates:"_s));
    for (const PageText& text : Texts(pages)) QVERIFY(text.text != u"Please note the following dates:"_s);
    Find(pages, u"Expires 02/28/38"_s);
  }

  void AJobWithoutARigTellsNoDatesOfLooseGear() {
    HaveAddress();
    const int job = Job(0, 0);
    Due(0, Task(job, u"Sewing"_s, 10), 5, Date::FromParts(2027, 1, 1));
    Component(0, 4, Model(u"Cypres 2"_s, 4, 186), u"C2-9"_s, u""_s, Date::FromParts(2020, 1, 15));
    Print(job);
    QVERIFY(!Html().contains(u"Due on"_s));
    QVERIFY(!Html().contains(u"Expires"_s));
  }

  void AServiceLifeNeedsItsDateOfManufacture() {
    const Whole whole = WholeLoft();
    loft_->Run(u"update tblComponents set DOM = 0 where TypeID = 4"_s);
    Print(whole.job);
    QCOMPARE(Html().count(u" expiration: "_s), 1);
    QVERIFY(Html().contains(u"     -      Optimum 143 expiration: Expires 02/28/38 <br>"_s));
  }

  void DatesOfLongNamesKeepTheirColumn() {
    HaveAddress();
    const int rig = Rig(u"Blue"_s, RigTypeOf({1}));
    const QString name = QString(40, u'M');
    Component(rig, 4, Model(name, 4, 12), u"1"_s, u""_s, Date::FromParts(2026, 1, 1));
    const Pages pages = Print(Job(0, rig));
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
    HaveAddress();
    const int job = Job(0, 0);
    for (int line = 1; line <= 80; ++line) Task(job, u"Line %1"_s.arg(line), 1);
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
    const Whole whole = WholeLoft();
    constexpr double kLowest = 0.9 * 15840;
    constexpr double kAroundTheRule = 80;
    for (int line = 0; line < 45; ++line) {
      Task(whole.job, u"Line"_s, 1);
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
    HaveAddress();
    loft_->Folder().Write(u"support/HTMLinvoice.txt"_s, QByteArray(100000, 'x'));
    Print(Job(0, 0));
    QVERIFY(!Html().contains(u"xxx"_s));
  }

  void HtmlThatCannotBeWrittenIsToldAndThePageStands() {
    HaveAddress();
    loft_->Folder().MakeFolder(u"support/HTMLinvoice.txt"_s);
    prompts_->AnswerRestWith([](const ShownPrompt&) { return Answer::Ok; });
    const Pages pages = Print(Job(0, 0));
    QCOMPARE(prompts_->Transcript().size(), 1);
    QCOMPARE(prompts_->Transcript().first().title, u"Sub Invoice"_s);
    Find(pages, u"Total:"_s);
  }

  void ABoldFontStaysBoldBehindTheTable() {
    const Whole whole = WholeLoft();
    FontChoice font = {u"Arial"_s, 12, true, false};
    const Pages pages = BuildReport(u"invoice"_s, whole.job, font).value_or(Pages());
    QVERIFY(Find(pages, u"      Event documented: Reserve ride"_s).font.bold);
    QVERIFY(Find(pages, u"Due on 09/05/26"_s).font.bold);
  }
};

LOFT_TEST_MAIN(TestInvoice)
#include "tst_invoice.moc"
