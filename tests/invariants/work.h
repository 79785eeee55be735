#pragma once
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "invariants/random_person.h"
#include "invariants/screens.h"
#include "invariants/shown.h"
#include "invariants/small_loft.h"
#include "support/data_folder_here.h"

/// A fault that is put into the program from outside, to see that it is found.
struct PlantedFault {
  QString name;
  QString shows;  ///< what is told of it
  std::function<void(const SmallLoft&)> atStart = nullptr;
  std::function<void()> beforeStep = nullptr;  ///< screens come and go
};

/// All screens of the program at once on a small loft, and random work on them. After each step:
/// - no box of a failure was shown;
/// - a screen whose tables were written shows what a fresh one on the same selection shows; every 25th step all do;
/// - a screen on which nothing was done keeps its selections, by their ids, and the texts that are being typed in it;
/// - no row points to a row that is gone (references.h).
/// At the end everything is undone, and the database is what it was.
class Work {
 public:
  Work();
  ~Work();

  /// Runs a sequence on a fresh loft: what did not hold first, empty when everything did.
  QString Run(const std::vector<Step>& steps, const PlantedFault* fault = nullptr);
  /// What was done in the sequence that ran last, step by step.
  const QStringList& Told() const { return told_; }
  /// Steps that ran, and screens that were compared and that could not be, since the beginning.
  struct Figures {
    int steps = 0;
    int compared = 0;
    int notCompared = 0;
  };
  const Figures& Counted() const { return figures_; }

 private:
  class Written;
  /// What a screen holds while something is done on another one.
  struct Kept {
    int job = 0;
    std::vector<Held> selected;
    std::vector<Held> typed;
  };

  QString Do(const Step& step, bool compareAll);
  QString UndoAll();
  void OpenMissing(quint32 seed);
  QString BoxesOfFailures();
  QString CompareWithFresh(const ScreenKind& kind);
  QString CompareModal(Form& form);
  QString LostBy(const Form& form, const Kept& before) const;

  TempFolder settings_;  // in memory: screens remember their places whenever they go
  SmallLoft loft_;
  DataFolderHere folder_{loft_.Loft().Folder()};  // invoices leave their files there
  RandomPerson person_;
  std::unique_ptr<Written> written_;
  QStringList told_;
  QString modalFault_;
  Figures figures_;
};

/// Draws a sequence from a seed.
std::vector<Step> Sequence(quint32 seed);
/// Takes steps out of a sequence as long as what is left still fails.
std::vector<Step> Shrunk(Work& work, std::vector<Step> steps, const PlantedFault* fault = nullptr);
