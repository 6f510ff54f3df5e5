#include "safety/Sessions.h"

#include "core/Classes.h"
#include "core/RaceFiles.h"
#include "core/StateFiles.h"
#include "evaluation/Cup.h"
#include "platform/Numbers.h"
#include "support/TestStore.h"

#include <QDir>

namespace {

// The steps stand between bars; behind "=>" the fact, at the end "!" where all is saved.
constexpr char Times[] =
    "Form1.Command3 click | Form4.List1 line 1 | Form4.Command6 click | Form7.List2 line 0 | "
    "Form7.Text1 type 63,45 | Form7.Text1 key => 1/1 Zeit 63.45 | Form7 pause 2300 | Form7.List2 line 1 | "
    "Form7.Text1 type 64,5 | Form7.Text1 key => 1/2 Zeit 64.5 | Form7 pause 1000 | Form7.List2 line 2 | "
    "Form7.Text1 type 65,25 | Form7.Text1 key => 1/3 Zeit 65.25 | Form7.Command3 click ! | Form4 pause 2300 | "
    "Form4.Command1 click | Form1.Command4 click";

constexpr char Registers[] =
    "Form1.Command2 click | Form2.Command3 click | Form2.Text2 type SC Neu | "
    "Form2.Text3 type Neu => Verein 3 SC Neu ! | Form2.Command1 click => Verein 3 kurz Neu ! | "
    "Form1.Command1 click | Form3.Command3 click | Form3.Text2 type NEU Eva | "
    "Form3.Text4 type 1.2.2012 => Läufer 4 NEU Eva ! | Form3.Option2 click => Läufer 4 geboren 40940 ! | "
    "Form3.Command1 click => Läufer 4 Geschlecht 0 ! | Form1.Command3 click | Form4.Command3 click | "
    "Form4.Text2 type Nachtrennen | Form4.Command7 click => Rennen 3 Nachtrennen ! | Form4.Command4 click | "
    "Form5.List1 line 0 | Form5.Command2 click => 3/1 Läufer 1 | Form5 pause 2300 | Form5.List1 line 3 | "
    "Form5.Command2 click => 3/2 Läufer 4 | Form5.Command1 click ! | Form4.Command5 click | Form6.List1 line 0 | "
    "Form6.Text1 type 7 | Form6.Check2 click => 3/1 Nummer 7 | Form6 pause 2300 | "
    "Form6.Command1 click => 3/1 bezahlt 1 ! | Form4 pause 2300 | Form4.Command1 click | Form1.Command4 click";

constexpr char Classes[] =
    "Form1.Command3 click | Form4.List1 line 1 | Form4.Command15 click | Form15.Label3_0 click | "
    "Form15.Label3_8 click | Form15.Text1 type Zwerge | Form15.Label3_16 click => 1 genau 2 Zwerge | "
    "Form15 pause 2300 | Form15.Command1 click => 1 Reihe 3 3 ! | Form4 pause 2300 | Form4.Command16 click | "
    "CupKopie.Text2 type 2 | CupKopie.Command16 click => Rennen 2 Kopie v. Kinderrennen ! | Form4 pause 2300 | "
    "Form4.Command17 click | Form20.Text1 type 1 | Form20.Text2 type 25 => Cup 1 25 | Form20 pause 2300 | "
    "Form20.Command3 click ! | Form4 pause 2300 | Form4.Command1 click | Form1.Command4 click";

// One fills a record whose name was taken away, the other one stands behind the last.
constexpr char Entries[] =
    "Form1.Command1 click | Form3.List1 line 1 | Form3.Text2 type   | Form3.Text3 type 7 | "
    "Form3.List1 menu Meldungen aus Tabelle einlesen … | QFileDialog.fileNameEdit type Meldungen.csv | "
    "QFileDialog.fileNameEdit key | Meldungen.alleVereine click | "
    "Meldungen.uebernehmen click => Läufer 4 ALT Ida ! | Form3 pause 2300 | Form3.Command1 click | "
    "Form1.Command4 click";

std::vector<Step> stepsOf(const char *script) {
  std::vector<Step> steps;
  for (QString step : QString(script).split(" | ")) {
    const bool saves = step.endsWith(" !");
    step.chop(saves ? 2 : 0);
    steps.push_back({step.section(" => ", 0, 0), step.section(" => ", 1), saves});
  }
  return steps;
}

struct Facts {
  void add(const QString &what, const QString &value) { lines << what + u' ' + value; }
  void add(const QString &what, double value) { add(what, QString::number(value)); }

  QStringList lines;
};

void addRegisters(Facts &facts, const Store &store) {
  for (int n = 1; n <= store.VereinAnzahl; ++n) {
    const VereinSatz club = VereinLesen(store, n);
    const QString who = QString("Verein %1").arg(n);
    facts.add(who, trimmedBlanks(club.VereinName));
    facts.add(who + QString(" kurz"), trimmedBlanks(club.VereinKurz));
  }
  for (int n = 1; n <= store.LaeuferAnzahl; ++n) {
    const LaeuferSatz athlete = LaeuferLesen(store, n);
    const QString who = QString("Läufer %1").arg(n);
    facts.add(who, athlete.Name);
    facts.add(who + QString(" geboren"), athlete.Geburtsdatum);
    facts.add(who + QString(" Geschlecht"), athlete.Geschlecht);
  }
}

void addParticipants(Facts &facts, const Store &store) {
  for (int row = 1; store.Teilnehmer[row].LaeuferNr != 0; ++row) {
    const auto &line = store.Teilnehmer[row];
    const QString who = QString("%1/%2 ").arg(store.AktRennen).arg(row);
    facts.add(who + QString("Läufer"), line.LaeuferNr);
    facts.add(who + QString("Nummer"), line.StartNr);
    facts.add(who + QString("bezahlt"), line.Bezahlt);
    facts.add(who + QString("Zeit"), line.Zeit1);
  }
}

void addRace(Facts &facts, Store &store, int race) {
  store.RennenIdx = store.AktRennen = race;
  RennenLesen(store);
  facts.add(QString("Rennen %1").arg(race), store.Rennen.RennenName);
  RennDatenLaden(store);
  addParticipants(facts, store);
  for (const auto &[letter, names] : {std::pair('M', store.MannschaftName[1]), {'G', store.GruppeName[1]}})
    facts.add(QString("%1 %2").arg(race).arg(QLatin1Char(letter)), names);
  for (int klasse = 1; klasse <= 20; ++klasse) {
    facts.add(QString("%1 Klasse %2").arg(race).arg(klasse), store.KlasseName[klasse]);
    facts.add(QString("%1 Reihe %2").arg(race).arg(klasse), store.KlasseReihenfolge(klasse, 0, 0, 0));
    facts.add(QString("%1 genau %2").arg(race).arg(klasse), store.KlasseGenauName[exactClass(klasse, 0, 0, 0)]);
  }
}

} // namespace

const std::vector<Session> &sessions() {
  static const std::vector<Session> all = {
      {"Zeiten", stepsOf(Times)},
      {"Karteien", stepsOf(Registers)},
      {"Klassen, Kopie, Cup", stepsOf(Classes), 2},
      {"Meldungen", stepsOf(Entries), 0, {"Verein 3 SC Neu", "Läufer 2 NEU Udo", "Läufer 4 ALT Ida"}}};
  return all;
}

void makeEvent(const QString &folder) {
  TestStore test;
  auto &store = test.store;
  for (const char *club : {"SC Alm", "TV Berg"})
    test.addClub(club);
  for (const char *name : {"ADAM Lena", "BERG Max", "CERNY Ida"})
    test.addAthlete(name, 2012, 0, 1);
  for (const char *race : {"Kinderrennen", "Vereinslauf"}) {
    test.addRace(race);
    store.MannschaftName[1] = QString("Mannschaft ") + store.Rennen.RennenName;
    store.GruppeName[1] = QString("Gruppe ") + store.Rennen.RennenName;
    for (int athlete = 1; athlete <= 3; ++athlete)
      test.enter(athlete, athlete);
    if (store.AktRennen == 2)
      store.Teilnehmer[1].Zeit1 = 71.5;
    RennDatenSpeichern(store);
  }
  auto cup = loadCup(store);
  cup.name = "Talcup";
  saveCup(store, cup);
  FensterSpeichern(store);
  test.writeFile(QStringLiteral("Meldungen.csv"), "Name;Jg;Verein\nNeu Udo;2012;SC Neu\nAlt Ida;2011;SC Neu\n");
  QDir().mkpath(folder);
  for (const auto &name : QDir(test.folder.path()).entryList(QDir::Files))
    QFile::copy(test.folder.filePath(name), folder + u'/' + name);
}

QStringList factsOf(const QString &folder) {
  Umgebung umgebung;
  Store store(umgebung);
  store.DatenOrdner = folder + u'/';
  startStore(store);
  openRecordFiles(store);
  Facts facts;
  addRegisters(facts, store);
  for (int race = 1; race <= store.RennenAnzahl; ++race)
    addRace(facts, store, race);
  const auto cup = loadCup(store);
  facts.add("Cup", cup.name);
  for (int place = 1; place <= 9; ++place)
    facts.add(QString("Cup %1").arg(place), store.cup.CupPunkteTabelle[place]);
  return facts.lines;
}
