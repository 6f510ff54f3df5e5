#pragma once

#include <QDateTime>
#include <QStringList>

#include <mutex>
#include <optional>

/// Copies of all record, race and state files of a data folder, each in a folder named by a running number and its
/// time. They grow older: the newest three by number stay, one an hour for a day, one a day for a fortnight.
class SafetyCopies {
public:
  struct Name {
    /// 0 for a copy of an early version, which had none.
    int number = 0;
    QDateTime time;

    QString folder() const;
    bool operator==(const Name &) const = default;
  };

  SafetyCopies(const QString &dataFolder, const QString &folder);

  /// Makes a copy, unless nothing has changed since the last, and removes what is outgrown. Unchanged files are linked
  /// to the last copy, not written again; `writing` is held while the others are read. A failure is a FileFault and
  /// leaves the earlier copies; so is what is no ordinary file in the place of one of ours, after the others were
  /// copied.
  void make(const QDateTime &now, std::mutex &writing);

  /// A file of the newest copy; nothing if there is no copy or it does not hold the file.
  std::optional<QByteArray> newest(const QString &file) const;
  /// Whether the newest copy holds exactly the files of the data folder as they are now, but for the window places.
  bool isOf(const QString &dataFolder) const;

private:
  struct Original;

  QList<Name> copies() const;
  QString lastCopy() const;
  QList<Original> originals(const QString &last) const;
  void copyInto(const QString &folder, const QList<Original> &files, const QString &last) const;
  void removeOutgrown(const QDateTime &now) const;

  QString m_dataFolder, m_folder;
};

/// Which of the copies (in any order) may go at the time `now`. Of an hour or a day the copy of the highest number
/// stays; a clock that was set back makes none older.
QList<SafetyCopies::Name> outgrown(QList<SafetyCopies::Name> copies, const QDateTime &now);
