#pragma once

#include "core/RaceImage.h"

/// The copy of the open race that is renewed while the operator types. Each goes whole into a new folder with a
/// manifest last, then the one before goes; so at any moment a whole one is there.
class RunningCopy {
public:
  /// A copy as a run that died has left it.
  struct Found {
    RaceImage image;
    QString folder;
    /// Folder into which a fault has already put it; empty if there was none.
    QString rescuedTo;
  };

  explicit RunningCopy(QString folder);

  /// Writes the image unless it is the one written last. A failure is a FileFault and leaves the last copy.
  void write(const RaceImage &image);
  /// The newest whole copy.
  std::optional<Found> newest() const;
  /// Notes on the newest copy that it lies in `rescueFolder` as well. Where that fails the next start only rescues it
  /// once more.
  void markRescued(const QString &rescueFolder) const;
  /// Removes all copies: a clean end, or all is settled.
  void clear();
  /// Moves the newest copy away to `folder` (on the same disk) and removes the rest.
  void moveTo(const QString &folder);

private:
  QStringList folders() const;
  QString path(const QString &number) const;
  void keepOnly(const QString &number);

  QString m_folder;
  std::optional<RaceImage> m_last;
};
