#include "jobs/screens/frmJob.h"

#include <QKeyEvent>
#include <QScopedValueRollback>

#include "core/clock.h"
#include "core/dates.h"
#include "core/prompts.h"
#include "core/store/operation.h"
#include "core/store/tables.h"
#include "core/trap.h"
#include "core/widgets/screen_routines.h"
#include "gear/components.h"
#include "gear/person_record.h"
#include "gear/rigs.h"
#include "jobs/delete_job.h"
#include "jobs/job_records.h"
#include "jobs/screens.h"
#include "jobs/screens/job_gear_commands.h"
#include "jobs/screens/ui_frmJob.h"

using namespace Qt::StringLiterals;

namespace {

/// The list "Add to job", in its order.
enum JobItem {
  kReserveRepack,
  kFromLibrary,
  kTaskMenu,
  kCustomTask,
  kSelectPart,
  kCustomPartItem,
  kRule,
  kInstall,
  kRemove
};

const QStringList kJobItems = {u"Reserve Repack"_s,
                               u"Select from library"_s,
                               u"Task Menu"_s,
                               u"Custom task"_s,
                               u"Select part"_s,
                               u"Custom part"_s,
                               u"--------------------------------------------"_s,
                               u"Install component"_s,
                               u"Remove component"_s};

/// Remembers what is shown, for the screens that open on it.
void RememberShown(const JobContext& job, int componentID) {
  SetLastJobID(job.jobID);
  SetLastCustomerID(job.customerID);
  if (job.rigID != 0) SetLastSystemID(job.rigID);
  if (componentID != 0) SetLastComponentID(componentID);
}

}  // namespace

frmJob::frmJob() : ui_(std::make_unique<Ui::frmJob>()), txtAny_(new QLineEdit(this)) {
  ui_->setupUi(this);
  ui_->grid->setObjectName(u"Grid"_s);  // its class already has that name
  txtAny_->setObjectName(u"txtAny"_s);
  txtAny_->hide();
  BuildMenus();
  SetUpLines();
  for (const QString& text : kJobItems) ui_->lstTasks->AddItem(text);
  ConnectControls();
  ConnectGear();
  ConnectHeader();
  QSizePolicy itsPlace = ui_->lblJobComplete->sizePolicy();
  itsPlace.setRetainSizeWhenHidden(true);
  ui_->lblJobComplete->setSizePolicy(itsPlace);
  ui_->lstTasks->setFocus();
}

frmJob::~frmJob() = default;

QStringList frmJob::ShowsTables() const {
  return {tblJobs::kTable,   tblTasks::kTable,          tblJobComponents::kTable, tblComponents::kTable,
          tblModels::kTable, tblComponentTypes::kTable, tblRig::kTable,           tblRigTypeComponents::kTable,
          tblPeople::kTable, tblLocation::kTable,       tblMisc::kTable};
}

void frmJob::ConnectControls() {
  connect(ui_->cmdExit, &QPushButton::clicked, this, &frmJob::Cancel);
  connect(ui_->cmdPrev, &QPushButton::clicked, this, [this] { Step(&PreviousJobID, false); });
  connect(ui_->cmdNext, &QPushButton::clicked, this, [this] { Step(&NextJobID, true); });
  connect(ui_->cmdHelp, &QPushButton::clicked, this, [] {
    MsgBox(u"When all tasks have status COMPLETED, the job status is updated to COMPLETED."_s, u"Jobs"_s);
  });
  connect(ui_->lstTasks, &List::ListChange, this, [this](int row) { ui_->cmdTask->setEnabled(row != kRule); });
  connect(ui_->lstTasks, &List::ItemDoubleClick, this, &frmJob::RunListItem);
  connect(ui_->lstTasks, &List::ItemEnter, this, &frmJob::RunListItem);
  connect(ui_->cmdTask, &QPushButton::clicked, this, &frmJob::RunListItem);
}

bool frmJob::LoadJob(int jobID) {
  if (busy_) return true;
  if (!SaveEditors()) ui_->Grid2->AbandonEditor();
  AuditJobs();
  const int shown = JobExists(jobID) ? jobID : GetNextValidJobID(jobID);
  ui_->grid->Clear();
  ui_->Grid2->Clear();
  if (shown == 0) {
    job_ = {};
    MsgBox(u"There are no jobs"_s);
    hide();
    return false;
  }
  job_.jobID = shown;
  LoadWorkingDate();  // before the job's status follows its lines
  ShowJobOf(shown);
  Upkeep(u"Sub LoadJob"_s, [this] { RememberShown(job_, componentID_); });
  return true;
}

void frmJob::ShowJobOf(int jobID) {
  const QScopedValueRollback<bool> busy(busy_, true);
  Trap(u"Sub LoadJob"_s, [&] {
    Bracket bracket;
    job_ = JobContextOf(jobID);
    componentID_ = JobComponentID(jobID);
    LoadSystemInfo();
    LoadTasksGrid();
    bracket.Close();
  });
}

void frmJob::ReloadForm() {
  if (job_.jobID == 0 || busy_) return;
  if (!JobExists(job_.jobID)) {
    LoadJob(job_.jobID);
    return;
  }
  ShowJobOf(job_.jobID);
  if (!IsValidDate(ui_->txtDate->text().trimmed()) && focusWidget() != ui_->txtDate) LoadWorkingDate();
}

void frmJob::Cancel() {
  if (!SaveEditors()) return;
  SetTag(u"cancel"_s);
  hide();
}

void frmJob::Activate() {
  if (busy_ || job_.jobID == 0) return;
  if (ui_->txtDate->text().trimmed().isEmpty()) ui_->txtDate->setText(HeaderDate(Today()));
  if (JobExists(job_.jobID))
    CheckRigChange();
  else
    LoadJob(job_.jobID);
}

void frmJob::changeEvent(QEvent* event) {
  Form::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) Activate();
}

void frmJob::Step(int (*neighbour)(int jobID, bool& noneLeft), bool forward) {
  bool noneLeft = false;
  const int id = neighbour(job_.jobID, noneLeft);
  if (noneLeft)
    (forward ? ui_->cmdNext : ui_->cmdPrev)->setEnabled(false);
  else
    LoadJob(id);
}

void frmJob::RunListItem() {
  const int item = ui_->lstTasks->ListIndex();
  if (item < 0) {
    MsgBox(Lines({u"Please select an item from the ADD TO JOB list"_s, u"(on left of this form)"_s}),
           u"Nothing selected"_s);
    return;
  }
  switch (item) {
    case kReserveRepack:
      EnterTask();
      break;
    case kFromLibrary:
      AddFromLibrary(false);
      break;
    case kTaskMenu:
      DoMultiTask();
      break;
    case kCustomTask:
      EnterCustom(false);
      break;
    case kSelectPart:
      SelectPart();
      break;
    case kCustomPartItem:
      EnterCustomPart();
      break;
    case kInstall:
      gear_->InstallComponent();
      break;
    case kRemove:
      gear_->RemoveComponent();
      break;
    default:
      break;
  }
}

void frmJob::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F5)
    ReloadForm();
  else
    Form::keyPressEvent(event);
}

void GotoJob(int jobID) {
  auto& form = SharedForm<frmJob>();
  if (form.LoadJob(jobID)) form.Show();
}

void ShowJob() { GotoJob(LastJobID()); }
