#pragma once

#include <QDateTime>
#include <QStringList>

/// Copies of all record, race and state files of a data folder, each in a folder of its time. They grow older: the
/// newest three stay, one an hour for a day, one a day for a fortnight.
class SafetyCopies {
public:
  SafetyCopies(const QString &dataFolder, const QString &folder);

  /// Makes a copy, unless nothing has changed since the last, and removes what is outgrown. Unchanged files are linked
  /// to the last copy, not written again. A failure is a FileFault and leaves the earlier copies.
  void make(const QDateTime &now);

private:
  QStringList copies() const;
  void copyInto(const QString &folder, const QStringList &files, const QString &last) const;
  bool isUnchanged(const QStringList &files, const QString &last) const;
  void removeOutgrown(const QDateTime &now) const;

  QString m_dataFolder, m_folder;
};

/// Which of the copies (in any order) may go at the time `now`. Of an hour or a day the latest copy stays.
QList<QDateTime> outgrown(QList<QDateTime> copies, const QDateTime &now);
