#pragma once
#include <memory>
#include <optional>

#include "core/widgets/form.h"
#include "schedule/schedule_list.h"
#include "schedule/screens.h"

namespace Ui {
class frmSchedule;
}

/// All that falls due, and the ways from there to the rig, the component, the customer and the job.
class frmSchedule : public Form {
  Q_OBJECT
 public:
  frmSchedule();
  ~frmSchedule() override;

  void SetStart(const ScheduleStart& start);
  void ReloadForm() override;
  QStringList ShowsTables() const override;

 private:
  void BuildMenus();
  void RememberRow(int row);
  std::optional<ScheduleEntry> EntryOf(int row) const;
  /// The entry of the selected row, its rig 0 where that has gone; none, told, when nothing is selected.
  std::optional<ScheduleEntry> Selected() const;
  void ShowFilter();
  void ForgetWhatHasGone();
  void ChooseFilter();
  void ChooseTask();
  void ChooseCustomer();

  void DeleteSelection();
  void DisplayRig();
  void DisplayComponent();
  void DisplayCustomer();
  void DisplayJob();
  void StartJob();
  void StartQuickFix();
  void ShowHistory();

  std::unique_ptr<Ui::frmSchedule> ui_;
  QList<ScheduleEntry> entries_;
  ScheduleFilter chosen_;  ///< what the options stand for
  int rig_ = 0;            ///< of the row that was clicked last
};
