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

bool hatSingleTimes(const Store &store) {
  return fileExists(timesFile(store));
}

QByteArray singleTimesBytes(const Store &store) {
  TextWriter file;
  for (int round = 1; round <= 10; ++round)
    file.text(store.ZeitsummeRennenKurz[round]);
  for (int row = 1; row <= 1000; ++row) {
    file.number(store.CupLaeufer[row]);
    for (int round = 0; round <= 10; ++round)
      file.text(QLatin1Char(' ') + fileText(store.CupZeit(row, round)) + QLatin1Char(' '));
  }
  return file.bytes();
}

void singleTimesSpeichern(const Store &store) {
  replaceFile(timesFile(store), singleTimesBytes(store));
}

void singleTimesLaden(Store &store) {
  TextReader file(readFile(timesFile(store)), timesFile(store));
  for (int round = 1; round <= 10; ++round)
    file.lineInto(store.ZeitsummeRennenKurz[round]);
  for (int row = 1; row <= 1000 && !file.atEnd(); ++row) {
    file.numberInto(store.CupLaeufer[row]);
    for (int round = 0; round <= 10; ++round)
      file.regionalLineInto(store.CupZeit(row, round));
  }
}
