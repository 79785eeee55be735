#pragma once
#include <QString>

/// A component as the small screens show it.
struct ComponentDetails {
  QString model, serial, owner, type, rig, dom;
  bool hasRig = false;
};

ComponentDetails DetailsOf(int component);
