#pragma once

#include "core/Store.h"

/// What the screen of the cup shows after an evaluation.
struct CupResult {
  /// Names of all persons, in the order in which they were found.
  QStringList names;
  /// One line for each person in the order of the result, see cupKeys.
  QStringList keys;
  /// The listing.
  QStringList lines;
  /// Results struck per person: as many as were wanted, at most one for each round.
  int struck = 0;
};

/// Scores the cup of `races`, which stand as in the list of races; round 1 is the last of them. A second run counts as
/// a round of its own if at least five have a second time. The criteria and the race record of the last race hold for
/// all. Fills the cup tables; the tables of the race are left with the last one ranked. More than ten rounds are a
/// RangeFault.
///
/// Quirk: a person is a name. Of two athletes with the same name only the first one found gets results; a person
/// without a name does not take part.
CupResult evaluateCup(Store &store, const QList<int> &races, qint64 strikes);

/// The names in the order of a list of persons.
QStringList personLines(const QStringList &names);

/// Lines of the points table: the places with more than 0 points; with `negativeToo` all that are not 0.
QStringList pointsLines(const CupTabellen &cup, bool negativeToo);

/// The place that a typed text stands for, held to the points table.
int heldPlace(const QString &typed);
/// The points of a place as the editor shows them: nothing for 0.
QString pointsText(const CupTabellen &cup, int place);
/// Stores typed points of a place, leading number, 16 bits; false, and nothing is stored, for more.
bool storePoints(CupTabellen &cup, int place, const QString &typed);

/// What Cup.dat holds beside the points table.
struct CupChoice {
  QString name;
  QList<int> races;
};
/// Sets the points table from Cup.dat, or as usual where there is none.
CupChoice loadCup(Store &store);
/// The content of Cup.dat.
QByteArray cupBytes(const CupTabellen &cup, const CupChoice &choice);
/// Replaces Cup.dat whole.
void saveCup(const Store &store, const CupChoice &choice);
/// Number that Cup.dat holds for a line of the race list.
int cupRaceOfLine(const QString &line);
