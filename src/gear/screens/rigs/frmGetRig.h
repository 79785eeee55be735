#pragma once
#include <memory>

#include "core/widgets/form.h"
#include "gear/screens.h"

class QAction;

namespace Ui {
class frmGetRig;
}

/// The rigs of the loft: their names, owners and types, the components each is made of, and what falls due on it.
class frmGetRig : public Form {
  Q_OBJECT
 public:
  frmGetRig();
  ~frmGetRig() override;

  void SetStart(const RigScreenStart& start);
  /// The same on the screen that is open already: what was not asked for stays as it is.
  void GoTo(const RigScreenStart& start);
  int Rig() const;
  void ReloadForm() override;
  QStringList ShowsTables() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void MakeMenu();
  void SetMode(const RigScreenStart& start);
  void ShowRig();
  void ReloadSchedule();
  void UpdateTask();
  void ShowState();
  void Search();
  void AddCustomer();
  void DeleteCustomer();
  void AddRig();
  void RenameRig();
  void ChangeOwner();
  void ChangeType();
  void DeleteRig();
  void ShowHistory();
  void FilterByType();
  void EditRigComments();
  void EnterComponent();
  void EditQuickly();
  void FillPlace(int type);
  void CreateInPlace(int rig, int type, int model, const QString& serial);
  void Install(int rig, int component);
  void RemoveComponent();

  std::unique_ptr<Ui::frmGetRig> ui_;
  QList<QAction*> rigCommands_;  // wait for a rig
  QList<QAction*> changes_;      // not for a plain display
  bool hideButtons_ = false;     // a plain display, which changes nothing
};
