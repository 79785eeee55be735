#pragma once
#include <QString>
#include <QStringList>

/// A component as the small screens show it.
struct ComponentDetails {
  QString model, serial, owner, type, rig, dom;
  bool hasRig = false;

  static QStringList ShowsTables();  ///< what they are read from
};

ComponentDetails DetailsOf(int component);
