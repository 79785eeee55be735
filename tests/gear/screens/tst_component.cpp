#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

#include "core/forms.h"
#include "gear/rig_rules.h"
#include "gear/screens/rig_shop.h"
#include "gear/selected_component.h"
#include "schedule/schedule.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

/// The component screen on a component, as long as a routine acts on it.
void OnComponent(RigShop& shop, int component, const std::function<void(Form&)>& act) {
  shop.screens.WhenShown(u"frmComponent"_s, [act](Form& form) {
    act(form);
    Click(form, u"cmdExit"_s);
  });
  ShowComponent(component);
}

/// Stands in for the list of components, with one selected.
class ListOfComponents : public LoadedForm, public SelectsComponent {
 public:
  explicit ListOfComponents(int selected) : selected_(selected) { Forms::Add(this); }
  ~ListOfComponents() override { Forms::Remove(this); }
  ListOfComponents(const ListOfComponents&) = delete;
  ListOfComponents& operator=(const ListOfComponents&) = delete;
  QString FormName() const override { return u"frmComponentList2"_s; }
  bool FormIsShown() const override { return true; }
  void ReloadForm() override { ++reloads; }
  QStringList ShowsTables() const override { return {u"tblComponents"_s}; }
  void TablesChanged(const Changes&) override { ReloadForm(); }
  void UnloadForm() override {}
  int SelectedComponent() const override { return selected_; }
  int reloads = 0;

 private:
  int selected_;
};

}  // namespace

class TestComponent : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() { UnloadScreens(); }

  void ShowsAComponent() {
    RigShop shop;
    shop.loft.Run(
        u"update tblComponents set DOM = #1/14/2015#, SubType = '150', Color = 'rot und weiß', NumJumps = 1000, "
        "Comment = 'patched twice' where ID = %1"_s.arg(shop.canopy));
    shop.loft.Run(u"update tblModels set ServiceLife = 138 where ID = %1"_s.arg(shop.storm));
    const QStringList before = shop.loft.Snapshot();
    OnComponent(shop, shop.canopy, [](Form& form) {
      QCOMPARE(form.windowTitle(), u"Main Canopy"_s);
      QCOMPARE(TextOf(form, u"txtModel"_s), u"Storm 150"_s);
      QCOMPARE(TextOf(form, u"txtSerial"_s), u"S1"_s);
      QCOMPARE(TextOf(form, u"txtColor"_s), u"rot und weiß"_s);
      QCOMPARE(TextOf(form, u"txtDom"_s), u"01/14/2015"_s);
      QCOMPARE(TextOf(form, u"txtJumps"_s), u"1000"_s);
      QCOMPARE(TextOf(form, u"txtComment"_s), u"patched twice"_s);
      QCOMPARE(TextOf(form, u"lblCustomer"_s), u"Ann Jones"_s);
      QCOMPARE(TextOf(form, u"lblRigTitle"_s), u"Red"_s);
      QCOMPARE(TextOf(form, u"cmdChangeModel"_s), u"Change main canopy &Model"_s);
      QCOMPARE(TextOf(form, u"cmdRemove"_s), u"Remo&ve main canopy from rig"_s);
      QVERIFY(!IsShown(form, u"lblRigOwner"_s));
      QCOMPARE(RowsOf(Schedule(form)), QStringList(u"Storm expiration||07/14/2026|134 days|-1"_s));
      TypeInto(form, u"txtSerial"_s, u"X"_s);
      QCOMPARE(TextOf(form, u"txtSerial"_s), u"S1"_s);
      Picture(form, u"frmComponent"_s);
    });
    QCOMPARE(shop.Touched(before), QStringList());
  }

  void EmptyFieldsShowAWord() {
    RigShop shop;
    shop.loft.Run(u"update tblComponents set SerialNumber = ' ' where ID = %1"_s.arg(shop.spare));
    OnComponent(shop, shop.spare, [](Form& form) {
      for (const auto& box : {u"txtSerial"_s, u"txtDom"_s, u"txtJumps"_s})
        QCOMPARE(TextOf(form, box), u"(not entered)"_s);
      QCOMPARE(TextOf(form, u"txtColor"_s), u"(n/a)"_s);
      QCOMPARE(TextOf(form, u"txtComment"_s), QString());
      QCOMPARE(TextOf(form, u"lblRigTitle"_s), u"(not part of a rig)"_s);
      QVERIFY(!IsShown(form, u"cmdRemove"_s));
      QVERIFY(!IsShown(form, u"Grid2"_s));
      QVERIFY(!IsShown(form, u"cmdUpdateTask"_s));
      Picture(form, u"frmComponent_bare"_s);
    });
  }

  void AnotherOwnerOfTheRigIsNoted() {
    RigShop shop;
    SetRigOwner(shop.red, shop.bob);
    OnComponent(shop, shop.canopy, [](Form& form) {
      QCOMPARE(TextOf(form, u"lblCustomer"_s), u"Ann Jones"_s);
      QVERIFY(IsShown(form, u"lblRigOwner"_s));
      QCOMPARE(TextOf(form, u"lblRigOwner"_s), u"(note: rig owner is Bob Smith)"_s);
      Picture(form, u"frmComponent_owners"_s);
    });
  }

  void AnOwnerOfNoneIsTakenFromTheRigButNotWritten() {
    RigShop shop;
    SetComponentOwner(shop.canopy, 0);
    OnComponent(shop, shop.canopy, [&](Form& form) {
      QCOMPARE(TextOf(form, u"lblCustomer"_s), u"Ann Jones"_s);
      QVERIFY(!IsShown(form, u"lblRigOwner"_s));
      shop.PressInForm(u"frmComponentEdit"_s, u"cmdSave"_s);
      Click(form, u"cmdEdit"_s);
    });
    QCOMPARE(ComponentOwner(shop.canopy), 0);
  }

  void TheScheduleIsThatOfTheComponent() {
    RigShop shop;
    const int reserve = RigShop::AddReserve(shop.red);
    shop.loft.Run(u"update tblTaskLib set IntervalNumber = 180 where ID = 1"_s);
    OnComponent(shop, shop.container, [](Form& form) { QVERIFY(!IsShown(form, u"Grid2"_s)); });
    shop.AddDone(RepackTaskLibID, Date::FromParts(2025, 9, 1), {shop.container, reserve}, shop.red);
    UpdateSchedule(RepackTaskLibID, shop.red, 0);
    OnComponent(shop, shop.container, [](Form& form) {
      QCOMPARE(RowsOf(Schedule(form)), QStringList(u"Inspect and repack reserve|09/01/2025|02/28/2026|Overdue!|1"_s));
      QCOMPARE(Schedule(form).CellColour(0, 3), QColor(255, 0, 0));
    });
    OnComponent(shop, shop.canopy, [](Form& form) { QVERIFY(!IsShown(form, u"Grid2"_s)); });
  }

  void UpdatesAScheduledTaskAndFollows() {
    RigShop shop;
    const int check = shop.loft.Add(u"tblTaskLib"_s, {{u"Name"_s, u"Line check"_s},
                                                      {u"IntervalNumber"_s, 1},
                                                      {u"IntervalType"_s, 3},
                                                      {u"ModelID"_s, 0},
                                                      {u"IsRigTypeSpecific"_s, false}});
    shop.loft.Add(u"tblTaskLibComponentTypes"_s, {{u"TaskLibID"_s, check}, {u"ComponentTypeID"_s, int{kMainCanopy}}});
    shop.AddDone(check, Date::FromParts(2025, 2, 1), {shop.spare}, 0);
    UpdateSchedule(check, 0, shop.spare);
    OnComponent(shop, shop.spare, [&](Form& form) {
      QCOMPARE(RowsOf(Schedule(form)), QStringList(u"Line check|02/01/2025|02/01/2026|Overdue!|%1"_s.arg(check)));
      shop.prompts.ExpectInput(kProgramTitle, u"Enter date peformed"_s, u"2/1/2025"_s);
      shop.prompts.ExpectBox(kProgramTitle, u"You entered: 02/01/2025\nDate entered must be after 02/01/2025"_s);
      Click(form, u"cmdUpdateTask"_s);
      shop.prompts.ExpectInput(kProgramTitle, u"Enter date peformed"_s, u"2/15/2026"_s);
      Click(form, u"cmdUpdateTask"_s);
      QCOMPARE(RowsOf(Schedule(form)), QStringList(u"Line check|02/15/2026|02/15/2027|350 days|%1"_s.arg(check)));
    });
    QCOMPARE(shop.loft.Rows(u"select rigID, ComponentID from tblSchedules"_s), QStringList(u"0|3"_s));
  }

  void EditsByButtonMenuAndDoubleClick() {
    RigShop shop;
    ListOfComponents list(shop.canopy);
    OnComponent(shop, shop.canopy, [&](Form& form) {
      shop.screens.WhenShown(u"frmComponentEdit"_s, [](Form& editor) {
        TypeInto(editor, u"txtSerial"_s, u"S'99 é"_s);
        Click(editor, u"cmdSave"_s);
      });
      Click(form, u"cmdEdit"_s);
      QCOMPARE(TextOf(form, u"txtSerial"_s), u"S'99 é"_s);
      QCOMPARE(list.reloads, 1);
      shop.Leave(u"frmComponentEdit"_s);
      ChooseMenu(form, {u"Edit"_s});
      shop.Leave(u"frmComponentEdit"_s);
      QTest::mouseDClick(&Control<QWidget>(form, u"txtColor"_s), Qt::LeftButton);
      shop.Leave(u"frmComponentEdit"_s);
      PressKey(form, Qt::Key_Return);
      QCOMPARE(list.reloads, 1);
    });
    QCOMPARE(ComponentSerial(shop.canopy), u"S'99 é"_s);
  }

  void AListWithAnotherComponentSelectedIsAskedAbout() {
    RigShop shop;
    const QStringList before = shop.loft.Snapshot();
    const ListOfComponents list(shop.spare);
    const QString question =
        u"Please notice:\nYou are about to edit this component: \n           Storm  (from Red)\n"
        "but you have selected Storm  (not part of a rig)\nfrom the components list.\n"
        "Are you sure you want to edit Storm "_s;
    OnComponent(shop, shop.canopy, [&](Form& form) {
      const auto refuse = [&] {
        shop.prompts.Expect(u"Different component selected"_s, question, Answer::No)
            .WithButtons(Buttons::YesNo)
            .WithPreset(Answer::No);
      };
      for (const auto& button : {u"cmdEdit"_s, u"cmdChangeModel"_s, u"cmdRemove"_s}) {
        refuse();
        Click(form, button);
      }
      refuse();
      ChooseMenu(form, {u"Owner"_s, u"Select/Change Owner"_s});
      shop.prompts.Expect(u"Different component selected"_s, question, Answer::Yes);
      shop.Leave(u"frmComponentEdit"_s);
      Click(form, u"cmdEdit"_s);
    });
    QCOMPARE(shop.Touched(before), QStringList());
  }

  void ChangesTheModel() {
    RigShop shop;
    const int pilot = AddModel(u"Pilot"_s, kMainCanopy);
    ListOfComponents list(0);
    const QStringList before = shop.loft.Snapshot();
    OnComponent(shop, shop.canopy, [&](Form& form) {
      shop.Leave(u"frmPicker"_s);
      Click(form, u"cmdChangeModel"_s);
      QCOMPARE(shop.Touched(before), QStringList());
      shop.Pick(u"pilot"_s);
      Click(form, u"cmdChangeModel"_s);
      QCOMPARE(TextOf(form, u"txtModel"_s), u"Pilot "_s);
      QCOMPARE(ComponentModel(shop.canopy), pilot);
      QCOMPARE(list.reloads, 1);
      shop.Pick(u"(add new"_s);
      shop.prompts.ExpectInput(u"New Main Canopy"_s, u"Enter name of new Main Canopy"_s, u"Zéphyr's"_s);
      shop.prompts.ExpectBox(u"New Main Canopy added"_s, u"'Zéphyr's' has been added to the Main Canopy database"_s);
      Click(form, u"cmdChangeModel"_s);
      QCOMPARE(TextOf(form, u"txtModel"_s), u"Zéphyr's "_s);
    });
    QCOMPARE(shop.Touched(before), QStringList({u"+tblComponents|2"_s, u"+tblModels|4"_s, u"-tblComponents|2"_s}));
  }

  void AMiscItemChangesToAnotherPart() {
    RigShop shop;
    const int toggle = AddModel(u"Toggle"_s, kMisc);
    const int item = NewComponent(AddModel(u"Riser"_s, kMisc), kMisc, 0);
    OnComponent(shop, item, [&](Form& form) {
      shop.screens.WhenShown(u"frmPicker"_s, [](Form& picker) {
        QCOMPARE(picker.windowTitle(), u"Select Misc Item Model"_s);
        TypeInto(picker, u"txt"_s, u"toggle"_s);
        Click(picker, u"cmdSelect"_s);
      });
      Click(form, u"cmdChangeModel"_s);
    });
    QCOMPARE(ComponentModel(item), toggle);
  }

  void RemovesItFromItsRig() {
    RigShop shop;
    shop.loft.Add(u"tblPhotos"_s, {{u"rigid"_s, shop.red}, {u"componentid"_s, shop.container}});
    shop.loft.Add(u"tblPhotos"_s, {{u"rigid"_s, shop.red}, {u"componentid"_s, shop.canopy}});
    shop.loft.Add(u"tblSchedules"_s, {{u"rigID"_s, shop.red}, {u"TaskLibID"_s, RepackTaskLibID}});
    shop.loft.Add(u"tblSchedules"_s, {{u"rigID"_s, shop.blue}, {u"TaskLibID"_s, RepackTaskLibID}});
    const QStringList before = shop.loft.Snapshot();
    OnComponent(shop, shop.container, [&](Form& form) {
      const QString question = u"Remove Javelin Odyssey  from Red?"_s;
      shop.prompts.Expect(u"Remove Container?"_s, question, Answer::No).WithPreset(Answer::No);
      Click(form, u"cmdRemove"_s);
      QCOMPARE(shop.Touched(before), QStringList());
      shop.prompts.Expect(u"Remove Container?"_s, question, Answer::Yes);
      Click(form, u"cmdRemove"_s);
      QCOMPARE(TextOf(form, u"lblRigTitle"_s), u"(not part of a rig)"_s);
      QVERIFY(!IsShown(form, u"cmdRemove"_s));
    });
    QCOMPARE(shop.Touched(before), QStringList({u"+tblComponents|1"_s, u"+tblPhotos|1"_s, u"-tblComponents|1"_s,
                                                u"-tblPhotos|1"_s, u"-tblSchedules|1"_s}));
    QCOMPARE(ComponentOwner(shop.container), shop.ann);
    QCOMPARE(shop.loft.Rows(u"select rigid from tblPhotos order by ID"_s), QStringList({u"0"_s, u"1"_s}));
  }

  void ChangesTheOwner() {
    RigShop shop;
    const QStringList before = shop.loft.Snapshot();
    OnComponent(shop, shop.canopy, [&](Form& form) {
      const QString question =
          u"This component is part of a rig (Red) which is \nowner by Ann Jones\n\n"
          "Are you sure you want to change the component's owner to Bob Smith?"_s;
      shop.Leave(u"frmPicker"_s);
      ChooseMenu(form, {u"Owner"_s, u"Select/Change Owner"_s});
      shop.Pick(u"smith"_s);
      shop.prompts.Expect(u"Change component owner?"_s, question, Answer::No).WithPreset(Answer::No);
      ChooseMenu(form, {u"Owner"_s, u"Select/Change Owner"_s});
      QCOMPARE(shop.Touched(before), QStringList());
      shop.Pick(u"smith"_s);
      shop.prompts.Expect(u"Change component owner?"_s, question, Answer::Yes);
      ChooseMenu(form, {u"Owner"_s, u"Select/Change Owner"_s});
      QCOMPARE(TextOf(form, u"lblCustomer"_s), u"Bob Smith"_s);
      QCOMPARE(TextOf(form, u"lblRigOwner"_s), u"(note: rig owner is Ann Jones)"_s);
      shop.Pick(u"jones"_s);
      ChooseMenu(form, {u"Owner"_s, u"Select/Change Owner"_s});
      QVERIFY(!IsShown(form, u"lblRigOwner"_s));
    });
    QCOMPARE(shop.Touched(before), QStringList());
  }

  void ShowsTheRigOrTellsThatThereIsNone() {
    RigShop shop;
    OnComponent(shop, shop.canopy, [&](Form& form) {
      shop.screens.WhenShown(u"frmGetRig"_s, [](Form& rigs) {
        QCOMPARE(Selected(Rigs(rigs)), u"Red"_s);
        PressKey(rigs, Qt::Key_Escape);
      });
      ChooseMenu(form, {u"Rig"_s});
    });
    OnComponent(shop, shop.spare, [&](Form& form) {
      shop.prompts.ExpectBox(kProgramTitle, u"This component isn't part of a rig"_s);
      ChooseMenu(form, {u"Rig"_s});
    });
  }

  void OtherCommands() {
    RigShop shop;
    OnComponent(shop, shop.canopy, [&](Form& form) {
      shop.prompts.ExpectBox(kProgramTitle, u"work on this"_s);
      Click(form, u"cmdUpdateHelp"_s);
      SetComponentModel(shop.canopy, shop.javelin);
      Click(form, u"cmdRefresh"_s);
      QCOMPARE(TextOf(form, u"txtModel"_s), u"Javelin Odyssey "_s);
      Click(form, u"chkHidePhotos"_s);
      QVERIFY(!IsShown(form, u"imageComponent"_s));
      QVERIFY(!IsEnabled(form, u"cmdPhoto"_s));
      ChooseMenu(form, {u"Exit"_s});
      QVERIFY(!form.isVisible());
    });
    QVERIFY(PhotosAreHidden());
    shop.Leave(u"frmComponent"_s);
    ShowComponent(shop.canopy);
  }

  void ThePhotoMenuNamesItsCommands() {
    RigShop shop;
    OnComponent(shop, shop.canopy, [](Form& form) {
      QStringList captions;
      for (QAction* action : form.MenuBar()->actions()) captions << action->text().remove(u'&');
      QCOMPARE(captions, QStringList({u"Edit"_s, u"Photo"_s, u"Owner"_s, u"Rig"_s, u"History"_s, u"Exit"_s}));
      QStringList photo;
      for (QAction* action : form.MenuBar()->actions().at(1)->menu()->actions()) photo << action->text();
      QCOMPARE(photo, QStringList({u"Add or update photo"_s, u"Delete photo"_s, u"View more photos of this component"_s,
                                   u"Add more photos of this component"_s}));
    });
  }

  void AReloadBehindTheEditorIsTold() {
    RigShop shop;
    OnComponent(shop, shop.canopy, [&](Form& form) {
      shop.screens.WhenShown(u"frmComponentEdit"_s, [&](Form& editor) {
        shop.prompts.ExpectBox(u"keep going"_s, u"NoReload was true, wasn't supposed to be"_s);
        Forms::Find(u"frmComponent"_s)->ReloadForm();
        PressKey(editor, Qt::Key_Escape);
      });
      Click(form, u"cmdEdit"_s);
    });
  }

  void AnOpenScreenGoesOverToAnotherComponent() {
    RigShop shop;
    OnComponent(shop, shop.canopy, [&](Form& form) {
      ShowComponent(shop.container);
      QCOMPARE(form.windowTitle(), u"Container"_s);
    });
  }

  void OneThatHasGoneIsNotShown() {
    RigShop shop;
    ShowComponent(99);
    const QStringList before = shop.loft.Snapshot();
    OnComponent(shop, shop.spare, [&](Form& form) {
      shop.loft.Run(u"delete from tblComponents where ID = %1"_s.arg(shop.spare));
      Click(form, u"cmdEdit"_s);
      Click(form, u"cmdChangeModel"_s);
      ChooseMenu(form, {u"Owner"_s, u"Select/Change Owner"_s});
      Click(form, u"cmdRefresh"_s);
      QCOMPARE(TextOf(form, u"txtModel"_s), u"(none)"_s);
      QVERIFY(!IsEnabled(form, u"cmdEdit"_s));
    });
    QCOMPARE(shop.Touched(before), QStringList(u"-tblComponents|3"_s));
  }
};

LOFT_TEST_MAIN(TestComponent)
#include "tst_component.moc"
