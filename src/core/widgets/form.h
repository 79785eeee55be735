#pragma once
#include <QDialog>
#include <QPointer>

#include "core/forms.h"

class QMenuBar;

/// The base of every screen. A screen is one shared instance (SharedForm), in the forms collection from its making
/// until it is unloaded. The caller sets its input, shows it, and after ShowModal reads its results and its tag. A
/// derived class carries Q_OBJECT: its class name is the form's name ("frmJob").
class Form : public QDialog, public LoadedForm {
  Q_OBJECT
 public:
  Form();
  ~Form() override;

  QString FormName() const override;
  bool FormIsShown() const override { return isVisible(); }
  void ReloadForm() override {}
  /// Reads anew what is on show; what is hidden does so when it is shown again.
  void TablesChanged(const Changes& changes) override;
  /// Hides the form and takes it out of the collection at once; it is deleted when no code of it can be running.
  void UnloadForm() override;

  void Show();       ///< beside the other screens, or brings it forward; above a modal one that is on show
  void ShowModal();  ///< blocks until the form is hidden
  void ShowAlone();  ///< returns at once, but no other screen takes input until the form is hidden

  /// How a modal use ended: "cancel", "new", "end" and the like; cleared by each showing.
  QString Tag() const { return tag_; }
  void SetTag(const QString& tag) { tag_ = tag; }

  /// The screen that this one is placed over, where that is not the active one.
  void SetCaller(QWidget* caller) { caller_ = caller; }

  QMenuBar* MenuBar();  ///< the form's menu bar, made on first use above the form's layout

  void reject() override;  ///< Esc and the window's close button: Cancel

 protected:
  /// What Esc and closing the window do. As it stands: tag "cancel", then Leave.
  virtual void Cancel();
  /// Hides a modal form, whose caller still reads its results, and unloads one that stands by itself.
  void Leave();
  /// Places and sizes that are remembered between runs; a dialog that is placed anew each time turns it off.
  void SetRemembersPlace(bool remembers) { remembersPlace_ = remembers; }
  /// Screens are worked on, and the record of operations names them; a form that shows by itself turns it off.
  void SetIsWorkedOn(bool worked) { isWorkedOn_ = worked; }
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QWidget* Caller() const;
  /// Keeps this window above another one, by which it is then not blocked.
  void StayAbove(const QWidget* other);
  void Place();
  void RememberPlace() const;
  void Bury();

  QString tag_;
  QPointer<QWidget> caller_;
  bool remembersPlace_ = true;
  bool isWorkedOn_ = true;
  bool placed_ = false;
  bool modal_ = false;
  bool unloaded_ = false;
  bool wasShown_ = false;
  Changes missed_;  // while it was hidden
};

/// The shared instance of a screen, made on first use.
template <class F>
F& SharedForm() {
  const QString name = QString::fromLatin1(F::staticMetaObject.className());
  if (F* loaded = dynamic_cast<F*>(Forms::Find(name))) return *loaded;
  return *new F;
}

/// The shared instance when it is loaded already, else null.
template <class F>
F* FormIfLoaded() {
  return dynamic_cast<F*>(Forms::Find(QString::fromLatin1(F::staticMetaObject.className())));
}
