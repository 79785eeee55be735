#include <QAbstractButton>
#include <QtTest>

#include "core/widgets/form.h"
#include "jobs/sample_job.h"
#include "jobs/screens.h"
#include "jobs/task_edit.h"
#include "support/screens/controls.h"
#include "support/screens/screen_script.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

/// A completed repack and an earlier one on the sample job's rig.
struct EditShop : SampleJob {
  ScreenScript screens;
  int earlier = AddRepack(Day(9, 1, 2025));
  int repack = AddTask(RepackTaskLibID);

  EditShop() { ToggleComplete(repack, Day(3, 2, 2026), true); }

  bool Edit(int taskID, const std::function<void(Form&)>& action) {
    screens.WhenShown(u"frmTaskEdit"_s, action);
    return EditTask(taskID);
  }
  /// status|started|completed of a line.
  QString Line(int taskID) const {
    return loft.Rows(u"SELECT Status, DateTaskStarted, DateTaskCompleted FROM tblTasks WHERE ID = %1"_s.arg(taskID))
        .value(0);
  }
  QString Due(Date done, int task) const { return ScheduleRow(rig, RepackTaskLibID, done, done + 180, task, 0); }
};

void Choose(Form& form, const QString& option) { Control<QAbstractButton>(form, option).click(); }
bool IsOn(Form& form, const QString& option) { return Control<QAbstractButton>(form, option).isChecked(); }

}  // namespace

class TestTaskEdit : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void ShowsTheLineAndCancelWritesNothing() {
    EditShop shop;
    const QStringList before = shop.loft.Snapshot();
    QVERIFY(!shop.Edit(shop.repack, [](Form& form) {
      QCOMPARE(form.windowTitle(), u"Edit Task"_s);
      QCOMPARE(TextOf(form, u"lblTaskName"_s), u"Inspect and repack reserve"_s);
      QCOMPARE(TextOf(form, u"txtName"_s), u"Inspect and repack reserve"_s);
      QCOMPARE(TextOf(form, u"txtCost"_s), u"0.00"_s);
      QVERIFY(IsOn(form, u"optComplete"_s));
      QCOMPARE(TextOf(form, u"txtDateCompleted"_s), u"3/2/2026"_s);
      QVERIFY(!Control<QWidget>(form, u"cmdRestoreName"_s).isEnabled());
      Picture(form, u"frmTaskEdit"_s);
      TypeInto(form, u"txtName"_s, u"Something else"_s);
      PressKey(form, Qt::Key_Escape);
    }));
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
    QVERIFY(!EditTask(99));  // a line that has gone
  }

  void ANewDateMovesTheSchedule() {
    EditShop shop;
    QCOMPARE(shop.Schedules(), QStringList{shop.Due(Day(3, 2, 2026), shop.repack)});
    QVERIFY(shop.Edit(shop.repack, [](Form& form) {
      TypeInto(form, u"txtDateCompleted"_s, u"3/10/2026"_s);
      Click(form, u"cmdOK"_s);
    }));
    QCOMPARE(shop.Schedules(), QStringList{shop.Due(Day(3, 10, 2026), shop.repack)});
    QCOMPARE(shop.Line(shop.repack), u"-1|46083|46091"_s);
  }

  void AnIncompleteLineDropsOutAndTheScheduleFallsBack() {
    EditShop shop;
    QVERIFY(shop.Edit(shop.repack, [](Form& form) {
      Choose(form, u"optIncomplete"_s);
      QCOMPARE(TextOf(form, u"txtDateCompleted"_s), QString());
      Click(form, u"cmdOK"_s);
    }));
    QCOMPARE(shop.Line(shop.repack), u"0|46083|0"_s);
    QCOMPARE(shop.Schedules(), QStringList{shop.Due(Day(9, 1, 2025), shop.earlier)});
    QVERIFY(shop.Edit(shop.repack, [](Form& form) {
      Choose(form, u"optComplete"_s);
      QCOMPARE(TextOf(form, u"txtDateCompleted"_s), u"3/15/2026"_s);
      Click(form, u"cmdOK"_s);
    }));
    QCOMPARE(shop.Schedules(), QStringList{shop.Due(Day(3, 15, 2026), shop.repack)});
  }

  void ALineWaitsOnParts() {
    EditShop shop;
    QVERIFY(shop.Edit(shop.repack, [](Form& form) {
      Choose(form, u"optWaiting"_s);
      Click(form, u"cmdOK"_s);
    }));
    QCOMPARE(shop.Line(shop.repack), u"1|46083|0"_s);
    QVERIFY(!LineIsDone(shop.repack));
    QVERIFY(shop.Edit(shop.repack, [](Form& form) {
      QVERIFY(IsOn(form, u"optWaiting"_s));
      TypeInto(form, u"txtDateCompleted"_s, u"3/11/2026"_s);
      Click(form, u"cmdOK"_s);
    }));
    QCOMPARE(shop.Line(shop.repack), u"1|46083|46092"_s);  // as it stands
  }

  void DatesThatAreNoneAreRefusedAndTheTextStays() {
    EditShop shop;
    const QStringList before = shop.loft.Snapshot();
    QVERIFY(!shop.Edit(shop.repack, [&](Form& form) {
      TypeInto(form, u"txtDateStarted"_s, u"soon"_s);
      shop.prompts.ExpectBox(kProgramTitle, u"Invalid start date"_s);
      Click(form, u"cmdOK"_s);
      QCOMPARE(TextOf(form, u"txtDateStarted"_s), u"soon"_s);
      Click(form, u"cmdTodayStart"_s);
      QCOMPARE(TextOf(form, u"txtDateStarted"_s), u"3/15/2026"_s);
      TypeInto(form, u"txtDateCompleted"_s, u"never"_s);
      shop.prompts.ExpectBox(kProgramTitle, u"Date completed field is invalid"_s);
      Click(form, u"cmdOK"_s);
      Click(form, u"cmdCancel"_s);
    }));
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void AMissingStartIsFilled() {
    EditShop shop;
    TaskEntry entry;
    QVERIFY(LoadTaskEntry(shop.repack, entry));
    entry.dateStarted = QString();
    QVERIFY(SaveTaskEntry(shop.repack, entry));
    QCOMPARE(shop.Line(shop.repack), u"-1|46082|46083"_s);  // the job's start, 1 March
    QVERIFY(LoadTaskEntry(shop.earlier, entry));            // no job
    entry.dateStarted = QString();
    QVERIFY(SaveTaskEntry(shop.earlier, entry));
    QCOMPARE(shop.Line(shop.earlier), u"-1|45901|45901"_s);
    entry.dateStarted = u"  "_s;
    shop.prompts.ExpectBox(u"Sub UpdateTask - frmTaskEdit"_s, u"you shouldn't be here - start date is missing"_s);
    QVERIFY(SaveTaskEntry(shop.earlier, entry));
    QCOMPARE(shop.Line(shop.earlier), u"-1|0|45901"_s);
    entry.dateStarted = u"9/1/2025"_s;
    entry.dateCompleted = QString();
    QVERIFY(SaveTaskEntry(shop.earlier, entry));
    QCOMPARE(shop.Line(shop.earlier), u"-1|45901|46096"_s);  // complete without a date: today
  }

  void NameAndPriceAreWrittenAndTheNameComesBack() {
    EditShop shop;
    const QString longName = QString(60, u'n');
    QVERIFY(shop.Edit(shop.repack, [&](Form& form) {
      TypeInto(form, u"txtName"_s, u"Ann's repack"_s);
      QVERIFY(Control<QWidget>(form, u"cmdRestoreName"_s).isEnabled());
      Click(form, u"cmdRestoreName"_s);
      QCOMPARE(TextOf(form, u"txtName"_s), u"Inspect and repack reserve"_s);
      TypeInto(form, u"txtName"_s, u"Ann's repack"_s);
      TypeInto(form, u"txtCost"_s, u"82.5"_s);
      Choose(form, u"chkRiggerLog"_s);
      Click(form, u"cmdOK"_s);
    }));
    QCOMPARE(shop.loft.Rows(u"SELECT TaskName, FlatRate FROM tblTasks WHERE ID = %1"_s.arg(shop.repack)),
             QStringList{u"Ann's repack|825000"_s});
    TaskEntry entry;
    LoadTaskEntry(shop.repack, entry);
    entry.name = longName;
    QVERIFY(SaveTaskEntry(shop.repack, entry));
    QCOMPARE(LineField(shop.repack, tblTasks::TaskName).ToText(), longName.left(50));
  }

  void APartOffersNoLogBook() {
    EditShop shop;
    int line = 0;
    AddTaskToJob(shop.Context(), shop.AddPart("Loop", 3), true, Day(3, 2, 2026), line);
    QVERIFY(!shop.Edit(line, [](Form& form) {
      QCOMPARE(TextOf(form, u"lblTaskName"_s), u"(custom task)"_s);
      QVERIFY(Control<QWidget>(form, u"chkRiggerLog"_s).isHidden());
      QVERIFY(!Control<QWidget>(form, u"cmdRestoreName"_s).isEnabled());
      Click(form, u"cmdCancel"_s);
    }));
  }
};

LOFT_TEST_MAIN(TestTaskEdit)
#include "tst_task_edit.moc"
