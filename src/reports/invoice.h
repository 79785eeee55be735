#pragma once
#include "reports/report.h"

/// The HTML form of the invoice shown last, in the support folder.
inline const QString kInvoiceHtmlFile = QStringLiteral("HTMLinvoice.txt");

/// The invoice of a job, on paper and as the body of a mail. Without a business address a box says so, and the invoice
/// goes without. Nothing, after a box, when it can't be read.
std::optional<Report> InvoiceReport(int jobID);
