#pragma once
#include <QFont>
#include <QFontMetricsF>
#include <QList>
#include <QString>

#include <variant>

#include "core/prompts.h"

/// Pages as values: what a report draws is kept, and preview, printer and PDF replay it. All lengths are twips, 1440 to
/// the inch, counted from the upper left corner.

struct PageText {
  double x = 0;
  double y = 0;  ///< upper edge of the line
  QString text;
  FontChoice font;
  friend bool operator==(const PageText&, const PageText&) = default;
};

struct PageLine {
  double x1 = 0;
  double y1 = 0;
  double x2 = 0;
  double y2 = 0;
  friend bool operator==(const PageLine&, const PageLine&) = default;
};

using PageItem = std::variant<PageText, PageLine>;
using Page = QList<PageItem>;

enum class PageOrientation { Portrait = 1, Landscape = 2 };

struct Pages {
  PageOrientation orientation = PageOrientation::Portrait;
  QList<Page> pages;

  double Width() const;  ///< of a US Letter page
  double Height() const;
  friend bool operator==(const Pages&, const Pages&) = default;
};

/// The font of a text on a page, with one pixel to the twip, so that it measures the same on every surface.
QFont PageFont(const FontChoice& font);

/// The surface that reports draw on. Position and font are the report's to change at any time; lines leave the position
/// as it is.
class Canvas {
 public:
  Canvas(PageOrientation orientation, const FontChoice& font);

  double Width() const { return pages_.Width(); }
  double Height() const { return pages_.Height(); }
  double TextWidth(const QString& text) const;
  /// One line's height, from which the next line starts.
  double TextHeight(const QString& text) const;

  /// Takes over the four fields of a font.
  void SetFont(const FontChoice& font);
  void Line(double x1, double y1, double x2, double y2);
  /// Writes at the position and goes on at the left of the next line, or behind the text when it stays on the line.
  void Print(const QString& text, bool stay = false);
  /// Begins the next page at its upper left corner, in the font that the report began with.
  void NewPage();

  int PageNumber() const { return static_cast<int>(pages_.pages.size()); }  ///< from 1
  const Pages& Drawn() const { return pages_; }

  double CurrentX = 0;
  double CurrentY = 0;
  QString FontName;
  double FontSize = 0;  ///< in points
  bool FontBold = false;
  bool FontItalic = false;

 private:
  FontChoice Font() const { return {FontName, FontSize, FontBold, FontItalic}; }
  const QFontMetricsF& Metrics() const;

  Pages pages_;
  FontChoice reportFont_;
  mutable FontChoice measured_;
  mutable QFontMetricsF metrics_;
};
