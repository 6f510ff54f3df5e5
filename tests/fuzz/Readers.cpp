// What stands in a file must never hurt: each reader gets broken files, in a data folder that is the working folder. A
// Fault is a good end. tools/fuzz runs them all; which one runs says VEXT_READER.

#include "core/Classes.h"
#include "core/RaceFiles.h"
#include "core/RecordFiles.h"
#include "core/SingleTimes.h"
#include "core/Start.h"
#include "core/ValueFormats.h"
#include "evaluation/Cup.h"
#include "evaluation/TeamEvaluation.h"
#include "platform/CodePage.h"
#include "platform/Dates.h"
#include "platform/Faults.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "printing/Werbung.h"
#include "raceprep/ClassOrder.h"
#include "raceprep/ClassRules.h"
#include "raceprep/ParticipantList.h"
#include "raceprep/StartNumbers.h"
#include "safety/RunningCopy.h"
#include "timing/Ranking.h"

#include <QCryptographicHash>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

// What must hold for every input.
void require(bool holds) {
  if (!holds)
    std::abort();
}

void readClubs(Store &store) {
  VereinOeffnen(store);
  for (int &n = store.VereinAnzahl = 1; store.VereinDatei.holds(n); ++n)
    require(toBytes(VereinLesen(store, n)) == store.VereinDatei.read(n));
}

// A record read, written and read once more is the same.
void readAthletes(Store &store) {
  LaeuferOeffnen(store);
  store.LaeuferAnzahl = 1;
  const LaeuferSatz taken = LaeuferLesen(store, 1);
  LaeuferSchreiben(store, 1, taken);
  require(toBytes(LaeuferLesen(store, 1)) == toBytes(taken));
  require(yearOf(taken.Geburtsdatum) >= -10'000);
  LaeuferListeFuellen(store);
}

void readRaces(Store &store) {
  RennenOeffnen(store);
  store.RennenIdx = store.RennenAnzahl = 1;
  RennenLesen(store);
  const QByteArray taken = toBytes(store.Rennen);
  RennenSchreiben(store);
  RennenLesen(store);
  require(toBytes(store.Rennen) == taken);
}

void openRace(Store &store) {
  store.RennenIdx = store.AktRennen = 1;
  RennDatenLaden(store);
}

// A race of its own, of which nothing else is there.
void loadNames(Store &store) {
  store.AktRennen = 9;
  RennDatenLaden(store);
  for (const auto *names : {&store.MannschaftName, &store.GruppeName})
    for (int row = 0; row <= names->last(); ++row)
      require(fromCodePage(toCodePage((*names)[row])) == (*names)[row] && !(*names)[row].contains(QLatin1Char('\n')));
}

void updateClasses(Store &store) {
  openRace(store);
  KlassenAktualisieren(store);
  KlasseNummerRaster raster("KlasseNummerRaster");
  loadGrid(store, raster);
  numberCell(raster, 0);
  storeGrid(store, raster);
}

void rank(Store &store) {
  openRecordFiles(store);
  startStore(store);
  openRace(store);
  RennenLesen(store);
  KlassenZuordnen(store);
  TeilnehmerlisteFuellen(store, {}, ByEntry);
  offersDeletion(store);
  drawNumbersForAll(store, 5);
  Rangfolge1(store);
  prepareUnits(store);
  for (const auto einheit : {Einheit::Verein, Einheit::Mannschaft, Einheit::Gruppe})
    evaluateUnits(store, {einheit, WertungsArt::ZeitsummeDerBesten});
  participantFile(store);
}

void readSingleTimes(Store &store) {
  store.AktRennen = 1;
  loadSingleTimes(store);
}

// With a hash of its own at its end, or hardly any manifest would be looked into. One put aside stays where it is.
void readRunningCopy(Store &) {
  const auto path = QStringLiteral("Beschaedigt/00000001/Inhalt.txt");
  const QByteArray lines = readIfThere(path).value_or(QByteArray());
  writeFile(path, lines + QCryptographicHash::hash(lines, QCryptographicHash::Sha1).toHex() + '\n');
  RunningCopy(QStringLiteral(".")).leftBehind();
}

void convertValue(double value) {
  require(regionalNumber(fileText(value)).has_value());
  for (const char *mask : {"0##", "0#.00", "0####.#0", "#.#0"})
    require(!masked(value, mask).isEmpty() && !masked(float(value), mask).isEmpty());
  ZeitText(value);
  WertText8(value);
  const QDate date = fromDays(value);
  require(!date.isValid() || toDays(date) <= value);
}

void convert(QByteArrayView bytes) {
  const QString text = fromCodePage(bytes);
  require(toCodePage(text) == bytes);
  require(std::abs(wholeNumber(text)) <= 1'000'000'000'000'000);
  shortNumber(text);
  convertValue(leadingNumber(text));
  if (const auto number = typedNumber(text))
    require(std::fabs(*number - leadingNumber(plainText(*number))) <= 1);
  convertValue(regionalNumber(KommaEingabe(text)).value_or(0));
  if (const auto date = typedDate(text))
    require(typedDate(shortDate(*date)) == date);
  double value = 0;
  std::memcpy(&value, bytes.data(), std::min(sizeof value, std::size_t(bytes.size())));
  convertValue(value);
}

struct Reader {
  /// The file that is broken; others of its race lie beside it.
  const char *file;
  void (*read)(Store &);
};

const Reader Readers[] = {
    {"Verein.rec", readClubs},
    {"Laeufer.rec", readAthletes},
    {"Rennen.rec", readRaces},
    {"R 1.dat", rank},
    {"K 1.lst", updateClasses},
    {"M 9.lst", loadNames},
    {"G 9.lst", loadNames},
    {"Z 1.dat", readSingleTimes},
    {"Vext.dat", startStore},
    {"TopLeft.dat", startStore},
    {"Cup.dat", [](Store &store) { saveCup(store, loadCup(store)); }},
    {"werbung.dat", [](Store &store) { saveBanners(store, loadBanners(store)); }},
    {"Beschaedigt/00000001/Inhalt.txt", readRunningCopy},
    {"Zahlen", nullptr},
};

const Reader *chosen = nullptr;

} // namespace

/// Chooses the reader; without one it prints the names of all.
extern "C" int LLVMFuzzerInitialize(int *, char ***) {
  const char *wanted = std::getenv("VEXT_READER");
  for (const auto &reader : Readers)
    if (!wanted)
      std::puts(reader.file);
    else if (std::strcmp(reader.file, wanted) == 0)
      chosen = &reader;
  if (!chosen)
    std::exit(wanted ? 1 : 0);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  static Umgebung umgebung;
  static Store store(umgebung);
  const QByteArrayView bytes(data, qsizetype(size));
  try {
    if (!chosen->read) {
      convert(bytes);
      return 0;
    }
    writeFile(QString::fromLatin1(chosen->file), bytes.toByteArray());
    chosen->read(store);
  } catch (const Fault &) {
  }
  return 0;
}
