#pragma once
#include <QStringList>

#include <functional>
#include <optional>

#include "reports/canvas.h"

/// A report whose data have been read: its forms are made from them as often as they are wanted, and read nothing more.
struct Report {
  PageOrientation orientation = PageOrientation::Portrait;
  std::function<void(Canvas& canvas)> paint;
  std::function<QStringList()> html = {};                ///< line by line, for a report that can be mailed
  std::function<void(FontChoice& font)> limitFont = {};  ///< cuts a font that is too great for the report
};

/// Runs what reads a report; `routine` titles the box of its failure. Nothing, after the box, when it can't be read.
/// Its HTML replaces the file of that name in the support folder, whole. The file of the report before goes first, so
/// that it is never mailed in the place of one that fails; a report whose file can't be written can be printed, not
/// mailed.
std::optional<Report> MakeReport(const QString& routine, const QString& htmlFile, const std::function<Report()>& read);

/// The pages in a font, which a report may cut.
Pages DrawReport(const Report& report, FontChoice& font);
