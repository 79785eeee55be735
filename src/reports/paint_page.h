#pragma once
#include "reports/canvas.h"

class QPainter;

/// Space above a page's first line, in twips: printers can't reach the edge, and the lowest tenth is free.
constexpr double kHeadMargin = 720;

/// Replays a page on a painter whose unit is the twip and whose origin is the upper left corner of the paper.
void PaintPage(QPainter& painter, const Page& page);

/// The texts of a page, a row to each line of the page, for those who hear it instead of seeing it.
QString PageAsText(const Page& page);
