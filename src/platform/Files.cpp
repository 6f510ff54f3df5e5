#include "platform/Files.h"

#include "platform/Faults.h"
#include "platform/System.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

fs::path native(const QString &path) {
  return fs::path(path.toStdU16String());
}

QString fromNative(const fs::path &path) {
  return QString::fromStdU16String(path.u16string());
}

void require(const std::error_code &error, const QString &path, const QString &action) {
  if (error)
    throw FileFault(path, action, error);
}

/// What lies under a name, links followed; `not_found` is the system's own word.
fs::file_status statusOf(const QString &path) {
  std::error_code error;
  const auto status = fs::status(native(path), error);
  if (error != std::errc::no_such_file_or_directory)
    require(error, path, QStringLiteral("geöffnet"));
  return status;
}

// A pipe or a device would hold the program up or never end.
void requireOrdinary(const QString &path, fs::file_type type, qint64 largest) {
  if (type == fs::file_type::directory)
    throw FileFault(path, QStringLiteral("geöffnet"), std::make_error_code(std::errc::is_a_directory));
  if (type != fs::file_type::regular)
    throw FileFault(path, QStringLiteral("gelesen"),
                    QStringLiteral("unter diesem Namen liegt keine gewöhnliche Datei"));
  std::error_code error;
  const auto size = fs::file_size(native(path), error);
  require(error, path, QStringLiteral("gelesen"));
  if (size > std::uintmax_t(largest))
    throw FileFault(path, QStringLiteral("gelesen"),
                    QStringLiteral("sie ist mit %1 Byte zu groß für eine Datei von VEXT").arg(size));
}

void openForWriting(QFile &file, Access access) {
  constexpr QIODevice::OpenMode mode = QIODevice::WriteOnly | QIODevice::Truncate;
  const bool open =
      access == Access::Private ? file.open(mode, QFileDevice::ReadOwner | QFileDevice::WriteOwner) : file.open(mode);
  if (!open)
    throw FileFault(file.fileName(), QStringLiteral("geöffnet"));
}

// A short write shows only in the count, a full disk sometimes only in the flush: both are asked.
void writeAll(QFile &file, const QByteArray &bytes) {
  if (file.write(bytes) != bytes.size() || !file.flush())
    throw FileFault(file.fileName(), QStringLiteral("geschrieben"));
}

// A link stays a link; what it leads to is replaced.
QString placeOf(const QString &path) {
  const QFileInfo info(path);
  return info.isSymLink() ? info.symLinkTarget() : path;
}

template <typename Wanted> QStringList entriesOf(const QString &path, Wanted wanted) {
  std::error_code error;
  fs::directory_iterator entries(native(path), error);
  if (error == std::errc::no_such_file_or_directory)
    return {};
  require(error, path, QStringLiteral("gelesen"));
  QStringList names;
  for (; entries != fs::directory_iterator(); entries.increment(error)) {
    require(error, path, QStringLiteral("gelesen"));
    if (std::error_code unknown; wanted(entries->is_directory(unknown)))
      names << fromNative(entries->path().filename());
  }
  require(error, path, QStringLiteral("gelesen"));
  names.sort();
  return names;
}

} // namespace

bool fileExists(const QString &path) {
  return statusOf(path).type() != fs::file_type::not_found;
}

std::optional<QByteArray> readIfThere(const QString &path, qint64 largest) {
  const auto type = statusOf(path).type();
  if (type == fs::file_type::not_found)
    return {};
  requireOrdinary(path, type, largest);
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly))
    throw FileFault(path, QStringLiteral("geöffnet"));
  QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError)
    throw FileFault(path, QStringLiteral("gelesen"));
  return bytes;
}

QByteArray readFile(const QString &path, qint64 largest) {
  auto bytes = readIfThere(path, largest);
  if (!bytes)
    throw FileFault(path, QStringLiteral("geöffnet"), std::make_error_code(std::errc::no_such_file_or_directory));
  return *std::move(bytes);
}

void writeFile(const QString &path, const QByteArray &bytes, Access access) {
  QFile file(path);
  openForWriting(file, access);
  writeAll(file, bytes);
}

void appendToFile(const QString &path, const QByteArray &bytes) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Append))
    throw FileFault(path, QStringLiteral("geöffnet"));
  const bool isNew = file.size() == 0;
  writeAll(file, bytes);
  System::sync(file);
  if (isNew)
    System::syncFolder(folderOf(path));
}

void replaceFile(const QString &path, const QByteArray &bytes, Access access) {
  const QString place = placeOf(path), beside = place + QStringLiteral(".neu");
  QFile file(beside);
  openForWriting(file, access);
  if (access == Access::Usual && QFile::exists(place))
    file.setPermissions(QFile::permissions(place));
  writeAll(file, bytes);
  System::sync(file);
  file.close();
  std::error_code error;
  fs::rename(native(beside), native(place), error);
  require(error, path, QStringLiteral("geschrieben"));
  System::syncFolder(folderOf(place));
}

void syncFile(const QString &path) {
  const auto type = statusOf(path).type();
  if (type == fs::file_type::directory)
    return System::syncFolder(path);
  QFile file(path);
  if (type == fs::file_type::not_found)
    return;
  if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly) && !fileExists(path))
    return;
  if (!file.isOpen())
    throw FileFault(path, QStringLiteral("geöffnet"));
  System::sync(file);
}

void removeFile(const QString &path) {
  std::error_code error;
  fs::remove(native(path), error);
  require(error, path, QStringLiteral("gelöscht"));
}

void makeFolder(const QString &path, Access access) {
  std::error_code error;
  fs::create_directories(native(path), error);
  if (!error && access == Access::Private)
    fs::permissions(native(path), fs::perms::owner_all, error);
  require(error, path, QStringLiteral("angelegt"));
}

QStringList foldersIn(const QString &path) {
  return entriesOf(path, [](bool isFolder) { return isFolder; });
}

QStringList filesIn(const QString &path) {
  return entriesOf(path, [](bool isFolder) { return !isFolder; });
}

void moveFolder(const QString &from, const QString &to) {
  std::error_code error;
  fs::rename(native(from), native(to), error);
  require(error, to, QStringLiteral("angelegt"));
  System::syncFolder(folderOf(to));
}

void removeFolder(const QString &path) {
  std::error_code error;
  fs::remove_all(native(path), error);
  require(error, path, QStringLiteral("gelöscht"));
}

QString folderOf(const QString &path) {
  return QFileInfo(path).path();
}
