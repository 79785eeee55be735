#pragma once
#include <QString>

#include <optional>

#include "reports/canvas.h"

/// The logbook lies across the page, every other report stands.
PageOrientation OrientationOf(const QString& key);

/// Runs the report of a key, its case aside; what `id` means depends on the key. A font too great for the logbook is
/// cut and kept. Nothing, after a box, for a key that has no report.
///
///   "invoice"   the job's invoice, and its HTML in "HTMLinvoice.txt"
std::optional<Pages> BuildReport(const QString& key, int id, FontChoice& font);
