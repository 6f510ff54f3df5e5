#pragma once

#include "core/Store.h"
#include "exchange/Entries.h"

#include <QMap>

/// What a line of a table is, beside the register.
enum class Verdict { New, Known, Similar, Refused };
/// What is to become of a line; of one that is similar to somebody, nothing before it was chosen.
enum class Choice { Open, Same, New, LeaveOut };

struct PlannedEntry {
  Entry entry;
  Verdict verdict = Verdict::New;
  Choice choice = Choice::New;
  /// The athlete whom the line means or is similar to; 0 = none.
  int record = 0;
  /// He, in words.
  QString whom;
};

/// A club of the table that the register does not know.
struct ClubAnswer {
  static constexpr int Open = 0, MakeNew = -1;
  QString text;
  /// Record number, or one of these.
  int club = Open;
};

/// What taking over a table would do. Nothing is written before `takeOver` (see TakeOver.h).
struct EntryPlan {
  QList<PlannedEntry> lines;
  /// Record numbers of the clubs of the register, by their folded names.
  QHash<QString, int> knownClubs;
  /// By their folded names.
  QMap<QString, ClubAnswer> unknownClubs;

  /// Record number of a club, MakeNew, or Open if it is unknown and not answered; 0 for the empty text.
  int club(const QString &text) const;
  /// The club for which a line waits; empty if for none.
  QString openClub(const PlannedEntry &line) const;
  /// Whether the line is taken over as the answers stand now.
  bool isTaken(const PlannedEntry &line) const;
};

/// Told now and then in a long work: how much of it is done.
using EntryProgress = std::function<void(qsizetype done, qsizetype all)>;

EntryPlan planFor(
    const Store &store, const QList<Entry> &entries, const EntryProgress &progress = [](qsizetype, qsizetype) {});

/// What happens with a line, in words; `race` if it is entered into the open race as well.
QString wordsFor(const Store &store, const EntryPlan &plan, const PlannedEntry &line, bool race);

/// How many lines are taken, and why others are not.
struct EntryCount {
  int newPersons = 0, known = 0, open = 0, leftOut = 0, newClubs = 0;
  int taken() const { return newPersons + known; }
};
EntryCount count(const EntryPlan &plan);
