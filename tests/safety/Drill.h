#pragma once

#include "safety/Sessions.h"

#include <QByteArray>
#include <QString>

#include <map>

/// What happens at which file call of a run (see FileCalls.cpp); nothing at call 0.
struct Mishap {
  int call = 0;
  QByteArray act;
  bool isDeath() const { return act == "kill" || act == "half" || act == "cut"; }
};

/// A session with a mishap, then, if it has one too, a start with another; then a start in peace that takes over what
/// is offered.
struct Case {
  const Session *session;
  Mishap first, second;
};

/// What a run of the program has left: its kinds of calls in order, what the operator did and when.
struct Run {
  struct Done {
    long when = 0;   // milliseconds
    double took = 0; // milliseconds by the clock on the wall
  };

  bool killed = false;
  int code = 0;
  QString errors;
  QStringList calls, log;
  std::vector<Done> steps;
  int answers = 0;
  /// Milliseconds: the last line of the log, and the first call that was made to fail.
  long end = 0, firstFailure = -1;

  /// Ended as it may: by a kill, well, or with a report in German.
  bool isAccounted(const Mishap &mishap, size_t wanted) const;
};

/// What went wrong, in words; all empty if nothing did.
struct Findings {
  QStringList lost, wiped, mixed, unreported;
  QStringList all() const { return lost + wiped + mixed + unreported; }
  /// What happened around the mishaps.
  QString account;
  /// Whether the next start offered something, and how many calls it made.
  bool offered = false;
};

/// Runs the real program off-screen, with the device between it and the disk.
class Drill {
public:
  /// What the session leaves if nothing happens; the base of all judgement.
  explicit Drill(const Session &session);

  /// All mishaps of the session itself.
  std::vector<Case> cases() const;
  /// All mishaps of the start after the session died at `death`.
  std::vector<Case> casesOfNextStart(const Mishap &death) const;
  Findings run(const Case &what) const;
  /// The longest that the operator waited for something typed while each sync takes `syncDelay`, both in milliseconds.
  double slowestTyping(int syncDelay) const;
  /// What goes wrong without any mishap: then nothing else can be judged. Empty if all is well.
  QString trouble() const;

private:
  void judgeFacts(Findings &findings, const QStringList &required, const QString &folder) const;

  const Session &m_session;
  Run m_run;
  QStringList m_before, m_after;
  std::map<QString, qint64> m_sizes;
};
