#pragma once
#include <QString>

#include <array>

#include "core/money.h"
#include "reports/canvas.h"

/// What every report is drawn with. Places across the page are fractions of its width, 0.0 to 1.0; the place down the
/// page is the canvas's CurrentY.

enum Justify : int { kJustifyLeft = 0, kJustifyRight = 1, kJustifyCentre = 2 };

/// Bold text as long as it lives; then as before.
class BoldText {
 public:
  explicit BoldText(Canvas& canvas) : canvas_(canvas), before_(canvas.FontBold) { canvas.FontBold = true; }
  ~BoldText() { canvas_.FontBold = before_; }
  BoldText(const BoldText&) = delete;
  BoldText& operator=(const BoldText&) = delete;

 private:
  Canvas& canvas_;
  bool before_;
};

/// Writes a text that begins at, ends at, or stands around the fraction. Any other code shows a box and writes where
/// the canvas stands.
void PrintJustified(Canvas& canvas, double fraction, const QString& text, bool stay = false,
                    int justify = kJustifyLeft);
/// Writes an amount ("1,234.50") with its decimal point at the fraction, and ends the line.
void PrintMoney(Canvas& canvas, double fraction, Money amount);
/// The part of an amount that stands left of its decimal point.
QString MoneyBeforePoint(Money amount);
/// The text cut behind the last character that fits into a fraction of the width, or into a width in twips. Cells are
/// never wrapped.
QString FitToWidth(const Canvas& canvas, const QString& text, double fraction);
QString FitToUnits(const Canvas& canvas, const QString& text, double units);

/// A line across the page, from one fraction to another.
void PrintRule(Canvas& canvas, double from, double to);
/// A line down the page, one line of text high.
void BoxLine(Canvas& canvas, double fraction);
/// The upright lines of a table's row.
void NineRules(Canvas& canvas, const std::array<double, 9>& fractions);
void FiveRules(Canvas& canvas, const std::array<double, 5>& fractions);

/// Called before a line: starts a new page when the canvas stands in the lowest tenth. There is no other bottom margin.
void PageCheck(Canvas& canvas);
