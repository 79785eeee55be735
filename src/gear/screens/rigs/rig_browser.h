#pragma once
#include <QWidget>

#include <memory>

namespace Ui {
class RigBrowser;
}

/// Customers, their rigs, and the components of the rig that is chosen: what the rig screen and the choosing of a rig
/// have in common.
class RigBrowser : public QWidget {
  Q_OBJECT
 public:
  explicit RigBrowser(QWidget* parent = nullptr);
  ~RigBrowser() override;

  /// What the lists and the grid are read from.
  static QStringList ShowsTables();

  /// Where to begin; a rig brings its owner along. `rigType` 0 shows all types.
  void Begin(int customer, int rig, int rigType);
  /// Puts a form's own controls below the component grid; Tab goes on from the last of them.
  void AddBelowGrid(QWidget* panel, QWidget* last);
  /// For a plain display: nothing can be searched or assigned.
  void SetFixed(bool fixed);

  int Customer() const { return customer_; }
  int Rig() const { return rig_; }
  int RigTypeFilter() const { return rigType_; }
  bool ShowsSelectedOnly() const;
  int ComponentType() const;  ///< of the selected row, 0 for none
  int Component() const;      ///< of the selected row, 0 on an empty one
  int ComponentRows() const;
  int SelectedRow() const;

  void SetRigTypeFilter(int rigType);
  void SelectCustomer(int id);  ///< as a click does: a rig of nobody's is offered to the customer
  void ShowCustomer(int id);    ///< and the first of the customer's rigs, with no question
  void ShowRig(int id);         ///< and its owner, whichever customers are displayed
  void SelectComponentRow(int row);
  /// Reads everything anew and keeps what is selected, by its id: customer, rig, the place in the grid. A customer who
  /// has gone leaves nobody selected; a rig that has gone makes room for the customer's first one, or for none.
  void Reload();

 Q_SIGNALS:
  void RigShown(int rig);  ///< another rig, or none, is shown; or its components changed
  void CustomerShown(int customer);
  void SearchWanted();
  void ComponentWanted();        ///< double click or Enter in the grid
  void QuickEditWanted();        ///< F2 in the grid
  void ComponentRemoveWanted();  ///< Delete in the grid
  void ComponentRowChange();
  void CommentsWanted();
  void PhotoClick();
  void RigDeleteWanted();
  void RigWanted();  ///< double click or Enter in the list of rigs

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void LoadCustomerList();
  void LoadRigList();
  void ReloadLists();
  int FirstListedRigOf(int owner) const;
  int RigToGoOnWith() const;
  bool MayStayOnRig() const;
  void ReloadRig();
  void ChooseCustomer(int id);
  void ChooseRig(int id);
  bool IsUnassigned() const;
  void MarkCustomer(int id);
  void ShowNotices();
  void ShowPhotosSetting();
  void ShowPhotos();

  std::unique_ptr<Ui::RigBrowser> ui_;
  int customer_ = 0;
  int rig_ = 0;
  int rigType_ = 0;
  int gridRig_ = 0;  // whose components are in the grid
  bool loading_ = false;
};
