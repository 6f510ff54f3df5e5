#include "Programm.h"

#include "core/Classes.h"
#include "core/Form1.h"
#include "core/Form17.h"
#include "core/RaceFiles.h"
#include "core/RecordFiles.h"
#include "core/StateFiles.h"
#include "evaluation/Form12.h"
#include "evaluation/Form19.h"
#include "evaluation/Form20.h"
#include "exchange/qt/EntryScreen.h"
#include "masterdata/Form2.h"
#include "masterdata/Form3.h"
#include "printing/Form16.h"
#include "printing/Form21.h"
#include "printing/Form28.h"
#include "printing/Form8.h"
#include "raceprep/CupKopie.h"
#include "raceprep/Form10.h"
#include "raceprep/Form11.h"
#include "raceprep/Form14.h"
#include "raceprep/Form15.h"
#include "raceprep/Form4.h"
#include "raceprep/Form5.h"
#include "raceprep/Form6.h"
#include "raceprep/Form9.h"
#include "raceprep/RaceRegister.h"
#include "safety/RaceImage.h"
#include "safety/SafetyFolder.h"
#include "timing/Form13.h"
#include "timing/Form18.h"
#include "timing/Form7.h"

#include <QGuiApplication>
#include <QWindow>

namespace {

// Pending events are let through for painting only; clicks and keys wait.
void letPaint() {
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace

Programm::Programm(Store &store, Printers &printers)
    : m_store(store), m_printers(printers), m_desk(store.Fenster, [&store] { FensterSpeichern(store); }),
      m_help({store.ProgrammName + QLatin1Char(' ') + store.Version, SafetyFolder(store.DatenOrdner).dataFolder(),
              SafetyFolder(store.DatenOrdner).path()}),
      m_openings(openings()) {
  m_desk.hints().rules = [this](const QString &screen, const ShownValues &shown) { return hintsOf(screen, shown); };
  store.umgebung.remind = [this](const QStringList &lines) { remind(lines); };
}

Programm::~Programm() {
  for (const auto &screen : m_screens)
    delete screen;
}

void Programm::start() {
  m_menu = new Form1(m_desk, m_store);
  adopt(*m_menu);
  connect(m_menu, &Form1::openRequested, this, &Programm::open);
  connect(m_menu, &Form1::hilfeVerlangt, this, [this] { m_help.open(m_menu->objectName()); });
  connect(m_menu, &Screen::closed, this, [this] {
    if (m_reminder)
      m_reminder->close();
    QCoreApplication::exit();
  });
  m_desk.show(*m_menu);
}

void Programm::showSafetyHint(const QString &text) {
  m_desk.setHint(text);
}

void Programm::showJournalHint(const QString &text) {
  m_journalHint = text;
  m_desk.hints().renew();
}

QList<Hint> Programm::hintsOf(const QString &screen, const ShownValues &shown) {
  QList<Hint> hints = m_hintBook.of(screen, shown);
  if (screen == QStringLiteral("Form1") && !m_journalHint.isEmpty())
    hints << Hint{m_journalHint};
  return hints;
}

QList<SavedFile> Programm::openWork() const {
  QList<SavedFile> work;
  QString note = m_desk.openInput();
  for (const auto &screen : m_screens)
    if (screen && screen->isVisible()) {
      work += screen->unsaved();
      note += screen->waiting();
    }
  if (!note.isEmpty())
    work.append({noteName(), note.toUtf8()});
  return work;
}

void Programm::open(const QString &screen) {
  m_openings.value(screen)();
}

// What the buttons of the menu and of the race register open, by the name of the screen.
QHash<QString, Programm::Opening> Programm::openings() {
  return {{QStringLiteral("Form2"), [this] { openClubs(); }},
          {QStringLiteral("Form3"), [this] { openAthletes(); }},
          {QStringLiteral("Form4"), [this] { openRaceRegister(); }},
          {QStringLiteral("Form5"), [this] { openParticipants(); }},
          {QStringLiteral("Form6"), [this] { openNumbers(); }},
          {QStringLiteral("Form7"), [this] { openTiming(); }},
          {QStringLiteral("Form8"), [this] { openPrinting(); }},
          {QStringLiteral("Form9"), [this] { askDeletion(); }},
          {QStringLiteral("Form10"), [this] { openPlain<Form10>(); }},
          {QStringLiteral("Form11"), [this] { openPlain<Form11>(); }},
          {QStringLiteral("Form12"), [this] { openTeamEvaluation(); }},
          {QStringLiteral("Form14"), [this] { openPlain<Form14>(); }},
          {QStringLiteral("Form15"), [this] { openClassOrder(); }},
          {QStringLiteral("Form16"), [this] { openTitlePageData(); }},
          {QStringLiteral("Form19"), [this] { openTimeSum(); }},
          {QStringLiteral("Form20"), [this] { openCup(); }},
          {QStringLiteral("CupKopie"), [this] { copyRace(); }}};
}

void Programm::openClubs() {
  openRecordFiles(m_store);
  replace(*m_menu, new Form2(m_desk, m_store));
}

void Programm::openAthletes() {
  openRecordFiles(m_store);
  offerEntries(replace(*m_menu, new Form3(m_desk, m_store)), false);
}

void Programm::openRaceRegister() {
  openRecordFiles(m_store);
  m_hub = &replace(*m_menu, new Form4(m_desk, m_store, m_printers));
  connect(m_hub, &Form4::openRequested, this, &Programm::open);
  m_hub->chooseRace(raceToOpenFirst(m_store));
}

template <typename S> void Programm::openPlain() {
  replace(*m_hub, new S(m_desk, m_store));
}

void Programm::askDeletion() {
  auto &form = replace(*m_hub, new Form9(m_desk, m_store));
  connect(&form, &Form9::raceDeleted, m_hub, &Form4::showDeleted);
}

void Programm::copyRace() {
  if (auto *open = shown<CupKopie>())
    return m_desk.show(*open);
  auto &form = beside(*m_hub, new CupKopie(m_desk, m_store, [this] { return m_hub->typedName(); }));
  connect(&form, &CupKopie::copied, m_hub, &Form4::refillRaces);
}

void Programm::openParticipants() {
  auto &form = replace(*m_hub, new Form5(m_desk, m_store));
  connect(&form, &Form5::athleteChosen, this, [this, &form](int record) { athletesOnTop(form).showRecord(record); });
  connect(&form, &Form5::newEntryRequested, this,
          [this, &form](const QString &name) { athletesOnTop(form).startNewEntry(name); });
  offerEntries(form, true);
  connect(&form, &Form5::participantChosen, this, [this, &form](int row) { openNumbersOnTop(form, row); });
  connect(&form, &Form5::participantDeleted, this, [this] {
    if (auto *numbers = shown<Form6>())
      numbers->rowsMoved();
  });
}

template <typename S> void Programm::offerEntries(S &screen, bool race) {
  connect(&screen, &S::entriesRequested, this, [this, &screen, race] {
    if (auto table = EntryScreen::chosenTable(&screen)) {
      auto &entries = beside(screen, new EntryScreen(m_desk, m_store, *std::move(table), race));
      connect(&entries, &EntryScreen::takenOver, &screen, &S::showEntered);
      if (auto *athletes = shown<Form3>())
        connect(&entries, &EntryScreen::takenOver, athletes, &Form3::showEntered, Qt::UniqueConnection);
    }
  });
}

Form3 &Programm::athletesOnTop(Screen &participants) {
  auto *athletes = shown<Form3>();
  if (!athletes) {
    auto &form = beside(participants, new Form3(m_desk, m_store));
    offerEntries(form, false);
    return form;
  }
  m_desk.show(*athletes);
  return *athletes;
}

void Programm::openNumbersOnTop(Screen &participants, int row) {
  auto *numbers = shown<Form6>();
  if (numbers)
    m_desk.show(*numbers);
  else
    numbers = &beside(participants, new Form6(m_desk, m_store));
  numbers->chooseParticipant(row);
}

void Programm::openNumbers() {
  KlassenZuordnen(m_store);
  openPlain<Form6>();
}

// Its opener comes back before the race is saved, so that a reminder stays in front.
void Programm::openClassOrder() {
  RennDatenLaden(m_store);
  KlassenZuordnen(m_store);
  auto &form = replace(*m_hub, new Form15(m_desk, m_store));
  disconnect(&form, &Screen::closed, m_hub, nullptr);
  connect(&form, &Form15::saving, m_hub, [this] { comeBackTo(*m_hub); });
}

void Programm::openTiming() {
  KlassenZuordnen(m_store);
  auto &form = replace(*m_hub, new Form7(m_desk, m_store));
  connect(&form, &Form7::resultRequested, this, [this, &form](bool open) { showResult(form, open); });
  connect(&form, &Form7::resultComputed, this, [this] {
    if (auto *result = shown<Form13>())
      result->showListing();
  });
  connect(&form, &Form7::auxiliaryTimingRequested, this, [this, &form] { openAuxiliaryTiming(form); });
}

void Programm::openAuxiliaryTiming(Form7 &timing) {
  if (auto *open = shown<Form18>())
    return m_desk.show(*open);
  auto &form = beside(timing, new Form18(m_desk));
  connect(&form, &Form18::differenceTaken, &timing, &Form7::takeDifference);
}

void Programm::showResult(Screen &opener, bool open) {
  auto *result = shown<Form13>();
  if (open && !result) {
    result = new Form13(m_desk, m_store);
    tie(opener, *result);
    Desk::showBeside(*result);
  } else if (!open && result) {
    result->close();
  }
}

void Programm::openPrinting() {
  KlassenZuordnen(m_store);
  showResult(*m_hub, true);
  letPaint();
  auto *prints = new Form8(m_desk, m_store, m_printers);
  showResult(*m_hub, false);
  auto &form = replace(*m_hub, prints);
  connect(&form, &Form8::printerRequested, this, [this, &form] { replace(form, new Form28(m_desk, m_printers)); });
  connect(&form, &Form8::bannersRequested, this, [this, &form] { replace(form, new Form21(m_desk, m_store)); });
}

void Programm::openTeamEvaluation() {
  auto &form = replace(*m_hub, new Form12(m_desk, m_store, m_printers));
  connect(&form, &Form12::printerRequested, this, [this, &form] { replace(form, new Form28(m_desk, m_printers)); });
}

void Programm::openTitlePageData() {
  auto &form = replace(*m_hub, new Form16(m_desk, m_store));
  connect(&form, &Form16::bannersRequested, this, [this, &form] { replace(form, new Form21(m_desk, m_store)); });
}

void Programm::openCup() {
  connectWorkSign(replace(*m_hub, new Form20(m_desk, m_store, m_printers)));
}

// The race register closes with a generated race, so that it is built anew and lists it.
void Programm::openTimeSum() {
  auto &form = replace(*m_hub, new Form19(m_desk, m_store));
  connectWorkSign(form);
  connect(&form, &Form19::raceGenerated, this, [this, &form] {
    disconnect(&form, &Screen::closed, m_hub, nullptr);
    connect(&form, &Screen::closed, m_hub, &QWidget::close);
  });
}

// The provisional result stands there while races are ranked, as a sign of work.
template <typename S> void Programm::connectWorkSign(S &screen) {
  connect(&screen, &S::workBegun, this, [this, &screen] {
    showResult(screen, true);
    letPaint();
  });
  connect(&screen, &S::workEnded, this, [this, &screen] { showResult(screen, false); });
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
    m_reminder->remind(lines);
}

template <typename S> S &Programm::replace(Screen &opener, S *screen) {
  showInPlace(opener, *screen);
  return *screen;
}

template <typename S> S &Programm::beside(Screen &opener, S *screen) {
  showBeside(opener, *screen);
  return *screen;
}

template <typename S> S *Programm::shown() const {
  for (const auto &screen : m_screens)
    if (auto *found = qobject_cast<S *>(screen.data()); found && found->isVisible())
      return found;
  return nullptr;
}

void Programm::adopt(Screen &screen) {
  screen.setAttribute(Qt::WA_DeleteOnClose);
  m_screens.removeAll(nullptr);
  m_screens.append(&screen);
}

void Programm::showInPlace(Screen &opener, Screen &screen) {
  adopt(screen);
  connect(&screen, &Screen::closed, &opener, [this, &opener] { comeBackTo(opener); });
  // A copy made beside a race in work would load its files over what has been typed.
  if (auto *copy = shown<CupKopie>())
    copy->close();
  opener.hide();
  m_desk.show(screen);
}

void Programm::showBeside(Screen &opener, Screen &screen) {
  tie(opener, screen);
  m_desk.show(screen);
}

// The window system brings the screen to the front when it gives it the keyboard, which may be later.
void Programm::comeBackTo(Screen &screen) {
  const auto raise = [this] {
    if (m_reminder)
      m_reminder->raise();
  };
  connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, raise, Qt::SingleShotConnection);
  m_desk.show(screen);
}

// The opener is activated again when the other closes, unless it is closing itself.
void Programm::tie(Screen &opener, Screen &screen) {
  adopt(screen);
  connect(&screen, &Screen::closed, &opener, [this, &opener] { comeBackTo(opener); });
  connect(&opener, &Screen::closed, &screen, [&opener, &screen] {
    disconnect(&screen, &Screen::closed, &opener, nullptr);
    screen.close();
  });
}
