#pragma once
#include "gear/screens.h"
#include "jobs/gear_shop.h"
#include "jobs/install_component.h"
#include "jobs/screens/open_job.h"

/// The job with an empty place for an AAD on the job screen, and what a person does with its gear.
struct OpenGear : OnScreen<GearShop> {
  enum Item { kInstall = 7, kRemove = 8 };
  static constexpr int kAadRow = 3;

  Grid& Gear() const { return Control<Grid>(Screen(), QStringLiteral("Grid")); }
  /// Type, its name, description, serial number and date of manufacture.
  QString GearRow(int row) const {
    QStringList cells;
    for (int column = 0; column < 5; ++column) cells << Gear().Text(row, column);
    return cells.join(QChar(u'|'));
  }
  int CountComponents() const {
    return loft.Rows(QStringLiteral("select count(*) from tblComponents")).value(0).toInt();
  }

  /// Runs an item of the list "Add to job", with a row of the gear selected.
  void RunItem(Item item, int row = -1) const {
    if (row >= 0) Gear().SelectRow(row);
    Control<List>(Screen(), QStringLiteral("lstTasks")).SetListIndex(item);
    Click(Screen(), QStringLiteral("cmdTask"));
  }
  void Press(const QString& form, const QString& button) {
    screens.WhenShown(form, [button](Form& shown) { Click(shown, button); });
  }
  void PickComponentOf(int component) {
    screens.WhenShown(QStringLiteral("frmPickComponent"), [component](Form& form) {
      Control<Grid>(form, QStringLiteral("Grid")).SelectData(component);
      Click(form, QStringLiteral("cmdSelect"));
    });
  }
  /// Takes a row of the picker by its start.
  void PickModel(const QString& start) {
    screens.WhenShown(QStringLiteral("frmPicker"), [start](Form& form) {
      TypeInto(form, QStringLiteral("txt"), start);
      Click(form, QStringLiteral("cmdSelect"));
    });
  }
  void TypeSerial(const QString& serial) {
    screens.WhenShown(QStringLiteral("frmNewOrOld"), [serial](Form& form) {
      TypeInto(form, QStringLiteral("txtSerial"), serial);
      Click(form, QStringLiteral("cmdEnter"));
    });
  }
};
