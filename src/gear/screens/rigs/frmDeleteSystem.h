#pragma once
#include <memory>

#include "core/widgets/form.h"

namespace Ui {
class frmDeleteSystem;
}

/// Shows a rig with its components and asks whether to delete it; the tag is "yes", "no" or "cancel".
class frmDeleteSystem : public Form {
  Q_OBJECT
 public:
  frmDeleteSystem();
  ~frmDeleteSystem() override;

  void SetRig(int rig, bool showOnly);
  void ReloadForm() override;  ///< ends as cancelled when the rig has gone
  QStringList ShowsTables() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool AnswerKey(const QKeyEvent& event);
  void Answer(const QString& tag);
  void ShowHelp();
  void ShowRig();

  std::unique_ptr<Ui::frmDeleteSystem> ui_;
  int rig_ = 0;
  bool showOnly_ = false;
};
