#include "platform/qt/Screen.h"

#include "platform/qt/Desk.h"
#include "platform/qt/HintLine.h"
#include "platform/qt/LineList.h"
#include "platform/qt/Look.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QComboBox>
#include <QGuiApplication>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QValidator>
#include <QWindow>

#include <algorithm>

namespace {

constexpr int UnitsAPixel = 15; // places are told in 1/1440 inch, a pixel is 1/96 inch

// A place off all monitors, from one that is no longer there, is moved in.
QPoint heldOnScreen(QPoint place, QSize size) {
  const QScreen *screen = QGuiApplication::screenAt(place);
  if (screen)
    return place;
  const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
  return {std::clamp(place.x(), area.left(), std::max(area.left(), area.right() - size.width())),
          std::clamp(place.y(), area.top(), std::max(area.top(), area.bottom() - size.height()))};
}

/// A pasted text may hold line breaks, which would tear the lines of a file apart.
class SingleLine : public QValidator {
public:
  using QValidator::QValidator;

  State validate(QString &input, int &) const override {
    input.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    input.replace(QLatin1Char('\n'), QLatin1Char(' '));
    input.replace(QLatin1Char('\r'), QLatin1Char(' '));
    return Acceptable;
  }
};

} // namespace

Screen::Screen(Desk &desk, const QString &name, int row) : m_desk(desk), m_row(row) {
  setObjectName(name);
}

void Screen::setUp() {
  Look::applyProperties(this);
  for (auto *button : findChildren<QAbstractButton *>()) {
    button->setFocusPolicy(Qt::StrongFocus);
    button->installEventFilter(this);
  }
  for (auto *combo : findChildren<QComboBox *>()) {
    combo->setFocusPolicy(Qt::StrongFocus);
    combo->installEventFilter(this);
  }
  for (auto *field : findChildren<QLineEdit *>())
    field->setValidator(new SingleLine(field));
  addHint();
  if (m_row > 0)
    takePlace();
}

// It takes the place of the lower margin.
void Screen::addHint() {
  auto *hint = new HintLine(this);
  QMargins margins = layout()->contentsMargins();
  margins.setBottom(2);
  layout()->setContentsMargins(margins);
  layout()->addWidget(hint);
  hint->setHint(m_desk.hint());
  connect(&m_desk, &Desk::hintChanged, hint, &HintLine::setHint);
}

void Screen::onLeave(QWidget *field, std::function<void()> action) {
  m_desk.guard().onLeave(field, std::move(action));
}

void Screen::onEnter(QWidget *field, std::function<void()> action) {
  m_desk.guard().onEnter(field, std::move(action));
}

void Screen::onReturn(QWidget *control, std::function<void()> action) {
  m_return[control] = std::move(action);
  control->installEventFilter(this);
}

void Screen::enterField(QLineEdit *field) {
  field->setFocus();
  field->selectAll();
}

void Screen::setControlEnabled(QWidget *control, bool enabled, QWidget *instead) {
  if (!enabled && control->hasFocus())
    instead->setFocus();
  control->setEnabled(enabled);
}

void Screen::setControlVisible(QWidget *control, bool visible, QWidget *instead) {
  if (!visible && control->hasFocus())
    instead->setFocus();
  control->setVisible(visible);
}

void Screen::takePlace() {
  const int left = m_desk.places().FensterLeft[m_row];
  const int top = m_desk.places().FensterTop[m_row];
  if (left != 0 || top != 0)
    move(heldOnScreen({left / UnitsAPixel, top / UnitsAPixel}, size().expandedTo(sizeHint())));
}

// A screen that was never visible leaves its row alone.
void Screen::storePlace() {
  if (m_row > 0 && m_placed) {
    m_desk.places().FensterLeft[m_row] = x() * UnitsAPixel;
    m_desk.places().FensterTop[m_row] = y() * UnitsAPixel;
  }
  m_desk.savePlaces();
}

void Screen::showEvent(QShowEvent *event) {
  m_placed = true;
  QWidget::showEvent(event);
}

void Screen::comeBack() {
  if (m_hiddenAt && !isVisible() && windowHandle() != nullptr)
    windowHandle()->setFramePosition(*m_hiddenAt); // move() to where it is would tell the window system nothing
  show();
}

void Screen::closeEvent(QCloseEvent *event) {
  m_desk.guard().flush(this);
  storePlace();
  closing();
  Q_EMIT closed();
  event->accept();
}

void Screen::hideEvent(QHideEvent *event) {
  if (!event->spontaneous()) {
    m_desk.guard().flush(this);
    m_hiddenAt = pos();
  }
  QWidget::hideEvent(event);
}

bool Screen::event(QEvent *event) {
  if (event->type() == QEvent::WindowActivate && isVisible() && !testAttribute(Qt::WA_ShowWithoutActivating)) {
    for (auto *list : findChildren<LineList *>())
      list->aim();
    m_desk.activate(*this);
  }
  return QWidget::event(event);
}

bool Screen::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::Wheel && qobject_cast<QComboBox *>(watched) &&
      !static_cast<QWidget *>(watched)->hasFocus()) {
    event->ignore();
    return true;
  }
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent *>(event)->key();
    if ((key == Qt::Key_Return || key == Qt::Key_Enter) && pressReturn(watched))
      return true;
  }
  return QWidget::eventFilter(watched, event);
}

bool Screen::pressReturn(QObject *watched) {
  if (const auto action = m_return.value(watched)) {
    action();
    return true;
  }
  if (auto *button = qobject_cast<QPushButton *>(watched)) {
    button->click();
    return true;
  }
  return false;
}
