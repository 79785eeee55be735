#pragma once
#include "core/forms.h"

/// A loaded screen that counts how often it is told to read its data anew: all of it, or its due dates alone.
class CountingForm : public LoadedForm {
 public:
  explicit CountingForm(const QString& name) : name_(name) { Forms::Add(this); }
  ~CountingForm() override { Forms::Remove(this); }
  CountingForm(const CountingForm&) = delete;
  CountingForm& operator=(const CountingForm&) = delete;
  QString FormName() const override { return name_; }
  bool FormIsShown() const override { return true; }
  void ReloadForm() override { ++reloads; }
  void ReloadSchedule() override { ++scheduleReloads; }
  void UnloadForm() override {}
  int reloads = 0;
  int scheduleReloads = 0;

 private:
  QString name_;
};
