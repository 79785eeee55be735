#include "reports/canvas.h"

namespace {

constexpr double kShortSide = 12240;
constexpr double kLongSide = 15840;
constexpr int kTwipsToThePoint = 20;

// A line break or a tab in a name is a blank on paper.
QString OneLine(QString text) {
  for (QChar& character : text)
    if (character.category() == QChar::Other_Control) character = u' ';
  return text;
}

}  // namespace

double Pages::Width() const { return orientation == PageOrientation::Portrait ? kShortSide : kLongSide; }
double Pages::Height() const { return orientation == PageOrientation::Portrait ? kLongSide : kShortSide; }

QFont PageFont(const FontChoice& font) {
  QFont result(font.name);
  result.setPixelSize(qMax(1, qRound(font.size * kTwipsToThePoint)));
  result.setBold(font.bold);
  result.setItalic(font.italic);
  result.setHintingPreference(QFont::PreferNoHinting);
  return result;
}

Canvas::Canvas(PageOrientation orientation, const FontChoice& font)
    : reportFont_(font), measured_(font), metrics_(PageFont(font)) {
  pages_.orientation = orientation;
  pages_.pages.emplaceBack();
  SetFont(font);
}

const QFontMetricsF& Canvas::Metrics() const {
  if (const FontChoice font = Font(); font != measured_) {
    measured_ = font;
    metrics_ = QFontMetricsF(PageFont(font));
  }
  return metrics_;
}

double Canvas::TextWidth(const QString& text) const { return Metrics().horizontalAdvance(OneLine(text)); }

double Canvas::TextHeight(const QString& /*text*/) const { return Metrics().lineSpacing(); }

void Canvas::SetFont(const FontChoice& font) {
  FontName = font.name;
  FontSize = font.size;
  FontBold = font.bold;
  FontItalic = font.italic;
}

void Canvas::Line(double x1, double y1, double x2, double y2) {
  pages_.pages.last().push_back(PageLine{x1, y1, x2, y2});
}

void Canvas::Print(const QString& text, bool stay) {
  if (!text.isEmpty()) pages_.pages.last().push_back(PageText{CurrentX, CurrentY, OneLine(text), Font()});
  if (stay) {
    CurrentX += TextWidth(text);
  } else {
    CurrentX = 0;
    CurrentY += TextHeight(text);
  }
}

void Canvas::NewPage() {
  pages_.pages.emplaceBack();
  CurrentX = 0;
  CurrentY = 0;
  SetFont(reportFont_);
}
