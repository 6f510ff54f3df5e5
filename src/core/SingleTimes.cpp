#include "core/SingleTimes.h"

#include "core/RaceFiles.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "platform/TextFile.h"

namespace {

QString timesFile(const Store &store) {
  return raceFileName(store, 'Z', store.AktRennen);
}

} // namespace

bool hasSingleTimes(const Store &store) {
  return fileExists(timesFile(store));
}

QByteArray singleTimesBytes(const CupTabellen &cup) {
  TextWriter file;
  for (int round = 1; round <= 10; ++round)
    file.text(cup.ZeitsummeRennenKurz[round]);
  for (const int row : cup.CupLaeufer.rows()) {
    file.number(cup.CupLaeufer[row]);
    for (int round = 0; round <= 10; ++round)
      file.text(QLatin1Char(' ') + fileText(cup.CupZeit(row, round)) + QLatin1Char(' '));
  }
  return file.bytes();
}

void saveSingleTimes(const Store &store) {
  replaceFile(timesFile(store), singleTimesBytes(store.cup));
}

void loadSingleTimes(Store &store) {
  TextReader file(readFile(timesFile(store)), timesFile(store));
  for (int round = 1; round <= 10; ++round)
    file.lineInto(store.cup.ZeitsummeRennenKurz[round]);
  for (int row = 1; row <= store.cup.CupLaeufer.last() && !file.atEnd(); ++row) {
    file.numberInto(store.cup.CupLaeufer[row]);
    for (int round = 0; round <= 10; ++round)
      file.regionalLineInto(store.cup.CupZeit(row, round));
  }
}
