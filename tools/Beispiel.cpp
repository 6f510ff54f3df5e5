// Makes the example event: a data folder with a small, finished, invented championship. The same bytes on each run.

#include "BeispielDaten.h"
#include "core/Classes.h"
#include "core/RaceFiles.h"
#include "core/RecordFiles.h"
#include "core/Start.h"
#include "platform/Dates.h"

#include <QDir>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <iterator>
#include <span>
#include <tuple>
#include <vector>

namespace {

const QDate Today(2026, 1, 15);
constexpr unsigned Seed = 9988;
constexpr int Season = 2026;
/// By how much a run can be slower than the best one: talent, form of the day; and the women against the men.
constexpr double Talent = 0.16, DayForm = 0.03, Women = 1.03;

QString utf8(const char *text) {
  return QString::fromUtf8(text);
}

void writeClubs(Store &store) {
  for (const Club &club : Clubs) {
    VereinSatz verein;
    verein.VereinName = utf8(club.lang);
    verein.VereinKurz = utf8(club.kurz);
    verein.VereinOesvNr = utf8(club.number);
    verein.VereinOrt = utf8(club.ort);
    verein.Ansprechpartner = utf8(club.ansprechpartner);
    verein.Adresse = utf8(club.adresse);
    verein.Telefon = utf8(club.telefon);
    verein.EMail = utf8(club.mail);
    verein.Homepage = QStringLiteral("www.") + verein.EMail.section(QLatin1Char('@'), 1);
    VereinSchreiben(store, store.VereinAnzahl + 1, verein);
  }
}

void writePeople(Store &store) {
  for (const Person &person : People) {
    const int number = store.LaeuferAnzahl + 1;
    LaeuferSatz laeufer;
    laeufer.Name = utf8(person.name);
    laeufer.Geschlecht = person.geschlecht;
    const int day = int(store.umgebung.randomNumber() * 365);
    if (person.jahrgang != 0)
      laeufer.Geburtsdatum = toDays(QDate(person.jahrgang, 1, 1).addDays(day));
    laeufer.Verein1 = qint16(person.vereine[0]);
    laeufer.Verein2 = qint16(person.vereine[1]);
    laeufer.Verein3 = qint16(person.vereine[2]);
    if (person.jahrgang > 1990 && person.jahrgang < 2015)
      laeufer.OesvNr = QString::number(4400000 + 137 * number);
    LaeuferSchreiben(store, number, laeufer);
  }
}

/// A race as it is set up and ran; record numbers of people are 1-based, as in the register.
struct Plan {
  const char *name, *kurz;
  QDate datum;
  const char *startzeit, *kurssetzung;
  int tore;
  bool geschlecht, gaeste, zweiLaeufe;
  double zuschlagGast, zuschlagMann;
  std::span<const Block> blocks;
  /// Seconds of a good run.
  double richtzeit;
  std::span<const Incident> incidents;
  bool (*starts)(const Person &person, int number);
};

const Person &personOf(const TeilnehmerZeile &row) {
  return People[std::size_t(row.LaeuferNr - 1)];
}

template <typename Action> void forEachRow(Store &store, Action action) {
  for (int row = 1; row <= 1000 && store.Teilnehmer[row].LaeuferNr != 0; ++row)
    action(store.Teilnehmer[row]);
}

void writeRaceRecord(Store &store, const Plan &plan) {
  RennenLeeren(store);
  auto &rennen = store.Rennen;
  rennen.RennenName = utf8(plan.name);
  rennen.RennenKurz = utf8(plan.kurz);
  rennen.RennenOrt = QStringLiteral("Tannberg, Gamskarlift");
  rennen.RennenDatum = toDays(plan.datum);
  rennen.Startzeit = utf8(plan.startzeit);
  rennen.Veranstalter = QStringLiteral("SC Tannberg");
  rennen.DurchfVerein = QStringLiteral("SC Tannberg");
  rennen.Rennleiter = QStringLiteral("Björn Aichbühler");
  rennen.Kurssetzung = utf8(plan.kurssetzung);
  rennen.Tore = QString::number(plan.tore);
  rennen.Startrichter = QStringLiteral("Ägidius Brünner");
  rennen.Zielrichter = QStringLiteral("Helene Strößner");
  rennen.Zeitnehmung = QStringLiteral("Hannelore Gschößl");
  rennen.Chefkampfrichter = QStringLiteral("Johann Hirzegger");
  rennen.Sponsor1 = QStringLiteral("Sägewerk Moosleitner");
  rennen.Sponsor2 = QStringLiteral("Gasthof Tannenwirt");
  rennen.WertKlassen = rennen.WertZeit = 1;
  rennen.WertGeschlecht = plan.geschlecht;
  rennen.WertGaeste = plan.gaeste;
  rennen.WertBoarder = 0;
  rennen.ZweiDurchgaenge = plan.zweiLaeufe;
  rennen.ZuschlagGast = plan.zuschlagGast;
  rennen.ZuschlagMann = plan.zuschlagMann;
  rennen.UrkundeBild = 0;
  rennen.BestzeitText = 2;
  store.RennenIdx = store.AktRennen = store.RennenAnzahl + 1;
}

// The standard classes without their gap and overlap: each ends where the younger one begins.
void closeClasses(Store &store) {
  store.KlasseBis[1] = Season;
  store.KlasseVon[20] = 1900;
  for (int k = 1; k < 20; ++k)
    store.KlasseBis[k + 1] = store.KlasseVon[k] - 1;
}

QString sexAndGuest(const RennenSatz &rennen, int a, int b) {
  QString text;
  if (rennen.WertGeschlecht == 1)
    text += a == 0 ? QStringLiteral(" weiblich") : QStringLiteral(" männlich");
  if (rennen.WertGaeste == 1 && b == 1)
    text += QStringLiteral(" Gäste");
  return text;
}

void nameExactClasses(Store &store) {
  for (int k = 1; k <= 20; ++k)
    for (int b = 0; b <= 1; ++b)
      for (int a = 0; a <= 1; ++a)
        for (int f = 0; f <= 1; ++f)
          store.KlasseGenauName[exactClass(k, a, b, f)] = store.KlasseName[k] + sexAndGuest(store.Rennen, a, b);
}

// One order number, and one name, for all classes of a block: that is what merges them.
void mergeBlock(Store &store, const Block &block, int a, qint16 number) {
  for (int k = block.first; k <= block.last; ++k) {
    store.KlasseReihenfolge(k, a, block.gast, 0) = number;
    store.KlasseGenauName[exactClass(k, a, block.gast, 0)] = utf8(block.name) + sexAndGuest(store.Rennen, a, 0);
  }
}

void arrangeClasses(Store &store, const Plan &plan) {
  closeClasses(store);
  nameExactClasses(store);
  qint16 number = 0;
  for (const Block &block : plan.blocks)
    for (int a = 0; a <= int(plan.geschlecht); ++a)
      mergeBlock(store, block, a, ++number);
}

// Members start for their first club, every third one of those who have another for the second.
int clubSlot(const Person &person, int number) {
  if (person.vereine[0] == 0)
    return 4;
  return person.vereine[1] != 0 && number % 3 == 0 ? 2 : 1;
}

void enterField(Store &store, const Plan &plan) {
  int row = 0, number = 0;
  for (const Person &person : People) {
    ++number;
    if (!person.complete() || !plan.starts(person, number))
      continue;
    auto &line = store.Teilnehmer[++row];
    line.LaeuferNr = number;
    line.VereinNr = clubSlot(person, number);
    line.Gast = plan.gaeste && !person.isMember(Tannberg);
    line.Bezahlt = number % 9 != 0;
  }
}

// By class order, and by lot inside it, from 1 on without a gap.
void drawStartNumbers(Store &store) {
  struct Lot {
    int reihe;
    double draw;
    TeilnehmerZeile *row;
  };
  std::vector<Lot> lots;
  forEachRow(store, [&](TeilnehmerZeile &row) {
    lots.push_back({row.KlasseReihe, store.umgebung.randomNumber(), &row});
  });
  std::stable_sort(lots.begin(), lots.end(),
                   [](const Lot &a, const Lot &b) { return std::tie(a.reihe, a.draw) < std::tie(b.reihe, b.draw); });
  int number = 0;
  for (const Lot &lot : lots)
    lot.row->StartNr = ++number;
}

double ageFactor(double age) {
  const auto *upper = std::find_if(std::begin(AgeFactors), std::end(AgeFactors),
                                   [&](const AgeFactor &entry) { return entry.age >= age; });
  if (upper == std::begin(AgeFactors))
    return upper->factor;
  const auto &lower = *(upper - 1);
  return lower.factor + (upper->factor - lower.factor) * (age - lower.age) / (upper->age - lower.age);
}

/// Seconds to the hundredth; `talent` from 0 (best) to 1.
double runTime(Store &store, const Person &person, double richtzeit, double talent) {
  double seconds = richtzeit * ageFactor(Season - person.jahrgang) * (1 + Talent * talent);
  seconds *= 1 + DayForm * store.umgebung.randomNumber();
  if (person.geschlecht == Weiblich)
    seconds *= Women;
  return std::round(seconds * 100) / 100;
}

int statusOf(const Plan &plan, int startNr, int run) {
  for (const Incident &incident : plan.incidents)
    if (incident.startNr == startNr && incident.run == run)
      return incident.status;
  return 0;
}

// Who was disqualified has a time all the same; nobody without "ok" in the first run starts in the second.
void timeField(Store &store, const Plan &plan, const std::vector<double> &talents) {
  forEachRow(store, [&](TeilnehmerZeile &row) {
    const Person &person = personOf(row);
    const double talent = talents[std::size_t(row.LaeuferNr - 1)];
    const double zeit1 = runTime(store, person, plan.richtzeit, talent);
    const double zeit2 = runTime(store, person, plan.richtzeit + 1.5, talent);
    row.Status1 = statusOf(plan, row.StartNr, 1);
    row.Zeit1 = row.Status1 == 0 || row.Status1 == 3 ? zeit1 : 0;
    if (!plan.zweiLaeufe || row.Status1 != 0)
      return;
    row.Status2 = statusOf(plan, row.StartNr, 2);
    row.Zeit2 = row.Status2 == 0 || row.Status2 == 3 ? zeit2 : 0;
  });
}

void holdRace(Store &store, const Plan &plan, const std::vector<double> &talents) {
  writeRaceRecord(store, plan);
  RennDatenLaden(store);
  store.KlasseReihenfolge = {};
  arrangeClasses(store, plan);
  enterField(store, plan);
  KlassenZuordnen(store);
  drawStartNumbers(store);
  timeField(store, plan, talents);
}

void saveRace(Store &store) {
  RennenSchreiben(store);
  RennDatenSpeichern(store);
}

bool isMember(const Person &person, int) {
  return person.isMember(Tannberg);
}

bool startsAtNight(const Person &person, int number) {
  return person.jahrgang <= 2014 && (number % 3 != 0 || !person.isMember(Tannberg));
}

// Each cup race misses others, so that the fields overlap without being the same.
template <int Race> bool startsInCup(const Person &, int number) {
  return number % 5 != Race && number % 7 != Race;
}

TeilnehmerZeile &rowOf(Store &store, int startNr) {
  int row = 1;
  while (store.Teilnehmer[row].StartNr != startNr)
    ++row;
  return store.Teilnehmer[row];
}

void holdChampionship(Store &store, const std::vector<double> &talents) {
  holdRace(store,
           {"Vereinsmeisterschaft Riesentorlauf", "Vereinsmeisterschaft 2026", QDate(2026, 1, 10), "10:30",
            "Veit Eßletzbichler", 32, true, false, false, 0, 0, ChampionshipBlocks, 36.5, ChampionshipIncidents,
            isMember},
           talents);
  // Two of one class with the same time share a place.
  rowOf(store, 33).Zeit1 = rowOf(store, 34).Zeit1;
  for (std::size_t i = 0; i < std::size(Teams); ++i)
    store.MannschaftName[int(i) + 1] = utf8(Teams[i]);
  for (std::size_t i = 0; i < std::size(Groups); ++i)
    store.GruppeName[int(i) + 1] = utf8(Groups[i]);
  forEachRow(store, [](TeilnehmerZeile &row) {
    row.MannschaftNr = qint16(row.LaeuferNr % 8 < 6 ? row.LaeuferNr % 8 + 1 : 0);
    row.GruppeNr = row.KlasseNr <= 6 ? 1 : row.KlasseNr <= 11 ? 2 : row.KlasseNr <= 15 ? 3 : 4;
  });
  // Best times, and with them the titles, count from "Jugend U18" on.
  store.Rennen.BestzeitText = 4;
  store.Rennen.BestzeitAbKlasse = 11;
  store.Rennen.Sponsor3 = QStringLiteral("Bäckerei Süß");
  store.Rennen.Sponsor4 = QStringLiteral("Sport Weißkirchner");
  store.Rennen.Sponsor5 = QStringLiteral("Gemeinde Tannberg");
  store.Rennen.Sponsor6 = QStringLiteral("Liftgesellschaft Gamskar");
  saveRace(store);
}

void holdNightSlalom(Store &store, const std::vector<double> &talents) {
  holdRace(store,
           {"Nachtslalom mit Gästen", "Nachtslalom 2026", QDate(2026, 1, 3), "18:30", "Stefan Innerkarer", 44, false,
            true, true, 3, 2, NightBlocks, 38, NightIncidents, startsAtNight},
           talents);
  saveRace(store);
}

// A name, the standard classes as they come, and nobody in it yet.
void announceChildrensRace(Store &store) {
  writeRaceRecord(store, {"Kinderrennen",
                          "Kinderrennen 2026",
                          QDate(2026, 1, 24),
                          "13:00",
                          "",
                          0,
                          true,
                          false,
                          false,
                          0,
                          0,
                          {},
                          0,
                          {},
                          nullptr});
  RennDatenLaden(store);
  store.KlasseReihenfolge = {};
  saveRace(store);
}

void holdCup(Store &store, const std::vector<double> &talents) {
  const Plan races[] = {{"Tannberg-Cup 1. Lauf", "Cup 1. Lauf", QDate(2025, 12, 13), "10:00", "Ernst Rainböck", 30,
                         true, false, false, 0, 0, ChampionshipBlocks, 38, FirstCupIncidents, startsInCup<1>},
                        {"Tannberg-Cup 2. Lauf", "Cup 2. Lauf", QDate(2025, 12, 20), "10:00", "Lukas Öttl", 34, true,
                         false, false, 0, 0, ChampionshipBlocks, 39.5, SecondCupIncidents, startsInCup<2>},
                        {"Tannberg-Cup 3. Lauf", "Cup 3. Lauf", QDate(2025, 12, 28), "10:00", "Wastl Rothböck", 28,
                         true, false, false, 0, 0, ChampionshipBlocks, 35.5, ThirdCupIncidents, startsInCup<3>}};
  for (const Plan &race : races) {
    holdRace(store, race, talents);
    saveRace(store);
  }
}

void makeEvent(Store &store) {
  startStore(store);
  openRecordFiles(store);
  writeClubs(store);
  writePeople(store);
  std::vector<double> talents;
  std::generate_n(std::back_inserter(talents), std::size(People), [&] { return store.umgebung.randomNumber(); });
  holdChampionship(store, talents);
  holdNightSlalom(store, talents);
  announceChildrensRace(store);
  holdCup(store, talents);
}

} // namespace

int main(int argc, char **argv) {
  if (argc != 2) {
    std::fprintf(stderr, "Aufruf: vext_beispiel <Ordner>\n");
    return 2;
  }
  const QDir folder(QString::fromLocal8Bit(argv[1]));
  // Nobody's registers are overwritten by an example.
  if (!folder.mkpath(QStringLiteral(".")) || folder.exists(QStringLiteral("Verein.rec"))) {
    std::fprintf(stderr, "%s lässt sich nicht anlegen oder enthält schon Daten.\n", argv[1]);
    return 1;
  }
  Umgebung umgebung;
  umgebung.today = [] { return Today; };
  umgebung.generator.seed(Seed);
  Store store(umgebung);
  store.DatenOrdner = folder.path() + QLatin1Char('/');
  try {
    makeEvent(store);
  } catch (const Fault &fault) {
    std::fprintf(stderr, "%s\n", fault.what());
    return 1;
  }
  std::printf("%d Vereine, %d Läufer, %d Rennen in %s\n", store.VereinAnzahl, store.LaeuferAnzahl, store.RennenAnzahl,
              argv[1]);
}
