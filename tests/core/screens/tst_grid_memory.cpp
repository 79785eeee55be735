#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QSettings>
#include <QTest>
#include <QTimer>

#include "core/default_rows.h"
#include "core/screens/rig_rows.h"
#include "gear/components.h"
#include "gear/models.h"
#include "gear/rigs.h"
#include "gear/screens.h"
#include "history/screens.h"
#include "jobs/job_records.h"
#include "jobs/screens.h"
#include "schedule/screens.h"
#include "support/fixed_clock.h"
#include "support/screens/controls.h"
#include "support/screens/screen_script.h"
#include "support/scripted_prompts.h"
#include "support/temp_folder.h"
#include "support/test_program.h"
#include "support/throwaway_loft.h"

using namespace Qt::StringLiterals;

/// What leaves a grid for other programs, and what it keeps for the next run.
class TestGridMemory : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }
  void init() { QSettings().clear(); }

  void CopyTakesTheCellOrTheShownColumnsOfTheRow() {
    Grid grid;
    grid.SetColumns(RigColumns());
    FillRigs(grid);
    grid.SelectCell(1, 2);
    PressKey(grid, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), u"9.50"_s);
    grid.SetSelectsRows(true);
    grid.SelectRow(2);
    PressKey(grid, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(), u"alpine\t20.00\t06/01/2024"_s);
  }

  void CsvIsQuotedAndWrittenForOtherPrograms() {
    const TempFolder folder;
    ScriptedPrompts prompts;
    Grid grid;
    grid.setAccessibleName(u"Rigs"_s);
    grid.SetColumns({{.heading = u"ID"_s, .width = 0}, {.heading = u"Name"_s}, {.heading = u"Note"_s}});
    grid.AddRow({u"1"_s, u"O'Neil, \"Ace\""_s, u"line\nline"_s});
    grid.AddRow({u"2"_s, u"Zoë"_s, QString()});
    prompts.ExpectSaveFile(u"Save as CSV"_s, folder / u"rigs.csv"_s).Proposing(u"Rigs.csv"_s);
    grid.SaveAsCsv();
    QCOMPARE(folder.Read(u"rigs.csv"_s),
             QByteArray("\xEF\xBB\xBFName,Note\r\n\"O'Neil, \"\"Ace\"\"\",\"line\nline\"\r\nZo\xC3\xAB,\r\n"));

    prompts.ExpectSaveFile(u"Save as CSV"_s, QString());
    grid.SaveAsCsv();
    QCOMPARE(folder.Names(), QStringList{u"rigs.csv"_s});
  }

  void ACsvThatCanNotBeWrittenShowsABox() {
    const TempFolder folder;
    ScriptedPrompts prompts;
    Grid grid;
    grid.SetColumns(RigColumns());
    prompts.ExpectSaveFile(u"Save as CSV"_s, folder / u"missing/rigs.csv"_s);
    prompts.AnswerRestWith([](const ShownPrompt&) { return Answer::Ok; });
    grid.SaveAsCsv();
    QCOMPARE(prompts.Transcript().size(), 2);
    QCOMPARE(prompts.Transcript().last().title, u"Sub SaveAsCsv"_s);
    QCOMPARE(prompts.Transcript().last().text, u"No such file or directory"_s);
  }

  void WidthsOrderAndSortAreRemembered() {
    {
      Grid grid;
      grid.SetColumns(RigColumns());
      grid.SetMemory(u"rigs"_s);
      FillRigs(grid);
      grid.resize(500, 200);
      grid.show();
      grid.setColumnWidth(1, 177);
      grid.horizontalHeader()->moveSection(grid.horizontalHeader()->visualIndex(3),
                                           grid.horizontalHeader()->visualIndex(1));
      ClickHeading(grid, 2);
      ClickHeading(grid, 2);
    }
    Grid grid;
    grid.SetColumns(RigColumns());
    grid.SetMemory(u"rigs"_s);
    FillRigs(grid);
    QCOMPARE(grid.columnWidth(1), 177);
    QVERIFY(grid.horizontalHeader()->visualIndex(3) < grid.horizontalHeader()->visualIndex(1));
    QCOMPARE(Column(grid, 2), QStringList({u"100.00"_s, u"20.00"_s, u"9.50"_s}));
    QVERIFY(grid.isColumnHidden(0));
  }

  void WhatIsRememberedGoesByTheNamesOfTheColumns() {
    {
      Grid grid;
      grid.SetColumns({{.heading = u"Owner"_s}, {.heading = u"Rig"_s}, {.heading = u"Gone"_s}});
      grid.SetMemory(u"other columns"_s);
      grid.show();
      grid.setColumnWidth(0, 150);
      grid.setColumnWidth(1, 177);
      grid.setColumnWidth(2, 199);
      ClickHeading(grid, 1);
    }
    Grid grid;
    grid.SetColumns({{.heading = u"Rig"_s, .width = 90}, {.heading = u"New"_s, .width = 80}, {.heading = u"Owner"_s}});
    grid.SetMemory(u"other columns"_s);
    QCOMPARE(grid.columnWidth(0), 177);
    QCOMPARE(grid.columnWidth(1), 80);
    QCOMPARE(grid.columnWidth(2), 150);
    QCOMPARE(grid.SortColumn(), 0);
  }

  void TheContextMenuCopiesAndSaves() {
    const TempFolder folder;
    ScriptedPrompts prompts;
    Grid grid;
    grid.setAccessibleName(u"Rigs"_s);
    grid.SetColumns(RigColumns());
    FillRigs(grid);
    grid.show();
    grid.SelectCell(1, 1);
    const auto choose = [&grid](const QString& caption) {
      bool found = false;
      QTimer::singleShot(0, &grid, [&found, caption] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (menu == nullptr) return;
        for (QAction* action : menu->actions())
          if (action->text() == caption) {
            found = true;
            action->trigger();
          }
        menu->close();
      });
      QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), grid.mapToGlobal(QPoint(5, 5)));
      QCoreApplication::sendEvent(&grid, &event);
      return found;
    };
    QVERIFY(choose(u"&Copy"_s));
    QCOMPARE(QGuiApplication::clipboard()->text(), u"Alpha"_s);
    prompts.ExpectSaveFile(u"Save as CSV"_s, folder / u"rigs.csv"_s).Proposing(u"Rigs.csv"_s);
    QVERIFY(choose(u"&Save as CSV..."_s));
    QVERIFY(folder.Read(u"rigs.csv"_s).contains("Alpha,9.50,12/31/1999\r\n"));
  }

  void EveryGridOfTheProgramComesBackAsItWasLeft_data() {
    QTest::addColumn<QString>("form");
    for (const char* form : {"frmGetRig", "frmJobList", "frmJob", "frmHistoryForm", "frmSchedule", "frmRepack",
                             "frmPickComponent", "frmComponent", "frmDeleteSystem", "frmCurrentComponents"})
      QTest::newRow(form) << QString::fromLatin1(form);
  }
  void EveryGridOfTheProgramComesBackAsItWasLeft() {
    QFETCH(QString, form);
    const FixedClock clock(2026, 3, 2);
    const ThrowAwayLoft loft;
    ScriptedPrompts prompts;
    ScreenScript screens;
    const int ann = loft.Add(u"tblPeople"_s, {{u"LastName"_s, "Jones"}, {u"Rigger"_s, true}});
    const int rig = CreateRig(ann, 1, u"Red"_s);
    const int container = NewComponent(AddModel(u"Javelin"_s, kContainer), kContainer, rig, u"J1"_s);
    int job = 0;
    CreateNewJob(u"Check"_s, ann, rig, 0, job, ann, 0, Date::FromParts(2026, 3, 2));
    const QHash<QString, std::function<void()>> open = {
        {u"frmGetRig"_s, [&] { ShowRigs({.customer = ann}); }},
        {u"frmJobList"_s, [] { OpenJobList(); }},
        {u"frmJob"_s, [&] { GotoJob(job); }},
        {u"frmHistoryForm"_s, [&] { OpenRigHistory(rig); }},
        {u"frmSchedule"_s, [] { OpenSchedule(); }},
        {u"frmRepack"_s, ShowRepackPrices},
        {u"frmPickComponent"_s, [] { PickComponent(0); }},
        {u"frmComponent"_s, [&] { ShowComponent(container); }},
        {u"frmDeleteSystem"_s, [&] { ConfirmRigDeletion(rig); }},
        {u"frmCurrentComponents"_s, [&] { ShowCurrentComponents(rig); }}};
    constexpr int kWidth = 133;
    const auto withEach = [&](const std::function<void(Grid&, int column)>& act) {
      int grids = 0;
      const auto visit = [&](Form& screen) {
        for (Grid* grid : screen.findChildren<Grid*>()) {
          int column = grid->ColumnCount() - 1;
          while (grid->isColumnHidden(column)) --column;
          act(*grid, column);
          ++grids;
        }
      };
      const bool modal =
          !QStringList{u"frmJobList"_s, u"frmJob"_s, u"frmHistoryForm"_s, u"frmSchedule"_s}.contains(form);
      if (modal)
        screens.WhenShown(form, [&](Form& screen) {
          visit(screen);
          PressKey(screen, Qt::Key_Escape);
        });
      open[form]();
      if (!modal) visit(dynamic_cast<Form&>(*Forms::Find(form)));
      UnloadScreens();
      QVERIFY(grids > 0);
    };
    withEach([](Grid& grid, int column) {
      QVERIFY(grid.columnWidth(column) != kWidth);
      grid.setColumnWidth(column, kWidth);
    });
    withEach(
        [](Grid& grid, int column) { QVERIFY2(grid.columnWidth(column) == kWidth, qPrintable(grid.objectName())); });
  }
};

LOFT_TEST_MAIN(TestGridMemory)
#include "tst_grid_memory.moc"
