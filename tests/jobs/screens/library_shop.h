#pragma once
#include <QTest>

#include "core/widgets/list.h"
#include "jobs/sample_job.h"
#include "jobs/screens.h"
#include "support/screens/controls.h"
#include "support/screens/screen_script.h"

/// The sample loft with the screens of its library: the three fixed tasks, "AAD check", "Line check" and the event
/// "Reserve ride".
struct LibraryShop : SampleJob {
  ScreenScript screens;
  int lineCheck = AddEntry("Line check", 1, 3, {kMainCanopy, kContainer});
  int ride = AddEvent("Reserve ride");

  static QStringList Texts(QWidget& screen, const char* list) {
    auto& found = Control<List>(screen, QString::fromLatin1(list));
    QStringList texts;
    for (int row = 0; row < found.Count(); ++row) texts << found.ItemText(row);
    return texts;
  }
  static QString Selected(QWidget& screen, const char* list) {
    auto& found = Control<List>(screen, QString::fromLatin1(list));
    return found.ItemText(found.ListIndex());
  }
  static QStringList Ticked(QWidget& screen, const char* list) {
    auto& found = Control<List>(screen, QString::fromLatin1(list));
    QStringList texts;
    for (int row = 0; row < found.Count(); ++row)
      if (found.IsTicked(row)) texts << found.ItemText(row);
    return texts;
  }
  static void SelectText(QWidget& screen, const char* list, const QString& text) {
    Control<List>(screen, QString::fromLatin1(list)).SetListIndex(static_cast<int>(Texts(screen, list).indexOf(text)));
  }
  /// What a person does who walks to a row and presses the space bar.
  static void Tick(QWidget& screen, const char* list, const QString& text) {
    SelectText(screen, list, text);
    PressKey(Control<List>(screen, QString::fromLatin1(list)), Qt::Key_Space);
  }
};
