#pragma once
#include <QString>
#include <QWidget>

class Grid;

/// What a person does with the controls of a screen, found by name. A control that is missing ends the test program:
/// a test can't go on without it.

/// Fails hard; used by Control.
[[noreturn]] void NoSuchControl(const QWidget& screen, const QString& name);

template <class W>
W& Control(QWidget& screen, const QString& name) {
  if (W* found = screen.findChild<W*>(name)) return *found;
  NoSuchControl(screen, name);
}

void Click(QWidget& screen, const QString& button);  ///< by the mouse; a disabled button stays unpressed
void TypeInto(QWidget& screen, const QString& box, const QString& text);  ///< in the place of what stands there
void PressKey(QWidget& screen, const QString& control, Qt::Key key, Qt::KeyboardModifiers modifiers = {});
void PressKey(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {});
/// Triggers a menu command by the captions on its road, mnemonics left out: {"Rig", "Show this rig"}.
void ChooseMenu(QWidget& screen, const QStringList& road);
QString TextOf(QWidget& screen, const QString& control);  ///< what a label, box, button or check box shows

void ClickCell(Grid& grid, int row, int column, Qt::KeyboardModifiers modifiers = {},
               Qt::MouseButton button = Qt::LeftButton);
void DoubleClickCell(Grid& grid, int row, int column);
void ClickHeading(Grid& grid, int column);

/// Looks at a screen as a person would: no two of its commands claim one letter. Saves a picture of it as NAME.png into
/// the folder named by LOFTKEEP_TOUR_PICTURES, when that is set.
void Picture(QWidget& widget, const QString& name);
