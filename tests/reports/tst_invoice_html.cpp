#include <QtTest>

#include "reports/invoice_html.h"
#include "reports/invoice_sample.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

class TestInvoiceHtml : public QObject {
  Q_OBJECT

  static QString Html(const InvoiceData& invoice) { return InvoiceHtml(invoice).join(u'\n'); }

 private Q_SLOTS:
  void EveryLineStandsInItsPlace() {
    const QStringList html = InvoiceHtml(SampleInvoice());
    const QStringList head = {u"Sky Loft<br>"_s,
                              u"1 Airport Road<br>"_s,
                              u"<br>"_s,
                              u"Job Title: Spring service  <br>"_s,
                              u"Rig: Blue  <br>"_s,
                              u"Invoice #A-7  <br>"_s,
                              u"Invoice Date: 03/09/2026 <br><br>"_s,
                              u"Ann Jones <br>"_s,
                              u"12 Elm Street <br>"_s,
                              u"Sport rig  (Rig name: Blue)<br>"_s};
    QCOMPARE(html.first(head.size()), head);
    const QStringList lines = {
        u"<tr><td>Repack</td><td align=right>70.00</td></tr>"_s,
        u"<tr><td>-           Closing loop</td><td align=right>4.55</td></tr>"_s,
        u"<tr><td>      Event documented: Reserve ride</td><td align=right></td></tr>"_s,
        u"<tr><td></td><td align=right>-----------</td></tr>"_s,
        u"<tr><td>Total</td><td align=right>$75.55</td></tr>"_s,
        u"</table>"_s,
        u"<br><br>"_s,
        u"Please note the following dates:<br>"_s,
        u"     -      Repack:   Due on 09/05/26 <br>"_s,
        u"     -      Cypres 2 expiration: Expires 07/15/35 <br>"_s,
        u"<br><br><br>"_s,
    };
    QCOMPARE(html.mid(html.indexOf(lines.first()), lines.size()), lines);
    QVERIFY(html.last().startsWith(u"<table><tr><td><a href=\"#\""_s));
  }

  void AnInvoiceOfNothingIsStillWhole() {
    const QString html = Html({});
    QVERIFY(html.startsWith(u"Job Title:   <br>\nRig:   <br>\nInvoice #  <br>\nInvoice Date:  <br><br>\n<table"_s));
    QVERIFY(html.contains(u"<td align=right>$0.00</td>"_s));
    QVERIFY(!html.contains(u"Please note"_s));
    QCOMPARE(html.count(u"<table"_s), 2);
  }

  void ServiceLivesAloneHaveNoHeading() {
    InvoiceData invoice = SampleInvoice();
    invoice.due.clear();
    QVERIFY(!Html(invoice).contains(u"Please note"_s));
    QVERIFY(Html(invoice).contains(u"Cypres 2 expiration: Expires"_s));
  }

  void NoValueIsTakenForMarkup() {
    const QString hostile = u"<script>\"&"_s;
    InvoiceData invoice = SampleInvoice();
    for (QString* text : {&invoice.jobTitle, &invoice.rigName, &invoice.number, &invoice.rig->caption,
                          &invoice.business[0], &invoice.customer[0], &invoice.lines[0].name, &invoice.lines[1].name,
                          &invoice.lines[2].name, &invoice.due[0].name, &invoice.lives[0].name,
                          &invoice.rig->rows[0].type, &invoice.rig->rows[0].model, &invoice.rig->rows[0].serial})
      *text = hostile;
    const QString html = Html(invoice);
    QCOMPARE(html.count(u"&lt;script&gt;&quot;&amp;"_s), 14);
    QVERIFY(!html.contains(u"<script"_s));
  }
};

LOFT_TEST_MAIN(TestInvoiceHtml)
#include "tst_invoice_html.moc"
