#pragma once
#include <QLineEdit>
#include <QTest>

#include "core/widgets/grid.h"
#include "core/widgets/list.h"
#include "jobs/sample_job.h"
#include "jobs/screens.h"
#include "support/screens/controls.h"
#include "support/screens/screen_script.h"

/// The columns of the lines.
enum LineColumn { kTask, kRigger, kPrice, kStatus, kDate };

/// A loft's job on the job screen.
template <class Shop>
struct OnScreen : Shop {
  ScreenScript screens;
  OnScreen() { Open(); }
  void Open() const { GotoJob(this->job); }
  QWidget& Screen() const { return dynamic_cast<QWidget&>(*Forms::Find(QStringLiteral("frmJob"))); }
  Grid& Lines() const { return Control<Grid>(Screen(), QStringLiteral("Grid2")); }
  QString Label(const char* name) const { return TextOf(Screen(), QString::fromLatin1(name)); }
  bool Shows(const char* name) const { return Control<QWidget>(Screen(), QString::fromLatin1(name)).isVisible(); }
  void Choose(const QString& menu, const QString& command) const { ChooseMenu(Screen(), {menu, command}); }
  /// Adds a library entry behind the screen's back and shows it.
  int AddShown(int taskLibID) const {
    const int line = this->AddTask(taskLibID);
    Choose(QStringLiteral("Tools"), QStringLiteral("Refresh"));
    return line;
  }
  QString Row(int row) const {
    QStringList cells;
    for (int column = kTask; column <= kDate; ++column) cells << Lines().Text(row, column);
    return cells.join(QChar(u'|'));
  }
  void SetWorkDate(const QString& text) const { Control<QLineEdit>(Screen(), QStringLiteral("txtDate")).setText(text); }
  /// Edits a label in place: a click, the text, a key.
  void EditLabel(const char* label, const QString& text, Qt::Key key = Qt::Key_Return) const {
    QTest::mouseClick(&Control<QWidget>(Screen(), QString::fromLatin1(label)), Qt::LeftButton);
    TypeInto(Screen(), QStringLiteral("txtAny"), text);
    PressKey(Screen(), QStringLiteral("txtAny"), key);
  }
  void TypeIntoCell(int row, int column, const QString& text, Qt::Key key = Qt::Key_Return) const {
    ClickCell(Lines(), row, column);
    QVERIFY(Lines().IsEditing());
    Lines().Editor()->selectAll();
    QTest::keyClicks(Lines().Editor(), text);
    QTest::keyClick(Lines().Editor(), key);
  }
};

/// The sample job on the job screen.
using OpenJob = OnScreen<SampleJob>;
