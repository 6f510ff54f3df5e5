#include "platform/qt/HintLine.h"

#include "platform/qt/Look.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr int Margin = 3;
constexpr int LettersOfAHint = 170, MostLines = 3;
constexpr QRgb Ground = 0xFFF1C9, Sign = 0xB85C00; // in every theme

// A triangle with an exclamation mark, as high as the letters.
void drawSign(QPainter &painter, const QRectF &area) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(Sign));
  painter.drawPolygon(QPolygonF{{area.center().x(), area.top()}, area.bottomLeft(), area.bottomRight()});
  painter.setBrush(Qt::white);
  const double x = area.center().x(), unit = area.height() / 14;
  painter.drawRect(QRectF(x - unit, area.top() + 4.5 * unit, 2 * unit, 4.5 * unit));
  painter.drawRect(QRectF(x - unit, area.top() + 10.5 * unit, 2 * unit, 2 * unit));
}

/// The text in at most `most` lines of this width; the last one ends in "…" if there is more.
QStringList wrapped(const QString &text, const QFont &font, int width, int most) {
  QTextLayout layout(text, font);
  QStringList lines;
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid() && lines.size() < most; line = layout.createLine()) {
    line.setLineWidth(width);
    lines << text.mid(line.textStart(), lines.size() + 1 < most ? line.textLength() : -1);
  }
  layout.endLayout();
  if (!lines.isEmpty())
    lines.last() = QFontMetrics(font).elidedText(lines.last(), Qt::ElideRight, width);
  return lines;
}

} // namespace

HintLine::HintLine(QWidget *parent) : QLabel(parent) {
  setObjectName(QStringLiteral("Hinweis"));
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void HintLine::makeRoom(int width) {
  m_lines = std::clamp(LettersOfAHint * fontMetrics().averageCharWidth() / std::max(width, 1) + 1, 1, MostLines);
  updateGeometry();
}

void HintLine::tell(const QStringList &hints) {
  if (hints == m_hints)
    return;
  const QString shown = m_hints.value(m_shown);
  const QStringList before = std::exchange(m_hints, hints);
  setAccessibleDescription(m_hints.join(QLatin1Char('\n')));
  const auto stays = m_hints.begin() + std::max<qsizetype>(0, m_hints.indexOf(shown));
  const auto isNew = [&before](const QString &hint) { return !before.contains(hint); };
  show(int(std::find_if(m_hints.begin(), stays, isNew) - m_hints.begin()));
}

void HintLine::showNext() {
  if (m_hints.size() > 1)
    show((m_shown + 1) % int(m_hints.size()));
}

// A screen reader tells what has changed in the name of a line of status.
void HintLine::show(int hint) {
  m_shown = hint;
  const QString count =
      m_hints.size() > 1 ? QStringLiteral("(%1 von %2) ").arg(hint + 1).arg(m_hints.size()) : QString();
  setText(count + m_hints.value(hint));
  QAccessibleEvent changed(this, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&changed);
}

QSize HintLine::sizeHint() const {
  return {fontMetrics().horizontalAdvance(QStringLiteral("…")), m_lines * fontMetrics().height() + 2 * Margin};
}

QSize HintLine::minimumSizeHint() const {
  return sizeHint();
}

bool HintLine::event(QEvent *event) {
  if (event->type() != QEvent::ToolTip)
    return QLabel::event(event);
  Look::showWhole(*static_cast<QHelpEvent *>(event), m_hints.join(QLatin1Char('\n')), this);
  return true;
}

void HintLine::mousePressEvent(QMouseEvent *event) {
  if (event->button() == Qt::LeftButton)
    showNext();
}

void HintLine::paintEvent(QPaintEvent *) {
  if (text().isEmpty())
    return;
  QPainter painter(this);
  painter.fillRect(rect(), QColor(Ground));
  const int height = fontMetrics().height();
  const int left = 3 * Margin + height;
  const QStringList lines = wrapped(text(), font(), width() - left - 2 * Margin, m_lines);
  int top = (this->height() - int(lines.size()) * height) / 2;
  drawSign(painter, QRectF(2 * Margin, top + 0.15 * height, 0.8 * height, 0.7 * height));
  painter.setPen(Qt::black);
  for (const QString &line : lines) {
    painter.drawText(left, top + fontMetrics().ascent(), line);
    top += height;
  }
}
