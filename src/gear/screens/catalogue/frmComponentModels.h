#pragma once
#include <memory>

#include "core/lists.h"
#include "core/widgets/form.h"
#include "gear/catalogue.h"
#include "gear/screens.h"

namespace Ui {
class frmComponentModels;
}

/// The catalogue: models by type and maker, their service lives, the makers, and the parts with their prices.
class frmComponentModels : public Form {
  Q_OBJECT
 public:
  frmComponentModels();
  ~frmComponentModels() override;

  void SetStart(const ModelScreenStart& start);
  /// The lists alone while a service life is typed.
  void ReloadForm() override;
  QStringList ShowsTables() const override;
  /// The model that was added in the start mode that adds one, 0 for none.
  int CreatedModel() const { return created_; }

 protected:
  void Cancel() override;

 private:
  void BuildMenus();
  int Type() const;
  int Model() const;
  int Manufacturer() const;  ///< kNoManufacturerSelected when none is

  void ShowType();
  void ShowCaptions();
  IdList ModelsToList() const;
  void LoadModelList(int select);
  void LoadManufacturerList(int select);
  void ShowModel();
  void ShowMaker();
  void ShowServiceLife();

  void AddModel();
  void AddEnteredPart();
  void ShowModelOfItsMaker(const NewModel& added);
  void RenameSelectedModel();
  void DeleteSelectedModel();
  void AddMaker();
  void RenameMaker();
  void DeleteMaker();
  void Link();

  void DefineServiceLife(bool defined);
  void ServiceLifeTyped();
  /// Writes a service life that was typed; with `tell` a box confirms it. It stays with the model it was typed for.
  void SavePendingLife(bool tell = false);

  std::unique_ptr<Ui::frmComponentModels> ui_;
  ModelScreenStart start_;
  int created_ = 0;
  int lifeOf_ = 0;  ///< the model whose service life is on show
  bool lifeChanged_ = false;
};
