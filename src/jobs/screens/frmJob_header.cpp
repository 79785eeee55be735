#include <QKeyEvent>

#include "core/clock.h"
#include "core/dates.h"
#include "core/prompts.h"
#include "core/screens.h"
#include "core/store/operation.h"
#include "core/widgets/screen_routines.h"
#include "gear/locations.h"
#include "gear/people.h"
#include "gear/screens.h"
#include "jobs/job_records.h"
#include "jobs/screens/frmJob.h"
#include "jobs/screens/ui_frmJob.h"

using namespace Qt::StringLiterals;

namespace {

/// Another window or a box's own menu in front does not mean that the box was left.
bool WasLeft(const QEvent* event) {
  if (event->type() != QEvent::FocusOut) return false;
  const Qt::FocusReason reason = static_cast<const QFocusEvent*>(event)->reason();
  return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason;
}

}  // namespace

void frmJob::ConnectHeader() {
  txtAny_->installEventFilter(this);
  ui_->txtDate->installEventFilter(this);
  const auto edits = [this](ClickLabel* label, EditResult (*save)(int jobID, const QString& text)) {
    connect(label, &ClickLabel::Asked, this, [this, label, save] {
      EditLabel(label, [this, save](const QString& text) { return save(job_.jobID, text); });
    });
  };
  edits(ui_->lblJob, &SaveJobName);
  edits(ui_->lblInvoice, &SaveInvoiceNumber);
  edits(ui_->lblDateStarted, &SaveDateStarted);
  edits(ui_->lblDatePromised, &SaveDatePromised);
  // The completion date follows the lines alone: what is typed over it is dropped.
  connect(ui_->lblDateCompleted, &ClickLabel::Asked, this, [this] {
    EditLabel(ui_->lblDateCompleted,
              [this](const QString&) { return EditResult{.shown = ui_->lblDateCompleted->text()}; });
  });
  connect(ui_->lblRigger, &ClickLabel::Asked, this, &frmJob::ChangeRigger);
  connect(ui_->lblLocation, &ClickLabel::Asked, this, &frmJob::ChangeLocation);
  connect(ui_->cmdToday, &QPushButton::clicked, this, [this] { ui_->txtDate->setText(HeaderDate(Today())); });
  connect(ui_->cmdDateHelp, &QPushButton::clicked, this, &frmJob::ShowDateHelp);
}

void frmJob::LoadHeader() {
  const int id = job_.jobID;
  ui_->lblCust->setText(PersonDisplayName(job_.customerID));
  ui_->lblRigger->setText(job_.riggerID == 0 ? u"(none)"_s : PersonDisplayName(job_.riggerID));
  const QString location = LocationText(job_.locationID);
  ui_->lblLocation->setText(location.isEmpty() ? u"(none)"_s : location);
  ui_->lblJob->setText(JobTitle(id));
  ui_->lblInvoice->setText(GetInvoiceNumber(id));
  ui_->lblDateStarted->setText(HeaderDate(JobDateStarted(id)));
  ui_->lblDatePromised->setText(HeaderDate(JobDatePromised(id)));
  ui_->lblComments->setVisible(!JobComments(id).trimmed().isEmpty());
  ui_->cmdPrev->setEnabled(!IsFirstJob(id));
  ui_->cmdNext->setEnabled(!IsLastJob(id));
  setWindowTitle(u"Job: "_s + JobTitle(id));
}

void frmJob::EditLabel(ClickLabel* label, const Save& save) {
  if (job_.jobID == 0) return;
  SaveLabel();
  edited_ = label;
  save_ = save;
  txtAny_->setAccessibleName(label->accessibleName());
  const QPoint place = label->mapTo(this, QPoint(0, 0));
  const int height = qMax(label->height(), txtAny_->sizeHint().height());
  txtAny_->setGeometry(place.x(), place.y() + (label->height() - height) / 2, qMax(label->width(), 110), height);
  anyText_ = label->text();
  txtAny_->setText(anyText_);
  txtAny_->show();
  txtAny_->raise();
  SelectAllInBox(txtAny_);
}

void frmJob::SaveLabel() {
  if (!edited_) return;
  ClickLabel* label = edited_;
  const Save save = save_;
  const QString text = txtAny_->text();
  CloseLabelEditor();
  if (text == anyText_) return;
  const EditResult result = save(text);
  label->setText(result.shown);
  if (result.refused && label == ui_->lblDateStarted) ui_->txtDate->setFocus();
  if (result.changed && label == ui_->lblJob) setWindowTitle(u"Job: "_s + result.shown);
}

void frmJob::CloseLabelEditor() {
  if (!edited_) return;
  ClickLabel* label = edited_;
  edited_ = nullptr;
  if (txtAny_->hasFocus()) label->setFocus();
  txtAny_->hide();
}

/// Saves what is being typed; false while a cell keeps a text that was refused. A job that has gone takes its texts
/// along.
bool frmJob::SaveEditors() {
  if (!JobExists(job_.jobID)) {
    CloseLabelEditor();
    ui_->Grid2->AbandonEditor();
    return true;
  }
  SaveLabel();
  return ui_->Grid2->SaveEditor();
}

bool frmJob::eventFilter(QObject* watched, QEvent* event) {
  if (watched == txtAny_ && edited_) {
    if (WasLeft(event)) {
      SaveLabel();
    } else if (event->type() == QEvent::KeyPress) {
      const int key = static_cast<QKeyEvent*>(event)->key();
      if (key == Qt::Key_Escape) {
        CloseLabelEditor();
        return true;
      }
      if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        SaveLabel();
        return true;
      }
    }
  }
  if (watched == ui_->txtDate && WasLeft(event) && isVisible()) RepairWorkingDate();
  return Form::eventFilter(watched, event);
}

/// A complete job opens with its completion date as the working date, an open one with its start date.
void frmJob::LoadWorkingDate() {
  const Date completed = JobDateCompleted(job_.jobID);
  const Date started = JobDateStarted(job_.jobID);
  const Date working = completed.IsNone() ? started : completed;
  ui_->txtDate->setText(HeaderDate(working.IsNone() ? Today() : working));
}

void frmJob::RepairWorkingDate() {
  const QString typed = ui_->txtDate->text().trimmed();
  if (IsValidDate(typed)) return;
  ui_->txtDate->setText(HeaderDate(Today()));
  if (!typed.isEmpty()) MsgBox(typed + u" is not a valid date"_s, u"Invalid date - changing to today's date"_s);
}

Date frmJob::WorkDate() const {
  const QString typed = ui_->txtDate->text().trimmed();
  return IsValidDate(typed) ? ParseDate(typed) : Today();
}

void frmJob::ChangeRigger() {
  if (!RiggersExist()) return;
  const int job = job_.jobID;
  const Picked picked = PickItem(kPickRigger, 0, job_.riggerID);
  if (StillShows(job) && picked.id > 0 && picked.id != job_.riggerID) ChangeJobRigger(job, picked.id);
}

/// Lines that are on the job already keep the place where they were done.
void frmJob::ChangeLocation() {
  const int job = job_.jobID;
  const int chosen = ShowLocations(job_.locationID != 0 ? job_.locationID : DefaultLocation());
  if (chosen != 0) Operation(u"Sub ChangeLocation"_s, [&] { SetJobLocationID(job, chosen); });
}

void frmJob::EditJobComments() {
  const int job = job_.jobID;
  const auto text = EditComments(u"Job: "_s + JobTitle(job), JobComments(job));
  if (text) Operation(u"Sub EditJobComments"_s, [&] { SetJobComments(job, *text); });
}

void frmJob::ShowDateHelp() {
  MsgBox(Lines({u"The DATE PERFORMED box has these uses:"_s, QString(),
                u"  1).  It will be the Task Start Date for all new tasks"_s,
                u"  2).  It will be the Task Completion Date when clicking the STATUS column to COMPLETED"_s,
                u"  3).  It will be the JOB Completion Date when all tasks have been checked."_s, QString(),
                u"Changing the date in the DATE PERFORMED box does NOT change the dates for tasks already entered."_s,
                QString(),
                u"Hint: A quick way to change a task's end date is to just uncheck a task and then recheck it.  "_s,
                u"Also changing a JOB's completion date will give you the option of changing each task's end date "_s}),
         u"Job/Task Dates"_s);
}
