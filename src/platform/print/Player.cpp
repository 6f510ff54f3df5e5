#include "platform/print/Player.h"

#include "platform/print/PrintMetrics.h"

#include <QPagedPaintDevice>
#include <QPainter>

using PrintMetrics::DotsAMillimetre;

namespace {

constexpr double DotsAnInch = 1440, LineUnit = DotsAnInch / 300;

QRectF inDots(double x1, double y1, double x2, double y2) {
  return QRectF(QPointF(x1, y1) * DotsAMillimetre, QPointF(x2, y2) * DotsAMillimetre).normalized();
}

// Square ends and mitred corners: lines that meet make a clean frame.
QPen pen(int lineWidth, unsigned color) {
  return QPen(QColor::fromRgb(color), lineWidth * LineUnit, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
}

/// Draws one operation; keeps the font that is set, as neighbours mostly share it.
class PageDrawer {
public:
  explicit PageDrawer(QPainter &painter) : m_painter(painter) {}

  void operator()(const TextOperation &o) {
    if (!(o.font == m_font)) {
      m_font = o.font;
      m_ascent = PrintMetrics::ascentInDots(o.font);
      m_painter.setFont(PrintMetrics::fontInDots(o.font));
    }
    m_painter.setPen(Qt::black);
    m_painter.drawText(QPointF(o.x, o.y) * DotsAMillimetre + QPointF(0, m_ascent), o.text);
  }
  void operator()(const LineOperation &o) {
    m_painter.setPen(pen(o.lineWidth, o.color));
    m_painter.drawLine(QPointF(o.x1, o.y1) * DotsAMillimetre, QPointF(o.x2, o.y2) * DotsAMillimetre);
  }
  void operator()(const BoxOperation &o) {
    m_painter.setPen(pen(o.lineWidth, o.color));
    m_painter.setBrush(Qt::NoBrush);
    m_painter.drawRect(inDots(o.x1, o.y1, o.x2, o.y2));
  }
  void operator()(const FillOperation &o) {
    m_painter.fillRect(inDots(o.x1, o.y1, o.x2, o.y2), QColor::fromRgb(o.color));
  }
  void operator()(const PictureOperation &o) {
    if (!o.image.isNull())
      m_painter.drawImage(inDots(o.x, o.y, o.x + o.width, o.y + o.height), o.image);
  }

private:
  QPainter &m_painter;
  PrintFont m_font{QString(), 0};
  double m_ascent = 0;
};

} // namespace

QPageLayout pageLayout(const Recording &recording) {
  return QPageLayout(QPageSize(QPageSize::A4), recording.landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
                     QMarginsF());
}

void playPage(const PrintPage &page, QPainter &painter) {
  painter.save();
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.translate(Blatt::Rand * DotsAMillimetre, Blatt::Rand * DotsAMillimetre);
  PageDrawer drawer(painter);
  for (const PrintOperation &operation : page)
    std::visit(drawer, operation);
  painter.restore();
}

bool play(const Recording &recording, QPagedPaintDevice &device) {
  QPainter painter;
  if (!painter.begin(&device))
    return false;
  painter.scale(device.logicalDpiX() / DotsAnInch, device.logicalDpiY() / DotsAnInch);
  bool first = true;
  for (const PrintPage &page : recording.pages) {
    if (!std::exchange(first, false) && !device.newPage())
      return false;
    playPage(page, painter);
  }
  return painter.end();
}
