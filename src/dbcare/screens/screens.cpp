#include "dbcare/screens.h"

#include "dbcare/export_files.h"
#include "dbcare/screens/frmFolders.h"
#include "dbcare/screens/frmGetBackup2.h"

using namespace Qt::StringLiterals;

QString ChooseDatabase() {
  auto& form = SharedForm<frmGetBackup2>();
  form.ShowModal();
  QString choice = form.Tag();
  form.UnloadForm();
  return choice;
}

QString ChooseFolder(const QString& mode) {
  auto& form = SharedForm<frmFolders>();
  form.SetMode(mode);
  form.ShowModal();
  QString path = form.Tag();
  form.UnloadForm();
  return path;
}

bool ImportFromFolder() {
  const QString path = ChooseFolder(u"IMPORTING"_s);
  return !path.isEmpty() && path != "cancel"_L1;
}

void ExportToFolder() {
  MoveProgram([] { return ChooseFolder(u"moving"_s); });
}

void ExportBackupFiles() { ChooseFolder(QString()); }
