#include "gear/screens.h"
#include "gear/screens/frmLocation.h"

using namespace Qt::StringLiterals;

int ShowLocations(int location) {
  auto& form = SharedForm<frmLocation>();
  form.SetLocation(location);
  form.ShowModal();
  const int chosen = form.Tag() == "select"_L1 ? form.Location() : 0;
  form.UnloadForm();
  return chosen;
}
