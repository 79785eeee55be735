#include "dbcare/screens/frmGetBackup2.h"

#include "core/prompts.h"
#include "dbcare/new_database.h"
#include "dbcare/screens/ui_frmGetBackup2.h"

using namespace Qt::StringLiterals;

frmGetBackup2::frmGetBackup2() : ui_(std::make_unique<Ui::frmGetBackup2>()) {
  ui_->setupUi(this);
  SetRemembersPlace(false);
  ui_->cmdBackupFolder->setEnabled(false);  // comes with the list of backup files
  connect(ui_->cmdAnyFolder, &QPushButton::clicked, this, [this] { InstallFromAnyFolder(); });
  connect(ui_->cmdNew, &QPushButton::clicked, this, [this] { End(u"new"_s); });
  connect(ui_->cmdCancel, &QPushButton::clicked, this, [this] { Cancel(); });
}

frmGetBackup2::~frmGetBackup2() = default;

void frmGetBackup2::End(const QString& tag) {
  SetTag(tag);
  Leave();
}

void frmGetBackup2::Cancel() { End(u"end"_s); }

void frmGetBackup2::InstallFromAnyFolder() {
  const QString path = OpenFileDialog(
      {u"Select a database (.mdb) file"_s, QString(), u"Loftkeep database (.mdb)|*.mdb|all files (*.*)|*.*"_s});
  if (!path.isEmpty() && InstallDatabaseFile(path)) End(QString());
}
