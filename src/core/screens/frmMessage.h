#pragma once
#include <memory>

#include "core/widgets/form.h"

namespace Ui {
class frmMessage;
}

/// A text of any length with an Exit button, or with two buttons whose captions the caller sets.
class frmMessage : public Form {
  Q_OBJECT
 public:
  frmMessage();
  ~frmMessage() override;

  void SetText(const QString& title, const QString& text);
  /// 1: Exit alone. 2: two buttons, captioned in order. Any other type says so in a box and returns false.
  bool SetButtons(int buttonType, const QStringList& captions);
  int Pressed() const { return pressed_; }  ///< 1 or 2, 0 for Exit

 protected:
  void hideEvent(QHideEvent* event) override;

 private:
  void FitToText();

  std::unique_ptr<Ui::frmMessage> ui_;
  int pressed_ = 0;
};
