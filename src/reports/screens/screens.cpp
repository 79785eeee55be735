#include "reports/screens.h"

#include "core/screens.h"
#include "reports/business_address.h"
#include "reports/fonts.h"
#include "reports/reports.h"
#include "reports/screens/frmPrintPreview.h"

using namespace Qt::StringLiterals;

void DoReport(const QString& key, int id) {
  FontChoice font = ReadFonts();
  const std::optional<Pages> pages = BuildReport(key, id, font);
  if (!pages) return;
  frmPrintPreview& preview = SharedForm<frmPrintPreview>();
  preview.SetReport(*pages, font, [=](FontChoice& chosen) { return BuildReport(key, id, chosen); });
  if (preview.isVisible()) return;
  preview.ShowModal();
  preview.UnloadForm();
}

void EditBusinessAddress() {
  const auto address = EditComments(u"Enter business address"_s, GetBusinessAddress(), u"Business Address"_s);
  if (address) SaveAddress(*address);
}
