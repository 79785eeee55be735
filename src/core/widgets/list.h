#pragma once
#include <QAbstractListModel>
#include <QListView>

#include <vector>

#include "core/lists.h"

class QComboBox;

/// A list of texts that stand for ids, with ticks where wanted; quick at 25,000 rows.
class List : public QListView {
  Q_OBJECT
 public:
  explicit List(QWidget* parent = nullptr);
  ~List() override;

  void Fill(const IdList& rows);  ///< nothing is selected afterwards
  /// Fills anew below a person's hands, without telling: what was selected, ticked and in view stays so, by its id.
  /// False when the selected row has gone; nothing is selected then.
  bool Refill(const IdList& rows);
  void Clear() { Fill({}); }
  void AddItem(const QString& text, int id = 0);
  int Count() const { return model_.rowCount(); }
  QString ItemText(int row) const;  ///< empty where there is no such row
  int ItemData(int row) const;      ///< the row's id, 0 where there is no such row
  QList<int> Ids() const { return model_.rows.ids; }
  int FindData(int id) const;  ///< -1 when no row stands for it

  int ListIndex() const;  ///< the selected row, -1 for none
  void SetListIndex(int row, ScrollHint hint = EnsureVisible);
  bool SelectData(int id);

  void SetTickable(bool tickable);
  bool IsTicked(int row) const;
  void SetTicked(int row, bool ticked);
  void TickAll(bool ticked);
  QList<int> TickedData() const;         ///< the ids of the ticked rows, in their order
  void TickData(const QList<int>& ids);  ///< ticks the rows of these ids and no other

 Q_SIGNALS:
  void ListChange(int row);  ///< another row was selected
  void ItemClick(int row);
  void ItemDoubleClick(int row);
  void ItemEnter(int row);
  void ItemDelete(int row);
  void ItemTick(int row, bool ticked);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

 private:
  class Model : public QAbstractListModel {
   public:
    explicit Model(List* list) : list_(list) {}
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    void Fill(const IdList& rows);
    void Add(const QString& text, int id);

    IdList rows;
    std::vector<bool> ticks;
    bool tickable = false;

   private:
    List* list_;
  };

  Model model_;
  bool filling_ = false;
};

/// The same rows for a combo box.
void FillCombo(QComboBox* box, const IdList& rows);
