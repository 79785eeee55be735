#include <QLabel>
#include <QPlainTextEdit>

#include "gear/components.h"
#include "gear/rigs.h"
#include "history/screens/open_history.h"
#include "schedule/schedule.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

const QStringList kDelete{u"Delete"_s, u"Delete selected event"_s};
const QStringList kEdit{u"Edit"_s, u"Edit event"_s};
const QStringList kShowJob{u"Job"_s, u"Show job for selected event"_s};
const QStringList kShowRig{u"Rig"_s, u"Show rig"_s};
const QStringList kShowHighlighted{u"Rig"_s, u"Show highlighted rig"_s};
const QStringList kComments{u"Comments"_s, u"Comments for task or event"_s};

// The lines of the rig's history.
enum Line { kRepackOfContainer, kPatch, kRepackOfReserve, kCheck };

QString JobName() {
  auto* job = dynamic_cast<QWidget*>(Forms::Find(u"frmJob"_s));
  return job ? TextOf(*job, u"lblJob"_s) : QString();
}

/// Chooses a task of the library and types its date.
void Pick(OpenHistory& shop, const QString& task, const QString& date) {
  shop.screens.WhenShown(u"frmSelectTask"_s, [task, date](Form& form) {
    TypeInto(form, u"txt"_s, task);
    TypeInto(form, u"txtDate"_s, date);
    Click(form, u"cmdSelect"_s);
  });
}

}  // namespace

class TestHistoryCommands : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void cleanup() { UnloadScreens(); }

  void ATaskIsAdded() {
    OpenHistory shop;
    shop.OpenRig();
    const QStringList before = shop.loft.Snapshot();
    shop.screens.WhenShown(u"frmSelectTask"_s, [](Form& form) {
      QCOMPARE(form.windowTitle(), u"Add task to history"_s);
      QCOMPARE(TextOf(form, u"lblDate"_s), u"Task date:"_s);
      QCOMPARE(TextOf(form, u"txtDate"_s), u"3/15/2026"_s);
      Picture(form, u"frmSelectTask-history"_s);
      Click(form, u"cmdCancel"_s);
    });
    shop.Choose({u"Add"_s, u"Add task"_s});
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
    Pick(shop, u"AAD check"_s, u"3/12/2026"_s);
    shop.Choose({u"Add"_s, u"Add task"_s});
    QCOMPARE(shop.Column(kTask).last(), u"AAD check *"_s);
    QCOMPARE(shop.Column(kDate).last(), u"03/12/26"_s);
    QCOMPARE(shop.Schedules().value(0).section(u'|', 2, 3),
             u"%1|%2"_s.arg(Day(3, 12, 2026).Days()).arg(Day(9, 12, 2026).Days()));
  }

  void AnEventIsAddedToAComponent() {
    OpenHistory shop;
    shop.AddEvent("Ride");
    shop.OpenComponent(shop.reserve);
    shop.screens.WhenShown(u"frmSelectTask"_s, [](Form& form) {
      QCOMPARE(form.windowTitle(), u"Add event to history"_s);
      QCOMPARE(TextOf(form, u"lblDate"_s), u"Event date:"_s);
      TypeInto(form, u"txt"_s, u"ride"_s);
      Click(form, u"cmdSelect"_s);
    });
    shop.Choose({u"Add"_s, u"Add event"_s});
    QCOMPARE(shop.Column(kTask), QStringList({u"Repack *"_s, u"Ride *"_s}));
    QCOMPARE(shop.Column(kDate).last(), u"03/15/26"_s);
  }

  void ARefusedTaskLeavesTheHistoryAsItWas() {
    OpenHistory shop;
    shop.OpenComponent(shop.mainCanopy);
    const QStringList before = shop.loft.Snapshot();
    Pick(shop, u"AAD check"_s, u"3/12/2026"_s);
    shop.prompts.ExpectBox(
        kProgramTitle, u"You are viewing the history of a main canopy\n\nThe selected task or event requires an aad"_s);
    shop.Choose({u"Add"_s, u"Add task"_s});
    Pick(shop, u"AAD check"_s, u"soon"_s);
    shop.prompts.ExpectBox(u"Function ParseDate"_s, u"Type mismatch"_s);
    shop.Choose({u"Add"_s, u"Add task"_s});
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
    QCOMPARE(shop.Lines().RowCount(), 1);
  }

  void AnEntryIsDeleted() {
    OpenHistory shop;
    UpdateSchedule(RepackTaskLibID, shop.rig, 0);
    QCOMPARE(shop.Schedules().size(), 1);
    shop.OpenRig();
    const QStringList before = shop.loft.Snapshot();
    shop.Choose(kDelete);  // nothing is selected
    shop.Select(kRepackOfReserve);
    shop.prompts.Expect(u"Raven - Repack *"_s, u"Are you sure you want to delete this event?"_s, Answer::No);
    shop.Choose(kDelete);
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
    shop.prompts.Expect(u"Raven - Repack *"_s, u"Are you sure you want to delete this event?"_s, Answer::Yes);
    PressKey(shop.Lines(), Qt::Key_Delete);
    QCOMPARE(shop.Column(kTask), QStringList({u"Patch (incomplete)"_s, u"AAD check *"_s}));
    QCOMPARE(shop.Schedules(), QStringList());
  }

  void AnEntryOfTheLogbookBelongsToNoJob() {
    OpenHistory shop;
    shop.loft.Run(u"update tblTasks set JobID = -99 where ID = %1"_s.arg(shop.check));
    shop.OpenRig();
    shop.Select(kCheck);
    shop.screens.WhenShown(u"frmTaskEdit"_s, [](Form& form) { Click(form, u"cmdCancel"_s); });
    shop.Choose(kEdit);
    shop.prompts.Expect(u"Cypres - AAD check *"_s, u"Are you sure you want to delete this event?"_s, Answer::Yes);
    shop.Choose(kDelete);
    QCOMPARE(shop.Lines().RowCount(), 3);
  }

  void WhatBelongsToAJobIsChangedThere() {
    OpenHistory shop;
    shop.OpenRig();
    shop.Select(kPatch);
    const QStringList before = shop.loft.Snapshot();
    const QString question =
        u"This event was performed as part of a rigging job.\n\nWould you like to load that job?"_s;
    for (const QStringList& command : {kDelete, kEdit}) {
      shop.prompts.Expect(u"Show this job?"_s, question, Answer::No).WithPreset(Answer::No);
      shop.Choose(command);
      QVERIFY(!Forms::Find(u"frmJob"_s));
    }
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
    for (const QStringList& command : {kDelete, kEdit}) {
      shop.prompts.Expect(u"Show this job?"_s, question, Answer::Yes);
      shop.Choose(command);
      QCOMPARE(JobName(), u"Blue 03/01/2026"_s);
      Forms::Find(u"frmJob"_s)->UnloadForm();
    }
    QCOMPARE(shop.loft.Rows(u"select count(*) from tblTasks"_s), QStringList{u"3"_s});
  }

  void AnEntryIsEdited() {
    OpenHistory shop;
    UpdateSchedule(shop.aadCheck, shop.rig, shop.aad);
    shop.OpenRig();
    shop.prompts.ExpectBox(u"Nothing selected"_s, u"You must select an event"_s);
    shop.Choose(kEdit);
    shop.Select(kCheck);
    shop.screens.WhenShown(u"frmTaskEdit"_s, [](Form& form) {
      TypeInto(form, u"txtDateCompleted"_s, u"12/5/2025"_s);
      Click(form, u"cmdOK"_s);
    });
    shop.Choose(kEdit);
    QCOMPARE(shop.Lines().Text(kCheck, kDate), u"12/05/25"_s);
    QCOMPARE(shop.Schedules().value(0).section(u'|', 2, 3),
             u"%1|%2"_s.arg(Day(12, 5, 2025).Days()).arg(Day(6, 5, 2026).Days()));
  }

  void TheJobOfALineIsShown() {
    OpenHistory shop;
    shop.OpenRig();
    shop.prompts.ExpectBox(u"Nothing selected"_s, u"You must select an event"_s);
    shop.Choose(kShowJob);
    shop.Select(kPatch);
    shop.Choose(kShowJob);
    QCOMPARE(JobName(), u"Blue 03/01/2026"_s);
    Forms::Find(u"frmJob"_s)->UnloadForm();

    SetRigOwner(shop.rig, shop.rigger);
    shop.OpenRig();
    shop.Select(kPatch);
    shop.prompts.ExpectBox(u"Different Owner"_s,
                           u"Please note:\n\nThis component is currently owned by Rita Rigger\n"
                           "but the component was owned by Olaf Owner\nwhen the job was performed."_s);
    shop.Choose(kShowJob);
    QCOMPARE(JobName(), u"Blue 03/01/2026"_s);
    QCOMPARE(shop.Label("lblCustomer"), u"Rita Rigger"_s);
    QCOMPARE(shop.Label("lblRig"), u"Blue"_s);
  }

  void ALineWithoutAJobCanBeEditedInstead() {
    OpenHistory shop;
    shop.OpenRig();
    for (int job : {0, -88, -99}) {
      shop.loft.Run(u"update tblTasks set JobID = %1 where ID = %2"_s.arg(job).arg(shop.check));
      shop.Press("cmdRefresh");
      shop.Select(kCheck);
      shop.prompts
          .Expect(u"Edit entry?"_s,
                  u"The selected event is not part of a job. It was entered manually.\n\n"
                  "Would you like to edit this entry?"_s,
                  Answer::No)
          .WithPreset(Answer::No);
      shop.Choose(kShowJob);
    }
    shop.prompts.Expect(u"Edit entry?"_s,
                        u"The selected event is not part of a job. It was entered manually.\n\n"
                        "Would you like to edit this entry?"_s,
                        Answer::Yes);
    shop.screens.WhenShown(u"frmTaskEdit"_s, [](Form& form) {
      TypeInto(form, u"txtName"_s, u"AAD's check"_s);
      Click(form, u"cmdOK"_s);
    });
    shop.Choose(kShowJob);
    QCOMPARE(shop.Lines().Text(kCheck, kTask), u"AAD's check *"_s);
    QVERIFY(!Forms::Find(u"frmJob"_s));
  }

  void WithoutLinesThereIsNoJobToShow() {
    OpenHistory shop;
    shop.OpenRig();
    shop.Press("cmdCheckNone");
    shop.Choose(kShowJob);
  }

  void TheRigOfALineIsShown() {
    OpenHistory shop;
    const int spare = shop.loft.Add("tblRig", {{"OwnerID", shop.rigger}, {"TypeID", 1}, {"rigAlias", "Spare"}});
    shop.AddWork({.onRig = spare, .done = Day(1, 1, 2025), .name = "Check"}, {shop.aad});
    shop.AddWork({.onRig = 0, .done = Day(1, 2, 2025), .name = "Bench test"}, {shop.aad});
    shop.AddWork({.onRig = 9999, .done = Day(1, 3, 2025), .name = "Service"}, {shop.aad});
    shop.OpenRig();
    shop.prompts.ExpectBox(u"Nothing selected"_s, u"You must select a rig from the RIG column"_s);
    shop.Choose(kShowRig);
    shop.Select(4);
    shop.screens.WhenShown(u"frmGetRig"_s, [](Form& form) {
      QCOMPARE(Control<List>(form, u"lstGear"_s).ItemText(Control<List>(form, u"lstGear"_s).ListIndex()), u"Spare"_s);
      Click(form, u"cmdExit"_s);
    });
    shop.Choose(kShowRig);
    QCOMPARE(shop.Label("lblRig"), u"Blue"_s);
    for (int line : {5, 6}) {
      shop.Select(line);
      shop.prompts.ExpectBox(u"Can't display rig"_s, u"This component is not part of a rig"_s);
      shop.Choose(kShowRig);
    }
  }

  void TheRigOfAnEmptyHistory() {
    OpenHistory shop;
    shop.loft.Run(u"delete * from tblTaskComponents"_s);
    shop.OpenRig(kAad);
    shop.screens.WhenShown(u"frmGetRig"_s, [](Form& form) {
      QCOMPARE(Control<List>(form, u"lstGear"_s).ItemText(Control<List>(form, u"lstGear"_s).ListIndex()), u"Blue"_s);
      Click(form, u"cmdExit"_s);
    });
    shop.Choose(kShowHighlighted);
    shop.OpenComponent(shop.aad);
    shop.prompts.ExpectBox(u"Nothing selected"_s, u"You must select a rig from the RIG column"_s);
    shop.Choose(kShowHighlighted);
  }

  void AnotherRigIsSelected() {
    OpenHistory shop;
    const int spare = shop.loft.Add("tblRig", {{"OwnerID", shop.rigger}, {"TypeID", 1}, {"rigAlias", "Spare"}});
    shop.AddWork({.onRig = spare, .done = Day(1, 1, 2025), .name = "Washed"}, {});
    shop.OpenRig();
    shop.screens.WhenShown(u"frmPickRig"_s, [](Form& form) { Click(form, u"cmdCancel"_s); });
    shop.Choose({u"Rig"_s, u"Select another rig"_s});
    QCOMPARE(shop.Label("lblRig"), u"Blue"_s);
    const auto pickSpare = [](Form& form) {
      auto& customers = Control<List>(form, u"lstCustomers"_s);
      const QModelIndex rita = customers.model()->index(customers.Count() - 1, 0);
      QTest::mouseClick(customers.viewport(), Qt::LeftButton, {}, customers.visualRect(rita).center());
      Click(form, u"cmdSelect"_s);
    };
    shop.screens.WhenShown(u"frmPickRig"_s, pickSpare);
    shop.Choose({u"Rig"_s, u"Select another rig"_s});
    QCOMPARE(shop.Label("lblRig"), u"Spare"_s);
    QCOMPARE(shop.Label("lblCustomer"), u"Rita Rigger"_s);
    QCOMPARE(shop.Column(kTask), QStringList{u"Washed *"_s});

    shop.OpenComponent(shop.aad);  // from a component to a rig
    shop.screens.WhenShown(u"frmPickRig"_s, pickSpare);
    shop.Choose({u"Select"_s, u"Select rig"_s});
    QCOMPARE(shop.Screen().windowTitle(), u"Rig History"_s);
    QCOMPARE(shop.Column(kTask), QStringList{u"Washed *"_s});
  }

  void AComponentIsSelected() {
    OpenHistory shop;
    SetComponentOwner(shop.aad, shop.rigger);
    shop.OpenRig();
    shop.screens.WhenShown(u"frmPickComponent"_s, [](Form& form) { PressKey(form, Qt::Key_Escape); });
    shop.Choose({u"Select"_s, u"Select a component"_s});
    QCOMPARE(shop.Screen().windowTitle(), u"Rig History"_s);
    shop.screens.WhenShown(u"frmPickComponent"_s, [&](Form& form) {
      auto& grid = Control<Grid>(form, u"Grid"_s);
      grid.SelectData(shop.aad);
      Click(form, u"cmdSelect"_s);
    });
    shop.Choose({u"Select"_s, u"Select a component"_s});
    QCOMPARE(shop.Screen().windowTitle(), u"Component History"_s);
    QCOMPARE(shop.Label("lblCustomer"), u"Rita Rigger"_s);
    QCOMPARE(shop.Label("lblRig"), u"Blue"_s);
    QCOMPARE(shop.Column(kTask), QStringList{u"AAD check *"_s});
  }

  void ADoubleClickShowsTheComponent() {
    OpenHistory shop;
    shop.AddWork({.onRig = shop.rig, .done = Day(1, 1, 2025), .name = "Washed"}, {});
    shop.OpenRig();
    shop.screens.WhenShown(u"frmComponent"_s, [](Form& form) {
      QCOMPARE(TextOf(form, u"txtModel"_s).trimmed(), u"Cypres"_s);
      PressKey(form, Qt::Key_Escape);
    });
    DoubleClickCell(shop.Lines(), kCheck, kTask);
    shop.screens.WhenShown(u"frmComponent"_s, [](Form& form) { PressKey(form, Qt::Key_Escape); });
    PressKey(shop.Lines(), Qt::Key_Return);
    DoubleClickCell(shop.Lines(), 4, kTask);  // a loose task has none
  }

  void CommentsOfALine() {
    OpenHistory shop;
    shop.OpenRig();
    shop.prompts.ExpectBox(u"Nothing selected"_s, u"You must select an event"_s);
    shop.Choose(kComments);
    shop.Select(kCheck);
    QVERIFY(!shop.Shows("lblComments"));
    shop.screens.WhenShown(u"frmComments"_s, [](Form& form) {
      QCOMPARE(TextOf(form, u"lblComments"_s), u"AAD check * / Cypres"_s);
      Control<QPlainTextEdit>(form, u"txtComments"_s).setPlainText(u"Owner's own battery"_s);
      Click(form, u"cmdSave"_s);
    });
    shop.Choose(kComments);
    QVERIFY(shop.Shows("lblComments"));
    const QString stored = u"select '<' || Comments || '>' from tblTasks where ID = %1"_s.arg(shop.check);
    QCOMPARE(shop.loft.Rows(stored), QStringList{u"<Owner's own battery>"_s});
    const QStringList before = shop.loft.Snapshot();
    shop.screens.WhenShown(u"frmComments"_s, [](Form& form) { Click(form, u"cmdExit"_s); });
    shop.Choose(kComments);
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
    shop.screens.WhenShown(u"frmComments"_s, [](Form& form) {
      Control<QPlainTextEdit>(form, u"txtComments"_s).clear();
      Click(form, u"cmdSave"_s);
    });
    shop.Choose(kComments);
    QVERIFY(!shop.Shows("lblComments"));
    QCOMPARE(shop.loft.Rows(stored), QStringList{u"< >"_s});
  }

  void ANewJobIsStarted() {
    OpenHistory shop;
    shop.OpenRig();
    shop.screens.WhenShown(u"frmNewJob"_s, [](Form& form) { Click(form, u"cmdOK"_s); });
    shop.Choose({u"Job"_s, u"Start new job"_s});
    QCOMPARE(shop.loft.Rows(u"select SystemID, CustomerID, DateStarted from tblJobs order by ID desc limit 1"_s),
             QStringList{u"%1|%2|%3"_s.arg(shop.rig).arg(shop.owner).arg(Day(3, 15, 2026).Days())});
  }

  void ALineThatHasGoneMeanwhile() {
    OpenHistory shop;
    shop.OpenRig();
    shop.Select(kCheck);
    shop.loft.Run(u"delete * from tblTasks where ID = %1"_s.arg(shop.check));
    shop.loft.Run(u"delete * from tblTaskComponents where TaskID = %1"_s.arg(shop.check));
    QCOMPARE(shop.Lines().RowCount(), 3);
    shop.prompts.ExpectBox(u"Nothing selected"_s, u"You must select an event"_s);
    shop.Choose(kEdit);
  }
};

LOFT_TEST_MAIN(TestHistoryCommands)
#include "tst_history_commands.moc"
