#pragma once
#include <functional>
#include <memory>
#include <optional>

#include "core/widgets/form.h"
#include "reports/canvas.h"

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
  /// Draws the report in another font; nothing when it can't.
  using Rebuild = std::function<std::optional<Pages>(FontChoice& font)>;

  frmPrintPreview();
  ~frmPrintPreview() override;

  /// The report as it was drawn in a font, and how to draw it again.
  void SetReport(const Pages& pages, const FontChoice& font, Rebuild rebuild);
  void ReloadForm() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void MakeMenus();
  void FitWindow();
  void ShowPage(int number);
  void ChooseFont();
  void ShrinkWindow();
  bool TurnPage(const QKeyEvent& key);

  std::unique_ptr<Ui::frmPrintPreview> ui_;
  PagePicture* pic_;
  QAction* mnuPrev_ = nullptr;
  QAction* mnuNext_ = nullptr;
  Pages pages_;
  FontChoice font_;
  Rebuild rebuild_;
  int page_ = 1;
};
