#include "reports/primitives.h"

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

QString FitToUnits(const Canvas& canvas, QString text, double units) {
  while (!text.isEmpty() && canvas.TextWidth(text) > units) {
    text.chop(1);
    if (!text.isEmpty() && text.back().isHighSurrogate()) text.chop(1);  // never half a character
  }
  return text;
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
