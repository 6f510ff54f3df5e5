#include "platform/qt/ElidedLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

QSize ElidedLabel::minimumSizeHint() const {
  return {fontMetrics().horizontalAdvance(QStringLiteral("…")), QLabel::minimumSizeHint().height()};
}

QString ElidedLabel::shown() const {
  return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

// Escaped, as a name may hold what looks like markup; a tool tip with markup breaks its lines.
bool ElidedLabel::event(QEvent *event) {
  if (event->type() != QEvent::ToolTip || shown() == text())
    return QLabel::event(event);
  QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                     QStringLiteral("<p>%1</p>").arg(text().toHtmlEscaped()), this);
  return true;
}

void ElidedLabel::paintEvent(QPaintEvent *) {
  QPainter painter(this);
  drawFrame(&painter);
  style()->drawItemText(&painter, contentsRect(), int(QStyle::visualAlignment(layoutDirection(), alignment())),
                        palette(), isEnabled(), shown(), foregroundRole());
}
