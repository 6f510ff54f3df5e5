#include "platform/qt/PreviewPages.h"

#include "platform/print/Player.h"
#include "platform/print/PrintMetrics.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace {

constexpr int Gap = 14;                        // between pages and around them, pixels
constexpr double Smallest = 0.5, Largest = 20; // pixels a millimetre

} // namespace

PreviewPages::PreviewPages(QWidget *parent) : QAbstractScrollArea(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setFrameShape(QFrame::NoFrame);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  viewport()->setBackgroundRole(QPalette::Mid);
}

void PreviewPages::append(const Recording &recording) {
  QSizeF size(Blatt::Breite, Blatt::Hoehe);
  if (recording.landscape)
    size.transpose();
  for (const PrintPage &page : recording.pages) {
    const double top = m_sheets.isEmpty() ? 0 : m_sheets.last().top + m_sheets.last().size.height();
    m_sheets.append({page, size, top});
  }
  arrange();
}

void PreviewPages::clear() {
  m_sheets.clear();
  m_fit = Fit::Page;
  verticalScrollBar()->setValue(0);
  arrange();
}

QSizeF PreviewPages::largest() const {
  QSizeF size(1, 1);
  for (const Sheet &sheet : m_sheets)
    size = size.expandedTo(sheet.size);
  return size;
}

// Pixels a millimetre at which the largest page fits.
double PreviewPages::fitting() const {
  const double wide = (viewport()->width() - 2.0 * Gap) / largest().width();
  const double high = (viewport()->height() - 2.0 * Gap) / largest().height();
  return std::clamp(m_fit == Fit::Width ? wide : std::min(wide, high), Smallest, Largest);
}

// Where a page lies on the whole strip of pages, in pixels.
QRectF PreviewPages::place(int page) const {
  const Sheet &sheet = m_sheets[page];
  const double strip = std::max(double(viewport()->width()), largest().width() * m_pixels + 2 * Gap);
  const QSizeF size = sheet.size * m_pixels;
  return QRectF(QPointF((strip - size.width()) / 2, sheet.top * m_pixels + Gap * (page + 1)), size);
}

void PreviewPages::arrange() {
  if (m_fit != Fit::None)
    m_pixels = fitting();
  const double height = m_sheets.isEmpty() ? 0 : place(pageCount() - 1).bottom() + Gap;
  const double width = largest().width() * m_pixels + 2 * Gap;
  verticalScrollBar()->setRange(0, std::max(0, int(height) - viewport()->height()));
  verticalScrollBar()->setPageStep(viewport()->height());
  verticalScrollBar()->setSingleStep(int(10 * m_pixels));
  horizontalScrollBar()->setRange(0, std::max(0, int(width) - viewport()->width()));
  horizontalScrollBar()->setPageStep(viewport()->width());
  viewport()->update();
  Q_EMIT moved();
}

int PreviewPages::currentPage() const {
  const double line = verticalScrollBar()->value() + viewport()->height() / 3.0;
  int page = pageCount() - 1;
  while (page > 0 && place(page).top() > line)
    --page;
  return page;
}

void PreviewPages::showPage(int page) {
  if (!m_sheets.isEmpty())
    verticalScrollBar()->setValue(int(place(std::clamp(page, 0, pageCount() - 1)).top()) - Gap);
}

void PreviewPages::zoom(double factor) {
  m_fit = Fit::None;
  const double middle = (verticalScrollBar()->value() + viewport()->height() / 2.0) / m_pixels;
  m_pixels = std::clamp(m_pixels * factor, Smallest, Largest);
  arrange();
  verticalScrollBar()->setValue(int(middle * m_pixels - viewport()->height() / 2.0));
}

void PreviewPages::fit(Fit fit) {
  const int page = currentPage();
  m_fit = fit;
  arrange();
  showPage(page);
}

void PreviewPages::drawSheet(QPainter &painter, int page) const {
  const QRectF area = place(page);
  painter.save();
  painter.fillRect(area, Qt::white);
  painter.setClipRect(area);
  painter.translate(area.topLeft());
  painter.scale(m_pixels / PrintMetrics::DotsAMillimetre, m_pixels / PrintMetrics::DotsAMillimetre);
  playPage(m_sheets[page].page, painter);
  painter.restore();
}

void PreviewPages::paintEvent(QPaintEvent *) {
  QPainter painter(viewport());
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(-horizontalScrollBar()->value(), -verticalScrollBar()->value());
  const double top = verticalScrollBar()->value(), bottom = top + viewport()->height();
  for (int page = 0; page < pageCount(); ++page)
    if (place(page).bottom() > top && place(page).top() < bottom)
      drawSheet(painter, page);
}

void PreviewPages::resizeEvent(QResizeEvent *) {
  const int page = currentPage();
  arrange();
  if (m_fit != Fit::None && page > 0)
    showPage(page);
}

void PreviewPages::scrollContentsBy(int, int) {
  viewport()->update();
  Q_EMIT moved();
}

void PreviewPages::wheelEvent(QWheelEvent *event) {
  if (event->modifiers().testFlag(Qt::ControlModifier))
    zoom(event->angleDelta().y() > 0 ? 1.1 : 1 / 1.1);
  else
    QAbstractScrollArea::wheelEvent(event);
}

bool PreviewPages::obey(int key) {
  switch (key) {
  case Qt::Key_PageDown:
    showPage(currentPage() + 1);
    return true;
  case Qt::Key_PageUp:
    showPage(currentPage() - 1);
    return true;
  case Qt::Key_Home:
    showPage(0);
    return true;
  case Qt::Key_End:
    showPage(pageCount() - 1);
    return true;
  case Qt::Key_Plus:
    zoom(ZoomStep);
    return true;
  case Qt::Key_Minus:
    zoom(1 / ZoomStep);
    return true;
  case Qt::Key_0:
    fit(Fit::Width);
    return true;
  case Qt::Key_1:
    fit(Fit::Page);
    return true;
  default:
    return false;
  }
}

void PreviewPages::keyPressEvent(QKeyEvent *event) {
  if (!obey(event->key()))
    QAbstractScrollArea::keyPressEvent(event);
}
