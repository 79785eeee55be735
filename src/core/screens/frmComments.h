#pragma once
#include <memory>

#include "core/widgets/form.h"

class QAction;
namespace Ui {
class frmComments;
}

/// A plain text editor for one long text.
class frmComments : public Form {
  Q_OBJECT
 public:
  frmComments();
  ~frmComments() override;

  void SetComments(const QString& heading, const QString& text);
  bool Saved() const { return saved_; }
  QString Text() const;

 protected:
  void Cancel() override;  ///< asks first when changes are unsaved

 private:
  bool IsChanged() const;
  void ShowState();
  void Save();
  void Clear();
  void Undo();

  std::unique_ptr<Ui::frmComments> ui_;
  QAction* mnuSave_;
  QAction* mnuUndo_;
  QString loaded_;
  QString cleared_;
  bool saved_ = false;
};
