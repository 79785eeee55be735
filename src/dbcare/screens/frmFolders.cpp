#include "dbcare/screens/frmFolders.h"

#include <QDir>
#include <QEvent>
#include <QMenuBar>
#include <QStandardPaths>

#include "core/data_folder.h"
#include "core/files.h"
#include "core/platform.h"
#include "core/prompts.h"
#include "core/text.h"
#include "dbcare/export_backups.h"
#include "dbcare/export_files.h"
#include "dbcare/folder_choices.h"
#include "dbcare/import_files.h"
#include "dbcare/screens/folder_model.h"
#include "dbcare/screens/ui_frmFolders.h"

using namespace Qt::StringLiterals;

namespace {

QString TitleOf(const QString& mode) {
  if (mode == "moving"_L1) return u"Select or create an empty folder for file exporting"_s;
  if (mode == "IMPORTING"_L1) return u"Select source folder for importing"_s;
  if (mode == "selectdb"_L1) return u"Select database file (.mdb) to import"_s;
  if (mode == "db_only"_L1) return u"Select database file (.mdb) to install"_s;
  return u"Export back up database files"_s;
}

QString Documents() { return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation); }
QString Desktop() { return QStandardPaths::writableLocation(QStandardPaths::DesktopLocation); }

/// The place among the drives of the one that a folder lies on: the longest that the folder's path begins with.
int DriveOf(const QString& folder, const QComboBox& drives) {
  int best = -1;
  for (int i = 0; i < drives.count(); ++i) {
    const QString drive = drives.itemText(i);
    const bool holds = folder == drive || folder.startsWith(AddClosingSeparator(drive));
    if (holds && (best < 0 || drive.size() > drives.itemText(best).size())) best = i;
  }
  return best;
}

bool LiesInHiddenFolder(const QString& path) {
  for (QFileInfo folder(path); !folder.isRoot(); folder.setFile(folder.path()))
    if (folder.isHidden()) return true;
  return false;
}

}  // namespace

frmFolders::frmFolders() : ui_(std::make_unique<Ui::frmFolders>()), folders_(new FolderModel(this)) {
  ui_->setupUi(this);
  BuildMenu();
  FillDrives();
  ui_->tree->setModel(folders_);
  for (int column = 1; column < folders_->columnCount(); ++column) ui_->tree->hideColumn(column);
  ui_->cmdDocuments->setEnabled(FolderExists(Documents()));
  ui_->cmdDesktop->setEnabled(FolderExists(Desktop()));
  ConnectControls();
  ListPaths();
}

frmFolders::~frmFolders() = default;

void frmFolders::BuildMenu() {
  QMenu* paths = MenuBar()->addMenu(u"Paths"_s);
  mnuSave_ = paths->addAction(u"&Save path"_s, this, [this] {
    SavePath(folder_);
    ListPaths();
  });
  paths->addAction(u"&Enter path"_s, this, [this] { EnterPath(); });
  mnuDelete_ = paths->addAction(u"&Delete path"_s, this, [this] {
    if (DeletePath(ui_->cboPaths->currentText())) ListPaths();
  });
}

void frmFolders::FillDrives() {
  ui_->cboDrive->clear();
  ui_->cboDrive->addItems(DriveFolders());
  ui_->cboDrive->setCurrentIndex(DriveOf(folder_, *ui_->cboDrive));
}

bool frmFolders::eventFilter(QObject* watched, QEvent* event) {
  // A drive may have been plugged in since the screen came up.
  if (watched == ui_->cboDrive && event->type() == QEvent::FocusIn) FillDrives();
  return Form::eventFilter(watched, event);
}

void frmFolders::ConnectControls() {
  connect(ui_->tree->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& index) {
    if (index.isValid()) TakeFolder(QDir::toNativeSeparators(folders_->filePath(index)));
  });
  // The names come from the disk a while after the tree shows, and push the selected one away.
  connect(folders_, &QFileSystemModel::directoryLoaded, this,
          [this] { ui_->tree->scrollTo(ui_->tree->currentIndex()); });
  ui_->cboDrive->installEventFilter(this);
  connect(ui_->cboDrive, &QComboBox::textActivated, this, &frmFolders::GoTo);
  connect(ui_->cboPaths, &QComboBox::textActivated, this, &frmFolders::GoToSavedPath);
  connect(ui_->cmdDocuments, &QPushButton::clicked, this, [this] { GoTo(Documents()); });
  connect(ui_->cmdDesktop, &QPushButton::clicked, this, [this] { GoTo(Desktop()); });
  connect(ui_->cmdNewFolder, &QPushButton::clicked, this, [this] { MakeFolder(); });
  connect(ui_->chkHidden, &QCheckBox::toggled, folders_, &FolderModel::ShowHidden);
  connect(ui_->chkDatabases, &QCheckBox::toggled, this, [this] { ListFiles(); });
  connect(ui_->lstFiles, &List::ListChange, this, [this] { EnableCommands(); });
  connect(ui_->lstFiles, &List::ItemDoubleClick, this, [this] {
    if (WantsFile() && ui_->cmdSelect->isEnabled()) Select();
  });
  connect(ui_->cmdSelect, &QPushButton::clicked, this, [this] { Select(); });
  connect(ui_->cmdCancel, &QPushButton::clicked, this, [this] { Cancel(); });
}

void frmFolders::SetMode(const QString& mode) {
  mode_ = mode;
  setWindowTitle(TitleOf(mode));
  ui_->lblBackups->setVisible(mode.isEmpty());
  if (mode.isEmpty()) ui_->lblBackups->setText(BackupCountText());
  ui_->chkDatabases->setChecked(WantsFile());
  ui_->chkDatabases->setEnabled(mode != "db_only"_L1);
  if (folder_.isEmpty()) GoTo(FolderExists(Documents()) ? Documents() : QDir::homePath());
  EnableCommands();
}

bool frmFolders::WantsFile() const { return mode_ == "selectdb"_L1 || mode_ == "db_only"_L1; }

void frmFolders::GoTo(const QString& folder) {
  const QString path = QDir::toNativeSeparators(QDir(folder).absolutePath());
  if (!FolderExists(path)) {
    MsgBox(u"Path not found"_s);
    return;
  }
  if (LiesInHiddenFolder(path)) ui_->chkHidden->setChecked(true);
  const int drive = DriveOf(path, *ui_->cboDrive);
  ui_->cboDrive->setCurrentIndex(drive);
  const QString root = ui_->cboDrive->itemText(drive);
  ui_->tree->setRootIndex(folders_->setRootPath(root));
  const QModelIndex index = folders_->index(path);
  if (path == root) {
    ui_->tree->setCurrentIndex({});
    TakeFolder(path);
    return;
  }
  ui_->tree->setCurrentIndex(index);
  ui_->tree->expand(index);
  ui_->tree->scrollTo(index);
}

void frmFolders::TakeFolder(const QString& folder) {
  folder_ = folder;
  folders_->SetOpenFolder(ui_->tree->currentIndex());
  ui_->txtFolder->setText(folder);
  ui_->cboPaths->setCurrentIndex(ui_->cboPaths->findText(folder, Qt::MatchFixedString));
  ListFiles();
}

void frmFolders::GoToSavedPath(const QString& path) {
  GoTo(path);
  ui_->cboPaths->setCurrentText(path);  // also where its folder has gone, so that it can be deleted
  EnableCommands();
}

void frmFolders::EnterPath() {
  const QString path = InputBox(u"Enter path"_s, kProgramTitle, folder_).trimmed();
  if (!path.isEmpty()) GoTo(path);
}

void frmFolders::MakeFolder() {
  const QString name = InputBox(u"Enter the name of the new folder"_s, u"Create new folder"_s).trimmed();
  if (name.isEmpty()) return;
  const QString path = JoinPath(folder_, name);
  CreateFolder(path);
  if (FolderExists(path)) GoTo(path);
}

void frmFolders::ListFiles() {
  ui_->lstFiles->Clear();
  for (const QString& name : FilesToOffer(folder_, ui_->chkDatabases->isChecked())) ui_->lstFiles->AddItem(name);
  EnableCommands();
}

void frmFolders::ListPaths() {
  ui_->cboPaths->clear();
  ui_->cboPaths->addItems(SavedPaths());
  ui_->cboPaths->setEnabled(ui_->cboPaths->count() > 0);
  ui_->cboPaths->setCurrentIndex(ui_->cboPaths->findText(folder_, Qt::MatchFixedString));
  EnableCommands();
}

void frmFolders::EnableCommands() {
  mnuSave_->setEnabled(!folder_.isEmpty() && FolderExists(SupportFile(QString())));
  mnuDelete_->setEnabled(ui_->cboPaths->currentIndex() >= 0);
  const QString file = ui_->lstFiles->ItemText(ui_->lstFiles->ListIndex());
  ui_->cmdSelect->setEnabled(WantsFile() ? file.endsWith(".mdb"_L1, Qt::CaseInsensitive) : !folder_.isEmpty());
}

void frmFolders::Select() {
  if (WantsFile()) {
    End(JoinPath(folder_, ui_->lstFiles->ItemText(ui_->lstFiles->ListIndex())));
    return;
  }
  const bool done = mode_ == "moving"_L1      ? AcceptExportFolder(folder_)
                    : mode_ == "IMPORTING"_L1 ? Importingfiles(folder_)
                                              : ExportBackups(folder_);
  if (done) End(folder_);
}

void frmFolders::End(const QString& path) {
  SetTag(path);
  Leave();
}
