#pragma once
#include <memory>

#include "core/widgets/form.h"
#include "jobs/job_list.h"
#include "jobs/screens.h"

namespace Ui {
class frmJobList;
}

/// All jobs, of one customer or of everyone, and the gear that each was done on.
class frmJobList : public Form {
  Q_OBJECT
 public:
  frmJobList();
  ~frmJobList() override;

  void SetStart(const JobListStart& start);
  void ReloadForm() override;
  QStringList ShowsTables() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void BuildMenus();
  int Customer() const;
  int Job() const;
  int Rig() const;
  JobListFilter Filter() const;
  void LoadCustomers(int select);
  void KeepCustomer(int customer);
  void LoadJobs(int select);
  void ShowTaskType();
  void ShowJob();
  void ShowPhotos();
  void Search();
  void Select();
  void NarrowByTask();
  void StartJob();
  void DeleteSelectedJob();
  void AddNewCustomer();
  void DeleteSelectedCustomer();
  void ShowThisRig();
  void ShowRigNow();

  std::unique_ptr<Ui::frmJobList> ui_;
  int taskLibID_ = 0;
  int shown_ = 0;  ///< the job whose gear is on show
};
