#include "reports/screens/page_picture.h"

#include <QPainter>

#include "core/widgets/screen_routines.h"
#include "reports/paint_page.h"

namespace {

constexpr double kTwipsToThePixel = 15;

}  // namespace

PagePicture::PagePicture(QWidget* parent) : QWidget(parent) { setObjectName(QStringLiteral("pic")); }

void PagePicture::SetPage(const Pages& pages, int number) {
  page_ = pages.pages.value(number - 1);
  setFixedSize(FromTwips(qRound(pages.Width())), FromTwips(qRound(pages.Height())));
  setAccessibleName(QStringLiteral("Page %1").arg(number));
  setAccessibleDescription(PageAsText(page_));
  update();
}

void PagePicture::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::white);
  painter.scale(1.0 / kTwipsToThePixel, 1.0 / kTwipsToThePixel);
  PaintPage(painter, page_);
}
