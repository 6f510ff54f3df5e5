#include "timing/TimingList.h"

#include "core/Participants.h"
#include "platform/Numbers.h"
#include "platform/SortedLines.h"
#include "timing/Ranking.h"

#include <algorithm>

namespace {

constexpr auto TimeMask = "0####.#0";

QString startNumber(const TeilnehmerZeile &participant) {
  return masked(participant.StartNr, "0###");
}

QString classNumber(const TeilnehmerZeile &participant) {
  return masked(participant.KlasseReihe, "0##");
}

// Quirk: group by row. It is the name in the row of the participant, not that of his group.
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

// The key without what only sorts it, and the start number where that has gone with it.
// Quirk: wide values shift the line. The places fit usual widths.
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

/// How a line fits what was typed.
enum class Fit { None, Beginning, Whole };

Fit numberFit(const TeilnehmerZeile &participant, const QString &typed) {
  const QString number = plainText(participant.StartNr);
  if (participant.StartNr == wholeNumber(typed))
    return Fit::Whole;
  return number.startsWith(typed) ? Fit::Beginning : Fit::None;
}

// The name begins with the first letter of a line.
Fit nameFit(const QString &line, const QString &typed) {
  const auto letter = std::find_if(line.begin(), line.end(), [](QChar c) { return c.isLetter(); });
  const QStringView name = QStringView(line).mid(letter - line.begin());
  return name.startsWith(typed, Qt::CaseInsensitive) ? Fit::Whole : Fit::None;
}

Fit fit(const Store &store, const QString &line, const QString &typed) {
  const int row = numberAtEnd(line);
  if (row == 0 || typed.isEmpty())
    return Fit::None;
  return typed[0].isDigit() ? numberFit(store.Teilnehmer[row], typed) : nameFit(line, typed);
}

} // namespace

std::pair<int, bool> lineSought(const Store &store, const QStringList &lines, const QString &typed, int from) {
  int found = -1, fitting = 0;
  for (qsizetype step = 1; step <= lines.size(); ++step) {
    const int line = int((from + step) % lines.size());
    const Fit how = fit(store, lines[line], typed);
    fitting += how != Fit::None;
    if (how == Fit::Whole && found < 0)
      found = line;
  }
  return {found, found >= 0 && fitting == 1};
}

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
