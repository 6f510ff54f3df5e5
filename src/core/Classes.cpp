#include "core/Classes.h"

#include "core/Participants.h"
#include "core/RecordFiles.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"

#include <algorithm>
#include <limits>

namespace {

/// One of the three splits of a race: the criterion, and what of a person it asks for.
struct Split {
  int criterion, value;
  const char *criterionName, *whatToDo;

  /// The switch of the exact class. Files may hold any number in both.
  int result() const {
    constexpr qint64 Most = std::numeric_limits<int>::max();
    return int(std::clamp(qint64(criterion) * value, -Most, Most));
  }
};

/// Who is assigned: his record, its number and his row.
struct Person {
  LaeuferSatz athlete;
  int record, row;
};

QString criterionTrouble(const Split &split) {
  return QStringLiteral("Bitte in den Auswertungskriterien „%1“ neu wählen: Im Satz der Veranstaltung steht dafür %2 "
                        "statt 0 oder 1.")
      .arg(QString::fromUtf8(split.criterionName))
      .arg(split.criterion);
}

QString personTrouble(const Person &person, const Split &split) {
  return QStringLiteral("„%1“ (Läufer Nr. %2, Zeile %3 der Teilnehmer): %4")
      .arg(shownText(person.athlete.Name))
      .arg(person.record)
      .arg(person.row)
      .arg(QString::fromUtf8(split.whatToDo));
}

// The report of a switch outside 0 and 1 must name the person, or nobody can mend it on race day.
void requireSwitch(const Person &person, const Split &split) {
  if (split.result() < 0 || split.result() > 1)
    throw RangeFault(QStringLiteral("KlasseReihenfolge"), split.result(), 0, 1,
                     split.criterion > 1 ? criterionTrouble(split) : personTrouble(person, split));
}

void assign(Store &store, const Person &person, int klasse) {
  auto &participant = store.Teilnehmer[person.row];
  const Split a{store.Rennen.WertGeschlecht, person.athlete.Geschlecht, "m/w",
                "das Geschlecht fehlt. Bitte im Menü unter „Läufer“ eintragen und die Veranstaltung wieder öffnen."};
  const Split b{store.Rennen.WertGaeste, participant.Gast, "Gäste",
                "„Gast“ ist weder 0 noch 1. Bitte in der Teilnehmerliste doppelt anklicken und neu setzen."};
  const Split f{store.Rennen.WertBoarder, participant.Boarder, "Boarder",
                "„Boarder“ ist weder 0 noch 1. Bitte in der Teilnehmerliste doppelt anklicken und neu setzen."};
  participant.KlasseNr = klasse;
  ++store.KlasseAnzahl[klasse];
  if (statusSum(participant) == 0)
    ++store.KlasseAnzahlOk[klasse];
  for (const Split &split : {a, b, f})
    requireSwitch(person, split);
  participant.KlasseReihe = store.KlasseReihenfolge(klasse, a.result(), b.result(), f.result());
  participant.KlasseGenau = qint16(exactClass(klasse, a.result(), b.result(), f.result()));
}

} // namespace

void KlassenZuordnen(Store &store) {
  LaeuferOeffnen(store);
  store.KlasseAnzahl.fill(0);
  store.KlasseAnzahlOk.fill(0);
  for (const int row : store.Teilnehmer.rows()) {
    const int record = store.Teilnehmer[row].LaeuferNr;
    if (record < 1)
      continue;
    const Person person{LaeuferLesen(store, record), record, row};
    const int year = yearOf(person.athlete.Geburtsdatum);
    for (const int k : ClassRows)
      if (!store.KlasseName[k].isEmpty() && store.KlasseVon[k] <= year && store.KlasseBis[k] >= year)
        assign(store, person, k);
  }
}

void takeStandardClasses(Store &store) {
  for (const int k : ClassRows) {
    store.KlasseName[k] = store.StdKlasse[k].StdKlasseName;
    store.KlasseVon[k] = store.StdKlasse[k].Von;
    store.KlasseBis[k] = store.StdKlasse[k].Bis;
  }
}

QString Reihungsschluessel(const Store &store, const TeilnehmerZeile &participant) {
  return masked(store.Rennen.WertKlassen == 1 ? participant.KlasseReihe : participant.GruppeNr, "0##");
}
