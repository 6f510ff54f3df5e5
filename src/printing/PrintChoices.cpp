#include "printing/PrintChoices.h"

#include "core/Participants.h"
#include "core/RecordFiles.h"
#include "platform/Numbers.h"

namespace {

QString ranglisteZeile(Store &store, int row) {
  const TeilnehmerZeile &participant = store.Teilnehmer[row];
  store.LaeuferIdx = participant.LaeuferNr;
  LaeuferLesen(store);
  return rightAligned(plainText(participant.Rang), 4) + QStringLiteral(". ") + padded(store.Laeufer.Name, 25) +
         QLatin1Char(' ') + padded(store.KlasseGenauName.valueOrEmpty(participant.KlasseGenau), 20) +
         QStringLiteral("            ") + plainText(row);
}

} // namespace

QStringList ranglisteZeilen(Store &store) {
  QStringList lines;
  for (int place = 1; place <= 1000; ++place) {
    const int row = store.RangListe[place];
    const TeilnehmerZeile &participant = store.Teilnehmer[row];
    if (participant.StartNr != 0 && statusSum(participant) <= 0)
      lines.append(ranglisteZeile(store, row));
  }
  return lines;
}

QStringList vereinKurznamen(Store &store) {
  QStringList names;
  const int before = store.VereinIdx;
  for (store.VereinIdx = 1; store.VereinIdx <= store.VereinAnzahl; ++store.VereinIdx) {
    VereinLesen(store);
    names.append(trimmedBlanks(shownText(store.Verein.VereinKurz)));
  }
  store.VereinIdx = before;
  return names;
}

QStringList klassenNamen(const Store &store) {
  QStringList names;
  for (int klasse = 1; klasse <= 20; ++klasse)
    names.append(store.KlasseName[klasse]);
  return names;
}
