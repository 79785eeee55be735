#include <QHeaderView>
#include <QLineEdit>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>

#include "core/screens/rig_rows.h"
#include "core/widgets/theme.h"
#include "support/screens/controls.h"
#include "support/screens/screen_script.h"
#include "support/test_program.h"

using namespace Qt::StringLiterals;

namespace {

QColor PaintedColour(Grid& grid, int row, int column) {
  const QRect place = grid.visualRect(grid.model()->index(row, column));
  const QImage picture = grid.viewport()->grab().toImage();
  const qreal ratio = picture.devicePixelRatio();
  return picture.pixelColor((QPointF(place.topLeft() + QPoint(3, 3)) * ratio).toPoint());
}

}  // namespace

class TestGrid : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { IsolateSettings(); }

  void FilledRowsAnswerByRowAndColumn() {
    Grid grid;
    grid.SetColumns(RigColumns());
    FillRigs(grid);
    QCOMPARE(grid.RowCount(), 3);
    QCOMPARE(grid.Text(1, 1), u"Alpha"_s);
    QCOMPARE(grid.RowData(1), 12);
    QCOMPARE(grid.FindRow(13), 2);
    QCOMPARE(grid.FindRow(99), -1);
    QVERIFY(grid.isColumnHidden(0));
    QCOMPARE(grid.columnWidth(1), 100);
    grid.SetText(1, 1, u"Gamma"_s);
    QCOMPARE(grid.Text(1, 1), u"Gamma"_s);
    QCOMPARE(grid.Text(7, 1), QString());
    QCOMPARE(grid.RowData(7), 0);
  }

  void RowsAreAddedAndRemoved() {
    Grid grid;
    grid.SetColumns(RigColumns());
    FillRigs(grid);
    grid.SetFixedBottomRows(1);
    QCOMPARE(grid.AddRow({u"4"_s, u"delta"_s}, 14), 2);
    QCOMPARE(grid.Text(3, 1), u"alpine"_s);
    QCOMPARE(grid.Text(2, 3), QString());
    grid.RemoveRow(0);
    QCOMPARE(Column(grid, 1), QStringList({u"Alpha"_s, u"delta"_s, u"alpine"_s}));
    grid.Clear();
    QCOMPARE(grid.RowCount(), 0);
    QCOMPARE(grid.CurrentRow(), -1);
  }

  void HeadingClicksSortAndTurnTheOrder() {
    Grid grid;
    grid.SetColumns(RigColumns());
    FillRigs(grid);
    grid.resize(500, 200);
    grid.show();
    ClickHeading(grid, 1);
    QCOMPARE(Column(grid, 1), QStringList({u"Alpha"_s, u"alpine"_s, u"beta"_s}));
    ClickHeading(grid, 1);
    QCOMPARE(Column(grid, 1), QStringList({u"beta"_s, u"alpine"_s, u"Alpha"_s}));
    ClickHeading(grid, 1);
    QCOMPARE(Column(grid, 1), QStringList({u"Alpha"_s, u"alpine"_s, u"beta"_s}));
    ClickHeading(grid, 2);
    QCOMPARE(Column(grid, 2), QStringList({u"9.50"_s, u"20.00"_s, u"100.00"_s}));
    ClickHeading(grid, 3);
    QCOMPARE(Column(grid, 3), QStringList({u"12/31/1999"_s, u"06/01/2024"_s, u"01/02/2025"_s}));
    QVERIFY(grid.horizontalHeader()->isSortIndicatorShown());
    QCOMPARE(grid.horizontalHeader()->sortIndicatorSection(), 3);
    QCOMPARE(grid.RowData(0), 12);
  }

  void SortingCanBeSwitchedOff() {
    Grid grid;
    grid.SetColumns(RigColumns());
    FillRigs(grid);
    grid.SetSortable(false);
    grid.resize(500, 200);
    grid.show();
    QSignalSpy clicked(&grid, &Grid::HeadingClick);
    ClickHeading(grid, 1);
    QCOMPARE(clicked.size(), 1);
    QCOMPARE(Column(grid, 0), QStringList({u"1"_s, u"2"_s, u"3"_s}));
  }

  void TotalsStayLastAndTheSelectionFollowsItsRow() {
    Grid grid;
    grid.SetColumns(RigColumns());
    FillRigs(grid);
    grid.AddRow({QString(), u"Total"_s, u"129.50"_s});
    grid.SetFixedBottomRows(1);
    grid.SelectRow(0);
    grid.SetCellColour(0, 1, Qt::red);
    grid.SortBy(2, Qt::AscendingOrder);
    QCOMPARE(Column(grid, 1), QStringList({u"Alpha"_s, u"alpine"_s, u"beta"_s, u"Total"_s}));
    grid.SortBy(2, Qt::DescendingOrder);
    QCOMPARE(Column(grid, 1), QStringList({u"beta"_s, u"alpine"_s, u"Alpha"_s, u"Total"_s}));
    QCOMPARE(grid.CurrentRow(), 0);
    QCOMPARE(grid.CellColour(0, 1), QColor(Qt::red));
    grid.SortBy(1);
    QCOMPARE(grid.CurrentRow(), 2);
    QCOMPARE(grid.RowData(grid.CurrentRow()), 11);
  }

  void EqualRowsKeepTheirOrderBothWays() {
    Grid grid;
    grid.SetColumns({{.heading = u"Name"_s}, {.heading = u"No"_s}});
    std::vector<GridRow> rows;
    for (const char16_t* number : {u"1", u"2", u"3"}) rows.push_back({{u"same"_s, QString::fromUtf16(number)}});
    grid.Fill(std::move(rows));
    grid.SortBy(0, Qt::AscendingOrder);
    QCOMPARE(Column(grid, 1), QStringList({u"1"_s, u"2"_s, u"3"_s}));
    grid.SortBy(0, Qt::DescendingOrder);
    QCOMPARE(Column(grid, 1), QStringList({u"1"_s, u"2"_s, u"3"_s}));
  }

  void AHiddenKeyOrdersAColumn() {
    Grid grid;
    grid.SetColumns({{.heading = u"Due"_s, .sortKey = 1}, {.heading = u"key"_s, .width = 0}});
    std::vector<GridRow> rows;
    rows.push_back({{u"tomorrow"_s, u"20261122"_s}});
    rows.push_back({{u"overdue"_s, u"20261101"_s}});
    rows.push_back({{u"unknown"_s, u"0"_s}});
    grid.Fill(std::move(rows));
    grid.SortBy(0);
    QCOMPARE(Column(grid, 0), QStringList({u"unknown"_s, u"overdue"_s, u"tomorrow"_s}));
  }

  void AChosenOrderHoldsWhenTheRowsAreReadAgain() {
    Grid grid;
    grid.SetColumns(RigColumns());
    FillRigs(grid);
    grid.SortBy(1);
    FillRigs(grid);
    QCOMPARE(Column(grid, 1), QStringList({u"Alpha"_s, u"alpine"_s, u"beta"_s}));
    grid.ForgetSort();
    FillRigs(grid);
    QCOMPARE(Column(grid, 1), QStringList({u"beta"_s, u"Alpha"_s, u"alpine"_s}));
  }

  void OnlyWhatShowsIsAskedFor() {
    Grid grid;
    grid.SetColumns({{.heading = u"A"_s}, {.heading = u"B"_s}});
    int asked = 0;
    grid.FillLazily(
        100000,
        [&](int row, int column) {
          ++asked;
          return QString::number(row * 2 + column);
        },
        [](int row) { return row + 1; });
    grid.resize(300, 200);
    grid.show();
    grid.viewport()->grab();
    QVERIFY2(asked > 0 && asked < 200, qPrintable(QString::number(asked)));
    QCOMPARE(grid.Text(50000, 1), u"100001"_s);
    QCOMPARE(grid.RowData(50000), 50001);
    const int before = asked;
    QCOMPARE(grid.Text(50000, 1), u"100001"_s);
    QCOMPARE(asked, before);
  }

  void MouseSignalsTellRowAndColumn() {
    Grid grid;
    grid.SetColumns(RigColumns());
    FillRigs(grid);
    grid.resize(500, 200);
    grid.show();
    QSignalSpy click(&grid, &Grid::CellClick);
    QSignalSpy ctrl(&grid, &Grid::CellCtrlClick);
    QSignalSpy twice(&grid, &Grid::CellDoubleClick);
    QSignalSpy right(&grid, &Grid::CellRightClick);
    QSignalSpy change(&grid, &Grid::CellChange);
    ClickCell(grid, 1, 2);
    QCOMPARE(click, (QList<QVariantList>{{1, 2}}));
    QCOMPARE(change, (QList<QVariantList>{{1, 2}}));
    ClickCell(grid, 1, 2, Qt::ControlModifier);
    QCOMPARE(ctrl, (QList<QVariantList>{{1, 2}}));
    QCOMPARE(click.size(), 1);
    QCOMPARE(grid.CurrentRow(), 1);
    ClickCell(grid, 2, 3, {}, Qt::RightButton);
    QCOMPARE(right, (QList<QVariantList>{{2, 3}}));
    DoubleClickCell(grid, 0, 1);
    QCOMPARE(twice, (QList<QVariantList>{{0, 1}}));
  }

  void AClickOnTheFirstCellIsAChangeToo() {
    Grid grid;
    grid.SetColumns(RigColumns());
    FillRigs(grid);
    grid.show();
    QSignalSpy change(&grid, &Grid::CellChange);
    grid.setFocus();
    QCOMPARE(grid.CurrentRow(), -1);
    ClickCell(grid, 0, 1);
    QCOMPARE(change, (QList<QVariantList>{{0, 1}}));
  }

  void KeysTellTheSelectedCell() {
    Grid grid;
    grid.SetColumns(RigColumns());
    FillRigs(grid);
    QSignalSpy enter(&grid, &Grid::CellEnter);
    QSignalSpy f2(&grid, &Grid::CellF2);
    QSignalSpy space(&grid, &Grid::CellSpace);
    QSignalSpy del(&grid, &Grid::CellDelete);
    PressKey(grid, Qt::Key_Return);
    QCOMPARE(enter.size(), 0);
    PressKey(grid, Qt::Key_Down);
    QCOMPARE(grid.CurrentRow(), 0);
    grid.SelectCell(1, 1);
    PressKey(grid, Qt::Key_Return);
    PressKey(grid, Qt::Key_Enter);
    PressKey(grid, Qt::Key_F2);
    PressKey(grid, Qt::Key_Right);
    PressKey(grid, Qt::Key_Space);
    PressKey(grid, Qt::Key_Delete);
    QCOMPARE(enter, (QList<QVariantList>{{1, 1}, {1, 1}}));
    QCOMPARE(f2, (QList<QVariantList>{{1, 1}}));
    QCOMPARE(space, (QList<QVariantList>{{1, 2}}));
    QCOMPARE(del, (QList<QVariantList>{{1, 2}}));
  }

  void EnterSavesTheEditorAndEscAbandonsIt() {
    Grid grid;
    grid.SetColumns(RigColumns());
    FillRigs(grid);
    grid.show();
    connect(&grid, &Grid::CellSaved, this,
            [&](int row, int column, const QString& text, bool&) { grid.SetText(row, column, text); });
    QVERIFY(grid.EditInCell(0, 1));
    QVERIFY(grid.IsEditing());
    QCOMPARE(grid.Editor()->selectedText(), u"beta"_s);
    QTest::keyClicks(grid.Editor(), u"Delta"_s);
    PressKey(*grid.Editor(), Qt::Key_Return);
    QCOMPARE(grid.Text(0, 1), u"Delta"_s);
    QVERIFY(!grid.IsEditing());
    QVERIFY(!grid.Editor()->isVisible());

    QVERIFY(grid.EditInCell(0, 1, u"proposal"_s));
    QCOMPARE(grid.Editor()->text(), u"proposal"_s);
    PressKey(*grid.Editor(), Qt::Key_Escape);
    QCOMPARE(grid.Text(0, 1), u"Delta"_s);
    QVERIFY(!grid.IsEditing());
  }

  void ARefusedTextKeepsTheEditorOpen() {
    Grid grid;
    grid.SetColumns(RigColumns());
    FillRigs(grid);
    grid.resize(500, 200);
    grid.show();
    int saves = 0;
    connect(&grid, &Grid::CellSaved, this, [&](int, int, const QString& text, bool& keepOpen) {
      ++saves;
      keepOpen = text == u"bad"_s;
    });
    grid.EditInCell(0, 2);
    QTest::keyClicks(grid.Editor(), u"bad"_s);
    PressKey(*grid.Editor(), Qt::Key_Return);
    QVERIFY(grid.IsEditing());
    QCOMPARE(grid.Editor()->selectedText(), u"bad"_s);
    ClickCell(grid, 2, 1);
    QVERIFY(grid.IsEditing());
    QCOMPARE(grid.CurrentRow(), 0);
    QVERIFY(!grid.EditInCell(1, 1));
    QTest::keyClicks(grid.Editor(), u"5"_s);
    const int before = saves;
    ClickCell(grid, 2, 1);
    QCOMPARE(saves, before + 1);
    QVERIFY(!grid.IsEditing());
    QCOMPARE(grid.CurrentRow(), 2);
  }

  void TypingAndKeysReachTheScreenWhileEditing() {
    Grid grid;
    grid.SetColumns(RigColumns());
    FillRigs(grid);
    grid.show();
    QSignalSpy typed(&grid, &Grid::CellTyped);
    connect(&grid, &Grid::EditorKey, this, [&](int key, bool& handled) {
      if (key != Qt::Key_Down) return;
      handled = true;
      grid.EditInCell(1, 2);
    });
    grid.EditInCell(0, 2);
    QTest::keyClicks(grid.Editor(), u"7"_s);
    QCOMPARE(typed, (QList<QVariantList>{{0, 2, u"7"_s}}));
    PressKey(*grid.Editor(), Qt::Key_Down);
    QVERIFY(grid.IsEditing());
    QCOMPARE(grid.CurrentRow(), 1);
    QCOMPARE(grid.Editor()->text(), u"9.50"_s);
  }

  void FillingClosesTheEditorWithoutSaving() {
    Grid grid;
    grid.SetColumns(RigColumns());
    FillRigs(grid);
    grid.show();
    QSignalSpy saved(&grid, &Grid::CellSaved);
    grid.EditInCell(0, 1);
    FillRigs(grid);
    QVERIFY(!grid.IsEditing());
    QCOMPARE(saved.size(), 0);
  }

  void RefillingKeepsTheCellAndTheOpenEditorByTheirIds() {
    Grid grid;
    grid.SetColumns({{.heading = u"Rig"_s}, {.heading = u"Price"_s}});
    const auto row = [](const QString& name, int id) { return GridRow{{name, u"1"_s}, id}; };
    const auto refill = [&grid](auto... rows) {
      std::vector<GridRow> content;
      (content.push_back(std::move(rows)), ...);
      grid.Refill(std::move(content));
    };
    refill(row(u"Blue"_s, 5), row(u"Red"_s, 7), row(u"White"_s, 9));
    grid.show();
    QVERIFY(QTest::qWaitForWindowActive(&grid));
    QCOMPARE(grid.CurrentRow(), -1);
    QSignalSpy saved(&grid, &Grid::CellSaved);
    QSignalSpy changed(&grid, &Grid::CellChange);
    QVERIFY(grid.EditInCell(1, 0));
    QVERIFY(!grid.EditorIsChanged());
    QTest::keyClicks(grid.Editor(), u"Half"_s);
    QVERIFY(grid.EditorIsChanged());
    changed.clear();
    refill(row(u"New"_s, 3), row(u"Blue"_s, 5), row(u"Green"_s, 7));
    QVERIFY(grid.IsEditing() && grid.Editor()->isVisible() && grid.Editor()->hasFocus());
    QCOMPARE(grid.Editor()->text(), u"Half"_s);
    QCOMPARE(grid.CurrentRow(), 2);
    QCOMPARE(grid.CurrentColumn(), 0);
    QCOMPARE(grid.Editor()->geometry().topLeft(), grid.visualRect(grid.model()->index(2, 0)).topLeft());
    QCOMPARE(saved.size() + changed.size(), 0);
    PressKey(*grid.Editor(), Qt::Key_Return);
    QCOMPARE(saved.size(), 1);
    QCOMPARE(saved.first().first(3), (QVariantList{2, 0, u"Half"_s}));
    QVERIFY(!grid.IsEditing());

    grid.SelectCell(1, 1);
    grid.EditInCell(1, 1);
    refill(row(u"New"_s, 3), row(u"Green"_s, 7));
    QVERIFY(!grid.IsEditing() && !grid.Editor()->isVisible());
    QVERIFY(grid.hasFocus());
    QCOMPARE(grid.CurrentRow(), 1);
    QCOMPARE(grid.CurrentColumn(), 1);
    refill(row(u"New"_s, 3));
    QCOMPARE(grid.CurrentRow(), 0);
    refill();
    QCOMPARE(grid.CurrentRow(), -1);
  }

  void ARefillBySavingLeavesNoEditorBehind() {
    Grid grid;
    grid.SetColumns({{.heading = u"Rig"_s}});
    const auto refill = [&grid](const QString& name) {
      std::vector<GridRow> rows;
      rows.push_back({{name}, 5});
      grid.Refill(std::move(rows));
    };
    refill(u"Blue"_s);
    grid.show();
    bool refuses = true;
    connect(&grid, &Grid::CellSaved, this, [&](int, int, const QString& text, bool& keepOpen) {
      refill(text);
      keepOpen = refuses;
    });
    grid.EditInCell(0, 0);
    QTest::keyClicks(grid.Editor(), u"Red"_s);
    QVERIFY(!grid.SaveEditor());
    QVERIFY(grid.IsEditing());
    refuses = false;
    QVERIFY(grid.SaveEditor());
    QVERIFY(!grid.IsEditing());
    QCOMPARE(grid.Text(0, 0), u"Red"_s);
  }

  void TheSelectedCellIsYellowAndDueCellsKeepTheirColour_data() {
    QTest::addColumn<bool>("dark");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
  }
  void TheSelectedCellIsYellowAndDueCellsKeepTheirColour() {
    QFETCH(bool, dark);
    InstallTheme(*qApp, dark);
    Grid grid;
    grid.SetColumns(RigColumns());
    FillRigs(grid);
    grid.SetMarksCell(true);
    grid.SetCellColour(1, 1, QColor(255, 0, 0));
    grid.resize(500, 200);
    grid.show();
    QCOMPARE(ThemeIsDark(), dark);
    grid.SelectCell(0, 1);
    QCOMPARE(PaintedColour(grid, 0, 1), QColor(255, 255, 0));
    QCOMPARE(PaintedColour(grid, 1, 1), QColor(255, 0, 0));
    grid.SelectCell(1, 1);
    QCOMPARE(PaintedColour(grid, 1, 1), QColor(255, 0, 0));
    QCOMPARE(PaintedColour(grid, 0, 1), qApp->palette().color(QPalette::Base));
    Picture(grid, dark ? u"grid_dark"_s : u"grid"_s);
    QCOMPARE(ReadableOn(QColor(255, 255, 0)), QColor(Qt::black));
    QCOMPARE(ReadableOn(QColor(255, 0, 0)), QColor(Qt::white));
  }

  void HeadingsAreNamedForScreenReaders() {
    Grid grid;
    grid.SetColumns({{.heading = QString(), .name = u"Selected"_s}, {.heading = u"Rig"_s}});
    QCOMPARE(grid.model()->headerData(0, Qt::Horizontal, Qt::AccessibleTextRole).toString(), u"Selected"_s);
    QCOMPARE(grid.model()->headerData(1, Qt::Horizontal, Qt::AccessibleTextRole).toString(), u"Rig"_s);
    grid.SetHeading(1, u"System"_s);
    QCOMPARE(grid.model()->headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), u"System"_s);
  }

  void TheGridFitsItsRowsUpToALimit() {
    Grid grid;
    grid.SetColumns(RigColumns());
    FillRigs(grid);
    grid.FitHeight(11);
    const int three = grid.height();
    grid.FitHeight(2);
    QCOMPARE(three - grid.height(), grid.rowHeight(0));
  }
};

LOFT_TEST_MAIN(TestGrid)
#include "tst_grid.moc"
