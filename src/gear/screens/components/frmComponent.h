#pragma once
#include <memory>

#include "core/widgets/form.h"

class QAction;

namespace Ui {
class frmComponent;
}

/// One component: what is known of it, whose it is, the rig it sits in, and what falls due on it.
class frmComponent : public Form {
  Q_OBJECT
 public:
  frmComponent();
  ~frmComponent() override;

  void SetComponent(int component);
  void ReloadForm() override;
  QStringList ShowsTables() const override;
  void TablesChanged(const Changes& changes) override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ReloadSchedule();
  void MakeMenu();
  void ShowFields();
  void ShowOwner();
  void ShowPhoto();
  bool MayChange() const;
  void Edit();
  void ChangeModel();
  void RemoveFromRig();
  void ChangeOwner();
  void ShowItsRig();
  void UpdateTask();

  std::unique_ptr<Ui::frmComponent> ui_;
  int component_ = 0;
  bool noReload_ = false;  // while the editor is open, which shows the component anew when it ends
};
