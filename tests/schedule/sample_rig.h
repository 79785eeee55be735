#pragma once
#include <QList>
#include <QString>

#include "core/date.h"
#include "core/default_rows.h"
#include "support/fixed_clock.h"
#include "support/scripted_prompts.h"
#include "support/throwaway_loft.h"

/// A loft on 15 March 2026 with one rigger, one customer and his Sport Rig "Blue": container, main, reserve and AAD. A
/// reserve is repacked every 180 days; an AAD is checked every 6 months.
struct SampleRig {
  FixedClock clock{2026, 3, 15};
  ThrowAwayLoft loft;
  ScriptedPrompts prompts;
  int rigger = 0;
  int owner = 0;
  int rig = 0;
  int container = 0;
  int mainCanopy = 0;
  int reserve = 0;
  int aad = 0;
  int aadCheck = 0;  ///< library id

  SampleRig() {
    rigger = loft.Add("tblPeople", {{"FirstName", "Rita"}, {"LastName", "Rigger"}, {"rigger", true}});
    owner = loft.Add("tblPeople", {{"FirstName", "Olaf"}, {"LastName", "Owner"}, {"rigger", false}});
    loft.Run(QStringLiteral("update tblMisc set RepackCycle = 180, DefaultRiggerID = %1").arg(rigger));
    loft.Run(QStringLiteral("update tblTaskLib set IntervalNumber = 180 where ID = 1"));
    rig = loft.Add("tblRig", {{"OwnerID", owner}, {"TypeID", 1}, {"rigAlias", "Blue"}, {"Comment", " "}});
    container = AddComponent("Javelin", kContainer);
    mainCanopy = AddComponent("Sabre", kMainCanopy);
    reserve = AddComponent("Raven", kReserveCanopy);
    aad = AddComponent("Cypres", kAad);
    aadCheck = AddEntry("AAD check", 6, 2, {kAad});
  }

  /// A component of a new model, in the rig unless another is named.
  int AddComponent(const char* model, int type, int inRig = -1) const {
    const int modelID = loft.Add("tblModels", {{"Name", model}, {"TypeID", type}, {"Price", Money()}});
    return loft.Add("tblComponents", {{"ModelID", modelID},
                                      {"TypeID", type},
                                      {"SubType", ""},
                                      {"OwnerID", owner},
                                      {"RigID", inRig == -1 ? rig : inRig}});
  }

  /// A library entry with its interval and the component types it requires.
  int AddEntry(const char* name, int number, int type, const QList<int>& componentTypes = {}) const {
    const int id = loft.Add("tblTaskLib", {{"Name", name},
                                           {"FlatRate", Money::Whole(20)},
                                           {"HourlyRate", Money()},
                                           {"LogBook", true},
                                           {"AllowMultiple", false},
                                           {"IntervalNumber", number},
                                           {"IntervalType", type},
                                           {"ModelID", 0},
                                           {"IsEvent", false},
                                           {"IsRigTypeSpecific", false}});
    for (int componentType : componentTypes)
      loft.Add("tblTaskLibComponentTypes", {{"TaskLibID", id}, {"ComponentTypeID", componentType}});
    return id;
  }

  /// A completed line of work on components.
  int AddDone(int taskLibID, Date done, const QList<int>& components, int onRig) const {
    const int id = loft.Add("tblTasks", {{"JobID", 0},
                                         {"TaskLibID", taskLibID},
                                         {"SystemID", onRig},
                                         {"PartID", 0},
                                         {"Status", -1},
                                         {"IsEvent", false},
                                         {"DateTaskCompleted", done}});
    for (int component : components)
      loft.Add("tblTaskComponents", {{"TaskID", id}, {"CompID", component}, {"Complete", true}});
    return id;
  }
  int AddRepack(Date done) const { return AddDone(RepackTaskLibID, done, {container, reserve}, rig); }

  /// rigID|TaskLibID|DateDone|DateDue|TaskID|ComponentID of every row of the schedule.
  QStringList Schedules() const {
    return loft.Rows(QStringLiteral(
        "select rigID, TaskLibID, DateDone, DateDue, TaskID, ComponentID from tblSchedules order by ID"));
  }
  static QString ScheduleRow(int rigID, int taskLibID, Date done, Date due, int taskID, int componentID) {
    return QStringLiteral("%1|%2|%3|%4|%5|%6")
        .arg(rigID)
        .arg(taskLibID)
        .arg(done.Days())
        .arg(due.Days())
        .arg(taskID)
        .arg(componentID);
  }
  void AddSchedule(int rigID, int taskLibID, Date due, int taskID, int componentID) const {
    loft.Add("tblSchedules", {{"rigID", rigID},
                              {"TaskLibID", taskLibID},
                              {"DateDone", due - 180},
                              {"DateDue", due},
                              {"TaskID", taskID},
                              {"ComponentID", componentID}});
  }
};

/// Month, day, year, as the screens show a date.
inline Date Day(int month, int day, int year) { return Date::FromParts(year, month, day); }
