#include "platform/qt/Desk.h"

#include "platform/qt/Screen.h"

Desk::Desk(WindowPlaces &places, std::function<void()> savePlaces)
    : m_places(places), m_savePlaces(std::move(savePlaces)) {}

void Desk::show(Screen &screen) {
  screen.comeBack();
  screen.raise();
  screen.activateWindow();
  activate(screen);
}

void Desk::activate(Screen &screen) {
  if (m_active == &screen)
    return;
  m_guard.flushOthers(&screen);
  m_active = &screen;
  screen.becomeActive();
}
