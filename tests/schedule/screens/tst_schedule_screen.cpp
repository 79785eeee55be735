#include <QLabel>
#include <QRadioButton>
#include <QSettings>
#include <QtTest>

#include "core/widgets/grid.h"
#include "schedule/sample_rig.h"
#include "schedule/schedule.h"
#include "schedule/screens.h"
#include "support/screens/controls.h"
#include "support/screens/screen_script.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kCustomer = 1, kTask = 3, kDue = 5;

/// The sample rig with a repack, an AAD check, a second owner's rig and an AAD whose life ends.
struct ScheduledShop : SampleRig {
  int spare = 0;

  ScheduledShop() {
    spare = loft.Add("tblRig", {{"OwnerID", rigger}, {"TypeID", 1}, {"rigAlias", "Spare"}, {"Comment", " "}});
    AddRepack(Day(1, 10, 2026));
    UpdateSchedule(RepackTaskLibID, rig, 0);
    AddSchedule(spare, RepackTaskLibID, Day(12, 9, 2025), 0, 0);
    AddSchedule(0, aadCheck, Day(1, 5, 2027), 0, aad);
    loft.Run(u"update tblModels set ServiceLife = 144 where Name = 'Cypres'"_s);
    loft.Run(u"update tblComponents set DOM = %1 where ID = %2"_s.arg(Day(4, 20, 2014).Days()).arg(aad));
  }

  static Form& Open(const ScheduleStart& start = {}) {
    OpenSchedule(start);
    return dynamic_cast<Form&>(*Forms::Find(u"frmSchedule"_s));
  }
};

Grid& GridOf(Form& form) { return Control<Grid>(form, u"Grid"_s); }

QStringList Column(Form& form, int column) {
  QStringList texts;
  for (int row = 0; row < GridOf(form).RowCount(); ++row) texts << GridOf(form).Text(row, column);
  return texts;
}

bool IsChosen(Form& form, const QString& option) { return Control<QRadioButton>(form, option).isChecked(); }
void Choose(Form& form, const QString& option) { Control<QRadioButton>(form, option).click(); }

}  // namespace

class TestScheduleScreen : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() {
    UnloadScreens();
    QSettings().clear();  // the order of the rows is remembered
  }

  void ListsAllThatFallsDue() {
    ScheduledShop shop;
    Form& form = ScheduledShop::Open();
    QCOMPARE(form.windowTitle(), u"Schedule"_s);
    QCOMPARE(Column(form, kCustomer),
             QStringList({u"Rigger, Rita"_s, u"Owner, Olaf"_s, u"Owner, Olaf"_s, u"Owner, Olaf"_s}));
    QCOMPARE(Column(form, 2),
             QStringList({u"Spare/"_s, u"Blue/Javelin, Raven"_s, u"Blue / Cypres"_s, u"Cypres/Blue"_s}));
    QCOMPARE(Column(form, kTask), QStringList({u"Inspect and repack reserve"_s, u"Inspect and repack reserve"_s,
                                               u"AAD check"_s, u"End of service life"_s}));
    QCOMPARE(Column(form, 4), QStringList({u"06/12/2025"_s, u"01/10/2026"_s, u"07/09/2026"_s, u"Expires on:"_s}));
    QCOMPARE(Column(form, kDue), QStringList({u"12/09/2025"_s, u"07/09/2026"_s, u"01/05/2027"_s, u"04/20/2026"_s}));
    QCOMPARE(Column(form, 10), QStringList({u"Overdue!"_s, u"116 days"_s, u"296 days"_s, u"36 days"_s}));
    ClickCell(GridOf(form), 1, kTask);
    Picture(form, u"frmSchedule"_s);
  }

  void HeadingsSortByTheCalendar() {
    ScheduledShop shop;
    Form& form = ScheduledShop::Open();
    ClickHeading(GridOf(form), kDue);
    QCOMPARE(Column(form, kDue), QStringList({u"12/09/2025"_s, u"04/20/2026"_s, u"07/09/2026"_s, u"01/05/2027"_s}));
    ClickHeading(GridOf(form), kDue);
    QCOMPARE(Column(form, kDue), QStringList({u"01/05/2027"_s, u"07/09/2026"_s, u"04/20/2026"_s, u"12/09/2025"_s}));
    ClickHeading(GridOf(form), kCustomer);
    QCOMPARE(Column(form, kCustomer).last(), u"Rigger, Rita"_s);
  }

  void ATaskIsChosenFromItsColumnAlone() {
    ScheduledShop shop;
    Form& form = ScheduledShop::Open();
    const QString refusal = u"Please select a task from the TASK column"_s;
    ClickCell(GridOf(form), 1, kCustomer);
    shop.prompts.ExpectBox(kProgramTitle, refusal);
    Choose(form, u"optTasksSelected"_s);
    QVERIFY(IsChosen(form, u"optTasksAll"_s));
    ClickCell(GridOf(form), 3, kTask);  // the end of a service life
    shop.prompts.ExpectBox(kProgramTitle, refusal);
    Choose(form, u"optTasksSelected"_s);
    QCOMPARE(GridOf(form).RowCount(), 4);

    ClickCell(GridOf(form), 1, kTask);
    Choose(form, u"optTasksSelected"_s);
    QVERIFY(IsChosen(form, u"optTasksSelected"_s));
    QCOMPARE(Column(form, kTask), QStringList({u"Inspect and repack reserve"_s, u"Inspect and repack reserve"_s}));
    Choose(form, u"optTasksAll"_s);
    QCOMPARE(GridOf(form).RowCount(), 4);
  }

  void RowsOfTheSelectedRig() {
    ScheduledShop shop;
    Form& form = ScheduledShop::Open();
    shop.prompts.ExpectBox(u"No rig selected"_s, u"Please select a rig"_s);
    Choose(form, u"optRigOnly"_s);
    QVERIFY(IsChosen(form, u"optCustomersAll"_s));
    ClickCell(GridOf(form), 1, kCustomer);
    Choose(form, u"optRigOnly"_s);
    QCOMPARE(Column(form, kCustomer), QStringList({u"Owner, Olaf"_s, u"Owner, Olaf"_s, u"Owner, Olaf"_s}));
  }

  void RowsOfAPickedCustomer() {
    ScheduledShop shop;
    ScreenScript screens;
    Form& form = ScheduledShop::Open();
    screens.WhenShown(u"frmPicker"_s, [](Form& picker) { Click(picker, u"cmdCancel"_s); });
    Choose(form, u"optCustomerSelected"_s);
    QVERIFY(IsChosen(form, u"optCustomersAll"_s));
    screens.WhenShown(u"frmPicker"_s, [](Form& picker) {
      TypeInto(picker, u"txt"_s, u"rig"_s);
      Click(picker, u"cmdSelect"_s);
    });
    Click(form, u"cmdSelectCustomer"_s);
    QVERIFY(IsChosen(form, u"optCustomerSelected"_s));
    QCOMPARE(TextOf(form, u"lblCustomer"_s), u"Customer:  Rita Rigger"_s);
    QCOMPARE(Column(form, kCustomer), QStringList{u"Rigger, Rita"_s});
    Choose(form, u"optCustomersAll"_s);
    QCOMPARE(GridOf(form).RowCount(), 4);
    Choose(form, u"optCustomerSelected"_s);
    QCOMPARE(GridOf(form).RowCount(), 1);
  }

  void OpensOnACustomerOrARig() {
    ScheduledShop shop;
    QCOMPARE(GridOf(ScheduledShop::Open({.customer = shop.rigger})).RowCount(), 1);
    QCOMPARE(GridOf(ScheduledShop::Open({.rig = shop.rig})).RowCount(), 3);
    QCOMPARE(GridOf(ScheduledShop::Open()).RowCount(), 4);
  }

  void NothingSelectedIsTold() {
    ScheduledShop shop;
    Form& form = ScheduledShop::Open();
    const QList<QStringList> commands = {{u"Delete"_s, u"Delete selected item"_s},
                                         {u"Rig"_s, u"Diplay rig"_s},
                                         {u"Component"_s, u"Display component"_s},
                                         {u"Customer"_s, u"Display customer"_s},
                                         {u"Jobs"_s, u"Display job"_s},
                                         {u"Jobs"_s, u"Start new job"_s},
                                         {u"Jobs"_s, u"Quick Fix"_s}};
    for (const QStringList& command : commands) {
      shop.prompts.ExpectBox(u"Nothing selected"_s, u"You must select an event"_s);
      ChooseMenu(form, command);
    }
  }

  void DeletesTheSelectedRowOnly() {
    ScheduledShop shop;
    Form& form = ScheduledShop::Open();
    const QStringList before = shop.loft.Snapshot();
    ClickCell(GridOf(form), 3, kTask);
    ChooseMenu(form, {u"Delete"_s, u"Delete selected item"_s});  // a service life has no row
    ClickCell(GridOf(form), 1, kTask);
    shop.prompts.Expect(u"Blue"_s, u"Delete this item from the schedule?"_s, Answer::Yes).WithPreset(Answer::No);
    PressKey(GridOf(form), Qt::Key_Delete);
    QCOMPARE(GridOf(form).RowCount(), 3);
    QCOMPARE(shop.loft.TouchedSince(before), QStringList{u"-tblSchedules|1"_s});
  }

  void ComponentsOutsideARigAreOffered() {
    ScheduledShop shop;
    shop.loft.Run(u"update tblComponents set RigID = 0 where ID = %1"_s.arg(shop.aad));
    Form& form = ScheduledShop::Open();
    QCOMPARE(GridOf(form).Text(2, 2), u"Cypres (not part of a rig)"_s);
    ClickCell(GridOf(form), 2, kTask);
    shop.prompts.Expect(u"No rig"_s, u"Cypres is not part of a rig\nWould you like to see Cypres?"_s, Answer::No);
    ChooseMenu(form, {u"Rig"_s, u"Diplay rig"_s});
    ClickCell(GridOf(form), 1, kTask);
    shop.prompts.ExpectBox(kProgramTitle, u"schedule has multiple components"_s);
    ChooseMenu(form, {u"Component"_s, u"Display component"_s});
  }

  void ShowsRigCustomerAndComponent() {
    ScheduledShop shop;
    ScreenScript screens;
    Form& form = ScheduledShop::Open();
    ClickCell(GridOf(form), 2, kTask);
    ChooseMenu(form, {u"Rig"_s, u"Diplay rig"_s});
    QVERIFY(Forms::IsShown(u"frmGetRig"_s));
    ChooseMenu(form, {u"Customer"_s, u"Display customer"_s});
    QVERIFY(Forms::IsShown(u"frmPeople"_s));
    screens.WhenShown(u"frmComponent"_s, [](Form& component) { PressKey(component, Qt::Key_Escape); });
    ChooseMenu(form, {u"Component"_s, u"Display component"_s});
  }

  void FollowsWhateverChangesTheSchedule() {
    ScheduledShop shop;
    Form& form = ScheduledShop::Open({.rig = shop.rig});
    ClickCell(GridOf(form), 1, kTask);
    shop.AddRepack(Day(3, 10, 2026));
    UpdateSchedule(RepackTaskLibID, shop.rig, 0);
    QCOMPARE(Column(form, kDue), QStringList({u"09/06/2026"_s, u"01/05/2027"_s, u"04/20/2026"_s}));
    QCOMPARE(GridOf(form).CurrentRow(), 1);  // the row that was selected still is
    QCOMPARE(GridOf(form).Text(1, kTask), u"AAD check"_s);
  }

  void AQuickFixRecordsTheTaskAndTheListFollows() {
    ScheduledShop shop;
    ScreenScript screens;
    Form& form = ScheduledShop::Open();
    ClickCell(GridOf(form), 1, kTask);
    screens.WhenShown(u"frmQuickFix"_s, [&](Form& fix) {
      QCOMPARE(fix.windowTitle(), u"Quick Fix"_s);
      QCOMPARE(TextOf(fix, u"lblCustomer"_s), u"Olaf Owner"_s);
      QCOMPARE(TextOf(fix, u"lblRig"_s), u"Blue"_s);
      QCOMPARE(TextOf(fix, u"lblTask"_s), u"Inspect and repack reserve"_s);
      QCOMPARE(TextOf(fix, u"txtDate"_s), u"03/15/26"_s);
      Picture(fix, u"frmQuickFix"_s);
      TypeInto(fix, u"txtDate"_s, u"soon"_s);
      shop.prompts.ExpectBox(u"Invalid date"_s, u"soon is not a valid date"_s);
      Click(fix, u"cmdSave"_s);
      TypeInto(fix, u"txtDate"_s, u"3/12/26"_s);
      shop.prompts.ExpectBox(kProgramTitle, u"work on next line"_s);
      Click(fix, u"cmdSave"_s);
    });
    ChooseMenu(form, {u"Jobs"_s, u"Quick Fix"_s});
    QCOMPARE(Column(form, kDue), QStringList({u"12/09/2025"_s, u"09/08/2026"_s, u"01/05/2027"_s, u"04/20/2026"_s}));
    QCOMPARE(shop.loft.Rows(u"SELECT JobTitle FROM tblJobs"_s),
             QStringList{u"3/12/2026 - Inspect and repack reserve"_s});

    ClickCell(GridOf(form), 3, kTask);
    shop.prompts.ExpectBox(u"No rig selected"_s, u"Please select a rig"_s);
    ChooseMenu(form, {u"Jobs"_s, u"Quick Fix"_s});
  }

  void ALeftQuickFixWritesNothing() {
    ScheduledShop shop;
    ScreenScript screens;
    Form& form = ScheduledShop::Open();
    const QStringList before = shop.loft.Snapshot();
    ClickCell(GridOf(form), 1, kTask);
    screens.WhenShown(u"frmQuickFix"_s, [](Form& fix) { PressKey(fix, Qt::Key_Escape); });
    ChooseMenu(form, {u"Jobs"_s, u"Quick Fix"_s});
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
  }

  void TheJobOfARowIsShown() {
    ScheduledShop shop;
    shop.prompts.ExpectBox(kProgramTitle, u"work on next line"_s);
    Form& form = ScheduledShop::Open();
    ScreenScript screens;
    ClickCell(GridOf(form), 1, kTask);
    screens.WhenShown(u"frmQuickFix"_s, [](Form& fix) { Click(fix, u"cmdSave"_s); });
    ChooseMenu(form, {u"Jobs"_s, u"Quick Fix"_s});
    ClickCell(GridOf(form), 1, kTask);
    ChooseMenu(form, {u"Jobs"_s, u"Display job"_s});
    QVERIFY(Forms::IsShown(u"frmJob"_s));
    ClickCell(GridOf(form), 0, kTask);
    shop.prompts.ExpectBox(
        kProgramTitle,
        u"This event was not part of a rigging job.\nTo edit this event, go to the component's history."_s);
    ChooseMenu(form, {u"Jobs"_s, u"Display job"_s});
  }

  void ANewJobIsStartedForTheRow() {
    ScheduledShop shop;
    ScreenScript screens;
    Form& form = ScheduledShop::Open();
    ClickCell(GridOf(form), 1, kTask);
    screens.WhenShown(u"frmNewJob"_s, [](Form& job) { Click(job, u"cmdOK"_s); });
    ChooseMenu(form, {u"Jobs"_s, u"Start new job"_s});
    QCOMPARE(shop.loft.Rows(u"SELECT CustomerID, SystemID FROM tblJobs"_s),
             QStringList{u"%1|%2"_s.arg(shop.owner).arg(shop.rig)});
    QVERIFY(Forms::IsShown(u"frmJob"_s));
  }
};

LOFT_TEST_MAIN(TestScheduleScreen)
#include "tst_schedule_screen.moc"
