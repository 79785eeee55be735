#include "dbcare/screens/folder_model.h"

#include <QApplication>
#include <QStyle>

FolderModel::FolderModel(QObject* parent) : QFileSystemModel(parent) {
  setOption(DontUseCustomDirectoryIcons);
  ShowHidden(false);
}

QVariant FolderModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DecorationRole || index.column() != 0) return QFileSystemModel::data(index, role);
  return QApplication::style()->standardIcon(index == open_ ? QStyle::SP_DirOpenIcon : QStyle::SP_DirClosedIcon);
}

void FolderModel::ShowHidden(bool show) {
  const QDir::Filters folders = QDir::AllDirs | QDir::NoDotAndDotDot;
  setFilter(show ? folders | QDir::Hidden : folders);
  sort(0);  // the filter counts from the next sorting on
}

void FolderModel::SetOpenFolder(const QModelIndex& index) {
  const QPersistentModelIndex before = std::exchange(open_, index);
  for (const QModelIndex changed : {QModelIndex(before), index})
    if (changed.isValid()) Q_EMIT dataChanged(changed, changed, {Qt::DecorationRole});
}
