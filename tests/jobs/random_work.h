#pragma once
#include <QRandomGenerator>

#include "gear/components.h"
#include "gear/rig_rules.h"
#include "gear/rig_types.h"
#include "gear/rigs.h"
#include "jobs/delete_job.h"
#include "jobs/due_date_model.h"
#include "jobs/install_component.h"
#include "jobs/job_components.h"
#include "jobs/line_edits.h"
#include "jobs/quick_fix.h"
#include "jobs/remove_component.h"
#include "jobs/repack_price.h"
#include "jobs/rig_sync.h"
#include "jobs/sample_job.h"
#include "jobs/task_edit.h"
#include "schedule/gear_moves.h"
#include "schedule/reconstruct.h"
#include "schedule/schedule.h"
#include "schedule/scheduled_task.h"
#include "schedule/task_library.h"

/// What a person does to jobs and gear, as a thing that can be drawn at random, told and repeated. `what` names it; the
/// operands are taken modulo what there is, so that a sequence stays one when steps are taken out of it.
struct Action {
  enum Kind {
    StartJob,
    StartJobOnComponent,
    AddTask,
    AddOwnLine,
    Toggle,
    CompleteAll,
    EditDate,
    EditLine,
    DeleteLine,
    DeleteJob,
    SetCycle,
    TakeOut,
    Move,
    DeleteRig,
    DoneWithoutJob,
    DoneByComponent,
    QuickFix,
    Install,
    Remove,
    Sync,
    Rebuild,
    kKinds
  };
  Kind kind = StartJob;
  int a = 0;
  int b = 0;
  int c = 0;

  static Action Draw(QRandomGenerator& random) {
    // Lines come and are completed more often than anything else.
    static constexpr Kind kOften[] = {StartJob, AddTask, AddTask, AddTask, Toggle, Toggle, Toggle, Move};
    const int drawn = random.bounded(static_cast<int>(kKinds) + static_cast<int>(std::size(kOften)));
    const Kind kind = drawn < kKinds ? static_cast<Kind>(drawn) : kOften[drawn - kKinds];
    return {kind, random.bounded(1000), random.bounded(1000), random.bounded(60)};
  }
  QString ToText() const {
    static const char* const names[] = {
        "StartJob",       "StartJobOnComponent", "AddTask",   "AddOwnLine", "Toggle",  "CompleteAll", "EditDate",
        "EditLine",       "DeleteLine",          "DeleteJob", "SetCycle",   "TakeOut", "Move",        "DeleteRig",
        "DoneWithoutJob", "DoneByComponent",     "QuickFix",  "Install",    "Remove",  "Sync",        "Rebuild"};
    return QStringLiteral("{Action::%1, %2, %3, %4}").arg(QLatin1StringView(names[kind])).arg(a).arg(b).arg(c);
  }
};

/// A loft on which actions run twice: by the program's rules, and in the model.
class RandomWork : public SampleRig {
 public:
  RandomWork() {
    prompts.AnswerRestWith(
        [](const ShownPrompt& shown) { return shown.buttons == Buttons::Ok ? Answer::Ok : Answer::Yes; });
    AddEntry("Line check", 1, kYears, {kMainCanopy});
    AddEntry("Fit check", 90, kDays, {kContainer, kMainCanopy});
    AddEntry("Full check", 45, kDays, {kContainer, kMainCanopy, kReserveCanopy});
    AddEntry("Wash", 0, 0, {kContainer});
    const int ride = AddEntry("Reserve ride", 0, 0, {kReserveCanopy});
    loft.Run(QStringLiteral("update tblTaskLib set IsEvent = true where ID = %1").arg(ride));
    loft.Run(QStringLiteral("update tblTaskLib set AllowMultiple = true where ID = %1").arg(aadCheck));
    for (const char* model : {"Mirage", "Vector"}) {
      models_ << loft.Add("tblModels", {{"Name", model}, {"TypeID", kContainer}});
    }
    for (auto [model, type] : {std::pair{"Pilot", kMainCanopy}, {"Optimum", kReserveCanopy}, {"Vigil", kAad}})
      models_ << loft.Add("tblModels", {{"Name", model}, {"TypeID", int{type}}});
  }

  /// Runs a sequence on a fresh stock; what differed first, empty when program and model agreed throughout.
  QString Run(const std::vector<Action>& actions) {
    Reset();
    for (size_t step = 0; step < actions.size(); ++step) {
      Do(actions[step]);
      const QStringList program = State();
      const QStringList model = model_.State();
      if (program != model)
        return QStringLiteral("step %1: program [%2], model [%3]")
            .arg(step)
            .arg(program.join(QStringLiteral(", ")), model.join(QStringLiteral(", ")));
    }
    return {};
  }

 private:
  /// Schedule and jobs as they lie in the file.
  QStringList State() const {
    QStringList texts = loft.Rows(
        QStringLiteral("select 'due', rigID, TaskLibID, DateDone, DateDue, TaskID, ComponentID from tblSchedules "
                       "union all select 'job', ID, JobStatus, DateCompleted, 0, 0, 0 from tblJobs"));
    texts.sort();
    return texts;
  }
  /// The n-th of what there is, in the order of ids; 0 when there is nothing.
  template <typename Map>
  static int Pick(const Map& from, int n) {
    if (from.empty()) return 0;
    auto at = from.begin();
    std::advance(at, n % static_cast<int>(from.size()));
    if constexpr (requires { at->first; })
      return at->first;
    else
      return *at;
  }
  /// Days around a month's end are as likely as all others together.
  static Date DayOf(int n) {
    static constexpr int kEnds[] = {28, 29, 30, 31};
    const int month = n % 12 + 1;
    const int year = 2024 + n / 12 % 3;
    int day = n % 2 == 0 ? kEnds[n / 7 % 4] : n / 5 % 28 + 1;
    while (!Date::IsValid(year, month, day)) --day;
    return Date::FromParts(year, month, day);
  }

  void Reset() {
    for (const char* table :
         {"tblTasks", "tblTaskComponents", "tblJobs", "tblJobComponents", "tblSchedules", "tblRig", "tblComponents"})
      loft.Run(QStringLiteral("delete * from ") + QLatin1StringView(table));
    SetRepackCycle(180);
    model_ = {};
    model_.typesOfRig = {kContainer, kMainCanopy, kReserveCanopy, kAad};
    using Unit = DueDateModel::Unit;
    model_.entries = {{1, {180, Unit::Days, {kContainer, kReserveCanopy}}}};
    const int first = aadCheck;
    model_.entries[first] = {6, Unit::Months, {kAad}, false, true};
    model_.entries[first + 1] = {1, Unit::Years, {kMainCanopy}};
    model_.entries[first + 2] = {90, Unit::Days, {kContainer, kMainCanopy}};
    model_.entries[first + 3] = {45, Unit::Days, {kContainer, kMainCanopy, kReserveCanopy}};
    model_.entries[first + 4] = {0, Unit::None, {kContainer}};
    model_.entries[first + 5] = {0, Unit::None, {kReserveCanopy}, true, false};
    for (int n = 0; n < 2; ++n) {
      const int id = loft.Add("tblRig", {{"OwnerID", owner}, {"TypeID", 1}, {"rigAlias", "R"}, {"Comment", " "}});
      model_.rigs.insert(id);
      AddPart(models_[n], kContainer, id);
      AddPart(models_[2], kMainCanopy, id);
      AddPart(models_[3], kReserveCanopy, id);
      AddPart(models_[4], kAad, id);
    }
    AddPart(models_[3], kReserveCanopy, 0);
    AddPart(models_[0], kContainer, 0);
    AddPart(models_[4], kAad, 0);
    for (int id : model_.rigs) StartJobOn(id, 0);
  }
  void AddPart(int modelID, int type, int inRig) {
    const int id =
        loft.Add("tblComponents",
                 {{"ModelID", modelID}, {"TypeID", type}, {"SubType", ""}, {"OwnerID", owner}, {"RigID", inRig}});
    model_.components[id] = {type, inRig};
  }

  bool GearIsCurrent(int jobID) const {
    const int onRig = JobSystemID(jobID);
    QString differences;
    return onRig == 0 || !RigExists(onRig) || JobMatchesRig(jobID, onRig, differences);
  }
  void Do(const Action& action) {
    const int jobID = Pick(model_.jobs, action.a);
    const int lineID = Pick(model_.lines, action.a);
    const int rigID = Pick(model_.rigs, action.a);
    const int part = Pick(model_.components, action.b);
    const int entry = action.b % 3 == 0 ? RepackTaskLibID : Pick(model_.entries, action.b);
    const Date date = DayOf(action.c);
    switch (action.kind) {
      case Action::StartJob:
        if (rigID != 0) StartJobOn(rigID, 0);
        break;
      case Action::StartJobOnComponent:
        StartJobOn(0, part);
        break;
      case Action::AddTask:
        if (jobID != 0) AddEntryTo(jobID, entry, date);
        break;
      case Action::AddOwnLine:
        if (jobID != 0) {
          int id = 0;
          AddCustomLine(JobContextOf(jobID), {.name = QStringLiteral("Patch"), .price = Money::Whole(5)}, date, id);
          model_.AddLine(id, jobID, 0, date);
          Load(jobID);
        }
        break;
      case Action::Toggle:
        if (lineID != 0) ToggleLine(lineID, date);
        break;
      case Action::CompleteAll:
        if (jobID != 0) {
          const bool complete = action.b % 2 == 0;
          const bool current = model_.GearIsCurrent(jobID);
          CompleteAllTasks(jobID, complete, date, GearIsCurrent(jobID));
          model_.ToggleAll(jobID, complete, date, current);
          Load(jobID);
        }
        break;
      case Action::EditDate:
        if (lineID != 0 && model_.lines.at(lineID).status == -1) {
          SaveLineDate(lineID, Value(date).ToText());
          model_.lines.at(lineID).date = date;
          LoadJobOf(lineID);
        }
        break;
      case Action::EditLine:
        if (lineID != 0) EditOneLine(lineID, action.b % 4, date);
        break;
      case Action::DeleteLine:
        if (lineID != 0 && model_.lines.at(lineID).job != 0) {
          const int onJob = model_.lines.at(lineID).job;
          ::DeleteLine(lineID, true);
          model_.DeleteLine(lineID);
          Load(onJob);
        }
        break;
      case Action::DeleteJob:
        if (jobID != 0) {
          bool cancelled = false;
          ::DeleteJob(jobID, false, cancelled);
          model_.DeleteJob(jobID);
        }
        break;
      case Action::SetCycle:
        SetRepackCycle(120 + action.b % 3 * 60);
        model_.entries.at(1).number = 120 + action.b % 3 * 60;
        break;
      case Action::TakeOut:
        if (model_.components.at(part).rig != 0) {
          RemoveComponentFromSchedule(part, model_.components.at(part).rig);
          InstallComponent(0, part, owner);
          model_.Detach(part);
        }
        break;
      case Action::Move:
        if (rigID != 0) {
          InstallChosenComponent(rigID, part, Date());
          model_.Move(part, rigID);
        }
        break;
      case Action::DeleteRig:
        if (rigID != 0 && model_.rigs.size() > 1) {
          ::DeleteRig(rigID);
          model_.DeleteRig(rigID);
        }
        break;
      case Action::DoneWithoutJob:
        if (rigID != 0) DoneOn(rigID, 0, entry, date);
        break;
      case Action::DoneByComponent:
        DoneOn(model_.components.at(part).rig, part, Pick(model_.entries, action.a), date);
        break;
      case Action::QuickFix:
        if (rigID != 0 && HasGear(rigID, entry)) Fix(rigID, entry, date);
        break;
      case Action::Install:
        if (jobID != 0) InstallOn(jobID, part, date);
        break;
      case Action::Remove:
        if (jobID != 0) RemoveFrom(jobID, action.b, date);
        break;
      case Action::Sync:
        if (jobID != 0 && model_.rigs.contains(JobSystemID(jobID)) && !model_.GearIsCurrent(jobID)) {
          UpdateRigFromJob(jobID, JobSystemID(jobID));
          model_.Sync(jobID);
        }
        break;
      case Action::Rebuild:
        ReconstructSchedules();
        model_.Rebuild();
        break;
      case Action::kKinds:
        break;
    }
  }

  /// What the job screen does after each change.
  void Load(int jobID) {
    RecomputeJobStatus(jobID);
    model_.LoadJob(jobID);
  }
  void LoadJobOf(int lineID) {
    if (const int jobID = model_.lines.at(lineID).job; jobID != 0) Load(jobID);
  }
  void StartJobOn(int onRig, int component) {
    int id = 0;
    CreateNewJob(QStringLiteral("Job"), owner, onRig, component, id, rigger, 0, Day(3, 1, 2026));
    model_.StartJob(id, onRig, component);
  }
  void AddEntryTo(int jobID, int entry, Date date) {
    if (entry == RepackTaskLibID && !RepackIsPossible(JobSystemID(jobID))) return;
    const QList<int> before = LinesOfJob(jobID);
    const bool added = AddLibraryTask(JobContextOf(jobID), entry, date, true) == LibraryOutcome::Added;
    if (added != model_.MayBeAdded(jobID, entry)) {
      model_.rows << DueDateModel::Row{-1, entry, date, date, jobID, 0};  // shows as a difference
      return;
    }
    if (!added) return;
    model_.AddLine(LinesOfJob(jobID).last(), jobID, entry, date);
    Load(jobID);
  }
  void ToggleLine(int lineID, Date date) {
    const int jobID = model_.lines.at(lineID).job;
    if (jobID == 0) return;
    const bool current = model_.GearIsCurrent(jobID);
    ToggleComplete(lineID, date, GearIsCurrent(jobID));
    model_.Toggle(lineID, date, current);
    if (date.Days() % 2 == 0) Load(jobID);  // else the header stays as the toggle left it
  }
  void EditOneLine(int lineID, int how, Date date) {
    TaskEntry entry;
    LoadTaskEntry(lineID, entry);
    entry.dateStarted = QStringLiteral("1/1/2024");
    const bool hasDate = how == 0 || how == 3;  // complete, incomplete, waiting on parts, waiting with a date
    entry.status = how == 0 ? kComplete : how == 1 ? kIncomplete : kWaitingOnParts;
    entry.dateCompleted = hasDate ? Value(date).ToText() : QString();
    SaveTaskEntry(lineID, entry);
    model_.EditLine(lineID, entry.status, hasDate ? date : Date());
  }
  void InstallOn(int jobID, int part, Date date) {
    if (!model_.rigs.contains(JobSystemID(jobID)) || model_.OnJob(jobID, model_.components.at(part).type) != 0) return;
    InstallOnJob(JobContextOf(jobID), {part, ChosenComponent::FromDatabase}, date);
    model_.Install(jobID, part, LinesOfJob(jobID).last());
    Load(jobID);
  }
  void RemoveFrom(int jobID, int n, Date date) {
    const QList<int> gear = model_.jobs.at(jobID).gear;
    if (gear.isEmpty()) return;
    const int part = gear.at(n % static_cast<int>(gear.size()));
    RemoveFromJob(JobContextOf(jobID), part, date);
    if (model_.CancelsInstallation(jobID, part))
      model_.CancelInstallation(jobID, part);
    else if (!model_.IsNeeded(jobID, part))
      model_.Remove(jobID, part, model_.rigs.contains(JobSystemID(jobID)) ? LinesOfJob(jobID).last() : 0);
    Load(jobID);
  }
  bool HasGear(int onRig, int entry) const {
    const QList<int>& types = model_.entries.at(entry).types;
    return std::all_of(types.begin(), types.end(), [&](int type) { return model_.InRig(onRig, type) != 0; });
  }
  /// Work on record without a job, of a rig, or (by `component`) of the one component that it touches.
  void DoneOn(int onRig, int component, int entry, Date date) {
    const QList<int>& types = model_.entries.at(entry).types;
    if (model_.entries.at(entry).isEvent) return;
    if (component == 0 ? !HasGear(onRig, entry) : types != QList<int>{model_.components.at(component).type}) return;
    QList<int> touched;
    if (component != 0)
      touched << component;
    else
      for (int type : types) touched << model_.InRig(onRig, type);
    prompts.ExpectInput(kProgramTitle, QStringLiteral("Enter date peformed"), Value(date).ToText());
    CreateJoblessTask(entry, onRig, component, date, Date());
    const int id = loft.Rows(QStringLiteral("select max(ID) from tblTasks")).first().toInt();
    model_.AddJoblessLine(id, onRig, entry, date, touched);
    model_.Replace(onRig, entry, date, id, component);
  }
  void Fix(int onRig, int entry, Date date) {
    if (model_.entries.at(entry).isEvent) return;
    const int jobID = ::QuickFix(onRig, owner, entry, date);
    model_.StartJob(jobID, onRig, 0);
    const int id = LinesOfJob(jobID).first();
    model_.AddLine(id, jobID, entry, date);
    model_.SetStatus(id, true, date);
    const QList<int>& touched = model_.lines.at(id).components;
    model_.Update(entry, onRig, touched.size() == 1 ? touched.first() : 0);
    model_.jobs.at(jobID).complete = true;
    model_.jobs.at(jobID).completed = date;
  }

  DueDateModel model_;
  QList<int> models_;  ///< two containers, a main, a reserve, an AAD
};
