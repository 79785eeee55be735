#include "reports/invoice.h"

#include "core/prompts.h"
#include "reports/invoice_data.h"
#include "reports/invoice_html.h"
#include "reports/invoice_page.h"

using namespace Qt::StringLiterals;

namespace {

void TellOfMissingAddress() {
  MsgBox(Lines({u"You haven't entered a business address yet."_s, u"You can do this from the main screen."_s,
                u"(See the SETUP menu)"_s}),
         u"No business address"_s);
}

}  // namespace

std::optional<Report> InvoiceReport(int jobID) {
  return MakeReport(u"Sub Invoice"_s, kInvoiceHtmlFile, [jobID] {
    const InvoiceData invoice = LoadInvoice(jobID);
    if (invoice.business.isEmpty()) TellOfMissingAddress();
    return Report{.paint = [invoice](Canvas& page) { PaintInvoice(invoice, page); },
                  .html = [invoice] { return InvoiceHtml(invoice); }};
  });
}
