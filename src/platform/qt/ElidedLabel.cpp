#include "platform/qt/ElidedLabel.h"

#include "platform/qt/Look.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>

QSize ElidedLabel::minimumSizeHint() const {
  return {fontMetrics().horizontalAdvance(QStringLiteral("…")), QLabel::minimumSizeHint().height()};
}

QString ElidedLabel::shown() const {
  const auto mode = property("mitteKuerzen").toBool() ? Qt::ElideMiddle : Qt::ElideRight;
  return fontMetrics().elidedText(text(), mode, contentsRect().width());
}

bool ElidedLabel::event(QEvent *event) {
  if (event->type() != QEvent::ToolTip || shown() == text())
    return QLabel::event(event);
  Look::showWhole(*static_cast<QHelpEvent *>(event), text(), this);
  return true;
}

void ElidedLabel::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  drawFrame(&painter);
  style()->drawItemText(&painter, contentsRect(), int(QStyle::visualAlignment(layoutDirection(), alignment())),
                        palette(), isEnabled(), shown(), foregroundRole());
}
