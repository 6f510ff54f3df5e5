#include "platform/qt/HintLine.h"

#include "platform/qt/Look.h"

HintLine::HintLine(QWidget *parent) : ElidedLabel(parent) {
  setObjectName(QStringLiteral("Hinweis"));
  setTextFormat(Qt::PlainText);
  setMargin(2);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void HintLine::setHint(const QString &text) {
  setText(text);
  setAccessibleDescription(text);
  if (text.isEmpty())
    Look::resetGround(this);
  else
    Look::setGround(this, QColor(0xFFF1C9));
  setAutoFillBackground(!text.isEmpty());
}
