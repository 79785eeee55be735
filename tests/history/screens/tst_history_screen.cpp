#include <QCheckBox>

#include "gear/components.h"
#include "gear/rigs.h"
#include "history/screens/open_history.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

class TestHistoryScreen : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void cleanup() { UnloadScreens(); }

  void ARigsHistory() {
    OpenHistory shop;
    shop.loft.Run(
        u"update tblComponents set SerialNumber = 'J-10021', DOM = %1 where ID = %2"_s.arg(Day(4, 20, 2014).Days())
            .arg(shop.container));
    shop.loft.Run(u"update tblTasks set comments = 'New closing loop' where ID = %1"_s.arg(shop.repack));
    Form& form = shop.OpenRig();
    QCOMPARE(form.windowTitle(), u"Rig History"_s);
    QVERIFY(!form.isModal());
    QCOMPARE(form.height(), 695);
    QCOMPARE(shop.Label("lblCustomer"), u"Olaf Owner"_s);
    QCOMPARE(shop.Label("lblRig"), u"Blue"_s);
    QCOMPARE(shop.Column(kComponent), QStringList({u"Javelin s/n J-10021"_s, u"Sabre"_s, u"Raven"_s, u"Cypres"_s}));
    QCOMPARE(shop.Column(kRig), QStringList(4, u"Blue"_s));
    QCOMPARE(shop.Column(kTask),
             QStringList({u"Repack *"_s, u"Patch (incomplete)"_s, u"Repack *"_s, u"AAD check *"_s}));
    QCOMPARE(shop.Column(kDate), QStringList({u"03/01/26"_s, u"03/02/26"_s, u"03/01/26"_s, u"11/05/25"_s}));
    QCOMPARE(shop.Label("lblOutside"), u"*  Event is not associated with a job"_s);
    QVERIFY(!shop.Shows("lblComments"));
    QCOMPARE(shop.Label("lblName"), QString());
    shop.Select(0);
    QVERIFY(shop.Shows("lblComments"));
    QCOMPARE(shop.Label("lblComments"), u"(selected item has comments)"_s);
    QCOMPARE(shop.Label("lblName"), u"Javelin"_s);
    QCOMPARE(shop.Label("lblSN"), u"J-10021"_s);
    QCOMPARE(shop.Label("lblDoM"), u"04/20/2014"_s);
    Picture(form, u"frmHistoryForm-rig"_s);
    shop.Select(1);
    QVERIFY(!shop.Shows("lblComments"));
    QCOMPARE(shop.Label("lblSN"), u"(not entered)"_s);
    for (int column : {0, 5, 6, 7, 8}) QVERIFY(shop.Lines().isColumnHidden(column));
  }

  void TheModeDecidesWhatIsOffered() {
    OpenHistory shop;
    const auto commands = [&] {
      QStringList shown;
      for (const char* name : {"chkHideOtherRigs", "chkCurrentCompsOnly", "chkHideDuplicates", "cmdExplainOtherRigs",
                               "cmdExplainCurrentComps", "cmdExplainDuplicates", "cmdCheckAll", "cmdCheckNone"})
        if (shop.Shows(name)) shown << QString::fromLatin1(name);
      for (const QAction* menu : shop.Screen().MenuBar()->actions())
        if (menu->text().remove(u'&') == "Rig"_L1) shown << menu->menu()->actions().constFirst()->text();
      return shown;
    };
    shop.OpenRig();
    QCOMPARE(commands(), QStringList({u"chkHideOtherRigs"_s, u"chkCurrentCompsOnly"_s, u"chkHideDuplicates"_s,
                                      u"cmdExplainOtherRigs"_s, u"cmdExplainCurrentComps"_s, u"cmdExplainDuplicates"_s,
                                      u"cmdCheckAll"_s, u"cmdCheckNone"_s, u"Show rig"_s}));
    QCOMPARE(shop.Ticks(), QList<bool>({true, true, true, true}));

    Form& byType = shop.OpenRig(kAad);
    QCOMPARE(byType.windowTitle(), u"Component History"_s);
    QCOMPARE(commands(), QStringList({u"cmdCheckAll"_s, u"cmdCheckNone"_s, u"Show highlighted rig"_s}));
    QCOMPARE(shop.Ticks(), QList<bool>({false, false, false, true}));
    QCOMPARE(shop.Column(kComponent), QStringList{u"Cypres"_s});
    Picture(byType, u"frmHistoryForm-type"_s);

    Form& component = shop.OpenComponent(shop.reserve);
    QCOMPARE(component.windowTitle(), u"Component History"_s);
    QCOMPARE(commands(), QStringList{u"Show highlighted rig"_s});
    QCOMPARE(shop.Types().Count(), 1);
    QCOMPARE(shop.Types().ItemText(0), u"Reserve Canopy"_s);
    QCOMPARE(shop.Ticks(), QList<bool>{true});
    QCOMPARE(shop.Column(kTask), QStringList{u"Repack *"_s});
    shop.Select(0);
    Picture(component, u"frmHistoryForm-component"_s);
  }

  void ATypeThatIsAloneIsTickedInAnyCase() {
    OpenHistory shop;
    shop.loft.Run(u"delete * from tblRigTypeComponents where ComponentTypeID <> %1"_s.arg(kContainer));
    shop.OpenRig(kAad);
    QCOMPARE(shop.Ticks(), QList<bool>{true});
    QCOMPARE(shop.Column(kComponent), QStringList{u"Javelin"_s});
  }

  void TicksAndBoxesFilter() {
    OpenHistory shop;
    shop.AddWork({.onRig = 0, .done = Day(1, 1, 2025), .name = "Bench test"}, {shop.aad});
    shop.OpenRig();
    QCOMPARE(shop.Lines().RowCount(), 5);
    shop.Tick(0);
    QCOMPARE(shop.Column(kComponent), QStringList({u"Sabre"_s, u"Raven"_s, u"Cypres"_s, u"Cypres"_s}));
    shop.Press("cmdCheckNone");
    QCOMPARE(shop.Lines().RowCount(), 0);
    shop.Press("cmdCheckAll");
    QCOMPARE(shop.Lines().RowCount(), 5);
    shop.Press("chkHideDuplicates");
    QCOMPARE(shop.Column(kComponent), QStringList({u"Javelin"_s, u"Sabre"_s, u"Cypres"_s, u"Cypres"_s}));
    shop.Press("chkHideOtherRigs");
    QCOMPARE(shop.Column(kComponent), QStringList({u"Javelin"_s, u"Sabre"_s, u"Cypres"_s}));
    SetComponentRig(shop.mainCanopy, 0);
    shop.Press("chkCurrentCompsOnly");
    QCOMPARE(shop.Column(kComponent), QStringList({u"Javelin"_s, u"Cypres"_s}));
    shop.OpenRig();  // all back as it was
    QCOMPARE(shop.Lines().RowCount(), 5);
  }

  void RefreshReadsAnewAndKeepsTheLine() {
    OpenHistory shop;
    shop.OpenRig();
    shop.Select(3);
    shop.AddWork({.onRig = shop.rig, .done = Day(1, 1, 2025), .name = "Lines"}, {shop.mainCanopy});
    shop.Press("cmdRefresh");
    QCOMPARE(shop.Lines().RowCount(), 5);
    QCOMPARE(shop.Lines().Text(shop.Lines().CurrentRow(), kTask), u"AAD check *"_s);
    QCOMPARE(shop.Label("lblName"), u"Cypres"_s);
    shop.Press("cmdCheckNone");
    QCOMPARE(shop.Lines().CurrentRow(), -1);
    QCOMPARE(shop.Label("lblName"), QString());
  }

  void TheExplainButtons() {
    OpenHistory shop;
    shop.OpenRig();
    shop.prompts.ExpectBox(u"Hide events for other rigs"_s,
                           u"A rig's history includes all components that have been installed\nin that rig.\n\n"
                           "Each component's history includes all events for that\n"
                           "component even when it may have been installed in another rig.\n\n"
                           "To hide events when components were installed in other rigs,\ncheck this box"_s);
    shop.Press("cmdExplainOtherRigs");
    shop.prompts.ExpectBox(u"Show current components only"_s,
                           u"This form shows all components that have ever been\npart of this rig.\n\n"
                           "Check this box to show this rig's current components only"_s);
    shop.Press("cmdExplainCurrentComps");
    shop.prompts.ExpectBox(u"Hiding duplicate events"_s,
                           u"A task or event might be displayed more than once if it affects\nmultiple components.\n\n"
                           "For example, a reserve repack affects both the reserve canopy\n"
                           "and the container.  That task will be shown twice, once for the\n"
                           "container and once for the reserve.\n\n"
                           "By checking this check box, duplicate tasks and events \nwill be shown only once."_s);
    shop.Press("cmdExplainDuplicates");
    shop.prompts.ExpectBox(u"Help"_s,
                           u"A rig's history includes all components that have been installed\nin that rig.\n\n"
                           "Each component's history includes all events for that\n"
                           "component even when it may have been installed in another rig.\n\n"
                           "You can hide entries from other rigs by checking\n"
                           "the box 'HIDE ENTRIES FOR OTHER RIGS'"_s);
    shop.Choose({u"Help"_s, u"Why are there others rigs and multiple components displayed here?"_s});
    shop.prompts.ExpectBox(kProgramTitle, u"help 2"_s);
    shop.Choose({u"Help"_s, u"Help 2"_s});
    QCOMPARE(Control<QCheckBox>(shop.Screen(), u"chkCurrentCompsOnly"_s).text().remove(u'&'),
             u"Currrent components only"_s);
  }

  void LinesStandAsFoundUntilAHeadingIsClicked() {
    OpenHistory shop;
    shop.OpenRig();
    QCOMPARE(shop.Lines().SortColumn(), -1);
    const QStringList byDate{u"11/05/25"_s, u"03/01/26"_s, u"03/01/26"_s, u"03/02/26"_s};
    ClickHeading(shop.Lines(), kDate);  // by the calendar, across years
    QCOMPARE(shop.Column(kDate), byDate);
    ClickHeading(shop.Lines(), kDate);
    QCOMPARE(shop.Column(kDate), QStringList(byDate.crbegin(), byDate.crend()));
    ClickHeading(shop.Lines(), kComponent);
    QCOMPARE(shop.Column(kComponent), QStringList({u"Cypres"_s, u"Javelin"_s, u"Raven"_s, u"Sabre"_s}));
    ClickHeading(shop.Lines(), kComponent);
    QCOMPARE(shop.Column(kComponent), QStringList({u"Sabre"_s, u"Raven"_s, u"Javelin"_s, u"Cypres"_s}));
    shop.Press("cmdRefresh");  // goes back to the last order by date
    QCOMPARE(shop.Column(kDate), QStringList(byDate.crbegin(), byDate.crend()));
    QCOMPARE(shop.Lines().SortColumn(), static_cast<int>(kDate));
    shop.OpenRig();
    QCOMPARE(shop.Column(kDate), QStringList({u"03/01/26"_s, u"03/02/26"_s, u"03/01/26"_s, u"11/05/25"_s}));
  }

  void ATextOrderIsGoneAfterARefresh() {
    OpenHistory shop;
    shop.OpenRig();
    const QStringList found = shop.Column(kComponent);
    ClickHeading(shop.Lines(), kTask);
    QVERIFY(shop.Column(kComponent) != found);
    shop.Press("cmdRefresh");
    QCOMPARE(shop.Column(kComponent), found);
  }

  void TheCustomersNameTellsTheOwnerOfTheComponent() {
    OpenHistory shop;
    SetComponentOwner(shop.aad, shop.rigger);
    shop.OpenRig();
    auto& name = Control<QWidget>(shop.Screen(), u"lblCustomer"_s);
    QTest::mouseClick(&name, Qt::LeftButton);
    QCOMPARE(shop.Label("lblCustomer"), u"Olaf Owner"_s);
    shop.Select(3);
    QTest::mouseClick(&name, Qt::LeftButton);
    QCOMPARE(shop.Label("lblCustomer"), u"Rita Rigger"_s);
    QCOMPARE(shop.Label("lblRig"), u"Blue"_s);
    QCOMPARE(shop.Label("lblRigOwner"), u"(rig is owned by Olaf Owner)"_s);
    shop.Select(0);
    QCOMPARE(shop.Label("lblCustomer"), u"Olaf Owner"_s);
    QCOMPARE(shop.Label("lblRigOwner"), QString());
    shop.OpenComponent(shop.aad);
    QCOMPARE(shop.Label("lblCustomer"), u"Rita Rigger"_s);
    PressKey(shop.Screen(), u"lblCustomer"_s, Qt::Key_Space);
    QCOMPARE(shop.Label("lblRigOwner"), u"(rig is owned by Olaf Owner)"_s);
  }

  void EscLeaves() {
    OpenHistory shop;
    PressKey(shop.OpenRig(), Qt::Key_Escape);
    QVERIFY(!Forms::Find(u"frmHistoryForm"_s));
    shop.OpenRig();
    shop.Press("cmdExit");
    QVERIFY(!Forms::Find(u"frmHistoryForm"_s));
  }

  void WhatHasNoScreenYetIsDisabled() {
    OpenHistory shop;
    shop.OpenRig();
    QVERIFY(!Control<QWidget>(shop.Screen(), u"cmdPrint"_s).isEnabled());
    for (const QAction* menu : shop.Screen().MenuBar()->actions())
      if (menu->text().remove(u'&') == "Print"_L1) QVERIFY(!menu->isEnabled());
  }

  void WhatIsChangedBesideIsShownOnTheLineThatWasSelected() {
    OpenHistory shop;
    shop.OpenRig();
    shop.Select(2);
    const QString selected = shop.Lines().Text(2, kTask);
    shop.loft.Run(u"update tblRig set OwnerID = %1 where ID = %2"_s.arg(shop.rigger).arg(shop.rig));
    QCOMPARE(shop.Label("lblCustomer"), u"Rita Rigger"_s);
    shop.AddWork({.onRig = shop.rig, .done = Day(1, 1, 2024), .name = "Washed"}, {shop.container});
    QCOMPARE(shop.Lines().Text(shop.Lines().CurrentRow(), kTask), selected);
    QVERIFY(shop.Column(kTask).join(u'|').contains(u"Washed"_s));
  }

  void ARenamedTypeIsShownInTheHistoryOfOneComponent() {
    OpenHistory shop;
    OpenComponentHistory(shop.container);
    shop.loft.Run(u"update tblComponentTypes set Name = 'Harness' where ID = %1"_s.arg(int{kContainer}));
    QCOMPARE(Control<List>(shop.Screen(), u"LstComp"_s).ItemText(0), u"Harness"_s);
  }

  void ToARigThatHasGoneNothingIsAdded() {
    OpenHistory shop;
    shop.OpenRig();
    DeleteRigRow(shop.rig);
    const QStringList before = shop.loft.Snapshot();
    shop.screens.WhenShown(u"frmSelectTask"_s, [](Form& form) {
      TypeInto(form, u"txt"_s, u"AAD check"_s);
      Click(form, u"cmdSelect"_s);
    });
    shop.Choose({u"Add"_s, u"Add task"_s});
    QCOMPARE(shop.loft.ChangesSince(before), QStringList());
    QCOMPARE(shop.Column(kTask).size(), 4);  // the lines stay to be read
  }
};

LOFT_TEST_MAIN(TestHistoryScreen)
#include "tst_history_screen.moc"
