#pragma once
#include <QFileSystemModel>

/// The folders of this computer as a tree. Closed folders show as such; the one that is selected is open.
class FolderModel : public QFileSystemModel {
  Q_OBJECT
 public:
  explicit FolderModel(QObject* parent = nullptr);

  QVariant data(const QModelIndex& index, int role) const override;
  void ShowHidden(bool show);
  void SetOpenFolder(const QModelIndex& index);

 private:
  QPersistentModelIndex open_;
};
