#include "support/screens/controls.h"

#include <QAbstractButton>
#include <QAction>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include "core/widgets/form.h"
#include "core/widgets/grid.h"
#include "support/screens/keyboard.h"

void NoSuchControl(const QWidget& screen, const QString& name) {
  qFatal("%s has no such control: %s", screen.metaObject()->className(), qPrintable(name));
}

void Click(QWidget& screen, const QString& button) {
  auto& found = Control<QAbstractButton>(screen, button);
  // A check box takes clicks on its mark and text, not on the room beside them.
  const bool hasMark = qobject_cast<QPushButton*>(&found) == nullptr;
  QTest::mouseClick(&found, Qt::LeftButton, {}, hasMark ? QPoint(8, found.height() / 2) : QPoint());
}

void TypeInto(QWidget& screen, const QString& box, const QString& text) {
  auto& widget = Control<QWidget>(screen, box);
  QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&widget, Qt::Key_Delete);
  // Qt Test knows the keys of ASCII alone.
  for (QChar letter : text) {
    if (letter.unicode() < 128)
      QTest::keyClick(&widget, letter.toLatin1());
    else
      QTest::sendKeyEvent(QTest::Click, &widget, Qt::Key_unknown, QString(letter), Qt::NoModifier);
  }
}

void PressKey(QWidget& screen, const QString& control, Qt::Key key, Qt::KeyboardModifiers modifiers) {
  PressKey(Control<QWidget>(screen, control), key, modifiers);
}

void PressKey(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(&widget, key, modifiers);
}

void ChooseMenu(QWidget& screen, const QStringList& road) {
  auto* bar = screen.findChild<QMenuBar*>();
  if (!bar) NoSuchControl(screen, road.join(QStringLiteral(" > ")));
  QList<QAction*> actions = bar->actions();
  QAction* chosen = nullptr;
  for (const QString& caption : road) {
    const auto named = [&](QAction* action) { return action->text().remove(u'&') == caption; };
    const auto found = std::find_if(actions.cbegin(), actions.cend(), named);
    if (found == actions.cend()) NoSuchControl(screen, road.join(QStringLiteral(" > ")));
    chosen = *found;
    if (chosen->menu()) actions = chosen->menu()->actions();
  }
  if (chosen) chosen->trigger();
}

QString TextOf(QWidget& screen, const QString& control) {
  const QWidget& widget = Control<QWidget>(screen, control);
  if (const auto* box = qobject_cast<const QPlainTextEdit*>(&widget)) return box->toPlainText();
  return widget.property("text").toString();
}

void ClickCell(Grid& grid, int row, int column, Qt::KeyboardModifiers modifiers, Qt::MouseButton button) {
  const QModelIndex index = grid.model()->index(row, column);
  grid.scrollTo(index);
  QTest::mouseClick(grid.viewport(), button, modifiers, grid.visualRect(index).center());
}

void DoubleClickCell(Grid& grid, int row, int column) {
  ClickCell(grid, row, column);
  const QRect place = grid.visualRect(grid.model()->index(row, column));
  QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, place.center());
}

void ClickHeading(Grid& grid, int column) {
  const QHeaderView* heading = grid.horizontalHeader();
  const QPoint place(heading->sectionViewportPosition(column) + heading->sectionSize(column) / 2,
                     heading->height() / 2);
  QTest::mouseClick(heading->viewport(), Qt::LeftButton, {}, place);
}

void Picture(QWidget& widget, const QString& name) {
  if (auto* form = qobject_cast<Form*>(&widget)) QCOMPARE(ClashesOf(*form), QString());
  const QString folder = qEnvironmentVariable("LOFTKEEP_TOUR_PICTURES");
  if (folder.isEmpty()) return;
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);  // as the person sees it once all is in its place
  const QString path = QDir(folder).filePath(name + QStringLiteral(".png"));
  QVERIFY2(QDir().mkpath(folder) && widget.grab().save(path), qPrintable(path));
}
