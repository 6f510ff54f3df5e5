#include "raceprep/RaceCopy.h"

#include "core/RaceFiles.h"
#include "core/RecordFiles.h"
#include "platform/Numbers.h"
#include "platform/TextFile.h"
#include "safety/RaceImage.h"

#include <cmath>

namespace {

constexpr int HighestNumber = 30000;
constexpr int ReserveLines = 7;

// What the copy leaves out is 0, as a number line each.
void writeNumbers(TextWriter &file, std::initializer_list<int> columns) {
  for (const int column : columns)
    file.number(column);
}

void writeWithResults(TextWriter &file, const TeilnehmerZeile &row) {
  writeNumbers(file, {row.LaeuferNr, row.StartNr, row.KlasseNr, row.VereinNr, row.GruppeNr, row.Bezahlt});
  file.decimal(row.Punkte);
  for (const double column : {row.Zeit1, double(row.ZeitReserve), double(row.Status1)})
    file.decimal(column);
  writeNumbers(file, {row.Gast, row.MannschaftNr});
  file.decimal(row.Zeit2);
  file.text(plainText(row.Status2));
}

void writeClean(TextWriter &file, const TeilnehmerZeile &row) {
  writeNumbers(file, {row.LaeuferNr, 0, row.KlasseNr, row.VereinNr, row.GruppeNr, 0});
  writeNumbers(file, {0, 0, 0, 0});
  writeNumbers(file, {row.Gast, row.MannschaftNr, 0, 0});
}

// The last column is the order number and not the exact class as in every other R file; this is meant.
QByteArray copiedParticipants(const Store &store, bool withResults) {
  TextWriter file;
  for (int i = 1; i <= 1000; ++i) {
    const TeilnehmerZeile &row = store.Teilnehmer[i];
    if (row.LaeuferNr == 0)
      continue;
    if (withResults)
      writeWithResults(file, row);
    else
      writeClean(file, row);
    writeNumbers(file, {row.Boarder, row.KlasseReihe});
    for (int line = 0; line < ReserveLines; ++line)
      file.text({});
  }
  return file.bytes();
}

void writeRecord(Store &store, int number, const RennenSatz &record) {
  store.RennenIdx = number;
  store.Rennen = record;
  RennenSchreiben(store);
  store.RennenIdx = store.AktRennen;
  RennenLesen(store);
}

} // namespace

std::optional<int> copyNumber(const QString &text) {
  const double number = std::trunc(leadingNumber(text));
  if (number < 1 || number > HighestNumber)
    return {};
  return int(number);
}

void copyRace(Store &store, int number, const QString &name, bool withResults) {
  auto files = raceFiles(store);
  files.first().bytes = copiedParticipants(store, withResults);
  RennenSatz record = store.Rennen;
  record.RennenName = QStringLiteral("Kopie v. ") + name;
  store.vorDemErsetzen(replacingImage(store, number, files, record));
  writeRaceFiles(store, number, files);
  writeRecord(store, number, record);
  store.nachDemErsetzen();
}
