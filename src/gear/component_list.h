#pragma once
#include <QList>
#include <QString>

#include "core/date.h"

/// Which components a person chooses from.
struct ComponentFilter {
  enum class Rigs { Both, InRig, NotInRig };
  int type = 0;   ///< 0 for all types
  int owner = 0;  ///< 0 for any owner
  int model = 0;  ///< 0 for all models
  Rigs rigs = Rigs::Both;
};

/// One component as the list of them shows it.
struct ComponentListRow {
  int id = 0;
  int owner = 0;
  int rig = 0;
  QString model;    ///< with the sub type
  QString rigName;  ///< or "(no rig)"
  QString ownerName;
  QString serial;  ///< or "(none)"
  Date dom;
};

QList<ComponentListRow> LoadComponentList(const ComponentFilter& filter);
