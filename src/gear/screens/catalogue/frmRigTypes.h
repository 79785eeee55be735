#pragma once
#include <QList>

#include <memory>

#include "core/widgets/form.h"

class QRadioButton;

namespace Ui {
class frmRigTypes;
}

/// The kinds of assembled systems: what each is built from, and where its reserve sits. Every choice is written at
/// once.
class frmRigTypes : public Form {
  Q_OBJECT
 public:
  frmRigTypes();
  ~frmRigTypes() override;

  void ReloadForm() override;
  QStringList ShowsTables() const override;

 private:
  int RigType() const;
  QList<QRadioButton*> Options() const;
  void LoadList(int select);
  void ShowRigType();
  void ChooseReserve(int place);
  void WriteComponents();
  void EditComponentList();
  void AddNew();
  void Rename();
  void DeleteSelected();
  void LeaveComponents(bool save);
  void EnterComponents(bool entered);

  std::unique_ptr<Ui::frmRigTypes> ui_;
};
