#include "reports/fonts.h"

#include "core/data_folder.h"
#include "core/files.h"
#include "core/format.h"
#include "core/text_files.h"
#include "core/trap.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double kLogbookSize = 10;
constexpr double kGreatestSize = 200;

FontChoice NewFont() { return {u"Arial"_s, 10, false, false}; }

QString FlagText(bool flag) { return flag ? u"True"_s : u"False"_s; }
bool FlagOf(const QString& text) { return text.trimmed().compare(u"True"_s, Qt::CaseInsensitive) == 0; }

}  // namespace

QString FontsFile() { return DataPath + u"fonts.ini"_s; }

FontChoice ReadFonts() {
  FontChoice font = NewFont();
  Trap(u"Sub ReadFonts"_s, [&] {
    if (!ExistFile(FontsFile())) CreateFonts();
    if (!ExistFile(FontsFile())) return;  // CreateFonts has told why
    const QStringList lines = ReadLines(FontsFile());
    if (const QString name = lines.value(0).trimmed(); !name.isEmpty()) font.name = name;
    if (const double size = Val(lines.value(1)); size >= 1 && size <= kGreatestSize) font.size = size;
    font.bold = FlagOf(lines.value(2));
    font.italic = FlagOf(lines.value(3));
  });
  return font;
}

void WriteFonts(const FontChoice& font) {
  Trap(u"Sub WriteFonts"_s, [&] {
    WriteLines(FontsFile(), {font.name, QString::number(font.size), FlagText(font.bold), FlagText(font.italic)});
  });
}

void CreateFonts() {
  if (DiagnosticMode) MsgBox(u"creating new fonts.ini file at: "_s + FontsFile());
  WriteFonts(NewFont());
}

void LimitLogbookFont(FontChoice& font) {
  if (font.size <= kLogbookSize) return;
  MsgBox(Lines({u"Logbook cannot have font size > 10"_s, QString(), u"Font size changed to 10"_s}),
         u"Font size = "_s + QString::number(font.size));
  font.size = kLogbookSize;
  WriteFonts(font);
}
