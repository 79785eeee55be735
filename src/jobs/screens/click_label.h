#pragma once
#include <QLabel>

/// A label whose text can be changed in place: a click, Enter, F2 or Space asks for it.
class ClickLabel : public QLabel {
  Q_OBJECT
 public:
  explicit ClickLabel(QWidget* parent = nullptr);

 Q_SIGNALS:
  void Asked();

 protected:
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
};
