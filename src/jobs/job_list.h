#pragma once
#include "core/lists.h"

/// Which jobs are listed.
struct JobListFilter {
  enum class Status { Any, Active, Complete };
  Status status = Status::Any;
  int customer = 0;   ///< 0 for all customers
  int taskLibID = 0;  ///< jobs with a line of this library entry; 0 for all
};

/// The jobs that pass, newest first: date started, title, invoice number, and what is completed among all. Jobs without
/// a title are remnants of starts that failed; they are left out. A job without an invoice number gets it here.
IdList LoadListJobs(const JobListFilter& filter);
