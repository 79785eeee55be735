#pragma once
#include <QList>
#include <QString>

// Paths as texts. A folder keeps the separator that it uses: "\" if it holds any, else "/" if it holds any, else "\".

/// Folder and name with exactly one separator between them.
QString JoinPath(const QString& folder, const QString& name);
/// Closes a folder with its separator; an empty text stays empty.
QString AddClosingSeparator(const QString& folder);
/// True when the text holds "/" or "\".
bool IsPath(const QString& text);
/// The text up to and including its first ".", then the new extension.
QString ChangeFileExtention(const QString& InFile, const QString& myExt);
/// The text up to its first ".", then "*" and the extension, as file dialogs want patterns.
QString MakeWildcardName(const QString& text, const QString& extension);

/// True when half the number is a whole number.
bool IsEven(double number);
/// True when every character is 0 to 9; false for an empty text.
bool IsAllDigits(const QString& text);
/// True for the character codes 32 to 125.
bool IsPrintable(int code);
/// True when any character is "/" or "\".
bool HasSlash(const QString& text);
/// The text with each `old` replaced.
QString ReplaceChar(const QString& text, QChar old, QChar replacement);
/// Trims, and makes one blank of each run of blanks.
QString RemoveDoubleSpaces(const QString& text);
/// "an " before A, E, I, O, U and 8, else "a "; nothing for an empty word.
QString ArticleFor(const QString& word);
/// Trims, and puts the first letter and each letter after a blank in upper case.
QString ProperCase(const QString& text);
/// Splits "Last, First", "Last,First" or "First Middle Last"; a single word is a last name.
void SplitName(const QString& text, QString& last, QString& first);
/// Position of the last occurrence, counted from 1; 0 when there is none.
int FindLast(const QString& text, QChar character);
/// How many times the sub-text occurs, at each place where it starts.
int CountOccurrences(const QString& text, const QString& subText, bool MatchCase);
bool IdInArray(int id, const QList<int>& ids);
/// "1,024 kB  (1.0 MB)". A kB is 1024 bytes here and a MB 1000 kB.
QString FormatFileSize(double bytes);
