#include "reports/screens/print_pages.h"

#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

#include "core/trap.h"
#include "reports/paint_page.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double kTwipsToTheInch = 1440;

bool AskByDialog(QPrinter& printer, QWidget* parent) {
  QPrintDialog dialog(&printer, parent);
  for (const auto option : {QAbstractPrintDialog::PrintSelection, QAbstractPrintDialog::PrintPageRange,
                            QAbstractPrintDialog::PrintCurrentPage})
    dialog.setOption(option, false);  // reports are printed whole
  return dialog.exec() == QDialog::Accepted;
}

PrinterQuestion printerQuestion = AskByDialog;

void Print(QPrinter& printer, const Pages& pages) {
  const Failure failure(u"Printer error"_s);
  QPainter painter;
  if (!painter.begin(&printer)) throw failure;
  painter.scale(printer.logicalDpiX() / kTwipsToTheInch, printer.logicalDpiY() / kTwipsToTheInch);
  for (qsizetype page = 0; page < pages.pages.size(); ++page) {
    if (page > 0 && !printer.newPage()) throw failure;
    PaintPage(painter, pages.pages.at(page));
  }
  if (!painter.end() || printer.printerState() == QPrinter::Error) throw failure;
}

}  // namespace

PrinterQuestion SetPrinterQuestion(PrinterQuestion question) {
  return std::exchange(printerQuestion, std::move(question));
}

void PrintPages(const Pages& pages, QWidget* parent) {
  Trap(u"Sub PrintPages"_s, [&] {
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageSize(QPageSize(QPageSize::Letter));
    printer.setPageOrientation(pages.orientation == PageOrientation::Portrait ? QPageLayout::Portrait
                                                                              : QPageLayout::Landscape);
    printer.setFullPage(true);
    printer.setDocName(u"Report"_s);
    const PersonAnswers waits;
    if (printerQuestion(printer, parent)) Print(printer, pages);
  });
}
