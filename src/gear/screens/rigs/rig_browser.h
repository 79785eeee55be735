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
  void SelectCustomer(int id);
  void SelectRig(int id);
  void SelectComponentRow(int row);
  bool ReloadLists();  ///< both lists, keeping what is selected; true when that had gone and another rig is shown
  void ReloadRig();    ///< the grid and the photos
  void FocusRigs();

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
  void ChooseCustomer(int id);
  void ChooseRig(int id);
  bool IsUnassigned() const;
  void ShowCustomer(int id);
  void ShowNotices();
  void ShowPhotos();

  std::unique_ptr<Ui::RigBrowser> ui_;
  int customer_ = 0;
  int rig_ = 0;
  int rigType_ = 0;
  bool loading_ = false;
};
