#include "reports/invoice_page.h"

#include "reports/gear_table_page.h"
#include "reports/invoice_text.h"
#include "reports/primitives.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double kHeaderColumn = 0.95;
constexpr double kTaskColumn = 0.3;
constexpr double kPartColumn = 0.35;
constexpr double kTotalColumn = 0.5;
constexpr double kMoneyColumn = 0.7;
constexpr double kRuleEnd = 0.72;
constexpr double kDateColumn = 0.3;
constexpr double kCustomerBoxEnd = 0.42;
constexpr double kCellGap = 0.01;
constexpr double kPadding = 40;   // twips between a rule and a text
constexpr double kRuleStep = 10;  // twips; three rules this close make one strong line
constexpr double kNameScale = 1.4;

void PaintBusiness(const QStringList& lines, Canvas& page) {
  if (lines.isEmpty()) return;
  {
    const BoldText bold(page);  // the first line is the name of the shop
    const double size = page.FontSize;
    page.FontSize = size * kNameScale;
    PrintJustified(page, kLeftMargin, FitToWidth(page, lines.first(), kRightMargin - kLeftMargin));
    page.FontSize = size;
  }
  for (const QString& line : lines.mid(1))
    PrintJustified(page, kLeftMargin, FitToWidth(page, line, kRightMargin - kLeftMargin));
  page.Print({});
}

void PaintHeader(const InvoiceData& invoice, Canvas& page) {
  for (const QString& line : HeaderLines(invoice))
    PrintJustified(page, kHeaderColumn, FitToWidth(page, line, kHeaderColumn - kCustomerBoxEnd - kCellGap), false,
                   kJustifyRight);
}

void Box(Canvas& page, double top, double bottom) {
  const double left = kLeftMargin * page.Width();
  const double right = kCustomerBoxEnd * page.Width();
  page.Line(left, top, right, top);
  page.Line(left, bottom, right, bottom);
  page.Line(left, top, left, bottom);
  page.Line(right, top, right, bottom);
}

/// Draws the customer in a box beside the header, which began at `head` and ends where the page stands.
void PaintCustomer(const QStringList& lines, Canvas& page, double head) {
  const double headerEnd = page.CurrentY;
  page.CurrentY = head;
  for (const QString& line : lines)
    PrintJustified(page, kLeftMargin + kCellGap, FitToWidth(page, line, kCustomerBoxEnd - kLeftMargin - 2 * kCellGap));
  if (!lines.isEmpty()) Box(page, head - kPadding, page.CurrentY + kPadding);

  page.CurrentY = qMax(page.CurrentY, headerEnd) + page.TextHeight({}) / 2;
  for (int rule = 0; rule < 3; ++rule) {
    PrintRule(page, kLeftMargin, kRightMargin);
    page.CurrentY += kRuleStep;
  }
  page.Print({});
}

/// A name, cut where its amount begins; an event has none.
void PaintLine(const InvoiceLine& line, Canvas& page) {
  PageCheck(page);
  const double column = line.isPart ? kPartColumn : kTaskColumn;
  if (line.isEvent) {
    PrintJustified(page, column, FitToWidth(page, LineText(line), kRightMargin - column));
    return;
  }
  const double amountStart = (kMoneyColumn - kCellGap) * page.Width() - page.TextWidth(MoneyBeforePoint(line.price));
  PrintJustified(page, column, FitToUnits(page, LineText(line), amountStart - column * page.Width()), true);
  PrintMoney(page, kMoneyColumn, line.price);
}

void PaintTotal(Money total, Canvas& page) {
  PageCheck(page);
  page.CurrentY += kPadding;
  PrintRule(page, kTaskColumn, kRuleEnd);
  page.CurrentY += kPadding;
  const BoldText bold(page);
  PrintJustified(page, kTotalColumn, u"Total:"_s, true);
  PrintMoney(page, kMoneyColumn, total);
}

/// What ends when: `suffix` stays whole behind a name that has to be cut.
void PaintDate(const InvoiceDate& date, const QString& suffix, const QString& verb, Canvas& page) {
  PageCheck(page);
  const double room = (kDateColumn - kLeftMargin - kCellGap) * page.Width() - page.TextWidth(suffix);
  PrintJustified(page, kLeftMargin, FitToUnits(page, date.name, room) + suffix, true);
  PrintJustified(page, kDateColumn, verb + DayText(date));
}

void PaintDates(const InvoiceData& invoice, Canvas& page) {
  if (!invoice.due.isEmpty() || !invoice.lives.isEmpty()) page.Print({});
  if (!invoice.due.isEmpty()) {
    PageCheck(page);
    const BoldText bold(page);
    PrintJustified(page, kLeftMargin, kDatesHeading);
  }
  for (const InvoiceDate& due : invoice.due) PaintDate(due, {}, u"Due on "_s, page);
  for (const InvoiceDate& life : invoice.lives) PaintDate(life, kLifeEnd, u"Expires "_s, page);
}

}  // namespace

void PaintInvoice(const InvoiceData& invoice, Canvas& page) {
  PaintBusiness(invoice.business, page);
  const double head = page.CurrentY;
  PaintHeader(invoice, page);
  PaintCustomer(invoice.customer, page, head);
  if (invoice.rig) PaintRigTable(*invoice.rig, page);
  page.Print({});
  for (const InvoiceLine& line : invoice.lines) PaintLine(line, page);
  PaintTotal(invoice.Total(), page);
  PaintDates(invoice, page);
}
