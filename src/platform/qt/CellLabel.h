#pragma once

#include <QLabel>

/// A caption that works as a cell of a grid: a left click, Enter and the blank key press it, the arrow keys ask for a
/// neighbour. A click gives it the focus first, so that a field left by it has stored its value before.
class CellLabel : public QLabel {
  Q_OBJECT

public:
  explicit CellLabel(QWidget *parent = nullptr);
  /// A chosen cell has bold letters in this colour on a dark ground, any other plain black ones on white.
  void setChosen(bool chosen, QColor letters);

Q_SIGNALS:
  void pressed();
  /// One of the two is −1 or 1.
  void stepped(int columns, int rows);

protected:
  void mousePressEvent(QMouseEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void focusInEvent(QFocusEvent *event) override;
  void focusOutEvent(QFocusEvent *event) override;
  void paintEvent(QPaintEvent *event) override;
};
