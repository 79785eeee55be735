#pragma once
#include <memory>

#include "core/widgets/form.h"
#include "gear/location_rules.h"

class QAction;

namespace Ui {
class frmLocation;
}

/// The places of the shop and their tax rates. The tag is "select" when one was chosen.
class frmLocation : public Form {
  Q_OBJECT
 public:
  frmLocation();
  ~frmLocation() override;

  void SetLocation(int id);
  /// The list alone while a location is typed; one that has gone meanwhile is saved as a new one.
  void ReloadForm() override;
  QStringList ShowsTables() const override;
  int Location() const;

 protected:
  void Cancel() override;

 private:
  enum class Mode { Browsing, NewLocation, Editing };

  void SetMode(Mode mode);
  void LoadList(int select);
  void ShowFields();
  void ShowWhetherDefault();
  void ShowEntry(const LocationEntry& entry);
  LocationEntry Entry() const;
  void StartEditing();
  void FillRateOfState();
  void AddNew();
  void ShowDefault();
  void DeleteSelected();
  void ToggleDefault(bool isDefault);
  void Accept();

  std::unique_ptr<Ui::frmLocation> ui_;
  QAction* addNew_ = nullptr;
  Mode mode_ = Mode::Browsing;
  bool loading_ = false;
  int edited_ = 0;  // whose fields are on show
};
