#pragma once
#include <QStringList>

#include "reports/gear_table.h"

/// The tables in the body of a mail, a line to each line of its file.
QStringList GearTableHtml(const QList<GearRow>& rows);
QStringList RigTableHtml(const RigTable& table);
