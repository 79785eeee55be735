#pragma once
#include <QByteArray>
#include <QString>
#include <QStringList>

// Files of lines. They are read as UTF-8, or as Windows-1252 where they are not valid UTF-8, with any line end; they
// are written as UTF-8, each line ended by CR LF. Unless it says otherwise a routine shows a box when it fails, and its
// caller goes on with an empty result.

/// The whole file as one text, each line followed by "\n".
QString GetFileText(const QString& fn);
/// One element to each line.
void ReadFileIntoArray(const QString& fn, QStringList& lines);
/// Number of lines, up to 32767.
qint16 GetNumberLinesInFile(const QString& fn);
/// True when a whole line equals the text, without regard to case.
bool StringExistsInFile(const QString& fn, const QString& text);
/// Takes out every line that equals the text, with regard to case. The file is rewritten whole or not at all.
void RemoveItemFromFile(const QString& fn, const QString& text);
/// Takes the blank lines from the end of the file.
void StripFile(const QString& fn);

/// The text of a file's bytes.
QString DecodeText(const QByteArray& bytes);
/// The lines of a text; the closing line end makes no line of its own.
QStringList LinesOf(const QString& text);
/// The lines of a file; throws Failure.
QStringList ReadLines(const QString& fn);
/// Replaces a file by these lines, whole or not at all; throws Failure.
void WriteLines(const QString& fn, const QStringList& lines);
