#pragma once
#include <QString>

#include <optional>

struct Report;

/// The doors to printing.

/// Shows a report in the preview, from where it can be printed. A preview on show takes the new report over; one that
/// could not be read shows nothing.
void ShowReport(const std::optional<Report>& report);
/// The same with the report of a key (reports/report_keys.h).
void DoReport(const QString& key, int id);

/// Lets a person edit the name and address that head invoices and statements.
void EditBusinessAddress();
