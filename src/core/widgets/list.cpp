#include "core/widgets/list.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QMetaMethod>
#include <QScrollBar>

int List::Model::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows.Size());
}

QVariant List::Model::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  if (role == Qt::DisplayRole) return rows.texts[index.row()];
  if (role == Qt::CheckStateRole && tickable) {
    return ticks[static_cast<size_t>(index.row())] ? Qt::Checked : Qt::Unchecked;
  }
  return {};
}

bool List::Model::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::CheckStateRole || !index.isValid()) return false;
  const bool ticked = value.toInt() == Qt::Checked;
  ticks[static_cast<size_t>(index.row())] = ticked;
  Q_EMIT dataChanged(index, index);
  Q_EMIT list_->ItemTick(index.row(), ticked);
  return true;
}

Qt::ItemFlags List::Model::flags(const QModelIndex& index) const {
  return QAbstractListModel::flags(index) | (tickable ? Qt::ItemIsUserCheckable : Qt::NoItemFlags);
}

void List::Model::Fill(const IdList& content) {
  beginResetModel();
  rows = content;
  ticks.assign(static_cast<size_t>(rows.Size()), false);
  endResetModel();
}

void List::Model::Add(const QString& text, int id) {
  beginInsertRows({}, rowCount(), rowCount());
  rows.Add(text, id);
  ticks.push_back(false);
  endInsertRows();
}

List::List(QWidget* parent) : QListView(parent), model_(this) {
  setModel(&model_);
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  connect(this, &QListView::clicked, this, [this](const QModelIndex& index) { Q_EMIT ItemClick(index.row()); });
  connect(this, &QListView::doubleClicked, this,
          [this](const QModelIndex& index) { Q_EMIT ItemDoubleClick(index.row()); });
}

List::~List() { setModel(nullptr); }

void List::Fill(const IdList& rows) {
  filling_ = true;
  model_.Fill(rows);
  filling_ = false;
}

bool List::Refill(const IdList& rows) {
  if (rows.ids == model_.rows.ids && rows.texts == model_.rows.texts) return true;
  const QSignalBlocker quiet(this);
  const bool selected = ListIndex() >= 0;
  const int id = ItemData(ListIndex());
  const QList<int> ticked = TickedData();
  const int top = verticalScrollBar()->value();
  Fill(rows);
  TickData(ticked);
  const int row = selected ? FindData(id) : -1;
  if (row >= 0) selectionModel()->setCurrentIndex(model_.index(row), QItemSelectionModel::ClearAndSelect);
  verticalScrollBar()->setValue(top);
  return row >= 0 || !selected;
}

void List::AddItem(const QString& text, int id) { model_.Add(text, id); }
QString List::ItemText(int row) const { return model_.rows.texts.value(row); }
int List::ItemData(int row) const { return model_.rows.ids.value(row); }
int List::FindData(int id) const { return static_cast<int>(model_.rows.ids.indexOf(id)); }

int List::ListIndex() const {
  const QModelIndex current = currentIndex();
  return current.isValid() && selectionModel()->isSelected(current) ? current.row() : -1;
}

void List::SetListIndex(int row, ScrollHint hint) {
  if (row < 0 || row >= Count()) {
    selectionModel()->clear();
    return;
  }
  const QModelIndex index = model_.index(row);
  selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
  scrollTo(index, hint);
}

bool List::SelectData(int id) {
  const int row = FindData(id);
  SetListIndex(row);
  return row >= 0;
}

void List::SetTickable(bool tickable) {
  model_.tickable = tickable;
  viewport()->update();
}

bool List::IsTicked(int row) const { return row >= 0 && row < Count() && model_.ticks[static_cast<size_t>(row)]; }

void List::SetTicked(int row, bool ticked) {
  if (row >= 0 && row < Count()) model_.ticks[static_cast<size_t>(row)] = ticked;
  viewport()->update();
}

void List::TickAll(bool ticked) {
  model_.ticks.assign(model_.ticks.size(), ticked);
  viewport()->update();
}

QList<int> List::TickedData() const {
  QList<int> ids;
  for (int row = 0; row < Count(); ++row)
    if (IsTicked(row)) ids << ItemData(row);
  return ids;
}

void List::TickData(const QList<int>& ids) {
  for (int row = 0; row < Count(); ++row) SetTicked(row, ids.contains(ItemData(row)));
}

void List::keyPressEvent(QKeyEvent* event) {
  const int row = ListIndex();
  const int key = event->key();
  const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter;
  const auto wanted = [&](void (List::*told)(int)) {
    return row >= 0 && isSignalConnected(QMetaMethod::fromSignal(told));
  };
  if (enter && wanted(&List::ItemEnter)) {
    Q_EMIT ItemEnter(row);
  } else if (key == Qt::Key_Delete && wanted(&List::ItemDelete)) {
    Q_EMIT ItemDelete(row);
  } else if (enter || key == Qt::Key_Escape) {
    event->ignore();  // the form's default and cancel buttons
  } else {
    QListView::keyPressEvent(event);
  }
}

void List::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  QListView::selectionChanged(selected, deselected);
  if (!filling_ && ListIndex() >= 0) Q_EMIT ListChange(ListIndex());
}

void FillCombo(QComboBox* box, const IdList& rows) {
  const QSignalBlocker quiet(box);
  box->clear();
  for (qsizetype i = 0; i < rows.Size(); ++i) box->addItem(rows.texts[i], rows.ids[i]);
  box->setCurrentIndex(-1);
}
