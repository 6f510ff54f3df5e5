#include "core/SafetyCopies.h"

#include "platform/Faults.h"

#include <QDir>
#include <QSet>

#include <algorithm>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

constexpr int NewestKept = 3;
constexpr qint64 SecondsOfDay = 86'400;
constexpr qint64 DaysKept = 14;
const auto NameFormat = QStringLiteral("yyyy-MM-dd HH-mm-ss-zzz");
const auto Unfinished = QStringLiteral("unfertig");

fs::path native(const QString &path) {
  return fs::path(path.toStdU16String());
}

// Copies keep the time of their original, so that size and time tell whether it has changed since.
bool isSame(const fs::path &original, const fs::path &copy) {
  std::error_code error;
  const auto size = fs::file_size(copy, error);
  return !error && size == fs::file_size(original, error) &&
         fs::last_write_time(copy, error) == fs::last_write_time(original, error);
}

void require(const std::error_code &error, const QString &path, const QString &action) {
  errno = error.value();
  if (error)
    throw FileFault(path, action);
}

void copyFile(const QString &from, const QString &to) {
  std::error_code error;
  const auto time = fs::last_write_time(native(from), error);
  require(error, from, QStringLiteral("gelesen"));
  fs::copy_file(native(from), native(to), error);
  require(error, to, QStringLiteral("geschrieben"));
  fs::last_write_time(native(to), time, error);
}

// Not every disk knows links.
bool linkFile(const QString &from, const QString &to) {
  std::error_code error;
  fs::create_hard_link(native(from), native(to), error);
  return !error;
}

} // namespace

SafetyCopies::SafetyCopies(const QString &dataFolder, const QString &folder)
    : m_dataFolder(dataFolder + QLatin1Char('/')), m_folder(folder + QLatin1Char('/')) {}

void SafetyCopies::make(const QDateTime &now) {
  const QStringList files = QDir(m_dataFolder)
                                .entryList({QStringLiteral("*.rec"), QStringLiteral("*.dat"), QStringLiteral("*.lst")},
                                           QDir::Files, QDir::Unsorted);
  const QStringList before = copies();
  const QString last = before.isEmpty() ? QString() : m_folder + before.last() + QLatin1Char('/');
  if (files.isEmpty() || isUnchanged(files, last))
    return;
  const QString unfinished = m_folder + Unfinished;
  copyInto(unfinished, files, last);
  if (!QDir().rename(unfinished, m_folder + now.toString(NameFormat)))
    throw FileFault(m_folder + now.toString(NameFormat), QStringLiteral("angelegt"));
  removeOutgrown(now);
}

QStringList SafetyCopies::copies() const {
  QStringList names = QDir(m_folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
  names.removeAll(Unfinished);
  return names;
}

void SafetyCopies::copyInto(const QString &folder, const QStringList &files, const QString &last) const {
  QDir(folder).removeRecursively();
  if (!QDir().mkpath(folder))
    throw FileFault(folder, QStringLiteral("angelegt"));
  for (const auto &name : files) {
    const QString from = m_dataFolder + name, to = folder + QLatin1Char('/') + name;
    if (last.isEmpty() || !isSame(native(from), native(last + name)) || !linkFile(last + name, to))
      copyFile(from, to);
  }
}

bool SafetyCopies::isUnchanged(const QStringList &files, const QString &last) const {
  return !last.isEmpty() && QDir(last).entryList(QDir::Files).size() == files.size() &&
         std::all_of(files.begin(), files.end(),
                     [&](const QString &name) { return isSame(native(m_dataFolder + name), native(last + name)); });
}

void SafetyCopies::removeOutgrown(const QDateTime &now) const {
  QList<QDateTime> times;
  for (const auto &name : copies())
    if (const auto time = QDateTime::fromString(name, NameFormat); time.isValid())
      times.append(time);
  for (const auto &time : outgrown(times, now))
    QDir(m_folder + time.toString(NameFormat)).removeRecursively();
}

QList<QDateTime> outgrown(QList<QDateTime> copies, const QDateTime &now) {
  std::sort(copies.begin(), copies.end(), std::greater<>());
  QSet<QString> hours, days;
  QList<QDateTime> outgrown;
  for (qsizetype i = 0; i < copies.size(); ++i) {
    const QString hour = copies[i].toString(QStringLiteral("yyyyMMddHH")), day = hour.left(8);
    const bool keptForHour = copies[i].secsTo(now) < SecondsOfDay && !hours.contains(hour);
    const bool keptForDay = copies[i].daysTo(now) < DaysKept && !days.contains(day);
    hours.insert(hour);
    days.insert(day);
    if (i >= NewestKept && !keptForHour && !keptForDay)
      outgrown.append(copies[i]);
  }
  return outgrown;
}
