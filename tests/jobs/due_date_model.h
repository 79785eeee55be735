#pragma once
#include <QList>
#include <QString>
#include <QStringList>

#include <algorithm>
#include <map>
#include <optional>
#include <set>

#include "core/date.h"
#include "schedule/gear_moves.h"

/// The rules of due dates, written down a second time, in memory and as plainly as they can be told. It shares nothing
/// with the program's rules but the type of a date: whoever changes one has to change the other.
class DueDateModel {
 public:
  static constexpr int kRepack = 1;
  static constexpr int kInstall = 2;
  static constexpr int kRemove = 3;
  static constexpr int kContainerType = 1;
  static constexpr int kReserveType = 3;

  enum class Unit { None, Days, Months, Years };

  struct Component {
    int type = 0;
    int rig = 0;
  };
  struct Entry {
    int number = 0;
    Unit unit = Unit::None;
    QList<int> types = {};
    bool isEvent = false;
    bool mayRepeat = false;
  };
  struct Line {
    int job = 0;
    int rig = 0;
    int entry = 0;  ///< 0 for a line of its own
    bool isEvent = false;
    int status = 0;
    Date date = {};
    QList<int> components = {};
    bool tiesComplete = false;
  };
  struct Job {
    int rig = 0;
    int component = 0;
    QList<int> gear = {};
    bool complete = false;
    Date completed = {};
  };
  struct Row {
    int rig = 0;
    int entry = 0;
    Date done = {};
    Date due = {};
    int line = 0;
    int component = 0;
  };

  QList<int> typesOfRig = {};
  std::map<int, Component> components;
  std::set<int> rigs;
  std::map<int, Entry> entries;
  std::map<int, Line> lines;
  std::map<int, Job> jobs;
  QList<Row> rows;

  // What is where.

  int InRig(int rig, int type) const {
    for (const auto& [id, component] : components)
      if (component.rig == rig && component.type == type) return id;
    return 0;
  }
  int OnJob(int job, int type) const {
    for (int id : jobs.at(job).gear)
      if (components.at(id).type == type) return id;
    return 0;
  }
  QList<int> LinesOf(int job) const {
    QList<int> ids;
    for (const auto& [id, line] : lines)
      if (line.job == job) ids << id;
    return ids;
  }
  /// The job wears what its rig wears now; a rig that has gone is not compared.
  bool GearIsCurrent(int job) const {
    const int rig = jobs.at(job).rig;
    return !rigs.contains(rig) || std::all_of(typesOfRig.begin(), typesOfRig.end(),
                                              [&](int type) { return OnJob(job, type) == InRig(rig, type); });
  }
  /// An entry goes onto a job that has all its gear, and once unless it may repeat.
  bool MayBeAdded(int job, int entry) const {
    const Entry& wanted = entries.at(entry);
    for (int type : wanted.types)
      if (OnJob(job, type) == 0) return false;
    if (wanted.mayRepeat) return true;
    const QList<int> present = LinesOf(job);
    return std::none_of(present.begin(), present.end(), [&](int id) { return lines.at(id).entry == entry; });
  }

  // Jobs and their lines.

  void StartJob(int id, int rig, int component) {
    Job job{rig, component, {}, false, {}};
    if (rig != 0) {
      for (const auto& [part, where] : components)
        if (where.rig == rig) job.gear << part;
    } else if (component != 0) {
      job.gear << component;
    }
    jobs[id] = job;
  }
  void AddLine(int id, int job, int entry, Date date) {
    Line line{job, jobs.at(job).rig, entry, false, 0, {}, {}, false};
    if (entry != 0) {
      line.isEvent = entries.at(entry).isEvent;
      for (int type : entries.at(entry).types)
        if (const int part = OnJob(job, type); part != 0) line.components << part;
    }
    if (line.isEvent) {
      line.status = -1;
      line.date = date;
      line.tiesComplete = true;
    }
    lines[id] = line;
  }
  void AddGearLine(int id, int job, int entry, int component) {
    lines[id] = {job, jobs.at(job).rig, entry, false, 0, {}, {component}, false};
  }
  void AddJoblessLine(int id, int rig, int entry, Date date, const QList<int>& touched) {
    lines[id] = {0, rig, entry, false, -1, date, touched, true};
  }
  void SetStatus(int id, bool complete, Date date) {
    Line& line = lines.at(id);
    line.status = complete ? -1 : 0;
    line.date = complete ? date : Date();
    line.tiesComplete = complete;
  }
  bool IsDone(int id) const { return lines.at(id).isEvent || lines.at(id).status == -1; }
  bool AllDone(int job) const {
    const QList<int> all = LinesOf(job);
    return !all.isEmpty() && std::all_of(all.begin(), all.end(), [&](int id) { return IsDone(id); });
  }
  void Toggle(int id, Date date, bool gearIsCurrent) {
    Line& line = lines.at(id);
    if (line.isEvent) return;
    SetStatus(id, line.status != -1, date);
    Job& job = jobs.at(line.job);
    if (gearIsCurrent || job.rig == 0)
      Update(line.entry, job.rig, line.components.size() == 1 ? line.components.first() : 0);
    job.complete = AllDone(line.job);
    job.completed = job.complete ? date : Date();
  }
  void ToggleAll(int job, bool complete, Date date, bool gearIsCurrent) {
    for (int id : LinesOf(job))
      if (IsDone(id) != complete) Toggle(id, date, gearIsCurrent);
    Job& header = jobs.at(job);
    if (complete && header.completed.IsNone()) header.completed = date;
    if (!complete) header.completed = Date();
  }
  void EditLine(int id, int status, Date date) {
    Line& line = lines.at(id);
    line.status = status;
    line.date = date;
    Update(line.entry, line.rig, 0);
  }
  void DeleteLine(int id) {
    const Line gone = lines.at(id);
    lines.erase(id);
    Job& job = jobs.at(gone.job);
    if (gone.entry != 0) Update(gone.entry, job.rig, job.component);
    if (LinesOf(gone.job).isEmpty()) job.completed = Date();
  }
  void DeleteJob(int job) {
    for (int id : LinesOf(job)) {
      const int entry = lines.at(id).entry;
      lines.erase(id);
      Update(entry, jobs.at(job).rig, 0);
    }
    jobs.erase(job);
  }
  /// What loading a job makes of its header: the first line's date stands for all.
  void LoadJob(int job) {
    const QList<int> all = LinesOf(job);
    Job& header = jobs.at(job);
    header.complete = std::all_of(all.begin(), all.end(), [&](int id) { return lines.at(id).status == -1; });
    header.completed = header.complete && !all.isEmpty() ? lines.at(all.first()).date : Date();
  }

  // Gear on the move.

  void Detach(int component) {
    Component& part = components.at(component);
    if (part.type == kContainerType || part.type == kReserveType) DropRows(part.rig, kRepack, 0);
    for (Row& row : rows)
      if (row.component == component) row.rig = 0;
    part.rig = 0;
  }
  void Move(int component, int rig) {
    Component& part = components.at(component);
    if (const int before = InRig(rig, part.type); before != 0 && before != component) components.at(before).rig = 0;
    part.rig = rig;
  }
  /// Gear that goes onto a job goes into the rig that the job still shows.
  void Install(int job, int component, int line) {
    const int rig = jobs.at(job).rig;
    const bool current = GearIsCurrent(job);
    jobs.at(job).gear << component;
    AddGearLine(line, job, kInstall, component);
    if (current) Move(component, rig);
  }
  /// The lines of a job that touched a component.
  QList<int> LinesOn(int job, int component) const {
    QList<int> ids = LinesOf(job);
    ids.removeIf([&](int id) { return !lines.at(id).components.contains(component); });
    return ids;
  }
  /// An installation that nothing else was done to since is taken back with its line.
  bool CancelsInstallation(int job, int component) const {
    const QList<int> touched = LinesOn(job, component);
    return touched.size() == 1 && lines.at(touched.first()).entry == kInstall;
  }
  bool IsNeeded(int job, int component) const {
    const QList<int> touched = LinesOn(job, component);
    return std::any_of(touched.begin(), touched.end(), [&](int id) { return lines.at(id).entry != kInstall; });
  }
  /// Gear that leaves a job leaves the rig that wears it; `line` is the removal's, 0 for none.
  void Remove(int job, int component, int line) {
    Component& part = components.at(component);
    Job& shown = jobs.at(job);
    const bool current = GearIsCurrent(job);
    const bool inRig = rigs.contains(shown.rig) && part.rig == shown.rig;
    shown.gear.removeAll(component);
    if (line != 0) AddGearLine(line, job, kRemove, component);
    if (!inRig) return;
    if (current && (part.type == kContainerType || part.type == kReserveType)) DropRows(shown.rig, kRepack, 0);
    part.rig = 0;
  }
  void CancelInstallation(int job, int component) {
    const int line = LinesOn(job, component).first();
    Job& shown = jobs.at(job);
    if (GearIsCurrent(job) && rigs.contains(shown.rig) && components.at(component).rig == shown.rig)
      components.at(component).rig = 0;
    shown.gear.removeAll(component);
    lines.erase(line);
  }
  /// The rig wears what the job shows; the schedule stays.
  void Sync(int job) {
    const int rig = jobs.at(job).rig;
    for (int type : typesOfRig) {
      const int component = OnJob(job, type);
      if (component != 0 && components.at(component).rig == rig) continue;
      if (const int before = InRig(rig, type); before != 0) components.at(before).rig = 0;
      if (component != 0) components.at(component).rig = rig;
    }
  }
  void DeleteRig(int rig) {
    DropRows(rig, kRepack, 0);
    rigs.erase(rig);
  }

  // The schedule.

  void Update(int entry, int rig, int component) {
    if (!entries.contains(entry) || entries.at(entry).number == 0) return;  // a line of its own, gear on the move
    const int line = rig == 0 ? LastOnComponent(component, entry) : LastOnRig(rig, entry);
    if (line == 0)
      DropRows(rig, entry, component);
    else
      Replace(rig, entry, lines.at(line).date, line, component);
  }
  void Replace(int rig, int entry, Date done, int line, int component) {
    if (entries.at(entry).number == 0) return;
    DropRows(rig, entry, component);
    const auto due = Roll(entry, done);
    if (!due) return;  // told in a box; the work stays, its due date is unknown
    const auto left = std::find_if(rows.begin(), rows.end(), [&](const Row& row) {
      return row.entry == entry && (rig != 0 ? row.rig == rig : row.component == component);
    });
    if (left != rows.end()) rows.erase(left);
    rows << Row{rig, entry, done, *due, line, component};
  }
  void Rebuild() {
    rows.clear();
    for (const auto& [id, part] : components) {
      for (const auto& [entryID, entry] : entries) {
        if (entry.unit == Unit::None || (part.type == kReserveType && entryID == kRepack)) continue;
        const int line = LastOnComponent(id, entryID);
        if (line == 0) continue;
        if (const auto due = Roll(entryID, lines.at(line).date))
          rows << Row{part.rig, entryID, lines.at(line).date, *due, line, entry.types.size() == 1 ? id : 0};
      }
    }
  }

  // Schedule and jobs as texts, to compare.

  QStringList State() const {
    QStringList texts;
    for (const Row& row : rows)
      texts << QStringLiteral("due|%1|%2|%3|%4|%5|%6")
                   .arg(row.rig)
                   .arg(row.entry)
                   .arg(row.done.Days())
                   .arg(row.due.Days())
                   .arg(row.line)
                   .arg(row.component);
    for (const auto& [id, job] : jobs)
      texts << QStringLiteral("job|%1|%2|%3|0|0|0").arg(id).arg(job.complete ? -1 : 0).arg(job.completed.Days());
    texts.sort();
    return texts;
  }

 private:
  /// A repack counts for the container and the reserve that it was done on.
  bool CountsForRig(const Line& line, int rig) const {
    return line.entry != kRepack ||
           (line.components.contains(InRig(rig, kContainerType)) && line.components.contains(InRig(rig, kReserveType)));
  }
  int LastOnRig(int rig, int entry) const {
    int best = 0;
    for (const auto& [id, line] : lines) {
      if (line.rig != rig || line.entry != entry || line.status != -1 || !CountsForRig(line, rig)) continue;
      if (best == 0 || line.date >= lines.at(best).date) best = id;
    }
    return best == 0 || lines.at(best).date.IsNone() ? 0 : best;
  }
  int LastOnComponent(int component, int entry) const {
    int best = 0;
    for (const auto& [id, line] : lines) {
      if (line.entry != entry || !line.tiesComplete || line.date.IsNone() || !line.components.contains(component))
        continue;
      if (best == 0 || line.date > lines.at(best).date) best = id;
    }
    return best;
  }
  void DropRows(int rig, int entry, int component) {
    rows.removeIf([&](const Row& row) {
      if (row.entry != entry) return false;
      return entry == kRepack || rig != 0 ? row.rig == rig : row.component == component;
    });
  }
  std::optional<Date> Roll(int entryID, Date from) const {
    const Entry& entry = entries.at(entryID);
    if (entry.unit == Unit::Days) return Date(from.Days() + entry.number);
    const int months = entry.unit == Unit::Months ? entry.number : 12 * entry.number;
    const QDate day = QDate(1899, 12, 30).addDays(from.Days());
    const int total = day.year() * 12 + day.month() - 1 + months;
    const QDate rolled(total / 12, total % 12 + 1, day.day());
    if (!rolled.isValid()) return std::nullopt;
    return Date::FromParts(rolled.year(), rolled.month(), rolled.day());
  }
};
