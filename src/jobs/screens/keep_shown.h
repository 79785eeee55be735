#pragma once
#include "core/lists.h"
#include "core/widgets/form.h"

class List;

/// Fills a list with what its rows read now. By their ids, the selected row stays selected and ticks stay; where the
/// selected row has gone, the one in its place is selected. Nothing is told of it.
void RefillList(List& list, const IdList& rows);

/// True when a screen is on show already, for whoever opened it: it comes forward, and can't be asked again meanwhile.
template <class F>
bool ComesForward() {
  F* loaded = FormIfLoaded<F>();
  if (!loaded || !loaded->isVisible()) return false;
  loaded->Show();
  return true;
}
