#include "hints/Hints.h"

#include "hints/Rules.h"

namespace {

constexpr auto Always = "solange es so ist";
constexpr auto Typing = "beim Tippen";
constexpr auto Entering = "beim Betreten des Feldes";
constexpr auto Choosing = "bei der Auswahl";

constexpr HintRule Rules[] = {
    // What ends the program or loses a race goes first.
    {"Geschlecht fehlt im Rennen", "Form4 Form5 Form6 Form7 Form8 Form10 Form12 Form14 Form15", Always,
     Hints::participantsWithoutSex},
    {"Kein Rennen offen", "Form5 Form6 Form7 Form8 Form10 Form11 Form12 Form15", Always, Hints::noRaceOpen},
    {"Bruchteil in Punkten", "Form4 Form5 Form6 Form7 Form8", Always, Hints::pointsLoseRace},
    {"Zu viele Rennen", "Form19", Choosing, Hints::tooManyRacesInSum},
    {"Zu viele Läufe", "Form20", Choosing, Hints::tooManyRoundsInCup},

    {"Leerer Ordner", "Form1", Always, Hints::emptyFolder},

    {"Telefon", "Form2", Entering, Hints::phoneTakesContact},
    {"Kurzbezeichnung fehlt", "Form2", Always, Hints::clubWithoutShortName},
    {"Kurzbezeichnung doppelt", "Form2", Always, Hints::sameShortName},

    {"Umbenennen", "Form3", Typing, Hints::renaming},
    {"Name gibt es schon", "Form3", Typing, Hints::nameTaken},
    {"Zwei Ziffern", "Form3", Typing, Hints::twoDigitYear},
    {"Unwahrscheinlicher Jahrgang", "Form3", Always, Hints::unlikelyYear},
    {"Kein Geburtsdatum", "Form3", Typing, Hints::invalidDate},
    {"Geschlecht fehlt", "Form3", Always, Hints::athleteWithoutSex},
    {"Geburtsdatum fehlt", "Form3", Always, Hints::athleteWithoutDate},
    {"Punkte des Läufers", "Form3", Always, Hints::athletePointsCut},

    {"Erstes Rennen", "Form4", Always, Hints::firstRaceNotOpen},
    {"Name nicht eingetragen", "Form4", Typing, Hints::raceNameNotEntered},
    {"Graue Knöpfe", "Form4", Entering, Hints::functionsLocked},
    {"Rennen ohne Namen", "Form4", Always, Hints::raceWithoutName},
    {"Löschen nimmt Zeiten", "Form9", Always, Hints::deletionLosesTimes},
    {"Löschen eines Cuprennens", "Form9", Always, Hints::deletionLeavesCup},

    {"Kopie überschreibt", "CupKopie", Typing, Hints::copyOverwrites},
    {"Kopie auf sich selbst", "CupKopie", Typing, Hints::copyOntoItself},
    {"Kopie ohne Nummer", "CupKopie", Typing, Hints::copyWithoutNumber},
    {"Kopie eines anderen Rennens", "CupKopie", Always, Hints::copyOfAnotherRace},
    {"Kopie über 999", "CupKopie", Typing, Hints::copyTooHighForCup},

    {"Löschen aus der Liste", "Form5", Choosing, Hints::removalLosesResult},
    {"Neuaufnahme", "Form5", Typing, Hints::newEntryRenames},
    {"Neue Läufer", "Form5", "nach einer Neuaufnahme", Hints::athletesNotListed},
    {"Filter", "Form5", Typing, Hints::filterHidesParticipants},
    {"Kombilauf", "Form5 Form8", Always, Hints::combinedRaceMoved},
    {"Zweimal im Feld", "Form5 Form6 Form7", Always, Hints::twiceInField},
    {"Liste voll", "Form5", Always, Hints::tableNearlyFull},
    {"Verein nicht gewählt", "Form5 Form6", Always, Hints::clubNotChosen},

    {"Nummer nicht gespeichert", "Form6", Typing, Hints::numberNotStored},
    {"Häkchen nach dem Losen", "Form6", "nach einer Nummernvergabe", Hints::boxHitsAnother},
    {"Reserve", "Form6", Typing, Hints::reserveOutOfRange},
    {"Neu losen", "Form6", Choosing, Hints::drawReplacesNumbers},
    {"Nummern einer Gruppe", "Form6", Choosing, Hints::groupRunTakesClass},
    {"Nummern einer Klasse", "Form6", Choosing, Hints::classRunRepeatsNumbers},

    {"Keine Zeit", "Form7", Typing, Hints::notAFirstTime},
    {"Keine zweite Zeit", "Form7", Typing, Hints::notASecondTime},
    {"Zeit wird ersetzt", "Form7", Entering, Hints::timeReplaced},
    {"Zeit in Teilen", "Form7", Entering, Hints::timeInParts},
    {"Punkte verlieren Bruchteile", "Form7", Always, Hints::pointsCut},
    {"Zeit passt nicht", "Form7", Always, Hints::unlikelyFirstTime},
    {"Zweite Zeit passt nicht", "Form7", Always, Hints::unlikelySecondTime},
    {"Gleiche Zeit", "Form7", Always, Hints::sameFirstTime},
    {"Gleiche zweite Zeit", "Form7", Always, Hints::sameSecondTime},
    {"Hilfszeit im 2. Durchgang", "Form7", Choosing, Hints::auxiliaryTakesFirstRun},
    {"Status und Zeit", "Form7 Form8", Always, Hints::statusBesideTime},
    {"Leerer Status", "Form7 Form8", Always, Hints::statusWithoutText},
    {"Punkte ohne Zeit", "Form7 Form8", Always, Hints::pointsWithoutTime},
    {"Ohne Zeit", "Form7 Form8", Always, Hints::withoutTime},
    {"Ohne zweite Zeit", "Form7 Form8 Form12", Always, Hints::withoutSecondTime},
    {"Vorläufiges Ergebnis", "Form7", Always, Hints::resultIsASnapshot},
    {"Hilfszeit zu kurz", "Form18", Typing, Hints::auxiliaryTooShort},
    {"Hilfszeit keine Zahl", "Form18", Typing, Hints::auxiliaryNoNumber},
    {"Hilfszeit ersetzt", "Form18", Always, Hints::auxiliaryGoesTo},

    {"Verein fehlt", "Form8", Choosing, Hints::clubFilterWithoutClub},
    {"Urkunden", "Form8", "nach einer anderen Liste", Hints::certificatesOfAnotherList},
    {"Titel zu lang", "Form8", Always, Hints::titleTooLong},
    {"Logo", "Form8 Form21", Always, Hints::logoInCapitals},

    {"Nummern fehlen", "Form6 Form7 Form8", Always, Hints::numbersMissing},
    {"Nummern doppelt", "Form6 Form7 Form8", Always, Hints::numbersTwice},
    {"Keine Klasse", "Form5 Form6 Form8 Form10 Form15", Always, Hints::participantsWithoutClass},
    {"Alle in einer Klasse", "Form6 Form7 Form8", Always, Hints::rankedTogether},
    {"Klasse ohne Bezeichnung", "Form8 Form15", Always, Hints::classWithoutName},
    {"Ohne Geburtsdatum", "Form5 Form6 Form10", Always, Hints::participantsWithoutDate},
    {"Ohne Namen", "Form5 Form6 Form8", Always, Hints::participantsWithoutName},
    {"Ohne Geschlecht gedruckt", "Form8", Always, Hints::printedWithoutSex},
    {"Zuschlag", "Form8", Always, Hints::surchargesInTimes},

    {"Jahr zurückgesetzt", "Form10", "nach dem Verlassen des Feldes", Hints::yearPutBack},
    {"Lücke zwischen Klassen", "Form10", Always, Hints::gapBetweenClasses},
    {"Klassen überschneiden sich", "Form10", Always, Hints::classesOverlap},
    {"Leere Klasse", "Form10 Form15", Always, Hints::emptyClassRow},

    {"Klasse ohne Nummer", "Form15", Always, Hints::classWithoutNumber},
    {"Gleiche Nummer", "Form15", Always, Hints::sameNumberOtherName},
    {"Nummer über 159", "Form15", Always, Hints::orderNumberTooHigh},

    {"Zuschlag Gäste", "Form14", Always, Hints::guestSurchargeCut},
    {"Zuschlag Männer", "Form14", Always, Hints::menSurchargeCut},
    {"Wertung nach Punkten", "Form14", Always, Hints::lowestPointsWin},
    {"Niemand hat Punkte", "Form6 Form7 Form8 Form14", Always, Hints::pointsWithoutPoints},
    {"Niemand in einer Gruppe", "Form6 Form7 Form8 Form14", Always, Hints::groupsWithoutAny},
    {"Zweite Zeiten übrig", "Form14", Always, Hints::secondTimesLeft},

    {"Mannschaften nicht gespeichert", "Form11", Always, Hints::teamsNotSaved},
    {"Gruppen nicht gespeichert", "Form11", Always, Hints::groupsNotSaved},
    {"Mannschaft ohne Namen", "Form11 Form12", Always, Hints::membersWithoutTeam},
    {"Gruppe ohne Namen", "Form11 Form12", Always, Hints::membersWithoutGroup},
    {"Mannschaft leer", "Form11", Always, Hints::teamsWithoutMembers},
    {"Gruppe leer", "Form11", Always, Hints::groupsWithoutMembers},

    {"Nichts angekreuzt", "Form12", Always, Hints::nothingToRank},
    {"Mannschaft unvollständig", "Form12", Choosing, Hints::teamsIncomplete},
    {"Verein eines früheren Rennens", "Form12", Always, Hints::clubsLeftOver},
    {"Zu viele Vereine", "Form12", Always, Hints::tooManyClubs},
    {"Klassen nicht zugeteilt", "Form12", Always, Hints::classesNotAssigned},

    {"Text zu lang", "Form16", Typing, Hints::textTooLong},
    {"Ort fehlt", "Form16", Always, Hints::placeMissing},
    {"Datum des Rennens", "Form16", Typing, Hints::raceDateInvalid},
    {"Bild fehlt", "Form21", Always, Hints::bannerMissing},
    {"Bild verdeckt", "Form21", Always, Hints::bannersOverlap},
    {"Bild ragt hinaus", "Form21", Always, Hints::bannerOffPage},

    {"Rennnummer über 999", "Form19 Form20", Choosing, Hints::raceNumberCut},
    {"Rennen ohne Zeiten", "Form19 Form20", Choosing, Hints::raceWithoutTimes},
    {"Verschiedene Rennen", "Form20", Choosing, Hints::racesDiffer},
    {"Wer fehlt", "Form19", Choosing, Hints::missingBecomesDis},
    {"Streichresultate", "Form20", Typing, Hints::strikesLeaveNothing},
    {"Gleiche Namen im Cup", "Form20", Choosing, Hints::sameNameInCup},
};

} // namespace

std::span<const HintRule> hintRules() {
  return Rules;
}

QList<Hint> HintBook::of(const QString &screen, const ShownValues &shown) {
  const Situation now(m_store, shown, m_races);
  QList<Hint> ofMoment, lasting;
  for (const HintRule &rule : Rules) {
    if (!QString::fromLatin1(rule.screens).split(QLatin1Char(' ')).contains(screen))
      continue;
    const Hint hint = rule.rule(now);
    if (hint.text.isEmpty())
      continue;
    (rule.moment == Always ? lasting : ofMoment) << hint;
  }
  return ofMoment + lasting;
}
