#include "reports/paint_page.h"

#include <QPainter>

namespace {

constexpr double kLineWidth = 15;  // a pixel at 96 dpi

void Paint(QPainter& painter, const PageText& item) {
  const QFont font = PageFont(item.font);
  painter.setFont(font);
  painter.drawText(QPointF(item.x, item.y + QFontMetricsF(font).ascent()), item.text);
}

void Paint(QPainter& painter, const PageLine& item) { painter.drawLine(QLineF(item.x1, item.y1, item.x2, item.y2)); }

}  // namespace

void PaintPage(QPainter& painter, const Page& page) {
  painter.save();
  painter.translate(0, kHeadMargin);
  painter.setRenderHint(QPainter::Antialiasing, false);  // rules stay sharp
  painter.setPen(QPen(Qt::black, kLineWidth));
  for (const PageItem& item : page) std::visit([&](const auto& drawn) { Paint(painter, drawn); }, item);
  painter.restore();
}

QString PageAsText(const Page& page) {
  QString text;
  double y = -1;
  double end = 0;
  for (const PageItem& item : page) {
    const auto* piece = std::get_if<PageText>(&item);
    if (!piece) continue;
    const QFontMetricsF metrics(PageFont(piece->font));
    const bool sameLine = piece->y == y;
    if (!text.isEmpty() && !sameLine) text += u'\n';
    if (sameLine && piece->x - end > metrics.horizontalAdvance(u' ') / 2) text += u' ';
    text += piece->text.trimmed();
    y = piece->y;
    end = piece->x + metrics.horizontalAdvance(piece->text);
  }
  return text;
}
