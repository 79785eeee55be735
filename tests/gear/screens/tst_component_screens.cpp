#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include "core/default_rows.h"
#include "core/widgets/form.h"
#include "core/widgets/grid.h"
#include "core/widgets/list.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/person_names.h"
#include "gear/rigs.h"
#include "gear/screens.h"
#include "support/screens/controls.h"
#include "support/screens/screen_script.h"
#include "support/scripted_prompts.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

namespace {

struct Gear {
  ThrowAwayLoft loft;
  int ann = Named(u"Ann Jones"_s);
  int red = CreateRig(ann, 1, u"Red"_s);
  int storm = AddModel(u"Storm"_s, kMainCanopy);
  int canopy = NewComponent(storm, kMainCanopy, red, u"S1"_s);
  int spare = NewComponent(storm, kMainCanopy, 0, u"S2"_s);

  static int Named(const QString& name) {
    int id = 0;
    AddPersonByName(name, id);
    return id;
  }
};

}  // namespace

class TestComponentScreens : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void EditsAComponent() {
    Gear gear;
    const QStringList before = gear.loft.Snapshot();
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown(u"frmComponentEdit"_s, [&](Form& form) {
      QCOMPARE(form.windowTitle(), u"Edit component"_s);
      QCOMPARE(TextOf(form, u"lblSubType"_s), u"Canopy Size:"_s);
      QCOMPARE(TextOf(form, u"txtSerial"_s), u"S1"_s);
      QCOMPARE(TextOf(form, u"txtDom"_s), QString());
      QCOMPARE(TextOf(form, u"txtJumps"_s), QString());
      TypeInto(form, u"txtSubType"_s, u"150"_s);
      TypeInto(form, u"txtColor"_s, u"red and blue"_s);
      TypeInto(form, u"txtJumps"_s, u"1,000"_s);
      TypeInto(form, u"txtDom"_s, u"soon"_s);
      prompts.ExpectBox(u"DOM is invalid!"_s, u"soon is not a valid date"_s);
      Click(form, u"cmdSave"_s);
      TypeInto(form, u"txtDom"_s, u"1\\14\\2015"_s);
      TypeInto(form, u"txtJumps"_s, u"9999999999"_s);
      prompts.ExpectBox(kProgramTitle, u"Number jumps field is too high"_s);
      Click(form, u"cmdSave"_s);
      TypeInto(form, u"txtJumps"_s, u"1,000"_s);
      Picture(form, u"frmComponentEdit"_s);
      Click(form, u"cmdSave"_s);
    });
    QCOMPARE(EditComponent(gear.canopy), gear.canopy);
    QCOMPARE(gear.loft.ChangesSince(before),
             QStringList({u"-tblComponents|1|1|2|0|| |1||0|0|S1|1|0|"_s,
                          u"+tblComponents|1|1|2|42018|150| |1|red and blue|0|1000|S1|1|0|"_s}));
  }

  void CancelWritesNothing() {
    Gear gear;
    const QStringList before = gear.loft.Snapshot();
    ScreenScript screens;
    screens.WhenShown(u"frmComponentEdit"_s, [](Form& form) {
      TypeInto(form, u"txtSerial"_s, u"X"_s);
      PressKey(form, Qt::Key_Escape);
    });
    QCOMPARE(EditComponent(gear.canopy), 0);
    QCOMPARE(gear.loft.ChangesSince(before), QStringList());
  }

  void ASerialInUseShowsWhoHasIt() {
    Gear gear;
    const QStringList before = gear.loft.Snapshot();
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown(u"frmComponentEdit"_s, [&](Form& form) {
      TypeInto(form, u"txtSerial"_s, u"s1 "_s);
      prompts.ExpectBox(kProgramTitle, u"That serial number is already being used\nby the component shown here"_s);
      Click(form, u"cmdSave"_s);
      QVERIFY(form.isVisible());
      Click(form, u"cmdCancel"_s);
    });
    screens.WhenShown(u"frmComponentVerify"_s, [](Form& form) {
      QCOMPARE(form.windowTitle(), u"Serial number already exists for this model"_s);
      QCOMPARE(TextOf(form, u"lblSerial"_s), u"S1"_s);
      QCOMPARE(TextOf(form, u"lblRig"_s), u"Red"_s);
      QVERIFY(!Control<QPushButton>(form, u"cmdYes"_s).isVisible());
      QCOMPARE(TextOf(form, u"cmdNo"_s), u"Exit"_s);
      Click(form, u"cmdNo"_s);
    });
    QCOMPARE(EditComponent(gear.spare), 0);
    QCOMPARE(gear.loft.ChangesSince(before), QStringList());
  }

  void SeveralMatchesAreRefused() {
    Gear gear;
    NewComponent(gear.storm, kMainCanopy, 0, u"S1"_s);
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown(u"frmComponentEdit"_s, [&](Form& form) {
      TypeInto(form, u"txtSerial"_s, u"S1"_s);
      prompts.ExpectBox(kProgramTitle, u"there are 2 matching s/n for this model"_s);
      Click(form, u"cmdSave"_s);
      Click(form, u"cmdCancel"_s);
    });
    EditComponent(gear.spare);
    QCOMPARE(ComponentSerial(gear.spare), u"S2"_s);
  }

  void EnterGoesFromBoxToBox() {
    Gear gear;
    ScreenScript screens;
    screens.WhenShown(u"frmComponentEdit"_s, [](Form& form) {
      PressKey(form, u"txtSubType"_s, Qt::Key_Return);
      QCOMPARE(form.focusWidget(), &Control<QWidget>(form, u"txtSerial"_s));
      PressKey(form, u"txtSerial"_s, Qt::Key_Down);
      QCOMPARE(form.focusWidget(), &Control<QWidget>(form, u"txtColor"_s));
      PressKey(form, u"txtColor"_s, Qt::Key_Up);
      QCOMPARE(form.focusWidget(), &Control<QWidget>(form, u"txtSerial"_s));
      QVERIFY(form.isVisible());
      Click(form, u"cmdCancel"_s);
    });
    QCOMPARE(EditComponent(gear.canopy), 0);
  }

  void AComponentThatHasGoneIsNotEdited() {
    Gear gear;
    ScreenScript screens;
    QCOMPARE(EditComponent(99), 0);
  }

  void ATypedSerialAnswersForTheEmptyPlace() {
    Gear gear;
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown(u"frmNewOrOld"_s, [&](Form& form) {
      QCOMPARE(form.windowTitle(), u"New main canopy"_s);
      Click(form, u"cmdEnter"_s);
      QVERIFY(form.isVisible());
      TypeInto(form, u"txtSerial"_s, u"X9"_s);
      const QString text =
          u"Serial number X9 is not found in the Main Canopy database\n"
          "Would you like to create a new Main Canopy using that serial number?"_s;
      prompts.Expect(u"Add new Main Canopy?"_s, text, Answer::No);
      Click(form, u"cmdEnter"_s);
      QVERIFY(form.isVisible());
      prompts.Expect(u"Add new Main Canopy?"_s, text, Answer::Yes);
      Click(form, u"cmdEnter"_s);
    });
    QCOMPARE(AskNewOrOld(kMainCanopy), u"new with s/n:X9"_s);
    screens.WhenShown(u"frmNewOrOld"_s, [](Form& form) {
      QCOMPARE(form.windowTitle(), u"New Component"_s);
      PressKey(form, Qt::Key_Escape);
    });
    QCOMPARE(AskNewOrOld(0), u"cancel"_s);
  }

  void PicksFromTheDatabase() {
    Gear gear;
    const int bob = Gear::Named(u"Bob Smith"_s);
    const int pilot = NewComponent(AddModel(u"Pilot"_s, kMainCanopy), kMainCanopy, 0);
    SetComponentOwner(pilot, bob);
    SetComponentOwner(gear.canopy, 0);
    const int lost = NewComponent(AddModel(u"Vigil"_s, kAad), 0, 0, u"V1"_s);
    gear.loft.Run(u"update tblComponents set DOM = #1/14/2015# where ID = "_s + QString::number(gear.spare));
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown(u"frmPickComponent"_s, [&](Form& form) {
      auto& grid = Control<Grid>(form, u"Grid"_s);
      const auto ids = [&grid] {
        QList<int> shown;
        for (int row = 0; row < grid.RowCount(); ++row) shown << grid.RowData(row);
        return shown;
      };
      QCOMPARE(ids(), QList<int>({gear.canopy, gear.spare, pilot}));
      QCOMPARE(grid.Text(0, 1), u"Red"_s);
      QCOMPARE(grid.Text(0, 2), u"(none)"_s);
      QCOMPARE(grid.Text(1, 1), u"(no rig)"_s);
      QCOMPARE(grid.Text(1, 4), u"01/14/2015"_s);
      QCOMPARE(grid.Text(1, 5), u"20150114"_s);
      QCOMPARE(grid.Text(2, 3), u"(none)"_s);
      QTest::qWait(0);
      Picture(form, u"frmPickComponent"_s);
      prompts.ExpectBox(u"Nothing selected"_s, u"Please select a component"_s);
      Click(form, u"cmdSelect"_s);
      PressKey(form, u"optInRig"_s, Qt::Key_Space);
      QCOMPARE(ids(), QList<int>({gear.canopy}));
      PressKey(form, u"optNotInRig"_s, Qt::Key_Space);
      QCOMPARE(ids(), QList<int>({gear.spare, pilot}));
      PressKey(form, u"optBoth"_s, Qt::Key_Space);
      Click(form, u"cmdSelectCustomer"_s);
      QCOMPARE(ids(), QList<int>({pilot}));
      QCOMPARE(TextOf(form, u"lblOwner"_s), u"Customer: Bob Smith"_s);
      PressKey(form, u"optAnyOwner"_s, Qt::Key_Space);
      prompts.Expect(u"Show all models?"_s, u"Would you like to show a selected model only?"_s, Answer::Yes);
      Click(form, u"lblModels"_s);
      QCOMPARE(ids(), QList<int>({gear.canopy, gear.spare}));
      prompts.Expect(u"Show all models?"_s, u"Would you like to show all models?"_s, Answer::Yes);
      Click(form, u"lblModels"_s);
      QCOMPARE(ids().size(), 3);
      ClickCell(grid, 2, 0);
      prompts.Expect(u"Delete Main Canopy"_s, u"Are you sure you want to delete Pilot ?"_s, Answer::Yes);
      PressKey(grid, Qt::Key_Delete);
      QCOMPARE(ids().size(), 2);
      PressKey(form, u"chkAllTypes"_s, Qt::Key_Space);
      QCOMPARE(ids().first(), lost);
      prompts.ExpectBox(kProgramTitle,
                        u"This component has lost its component type\n\n     Vigil \n\n"
                        "Please select a component type on the next screen"_s);
      prompts.Expect(kProgramTitle, u"Vigil  = AAD?\nIs this correct?"_s, Answer::Yes);
      ClickCell(grid, 0, 0);
      ClickCell(grid, 1, 0);
      Click(form, u"cmdSelect"_s);
    });
    screens.WhenShown(u"frmPicker"_s, [](Form& form) {
      TypeInto(form, u"txt"_s, u"smith"_s);
      Click(form, u"cmdSelect"_s);
    });
    for (const auto& text : {u"storm"_s, u"aad"_s})
      screens.WhenShown(u"frmPicker"_s, [text](Form& form) {
        TypeInto(form, u"txt"_s, text);
        Click(form, u"cmdSelect"_s);
      });
    QCOMPARE(PickComponent(kMainCanopy), gear.canopy);
    QCOMPARE(ComponentOwner(gear.canopy), gear.ann);
    QCOMPARE(ComponentTypeOf(lost), int{kAad});
    QVERIFY(!ComponentExists(pilot));
  }

  void LooksUpASerial() {
    Gear gear;
    NewComponent(AddModel(u"Vigil"_s, kAad), kAad, 0, u"S10"_s);
    ScriptedPrompts prompts;
    ScreenScript screens;
    screens.WhenShown(u"frmSerialNumber"_s, [&](Form& form) {
      QCOMPARE(form.windowTitle(), u"Serial Number Look Up"_s);
      auto& serials = Control<List>(form, u"lst"_s);
      QCOMPARE(serials.Count(), 2);
      QCOMPARE(serials.ItemText(serials.ListIndex()), u"S1"_s);
      QCOMPARE(TextOf(form, u"lblRig"_s), u"Red"_s);
      QVERIFY(!Control<QWidget>(form, u"lblNoSystem"_s).isVisible());
      TypeInto(form, u"txtSerial"_s, u" s2"_s);
      QCOMPARE(TextOf(form, u"lblSerial"_s), u"S2"_s);
      QVERIFY(Control<QWidget>(form, u"lblNoSystem"_s).isVisible());
      Picture(form, u"frmSerialNumber"_s);
      prompts.ExpectBox(u"No rig"_s, u"This main canopy isn't part of a rig"_s);
      Click(form, u"cmdShowRig"_s);
      Click(form, u"chkAllTypes"_s);
      QCOMPARE(serials.Count(), 3);
      Click(form, u"cmdSelect"_s);
    });
    QCOMPARE(PickComponentBySerial(kMainCanopy, u"S1"_s), gear.spare);
    screens.WhenShown(u"frmSerialNumber"_s, [&](Form& form) {
      prompts.ExpectBox(u"Nothing selected"_s, u"You must select a component first"_s);
      Click(form, u"cmdEdit"_s);
      Click(form, u"cmdExit"_s);
    });
    QCOMPARE(PickComponentBySerial(kContainer, u"S1"_s), 0);
  }
};

QTEST_MAIN(TestComponentScreens)
#include "tst_component_screens.moc"
