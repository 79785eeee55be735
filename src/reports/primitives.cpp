#include "reports/primitives.h"

#include <numeric>

#include "core/format.h"
#include "core/prompts.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double kLowestLine = 0.9;
constexpr double kBeforePoint = 0.0005;
constexpr double kBehindPoint = 0.005;

QString AmountText(Money amount) { return Format(amount, u"##,###,##0.00"_s); }

}  // namespace

void PrintJustified(Canvas& canvas, double fraction, const QString& text, bool stay, int justify) {
  const double place = fraction * canvas.Width();
  switch (justify) {
    case kJustifyLeft:
      canvas.CurrentX = place;
      break;
    case kJustifyRight:
      canvas.CurrentX = place - canvas.TextWidth(text);
      break;
    case kJustifyCentre:
      canvas.CurrentX = place - canvas.TextWidth(text) / 2;
      break;
    default:
      MsgBox(u"need justify value (vbleft, vbright, etc)"_s);
  }
  canvas.Print(text, stay);
}

void PrintMoney(Canvas& canvas, double fraction, Money amount) {
  PrintJustified(canvas, fraction - kBeforePoint, MoneyBeforePoint(amount), true, kJustifyRight);
  PrintJustified(canvas, fraction, u"."_s, true);
  PrintJustified(canvas, fraction + kBehindPoint, AmountText(amount).section(u'.', 1));
}

QString MoneyBeforePoint(Money amount) { return AmountText(amount).section(u'.', 0, 0); }

QString FitToWidth(const Canvas& canvas, const QString& text, double fraction) {
  return FitToUnits(canvas, text, fraction * canvas.Width());
}

QString FitToUnits(const Canvas& canvas, const QString& text, double units) {
  const auto fits = [&](qsizetype length) { return canvas.TextWidth(text.left(length)) <= units; };
  if (fits(text.size())) return text;
  qsizetype fitting = 0;
  qsizetype tooLong = text.size();
  while (tooLong - fitting > 1) {
    const qsizetype middle = std::midpoint(fitting, tooLong);
    (fits(middle) ? fitting : tooLong) = middle;
  }
  QString cut = text.left(fitting);
  if (!cut.isEmpty() && cut.back().isHighSurrogate()) cut.chop(1);  // never half a character
  return cut;
}

void PrintRule(Canvas& canvas, double from, double to) {
  canvas.Line(from * canvas.Width(), canvas.CurrentY, to * canvas.Width(), canvas.CurrentY);
}

void BoxLine(Canvas& canvas, double fraction) {
  const double x = fraction * canvas.Width();
  canvas.Line(x, canvas.CurrentY, x, canvas.CurrentY + canvas.TextHeight(u"x"_s));
}

void NineRules(Canvas& canvas, const std::array<double, 9>& fractions) {
  for (const double fraction : fractions) BoxLine(canvas, fraction);
}

void FiveRules(Canvas& canvas, const std::array<double, 5>& fractions) {
  for (const double fraction : fractions) BoxLine(canvas, fraction);
}

void PageCheck(Canvas& canvas) {
  if (canvas.CurrentY > kLowestLine * canvas.Height()) canvas.NewPage();
}
