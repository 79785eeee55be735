#pragma once
#include <memory>

#include "core/date.h"
#include "core/widgets/form.h"

namespace Ui {
class frmNewJob;
}

/// Names and dates a new job. The tag after OK is "ok", or "loadme" when the customer's job of that name is to be
/// loaded in its place.
class frmNewJob : public Form {
  Q_OBJECT
 public:
  frmNewJob();
  ~frmNewJob() override;

  /// The row of the new job is there already, under a title of its own.
  void SetJob(int jobID, int customerID, const QString& name, Date date);
  QString JobName() const;
  Date DateStarted() const { return date_; }
  int JobToLoad() const { return jobToLoad_; }

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void Accept();
  bool OfferExistingJob();

  std::unique_ptr<Ui::frmNewJob> ui_;
  int jobID_ = 0;
  int customerID_ = 0;
  int jobToLoad_ = 0;
  Date date_;
};
