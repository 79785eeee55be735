#include "core/text.h"

#include <algorithm>
#include <cmath>

#include "core/format.h"

using namespace Qt::StringLiterals;

namespace {

QString Trimmed(const QString& text) {
  qsizetype start = 0;
  qsizetype end = text.size();
  while (start < end && text[start] == u' ') ++start;
  while (end > start && text[end - 1] == u' ') --end;
  return text.mid(start, end - start);
}

QChar SeparatorOf(const QString& folder) { return !folder.contains(u'\\') && folder.contains(u'/') ? u'/' : u'\\'; }

bool IsSeparator(QChar c) { return c == u'/' || c == u'\\'; }

}  // namespace

QString JoinPath(const QString& folder, const QString& name) {
  const bool leading = !name.isEmpty() && IsSeparator(name.front());
  return AddClosingSeparator(folder) + (leading ? name.mid(1) : name);
}

QString AddClosingSeparator(const QString& folder) {
  if (folder.isEmpty() || IsSeparator(folder.back())) return folder;
  return folder + SeparatorOf(folder);
}

bool IsPath(const QString& text) { return HasSlash(text); }

QString ChangeFileExtention(const QString& InFile, const QString& myExt) {
  return InFile.section(u'.', 0, 0) + u'.' + myExt;
}

QString MakeWildcardName(const QString& text, const QString& extension) {
  return text.section(u'.', 0, 0) + u'*' + extension;
}

bool IsEven(double number) { return number / 2 == std::floor(number / 2); }

bool IsAllDigits(const QString& text) {
  return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

bool IsPrintable(int code) { return code >= 32 && code <= 125; }

bool HasSlash(const QString& text) { return std::any_of(text.begin(), text.end(), IsSeparator); }

QString ReplaceChar(const QString& text, QChar old, QChar replacement) {
  return QString(text).replace(old, replacement);
}

QString RemoveDoubleSpaces(const QString& text) { return text.split(u' ', Qt::SkipEmptyParts).join(u' '); }

QString ArticleFor(const QString& word) {
  if (word.isEmpty()) return {};
  return u"AEIOU8"_s.contains(word.front().toUpper()) ? u"an "_s : u"a "_s;
}

QString ProperCase(const QString& text) {
  QString result = Trimmed(text);
  for (qsizetype i = 0; i < result.size(); ++i) {
    if (i == 0 || result[i - 1] == u' ') result[i] = result[i].toUpper();
  }
  return result;
}

void SplitName(const QString& text, QString& last, QString& first) {
  const QString name = RemoveDoubleSpaces(text);
  if (const qsizetype comma = name.indexOf(u','); comma >= 0) {
    last = Trimmed(name.left(comma));
    first = Trimmed(name.mid(comma + 1));
    return;
  }
  const qsizetype blank = name.lastIndexOf(u' ');
  last = name.mid(blank + 1);
  first = name.left(std::max<qsizetype>(blank, 0));
}

int FindLast(const QString& text, QChar character) { return static_cast<int>(text.lastIndexOf(character)) + 1; }

int CountOccurrences(const QString& text, const QString& subText, bool MatchCase) {
  if (subText.isEmpty()) return 0;
  return static_cast<int>(text.count(subText, MatchCase ? Qt::CaseSensitive : Qt::CaseInsensitive));
}

bool IdInArray(int id, const QList<int>& ids) { return ids.contains(id); }

QString FormatFileSize(double bytes) {
  const double kB = bytes / 1024;
  const double MB = kB / 1000;
  return Format(kB, u"###,###,##0"_s) + u" kB  ("_s + Format(MB, u"###,###,##0.0"_s) + u" MB)"_s;
}
