#include "printing/PrintChoices.h"

#include "core/Classes.h"
#include "core/Participants.h"
#include "core/RecordFiles.h"
#include "platform/Numbers.h"

namespace {

QString rankingLine(const Store &store, int row) {
  const TeilnehmerZeile &participant = store.Teilnehmer[row];
  const QString name = LaeuferLesen(store, participant.LaeuferNr).Name;
  return rightAligned(plainText(participant.Rang), 4) + QStringLiteral(". ") + padded(name, 25) + QLatin1Char(' ') +
         padded(store.KlasseGenauName.valueOrEmpty(participant.KlasseGenau), 20) + QStringLiteral("            ") +
         plainText(row);
}

} // namespace

QStringList rankingLines(const Store &store) {
  QStringList lines;
  for (const int place : store.ranking.RangListe.rows()) {
    const int row = store.ranking.RangListe[place];
    const TeilnehmerZeile &participant = store.Teilnehmer[row];
    if (participant.StartNr != 0 && statusSum(participant) <= 0)
      lines.append(rankingLine(store, row));
  }
  return lines;
}

QStringList classNames(const Store &store) {
  QStringList names;
  for (const int klasse : ClassRows)
    names.append(store.KlasseName[klasse]);
  return names;
}
