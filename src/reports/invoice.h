#pragma once
#include "reports/canvas.h"

/// The HTML form of the invoice drawn last, in the support folder.
inline const QString kInvoiceHtmlFile = QStringLiteral("HTMLinvoice.txt");

/// Draws the invoice of a job and writes the same lines as HTML, the body of an e-mailed invoice. A missing customer or
/// rig leaves its texts empty. Without a business address a box says so, and the invoice goes without.
void Invoice(int jobID, Canvas& canvas);
