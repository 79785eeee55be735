#pragma once
#include <memory>

#include "core/widgets/form.h"
#include "gear/component_list.h"

namespace Ui {
class frmPickComponent;
}

/// Lets a person choose one of the components in the database. The tag is "select" when one was chosen.
class frmPickComponent : public Form {
  Q_OBJECT
 public:
  frmPickComponent();
  ~frmPickComponent() override;

  /// What is shown first: a type (0 for all), and the components of an owner where one is given.
  void SetChoice(int type, int owner);
  int Component() const { return chosen_; }  ///< 0 until one was chosen
  void ReloadForm() override;
  QStringList ShowsTables() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  ComponentFilter Filter() const;
  void LoadGrid();
  int Selected() const;
  void ChooseRow(int row);
  void ChooseOwner();
  void ChooseModels();
  void ShowChoices();
  void Select();
  void Delete();

  std::unique_ptr<Ui::frmPickComponent> ui_;
  int owner_ = 0;
  int model_ = 0;
  int chosen_ = 0;
  bool choosing_ = false;
};
