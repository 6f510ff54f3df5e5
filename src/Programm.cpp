#include "Programm.h"

#include "core/Classes.h"
#include "core/Form1.h"
#include "core/Form17.h"
#include "core/RaceFiles.h"
#include "core/RecordFiles.h"
#include "core/Start.h"
#include "raceprep/Form4.h"
#include "raceprep/Form9.h"
#include "raceprep/RaceRegister.h"

#include <QCoreApplication>

Programm::Programm(Store &store)
    : m_store(store), m_desk(store.Fenster, [&store] { FensterSpeichern(store); }), m_openings(openings()) {
  store.umgebung.erinnern = [this](const QStringList &lines) { remind(lines); };
}

Programm::~Programm() {
  for (const auto &screen : m_screens)
    delete screen;
}

void Programm::start() {
  m_menu = new Form1(m_desk, m_store);
  adopt(*m_menu);
  connect(m_menu, &Form1::oeffnet, this, &Programm::open);
  connect(m_menu, &Screen::closed, this, [] { QCoreApplication::exit(); });
  m_desk.show(*m_menu);
}

void Programm::sicherungHinweis(const QString &text) {
  if (m_menu)
    m_menu->sicherungHinweis(text);
}

void Programm::open(const QString &screen) {
  m_openings.value(screen)();
}

/// What the buttons of the menu and of the race register open, by the name of the screen.
QHash<QString, Programm::Opening> Programm::openings() {
  return {
      {QStringLiteral("Form4"), [this] { openRaceRegister(); }},
      {QStringLiteral("Form9"), [this] { askDeletion(); }},
  };
}

void Programm::openRaceRegister() {
  alleDateienOeffnen(m_store);
  m_hub = &replace(*m_menu, new Form4(m_desk, m_store));
  m_hub->setOpenable(m_openings.keys());
  connect(m_hub, &Form4::oeffnet, this, &Programm::open);
  m_hub->waehlen(rennenZuBeginn(m_store));
}

void Programm::askDeletion() {
  auto &form = replace(*m_hub, new Form9(m_desk, m_store));
  connect(&form, &Form9::geloescht, m_hub, &Form4::geloeschtZeigen);
}

// Opened at each save, and closed again unseen if there is nothing to tell.
void Programm::remind(const QStringList &lines) {
  if (!m_reminder) {
    m_reminder = new Form17(m_desk);
    adopt(*m_reminder);
    connect(m_reminder, &Screen::closed, this, [this] { m_reminder = nullptr; });
  }
  if (lines.isEmpty())
    m_reminder->close();
  else
    m_reminder->erinnern(lines);
}

template <typename S> S &Programm::replace(Screen &opener, S *screen) {
  showInPlace(opener, *screen);
  return *screen;
}

template <typename S> S &Programm::beside(Screen &opener, S *screen) {
  showBeside(opener, *screen);
  return *screen;
}

void Programm::adopt(Screen &screen) {
  screen.setAttribute(Qt::WA_DeleteOnClose);
  m_screens.removeAll(nullptr);
  m_screens.append(&screen);
}

void Programm::showInPlace(Screen &opener, Screen &screen) {
  adopt(screen);
  connect(&screen, &Screen::closed, &opener, [this, &opener] { m_desk.show(opener); });
  opener.hide();
  m_desk.show(screen);
}

// The opener is activated again when the other closes, unless it is closing itself.
void Programm::showBeside(Screen &opener, Screen &screen) {
  adopt(screen);
  connect(&screen, &Screen::closed, &opener, [this, &opener] { m_desk.show(opener); });
  connect(&opener, &Screen::closed, &screen, [&opener, &screen] {
    disconnect(&screen, &Screen::closed, &opener, nullptr);
    screen.close();
  });
  m_desk.show(screen);
}
