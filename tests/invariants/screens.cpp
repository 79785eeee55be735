#include "invariants/screens.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QSettings>

#include "core/default_rows.h"
#include "core/shell/frmMain2.h"
#include "core/shell/frmRecentChanges.h"
#include "core/widgets/grid.h"
#include "core/widgets/list.h"
#include "gear/components.h"
#include "gear/people.h"
#include "gear/rigs.h"
#include "gear/screens.h"
#include "gear/screens/catalogue/frmComponentModels.h"
#include "gear/screens/catalogue/frmRigTypes.h"
#include "gear/screens/people/frmPeople.h"
#include "gear/screens/rigs/frmGetRig.h"
#include "gear/screens/rigs/rig_browser.h"
#include "history/history_texts.h"
#include "history/screens.h"
#include "history/screens/frmHistoryForm.h"
#include "invariants/file_rows.h"
#include "jobs/screens.h"
#include "jobs/screens/frmCalc.h"
#include "jobs/screens/frmJob.h"
#include "jobs/screens/frmJobList.h"
#include "jobs/screens/frmSelectTask.h"
#include "schedule/screens.h"
#include "schedule/screens/frmSchedule.h"
#include "schedule/task_library.h"

using namespace Qt::StringLiterals;

namespace {

template <class W>
const W& Part(const QWidget& form, const char* name) {
  return *form.findChild<W*>(QLatin1StringView(name));
}
template <class W>
W& Part(Form& form, const char* name) {
  return *form.findChild<W*>(QLatin1StringView(name));
}
bool IsChecked(const Form& form, const char* name) { return Part<QAbstractButton>(form, name).isChecked(); }
int Selected(const Form& form, const char* list) {
  const auto& rows = Part<List>(form, list);
  return rows.ItemData(rows.ListIndex());
}
QString TextOf(const Form& form, const char* label) { return Part<QLabel>(form, label).text(); }

int Any(QRandomGenerator& random, const QList<int>& ids) {
  return ids.isEmpty() ? 0 : ids.at(random.bounded(static_cast<int>(ids.size())));
}

/// The one id whose text reads so; 0 when there is none, or more than one.
int IdOfText(const char* table, const QString& text, QString (*textOf)(int id)) {
  int found = 0;
  for (int id : IdsOf(table)) {
    if (textOf(id) != text) continue;
    if (found != 0) return 0;
    found = id;
  }
  return found;
}

/// Presses an option or a box as far as it stands otherwise on the open screen.
void MarkLike(const Form& open, Form& fresh, std::initializer_list<const char*> names) {
  for (const char* name : names) {
    auto& button = Part<QAbstractButton>(fresh, name);
    if (button.isChecked() != IsChecked(open, name)) button.click();
  }
}

void SortLike(const Grid& open, Grid& fresh) {
  if (open.SortColumn() >= 0)
    fresh.SortBy(open.SortColumn(), open.SortDirection());
  else
    fresh.ForgetSort();
}

/// The same row, told by all its texts, and the same column.
void SelectLike(const Form& open, Form& fresh, const char* name) {
  const auto& from = Part<Grid>(open, name);
  auto& to = Part<Grid>(fresh, name);
  SortLike(from, to);
  const int selected = from.CurrentRow();
  if (selected < 0) {
    to.SelectNone();
    return;
  }
  for (int row = 0; row < to.RowCount(); ++row) {
    bool same = to.RowData(row) == from.RowData(selected);
    for (int column = 0; column < to.ColumnCount(); ++column)
      same = same && to.Text(row, column) == from.Text(selected, column);
    if (!same) continue;
    to.SelectCell(row, from.CurrentColumn());
    return;
  }
}

std::unique_ptr<Form> FreshPeople(const Form& open) {
  const int person = dynamic_cast<const frmPeople&>(open).CurrentPerson();
  if (person < 1) return nullptr;
  auto fresh = std::make_unique<frmPeople>();
  fresh->GoTo(person);
  MarkLike(open, *fresh, {"chkHidePhoto"});
  return fresh;
}

std::unique_ptr<Form> FreshRigs(const Form& open) {
  const auto& shown = *open.findChild<RigBrowser*>();
  auto fresh = std::make_unique<frmGetRig>();
  fresh->SetStart({.customer = shown.Customer(),
                   .rig = shown.Rig(),
                   .rigType = shown.RigTypeFilter(),
                   .hideButtons = !Part<QAbstractButton>(open, "cmdExit").isVisibleTo(&open),
                   .caption = open.windowTitle()});
  auto& browser = *fresh->findChild<RigBrowser*>();
  MarkLike(open, *fresh, {"chkShowSystems", "optAll", "optSelected", "chkHidePhotos"});
  if (browser.Customer() != shown.Customer()) browser.ShowCustomer(shown.Customer());
  if (browser.Rig() != shown.Rig() && shown.Rig() != 0) browser.ShowRig(shown.Rig());
  if (browser.Rig() != shown.Rig() || browser.Customer() != shown.Customer()) return nullptr;
  SelectLike(open, *fresh, "Grid");
  SelectLike(open, *fresh, "Grid2");
  return fresh;
}

std::unique_ptr<Form> FreshJob(const Form& open) {
  const int job = dynamic_cast<const frmJob&>(open).JobID();
  if (job == 0) return nullptr;
  auto fresh = std::make_unique<frmJob>();
  fresh->LoadJob(job);
  Part<QLineEdit>(*fresh, "txtDate").setText(Part<QLineEdit>(open, "txtDate").text());
  Part<List>(*fresh, "lstTasks").SetListIndex(Part<List>(open, "lstTasks").ListIndex());
  SelectLike(open, *fresh, "Grid");
  SelectLike(open, *fresh, "Grid2");
  return fresh;
}

std::unique_ptr<Form> FreshJobList(const Form& open) {
  const QString task = TextOf(open, "lblTaskType").mid(1).chopped(TextOf(open, "lblTaskType").isEmpty() ? 0 : 6);
  const int taskLibID = task.isEmpty() ? 0 : IdOfText("tblTaskLib", task, &TaskLibName);
  if (!task.isEmpty() && taskLibID == 0) return nullptr;
  auto fresh = std::make_unique<frmJobList>();
  fresh->SetStart(
      {.customer = IsChecked(open, "optByCust") ? Selected(open, "lstCustomers") : 0, .taskLibID = taskLibID});
  MarkLike(open, *fresh, {"optByCust", "optAllJobs", "optStatusAny", "optStatusActive", "optStatusComplete"});
  Part<List>(*fresh, "lstJobs").SelectData(Selected(open, "lstJobs"));
  if (Selected(open, "lstJobs") == 0) {
    Part<List>(*fresh, "lstCustomers").SelectData(Selected(open, "lstCustomers"));
    fresh->ReloadForm();
  }
  const QSignalBlocker quiet(Part<List>(*fresh, "lstCustomers"));
  Part<List>(*fresh, "lstCustomers").SelectData(Selected(open, "lstCustomers"));
  if (Selected(*fresh, "lstJobs") != Selected(open, "lstJobs")) return nullptr;
  SelectLike(open, *fresh, "Grid");
  return fresh;
}

std::unique_ptr<Form> FreshSchedule(const Form& open) {
  const auto& grid = Part<Grid>(open, "Grid");
  constexpr int kTask = 3, kTaskLibID = 6, kRigID = 7;
  ScheduleStart start;
  if (IsChecked(open, "optRigOnly")) {
    if (grid.RowCount() == 0) return nullptr;
    start.rig = grid.Text(0, kRigID).toInt();
  }
  const QString customer = TextOf(open, "lblCustomer").section(u":  "_s, 1);
  if (customer != "(none)"_L1) {
    start.customer = IdOfText("tblPeople", customer, &PersonDisplayName);
    if (start.customer == 0) return nullptr;
  }
  auto fresh = std::make_unique<frmSchedule>();
  fresh->SetStart(start);
  if (IsChecked(open, "optCustomersAll")) Part<QAbstractButton>(*fresh, "optCustomersAll").click();
  if (IsChecked(open, "optTasksSelected")) {
    if (grid.RowCount() == 0) return nullptr;
    auto& rows = Part<Grid>(*fresh, "Grid");
    int row = 0;
    while (row < rows.RowCount() && rows.Text(row, kTaskLibID) != grid.Text(0, kTaskLibID)) ++row;
    if (row == rows.RowCount()) return nullptr;
    rows.SelectCell(row, kTask);
    Part<QAbstractButton>(*fresh, "optTasksSelected").click();
  }
  SelectLike(open, *fresh, "Grid");
  return fresh;
}

std::unique_ptr<Form> FreshHistory(const Form& open) {
  const auto& types = Part<List>(open, "LstComp");
  auto fresh = std::make_unique<frmHistoryForm>();
  if (open.windowTitle() == "Component History"_L1 && !Part<QWidget>(open, "ticks").isVisibleTo(&open)) {
    const int component = types.ItemData(0);
    if (!ComponentExists(component)) return nullptr;  // its history goes on to be shown, and can't be opened anew
    fresh->ReloadMe(HistoryViewOfComponent(component));
  } else {
    const int rig = IdOfText("tblRig", TextOf(open, "lblRig"), &HistoryRigText);
    if (rig == 0) return nullptr;
    const bool byType = !Part<QWidget>(open, "filters").isVisibleTo(&open);
    fresh->ReloadMe(HistoryViewOfRig(rig, byType ? int{kReserveCanopy} : 0));
    MarkLike(open, *fresh, {"chkHideOtherRigs", "chkCurrentCompsOnly"});
  }
  Part<List>(*fresh, "LstComp").TickData(types.TickedData());
  Part<List>(*fresh, "LstComp").SelectData(Selected(open, "LstComp"));
  MarkLike(open, *fresh, {"chkHideDuplicates"});
  fresh->ReloadForm();
  SelectLike(open, *fresh, "Grid");
  return fresh;
}

/// A service life that is being defined or typed, and not saved yet.
void TypeLifeLike(const Form& open, Form& fresh) {
  if (IsChecked(open, "chkServiceLife") && !IsChecked(fresh, "chkServiceLife"))
    Part<QAbstractButton>(fresh, "chkServiceLife").click();
  if (!Part<QWidget>(open, "cmdSaveServiceLife").isEnabled()) return;
  Part<QLineEdit>(fresh, "txtServiceLife").setText(Part<QLineEdit>(open, "txtServiceLife").text());
  for (const char* unit : {"optMonths", "optYears"})
    Part<QAbstractButton>(fresh, unit).setChecked(IsChecked(open, unit));
}

std::unique_ptr<Form> FreshModels(const Form& open) {
  const bool parts = !Part<List>(open, "lstTypes").isVisibleTo(&open);
  auto fresh = std::make_unique<frmComponentModels>();
  fresh->SetStart({.type = parts ? int{kMisc} : Selected(open, "lstTypes")});
  MarkLike(open, *fresh, {"optAll", "optManufacturer"});
  const auto& makers = Part<List>(open, "lstManufacturers");
  auto& freshMakers = Part<List>(*fresh, "lstManufacturers");
  const int maker = makers.ListIndex() < 0 ? -1 : freshMakers.FindData(makers.ItemData(makers.ListIndex()));
  freshMakers.SetListIndex(maker);
  Part<List>(*fresh, "lstModels").SelectData(Selected(open, "lstModels"));
  const QSignalBlocker quiet(freshMakers);  // another maker than the model's may be selected to link them
  freshMakers.SetListIndex(maker);
  TypeLifeLike(open, *fresh);
  return fresh;
}

std::unique_ptr<Form> FreshRigTypes(const Form& open) {
  auto fresh = std::make_unique<frmRigTypes>();
  Part<List>(*fresh, "lstType").SelectData(Selected(open, "lstType"));
  Part<List>(*fresh, "LstComp").SelectData(Selected(open, "LstComp"));
  return fresh;
}

std::unique_ptr<Form> FreshLibrary(const Form& open) {
  const auto& shown = dynamic_cast<const frmSelectTask&>(open);
  if (shown.IsPicking()) return nullptr;
  auto fresh = std::make_unique<frmSelectTask>();
  fresh->Browse(TextOf(open, "lblHeading") == "Events"_L1);
  MarkLike(open, *fresh, {"chkComp"});
  Part<List>(*fresh, "lstCompTypes").SelectData(Selected(open, "lstCompTypes"));
  Part<QLineEdit>(*fresh, "txt").setText(Part<QLineEdit>(open, "txt").text());
  Part<List>(*fresh, "lstTasks").SelectData(Selected(open, "lstTasks"));
  return fresh;
}

std::unique_ptr<Form> FreshChanges(const Form& open) {
  auto fresh = std::make_unique<frmRecentChanges>();
  SelectLike(open, *fresh, "grid");
  return fresh;
}

}  // namespace

const std::vector<ScreenKind>& ScreenKinds() {
  using Random = QRandomGenerator;
  static const std::vector<ScreenKind> kinds = {
      {u"frmJob"_s, 8,
       [](Random& random) {
         if (const int job = Any(random, IdsOf("tblJobs"))) GotoJob(job);
       },
       FreshJob},
      {u"frmGetRig"_s, 4, [](Random& random) { OpenRigs({.rig = Any(random, IdsOf("tblRig"))}); }, FreshRigs},
      {u"frmSchedule"_s, 3, [](Random&) { OpenSchedule(); }, FreshSchedule},
      {u"frmHistoryForm"_s, 3,
       [](Random& random) {
         const int rig = Any(random, IdsOf("tblRig"));
         if (rig == 0 || random.bounded(3) == 0)
           OpenComponentHistory(Any(random, IdsOf("tblComponents")));
         else
           OpenRigHistory(rig, random.bounded(4) == 0 ? int{kReserveCanopy} : 0);
       },
       FreshHistory},
      {u"frmJobList"_s, 3,
       [](Random& random) { OpenJobList({.customer = random.bounded(2) == 0 ? 0 : Any(random, IdsOf("tblPeople"))}); },
       FreshJobList},
      {u"frmPeople"_s, 3, [](Random& random) { OpenPeople(Any(random, IdsOf("tblPeople"))); }, FreshPeople},
      {u"frmComponentModels"_s, 2,
       [](Random& random) {
         OpenModels({.type = random.bounded(3) == 0 ? int{kMisc} : Any(random, IdsOf("tblComponentTypes"))});
       },
       FreshModels},
      {u"frmRigTypes"_s, 1, [](Random&) { OpenRigTypes(); }, FreshRigTypes},
      {u"frmSelectTask"_s, 2, [](Random& random) { OpenTaskLibrary(random.bounded(4) == 0); }, FreshLibrary},
      {u"frmRecentChanges"_s, 1, [](Random&) { SharedForm<frmRecentChanges>().Show(); }, FreshChanges},
      {u"frmCalc"_s, 0, [](Random&) { OpenRepackCalculator(); }, nullptr},
      {u"frmMain2"_s, 3, [](Random&) { SharedForm<frmMain2>().Show(); }, nullptr},
  };
  return kinds;
}
