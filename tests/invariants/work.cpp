#include "invariants/work.h"

#include <QCoreApplication>
#include <QSettings>

#include "core/store/change_log.h"
#include "core/store/operation.h"
#include "core/store/schema.h"
#include "core/store/undo.h"
#include "invariants/exceptions.h"
#include "invariants/file_rows.h"
#include "invariants/references.h"
#include "support/screens/screen_script.h"

using namespace Qt::StringLiterals;

/// Hears which tables are written, as screens do.
class Work::Written : public LoadedForm {
 public:
  Written() {
    for (const SchemaTable& table : Schema()) tables_ << table.table;
    tables_ << QLatin1StringView(kUndoTable);
    Forms::Add(this);
  }
  ~Written() override { Forms::Remove(this); }
  Written(const Written&) = delete;
  Written& operator=(const Written&) = delete;

  Changes Take() { return std::exchange(changes_, Changes()); }
  QString FormName() const override { return u"frmNobody"_s; }
  bool FormIsShown() const override { return false; }
  void ReloadForm() override {}
  QStringList ShowsTables() const override { return tables_; }
  void TablesChanged(const Changes& changes) override { changes_.Add(changes); }
  void UnloadForm() override {}

 private:
  QStringList tables_;
  Changes changes_;
};

namespace {

constexpr int kCompareAllEvery = 25;
constexpr int kSteps = 50;

QtMessageHandler tell = nullptr;

/// What the platform of the tests can't do with a window says nothing here.
void LeaveOutPlatform(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (!text.startsWith("This plugin does not support"_L1)) tell(type, context, text);
}

/// What the event loop would do before the person can act again.
void Settle() {
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

Form* Shown(const QString& name) {
  LoadedForm* form = Forms::Find(name);
  return form != nullptr && form->FormIsShown() ? dynamic_cast<Form*>(form) : nullptr;
}

/// The rows of the file without what is only remembered of the screens, which nobody undoes.
QStringList Dump(const ThrowAwayLoft& loft) {
  QStringList rows = loft.Snapshot();
  rows.removeIf([](const QString& row) { return row.startsWith("tblMisc|"_L1); });
  rows += loft.Rows(
      u"select 'tblMisc', LastBackupDate, UserID, RepackCycle, DefaultRigTypeID, UploadAlias, "
      "DefaultRiggerID, DefaultPhotoSize from tblMisc"_s);
  rows.sort();
  return rows;
}

bool Contains(const std::vector<Held>& all, const Held& one) {
  return std::find(all.begin(), all.end(), one) != all.end();
}

QString DumpDifference(const QStringList& start, const QStringList& end) {
  QStringList texts;
  for (const QString& row : start)
    if (!end.contains(row)) texts << u"  gone: "_s + row;
  for (const QString& row : end)
    if (!start.contains(row)) texts << u"  left: "_s + row;
  return texts.join(u'\n');
}

}  // namespace

Work::Work() {
  tell = qInstallMessageHandler(&LeaveOutPlatform);
  IsolateSettings();
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings_.Path());
  person_.SetAfterModalAct([this](Form& form) {
    if (modalFault_.isEmpty()) modalFault_ = CompareModal(form);
  });
}

Work::~Work() {
  UnloadScreens();
  qInstallMessageHandler(tell);
}

QString Work::Run(const std::vector<Step>& steps, const PlantedFault* fault) {
  UnloadScreens();
  QSettings().clear();
  loft_.Reset();
  if (fault != nullptr && fault->atStart) fault->atStart(loft_);
  told_.clear();
  modalFault_.clear();
  written_ = std::make_unique<Written>();
  OpenMissing(steps.empty() ? 0 : steps.front().seed);
  const QStringList start = Dump(loft_.Loft());
  person_.TakeDone();
  person_.TakeBoxes();
  QString wrong;
  for (size_t n = 0; n < steps.size() && wrong.isEmpty(); ++n) {
    if (fault != nullptr && fault->beforeStep) fault->beforeStep();
    wrong = Do(steps[n], (n + 1) % kCompareAllEvery == 0 || n + 1 == steps.size());
    told_ << u"%1: %2"_s.arg(n).arg(person_.TakeDone().join(u"; "_s));
    if (!wrong.isEmpty()) wrong = u"step %1: %2"_s.arg(n).arg(wrong);
  }
  if (wrong.isEmpty()) wrong = UndoAll();
  if (wrong.isEmpty())
    if (const QString left = DumpDifference(start, Dump(loft_.Loft())); !left.isEmpty())
      wrong = u"all undone, and the database is not what it was:\n"_s + left;
  UnloadScreens();
  written_.reset();
  return wrong;
}

void Work::OpenMissing(quint32 seed) {
  QRandomGenerator random(seed);
  for (const ScreenKind& kind : ScreenKinds())
    if (Shown(kind.name) == nullptr) kind.open(random);
  Settle();
}

QString Work::Do(const Step& step, bool compareAll) {
  ++figures_.steps;
  const auto& kinds = ScreenKinds();
  const ScreenKind& chosen = kinds[static_cast<size_t>(step.screen)];
  OpenMissing(step.seed);
  Form* form = Shown(chosen.name);
  if (form == nullptr) return {};
  std::vector<std::pair<QPointer<Form>, Kept>> beside;
  for (const ScreenKind& kind : kinds)
    if (Form* other = Shown(kind.name); other != nullptr && other != form)
      beside.push_back({other, {JobOf(*other), SelectedRows(*other), TypedTexts(*other)}});
  form->raise();
  form->activateWindow();
  Settle();
  person_.TakeRaised();
  written_->Take();

  person_.Act(*form, step.seed);
  Settle();

  const QStringList raised = person_.TakeRaised();
  const Changes changes = written_->Take();
  if (const QString box = BoxesOfFailures(); !box.isEmpty()) return box;
  if (!modalFault_.isEmpty()) return std::exchange(modalFault_, QString());
  for (const auto& [other, kept] : beside) {
    if (!other || !other->isVisible() || raised.contains(other->FormName())) continue;
    if (const QString lost = LostBy(*other, kept); !lost.isEmpty()) return lost;
  }
  for (const ScreenKind& kind : kinds) {
    const Form* other = Shown(kind.name);
    if (other == nullptr) continue;
    const bool wanted = compareAll || &kind == &chosen || changes.TouchesAny(other->ShowsTables());
    if (!wanted) continue;
    if (const QString stale = CompareWithFresh(kind); !stale.isEmpty()) return stale;
  }
  if (changes.IsEmpty()) return {};
  return LostReferences().join(u'\n');
}

QString Work::LostBy(const Form& form, const Kept& before) const {
  const auto told = [&](const char* what, const Held& held) {
    return u"%1 lost %2: %3 of row %4 in %5"_s.arg(form.FormName(), QLatin1StringView(what), held.typed, held.row,
                                                   held.control);
  };
  // A job that has gone takes its selections and texts along.
  if (before.job != 0 && JobOf(form) != before.job)
    return IdsOf("tblJobs").contains(before.job) ? u"%1 left job %2"_s.arg(form.FormName()).arg(before.job) : QString();
  // Where a row has gone, what was selected or typed beside it may follow.
  for (const Held& held : before.selected)
    if (!HasRow(form, held)) return {};
  const std::vector<Held> selected = SelectedRows(form);
  for (const Held& held : before.selected)
    if (!Contains(selected, held) && Keeps(form.FormName(), held.control)) return told("a selection", held);
  const std::vector<Held> typed = TypedTexts(form);
  for (const Held& held : before.typed)
    if (!Contains(typed, held) && HasRow(form, held) && Keeps(form.FormName(), held.control))
      return told("a text that is being typed", held);
  return {};
}

QString Work::CompareWithFresh(const ScreenKind& kind) {
  const QPointer<Form> open = Shown(kind.name);
  if (!open || kind.fresh == nullptr) return {};
  QSettings().clear();  // a fresh screen sorts as the open one does, not as one before did
  const std::unique_ptr<Form> fresh = kind.fresh(*open);
  if (!fresh || !open || !open->isVisible()) {
    ++figures_.notCompared;
    return {};
  }
  ++figures_.compared;
  const QString difference = Difference(WhatShows(*open), WhatShows(*fresh));
  return difference.isEmpty() ? QString() : u"%1 is stale:\n"_s.arg(kind.name) + difference;
}

/// A modal screen can't be opened twice; it is told anew what it has been told.
QString Work::CompareModal(Form& form) {
  if (OperationScope::AnyStands() || form.ShowsTables().isEmpty()) return {};
  const auto before = WhatShows(form);
  const QPointer<Form> shown = &form;
  form.ReloadForm();
  if (!shown || !shown->isVisible()) return {};
  const QString difference = Difference(before, WhatShows(form));
  return difference.isEmpty() ? QString() : u"%1 is stale:\n"_s.arg(form.FormName()) + difference;
}

QString Work::BoxesOfFailures() {
  for (const ShownPrompt& box : person_.TakeBoxes()) {
    const bool failed = box.title.startsWith("Sub "_L1) || box.title.startsWith("Function "_L1);
    if (failed && !IsMeant(box)) return u"a failure was shown: "_s + box.Describe();
  }
  return {};
}

QString Work::UndoAll() {
  person_.TakeBoxes();
  while (NextUndo()) {
    const QString name = NextUndo()->name;
    if (UndoOperation()) {
      if (const QStringList lost = LostReferences(); !lost.isEmpty())
        return u"\"%1\" undone: %2"_s.arg(name, lost.join(u'\n'));
      continue;
    }
    QStringList boxes;
    person_.TakeDone();
    for (const ShownPrompt& box : person_.TakeBoxes()) boxes << box.Describe();
    return u"\"%1\" can't be undone: %2"_s.arg(name, boxes.join(u", "_s));
  }
  Settle();
  for (const ScreenKind& kind : ScreenKinds())
    if (const QString stale = CompareWithFresh(kind); !stale.isEmpty()) return u"all undone, "_s + stale;
  return {};
}

namespace {

/// Most is done where most of the rules are.
int DrawScreen(QRandomGenerator& random) {
  const auto& kinds = ScreenKinds();
  int all = 0;
  for (const ScreenKind& kind : kinds) all += kind.weight;
  int drawn = random.bounded(all);
  int screen = 0;
  while (drawn >= kinds[static_cast<size_t>(screen)].weight) drawn -= kinds[static_cast<size_t>(screen++)].weight;
  return screen;
}

}  // namespace

std::vector<Step> Sequence(quint32 seed) {
  QRandomGenerator random(seed);
  std::vector<Step> steps(kSteps);
  for (Step& step : steps) step = {DrawScreen(random), random.generate()};
  return steps;
}

std::vector<Step> Shrunk(Work& work, std::vector<Step> steps, const PlantedFault* fault) {
  for (size_t part = steps.size(); part > 0; part = std::min(part - 1, part / 2 + part % 2)) {
    for (size_t end = steps.size(); end > 0; end = end > part ? end - part : 0) {
      std::vector<Step> rest = steps;
      rest.erase(rest.begin() + static_cast<std::ptrdiff_t>(end > part ? end - part : 0),
                 rest.begin() + static_cast<std::ptrdiff_t>(end));
      if (!work.Run(rest, fault).isEmpty()) steps = rest;
    }
  }
  return steps;
}
