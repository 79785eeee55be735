#pragma once
#include "core/prompts.h"

/// The font of all reports, kept in "fonts.ini" of the data folder: name, size, bold and italic, a line to each.

QString FontsFile();

/// The font chosen last. A missing file is made first; what can't be read of a damaged one is as in a new one.
FontChoice ReadFonts();
/// Keeps a font. A failure shows a box.
void WriteFonts(const FontChoice& font);
/// Writes the file anew: Arial, 10 points.
void CreateFonts();

/// The logbook has no room for more than 10 points: a greater font is cut to 10 after a box, and kept so.
void LimitLogbookFont(FontChoice& font);
