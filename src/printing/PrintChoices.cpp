#include "printing/PrintChoices.h"

#include "core/Participants.h"
#include "core/RecordFiles.h"
#include "platform/Numbers.h"

namespace {

QString ranglisteZeile(const Store &store, int row) {
  const TeilnehmerZeile &participant = store.Teilnehmer[row];
  const QString name = LaeuferLesen(store, participant.LaeuferNr).Name;
  return rightAligned(plainText(participant.Rang), 4) + QStringLiteral(". ") + padded(name, 25) + QLatin1Char(' ') +
         padded(store.KlasseGenauName.valueOrEmpty(participant.KlasseGenau), 20) + QStringLiteral("            ") +
         plainText(row);
}

} // namespace

QStringList ranglisteZeilen(const Store &store) {
  QStringList lines;
  for (const int place : store.rangliste.RangListe.rows()) {
    const int row = store.rangliste.RangListe[place];
    const TeilnehmerZeile &participant = store.Teilnehmer[row];
    if (participant.StartNr != 0 && statusSum(participant) <= 0)
      lines.append(ranglisteZeile(store, row));
  }
  return lines;
}

QStringList klassenNamen(const Store &store) {
  QStringList names;
  for (int klasse = 1; klasse <= 20; ++klasse)
    names.append(store.KlasseName[klasse]);
  return names;
}
