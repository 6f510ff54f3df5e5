#include "platform/qt/ScrollBody.h"

#include <QEvent>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr QSize FrameOfWindow(10, 36); // what a window manager may add
constexpr int GoodLines = 36;          // a screen with several lists opens no higher than it must

/// Rows that give way: a scroll area would hold them to the height that they like best.
class Rows : public QVBoxLayout {
public:
  using QVBoxLayout::QVBoxLayout;
  bool hasHeightForWidth() const override { return false; }
};

void moveRow(QVBoxLayout &from, QVBoxLayout &to) {
  const int stretch = from.stretch(0);
  QLayoutItem *row = from.takeAt(0);
  if (auto *layout = row->layout()) {
    to.addLayout(layout, stretch);
  } else if (row->widget()) {
    to.addWidget(row->widget(), stretch);
    delete row;
  } else {
    to.addItem(row);
    to.setStretch(to.count() - 1, stretch);
  }
}

} // namespace

ScrollBody::ScrollBody(QVBoxLayout &form) : QScrollArea(form.parentWidget()), m_form(form) {
  setFrameShape(NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidgetResizable(true);
  setWidget(new QWidget);
  auto *rows = new Rows(widget());
  rows->setContentsMargins({});
  rows->setSpacing(form.spacing());
  while (form.count() > 1)
    moveRow(form, *rows);
  form.insertWidget(0, this, 1);
}

QSize ScrollBody::sizeHint() const {
  const QSize wanted = widget()->sizeHint();
  return QSize(wanted.width(), std::min(wanted.height(), GoodLines * fontMetrics().height()))
      .expandedTo(minimumSizeHint());
}

QSize ScrollBody::minimumSizeHint() const {
  QSize wanted = widget()->minimumSizeHint();
  const QSize room = this->room();
  const bool tooHigh = wanted.height() > room.height();
  if (tooHigh)
    wanted.rwidth() += verticalScrollBar()->sizeHint().width();
  if (wanted.width() > room.width())
    wanted.rheight() += horizontalScrollBar()->sizeHint().height();
  return wanted.boundedTo(room);
}

// What is left of the monitor beside frame, margins and the other rows of the form.
QSize ScrollBody::room() const {
  const QMargins margins = m_form.contentsMargins();
  QSize room = (screen()->availableGeometry().size() - FrameOfWindow).shrunkBy(margins);
  for (int row = 1; row < m_form.count(); ++row)
    room.rheight() -= m_form.itemAt(row)->minimumSize().height() + m_form.spacing();
  return room;
}

bool ScrollBody::eventFilter(QObject *watched, QEvent *event) {
  if (watched == widget() && event->type() == QEvent::LayoutRequest)
    updateGeometry();
  return QScrollArea::eventFilter(watched, event);
}
