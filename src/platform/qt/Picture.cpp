#include "platform/qt/Picture.h"

#include <QPainter>

void Picture::setFile(const QString &path) {
  m_path = path;
  m_pixmap = QPixmap();
  update();
}

void Picture::paintEvent(QPaintEvent *) {
  if (m_pixmap.isNull() && !m_path.isEmpty())
    m_pixmap.load(m_path);
  if (m_pixmap.isNull())
    return;
  QRect target({}, m_pixmap.size().scaled(size(), Qt::KeepAspectRatio));
  target.moveCenter(rect().center());
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawPixmap(target, m_pixmap);
}
