#pragma once
#include <QString>

/// The doors to printing.

/// Draws the report of a key (reports/reports.h) and shows it in the preview, from where it can be printed. A preview
/// on show takes the new report over.
void DoReport(const QString& key, int id);

/// Lets a person edit the name and address that head invoices and statements.
void EditBusinessAddress();
