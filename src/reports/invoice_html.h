#pragma once
#include "reports/invoice_data.h"

/// The invoice as the body of a mail, a line to each line of its file. What the data hold stands there as text alone.
QStringList InvoiceHtml(const InvoiceData& invoice);
