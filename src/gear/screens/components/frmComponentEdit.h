#pragma once
#include <memory>

#include "core/widgets/form.h"
#include "gear/component_editor.h"

namespace Ui {
class frmComponentEdit;
}

/// Edits one component. The tag is "save" when it was written, and "switch" when the person gave a new component up for
/// the one that has its serial number.
class frmComponentEdit : public Form {
  Q_OBJECT
 public:
  frmComponentEdit();
  ~frmComponentEdit() override;

  /// An entry without an id is a new component.
  void SetEntry(const ComponentEntry& entry);
  /// The names around the boxes alone: what is typed stays.
  void ReloadForm() override;
  QStringList ShowsTables() const override;
  int Result() const { return result_; }  ///< the component saved or switched to, 0 for none

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Save();
  void SwitchTo(int other);

  std::unique_ptr<Ui::frmComponentEdit> ui_;
  ComponentEntry entry_;
  int result_ = 0;
};
