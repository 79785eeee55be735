#pragma once
#include <QString>

#include <optional>

#include "reports/report.h"

/// The report of a key, its case aside; what `id` means depends on the key. Nothing, after a box, for a report that
/// can't be read, and for a key that has none.
///
///   "invoice"   the invoice of a job
std::optional<Report> ReportOfKey(const QString& key, int id);
