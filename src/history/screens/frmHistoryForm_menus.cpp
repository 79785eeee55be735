#include <QMenu>
#include <QMenuBar>

#include "core/clock.h"
#include "core/prompts.h"
#include "core/screens.h"
#include "core/store/tables.h"
#include "gear/components.h"
#include "gear/rigs.h"
#include "gear/screens.h"
#include "history/history_texts.h"
#include "history/screens/frmHistoryForm.h"
#include "history/screens/ui_frmHistoryForm.h"
#include "jobs/line_edits.h"
#include "jobs/lines.h"
#include "jobs/screens.h"

using namespace Qt::StringLiterals;

void frmHistoryForm::BuildMenus() {
  QMenuBar* bar = MenuBar();
  QMenu* add = bar->addMenu(u"Add"_s);
  add->addAction(u"Add task"_s, this, [this] { AddTaskOrEvent(false); });
  add->addAction(u"Add event"_s, this, [this] { AddTaskOrEvent(true); });
  QMenu* select = bar->addMenu(u"Select"_s);
  select->addAction(u"Select rig"_s, this, &frmHistoryForm::SelectRig);
  select->addAction(u"Select a component"_s, this, &frmHistoryForm::SelectComponent);
  QMenu* rig = bar->addMenu(u"Rig"_s);
  showRig_ = rig->addAction(QString(), this, &frmHistoryForm::ShowRig);
  rig->addAction(u"Select another rig"_s, this, &frmHistoryForm::SelectRig);
  QMenu* job = bar->addMenu(u"Job"_s);
  job->addAction(u"Show job for selected event"_s, this, &frmHistoryForm::ShowJob);
  job->addAction(u"Start new job"_s, this, &frmHistoryForm::StartJob);
  bar->addMenu(u"Delete"_s)->addAction(u"Delete selected event"_s, this, &frmHistoryForm::DeleteEvent);
  bar->addMenu(u"Edit"_s)->addAction(u"Edit event"_s, this, &frmHistoryForm::EditEvent);
  bar->addAction(u"Print"_s)->setEnabled(false);
  bar->addMenu(u"Comments"_s)->addAction(u"Comments for task or event"_s, this, &frmHistoryForm::DoComments);
  bar->addMenu(u"Forms"_s)->addAction(u"Arrange forms"_s, this, [] { ArrangeForms(); });
  QMenu* help = bar->addMenu(u"Help"_s);
  help->addAction(u"Why are there others rigs and multiple components displayed here?"_s, this, &ExplainHistory);
  help->addAction(u"Help 2"_s, this, [] { MsgBox(u"help 2"_s); });
}

void frmHistoryForm::AddTaskOrEvent(bool isEvent) {
  const LibraryChoice choice = SelectTask({.events = isEvent,
                                           .caption = isEvent ? u"Add event to history"_s : u"Add task to history"_s,
                                           .dateCaption = isEvent ? u"Event date:"_s : u"Task date:"_s});
  AddHistoryEntry(view_, choice.taskLibID, choice.date);
}

void frmHistoryForm::DeleteEvent() {
  const auto line = LineOf(ui_->grid->CurrentRow());
  if (!line) return;
  if (line->jobID > 0) {
    if (AskShowJobOfEntry()) ShowJob();
  } else {
    DeleteHistoryEntry(*line);
  }
}

void frmHistoryForm::EditEvent() {
  const auto line = Selected();
  if (!line) return;
  if (line->jobID < 1)
    EditTask(line->taskID);
  else if (AskShowJobOfEntry())
    ShowJob();
}

void frmHistoryForm::ShowJob() {
  if (lines_.isEmpty()) return;
  const auto line = Selected();
  if (!line) return;
  const int task = line->taskID;
  const int job = JobOfLine(task);
  if (job > 0) {
    TellDifferentOwner(job, view_.personID);
    GotoJob(job);
  } else if (AskEditEntry()) {
    EditTask(task);
  }
}

void frmHistoryForm::StartJob() {
  const int rig = RigExists(view_.rigID) ? view_.rigID : 0;
  const int component = ComponentExists(view_.componentID) ? view_.componentID : 0;
  StartNewJob(view_.personID, rig, rig == 0 ? component : 0, Today());
}

void frmHistoryForm::ShowRig() {
  int rig = view_.rigID;
  if (!lines_.isEmpty() || view_.mode != HistoryMode::RigByType) {
    const auto line = LineOf(ui_->grid->CurrentRow());
    if (!line) {
      MsgBox(u"You must select a rig from the RIG column"_s, u"Nothing selected"_s);
      return;
    }
    rig = line->rigID;
  }
  if (!RigExists(rig)) {
    MsgBox(u"This component is not part of a rig"_s, u"Can't display rig"_s);
    return;
  }
  ShowRigs({.customer = RigOwner(rig), .rig = rig});
}

void frmHistoryForm::SelectRig() {
  int rig = view_.rigID;
  int customer = RigOwner(rig);
  if (!PickRig(rig, customer) || rig < 1) return;
  ReloadMe(HistoryViewOfRig(rig, view_.mode == HistoryMode::RigByType ? view_.componentTypeID : 0));
}

void frmHistoryForm::SelectComponent() {
  if (const int component = PickComponent(0); component > 0) ReloadMe(HistoryViewOfComponent(component));
}

void frmHistoryForm::ShowLineComponent() {
  const auto line = LineOf(ui_->grid->CurrentRow());
  if (line && line->componentID != 0) ShowComponent(line->componentID);
}

void frmHistoryForm::DoComments() {
  const auto line = Selected();
  if (!line) return;
  const int task = line->taskID;
  if (const auto text = EditComments(line->task + u" / "_s + line->component, LineComments(task)))
    SetLineComments(task, *text);
  CheckComments(task);
}
