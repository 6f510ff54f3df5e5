#include "platform/qt/HintRenewal.h"

#include "platform/qt/LineList.h"
#include "platform/qt/Screen.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <chrono>
#include <optional>

using namespace std::chrono_literals;

namespace {

constexpr auto Idle = 120ms; // longer than between two keys of a fast typist

bool mayChangeSomething(QEvent::Type type) {
  switch (type) {
  case QEvent::KeyPress:
  case QEvent::MouseButtonPress:
  case QEvent::MouseButtonRelease:
  case QEvent::MouseButtonDblClick:
  case QEvent::Wheel:
  case QEvent::InputMethod:
  case QEvent::Drop:
  case QEvent::FocusIn:
  case QEvent::Show:
    return true;
  default:
    return false;
  }
}

QString yes(bool on) {
  return on ? QStringLiteral("1") : QStringLiteral("0");
}

QString linesOf(const MarkList &list) {
  QStringList lines;
  for (const int line : list.marked())
    lines << list.lines()[line];
  return lines.join(QLatin1Char('\n'));
}

std::optional<QString> valueOf(const QWidget *control) {
  if (const auto *field = qobject_cast<const QLineEdit *>(control))
    return field->text();
  if (const auto *label = qobject_cast<const QLabel *>(control))
    return label->text();
  if (const auto *combo = qobject_cast<const QComboBox *>(control))
    return QString::number(combo->currentIndex());
  if (qobject_cast<const QPushButton *>(control))
    return yes(control->isVisible() && control->isEnabled());
  if (const auto *button = qobject_cast<const QAbstractButton *>(control))
    return yes(button->isChecked());
  if (const auto *list = qobject_cast<const MarkList *>(control))
    return linesOf(*list);
  if (const auto *list = qobject_cast<const LineList *>(control))
    return list->chosenLine() < 0 ? QString() : list->lines()[list->chosenLine()];
  return {};
}

} // namespace

ShownValues shownValues(const QWidget &screen) {
  ShownValues values;
  for (const auto *control : screen.findChildren<QWidget *>())
    if (!control->objectName().isEmpty())
      if (const auto value = valueOf(control))
        values[control->objectName()] = *value;
  for (const auto *list : screen.findChildren<LineList *>())
    values[list->objectName() + QStringLiteral(".Zeilen")] = QString::number(list->lines().size());
  if (const auto *focus = screen.focusWidget())
    values[QStringLiteral("Fokus")] = focus->objectName();
  return values;
}

HintRenewal::HintRenewal() {
  m_idle.setSingleShot(true);
  m_idle.setInterval(Idle);
  m_idle.callOnTimeout([this] { renew(); });
  qApp->installEventFilter(this);
}

void HintRenewal::renew() {
  m_idle.stop();
  if (!rules)
    return;
  for (auto *widget : QApplication::topLevelWidgets())
    if (auto *screen = qobject_cast<Screen *>(widget); screen && screen->isVisible())
      screen->showHints(rules(screen->objectName(), shownValues(*screen)));
}

bool HintRenewal::eventFilter(QObject *, QEvent *event) {
  if (rules && mayChangeSomething(event->type()))
    m_idle.start();
  return false;
}
