#pragma once
#include <QDir>
#include <QFile>
#include <QtTest>

#include "reports/canvas.h"

/// Pages as text: each piece with its place in whole twips, fonts where they change.
inline QString PagesAsText(const Pages& pages) {
  QString text;
  for (qsizetype number = 0; number < pages.pages.size(); ++number) {
    text += QStringLiteral("page %1\n").arg(number + 1);
    FontChoice font;
    for (const PageItem& item : pages.pages.at(number)) {
      if (const auto* line = std::get_if<PageLine>(&item)) {
        text += QStringLiteral("%1 %2 line to %3 %4\n")
                    .arg(qRound(line->x1), 6)
                    .arg(qRound(line->y1), 6)
                    .arg(qRound(line->x2))
                    .arg(qRound(line->y2));
        continue;
      }
      const auto& piece = std::get<PageText>(item);
      if (piece.font != font) {
        font = piece.font;
        text += QStringLiteral("%1 %2%3%4\n")
                    .arg(font.name)
                    .arg(font.size)
                    .arg(QLatin1StringView(font.bold ? " bold" : ""), QLatin1StringView(font.italic ? " italic" : ""));
      }
      text += QStringLiteral("%1 %2 '%3'\n").arg(qRound(piece.x), 6).arg(qRound(piece.y), 6).arg(piece.text);
    }
  }
  return text;
}

/// Compares with a golden file found by QFINDTESTDATA; a missing one is a difference. What was made instead is left
/// beside the test program, under the name of the case.
inline bool IsGolden(const QString& golden, const QString& name, const QString& actual) {
  QFile file(golden);
  if (!golden.isEmpty() && file.open(QIODevice::ReadOnly) && QString::fromUtf8(file.readAll()) == actual) return true;
  QFile made(QDir(QCoreApplication::applicationDirPath()).filePath(name));
  if (made.open(QIODevice::WriteOnly)) made.write(actual.toUtf8());
  qWarning("Differs from its golden file; see %s", qPrintable(made.fileName()));
  return false;
}
