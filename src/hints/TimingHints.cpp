#include "core/Participants.h"
#include "core/ValueFormats.h"
#include "hints/Rules.h"
#include "platform/Numbers.h"
#include "timing/TimingList.h"

#include <QHash>

#include <algorithm>

// Times, statuses and points (Form7, Form18).

namespace {

using Times = double TeilnehmerZeile::*;

constexpr double Slow = 1.5, Fast = 0.5; // of the middle time of a class
constexpr double FarAhead = 0.7;         // of the best of the others
constexpr int FewestToCompare = 3;
constexpr int LastStatus = 3; // that has a text

bool isOk(const Starter &starter) {
  return statusSum(starter.participant) <= 0;
}

bool has(const Starter &starter, Times time) {
  return starter.participant.*time != 0;
}

bool any(const Situation &now, Times time) {
  return std::any_of(now.starters().begin(), now.starters().end(),
                     [time](const Starter &starter) { return has(starter, time); });
}

QString numbered(const Starter &starter) {
  return QStringLiteral("Nr. %1 %2").arg(starter.participant.StartNr).arg(nameOf(starter.athlete));
}

Hint notATime(const Situation &now, const char *field, Times time) {
  const Starter *shown = now.starterOf(now.number("Label11"));
  const QString typed = now.text(field);
  if (!shown || regionalNumber(KommaEingabe(typed)))
    return {};
  return {QStringLiteral("„%1“ ist keine Zahl, gespeichert bleibt %2: Sekunden tippen, etwa 63,45.")
              .arg(typed, plainText(shown->participant.*time)),
          QLatin1String(field)};
}

/// Whether a time stands apart from those of its class, sorted.
bool isUnlikely(double time, const QList<double> &all) {
  const double middle = all[all.size() / 2], best = all[0] == time ? all[1] : all[0];
  return time > Slow * middle || time < Fast * middle || time < FarAhead * best;
}

QHash<int, QList<double>> timesOfClasses(const Situation &now, Times time) {
  QHash<int, QList<double>> times;
  for (const Starter &starter : now.starters())
    if (has(starter, time) && isOk(starter))
      times[starter.participant.KlasseReihe] << starter.participant.*time;
  for (auto &all : times)
    std::sort(all.begin(), all.end());
  return times;
}

Hint unlikelyTime(const Situation &now, Times time, const char *field) {
  const auto times = timesOfClasses(now, time);
  const Starter *told = nullptr;
  int count = 0;
  for (const Starter &starter : now.starters()) {
    const auto &all = times.value(starter.participant.KlasseReihe);
    if (!has(starter, time) || !isOk(starter) || all.size() < FewestToCompare ||
        !isUnlikely(starter.participant.*time, all))
      continue;
    ++count;
    if (!told || starter.row == now.number("Label11")) // the person on the screen goes first
      told = &starter;
  }
  if (!told)
    return {};
  const QString more = count > 1 ? QStringLiteral(" Ebenso %1 weitere.").arg(count - 1) : QString();
  return {QStringLiteral("%1: %2 passt nicht zu den anderen der Klasse. Tippfehler?")
                  .arg(numbered(*told), ZeitText(told->participant.*time)) +
              more,
          told->row == now.number("Label11") ? QLatin1String(field) : QString()};
}

Hint sameTime(const Situation &now, Times time) {
  QHash<qint64, const Starter *> byNumber;
  for (const Starter &starter : now.starters())
    byNumber[starter.participant.StartNr] = &starter;
  for (const Starter &starter : now.starters()) {
    const Starter *next = byNumber.value(qint64(starter.participant.StartNr) + 1);
    if (next && starter.participant.StartNr != 0 && has(starter, time) &&
        starter.participant.*time == next->participant.*time)
      return {QStringLiteral("Nr. %1 und Nr. %2 haben dieselbe Zeit %3: zweimal getippt?")
                  .arg(QString::number(starter.participant.StartNr), QString::number(next->participant.StartNr),
                       ZeitText(starter.participant.*time))};
  }
  return {};
}

} // namespace

Hint Hints::notAFirstTime(const Situation &now) {
  return notATime(now, "Text1", &TeilnehmerZeile::Zeit1);
}

Hint Hints::notASecondTime(const Situation &now) {
  return now.store.Rennen.ZweiDurchgaenge == 0 ? Hint() : notATime(now, "Text6", &TeilnehmerZeile::Zeit2);
}

// The whole time is selected, so that the next key replaces it.
Hint Hints::timeReplaced(const Situation &now) {
  const bool second = now.hasFocus("Text6");
  const Times time = second ? &TeilnehmerZeile::Zeit2 : &TeilnehmerZeile::Zeit1;
  const Starter *shown = second || now.hasFocus("Text1") ? now.starterOf(now.number("Label11")) : nullptr;
  if (!shown || !has(*shown, time))
    return {};
  return {QStringLiteral("%1 hat schon %2: Was hier getippt wird, ersetzt diese Zeit.")
              .arg(numbered(*shown), ZeitText(shown->participant.*time)),
          now.text("Fokus")};
}

Hint Hints::timeInParts(const Situation &now) {
  const auto isIn = [&now](std::initializer_list<const char *> fields) {
    return std::any_of(fields.begin(), fields.end(), [&now](const char *field) { return now.hasFocus(field); });
  };
  const bool first = isIn({"Text2", "Text3", "Text4"});
  if (!first && !isIn({"Text7", "Text8", "Text9"}))
    return {};
  return {
      QStringLiteral("Stunden, Minuten und Sekunden gelten erst nach „eintragen“ daneben, sonst sind sie verloren."),
      first ? QStringLiteral("Command2") : QStringLiteral("Command6")};
}

Hint Hints::pointsCut(const Situation &now) {
  QString typed = now.text("Text5");
  typed.replace(QLatin1Char('.'), QLatin1Char(','));
  if (!typed.contains(QLatin1Char(',')))
    return {};
  return {QStringLiteral("Punkte verlieren ihre Bruchteile, sobald man das Feld durchläuft: aus %1 wird %2.")
              .arg(typed, plainText(leadingNumber(typed))),
          QStringLiteral("Text5")};
}

// Their comma parts the line in two when the race is read again.
Hint Hints::pointsLoseRace(const Situation &now) {
  const auto parted = [](const Starter &starter) {
    return plainText(starter.participant.Punkte).contains(QLatin1Char(','));
  };
  return {aboutStarters(
      namesOf(now, parted), "Teilnehmer hat", "Teilnehmer haben",
      "%1 Punkte mit Bruchteil: Nach dem Speichern fehlen Personen und Zeiten, ganze Zahlen tippen (%2).")};
}

Hint Hints::withoutTime(const Situation &now) {
  if (!any(now, &TeilnehmerZeile::Zeit1) || any(now, &TeilnehmerZeile::Zeit2))
    return {};
  const QStringList who =
      namesOf(now, [](const Starter &starter) { return isOk(starter) && !has(starter, &TeilnehmerZeile::Zeit1); });
  return {who.isEmpty() ? QString() : QStringLiteral("Noch %1 ohne Zeit: %2.").arg(who.size()).arg(names(who))};
}

Hint Hints::withoutSecondTime(const Situation &now) {
  if (!any(now, &TeilnehmerZeile::Zeit2))
    return {};
  return {aboutStarters(namesOf(now,
                                [](const Starter &starter) {
                                  return isOk(starter) && has(starter, &TeilnehmerZeile::Zeit1) &&
                                         !has(starter, &TeilnehmerZeile::Zeit2);
                                }),
                        "fehlt", "fehlen", "Vorläufig: %1 in der Wertung, bis die Zeit im 2. Durchgang da ist (%2).")};
}

Hint Hints::statusBesideTime(const Situation &now) {
  return {
      aboutStarters(namesOf(now,
                            [](const Starter &starter) {
                              return !isOk(starter) &&
                                     (has(starter, &TeilnehmerZeile::Zeit1) || has(starter, &TeilnehmerZeile::Zeit2));
                            }),
                    "Teilnehmer hat", "Teilnehmer haben", "%1 eine Zeit und einen Status, also keine Wertung (%2).")};
}

Hint Hints::statusWithoutText(const Situation &now) {
  return {aboutStarters(namesOf(now,
                                [](const Starter &starter) {
                                  return std::max(starter.participant.Status1, starter.participant.Status2) >
                                         LastStatus;
                                }),
                        "Teilnehmer hat", "Teilnehmer haben", "%1 einen leeren Status, also keine Wertung (%2)."),
          {}};
}

Hint Hints::unlikelyFirstTime(const Situation &now) {
  return unlikelyTime(now, &TeilnehmerZeile::Zeit1, "Text1");
}

Hint Hints::unlikelySecondTime(const Situation &now) {
  return unlikelyTime(now, &TeilnehmerZeile::Zeit2, "Text6");
}

Hint Hints::sameFirstTime(const Situation &now) {
  return sameTime(now, &TeilnehmerZeile::Zeit1);
}

Hint Hints::sameSecondTime(const Situation &now) {
  return sameTime(now, &TeilnehmerZeile::Zeit2);
}

Hint Hints::pointsWithoutTime(const Situation &now) {
  if (now.store.Rennen.WertZeit == 1)
    return {};
  return {aboutStarters(
      namesOf(now,
              [](const Starter &starter) {
                return isOk(starter) && starter.participant.Punkte != 0 && !has(starter, &TeilnehmerZeile::Zeit1);
              }),
      "Teilnehmer hat", "Teilnehmer haben", "%1 Punkte und keine Zeit, ohne sie keine Wertung (%2).")};
}

Hint Hints::auxiliaryTakesFirstRun(const Situation &now) {
  if (!now.isOn("Option5"))
    return {};
  return {QStringLiteral("„HZN“ setzt immer die Zeit des 1. Durchgangs, auch in dieser Anordnung."),
          QStringLiteral("Command7")};
}

Hint Hints::auxiliaryGoesTo(const Situation &now) {
  const Starter *who = now.starterOf(now.store.TnIdx);
  if (!who || !has(*who, &TeilnehmerZeile::Zeit1))
    return {};
  return {QStringLiteral("Die Differenz ersetzt die Zeit %1 im 1. Durchgang von %2.")
              .arg(ZeitText(who->participant.Zeit1), numbered(*who))};
}

Hint Hints::auxiliaryTooShort(const Situation &now) {
  const QString difference = now.text("Text2");
  if (difference.isEmpty() || leadingNumber(difference) != 0)
    return {};
  return {QStringLiteral("Unter einer Sekunde wird nichts übernommen."), QStringLiteral("Command4")};
}

Hint Hints::auxiliaryNoNumber(const Situation &now) {
  for (const char *field : {"Text1", "Text6"})
    if (const QString typed = KommaEingabe(now.text(field)); !regionalNumber(typed))
      return {QStringLiteral("„%1“ ist keine Zahl: Es wird nicht gerechnet. Nur Sekunden, etwa 63,45.").arg(typed),
              QLatin1String(field)};
  return {};
}

Hint Hints::resultIsASnapshot(const Situation &now) {
  if (!now.isOn("Check1"))
    return {};
  return {
      QStringLiteral("„vorläufiges Ergebnis“ zeigt den Stand beim Ankreuzen. Neuer Stand: Häkchen weg und wieder her."),
      QStringLiteral("Check1")};
}
