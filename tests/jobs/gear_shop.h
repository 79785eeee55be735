#pragma once
#include <algorithm>

#include "gear/components.h"
#include "gear/rigs.h"
#include "jobs/job_components.h"
#include "jobs/sample_job.h"

/// The sample job, its rig without an AAD as the job is: a place is empty on both. Olaf's spare AAD "Argus" is in no
/// rig; Ann's "Vigil" is in her Sport Rig "Red".
struct GearShop : SampleJob {
  int ann = loft.Add("tblPeople", {{"FirstName", "Ann"}, {"LastName", "Adams"}, {"rigger", false}});
  int red = loft.Add("tblRig", {{"OwnerID", ann}, {"TypeID", 1}, {"rigAlias", "Red"}, {"Comment", " "}});
  int spare = AddComponent("Argus", kAad, 0);
  int vigil = AddComponent("Vigil", kAad, red);

  GearShop() {
    SetComponentOwner(vigil, ann);
    SetComponentRig(aad, 0);
    RemoveJobComponent(job, aad);
    // Every gear then reads without a null, as the program itself writes it.
    loft.Run(QStringLiteral("update tblComponents set SerialNumber = '', Color = '', Comment = ' ', PhotoName = ''"));
  }

  /// The rows that changed in the whole database, sorted.
  QStringList Changes(const QStringList& before) const {
    QStringList changes = loft.ChangesSince(before);
    changes.sort();
    return changes;
  }
  /// The change of one component from rig to rig, and from owner to owner.
  QStringList Moved(int component, int from, int to, int ownerBefore = -1, int ownerAfter = -1) const {
    constexpr int kOwner = 6;
    constexpr int kRig = 11;
    QStringList row = loft.Rows(QStringLiteral("select * from tblComponents where ID = %1").arg(component))
                          .value(0)
                          .split(QChar('|'));
    const auto text = [&](QChar sign, int rigID, int ownerID) {
      row[kRig] = QString::number(rigID);
      if (ownerID != -1) row[kOwner] = QString::number(ownerID);
      return sign + QStringLiteral("tblComponents|") + row.join(QChar('|'));
    };
    return {text(QChar('+'), to, ownerAfter), text(QChar('-'), from, ownerBefore)};
  }
  static QString OnJob(QChar sign, int jobID, int component) {
    return sign + QStringLiteral("tblJobComponents|%1|%2").arg(jobID).arg(component);
  }
  /// An incomplete line of the job, as installing and removing write it, with its component.
  QStringList NewLine(int id, int taskLibID, const QString& name, int component) const {
    return {QStringLiteral("+tblTasks|%1|%2|%3|%4|0|0|0|0.0| |0|%5|-1|0|%6|%7|%8|0|0|0")
                .arg(id)
                .arg(job)
                .arg(owner)
                .arg(rigger)
                .arg(taskLibID)
                .arg(kDone.Days())
                .arg(name)
                .arg(rig),
            QStringLiteral("+tblTaskComponents|%1|%2|0").arg(id).arg(component)};
  }
  /// A removal from another rig, complete and without a job.
  static QStringList NewRemoval(int id, int fromRig, int rigOwner, const QString& name, int component) {
    return {QStringLiteral("+tblTasks|%1|0|%2|0|0|0|0|0.0| |%3|3|0|-1|%3|%4|%5|0|0|0")
                .arg(id)
                .arg(rigOwner)
                .arg(kDone.Days())
                .arg(name)
                .arg(fromRig),
            QStringLiteral("+tblTaskComponents|%1|%2|-1").arg(id).arg(component)};
  }
  static QStringList Sorted(QStringList rows) {
    rows.sort();
    return rows;
  }
  /// The rig gets gear that the job doesn't show.
  void LetRigDiffer() const { SetComponentRig(mainCanopy, 0); }
  void DeleteRigOfJob() const { DeleteRigRow(rig); }

  static inline const Date kDone = Day(3, 10, 2026);
};
