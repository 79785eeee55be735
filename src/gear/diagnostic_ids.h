#pragma once
#include <QString>

#include "core/data_folder.h"
#include "core/lists.h"

/// In diagnostic mode the lists of gear show the id of each record behind its text: "Red (5)".

inline QString WithId(const QString& text, int id) {
  return DiagnosticMode ? text + QStringLiteral(" (") + QString::number(id) + u')' : text;
}

/// The same for a whole list; a row that stands for no record keeps its text.
inline IdList WithIds(IdList list) {
  for (qsizetype i = 0; i < list.Size(); ++i)
    if (list.ids.at(i) > 0) list.texts[i] = WithId(list.texts.at(i), list.ids.at(i));
  return list;
}
