#include "jobs/screens/frmJobList.h"

#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>

#include "core/clock.h"
#include "core/prompts.h"
#include "core/screens.h"
#include "core/store/tables.h"
#include "gear/people.h"
#include "gear/person_names.h"
#include "gear/person_record.h"
#include "gear/rig_rules.h"
#include "gear/rig_types.h"
#include "gear/rigs.h"
#include "gear/screens.h"
#include "jobs/delete_job.h"
#include "jobs/job_records.h"
#include "jobs/person_deletion.h"
#include "jobs/screens/gear_grid.h"
#include "jobs/screens/keep_shown.h"
#include "jobs/screens/ui_frmJobList.h"
#include "schedule/task_library.h"

using namespace Qt::StringLiterals;

frmJobList::frmJobList() : ui_(std::make_unique<Ui::frmJobList>()) {
  ui_->setupUi(this);
  ui_->grid->setObjectName(u"Grid"_s);
  SetUpGearGrid(*ui_->grid);
  BuildMenus();
  connect(ui_->lstCustomers, &List::ListChange, this, [this](int row) {
    if (row >= 0 && ui_->optByCust->isChecked()) LoadJobs(0);
  });
  connect(ui_->lstJobs, &List::ListChange, this, &frmJobList::ShowJob);
  connect(ui_->lstJobs, &List::ItemDoubleClick, this, &frmJobList::Select);
  connect(ui_->lstJobs, &List::ItemEnter, this, &frmJobList::Select);
  connect(ui_->lstJobs, &List::ItemDelete, this, &frmJobList::DeleteSelectedJob);
  for (QRadioButton* option :
       {ui_->optByCust, ui_->optAllJobs, ui_->optStatusAny, ui_->optStatusActive, ui_->optStatusComplete})
    connect(option, &QRadioButton::clicked, this, [this] { LoadJobs(Job()); });
  connect(ui_->chkHidePhotos, &QCheckBox::clicked, this, [this](bool hidden) {
    SetPhotosHidden(hidden);
    ShowPhotos();
  });
  connect(ui_->cmdSearch, &QPushButton::clicked, this, &frmJobList::Search);
  connect(ui_->cmdRefresh, &QPushButton::clicked, this, &frmJobList::ReloadForm);
  connect(ui_->cmdSelect, &QPushButton::clicked, this, &frmJobList::Select);
  connect(ui_->cmdExit, &QPushButton::clicked, this, &frmJobList::Cancel);
  connect(ui_->cmdCurrentComp, &QPushButton::clicked, this, &frmJobList::ShowRigNow);
  connect(ui_->cmdHelp, &QPushButton::clicked, this, [] {
    MsgBox(Lines({u"The components shown are those which were present at the time of the job."_s,
                  u"The rig's components may be different today."_s}),
           u"Rig Components"_s);
  });
  ShowPhotos();
}

frmJobList::~frmJobList() = default;

QStringList frmJobList::ShowsTables() const {
  return {tblJobs::kTable,
          tblTasks::kTable,
          tblTaskLib::kTable,
          tblPeople::kTable,
          tblJobComponents::kTable,
          tblComponents::kTable,
          tblModels::kTable,
          tblComponentTypes::kTable,
          tblRig::kTable,
          tblRigTypes::kTable,
          tblRigTypeComponents::kTable,
          tblMisc::kTable};
}

void frmJobList::BuildMenus() {
  QMenu* customers = MenuBar()->addMenu(u"Cus&tomers"_s);
  customers->addAction(u"Add new customer"_s, this, &frmJobList::AddNewCustomer);
  customers->addAction(u"Delete customer"_s, this, &frmJobList::DeleteSelectedCustomer);
  QMenu* jobs = MenuBar()->addMenu(u"&Jobs"_s);
  jobs->addAction(u"Start new job"_s, this, &frmJobList::StartJob);
  jobs->addAction(u"Delete job"_s, this, &frmJobList::DeleteSelectedJob);
  MenuBar()->addMenu(u"R&ig"_s)->addAction(u"Show rig"_s, this, &frmJobList::ShowThisRig);
  QMenu* search = MenuBar()->addMenu(u"&Search"_s);
  search->addAction(u"by task type"_s, this, &frmJobList::NarrowByTask);
  search->addAction(u"All jobs"_s, this, [this] {
    taskLibID_ = 0;
    LoadJobs(Job());
  });
  MenuBar()->addMenu(u"T&ools"_s)->addAction(u"Delete all empty jobs"_s, this, [] { DeleteAllEmptyJobs(); });
  MenuBar()->addMenu(u"For&ms"_s)->addAction(u"Arrange forms"_s, this, [] { ArrangeForms(); });
}

void frmJobList::SetStart(const JobListStart& start) {
  taskLibID_ = start.taskLibID;
  (start.customer == 0 ? ui_->optAllJobs : ui_->optByCust)->setChecked(true);
  LoadCustomers(start.customer != 0 ? start.customer : JobCustomerID(LastJobID()));
  LoadJobs(LastJobID());
}

void frmJobList::ReloadForm() {
  if (!TaskLibExists(taskLibID_)) taskLibID_ = 0;
  const int job = Job();
  const int customer = Customer();
  RefillList(*ui_->lstCustomers, ::LoadCustomers(false));
  ShowTaskType();
  RefillList(*ui_->lstJobs, LoadListJobs(Filter()));
  ShowJob();
  ShowPhotos();
  if (Job() == job) KeepCustomer(customer);
}

/// The customer who was selected beside a job stays, also where the job is another one's.
void frmJobList::KeepCustomer(int customer) {
  const QSignalBlocker quiet(ui_->lstCustomers);
  if (ui_->lstCustomers->FindData(customer) >= 0) ui_->lstCustomers->SelectData(customer);
}

int frmJobList::Customer() const { return ui_->lstCustomers->ItemData(ui_->lstCustomers->ListIndex()); }
int frmJobList::Job() const { return ui_->lstJobs->ItemData(ui_->lstJobs->ListIndex()); }
int frmJobList::Rig() const { return Job() == 0 ? 0 : JobSystemID(Job()); }

JobListFilter frmJobList::Filter() const {
  using Status = JobListFilter::Status;
  const Status status = ui_->optStatusActive->isChecked()     ? Status::Active
                        : ui_->optStatusComplete->isChecked() ? Status::Complete
                                                              : Status::Any;
  // Nobody selected is a customer without jobs, not everyone.
  const int customer = ui_->optAllJobs->isChecked() ? 0 : Customer() == 0 ? -1 : Customer();
  return {status, customer, taskLibID_};
}

void frmJobList::LoadCustomers(int select) {
  const QSignalBlocker quiet(ui_->lstCustomers);
  ui_->lstCustomers->Fill(::LoadCustomers(false));
  ui_->lstCustomers->SelectData(select);
}

void frmJobList::LoadJobs(int select) {
  const QSignalBlocker quiet(ui_->lstJobs);
  ShowTaskType();
  ui_->lstJobs->Fill(LoadListJobs(Filter()));
  ui_->lstJobs->SelectData(select);
  ShowJob();
}

void frmJobList::ShowTaskType() {
  ui_->lblTaskType->setText(taskLibID_ == 0 ? QString() : u'(' + TaskLibName(taskLibID_) + u" only)"_s);
}

void frmJobList::ShowJob() {
  const int job = Job();
  const int rig = Rig();
  const bool rigExists = rig != 0 && RigExists(rig);
  if (job != 0) {
    SetLastJobID(job);
    const QSignalBlocker quiet(ui_->lstCustomers);
    const int customer = JobCustomerID(job);
    const int shown = !PersonExists(customer) && rigExists ? RigOwner(rig) : customer;
    if (!ui_->lstCustomers->SelectData(shown)) ui_->lstCustomers->SetListIndex(-1);
  }
  ui_->lblRigType->setText(rigExists ? RigTypeName(RigType(rig)) : QString());
  if (job == 0 || job != shown_) ui_->grid->Clear();
  shown_ = job;
  if (job != 0) FillGearGrid(*ui_->grid, job, rigExists ? rig : 0);
  ui_->cmdCurrentComp->setEnabled(rig != 0);
}

void frmJobList::ShowPhotos() {
  const bool hidden = PhotosAreHidden();
  ui_->chkHidePhotos->setChecked(hidden);
  for (QLabel* photo : {ui_->ImageRig, ui_->imageCanopy}) photo->setVisible(!hidden);
}

void frmJobList::Search() {
  const int picked = PickItem(kPickCustomer, 0, Customer()).id;
  const int person = picked == kPickAddNewPerson || picked == kPickAddNew ? ShowPeople(kPeopleAddNew) : picked;
  if (person < 1) return;
  LoadCustomers(person);
  LoadJobs(0);
}

void frmJobList::Select() {
  if (Job() == 0)
    MsgBox(u"You must select a job first"_s, u"No job selected"_s);
  else
    GotoJob(Job());
}

void frmJobList::NarrowByTask() {
  const int picked = PickItem(kPickTask).id;
  taskLibID_ = qMax(picked, 0);
  LoadJobs(Job());
}

void frmJobList::StartJob() {
  if (!RiggersExist()) return;
  const int customer = Customer();
  if (customer == 0) {
    MsgBox(u"You must select a customer first"_s, u"No customer selected"_s);
    return;
  }
  if (AskYes(u"Start a new job for "_s + PersonDisplayName(customer) + u'?', u"Is this the correct customer?"_s))
    StartNewJob(customer, 0, 0, Today());
}

void frmJobList::DeleteSelectedJob() {
  const int job = Job();
  if (job == 0) {
    MsgBox(u"Please select a job"_s, u"Delete Job"_s);
    return;
  }
  if (Customer() == 0) {
    MsgBox(u"Please select a customer"_s, u"Select Customer"_s);
    return;
  }
  bool cancelled = false;
  DeleteJob(job, true, cancelled);
}

void frmJobList::AddNewCustomer() {
  const int person = AddCustomer();
  if (person == 0) return;
  LoadCustomers(person);
  LoadJobs(0);
}

void frmJobList::DeleteSelectedCustomer() {
  const int customer = Customer();
  int neighbour = 0;
  if (customer == 0 || !DeleteCustomer(customer, neighbour)) return;
  LoadCustomers(neighbour);
  LoadJobs(0);
}

void frmJobList::ShowThisRig() {
  const int rig = Rig();
  if (rig == 0) {
    if (const int component = Job() == 0 ? 0 : JobComponentID(Job()); component != 0)
      ShowComponent(component);
    else
      MsgBox(u"There is no rig for this job"_s, u"No Rig"_s);
  } else if (!RigExists(rig)) {
    MsgBox(u"The rig for this job has been deleted"_s, u"Can't show rig"_s);
  } else {
    ShowRig(rig);
  }
}

void frmJobList::ShowRigNow() {
  if (RigExists(Rig()))
    ShowCurrentComponents(Rig());
  else
    MsgBox(u"The rig used in this job no longer exists"_s, u"Rig Deleted"_s);
}

void frmJobList::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Delete)
    DeleteSelectedJob();
  else
    Form::keyPressEvent(event);
}

void OpenJobList(const JobListStart& start) {
  auto& form = SharedForm<frmJobList>();
  form.SetStart(start);
  form.Show();
}
