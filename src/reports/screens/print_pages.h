#pragma once
#include <functional>

#include "reports/canvas.h"

class QPrinter;
class QWidget;

/// Asks which printer is to print, and how; false when the person cancels.
using PrinterQuestion = std::function<bool(QPrinter& printer, QWidget* parent)>;

/// Sets who answers in the place of the platform's print dialog; returns who did before.
PrinterQuestion SetPrinterQuestion(PrinterQuestion question);

/// Asks for a printer and prints every page. A printer that fails is told by a box and ends the run.
void PrintPages(const Pages& pages, QWidget* parent);
