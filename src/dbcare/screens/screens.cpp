#include "dbcare/screens.h"

#include "dbcare/screens/frmGetBackup2.h"

QString ChooseDatabase() {
  auto& form = SharedForm<frmGetBackup2>();
  form.ShowModal();
  const QString choice = form.Tag();
  form.UnloadForm();
  return choice;
}
