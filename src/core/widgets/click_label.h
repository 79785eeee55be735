#pragma once
#include <QLabel>

/// A label that does something when it is asked, by a click, Enter, F2 or Space: mostly, lets its text be changed in
/// place.
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
