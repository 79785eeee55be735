#include "core/widgets/cell_editor.h"

#include <QKeyEvent>

CellEditor::CellEditor(QWidget* parent) : QLineEdit(parent) {
  setFrame(false);
  setTextMargins(2, 0, 2, 0);
  setAutoFillBackground(true);
  hide();
}

void CellEditor::keyPressEvent(QKeyEvent* event) {
  bool handled = false;
  Q_EMIT KeyPressed(event->key(), handled);
  if (handled) {
    event->accept();
    return;
  }
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      Q_EMIT Entered();
      break;
    case Qt::Key_Escape:
      Q_EMIT Abandoned();
      break;
    default:
      QLineEdit::keyPressEvent(event);
      return;
  }
  event->accept();
}

void CellEditor::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  // Another window or the box's own menu in front does not mean that the cell was left.
  if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason) Q_EMIT Left();
}
