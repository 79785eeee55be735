#pragma once
#include <QLabel>
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
#include "support/fixed_clock.h"
#include "support/screens/controls.h"
#include "support/screens/screen_script.h"
#include "support/scripted_prompts.h"
#include "support/throwaway_loft.h"

/// A loft on 2 March 2026 with two customers: Ann owns the Sport Rig "Red", which has a container and a main canopy,
/// and the chest rig "Blue" without any; Bob owns the empty Sport Rig "Green". A spare main canopy is Ann's, in no rig.
struct RigShop {
  FixedClock clock{2026, 3, 2};
  ThrowAwayLoft loft;
  ScriptedPrompts prompts;
  ScreenScript screens;
  int ann = Named("Ann Jones");
  int bob = Named("Bob Smith");
  int red = CreateRig(ann, 1, "Red");
  int blue = CreateRig(ann, 3, "Blue");
  int green = CreateRig(bob, 1, "Green");
  int javelin = AddModel("Javelin Odyssey", kContainer);
  int storm = AddModel("Storm", kMainCanopy);
  int container = NewComponent(javelin, kContainer, red, "J-10021");
  int canopy = NewComponent(storm, kMainCanopy, red, "S1");
  int spare = NewComponent(storm, kMainCanopy, 0, "S2");

  RigShop() { SetComponentOwner(spare, ann); }

  static int Named(const QString& name) {
    int id = 0;
    AddPersonByName(name, id);
    return id;
  }
  /// A reserve canopy in a rig or (0) in none.
  static int AddReserve(int rig) { return NewComponent(AddModel("Raven", kReserveCanopy), kReserveCanopy, rig, "R5"); }
  /// A completed line of work on components.
  int AddDone(int taskLibID, Date done, const QList<int>& components, int onRig) const {
    const int task = loft.Add("tblTasks", {{"TaskLibID", taskLibID},
                                           {"JobID", 0},
                                           {"SystemID", onRig},
                                           {"Status", -1},
                                           {"PartID", 0},
                                           {"DateTaskCompleted", done}});
    for (int component : components)
      loft.Add("tblTaskComponents", {{"TaskID", task}, {"CompID", component}, {"Complete", true}});
    return task;
  }
  /// The rows that changed, what was shown last left out.
  QStringList Touched(const QStringList& before) const {
    QStringList touched = loft.TouchedSince(before);
    for (const char* row : {"+tblMisc|0", "-tblMisc|0"}) touched.removeAll(QString::fromLatin1(row));
    return touched;
  }

  /// What a person does in the picker: types the start of a row and takes it.
  void Pick(const QString& typed) {
    screens.WhenShown("frmPicker", [typed](Form& form) {
      TypeInto(form, "txt", typed);
      Click(form, "cmdSelect");
    });
  }
  void PressInForm(const QString& name, const QString& button) {
    screens.WhenShown(name, [button](Form& form) { Click(form, button); });
  }
  void Leave(const QString& name) {
    screens.WhenShown(name, [](Form& form) { PressKey(form, Qt::Key_Escape); });
  }
  /// The rig screen on a customer's first rig, as long as a routine acts on it.
  void OnRigs(int customer, const std::function<void(Form&)>& act) {
    screens.WhenShown("frmGetRig", [act](Form& form) {
      act(form);
      Click(form, "cmdExit");
    });
    ShowRigs({.customer = customer});
  }
};

inline bool IsShown(Form& form, const QString& control) { return Control<QWidget>(form, control).isVisible(); }
inline bool IsEnabled(Form& form, const QString& control) { return Control<QWidget>(form, control).isEnabled(); }
inline List& Rigs(Form& form) { return Control<List>(form, "lstGear"); }
inline List& Customers(Form& form) { return Control<List>(form, "lstCustomers"); }
inline Grid& Components(Form& form) { return Control<Grid>(form, "Grid"); }
inline Grid& Schedule(Form& form) { return Control<Grid>(form, "Grid2"); }
inline QString Selected(const List& list) { return list.ItemText(list.ListIndex()); }

inline QStringList HeadingsOf(const Grid& grid) {
  QStringList headings;
  for (int column = 0; column < grid.ColumnCount(); ++column)
    if (!grid.isColumnHidden(column)) headings << grid.model()->headerData(column, Qt::Horizontal).toString();
  return headings;
}

inline QStringList RowsOf(const Grid& grid) {
  QStringList rows;
  for (int row = 0; row < grid.RowCount(); ++row) {
    QStringList cells;
    for (int column = 0; column < grid.ColumnCount(); ++column) cells << grid.Text(row, column);
    rows << cells.join(u'|');
  }
  return rows;
}

inline void ClickRow(List& list, int row) {
  const QModelIndex index = list.model()->index(row, 0);
  list.scrollTo(index);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(index).center());
}
