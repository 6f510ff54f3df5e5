#include "platform/qt/Desk.h"

#include "platform/Settings.h"
#include "platform/qt/Screen.h"

#include <QWidget>

Desk::Desk(WindowPlaces &places, std::function<void()> savePlaces)
    : m_places(places), m_savePlaces(std::move(savePlaces)) {
  if (const QSize known = Settings::windowFrame(); known.isValid())
    m_frame = known;
}

QString Desk::openInput() const {
  auto *field = m_guard.field();
  if (!field || !m_guard.isFieldChanged() || !m_guard.storesOnLeaving(field))
    return {};
  const auto *screen = qobject_cast<Screen *>(field->window());
  const QString who = screen ? screen->subject() : QString();
  return QStringLiteral("%1: %2 „%3“%4\n")
      .arg(field->window()->windowTitle(), field->accessibleName(), shownIn(field),
           who.isEmpty() ? who : QStringLiteral(" bei ") + who);
}

void Desk::show(Screen &screen) {
  screen.comeBack();
  screen.raise();
  screen.activateWindow();
  activate(screen);
}

void Desk::showBeside(Screen &screen) {
  screen.setAttribute(Qt::WA_ShowWithoutActivating);
  screen.comeBack();
  screen.raise();
  screen.setAttribute(Qt::WA_ShowWithoutActivating, false);
}

void Desk::activate(Screen &screen) {
  if (m_active == &screen)
    return;
  m_guard.flushOthers(&screen);
  m_active = &screen;
  screen.becomeActive();
}

void Desk::setHint(const QString &text) {
  m_hint = text;
  Q_EMIT hintChanged();
}
