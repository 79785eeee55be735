#include "reports/screens.h"

#include "core/screens.h"
#include "reports/business_address.h"
#include "reports/fonts.h"
#include "reports/report_keys.h"
#include "reports/screens/frmPrintPreview.h"

using namespace Qt::StringLiterals;

void ShowReport(const std::optional<Report>& report) {
  if (!report) return;
  frmPrintPreview& preview = SharedForm<frmPrintPreview>();
  preview.SetReport(*report, ReadFonts());
  if (preview.isVisible()) return;
  preview.ShowModal();
  preview.UnloadForm();
}

void DoReport(const QString& key, int id) { ShowReport(ReportOfKey(key, id)); }

void EditBusinessAddress() {
  const auto address = EditComments(u"Enter business address"_s, GetBusinessAddress(), u"Business Address"_s);
  if (address) SaveAddress(*address);
}
