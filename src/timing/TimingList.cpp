#include "timing/TimingList.h"

#include "core/Participants.h"
#include "platform/Numbers.h"
#include "platform/SortedLines.h"
#include "timing/Ranking.h"

namespace {

constexpr auto TimeMask = "0####.#0";

QString startNumber(const TeilnehmerZeile &participant) {
  return masked(participant.StartNr, "0###");
}

QString classNumber(const TeilnehmerZeile &participant) {
  return masked(participant.KlasseReihe, "0##");
}

// By groups it is the name in the row of the participant, not that of his group; this is meant.
QString secondRunGroup(const Store &store, int row) {
  return store.Rennen.WertKlassen == 1 ? classNumber(store.Teilnehmer[row]) : store.GruppeName[row];
}

QString keyPrefix(const Store &store, int row, ListMode mode) {
  const auto &participant = store.Teilnehmer[row];
  const QLatin1Char gap(' ');
  switch (mode) {
  case ListMode::Startnummer:
    return startNumber(participant);
  case ListMode::Zeiten:
    return masked(participant.Zeit1 + participant.Zeit2, TimeMask);
  case ListMode::KlasseStartnummer:
    return classNumber(participant) + gap + startNumber(participant);
  case ListMode::KlasseZeit:
    return classNumber(participant) + gap + masked(participant.WertSumme, TimeMask);
  case ListMode::ZweiterDurchgang:
    break;
  }
  return secondRunGroup(store, row) + gap + secondRunKey(participant);
}

QStringList sortedKeys(const Store &store, ListMode mode) {
  SortedLines keys;
  for (const int row : store.Teilnehmer.rows()) {
    const auto &participant = store.Teilnehmer[row];
    if (mode == ListMode::ZweiterDurchgang && participant.Status1 > Status::Ok)
      continue;
    if (const auto athlete = athleteOf(store, participant))
      keys.add(keyPrefix(store, row, mode) + QLatin1Char(' ') + athlete->Name + QString(11, QLatin1Char(' ')) +
               plainText(row));
  }
  return keys.take();
}

// The key without what only sorts it, and the start number where that has gone with it. The places fit usual widths;
// wider values shift the line, which is meant.
QString lineOf(const QString &key, const TeilnehmerZeile &participant, ListMode mode) {
  const QString numbered = startNumber(participant) + QStringLiteral("  ");
  switch (mode) {
  case ListMode::Startnummer:
    return numbered + key.mid(5);
  case ListMode::Zeiten:
    return key;
  case ListMode::KlasseStartnummer:
    return numbered + key.mid(9);
  case ListMode::KlasseZeit:
    return key.mid(4);
  case ListMode::ZweiterDurchgang:
    break;
  }
  return numbered + key.mid(13);
}

QString headLine(const Store &store, const TeilnehmerZeile &participant) {
  return QStringLiteral("----- ") + store.KlasseGenauName.valueOrEmpty(participant.KlasseGenau) + QLatin1Char(' ') +
         QString(35, QLatin1Char('-'));
}

} // namespace

QStringList ZeitlisteFuellen(Store &store, ListMode mode) {
  if (mode == ListMode::ZweiterDurchgang)
    Rangfolge1(store);
  else
    ErgebnisRechnen(store);
  const bool byClass = mode >= ListMode::KlasseStartnummer;
  QStringList lines;
  qint64 lastClass = -1;
  for (const QString &key : sortedKeys(store, mode)) {
    const auto &participant = store.Teilnehmer[numberAtEnd(key)];
    const qint64 klasse = wholeNumber(QStringView(key).left(3));
    if (byClass && klasse != lastClass)
      lines << headLine(store, participant);
    lastClass = klasse;
    lines << lineOf(key, participant, mode);
  }
  return lines;
}
