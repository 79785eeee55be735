#pragma once
#include <QString>

/// Whether a component may have this serial number, shown with the component that is in the way. With a new component
/// (0) the person may go over to the one that has the number, which is then in `switchTo`.
bool SerialIsFree(int model, const QString& serial, int component, int& switchTo);
