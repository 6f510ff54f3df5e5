#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

// Whole files with every step checked; a failure is a FileFault that names the file and the system's reason. A file is
// absent only if the system says so (no such file or folder): what cannot be asked or read is never taken for absent.

/// Larger files in the place of one of ours are refused unread.
constexpr qint64 LargestTextFile = 16 << 20, LargestRecordFile = 256 << 20;

/// Who may read what is written: everybody whom the system lets, or the user alone (folders 700, files 600).
enum class Access { Usual, Private };

/// A file by its name without a folder.
struct SavedFile {
  QString name;
  QByteArray bytes;
  bool operator==(const SavedFile &) const = default;
};

bool fileExists(const QString &path);
/// The bytes of an ordinary file of at most `largest` bytes; nothing if it is absent.
std::optional<QByteArray> readIfThere(const QString &path, qint64 largest = LargestTextFile);
/// The same for a file that must exist.
QByteArray readFile(const QString &path, qint64 largest = LargestRecordFile);

/// Creates the file anew in place; earlier content is gone. It is on the disk only after syncFile.
void writeFile(const QString &path, const QByteArray &bytes, Access access = Access::Usual);
/// Adds to the end of the file, which comes into being if it does not exist. Waits for the disk.
void appendToFile(const QString &path, const QByteArray &bytes);
/// Replaces the file whole or not at all, also when the power goes in between: the bytes go into a file beside it, with
/// ".neu" behind its name, which then takes its place. Waits for the disk.
void replaceFile(const QString &path, const QByteArray &bytes, Access access = Access::Usual);
/// Waits until the content of a file or folder is on the disk; one that is gone by now needs none.
void syncFile(const QString &path);
/// Deletes the file if it exists.
void removeFile(const QString &path);

/// The folder, with those above it, comes into being if it does not exist; a private one is closed to others each time.
void makeFolder(const QString &path, Access access = Access::Usual);
/// The names of the folders in a folder, sorted; none if it is absent.
QStringList foldersIn(const QString &path);
/// The names of the files and of whatever else is no folder in a folder, sorted; none if it is absent.
QStringList filesIn(const QString &path);
void moveFolder(const QString &from, const QString &to);
void removeFolder(const QString &path);

/// The folder that holds `path`.
QString folderOf(const QString &path);
