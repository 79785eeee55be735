#pragma once
#include <memory>

#include "core/widgets/form.h"

class FolderModel;
class QAction;

namespace Ui {
class frmFolders;
}

/// The chooser of a folder, or of a database file in one. Its mode text says what it is for: "" exports the backup
/// files to the folder, "moving" wants an empty folder, "IMPORTING" imports from the folder, "selectdb" and "db_only"
/// want a database file. Its tag is the path that was chosen, or "cancel".
class frmFolders : public Form {
  Q_OBJECT
 public:
  frmFolders();
  ~frmFolders() override;

  void SetMode(const QString& mode);
  /// Shows a folder as the selected one, with the drive and the files in it.
  void GoTo(const QString& folder);
  QString Folder() const { return folder_; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildMenu();
  void FillDrives();
  void ConnectControls();
  bool WantsFile() const;
  void TakeFolder(const QString& folder);
  void GoToSavedPath(const QString& path);
  void EnterPath();
  void MakeFolder();
  void ListFiles();
  void ListPaths();
  void EnableCommands();
  void Select();
  void End(const QString& path);

  std::unique_ptr<Ui::frmFolders> ui_;
  FolderModel* folders_;
  QAction* mnuSave_ = nullptr;
  QAction* mnuDelete_ = nullptr;
  QString mode_;
  QString folder_;
};
