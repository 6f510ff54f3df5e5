#include "platform/qt/Picture.h"

#include "platform/print/PictureFile.h"

#include <QPainter>

namespace {

constexpr QSize Largest(2000, 2000); // no screen shows more of it

} // namespace

void Picture::setFile(const QString &path) {
  m_path = path;
  m_pixmap = QPixmap();
  update();
}

void Picture::paintEvent(QPaintEvent *) {
  if (m_pixmap.isNull() && !m_path.isEmpty())
    m_pixmap = QPixmap::fromImage(readPicture(m_path, pictureSize(m_path).scaled(Largest, Qt::KeepAspectRatio)));
  if (m_pixmap.isNull())
    return;
  QRect target({}, m_pixmap.size().scaled(size(), Qt::KeepAspectRatio));
  target.moveCenter(rect().center());
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawPixmap(target, m_pixmap);
}
