#pragma once
#include <QString>

#include "core/date.h"
#include "core/money.h"

/// One row of tblComponents as the editor holds it.
struct ComponentEntry {
  int id = 0;  ///< 0 for a new component
  int model = 0;
  int type = 0;
  int owner = 0;
  int rig = 0;
  QString subType = {};  ///< on a canopy its size
  QString serial = {};
  QString color = {};
  QString comment = {};
  QString photoName = {};
  Date dom = {};
  int jumps = 0;
  Money price = {};
};

/// False when the row has gone.
bool LoadComponentEntry(int id, ComponentEntry& entry);

/// "Canopy Size:" for main and reserve canopies, else "Model sub type:".
QString SubTypeLabel(int type);

/// The date of manufacture as it was typed, a year of four digits among what is accepted; blank is no date. False after
/// a box of this title when it is no date.
bool ReadDom(const QString& text, Date& dom, const QString& title = QStringLiteral("DOM is invalid!"));
/// A number of jumps, with or without commas. False after a box when it is too high.
bool ReadNumJumps(const QString& text, int& jumps);

/// What the serial check found.
struct SerialCheck {
  enum Verdict {
    Pass,
    Refused,
    InUse,    ///< refused; `other` has the number and is to be shown
    SwitchTo  ///< the person gave up the new component and wants `other`
  };
  Verdict verdict = Pass;
  int other = 0;
};
/// Within one model a serial number stands once. `component` is the one being edited, 0 when it is new.
SerialCheck CheckSerial(int model, const QString& serial, int component);

/// Writes a new or an existing component, then lets the model's type win. The id, 0 when nothing was written.
int SaveComponentEntry(const ComponentEntry& entry);

/// What the short editor writes; the model's type wins.
bool SaveShortEntry(int component, int model, const QString& serial, Date dom, const QString& subType);
