#include "platform/qt/CellLabel.h"

#include <QKeyEvent>
#include <QPainter>

CellLabel::CellLabel(QWidget *parent) : QLabel(parent) {
  setFocusPolicy(Qt::ClickFocus);
  setAlignment(Qt::AlignCenter);
}

void CellLabel::setChosen(bool chosen, QColor letters) {
  QPalette colors = palette();
  colors.setColor(QPalette::WindowText, chosen ? letters : QColor(Qt::black));
  setPalette(colors);
  QFont type = font();
  type.setBold(chosen);
  setFont(type);
}

void CellLabel::mousePressEvent(QMouseEvent *event) {
  if (event->button() == Qt::LeftButton)
    Q_EMIT pressed();
}

void CellLabel::keyPressEvent(QKeyEvent *event) {
  switch (event->key()) {
  case Qt::Key_Space:
  case Qt::Key_Return:
  case Qt::Key_Enter:
    Q_EMIT pressed();
    return;
  case Qt::Key_Left:
    Q_EMIT stepped(-1, 0);
    return;
  case Qt::Key_Right:
    Q_EMIT stepped(1, 0);
    return;
  case Qt::Key_Up:
    Q_EMIT stepped(0, -1);
    return;
  case Qt::Key_Down:
    Q_EMIT stepped(0, 1);
    return;
  default:
    QLabel::keyPressEvent(event);
  }
}

void CellLabel::focusInEvent(QFocusEvent *event) {
  QLabel::focusInEvent(event);
  update();
}

void CellLabel::focusOutEvent(QFocusEvent *event) {
  QLabel::focusOutEvent(event);
  update();
}

void CellLabel::paintEvent(QPaintEvent *event) {
  QLabel::paintEvent(event);
  if (!hasFocus())
    return;
  QPainter painter(this);
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.drawRect(rect().adjusted(1, 1, -1, -1));
}
