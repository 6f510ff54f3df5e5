#include "platform/qt/Screen.h"

#include "platform/Settings.h"
#include "platform/qt/Desk.h"
#include "platform/qt/HintLine.h"
#include "platform/qt/LineList.h"
#include "platform/qt/Look.h"
#include "platform/qt/ScrollBody.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QComboBox>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>
#include <QValidator>
#include <QWindow>

#include <algorithm>

namespace {

constexpr int LinesOfPopup = 20;
constexpr int UnitsAPixel = 15; // places are told in 1/1440 inch, a pixel is 1/96 inch

// The monitor may have become smaller or be gone since the place was stored. `size` is that of the frame.
QPoint heldOnScreen(QPoint place, QSize size) {
  const QScreen *screen = QGuiApplication::screenAt(place);
  const QRect area = (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
  return {std::max(area.left(), std::min(place.x(), area.right() + 1 - size.width())),
          std::max(area.top(), std::min(place.y(), area.bottom() + 1 - size.height()))};
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

// The wheel changes no combo without the focus; its tool tip is the whole of what it shows.
bool replaced(QComboBox &combo, QEvent &event) {
  const bool wheel = event.type() == QEvent::Wheel && !combo.hasFocus();
  const bool tip = event.type() == QEvent::ToolTip && combo.toolTip().isEmpty();
  if (wheel)
    event.ignore();
  if (tip)
    Look::showWhole(static_cast<QHelpEvent &>(event), combo.currentText(), &combo);
  return wheel || tip;
}

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
    combo->setMaxVisibleItems(LinesOfPopup);
    combo->installEventFilter(this);
  }
  for (auto *field : findChildren<QLineEdit *>()) {
    field->setValidator(new SingleLine(field));
    field->installEventFilter(this);
  }
  nameFields();
  makeFoot();
}

// A caption beside a control is its name for those who do not see it, and in what a rescue tells. Of a combo without
// one Qt tells the chosen entry as its name.
void Screen::nameFields() {
  for (auto *combo : findChildren<QComboBox *>())
    combo->setAccessibleDescription(combo->accessibleName());
  for (const auto *caption : findChildren<QLabel *>())
    if (auto *control = caption->buddy(); control && control->accessibleName().isEmpty())
      control->setAccessibleName(caption->text());
}

// The hint takes the place of the lower margin.
void Screen::makeFoot() {
  auto *form = static_cast<QVBoxLayout *>(layout());
  auto *body = form->count() > 1 ? new ScrollBody(*form) : nullptr;
  m_foot = new HintLine(this);
  QMargins margins = form->contentsMargins();
  margins.setBottom(2);
  form->setContentsMargins(margins);
  form->addWidget(m_foot);
  if (body)
    body->updateGeometry(); // it has less room now
  connect(&m_desk, &Desk::hintChanged, this, &Screen::fillFoot);
  connect(new QShortcut(Qt::Key_F2, this), &QShortcut::activated, m_foot, &HintLine::showNext);
  fillFoot();
}

void Screen::fillFoot() {
  QStringList lines{m_desk.hint()};
  for (const Hint &hint : m_hints)
    lines << hint.text;
  lines.removeAll(QString());
  m_foot->tell(lines);
}

void Screen::showHints(const QList<Hint> &hints) {
  markControls(false);
  m_hints = hints;
  markControls(true);
  fillFoot();
}

void Screen::markControls(bool warned) {
  for (const Hint &hint : m_hints)
    if (auto *control = hint.control.isEmpty() ? nullptr : findChild<QWidget *>(hint.control))
      Look::setWarned(control, warned);
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

void Screen::onKey(const QKeySequence &key, std::function<void()> action) {
  connect(new QShortcut(key, this), &QShortcut::activated, this, std::move(action));
}

void Screen::press(QAbstractButton *button) {
  if (!button->isVisible() || !button->isEnabled())
    return;
  button->setFocus();
  button->click();
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

// A stored size may be larger than the monitor of today.
void Screen::takeSize() {
  const QSize stored = Settings::windowSize(objectName());
  const QSize room = screen()->availableGeometry().size() - m_desk.frame();
  m_foot->makeRoom(std::min(room.width(), (stored.isValid() ? stored : sizeHint()).width()));
  const QSize wanted = stored.isValid() ? stored : testAttribute(Qt::WA_Resized) ? size() : sizeHint();
  resize(wanted.boundedTo(room).expandedTo(minimumSizeHint()));
  m_ownSize = size();
}

// The place is that of the frame. It is told to the native window too, as move() alone would put the contents there
// before the first showing, and tell the window system nothing after hiding to where it is.
void Screen::takePlace() {
  const auto &places = m_desk.places();
  const QPoint stored = m_row > 0 ? QPoint(places.FensterLeft[m_row], places.FensterTop[m_row]) : QPoint();
  if (!m_leftAt && stored.isNull())
    return;
  const QPoint place = heldOnScreen(m_leftAt.value_or(stored / double(UnitsAPixel)), size() + m_desk.frame());
  move(place);
  create();
  windowHandle()->setFramePosition(place);
}

// A screen that was never visible leaves its row alone. A row of 0 and 0 would say that there is no place: the corner
// of the monitor is told by a unit, which is less than a pixel.
void Screen::storePlace() {
  if (m_row > 0 && m_placed) {
    m_desk.places().FensterLeft[m_row] = pos().isNull() ? 1 : x() * UnitsAPixel;
    m_desk.places().FensterTop[m_row] = y() * UnitsAPixel;
  }
  m_desk.savePlaces();
  if (m_placed && !isMaximized() && size() != m_ownSize)
    Settings::setWindowSize(objectName(), size());
}

void Screen::setVisible(bool visible) {
  if (visible && !isVisible()) {
    if (!m_placed)
      takeSize();
    takePlace();
    m_placed = true;
  }
  QWidget::setVisible(visible);
}

void Screen::comeBack() {
  if (isMinimized())
    setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
}

// A screen is left by hiding or closing; how large its frame is holds for the others, and for the next start.
void Screen::noteWhereItIs() {
  m_leftAt = pos();
  const QSize frame = frameSize() - size();
  if (frame == m_desk.frame())
    return;
  m_desk.setFrame(frame);
  Settings::setWindowFrame(frame);
}

void Screen::closeEvent(QCloseEvent *event) {
  m_desk.guard().flush(this);
  noteWhereItIs();
  storePlace();
  closing();
  Q_EMIT closed();
  event->accept();
}

void Screen::hideEvent(QHideEvent *event) {
  if (!event->spontaneous()) {
    m_desk.guard().flush(this);
    noteWhereItIs();
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
  if (auto *combo = qobject_cast<QComboBox *>(watched); combo && replaced(*combo, *event))
    return true;
  if (auto *field = qobject_cast<QLineEdit *>(watched))
    selectOnEntry(*field, *event);
  if (event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent *>(event)->key();
    if ((key == Qt::Key_Return || key == Qt::Key_Enter) && pressReturn(watched))
      return true;
  }
  return QWidget::eventFilter(watched, event);
}

// The press that brings the focus selects the whole text, unless it was drawn over a part of it.
void Screen::selectOnEntry(QLineEdit &field, const QEvent &event) {
  if (event.type() == QEvent::FocusIn)
    m_pressed = static_cast<const QFocusEvent &>(event).reason() == Qt::MouseFocusReason ? &field : nullptr;
  if (event.type() != QEvent::MouseButtonRelease)
    return;
  if (m_pressed == &field && !field.hasSelectedText())
    field.selectAll();
  m_pressed = nullptr;
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
