#pragma once
#include "core/widgets/form.h"

/// One modal use of a shared screen, unloaded at its end. It is refused, and the screen brought forward, while a use
/// further out still shows it: that one's input and results are not touched.
///
///     const ModalUse<frmPickRig> form;
///     if (!form) return false;
///     form->SetStart(customer, rig, rigType);
///     form->ShowModal();
template <class F>
class ModalUse {
 public:
  ModalUse() : form_(SharedForm<F>()), granted_(!form_.FormIsShown() || !form_.isModal()) {
    if (!granted_) form_.Show();
  }
  ~ModalUse() {
    if (granted_) form_.UnloadForm();
  }
  ModalUse(const ModalUse&) = delete;
  ModalUse& operator=(const ModalUse&) = delete;

  explicit operator bool() const { return granted_; }
  F* operator->() const { return &form_; }

 private:
  F& form_;
  bool granted_;
};
