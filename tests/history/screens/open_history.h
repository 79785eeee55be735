#pragma once
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include "core/widgets/grid.h"
#include "core/widgets/list.h"
#include "history/sample_history.h"
#include "history/screens.h"
#include "support/screens/controls.h"
#include "support/screens/screen_script.h"

/// The columns of the history.
enum HistoryColumn { kComponent = 1, kRig = 2, kTask = 3, kDate = 4 };

/// The sample rig's work as the history screen shows it.
struct OpenHistory : SampleHistory {
  ScreenScript screens;
  int repack = 0;
  int check = 0;
  int patch = 0;

  OpenHistory() {
    repack = AddRepackWork(Day(3, 1, 2026));
    check = AddWork(
        {.entry = aadCheck, .onRig = rig, .started = Day(11, 5, 2025), .done = Day(11, 5, 2025), .name = "AAD check"},
        {aad});
    patch = AddWork({.job = job, .onRig = rig, .started = Day(3, 2, 2026), .name = "Patch"}, {mainCanopy});
  }

  Form& Screen() const { return dynamic_cast<Form&>(*Forms::Find(QStringLiteral("frmHistoryForm"))); }
  Form& OpenRig(int type = 0) const {
    OpenRigHistory(rig, type);
    return Screen();
  }
  Form& OpenComponent(int component) const {
    OpenComponentHistory(component);
    return Screen();
  }
  Grid& Lines() const { return Control<Grid>(Screen(), QStringLiteral("Grid")); }
  List& Types() const { return Control<List>(Screen(), QStringLiteral("LstComp")); }
  QStringList Column(int column) const {
    QStringList texts;
    for (int row = 0; row < Lines().RowCount(); ++row) texts << Lines().Text(row, column);
    return texts;
  }
  QString Label(const char* name) const { return TextOf(Screen(), QString::fromLatin1(name)); }
  bool Shows(const char* name) const { return Control<QWidget>(Screen(), QString::fromLatin1(name)).isVisible(); }
  void Press(const char* button) const { Click(Screen(), QString::fromLatin1(button)); }
  void Choose(const QStringList& road) const { ChooseMenu(Screen(), road); }
  void Select(int row) const { ClickCell(Lines(), row, kTask); }
  /// Ticks or clears a row of the check list by its box.
  void Tick(int row) const {
    const QRect place = Types().visualRect(Types().model()->index(row, 0));
    QTest::mouseClick(Types().viewport(), Qt::LeftButton, {}, QPoint(place.left() + 12, place.center().y()));
  }
  QList<bool> Ticks() const {
    QList<bool> ticks;
    for (int row = 0; row < Types().Count(); ++row) ticks << Types().IsTicked(row);
    return ticks;
  }
};
