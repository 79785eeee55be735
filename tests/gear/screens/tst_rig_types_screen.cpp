#include <QRadioButton>
#include <QtTest>

#include "core/default_rows.h"
#include "core/widgets/list.h"
#include "gear/rig_types.h"
#include "gear/rigs.h"
#include "gear/screens.h"
#include "support/screens/controls.h"
#include "support/screens/screen_script.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

namespace {

struct RigTypes {
  ThrowAwayLoft loft;
  ScriptedPrompts prompts;
  ScreenScript screens;
  QStringList before = loft.Snapshot();

  static Form& Open() {
    OpenRigTypes();
    return dynamic_cast<Form&>(*Forms::Find(u"frmRigTypes"_s));
  }
};

List& Types(Form& form) { return Control<List>(form, u"lstType"_s); }
List& Components(Form& form) { return Control<List>(form, u"LstComp"_s); }

QString Chosen(Form& form) { return Types(form).ItemText(Types(form).ListIndex()); }

QList<int> Ticked(Form& form) {
  QList<int> ticked;
  for (int row = 0; row < Components(form).Count(); ++row)
    if (Components(form).IsTicked(row)) ticked << Components(form).ItemData(row);
  return ticked;
}

/// What a click on the box of a row does.
void Tick(Form& form, int type) {
  Components(form).SetListIndex(Components(form).FindData(type));
  PressKey(form, u"LstComp"_s, Qt::Key_Space);
}

QString ReservePlace(Form& form) {
  for (const QString& option : {u"optBack"_s, u"optSeat"_s, u"optChest"_s, u"optOther"_s})
    if (Control<QRadioButton>(form, option).isChecked()) return option;
  return {};
}

}  // namespace

class TestRigTypesScreen : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void ShowsWhatARigIsBuiltFromAndWritesNothing() {
    RigTypes shop;
    Form& form = RigTypes::Open();
    QCOMPARE(form.windowTitle(), u"Rig Types"_s);
    QCOMPARE(Types(form).Count(), 4);
    QCOMPARE(Components(form).Count(), 6);
    QCOMPARE(Ticked(form), QList<int>());
    QCOMPARE(ReservePlace(form), QString());
    Control<QRadioButton>(form, u"optSeat"_s).click();  // of no rig type
    QCOMPARE(ReservePlace(form), QString());
    Types(form).SelectData(2);
    QCOMPARE(Ticked(form), (QList<int>{1, 2, 3, 4, 6}));
    QCOMPARE(ReservePlace(form), u"optBack"_s);
    Types(form).SelectData(4);
    QCOMPARE(Ticked(form), (QList<int>{1, 3}));
    QCOMPARE(ReservePlace(form), u"optSeat"_s);
    Picture(form, u"frmRigTypes"_s);
    QCOMPARE(shop.loft.ChangesSince(shop.before), QStringList());
  }

  void ATickIsWrittenAtOnceAndSaveStoresTheSum() {
    RigTypes shop;
    Form& form = RigTypes::Open();
    Types(form).SelectData(3);
    Tick(form, kAad);
    QCOMPARE(ComponentTypesOfRigType(3), (QList<int>{1, 3, 4}));
    QVERIFY(Control<QWidget>(form, u"cmdSave"_s).isEnabled());
    Click(form, u"cmdSave"_s);
    QVERIFY(!Control<QWidget>(form, u"cmdSave"_s).isEnabled());
    QCOMPARE(shop.loft.Rows(u"SELECT Req FROM tblRigTypes WHERE ID = 3"_s), QStringList{u"8"_s});
    for (int type : {1, 3, 4}) Tick(form, type);
    QCOMPARE(ComponentTypesOfRigType(3), QList<int>());
    Click(form, u"cmdCancel"_s);
    QCOMPARE(shop.loft.Rows(u"SELECT Req FROM tblRigTypes WHERE ID = 3"_s), QStringList{u"8"_s});
    QCOMPARE(ComponentTypesOfRigType(1), (QList<int>{1, 2, 3, 4}));
  }

  void ATickWithoutARigTypeIsTold() {
    RigTypes shop;
    Form& form = RigTypes::Open();
    shop.prompts.ExpectBox(kProgramTitle, u"Please select a rig type"_s);
    Tick(form, kAad);
    QCOMPARE(Ticked(form), QList<int>());
    form.UnloadForm();
    shop.loft.Run(u"delete from tblRigTypes"_s);
    Form& empty = RigTypes::Open();
    QVERIFY(!Control<QWidget>(empty, u"cmdDelete"_s).isEnabled());
    QVERIFY(!Control<QWidget>(empty, u"cmdRename"_s).isEnabled());
    shop.prompts.ExpectBox(kProgramTitle, u"There are no rig types"_s);
    Tick(empty, kAad);
  }

  void ANewRigTypeHasNoPlaceUntilOneIsChosen() {
    RigTypes shop;
    Form& form = RigTypes::Open();
    Types(form).SelectData(1);
    shop.prompts.ExpectInput(kProgramTitle, u"Enter new rig type"_s, u"Base rig"_s);
    shop.prompts.ExpectBox(u"Reserve Location"_s, u"Specify reserve location\n(or select OTHER if no reserve)"_s);
    Click(form, u"cmdAdd"_s);
    QCOMPARE(Chosen(form), u"Base rig"_s);
    QCOMPARE(Ticked(form), QList<int>());
    QCOMPARE(ReservePlace(form), QString());
    Types(form).SelectData(1);
    Types(form).SelectData(5);
    QCOMPARE(ReservePlace(form), u"optOther"_s);
    QCOMPARE(ReserveLocation(5), 0);
    Control<QRadioButton>(form, u"optChest"_s).click();
    QCOMPARE(ReserveLocation(5), 3);

    shop.prompts.ExpectInput(kProgramTitle, u"Enter new rig type"_s, u" BASE RIG"_s);
    shop.prompts.ExpectBox(u"Duplicate rig type"_s, u"There is already a rig type called 'BASE RIG'"_s);
    Click(form, u"cmdAdd"_s);
    QCOMPARE(Types(form).Count(), 5);
  }

  void RigTypesAreRenamed() {
    RigTypes shop;
    Form& form = RigTypes::Open();
    shop.prompts.ExpectBox(u"Rename Rig Type"_s, u"Please select a custom rig type"_s);
    Click(form, u"cmdRename"_s);
    Types(form).SelectData(1);
    shop.prompts.ExpectInput(u"Rename rig type"_s, u"Enter rig type name"_s, u"Skydiver's rig"_s)
        .Proposing(u"Sport Rig"_s);
    Click(form, u"cmdRename"_s);
    QCOMPARE(Chosen(form), u"Skydiver's rig"_s);
  }

  void ARigTypeInUseIsKeptAndItsRigsCanBeSeen() {
    RigTypes shop;
    CreateRig(0, 1, u"Red"_s);
    const QStringList before = shop.loft.Snapshot();
    Form& form = RigTypes::Open();
    shop.prompts.ExpectBox(kProgramTitle, u"You must select a rig type"_s);
    Click(form, u"cmdDelete"_s);
    Types(form).SelectData(1);
    const QString text =
        u"There is one rig of that type in your rig database\n\nThis rig type cannot be deleted while being used.\n\n"
        "Would you like to see of list of rigs of this type?"_s;
    shop.prompts.Expect(u"Rig Type:  Sport Rig"_s, text, Answer::No).WithPreset(Answer::No);
    Click(form, u"cmdDelete"_s);
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
    shop.prompts.Expect(u"Rig Type:  Sport Rig"_s, text, Answer::Yes);
    shop.prompts.AnswerRestWith([](const ShownPrompt&) { return Answer::No; });
    shop.screens.WhenShown(u"frmGetRig"_s, [](Form& rigs) {
      QCOMPARE(rigs.windowTitle(), u"Rig Type: Sport Rig"_s);
      PressKey(rigs, Qt::Key_Escape);
    });
    Click(form, u"cmdDelete"_s);
    QCOMPARE(shop.loft.Rows(u"SELECT count(*) FROM tblRigTypes"_s), QStringList{u"4"_s});
  }

  void DeletingTakesThePricesAndLeavesTheComponentList() {
    RigTypes shop;
    shop.loft.Add("tblRepackByType", {{"TypeID", 4}, {"Price", Money::Whole(60)}});
    const QStringList before = shop.loft.Snapshot();
    Form& form = RigTypes::Open();
    Types(form).SelectData(4);
    shop.prompts.Expect(u"Are you sure?"_s, u"Delete Pilot Emergency Rig (seat)?"_s, Answer::Yes);
    PressKey(form, u"lstType"_s, Qt::Key_Delete);
    QCOMPARE(Types(form).Count(), 3);
    const QStringList gone = shop.loft.TouchedSince(before);
    QCOMPARE(gone.size(), 2);
    QVERIFY(gone.contains(u"-tblRigTypes|4"_s));
    QVERIFY(gone.filter(u"-tblRepackByType"_s).size() == 1);
  }

  void TheComponentListIsEditedAndReadAnew() {
    RigTypes shop;
    Form& form = RigTypes::Open();
    Types(form).SelectData(1);
    shop.screens.WhenShown(u"frmComponentTypes"_s, [&](Form& types) {
      shop.prompts.ExpectInput(kProgramTitle, u"Enter name of new component"_s, u"Drogue"_s);
      Click(types, u"cmdAdd"_s);
      Click(types, u"cmdExit"_s);
    });
    Click(form, u"cmdEdit"_s);
    QCOMPARE(Components(form).Count(), 7);
    QCOMPARE(Ticked(form), (QList<int>{1, 2, 3, 4}));
    Click(form, u"cmdExit"_s);
    QVERIFY(!Forms::IsShown(u"frmRigTypes"_s));
  }
};

LOFT_TEST_MAIN(TestRigTypesScreen)
#include "tst_rig_types_screen.moc"
