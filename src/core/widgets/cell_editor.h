#pragma once
#include <QLineEdit>

/// The text box that is laid over a grid's cell.
class CellEditor : public QLineEdit {
  Q_OBJECT
 public:
  explicit CellEditor(QWidget* parent);

 Q_SIGNALS:
  void Entered();
  void Abandoned();
  void Left();
  void KeyPressed(int key, bool& handled);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
};
