#include "jobs/screens/frmNewJob.h"

#include "core/clock.h"
#include "core/dates.h"
#include "core/prompts.h"
#include "core/widgets/screen_routines.h"
#include "gear/people.h"
#include "jobs/job_records.h"
#include "jobs/screens/ui_frmNewJob.h"

using namespace Qt::StringLiterals;

frmNewJob::frmNewJob() : ui_(std::make_unique<Ui::frmNewJob>()) {
  ui_->setupUi(this);
  SetRemembersPlace(false);
  MoveOnWithEnter({ui_->txtName, ui_->txtDate}, ui_->cmdOK);
  connect(ui_->cmdToday, &QPushButton::clicked, this, [this] { ui_->txtDate->setText(Value(Today()).ToText()); });
  connect(ui_->cmdOK, &QPushButton::clicked, this, &frmNewJob::Accept);
  connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmNewJob::Cancel);
}

frmNewJob::~frmNewJob() = default;

void frmNewJob::SetJob(int jobID, int customerID, const QString& name, Date date) {
  jobID_ = jobID;
  customerID_ = customerID;
  jobToLoad_ = 0;
  ui_->txtName->setText(name);
  ui_->txtDate->setText(Value(date).ToText());
}

QString frmNewJob::JobName() const { return ui_->txtName->text().trimmed(); }

void frmNewJob::showEvent(QShowEvent* event) {
  Form::showEvent(event);
  SelectAllInBox(ui_->txtName);
}

void frmNewJob::Accept() {
  const QString typed = ui_->txtDate->text().trimmed();
  if (!IsValidDate(typed)) {
    MsgBox(typed + u" isn't a valid date"_s, u"Invalid date"_s);
    SelectAllInBox(ui_->txtDate);
    return;
  }
  date_ = ParseDate(typed);
  if (!OfferExistingJob()) return;
  SetTag(jobToLoad_ == 0 ? u"ok"_s : u"loadme"_s);
  Leave();
}

/// False when the name is taken and the form stays.
bool frmNewJob::OfferExistingJob() {
  const int existing = JobOfCustomerNamed(customerID_, JobName(), jobID_);
  if (existing == 0) return true;
  const QString taken = customerID_ == 0 ? u"There is already a job with that name"_s
                                         : PersonDisplayName(customerID_) + u" already has a job with that name"_s;
  if (!AskYes(Lines({taken, u"Would like like to load it?"_s}), JobName())) return false;
  jobToLoad_ = existing;
  return true;
}
