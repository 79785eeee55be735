#pragma once
#include "faults/willing_person.h"
#include "gear/location_rules.h"
#include "gear/person_record.h"
#include "jobs/gear_shop.h"
#include "support/screens/screen_script.h"

/// The one loft on which every command is tried: the shop of the gear tests, with a task that uses up a part, an event,
/// two locations and customers enough that its tables have more than one page.
struct Ground : GearShop {
  WillingPerson person;
  std::unique_ptr<ScreenScript> screens;  ///< anew for each run

  int part = AddPart("Loop", 4);
  int lineCheck = AddEntry("Line check", 1, 3, {kMainCanopy});
  int ride = AddEvent("Reserve ride");
  int looseReserve = AddComponent("Optimum", kReserveCanopy, 0);
  int looseContainer = AddComponent("Vector", kContainer, 0);
  int town = 0;
  int ville = 0;
  // What a command's own ground adds.
  int line = 0;
  int other = 0;

  Ground() {
    loft.Add("tblTaskLibParts", {{"TaskLibID", lineCheck}, {"PartID", part}});
    for (int n = 0; n < 40; ++n)
      SaveNewOwner({.lastName = QStringLiteral("Filler%1").arg(n),
                    .firstName = QStringLiteral("F"),
                    .comment = QString(300, u'x')},
                   false);
    LocationEntry entry{QStringLiteral("Town"), QStringLiteral("CA"), QStringLiteral("7.25"), true};
    town = SaveLocation(entry, 0);
    entry = {QStringLiteral("Ville"), QStringLiteral("CA"), QStringLiteral("7.25"), false};
    ville = SaveLocation(entry, 0);
    loft.Run(QStringLiteral("update tblComponents set SerialNumber = '', Color = '', Comment = ' ', PhotoName = ''"));
  }

  bool Current() const { return RigComponentsCurrent(job, JobSystemID(job)); }
  /// Gives the job a completed repack (`line`), an incomplete check (`other`) and its part.
  void AddWork() {
    line = AddTask(RepackTaskLibID, Day(3, 9, 2026));
    ToggleComplete(line, Day(3, 9, 2026), true);
    other = AddTask(lineCheck, Day(3, 9, 2026));
  }
  /// Takes the row of the picker that begins so.
  void Pick(const QString& start);
};
