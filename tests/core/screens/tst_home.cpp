#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>

#include "core/data_folder.h"
#include "core/shell/frmMain2.h"
#include "core/shell/frmMenu.h"
#include "core/shell/frmSplash.h"
#include "core/shell/start_up.h"
#include "core/shell/support_listing.h"
#include "core/shell/window_habits.h"
#include "core/store/connection.h"
#include "core/widgets/screen_routines.h"
#include "support/fixed_clock.h"
#include "support/screens/controls.h"
#include "support/screens/keyboard.h"
#include "support/screens/screen_script.h"
#include "support/scripted_prompts.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

namespace {

class frmFirst : public Form {
  Q_OBJECT
};
class frmSecond : public Form {
  Q_OBJECT
};

QStringList Lines(const QMenu& menu, const QString& indent) {
  QStringList lines;
  for (const QAction* action : menu.actions()) {
    if (action->isSeparator())
      lines << indent + u"-"_s;
    else
      lines << indent + action->text();
    if (action->menu() != nullptr) lines << Lines(*action->menu(), indent + u"  "_s);
  }
  return lines;
}

}  // namespace

class HomeTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void init() {
    IsolateSettings();
    loft_ = std::make_unique<ThrowAwayLoft>();
  }
  void cleanup() {
    UnloadScreens();
    loft_.reset();
  }

  void TheMenuBarStandsInItsOrder() {
    ScriptedPrompts prompts;
    auto& home = SharedForm<frmMain2>();
    QStringList lines;
    for (const QAction* action : home.MenuBar()->actions()) {
      lines << action->text();
      if (action->menu() != nullptr) lines << Lines(*action->menu(), u"  "_s);
    }
    const QStringList wanted = {u"Set up"_s,
                                u"  Rig Types"_s,
                                u"  Component Types"_s,
                                u"  Repack prices"_s,
                                u"  Set Repack Cycle"_s,
                                u"  Locations"_s,
                                u"  Task Library"_s,
                                u"  Event Library"_s,
                                u"  Set default photo size"_s,
                                u"  Business title and address"_s,
                                u"  Change Loftkeep program owner"_s,
                                u"Forms"_s,
                                u"  Cascade"_s,
                                u"  Close all open forms"_s,
                                u"  Load all forms"_s,
                                u"  Show menu"_s,
                                u"Jobs"_s,
                                u"  Start new job"_s,
                                u"  Review/Edit jobs"_s,
                                u"  Show jobs which use a selected task type"_s,
                                u"Customers"_s,
                                u"  Select / Edit"_s,
                                u"  Add new"_s,
                                u"Task Library"_s,
                                u"  Reserve Repack Prices"_s,
                                u"  Create New Task"_s,
                                u"  View All tasks"_s,
                                u"  Set Repack Cycle"_s,
                                u"Parts"_s,
                                u"  Add/Edit"_s,
                                u"Gear"_s,
                                u"  Rig Database"_s,
                                u"  Gear List"_s,
                                u"  Component Models"_s,
                                u"  Components Entered"_s,
                                u"  Manufactures"_s,
                                u"  Photos"_s,
                                u"  History"_s,
                                u"    History by rig"_s,
                                u"    History by component (canopy, container, etc)"_s,
                                u"    Serial number look up"_s,
                                u"History"_s,
                                u"  Rigger Logbook"_s,
                                u"  Show rig history"_s,
                                u"  Component history (canopy, container, etc)"_s,
                                u"Reports"_s,
                                u"  Rigger Log Book"_s,
                                u"  Gear List Reports"_s,
                                u"  Gear History"_s,
                                u"  Component history (canopy, container, etc)"_s,
                                u"  Task Report"_s,
                                u"  Event Report"_s,
                                u"  Show jobs which use a selected task type"_s,
                                u"  Service bulletins"_s,
                                u"Tools"_s,
                                u"  Check database fields"_s,
                                u"  Audit repack entries"_s,
                                u"  Audit components"_s,
                                u"  Photos"_s,
                                u"    Show all gear photos"_s,
                                u"    Show all customer photos"_s,
                                u"    Show deleted photos"_s,
                                u"    Audit photos"_s,
                                u"  Export data to another computer"_s,
                                u"  Import data from another computer"_s,
                                u"  View support files"_s,
                                u"  Select Loftkeep program owner"_s,
                                u"  -"_s,
                                u"  Reconstruct schedules"_s,
                                u"  Audit schedule entries"_s,
                                u"  -"_s,
                                u"  Undo"_s,
                                u"  Redo"_s,
                                u"  Recent changes"_s,
                                u"Email"_s,
                                u"  Email single statement "_s,
                                u"  Email statements to all customers"_s,
                                u"  Email misc message"_s,
                                u"  Email setup"_s,
                                u"Database"_s,
                                u"  Back up"_s,
                                u"  Install backup database"_s,
                                u"    from any file location"_s,
                                u"    from backup folder only"_s,
                                u"  Get stored database file from Loftkeep server"_s,
                                u"  Export backup database files to another location"_s,
                                u"  Create a new database"_s,
                                u"  Display current database file name"_s,
                                u"Help"_s,
                                u"  Help"_s,
                                u"  About"_s,
                                u"Exit"_s};
    QCOMPARE(lines, wanted);
  }

  void EveryMenuOpensByItsOwnLetter() {
    ScriptedPrompts prompts;
    auto& home = SharedForm<frmMain2>();
    home.Show();
    QStringList without;
    for (const QAction* action : home.MenuBar()->actions())
      if (!action->text().contains(u'&')) without << action->text();
    QCOMPARE(without, QStringList{u"Exit"_s});  // which is the letter of the button
    QCOMPARE(ClashesOf(home), QString());
  }

  void ThePageTellsTheDay() {
    ScriptedPrompts prompts;
    FixedClock clock(2026, 11, 21);
    auto& home = SharedForm<frmMain2>();
    QCOMPARE(home.windowTitle(), u"Loftkeep - Home Page"_s);
    QCOMPARE(TextOf(home, u"lblDate"_s), u"Saturday, Nov 21 2026"_s);
    QStringList buttons;
    for (const QPushButton* button : home.findChildren<QPushButton*>()) buttons << button->text().remove(u'&');
    QCOMPARE(buttons, (QStringList{u"People"_s, u"Rigs"_s, u"Components"_s, u"Models"_s, u"Jobs"_s,
                                   u"Rigger Task Library"_s, u"Rigger Logbook"_s, u"Email reminders"_s, u"Event List"_s,
                                   u"Repack Calculator"_s, u"History"_s, u"Schedules"_s, u"Exit"_s}));
  }

  void TheFloatingMenuHasItsEntriesAndItsPlace() {
    ScriptedPrompts prompts;
    auto& menu = SharedForm<frmMenu>();
    const auto& list = Control<QListWidget>(menu, u"lst"_s);
    QStringList entries;
    for (int i = 0; i < list.count(); ++i) entries << list.item(i)->text();
    QCOMPARE(entries, (QStringList{u"Home"_s, u"Customers"_s, QString(), u"Components"_s, u"Models"_s, u"Rigs"_s,
                                   u"Job list"_s, u"Job"_s, u"History"_s, u"Schedule"_s, QString(), u"Rigging Tasks"_s,
                                   u"Events"_s, u"Logbook"_s, u"Repack Calculator"_s, u"Arrange forms"_s, QString(),
                                   u"Hide forms"_s, u"Exit Loftkeep!"_s}));
    QVERIFY(!(list.item(2)->flags() & Qt::ItemIsEnabled));
    QCOMPARE(menu.windowTitle(), u"Menu"_s);
    menu.Show();
    QCOMPARE(menu.pos(), QPoint(0, 0));
  }

  void TheFloatingMenuBringsTheHomePage() {
    ScriptedPrompts prompts;
    auto& menu = SharedForm<frmMenu>();
    menu.Show();
    auto& list = Control<QListWidget>(menu, u"lst"_s);
    const auto click = [&list](int row) {
      QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(row)).center());
    };
    click(2);
    QVERIFY(!Forms::Find(u"frmMain2"_s));
    click(0);
    QVERIFY(Forms::IsShown(u"frmMain2"_s));
  }

  void FormsAreCascadedBehindTheMenu() {
    ScriptedPrompts prompts;
    SharedForm<frmFirst>().Show();
    SharedForm<frmSecond>().Show();
    ArrangeForms();
    auto& menu = SharedForm<frmMenu>();
    QCOMPARE(menu.pos(), QPoint(0, 0));
    const int across = menu.frameGeometry().width();
    const int step = FromTwips(300);
    QCOMPARE(SharedForm<frmFirst>().pos(), QPoint(across, 0));
    QCOMPARE(SharedForm<frmSecond>().pos(), QPoint(across + step, step));
  }

  void HidingKeepsTheHomePageAndClosingTheMenuToo() {
    ScriptedPrompts prompts;
    SharedForm<frmMain2>().Show();
    SharedForm<frmFirst>().Show();
    HideForms();
    QCOMPARE(Forms::Names(), (QStringList{u"frmMain2"_s, u"frmMenu"_s}));
    SharedForm<frmSecond>().Show();
    CloseAllForms();
    QCOMPARE(Forms::Names(), (QStringList{u"frmMain2"_s, u"frmMenu"_s}));
    UnloadAllForms();
    QCOMPARE(Forms::Names(), QStringList());
  }

  void LeavingAsksFirst() {
    ScriptedPrompts prompts;
    auto& home = SharedForm<frmMain2>();
    home.Show();
    SharedForm<frmFirst>().Show();
    prompts.Expect(u"Leaving?"_s, u"Exit Loftkeep?"_s, Answer::No).WithButtons(Buttons::YesNo).WithPreset(Answer::No);
    Click(home, u"cmdExit"_s);
    QCOMPARE(Forms::Names(), (QStringList{u"frmMain2"_s, u"frmFirst"_s}));
    QVERIFY(home.isVisible());
    prompts.Expect(u"Leaving?"_s, u"Exit Loftkeep?"_s, Answer::No);
    home.close();
    QVERIFY(home.isVisible());
    DiagnosticMode = true;
    prompts.Expect(u"Leaving?"_s, u"Exit Loftkeep?"_s, Answer::Yes);
    prompts.ExpectBox(u"Loaded Forms"_s, u"frmFirst"_s);
    ChooseMenu(home, {u"Exit"_s});
    DiagnosticMode = false;
    QCOMPARE(Forms::Names(), QStringList());
  }

  void AboutShowsTheSplashScreen() {
    ScriptedPrompts prompts;
    auto& home = SharedForm<frmMain2>();
    home.Show();
    ChooseMenu(home, {u"Help"_s, u"About"_s});
    QVERIFY(Forms::IsShown(u"frmSplash"_s));
    PressKey(SharedForm<frmSplash>(), Qt::Key_Space);
    QVERIFY(!Forms::IsShown(u"frmSplash"_s));
  }

  void TheDatabaseIsCheckedOnCommand() {
    ScriptedPrompts prompts;
    auto& home = SharedForm<frmMain2>();
    const QString question =
        u"This utility will check your database file\nfor all tables and fields.\n\n"
        "This may take a few seconds.\n\nWould you like to do this now?"_s;
    prompts.Expect(u"Check Database Fields"_s, question, Answer::No);
    ChooseMenu(home, {u"Tools"_s, u"Check database fields"_s});
    prompts.Expect(u"Check Database Fields"_s, question, Answer::Yes);
    prompts.ExpectBox(u"Done"_s, u"Finished checking database tables and fields."_s);
    ChooseMenu(home, {u"Tools"_s, u"Check database fields"_s});
    prompts.ExpectBox(u"Your database file is:"_s, loft_->DatabaseFile());
    ChooseMenu(home, {u"Database"_s, u"Display current database file name"_s});
  }

  void ACommandWithoutItsScreenIsDisabled() {
    ScriptedPrompts prompts;
    auto& home = SharedForm<frmMain2>();
    for (const QAction* action : home.MenuBar()->actions())
      if (action->text() == u"Email"_s)
        for (const QAction* line : action->menu()->actions()) QVERIFY(!line->isEnabled());
    QVERIFY(!Control<QPushButton>(home, u"cmdLogbook"_s).isEnabled());
  }

  void TheSupportListingNamesTheFiles() {
    const QString dataBefore = DataPath;
    DataPath = loft_->Folder().Path() + u'/';
    loft_->Folder().Write(u"support/address.txt"_s, QByteArray(2048, 'x'));
    const QString listing = SupportListing();
    DataPath = dataBefore;
    QVERIFY(listing.contains(u"Database: "_s + loft_->DatabaseFile()));
    QVERIFY2(listing.contains(u"     address.txt   "_s) && listing.contains(u"2 kB  (0.0 MB)"_s), qPrintable(listing));
  }

  void AConnectionThatWasLeftOpenIsClosedButNotOneInUse() {
    ScriptedPrompts prompts;
    ConnectionStart();
    CloseLeftOpenConnection();
    QVERIFY(!ConnectionIsOpen);
    Bracket bracket;
    CloseLeftOpenConnection();
    QVERIFY(ConnectionIsOpen);
  }

 private:
  std::unique_ptr<ThrowAwayLoft> loft_;
};

LOFT_TEST_MAIN(HomeTest)
#include "tst_home.moc"
