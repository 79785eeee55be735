#include "core/text_files.h"

#include <QStringDecoder>

#include <limits>

#include "core/failure.h"
#include "core/files.h"
#include "core/trap.h"

using namespace Qt::StringLiterals;

namespace {

// Windows-1252 from 0x80 to 0x9F; the five codes that it leaves open stay control characters.
constexpr char16_t kWindows1252[] =
    u"\u20AC\u0081\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\u008D\u017D\u008F"
    u"\u0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\u009D\u017E\u0178";

QString DecodeWindows1252(const QByteArray& bytes) {
  QString text = QString::fromLatin1(bytes);
  for (QChar& c : text) {
    if (c >= u'\x80' && c <= u'\x9F') c = kWindows1252[c.unicode() - 0x80];
  }
  return text;
}

}  // namespace

QString DecodeText(const QByteArray& bytes) {
  QStringDecoder decoder(QStringDecoder::Utf8);
  const QString text = decoder(bytes);
  return decoder.hasError() ? DecodeWindows1252(bytes) : text;
}

QStringList LinesOf(const QString& text) {
  QString plain = text;
  plain.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
  if (plain.endsWith(u'\n'))
    plain.chop(1);
  else if (plain.isEmpty())
    return {};
  return plain.split(u'\n');
}

QStringList ReadLines(const QString& fn) { return LinesOf(DecodeText(ReadFile(fn))); }

void WriteLines(const QString& fn, const QStringList& lines) {
  QByteArray content;
  for (const QString& line : lines) content += line.toUtf8() + "\r\n";
  ReplaceFileSafely(fn, content);
}

QString GetFileText(const QString& fn) {
  QString text;
  Trap(u"function GetFileText(fn As String)"_s, [&] {
    for (const QString& line : ReadLines(fn)) text += line + u'\n';
  });
  return text;
}

void ReadFileIntoArray(const QString& fn, QStringList& lines) {
  lines.clear();
  Trap(u"Sub ReadFileIntoArray"_s, [&] { lines = ReadLines(fn); });
}

qint16 GetNumberLinesInFile(const QString& fn) {
  qint16 number = 0;
  Trap(u"Function GetNumberLinesInFile"_s, [&] {
    const qsizetype count = ReadLines(fn).size();
    if (count > std::numeric_limits<qint16>::max()) throw Failure(u"Overflow"_s);
    number = static_cast<qint16>(count);
  });
  return number;
}

bool StringExistsInFile(const QString& fn, const QString& text) {
  bool exists = false;
  Trap(u"Function StringExistsInFile"_s, [&] { exists = ReadLines(fn).contains(text, Qt::CaseInsensitive); });
  return exists;
}

void RemoveItemFromFile(const QString& fn, const QString& text) {
  if (!ExistFile(fn)) {
    MsgBox(u"File not found"_s, fn);
    return;
  }
  TrapWith(
      u"Sub RemoveItemFromFile"_s,
      [&] {
        QStringList lines = ReadLines(fn);
        if (lines.removeAll(text) > 0) WriteLines(fn, lines);
      },
      [&] {
        return Lines({u"File: "_s + fn, u"Text: "_s + text});
      });
}

void StripFile(const QString& fn) {
  Trap(u"Sub StripFile"_s, [&] {
    QStringList lines = ReadLines(fn);
    const qsizetype before = lines.size();
    while (!lines.isEmpty() && lines.last().trimmed().isEmpty()) lines.removeLast();
    if (lines.size() < before) WriteLines(fn, lines);
  });
}
