#include <QtTest>

#include "core/failure.h"
#include "core/store/connection.h"
#include "reports/invoice_data.h"
#include "reports/invoice_loft.h"
#include "support/refusing_disk.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

/// What is read for an invoice; nothing here has a page.
class TestInvoiceData : public QObject {
  Q_OBJECT

  std::unique_ptr<InvoiceLoft> loft_;

  static QStringList Texts(const QList<InvoiceLine>& lines) {
    QStringList texts;
    for (const InvoiceLine& line : lines)
      texts << line.name + u" %1 %2%3"_s.arg(line.price.Units())
                               .arg(QLatin1StringView(line.isPart ? "part" : ""),
                                    QLatin1StringView(line.isEvent ? "event" : ""));
    return texts;
  }
  static QStringList Texts(const QList<InvoiceDate>& dates) {
    QStringList texts;
    for (const InvoiceDate& date : dates)
      texts << u"%1 %2-%3-%4"_s.arg(date.name).arg(date.day.Year()).arg(date.day.Month()).arg(date.day.Day());
    return texts;
  }

 private Q_SLOTS:
  void init() { loft_ = std::make_unique<InvoiceLoft>(); }
  void cleanup() { loft_.reset(); }

  void AllOfAJobIsRead() {
    const InvoiceData invoice = LoadInvoice(loft_->WholeJob().job);
    QCOMPARE(invoice.business, QStringList({u"Sky Loft"_s, u"1 Airport Road"_s, u"Springfield, OH"_s}));
    QCOMPARE(invoice.jobTitle, u"Spring service"_s);
    QCOMPARE(invoice.rigName, u"Blue"_s);
    QCOMPARE(invoice.number, u"1"_s);
    QCOMPARE(invoice.started, Date::FromParts(2026, 3, 9));
    QCOMPARE(invoice.customer, QStringList({u"Ann Jones"_s, u"12 Elm Street"_s, u"Apartment 4"_s,
                                            u"Dayton, OH   45402"_s, u"555-0123"_s}));
    QVERIFY(invoice.rig);
    QCOMPARE(invoice.rig->caption, u"Sport rig  (Rig name: Blue)"_s);
    QCOMPARE(invoice.rig->rows.size(), 4);
    QCOMPARE(Texts(invoice.lines),
             QStringList({u"Inspect and repack reserve 700000 "_s, u"Closing loop 50000 part"_s,
                          u"Reserve ride 0 event"_s, u"Replace all lines of the main canopy, very tidy 12500000 "_s}));
    QCOMPARE(Texts(invoice.due),
             QStringList({u"Inspect and repack reserve 2026-9-5"_s, u"Install component 2027-3-9"_s}));
    QCOMPARE(Texts(invoice.lives), QStringList({u"Optimum 143 2038-2-28"_s, u"Cypres 2 Expert 2035-7-15"_s}));
    QCOMPARE(invoice.Total(), Money::Whole(1325));
  }

  void NothingOfAMissingJobIsRead() {
    const InvoiceData invoice = LoadInvoice(12345);
    QVERIFY(invoice.business.isEmpty() && invoice.customer.isEmpty() && !invoice.rig && invoice.lines.isEmpty());
    QVERIFY(invoice.due.isEmpty() && invoice.lives.isEmpty() && invoice.started.IsNone());
    QCOMPARE(invoice.jobTitle + invoice.rigName + invoice.number, QString());
    QCOMPARE(invoice.Total(), Money());
  }

  void OfARigThatHasGoneTheDatesAreLeft() {
    const InvoiceLoft::Whole whole = loft_->WholeJob();
    loft_->Run(u"delete from tblRig"_s);
    const InvoiceData invoice = LoadInvoice(whole.job);
    QCOMPARE(invoice.rigName, QString());
    QVERIFY(!invoice.rig);
    QCOMPARE(invoice.due.size(), 2);
    QCOMPARE(invoice.lives.size(), 2);
  }

  void AnOrganizationStandsInForAName() {
    const int customer = loft_->Person(u""_s, u""_s);
    loft_->Run(u"update tblPeople set OrgName = 'Drop Zone'"_s);
    QCOMPARE(LoadInvoice(loft_->Job(customer, 0)).customer.first(), u"Drop Zone"_s);
  }

  void TotalsAddEveryLineExactly() {
    const int job = loft_->Job(0, 0);
    loft_->Task(job, u"Rain"_s, 7, 0, true);
    loft_->Task(job, u"Discount"_s, Money::FromUnits(-12345));
    for (int line = 0; line < 10; ++line) loft_->Task(job, u"x"_s, Money::FromUnits(1000));
    QCOMPARE(LoadInvoice(job).Total(), Money::FromUnits(70000 - 12345 + 10000));
  }

  void ANumberThatCannotBeKeptIsToldAndStands() {
    const int job = loft_->Job(0, 0);
    loft_->ChangeSchema("create trigger kept before update on tblJobs begin select raise(abort, 'kept'); end");
    loft_->Prompts().AnswerRestWith([](const ShownPrompt&) { return Answer::Ok; });
    QCOMPARE(LoadInvoice(job).number, QString::number(job));
    QCOMPARE(loft_->Prompts().Transcript().size(), 1);
    QCOMPARE(loft_->Prompts().Transcript().first().title, u"Sub UpdateTable()"_s);
  }

  void NoPartIsReadAlone_data() {
    QTest::addColumn<QString>("table");
    for (const char* table : {"tblJobs", "tblPeople", "tblRig", "tblRigTypes", "tblRigTypeComponents", "tblComponents",
                              "tblComponentTypes", "tblModels", "tblTasks", "tblSchedules", "tblTaskLib"})
      QTest::newRow(table) << QString::fromLatin1(table);
  }
  void NoPartIsReadAlone() {
    QFETCH(QString, table);
    const int job = loft_->WholeJob().job;
    loft_->ChangeSchema("drop table " + table.toUtf8());
    QVERIFY_THROWS_EXCEPTION(Failure, LoadInvoice(job));
    QVERIFY(!ConnectionIsOpen);
    QVERIFY(!Bracket::Stands());
  }

  void AnAddressThatCannotBeReadIsNotTakenForNone() {
    const int job = loft_->WholeJob().job;
    LoadInvoice(job);
    QVERIFY(QFile::setPermissions(loft_->Folder().Path(), QFile::Permissions::fromInt(0x7777)));
    {
      const OrdinaryUser user;
      QCOMPARE(LoadInvoice(job).business.size(), 3);
    }
    QVERIFY(QFile::setPermissions(loft_->Folder() / u"support/address.txt"_s, {}));
    const OrdinaryUser user;
    QVERIFY_THROWS_EXCEPTION(Failure, LoadInvoice(job));
  }
};

LOFT_TEST_MAIN(TestInvoiceData)
#include "tst_invoice_data.moc"
