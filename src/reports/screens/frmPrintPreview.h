#pragma once
#include <memory>

#include "core/widgets/form.h"
#include "reports/report.h"

class PagePicture;
class QAction;
class QKeyEvent;
namespace Ui {
class frmPrintPreview;
}

/// Shows a report page by page and prints it.
class frmPrintPreview : public Form {
  Q_OBJECT
 public:
  frmPrintPreview();
  ~frmPrintPreview() override;

  /// Shows the first page of a report in a font. Another font draws it anew, from the data that it was made of.
  void SetReport(const Report& report, const FontChoice& font);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void MakeMenus();
  void Draw(const FontChoice& font);
  void FitWindow();
  void ShowPage(int number);
  void ChooseFont();
  void ShrinkWindow();
  bool TurnPage(const QKeyEvent& key);

  std::unique_ptr<Ui::frmPrintPreview> ui_;
  PagePicture* pic_;
  QAction* mnuPrev_ = nullptr;
  QAction* mnuNext_ = nullptr;
  Report report_;
  FontChoice font_;
  Pages pages_;
  int page_ = 1;
};
