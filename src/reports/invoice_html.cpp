#include "reports/invoice_html.h"

#include "core/format.h"
#include "reports/gear_table_html.h"
#include "reports/invoice_text.h"

using namespace Qt::StringLiterals;

namespace {

QStringList Ended(const QStringList& lines, const QString& end) {
  QStringList html;
  for (const QString& line : lines) html << line.toHtmlEscaped() + end;
  return html;
}

QStringList BusinessHtml(const QStringList& lines) {
  return lines.isEmpty() ? QStringList() : Ended(lines, u"<br>"_s) << u"<br>"_s;
}

QStringList HeaderHtml(const InvoiceData& invoice) {
  const QStringList lines = HeaderLines(invoice);
  return Ended(lines.first(lines.size() - 1), u"  <br>"_s) << lines.last().toHtmlEscaped() + u" <br><br>"_s;
}

QString Row(const QString& cell, const QString& amount) {
  return u"<tr><td>"_s + cell + u"</td><td align=right>"_s + amount + u"</td></tr>"_s;
}

QString LineHtml(const InvoiceLine& line) {
  return Row((line.isPart ? u"-           "_s : QString()) + LineText(line).toHtmlEscaped(),
             line.isEvent ? QString() : Format(line.price, u"###,###,##0.00"_s));
}

QStringList LinesHtml(const InvoiceData& invoice) {
  QStringList html = {u"<table style=\"text-align: left; \" border=\"0\" cellpadding=\"2\" cellspacing=\"0\">"_s};
  for (const InvoiceLine& line : invoice.lines) html << LineHtml(line);
  return html << Row({}, u"-----------"_s) << Row(u"Total"_s, Format(invoice.Total(), u"$###,###,##0.00"_s))
              << u"</table>"_s;
}

QString DateHtml(const InvoiceDate& date, const QString& suffix, const QString& verb) {
  return u"     -      "_s + date.name.toHtmlEscaped() + suffix + u": "_s + verb + DayText(date) + u" <br>"_s;
}

QStringList DatesHtml(const InvoiceData& invoice) {
  QStringList html;
  if (!invoice.due.isEmpty()) html << u"<br><br>"_s << kDatesHeading + u"<br>"_s;
  for (const InvoiceDate& due : invoice.due) html << DateHtml(due, {}, u"  Due on "_s);
  for (const InvoiceDate& life : invoice.lives) html << DateHtml(life, kLifeEnd, u"Expires "_s);
  return html;
}

// The link leads nowhere: a shop puts its own site here.
QStringList SiteLink() {
  return {u"<br><br><br>"_s,
          u"<table><tr><td><a href=\"#\" style=\"border: 0px solid ; width: 105px; height: 31px;\">Loftkeep</a>"_s
          u"</td></tr></table>"_s};
}

}  // namespace

QStringList InvoiceHtml(const InvoiceData& invoice) {
  return BusinessHtml(invoice.business) + HeaderHtml(invoice) + Ended(invoice.customer, u" <br>"_s) +
         (invoice.rig ? RigTableHtml(*invoice.rig) : QStringList()) + LinesHtml(invoice) + DatesHtml(invoice) +
         SiteLink();
}
