#include "core/widgets/click_label.h"

#include <QKeyEvent>

ClickLabel::ClickLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setFocusPolicy(Qt::TabFocus);
  setFrameShape(QFrame::Box);
  setFrameShadow(QFrame::Plain);
  setLineWidth(0);
  setMargin(2);
  setCursor(Qt::IBeamCursor);
}

void ClickLabel::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->pos())) Q_EMIT Asked();
}

void ClickLabel::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F2:
    case Qt::Key_Space:
      Q_EMIT Asked();
      break;
    default:
      QLabel::keyPressEvent(event);
  }
}

// A label paints no focus of its own.
void ClickLabel::focusInEvent(QFocusEvent* event) {
  setLineWidth(1);
  QLabel::focusInEvent(event);
}

void ClickLabel::focusOutEvent(QFocusEvent* event) {
  setLineWidth(0);
  QLabel::focusOutEvent(event);
}
