#pragma once

#include "hints/Situation.h"

// The rules behind the hints: each tells one trap of the screen as it stands, or nothing. Which screen shows which, and
// when, is told in the list (Hints.cpp).

namespace Hints {

// Registers of clubs and athletes.
Hint phoneTakesContact(const Situation &now);
Hint clubWithoutShortName(const Situation &now);
Hint sameShortName(const Situation &now);
Hint nameTaken(const Situation &now);
Hint renaming(const Situation &now);
Hint twoDigitYear(const Situation &now);
Hint unlikelyYear(const Situation &now);
Hint invalidDate(const Situation &now);
Hint athleteWithoutSex(const Situation &now);
Hint athleteWithoutDate(const Situation &now);
Hint athletePointsCut(const Situation &now);

// Races and their copies.
Hint emptyFolder(const Situation &now);
Hint noRaceOpen(const Situation &now);
Hint firstRaceNotOpen(const Situation &now);
Hint raceNameNotEntered(const Situation &now);
Hint functionsLocked(const Situation &now);
Hint raceWithoutName(const Situation &now);
Hint deletionLosesTimes(const Situation &now);
Hint deletionLeavesCup(const Situation &now);
Hint copyOverwrites(const Situation &now);
Hint copyOntoItself(const Situation &now);
Hint copyWithoutNumber(const Situation &now);
Hint copyOfAnotherRace(const Situation &now);
Hint copyTooHighForCup(const Situation &now);

// Participants and start numbers.
Hint athletesNotListed(const Situation &now);
Hint filterHidesParticipants(const Situation &now);
Hint clubNotChosen(const Situation &now);
Hint twiceInField(const Situation &now);
Hint tableNearlyFull(const Situation &now);
Hint combinedRaceMoved(const Situation &now);
Hint removalLosesResult(const Situation &now);
Hint newEntryRenames(const Situation &now);
Hint participantsWithoutName(const Situation &now);
Hint participantsWithoutSex(const Situation &now);
Hint participantsWithoutDate(const Situation &now);
Hint numbersTwice(const Situation &now);
Hint numbersMissing(const Situation &now);
Hint boxHitsAnother(const Situation &now);
Hint reserveOutOfRange(const Situation &now);
Hint drawReplacesNumbers(const Situation &now);
Hint groupRunTakesClass(const Situation &now);
Hint classRunRepeatsNumbers(const Situation &now);
Hint numberNotStored(const Situation &now);

// Classes, criteria, teams and groups.
Hint gapBetweenClasses(const Situation &now);
Hint classesOverlap(const Situation &now);
Hint participantsWithoutClass(const Situation &now);
Hint yearPutBack(const Situation &now);
Hint classWithoutNumber(const Situation &now);
Hint sameNumberOtherName(const Situation &now);
Hint rankedTogether(const Situation &now);
Hint classWithoutName(const Situation &now);
Hint orderNumberTooHigh(const Situation &now);
Hint emptyClassRow(const Situation &now);
Hint guestSurchargeCut(const Situation &now);
Hint menSurchargeCut(const Situation &now);
Hint lowestPointsWin(const Situation &now);
Hint pointsWithoutPoints(const Situation &now);
Hint groupsWithoutAny(const Situation &now);
Hint secondTimesLeft(const Situation &now);
Hint teamsNotSaved(const Situation &now);
Hint groupsNotSaved(const Situation &now);
Hint teamsWithoutMembers(const Situation &now);
Hint groupsWithoutMembers(const Situation &now);
Hint membersWithoutTeam(const Situation &now);
Hint membersWithoutGroup(const Situation &now);

// Times, statuses and points.
Hint notAFirstTime(const Situation &now);
Hint notASecondTime(const Situation &now);
Hint timeReplaced(const Situation &now);
Hint timeInParts(const Situation &now);
Hint pointsCut(const Situation &now);
Hint pointsLoseRace(const Situation &now);
Hint withoutTime(const Situation &now);
Hint withoutSecondTime(const Situation &now);
Hint statusBesideTime(const Situation &now);
Hint statusWithoutText(const Situation &now);
Hint unlikelyFirstTime(const Situation &now);
Hint unlikelySecondTime(const Situation &now);
Hint sameFirstTime(const Situation &now);
Hint sameSecondTime(const Situation &now);
Hint pointsWithoutTime(const Situation &now);
Hint auxiliaryTakesFirstRun(const Situation &now);
Hint auxiliaryGoesTo(const Situation &now);
Hint auxiliaryTooShort(const Situation &now);
Hint auxiliaryNoNumber(const Situation &now);
Hint resultIsASnapshot(const Situation &now);

// Printouts.
Hint certificatesOfAnotherList(const Situation &now);
Hint clubFilterWithoutClub(const Situation &now);
Hint titleTooLong(const Situation &now);
Hint printedWithoutSex(const Situation &now);
Hint surchargesInTimes(const Situation &now);
Hint logoInCapitals(const Situation &now);
Hint textTooLong(const Situation &now);
Hint placeMissing(const Situation &now);
Hint raceDateInvalid(const Situation &now);
Hint bannerMissing(const Situation &now);
Hint bannersOverlap(const Situation &now);
Hint bannerOffPage(const Situation &now);

// Clubs, teams and groups, time sum, cup.
Hint teamsIncomplete(const Situation &now);
Hint clubsLeftOver(const Situation &now);
Hint nothingToRank(const Situation &now);
Hint tooManyClubs(const Situation &now);
Hint classesNotAssigned(const Situation &now);
Hint tooManyRacesInSum(const Situation &now);
Hint tooManyRoundsInCup(const Situation &now);
Hint racesDiffer(const Situation &now);
Hint raceNumberCut(const Situation &now);
Hint raceWithoutTimes(const Situation &now);
Hint missingBecomesDis(const Situation &now);
Hint strikesLeaveNothing(const Situation &now);
Hint sameNameInCup(const Situation &now);

} // namespace Hints
