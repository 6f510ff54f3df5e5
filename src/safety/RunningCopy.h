#pragma once

#include "safety/RaceImage.h"

#include <QDateTime>

/// The copy of the work that is renewed while the operator types, in the folder "Laufend". Each is made whole beside
/// the one before, takes its place by a rename, and only then the one before goes; so at any moment a whole one is
/// there; beside one of registers the one before stays, as it holds the work on the open race. A manifest tells what
/// belongs to it, with hashes. What cannot be read whole is put aside, never deleted, and looked at again at each
/// start.
class RunningCopy {
public:
  /// A copy as a run that died has left it.
  struct Found {
    /// What of it can be read and matches its hash.
    RaceImage image;
    QString folder;
    /// Names of the files that could not be read or do not match; not empty without a readable manifest.
    QStringList unreadable;
    /// Folder into which it has been put already; empty if there was none.
    QString rescuedTo;
    /// When it was made.
    QDateTime time;

    bool isWhole() const { return unreadable.isEmpty(); }
  };

  /// `folder` is the safety folder of a data folder.
  explicit RunningCopy(const QString &folder);

  /// To be called once, before the first `write`: what died runs have left and nobody has answered yet, the newest
  /// whole copy first, with the one before if it is of registers. Copies that are damaged, also those of earlier
  /// starts, are put aside; a folder that cannot be read at all, too. A FileFault if not even that is possible; then no
  /// copy may be written.
  QList<Found> leftBehind();
  /// The operator has answered, or there was no news in it: a whole copy goes, a damaged one is not offered again
  /// unless more of it can be read.
  void settle(const Found &found);

  /// Makes the next copy. A failure is a FileFault and leaves the last one.
  void write(const RaceImage &image);
  /// Notes on a copy that it lies in `rescueFolder` as well. Where that fails, the next start only rescues it once
  /// more.
  static void markRescued(const QString &copy, const QString &rescueFolder);
  /// The copy that was made last; empty before the first.
  QString last() const { return m_last; }
  /// Removes all copies, but for those put aside: a clean end.
  void clear();
  /// Moves a copy away to `folder`, on the same disk.
  void moveTo(const Found &found, const QString &folder);

private:
  QList<Found> copiesIn(const QString &folder) const;
  QList<Found> copiesWithin(const QString &folder) const;
  void putAside(const QString &folder) const;
  void discard(const QString &folder) const;
  void discardIfPossible(const QString &folder) const;

  QString m_folder, m_aside, m_done, m_last;
};
