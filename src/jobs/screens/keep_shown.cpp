#include "jobs/screens/keep_shown.h"

#include <QScrollBar>

#include "core/widgets/list.h"

void RefillList(List& list, const IdList& rows) {
  const QSignalBlocker untold(list);
  const int row = list.ListIndex();
  const int id = list.ItemData(row);
  const QList<int> ticked = list.TickedData();
  const int scrolled = list.verticalScrollBar()->value();
  list.Fill(rows);
  list.TickData(ticked);
  if (row >= 0) list.SetListIndex(list.FindData(id) >= 0 ? list.FindData(id) : qMin(row, list.Count() - 1));
  list.verticalScrollBar()->setValue(scrolled);
}
