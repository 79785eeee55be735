#include <QListWidget>
#include <QTest>

#include "core/shell/frmMain2.h"
#include "core/shell/frmMenu.h"
#include "core/shell/frmSplash.h"
#include "core/shell/window_habits.h"
#include "core/store/connection.h"
#include "core/widgets/list.h"
#include "core/widgets/screen_routines.h"
#include "gear/person_names.h"
#include "gear/person_record.h"
#include "gear/rigs.h"
#include "jobs/job_records.h"
#include "support/data_home.h"
#include "support/screens/controls.h"
#include "support/screens/screen_script.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

namespace {

/// Ann, who was shown last, has the rig "Red".
struct Home {
  ThrowAwayLoft loft;
  ScriptedPrompts prompts;
  ScreenScript screens;
  int ann = 0;
  int red = 0;
  frmMain2& page = SharedForm<frmMain2>();

  Home() {
    AddPersonByName(u"Ann Jones"_s, ann);
    SetRiggerFlag(ann, true);
    red = CreateRig(ann, 1, u"Red"_s);
    loft.Run(u"update tblMisc set LastCustomerID = %1"_s.arg(ann));
    page.Show();
  }

  void ClickEntry(const QString& caption) const {
    auto& menu = SharedForm<frmMenu>();
    menu.Show();
    auto& list = Control<QListWidget>(menu, u"lst"_s);
    const QListWidgetItem* item = list.findItems(caption, Qt::MatchExactly).value(0);
    QVERIFY2(item != nullptr, qPrintable(caption));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(item).center());
  }
};

Form& Shown(const QString& name) {
  auto* form = dynamic_cast<Form*>(Forms::Find(name));
  if (form == nullptr || !form->isVisible()) NoSuchControl(SharedForm<frmMain2>(), name);
  return *form;
}

}  // namespace

/// What the home page, its menu bar and the floating menu open.
class HomeCommandsTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void cleanup() {
    UnloadScreens();
    CountDbAccess = false;
  }

  void AMenuCommandOpensItsScreenBesideTheOthers_data() {
    QTest::addColumn<QStringList>("road");
    QTest::addColumn<QString>("form");
    QTest::addColumn<QString>("title");
    const auto row = [](const QStringList& road, const char* form, const char* title) {
      QTest::newRow(qPrintable(road.join(u" > "_s))) << road << QString::fromLatin1(form) << QString::fromLatin1(title);
    };
    row({u"Set up"_s, u"Rig Types"_s}, "frmRigTypes", "Rig Types");
    row({u"Set up"_s, u"Task Library"_s}, "frmSelectTask", "Task Library");
    row({u"Set up"_s, u"Event Library"_s}, "frmSelectTask", "Task Library");
    row({u"Forms"_s, u"Show menu"_s}, "frmMenu", "Menu");
    row({u"Jobs"_s, u"Review/Edit jobs"_s}, "frmJobList", "Job List");
    row({u"Customers"_s, u"Select / Edit"_s}, "frmPeople", "Customers");
    row({u"Task Library"_s, u"View All tasks"_s}, "frmSelectTask", "Task Library");
    row({u"Parts"_s, u"Add/Edit"_s}, "frmComponentModels", "Components");
    row({u"Gear"_s, u"Rig Database"_s}, "frmGetRig", "Rigs");
    row({u"Gear"_s, u"Component Models"_s}, "frmComponentModels", "Components");
    row({u"Gear"_s, u"Manufactures"_s}, "frmComponentModels", "Components");
    row({u"Gear"_s, u"History"_s, u"History by rig"_s}, "frmHistoryForm", "Rig History");
    row({u"History"_s, u"Show rig history"_s}, "frmHistoryForm", "Rig History");
    row({u"Reports"_s, u"Gear History"_s}, "frmHistoryForm", "Rig History");
  }
  void AMenuCommandOpensItsScreenBesideTheOthers() {
    QFETCH(QStringList, road);
    QFETCH(QString, form);
    QFETCH(QString, title);
    Home home;
    home.loft.Run(u"update tblMisc set LastSystemID = %1"_s.arg(home.red));
    ChooseMenu(home.page, road);
    QCOMPARE(Shown(form).windowTitle(), title);
    QVERIFY(!Shown(form).isModal());
    QVERIFY(home.page.isVisible());
    QVERIFY(!ConnectionIsOpen);
  }

  void AMenuCommandOpensItsDialog_data() {
    QTest::addColumn<QStringList>("road");
    QTest::addColumn<QString>("form");
    QTest::addColumn<QString>("title");
    const auto row = [](const QStringList& road, const char* form, const char* title) {
      QTest::newRow(qPrintable(road.join(u" > "_s))) << road << QString::fromLatin1(form) << QString::fromLatin1(title);
    };
    row({u"Set up"_s, u"Component Types"_s}, "frmComponentTypes", "Component Types");
    row({u"Set up"_s, u"Repack prices"_s}, "frmRepack", "Set Repack Prices");
    row({u"Set up"_s, u"Locations"_s}, "frmLocation", "Locations");
    row({u"Jobs"_s, u"Start new job"_s}, "frmPicker", "Select Customer");
    row({u"Jobs"_s, u"Show jobs which use a selected task type"_s}, "frmPicker", "Task Library");
    row({u"Task Library"_s, u"Reserve Repack Prices"_s}, "frmRepack", "Set Repack Prices");
    row({u"Task Library"_s, u"Create New Task"_s}, "frmTaskType", "Task Library");
    row({u"Gear"_s, u"History"_s, u"History by component (canopy, container, etc)"_s}, "frmPickComponent",
        "Select component");
    row({u"Gear"_s, u"History"_s, u"Serial number look up"_s}, "frmSerialNumber", "Serial Number Look Up");
    row({u"History"_s, u"Component history (canopy, container, etc)"_s}, "frmPickComponent", "Select component");
    row({u"Reports"_s, u"Component history (canopy, container, etc)"_s}, "frmPickComponent", "Select component");
    row({u"Reports"_s, u"Show jobs which use a selected task type"_s}, "frmPicker", "Task Library");
    row({u"Tools"_s, u"View support files"_s}, "frmMessage", "Support files");
    row({u"Database"_s, u"Export backup database files to another location"_s}, "frmFolders",
        "Export back up database files");
  }
  void AMenuCommandOpensItsDialog() {
    QFETCH(QStringList, road);
    QFETCH(QString, form);
    QFETCH(QString, title);
    Home home;
    const QStringList before = home.loft.Snapshot();
    QString shown;
    home.screens.WhenShown(form, [&shown](Form& dialog) {
      shown = dialog.windowTitle();
      PressKey(dialog, Qt::Key_Escape);
    });
    ChooseMenu(home.page, road);
    QCOMPARE(shown, title);
    QCOMPARE(home.loft.ChangesSince(before), QStringList());
  }

  void TasksAndEventsAreTwoViewsOfTheLibrary() {
    Home home;
    const auto heading = [] { return TextOf(Shown(u"frmSelectTask"_s), u"lblTasks"_s).remove(u'&'); };
    ChooseMenu(home.page, {u"Set up"_s, u"Event Library"_s});
    QCOMPARE(heading(), u"All Events"_s);
    ChooseMenu(home.page, {u"Set up"_s, u"Task Library"_s});
    QCOMPARE(heading(), u"All Tasks"_s);
    home.ClickEntry(u"Events"_s);
    QCOMPARE(heading(), u"All Events"_s);
    Click(home.page, u"cmdTaskLibrary"_s);
    QCOMPARE(heading(), u"All Tasks"_s);
  }

  void BothRepackCycleCommandsAskForTheCycle() {
    Home home;
    for (const QString& menu : {u"Set up"_s, u"Task Library"_s}) {
      home.prompts
          .ExpectInput(u"Enter repack cycle (in days)"_s, u"Reserve must be repacked every 180 days"_s, QString())
          .Proposing(u"180"_s);
      ChooseMenu(home.page, {menu, u"Set Repack Cycle"_s});
    }
  }

  void ANewCustomerIsEnteredFromTheMenu() {
    Home home;
    home.screens.WhenShown(u"frmPeopleEdit"_s, [](Form& editor) {
      QCOMPARE(editor.windowTitle(), u"Add new customer"_s);
      TypeInto(editor, u"txtLast"_s, u"smith"_s);
      Click(editor, u"cmdSave"_s);
    });
    ChooseMenu(home.page, {u"Customers"_s, u"Add new"_s});
    QTest::qWait(0);
    QCOMPARE(TextOf(Shown(u"frmPeople"_s), u"lblName"_s), u"Smith"_s);
  }

  void PartsAndModelsAreTwoViewsOfOneScreen() {
    Home home;
    ChooseMenu(home.page, {u"Parts"_s, u"Add/Edit"_s});
    Form& models = Shown(u"frmComponentModels"_s);
    QVERIFY(Control<QWidget>(models, u"lstTypes"_s).isHidden());
    ChooseMenu(home.page, {u"Gear"_s, u"Component Models"_s});
    QVERIFY(!Control<QWidget>(models, u"lstTypes"_s).isHidden());
  }

  void TheButtonsOpenTheirScreens_data() {
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("form");
    const auto row = [](const char* button, const char* form) {
      QTest::newRow(button) << QString::fromLatin1(button) << QString::fromLatin1(form);
    };
    row("cmdPeople", "frmPeople");
    row("cmdRigs", "frmGetRig");
    row("cmdModels", "frmComponentModels");
    row("cmdJobs", "frmJobList");
    row("cmdTaskLibrary", "frmSelectTask");
    row("cmdEvents", "frmSelectTask");
    row("cmdCalc", "frmCalc");
    row("cmdSchedules", "frmSchedule");
  }
  void TheButtonsOpenTheirScreens() {
    QFETCH(QString, button);
    QFETCH(QString, form);
    Home home;
    Click(home.page, button);
    QVERIFY(Forms::IsShown(form));
    QVERIFY(home.page.isVisible());
  }

  void TheRigsOpenOnTheLastCustomerWithOrWithoutTheirButtons() {
    Home home;
    Click(home.page, u"cmdRigs"_s);
    Form& rigs = Shown(u"frmGetRig"_s);
    QCOMPARE(Control<List>(rigs, u"lstGear"_s).ItemText(0), u"Red"_s);
    QVERIFY(Control<QWidget>(rigs, u"cmdExit"_s).isVisible());
    rigs.UnloadForm();
    home.ClickEntry(u"Rigs"_s);
    QVERIFY(!Control<QWidget>(Shown(u"frmGetRig"_s), u"cmdExit"_s).isVisible());
  }

  void TheScheduleIsReadAnewEachTime() {
    Home home;
    Click(home.page, u"cmdSchedules"_s);
    const Form* first = &Shown(u"frmSchedule"_s);
    home.ClickEntry(u"Schedule"_s);
    QVERIFY(&Shown(u"frmSchedule"_s) != first);
    QCOMPARE(Forms::Names().count(u"frmSchedule"_s), 1);
  }

  void TheFloatingMenuOpensTheSameScreens_data() {
    QTest::addColumn<QString>("entry");
    QTest::addColumn<QString>("form");
    const auto row = [](const char* entry, const char* form) {
      QTest::newRow(entry) << QString::fromLatin1(entry) << QString::fromLatin1(form);
    };
    row("Customers", "frmPeople");
    row("Models", "frmComponentModels");
    row("Job list", "frmJobList");
    row("History", "frmHistoryForm");
    row("Rigging Tasks", "frmSelectTask");
    row("Events", "frmSelectTask");
    row("Repack Calculator", "frmCalc");
  }
  void TheFloatingMenuOpensTheSameScreens() {
    QFETCH(QString, entry);
    QFETCH(QString, form);
    Home home;
    home.loft.Run(u"update tblMisc set LastSystemID = %1"_s.arg(home.red));
    home.ClickEntry(entry);
    QVERIFY(Forms::IsShown(form));
    QVERIFY(!ConnectionIsOpen);
  }

  void TheLastJobIsShownWhereThereIsOne() {
    Home home;
    home.ClickEntry(u"Job"_s);
    QVERIFY(!Forms::IsShown(u"frmJob"_s));
    int job = 0;
    CreateNewJob(u"Winter check"_s, home.ann, home.red, 0, job, home.ann, 0, Date::FromParts(2026, 3, 2));
    home.loft.Run(u"update tblMisc set LastJobID = %1"_s.arg(job));
    home.ClickEntry(u"Job"_s);
    QVERIFY(Shown(u"frmJob"_s).isVisible());
  }

  void TheFloatingMenuLeavesAndHides() {
    Home home;
    home.ClickEntry(u"Customers"_s);
    home.ClickEntry(u"Hide forms"_s);
    QCOMPARE(Forms::Names(), (QStringList{u"frmMain2"_s, u"frmMenu"_s}));
    home.prompts.Expect(u"Leaving?"_s, u"Exit Loftkeep?"_s, Answer::No).WithPreset(Answer::No);
    home.ClickEntry(u"Exit Loftkeep!"_s);
    QVERIFY(home.page.isVisible());
  }

  void AllFormsAreLoadedAndArranged() {
    Home home;
    int job = 0;
    CreateNewJob(u"Winter check"_s, home.ann, home.red, 0, job, home.ann, 0, Date::FromParts(2026, 3, 2));
    home.loft.Run(u"update tblMisc set LastJobID = %1"_s.arg(job));
    ChooseMenu(home.page, {u"Forms"_s, u"Load all forms"_s});
    for (const QString& form : {u"frmJobList"_s, u"frmJob"_s, u"frmSchedule"_s})
      QVERIFY2(Forms::IsShown(form), qPrintable(form));
    const auto& menu = SharedForm<frmMenu>();
    QCOMPARE(menu.pos(), QPoint(0, 0));
    const int across = menu.frameGeometry().width();
    const int step = FromTwips(300);
    QCOMPARE(home.page.pos(), QPoint(across, 0));
    QCOMPARE(Shown(u"frmJobList"_s).pos(), QPoint(across + step, step));
    QVERIFY(!ConnectionIsOpen);
    ChooseMenu(home.page, {u"Forms"_s, u"Close all open forms"_s});
    QCOMPARE(Forms::Names(), (QStringList{u"frmMain2"_s, u"frmMenu"_s}));
  }

  void TheDataAreExportedFromTheMenu() {
    const DataHome data;
    data.Folder().MakeFolder(u"home/loftkeep/support"_s);
    Home home;
    home.prompts.AnswerRestWith([](const ShownPrompt&) { return Answer::Yes; });
    home.screens.WhenShown(u"frmFolders"_s, [](Form& folders) {
      QCOMPARE(folders.windowTitle(), u"Select or create an empty folder for file exporting"_s);
      PressKey(folders, Qt::Key_Escape);
    });
    ChooseMenu(home.page, {u"Tools"_s, u"Export data to another computer"_s});
    QCOMPARE(home.prompts.Transcript().first().title, u"Move Loftkeep"_s);
    QCOMPARE(home.prompts.Transcript().last().title, u"Select a destingation folder"_s);
  }

  void AboutStandsOverTheHomePage() {
    Home home;
    home.page.move(10, 20);
    ChooseMenu(home.page, {u"Help"_s, u"About"_s});
    const QPoint off = SharedForm<frmSplash>().frameGeometry().center() - home.page.frameGeometry().center();
    QVERIFY2(off.manhattanLength() < 4, qPrintable(u"%1, %2"_s.arg(off.x()).arg(off.y())));
  }

  void TheMenuCountsTheOpeningsForTheDeveloper() {
    Home home;
    auto& menu = SharedForm<frmMenu>();
    menu.Show();
    QCOMPARE(menu.windowTitle(), u"Menu"_s);
    ConnectionCount = 41;
    CountDbAccess = true;
    ConnectionStart();
    ConnectionClose();
    CountDbAccess = false;
    ConnectionCount = 0;
    QCOMPARE(menu.windowTitle(), u"42"_s);
  }

  void TheFloatingMenuClosesAConnectionThatWasLeftOpen() {
    Home home;
    auto& menu = SharedForm<frmMenu>();
    menu.Show();
    menu.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&menu));
    ConnectionStart();
    QEvent activation(QEvent::ActivationChange);
    QCoreApplication::sendEvent(&menu, &activation);
    QVERIFY(!ConnectionIsOpen);
  }

  void TheBusinessAddressIsEnteredFromTheMenu() {
    const DataHome data;
    Home home;
    data.Folder().MakeFolder(u"home/loftkeep/support"_s);
    home.screens.WhenShown(u"frmComments"_s, [](Form& comments) {
      QCOMPARE(comments.windowTitle(), u"Business Address"_s);
      QCOMPARE(TextOf(comments, u"lblComments"_s), u"Enter business address"_s);
      TypeInto(comments, u"txtComments"_s, u"Ann's Loft"_s);
      Click(comments, u"cmdSave"_s);
    });
    home.prompts.ExpectBox(u"Business Address"_s, u"Saved"_s);
    ChooseMenu(home.page, {u"Set up"_s, u"Business title and address"_s});
    QVERIFY(data.Folder().Read(u"home/loftkeep/support/address.txt"_s).startsWith("Ann's Loft"));
  }

  void TheHomePageKeepsAConnectionOnceWhenAsked() {
    Home home;
    QEvent activation(QEvent::ActivationChange);
    home.page.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&home.page));
    ConnectionStart();
    home.page.KeepConnectionOnce();
    QCoreApplication::sendEvent(&home.page, &activation);
    QVERIFY(ConnectionIsOpen);
    QCoreApplication::sendEvent(&home.page, &activation);
    QVERIFY(!ConnectionIsOpen);
  }
};

LOFT_TEST_MAIN(HomeCommandsTest)
#include "tst_home_commands.moc"
