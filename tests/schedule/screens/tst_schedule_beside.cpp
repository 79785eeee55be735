#include <QRadioButton>
#include <QSettings>
#include <QtTest>

#include "core/widgets/grid.h"
#include "core/widgets/list.h"
#include "gear/component_rules.h"
#include "gear/components.h"
#include "gear/rig_rules.h"
#include "gear/screens.h"
#include "jobs/gear_deletion.h"
#include "jobs/person_deletion.h"
#include "schedule/gear_moves.h"
#include "schedule/reconstruct.h"
#include "schedule/sample_rig.h"
#include "schedule/schedule.h"
#include "schedule/screens.h"
#include "support/screens/controls.h"
#include "support/screens/screen_script.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kGear = 2, kTask = 3;

/// The sample rig with its repack and its AAD check on the open schedule.
struct OpenScheduleShop : SampleRig {
  OpenScheduleShop() {
    AddRepack(Day(1, 10, 2026));
    UpdateSchedule(RepackTaskLibID, rig, 0);
    AddDone(aadCheck, Day(1, 10, 2026), {aad}, rig);
    UpdateSchedule(aadCheck, rig, aad);
    OpenSchedule();
  }

  Form& Screen() const { return dynamic_cast<Form&>(*Forms::Find(u"frmSchedule"_s)); }
  Grid& Lines() const { return Control<Grid>(Screen(), u"Grid"_s); }
  QStringList Tasks() const {
    QStringList tasks;
    for (int row = 0; row < Lines().RowCount(); ++row) tasks << Lines().Text(row, kTask);
    return tasks;
  }
  QStringList TasksOnFile() const {
    return loft.Rows(u"select L.Name from tblSchedules S join tblTaskLib L on L.ID = S.TaskLibID order by DateDue"_s);
  }
};

}  // namespace

/// The schedule stands open while what it lists is changed elsewhere.
class TestScheduleBeside : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() {
    UnloadScreens();
    QSettings().clear();  // the order of the rows is remembered
  }

  void ARemovedReserveTakesItsRepackOff() {
    OpenScheduleShop shop;
    QCOMPARE(shop.Tasks(), QStringList({u"Inspect and repack reserve"_s, u"AAD check"_s}));
    shop.prompts.AnswerRestWith([](const ShownPrompt&) { return Answer::Yes; });
    QVERIFY(RemoveComponentFromRig(shop.rig, shop.reserve));
    QCOMPARE(shop.Tasks(), QStringList(u"AAD check"_s));
    QCOMPARE(shop.Tasks(), shop.TasksOnFile());
  }

  void ADeletedRigTakesItsRepackOff() {
    OpenScheduleShop shop;
    DeleteRig(shop.rig);
    QCOMPARE(shop.Tasks(), QStringList(u"AAD check"_s));
    QCOMPARE(shop.Lines().Text(0, kGear), u"Cypres (not part of a rig)"_s);
  }

  void ADeletedComponentTakesItsRowsOff() {
    OpenScheduleShop shop;
    shop.prompts.AnswerRestWith([](const ShownPrompt&) { return Answer::Yes; });
    QVERIFY(DeleteComponent(shop.aad));
    QCOMPARE(shop.Tasks(), shop.TasksOnFile());
    QVERIFY(!shop.Tasks().contains(u"AAD check"_s));
  }

  void ReconstructedRowsAreTheOnesThatAreListed() {
    OpenScheduleShop shop;
    shop.prompts.AnswerRestWith([](const ShownPrompt&) { return Answer::Yes; });
    ReconstructSchedules();
    QStringList ids;
    for (int row = 0; row < shop.Lines().RowCount(); ++row) ids << shop.Lines().Text(row, 0);
    QCOMPARE(ids, shop.loft.Rows(u"select ID from tblSchedules order by DateDue"_s));
  }

  void TheCustomersNameFollows() {
    OpenScheduleShop shop;
    DeletePerson(shop.owner);
    QCOMPARE(shop.Lines().Text(0, 1), u"none"_s);
  }

  void AFilterByACustomerWhoHasGoneIsOff() {
    OpenScheduleShop shop;
    OpenSchedule({.customer = shop.owner});
    DeletePerson(shop.owner);
    QVERIFY(Control<QRadioButton>(shop.Screen(), u"optCustomersAll"_s).isChecked());
    QCOMPARE(TextOf(shop.Screen(), u"lblCustomer"_s), u"Customer:  (none)"_s);
    QCOMPARE(shop.Lines().RowCount(), 2);
  }

  void AFilterByARigThatHasGoneIsOff() {
    OpenScheduleShop shop;
    OpenSchedule({.rig = shop.rig});
    DeleteRig(shop.rig);
    QVERIFY(Control<QRadioButton>(shop.Screen(), u"optCustomersAll"_s).isChecked());
    shop.prompts.ExpectBox(u"No rig selected"_s, u"Please select a rig"_s);
    Control<QRadioButton>(shop.Screen(), u"optRigOnly"_s).click();
  }

  void TheRigOfARowIsShownOnTheOpenRigScreen() {
    OpenScheduleShop shop;
    const int other =
        shop.loft.Add("tblRig", {{"OwnerID", shop.rigger}, {"TypeID", 1}, {"rigAlias", "Other"}, {"Comment", " "}});
    OpenRigs({.customer = shop.rigger, .rig = other});
    auto& rigs = Control<List>(dynamic_cast<Form&>(*Forms::Find(u"frmGetRig"_s)), u"lstGear"_s);
    QCOMPARE(rigs.ItemText(rigs.ListIndex()), u"Other"_s);
    ClickCell(shop.Lines(), 0, kTask);
    ChooseMenu(shop.Screen(), {u"Rig"_s, u"Diplay rig"_s});
    QCOMPARE(rigs.ItemText(rigs.ListIndex()), u"Blue"_s);
  }

  void ARowWhoseRigHasGoneIsAComponentsRow() {
    OpenScheduleShop shop;
    DeleteRig(shop.rig);
    ClickCell(shop.Lines(), 0, kTask);
    const QString name = ComponentDescription(shop.aad).trimmed();
    shop.prompts.Expect(u"No rig"_s, name + u" is not part of a rig\nWould you like to see "_s + name + u'?',
                        Answer::No);
    ChooseMenu(shop.Screen(), {u"Rig"_s, u"Diplay rig"_s});
    QVERIFY(!Forms::Find(u"frmGetRig"_s));
    shop.prompts.ExpectBox(u"No rig selected"_s, u"Please select a rig"_s);
    ChooseMenu(shop.Screen(), {u"Jobs"_s, u"Quick Fix"_s});
  }

  void ADeletedRowLeavesNothingSelected() {
    OpenScheduleShop shop;
    ClickCell(shop.Lines(), 0, kTask);
    shop.prompts.Expect(u"Blue"_s, u"Delete this item from the schedule?"_s, Answer::Yes);
    PressKey(shop.Lines(), Qt::Key_Delete);
    QCOMPARE(shop.Tasks(), QStringList(u"AAD check"_s));
    QCOMPARE(shop.Lines().CurrentRow(), -1);
  }
};

LOFT_TEST_MAIN(TestScheduleBeside)
#include "tst_schedule_beside.moc"
