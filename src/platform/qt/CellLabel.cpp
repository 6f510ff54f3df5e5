#include "platform/qt/CellLabel.h"

#include "platform/qt/Look.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

constexpr QRgb ChosenGround = 0x1C222B; // on which green letters can be read

} // namespace

CellLabel::CellLabel(QWidget *parent) : QLabel(parent) {
  setFocusPolicy(Qt::ClickFocus);
  setAlignment(Qt::AlignCenter);
}

void CellLabel::setChosen(bool chosen, QColor letters) {
  if (chosen == font().bold())
    return;
  Look::setGround(this, chosen ? QColor(ChosenGround) : QColor(Qt::white));
  if (chosen) {
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, letters);
    colors.setColor(QPalette::Highlight, letters);
    setPalette(colors);
  }
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
  Look::drawFrame(painter, rect(), palette().color(QPalette::Highlight), Look::FocusWidth);
}
