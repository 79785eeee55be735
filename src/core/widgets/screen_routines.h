#pragma once
#include <QList>
#include <QString>

class QAbstractButton;
class QLineEdit;
class QMenuBar;
class QWidget;

/// Lengths are given in twips where the trade's tables do; 15 are one pixel at 96 dpi.
constexpr int FromTwips(int twips) { return twips / 15; }

/// Selects all text of a box, from the start, and puts the cursor into it.
void SelectAllInBox(QLineEdit* box);

/// Enter moves from each box to the next one, and from the last one to the button, in place of pressing it.
void MoveOnWithEnter(const QList<QLineEdit*>& boxes, QAbstractButton* last);

/// A name as the text of a button, or of a label that leads to a box: "&" is no shortcut in it.
QString WithoutMnemonic(const QString& name);

/// Enables or disables all controls of a form; labels keep their look.
void EnableControls(QWidget* form, bool enabled);

/// Shows the busy pointer and idles; the screens go on painting, but take no input.
void WaitSeconds(double seconds);

/// Places a form over the middle of its caller, or of the screen when there is no caller on show; never off the screen.
void CentreForm(QWidget* form, const QWidget* caller = nullptr);

/// Gives each menu of a bar that has no mnemonic a letter of its caption that nothing else in the window has, so that
/// Alt and the letter open it. The first letters go first; where they run out, the last menus stay without.
void GiveMnemonics(QMenuBar* bar);
