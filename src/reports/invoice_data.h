#pragma once
#include <QList>
#include <QStringList>

#include <optional>

#include "core/date.h"
#include "core/money.h"
#include "reports/gear_table.h"

/// What the invoice of a job says, whatever it is printed or written on.

struct InvoiceLine {
  QString name;
  Money price;
  bool isPart = false;
  bool isEvent = false;
};

/// What ends or is due on a day.
struct InvoiceDate {
  QString name;
  Date day;
};

struct InvoiceData {
  QStringList business;  ///< name and address of the shop; empty when none has been entered
  QString jobTitle;
  QString rigName;
  QString number;
  Date started;
  QStringList customer;         ///< name, address and telephone, blank lines left out
  std::optional<RigTable> rig;  ///< none when the job has no rig, or the rig has gone
  QList<InvoiceLine> lines;     ///< in the order they were entered
  QList<InvoiceDate> due;       ///< work that is due on the rig
  QList<InvoiceDate> lives;     ///< ends of the service lives of its components

  /// Of all lines, events too.
  Money Total() const;
};

/// Reads it whole or throws Failure. A missing job, customer or rig leaves its texts empty. The first invoice of a job
/// gives it its number; a number that can't be kept is told and stands all the same.
InvoiceData LoadInvoice(int jobID);
