#include "reports/invoice.h"

#include <optional>

#include "core/data_folder.h"
#include "core/format.h"
#include "core/store/access.h"
#include "core/text_files.h"
#include "core/trap.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/people.h"
#include "gear/rigs.h"
#include "jobs/job_records.h"
#include "reports/business_address.h"
#include "reports/gear_table.h"
#include "reports/primitives.h"
#include "schedule/service_life.h"
#include "schedule/task_library.h"

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

/// The two forms of the invoice; every line goes to both.
struct InvoiceForm {
  Canvas& page;
  QStringList html = {};
};

struct JobLine {
  QString name;
  Money flatRate;
  bool isPart = false;
  bool isEvent = false;
};

struct DueLine {
  QString name;
  Date due;
};

QString PersonText(int id, const QString& field) {
  return GetValueFromTable(u"tblPeople"_s, u"ID"_s, id, field).ToText().trimmed();
}

QList<JobLine> JobLines(int jobID) {
  QList<JobLine> lines;
  Bracket bracket;
  for (const Recordset& task :
       Rows(u"Select * from tblTasks where JobID = "_s + QString::number(jobID) + u" order by ID"_s))
    lines << JobLine{task[u"TaskName"].ToText(), task[u"FlatRate"].ToMoney(), task[u"PartID"].ToInt() != 0,
                     task[u"IsEvent"].ToBool()};
  bracket.Close();
  return lines;
}

QString DueName(const Recordset& schedule) {
  const QString name = GetValueFromTable(u"tblTasks"_s, u"ID"_s, schedule[u"TaskID"], u"TaskName"_s).ToText();
  return name.isEmpty() ? TaskLibName(schedule[u"TaskLibID"].ToInt()) : name;
}

// A job without a rig has no dates: rows of rig 0 belong to loose components, whoever owns them.
QList<DueLine> DueLines(int rigID) {
  QList<DueLine> lines;
  if (rigID == 0) return lines;
  Bracket bracket;
  for (const Recordset& schedule : Rows(u"Select * from tblSchedules where RigID = "_s + QString::number(rigID)))
    lines << DueLine{DueName(schedule), schedule[u"DateDue"].ToDate()};
  bracket.Close();
  return lines;
}

QList<DueLine> LifeLines(int rigID) {
  QList<DueLine> lines;
  if (rigID == 0) return lines;
  Bracket bracket;
  for (const Recordset& component : Rows(u"Select * from tblComponents where Rigid = "_s + QString::number(rigID))) {
    const int id = component[u"ID"].ToInt();
    const Date expiry = ServiceLifeExpiry(id);
    if (!expiry.IsNone()) lines << DueLine{ComponentDescription(id).trimmed(), expiry};
  }
  bracket.Close();
  return lines;
}

void DoAddress(InvoiceForm& form) {
  const QString address = GetBusinessAddress();
  if (address.trimmed().isEmpty()) {
    MsgBox(Lines({u"You haven't entered a business address yet."_s, u"You can do this from the main screen."_s,
                  u"(See the SETUP menu)"_s}),
           u"No business address"_s);
    return;
  }
  Canvas& page = form.page;
  const QStringList lines = address.split(u'\n');
  for (const QString& line : lines) form.html << line.toHtmlEscaped() + u"<br>"_s;
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
  form.html << u"<br>"_s;
}

void DoHeader(InvoiceForm& form, int jobID, int rigID) {
  const Date started = JobDateStarted(jobID);
  const QStringList lines = {u"Job Title: "_s + JobTitle(jobID), u"Rig: "_s + RigName(rigID),
                             u"Invoice #"_s + GetInvoiceNumber(jobID),
                             u"Invoice Date: "_s + (started.IsNone() ? QString() : Format(started, u"mm/dd/yyyy"_s))};
  for (const QString& line : lines) {
    PrintJustified(form.page, kHeaderColumn, FitToWidth(form.page, line, kHeaderColumn - kCustomerBoxEnd - kCellGap),
                   false, kJustifyRight);
    form.html << line.toHtmlEscaped() + (line == lines.last() ? u" <br><br>"_s : u"  <br>"_s);
  }
}

// City, state and zip, without the comma of a state that is missing.
QString CityLine(int customerID) {
  QString line = PersonCityLine(customerID).trimmed();
  if (line.endsWith(u',')) line.chop(1);
  return line;
}

QStringList CustomerLines(int customerID) {
  if (!PersonExists(customerID)) return {};
  QStringList lines = {PersonDisplayName(customerID), PersonText(customerID, u"Address1"_s),
                       PersonText(customerID, u"Address2"_s), CityLine(customerID),
                       PersonText(customerID, u"PhoneHome"_s)};
  lines.removeAll(QString());
  return lines;
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
void DoCustomer(InvoiceForm& form, int customerID, double head) {
  Canvas& page = form.page;
  const double headerEnd = page.CurrentY;
  const QStringList lines = CustomerLines(customerID);
  page.CurrentY = head;
  for (const QString& line : lines) {
    PrintJustified(page, kLeftMargin + kCellGap, FitToWidth(page, line, kCustomerBoxEnd - kLeftMargin - 2 * kCellGap));
    form.html << line.toHtmlEscaped() + u" <br>"_s;
  }
  if (!lines.isEmpty()) Box(page, head - kPadding, page.CurrentY + kPadding);

  page.CurrentY = qMax(page.CurrentY, headerEnd) + page.TextHeight({}) / 2;
  for (int rule = 0; rule < 3; ++rule) {
    PrintRule(page, kLeftMargin, kRightMargin);
    page.CurrentY += kRuleStep;
  }
  page.Print({});
}

/// A name on paper, cut where the amount begins, and the amount.
void PrintLine(Canvas& page, double column, const QString& name, std::optional<Money> amount) {
  PageCheck(page);
  if (!amount) {
    PrintJustified(page, column, FitToWidth(page, name, kRightMargin - column));
    return;
  }
  const double amountStart = (kMoneyColumn - kCellGap) * page.Width() - page.TextWidth(MoneyBeforePoint(*amount));
  PrintJustified(page, column, FitToUnits(page, name, amountStart - column * page.Width()), true);
  PrintMoney(page, kMoneyColumn, *amount);
}

QString HtmlLine(const QString& text, const QString& amount) {
  return u"<tr><td>"_s + text + u"</td><td align=right>"_s + amount + u"</td></tr>"_s;
}

void DoLine(InvoiceForm& form, const JobLine& line) {
  const QString name = line.isEvent && !line.isPart ? u"      Event documented: "_s + line.name : line.name;
  const double column = line.isPart ? kPartColumn : kTaskColumn;
  PrintLine(form.page, column, name, line.isEvent ? std::nullopt : std::optional(line.flatRate));
  form.html << HtmlLine((line.isPart ? u"-           "_s : QString()) + name.toHtmlEscaped(),
                        line.isEvent ? QString() : Format(line.flatRate, u"###,###,##0.00"_s));
}

void DoLines(InvoiceForm& form, int jobID) {
  Canvas& page = form.page;
  page.Print({});
  form.html << u"<table style=\"text-align: left; \" border=\"0\" cellpadding=\"2\" cellspacing=\"0\">"_s;
  Money total;
  for (const JobLine& line : JobLines(jobID)) {
    DoLine(form, line);
    total += line.flatRate;
  }
  PageCheck(page);
  page.CurrentY += kPadding;
  PrintRule(page, kTaskColumn, kRuleEnd);
  page.CurrentY += kPadding;
  {
    const BoldText bold(page);
    PrintJustified(page, kTotalColumn, u"Total:"_s, true);
    PrintMoney(page, kMoneyColumn, total);
  }
  form.html << HtmlLine({}, u"-----------"_s) << HtmlLine(u"Total"_s, Format(total, u"$###,###,##0.00"_s))
            << u"</table>"_s;
}

/// What ends when: `suffix` stays whole behind a name that has to be cut.
void DoDate(InvoiceForm& form, const DueLine& line, const QString& suffix, const QString& verb,
            const QString& htmlVerb) {
  Canvas& page = form.page;
  PageCheck(page);
  const double room = (kDateColumn - kLeftMargin - kCellGap) * page.Width() - page.TextWidth(suffix);
  const QString date = Format(line.due, u"mm/dd/yy"_s);
  PrintJustified(page, kLeftMargin, FitToUnits(page, line.name, room) + suffix, true);
  PrintJustified(page, kDateColumn, verb + date);
  form.html << u"     -      "_s + line.name.toHtmlEscaped() + suffix + u": "_s + htmlVerb + date + u" <br>"_s;
}

void DoDates(InvoiceForm& form, int rigID) {
  const QList<DueLine> schedules = DueLines(rigID);
  const QList<DueLine> lives = LifeLines(rigID);
  if (!schedules.isEmpty() || !lives.isEmpty()) form.page.Print({});
  if (!schedules.isEmpty()) {
    PageCheck(form.page);
    const BoldText bold(form.page);
    PrintJustified(form.page, kLeftMargin, u"Please note the following dates:"_s);
    form.html << u"<br><br>"_s << u"Please note the following dates:<br>"_s;
  }
  for (const DueLine& line : schedules) DoDate(form, line, {}, u"Due on "_s, u"  Due on "_s);
  for (const DueLine& line : lives) DoDate(form, line, u" expiration"_s, u"Expires "_s, u"Expires "_s);
}

// The link leads nowhere: a shop puts its own site here.
void DoSiteLink(InvoiceForm& form) {
  form.html << u"<br><br><br>"_s
            << u"<table><tr><td><a href=\"#\" style=\"border: 0px solid ; width: 105px; height: 31px;\">Loftkeep</a>"_s
               u"</td></tr></table>"_s;
}

}  // namespace

void Invoice(int jobID, Canvas& canvas) {
  Trap(u"Sub Invoice"_s, [&] {
    InvoiceForm form{canvas};
    DoAddress(form);
    Bracket bracket;
    const int rigID = JobSystemID(jobID);
    const double head = canvas.CurrentY;
    DoHeader(form, jobID, rigID);
    DoCustomer(form, JobCustomerID(jobID), head);
    if (RigExists(rigID)) DoHTMLRigTable(canvas, form.html, rigID);
    DoLines(form, jobID);
    DoDates(form, rigID);
    DoSiteLink(form);
    bracket.Close();
    WriteLines(SupportFile(kInvoiceHtmlFile), form.html);
  });
}
