#pragma once
#include "core/forms.h"

/// A loaded screen that counts how often it is told that one of its tables has been written.
class CountingForm : public LoadedForm {
 public:
  CountingForm(const QString& name, const QStringList& tables) : name_(name), tables_(tables) { Forms::Add(this); }
  ~CountingForm() override { Forms::Remove(this); }
  CountingForm(const CountingForm&) = delete;
  CountingForm& operator=(const CountingForm&) = delete;
  QString FormName() const override { return name_; }
  bool FormIsShown() const override { return true; }
  QStringList ShowsTables() const override { return tables_; }
  void TablesChanged(const Changes&) override { ++told; }
  void ReloadForm() override {}
  void UnloadForm() override {}
  int told = 0;

 private:
  QString name_;
  QStringList tables_;
};
