#pragma once

#include <QString>

/// The place of the safety of one data folder in the user's data location: a folder with the name of the data folder
/// and a hash of its whole path, closed to other users. It notes which folder it belongs to, so that one that was
/// renamed or moved finds it again.
class SafetyFolder {
public:
  /// `dataFolder` as the store has it; empty is the working directory. Touches nothing yet.
  explicit SafetyFolder(const QString &dataFolder);

  /// The whole path of the data folder, as it is called now.
  QString dataFolder() const;
  const QString &path() const { return m_path; }

  /// Whether VEXT runs in the data folder now.
  bool isInUse() const;
  /// Makes the folder, or takes that of the data folder's earlier name or place; if VEXT runs there still, that one is
  /// left at its place and is the path from now on. A FileFault if that fails.
  void open();

private:
  QString formerFolder(const QString &dataFolder) const;

  /// The folder as it was given, and the place of its safety.
  QString m_given, m_path;
};

/// A new path "Rettung <date> <time>" in a folder.
QString newRescueFolder(const QString &parent);
