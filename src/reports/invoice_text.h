#pragma once
#include "reports/invoice_data.h"

/// The words that the page and the mail have in common.

inline const QString kDatesHeading = QStringLiteral("Please note the following dates:");
inline const QString kLifeEnd = QStringLiteral(" expiration");  ///< behind the name of a component

/// Title, rig, number and date, a line to each.
QStringList HeaderLines(const InvoiceData& invoice);
/// The name, behind what marks an event as one.
QString LineText(const InvoiceLine& line);
QString DayText(const InvoiceDate& date);
