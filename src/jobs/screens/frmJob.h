#pragma once
#include <functional>
#include <memory>

#include "core/date.h"
#include "core/widgets/form.h"
#include "jobs/custom_entry.h"
#include "jobs/job_header.h"
#include "jobs/lines.h"
#include "jobs/task_rules.h"

class ClickLabel;
class JobGearCommands;
class QLineEdit;
class QMenu;
namespace Ui {
class frmJob;
}

/// One job: who it is for, the gear on it, and its lines of work. It stays loaded when it is closed.
class frmJob : public Form {
  Q_OBJECT
 public:
  frmJob();
  ~frmJob() override;

  /// Opens a job, or the next valid one when it has gone, on its own working date. False, after a box, when there are
  /// no jobs.
  bool LoadJob(int jobID);
  int JobID() const { return job_.jobID; }
  /// Reads the job anew. Selections, the working date and what is being typed stay.
  void ReloadForm() override;
  QStringList ShowsTables() const override;

 protected:
  void Cancel() override;  ///< hides the screen
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  using Save = std::function<EditResult(const QString& text)>;

  // frmJob.cpp
  void ConnectControls();
  void ShowJobOf(int jobID);
  bool StillShows(int jobID) const { return jobID != 0 && jobID == job_.jobID; }
  void Activate();
  void Step(int (*neighbour)(int jobID, bool& noneLeft), bool forward);
  void RunListItem();

  // frmJob_gear.cpp
  void ConnectGear();
  void LoadSystemInfo();
  void ShowPhotos();
  void CheckRigChange();
  void ExplainGearChange();

  // frmJob_header.cpp
  void ConnectHeader();
  void LoadHeader();
  void EditLabel(ClickLabel* label, const Save& save);
  void SaveLabel();
  void CloseLabelEditor();
  bool SaveEditors();
  void LoadWorkingDate();
  void RepairWorkingDate();
  Date WorkDate() const;
  void ChangeRigger();
  void ChangeLocation();
  void EditJobComments();
  void ShowDateHelp();

  // frmJob_lines.cpp
  void SetUpLines();
  void LoadTasksGrid();
  void ShowLines();
  void ShowTotal();
  void ShowJobStatus(bool complete, const QString& date);
  int SelectedTask() const;  ///< the line of the selected row, 0 for none
  void EditCell(int row, int column);
  void SaveCell(int row, int column, const QString& text, bool& keepOpen);
  void ToggleLine(int row);
  void CompleteAll(bool complete);
  void DeleteCurrentTask();
  void DeleteAllTasks();
  void ChangeTaskRigger();
  void PickLineRigger(int task);
  void Restore(bool (*restore)(int taskID), const QString& what);
  void EditTaskComments();
  void CheckTaskComments();

  // frmJob_adding.cpp
  Date TypedDate() const;
  void EnterTask();
  void GetLibraryTask(int taskLibID, Date date);
  void AddFromLibrary(bool events);
  void DoMultiTask();
  void EnterCustom(bool isEvent);
  void AddOneOff(const CustomEntry& entry, Date date);
  void SelectPart();
  void EnterCustomPart();

  // frmJob_menus.cpp
  void BuildMenus();
  void DeleteThisJob();
  void Locate(int pickerType);
  void ShowInvoice();
  void ShowThisRig();
  void ShowHistory();

  std::unique_ptr<Ui::frmJob> ui_;
  QLineEdit* txtAny_;  ///< laid over the label that is edited
  QString anyText_;    ///< what it was opened with
  ClickLabel* edited_ = nullptr;
  Save save_;
  JobContext job_;
  std::unique_ptr<JobGearCommands> gear_;
  int componentID_ = 0;
  bool rigComponentsCurrent_ = true;
  bool busy_ = false;  ///< a job is being loaded or deleted; what others report meanwhile is not news
};
