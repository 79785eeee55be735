#pragma once
#include "core/lists.h"

/// The rows that the picker lists of jobs, invoices and the library.

IdList PickerJobs();      ///< by their titles
IdList PickerInvoices();  ///< jobs by their invoice numbers
IdList PickerTasks();     ///< tasks and events in the order in which they were made
