#include <QtTest>

#include "reports/invoice_page.h"
#include "reports/invoice_sample.h"
#include "reports/paint_page.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

class TestInvoicePage : public QObject {
  Q_OBJECT

  static Pages Painted(const InvoiceData& invoice, PageOrientation orientation = PageOrientation::Portrait) {
    Canvas canvas(orientation, {u"Arial"_s, 10, false, false});
    PaintInvoice(invoice, canvas);
    return canvas.Drawn();
  }

 private Q_SLOTS:
  void EveryLineStandsInItsPlace() {
    QCOMPARE(PageAsText(Painted(SampleInvoice()).pages.first()),
             Lines({u"Sky Loft"_s, u"1 Airport Road"_s, u"Job Title: Spring service"_s, u"Rig: Blue"_s,
                    u"Invoice #A-7"_s, u"Invoice Date: 03/09/2026"_s, u"Ann Jones"_s, u"12 Elm Street"_s,
                    u"Sport rig  (Rig name: Blue)"_s, u"Component Model S/N DOM"_s, u"AAD Cypres 2 C2-9 01/15/2020"_s,
                    u"Repack 70.00"_s, u"Closing loop 4.55"_s, u"Event documented: Reserve ride"_s, u"Total: 75.55"_s,
                    u"Please note the following dates:"_s, u"Repack Due on 09/05/26"_s,
                    u"Cypres 2 expiration Expires 07/15/35"_s}));
  }

  void TheSameDataPaintTheSamePages() {
    const InvoiceData invoice = SampleInvoice();
    QCOMPARE(Painted(invoice), Painted(invoice));
  }

  void WhatIsTooLongIsCutAndTheDataStay() {
    InvoiceData invoice = SampleInvoice();
    const QString name = QString(10000, u'W');
    invoice.lines.first().name = name;
    const Pages pages = Painted(invoice);
    const Canvas measure(PageOrientation::Portrait, {u"Arial"_s, 10, false, false});
    int found = 0;
    for (const PageItem& item : pages.pages.first()) {
      const auto* text = std::get_if<PageText>(&item);
      if (!text || !text->text.startsWith(u"WW"_s)) continue;
      ++found;
      QVERIFY(text->x + measure.TextWidth(text->text) <= 0.69 * pages.Width());
      QVERIFY(text->x + measure.TextWidth(text->text + u'W') > 0.69 * pages.Width() - measure.TextWidth(u"70"_s));
    }
    QCOMPARE(found, 1);
    QCOMPARE(invoice.lines.first().name, name);
  }
};

LOFT_TEST_MAIN(TestInvoicePage)
#include "tst_invoice_page.moc"
