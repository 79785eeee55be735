#pragma once
#include "reports/canvas.h"
#include "reports/invoice_data.h"

/// Draws the invoice; what does not fit into its place is cut.
void PaintInvoice(const InvoiceData& invoice, Canvas& page);
