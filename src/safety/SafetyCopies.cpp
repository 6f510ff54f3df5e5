#include "safety/SafetyCopies.h"

#include "platform/Faults.h"
#include "platform/Files.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

constexpr int NewestKept = 3;
constexpr qint64 SecondsOfDay = 86'400;
constexpr qint64 DaysKept = 14;
constexpr int NumberWidth = 6;
const auto TimeFormat = QStringLiteral("yyyy-MM-dd HH-mm-ss-zzz");
const auto Unfinished = QStringLiteral("unfertig");

fs::path native(const QString &path) {
  return fs::path(path.toStdU16String());
}

// Copies keep the time of their original, so that size and time tell whether it has changed since.
bool isSame(const fs::path &original, const fs::path &copy) {
  std::error_code error;
  const auto size = fs::file_size(copy, error);
  return !error && size == fs::file_size(original, error) && !error &&
         fs::last_write_time(copy, error) == fs::last_write_time(original, error);
}

// Not every disk knows links.
bool linkFile(const QString &from, const QString &to) {
  std::error_code error;
  fs::create_hard_link(native(from), native(to), error);
  return !error;
}

bool isOurs(const QString &name) {
  return name.endsWith(QStringLiteral(".rec")) || name.endsWith(QStringLiteral(".dat")) ||
         name.endsWith(QStringLiteral(".lst"));
}

QStringList ourFiles(const QString &folder) {
  QStringList names;
  for (const auto &name : filesIn(folder))
    if (isOurs(name))
      names << name;
  return names;
}

/// Those whose change makes a new copy worth while: not the places of the windows, which each closing writes.
QStringList filesThatCount(const QString &folder) {
  QStringList names = ourFiles(folder);
  names.removeAll(QStringLiteral("TopLeft.dat"));
  return names;
}

std::optional<SafetyCopies::Name> nameFrom(const QString &folder) {
  static const QRegularExpression form(
      QStringLiteral("^(?:(\\d{6}) )?(\\d{4}-\\d\\d-\\d\\d \\d\\d-\\d\\d-\\d\\d-\\d{3})$"));
  const auto match = form.match(folder);
  if (!match.hasMatch())
    return {};
  return SafetyCopies::Name{match.captured(1).toInt(), QDateTime::fromString(match.captured(2), TimeFormat)};
}

bool isOlder(const SafetyCopies::Name &a, const SafetyCopies::Name &b) {
  return a.number != b.number ? a.number < b.number : a.time < b.time;
}

} // namespace

/// A file of the data folder at one moment.
struct SafetyCopies::Original {
  QString name;
  /// Nothing if it is the same as in the last copy.
  std::optional<QByteArray> bytes;
  fs::file_time_type time;
  /// Why it cannot be copied; empty if it can.
  QString trouble;
};

QString SafetyCopies::Name::folder() const {
  const QString when = time.toString(TimeFormat);
  return number == 0 ? when : QStringLiteral("%1 %2").arg(number, NumberWidth, 10, QLatin1Char('0')).arg(when);
}

SafetyCopies::SafetyCopies(const QString &dataFolder, const QString &folder)
    : m_dataFolder(dataFolder + QLatin1Char('/')), m_folder(folder + QLatin1Char('/')) {}

void SafetyCopies::make(const QDateTime &now, std::mutex &writing) {
  const auto before = copies();
  const QString last = lastCopy();
  QList<Original> files;
  {
    const std::scoped_lock lock(writing);
    if (isOf(m_dataFolder))
      return;
    files = originals(last);
  }
  if (files.isEmpty())
    return;
  const QString unfinished = m_folder + Unfinished;
  try {
    copyInto(unfinished, files, last);
  } catch (const Fault &) { // half a copy must not keep the room that a save needs
    removeFolder(unfinished);
    throw;
  }
  moveFolder(unfinished, m_folder + Name{before.isEmpty() ? 1 : before.last().number + 1, now}.folder());
  removeOutgrown(now);
  for (const auto &file : std::as_const(files))
    if (!file.trouble.isEmpty())
      throw Fault(file.trouble);
}

std::optional<QByteArray> SafetyCopies::newest(const QString &file) const {
  const QString last = lastCopy();
  return last.isEmpty() ? std::nullopt : readIfThere(last + file, LargestRecordFile);
}

bool SafetyCopies::isOf(const QString &dataFolder) const {
  const QString last = lastCopy();
  if (last.isEmpty())
    return false;
  const QStringList files = filesThatCount(dataFolder);
  return files == filesThatCount(last) && std::all_of(files.begin(), files.end(), [&](const QString &name) {
           return isSame(native(dataFolder + QLatin1Char('/') + name), native(last + name));
         });
}

// Oldest first.
QList<SafetyCopies::Name> SafetyCopies::copies() const {
  QList<Name> names;
  for (const auto &folder : foldersIn(m_folder))
    if (const auto name = nameFrom(folder))
      names << *name;
  std::sort(names.begin(), names.end(), isOlder);
  return names;
}

/// With "/" at its end; empty if there is none.
QString SafetyCopies::lastCopy() const {
  const auto all = copies();
  return all.isEmpty() ? QString() : m_folder + all.last().folder() + QLatin1Char('/');
}

QList<SafetyCopies::Original> SafetyCopies::originals(const QString &last) const {
  QList<Original> files;
  for (const auto &name : ourFiles(m_dataFolder)) {
    const fs::path path = native(m_dataFolder + name);
    std::error_code error;
    Original original{name, {}, fs::last_write_time(path, error), {}};
    if (last.isEmpty() || !isSame(path, native(last + name)))
      try {
        original.bytes = readFile(m_dataFolder + name);
      } catch (const Fault &fault) {
        original.trouble = fault.report();
      }
    files << original;
  }
  return files;
}

void SafetyCopies::copyInto(const QString &folder, const QList<Original> &files, const QString &last) const {
  removeFolder(folder);
  makeFolder(folder, Access::Private);
  for (const auto &file : files) {
    const QString to = folder + QLatin1Char('/') + file.name;
    if (!file.trouble.isEmpty() || (!file.bytes && linkFile(last + file.name, to)))
      continue;
    writeFile(to, file.bytes ? *file.bytes : readFile(last + file.name), Access::Private);
    std::error_code error;
    fs::last_write_time(native(to), file.time, error);
    syncFile(to);
  }
  syncFile(folder);
}

void SafetyCopies::removeOutgrown(const QDateTime &now) const {
  for (const auto &name : outgrown(copies(), now))
    removeFolder(m_folder + name.folder());
}

QList<SafetyCopies::Name> outgrown(QList<SafetyCopies::Name> copies, const QDateTime &now) {
  std::sort(copies.begin(), copies.end(), [](const auto &a, const auto &b) { return isOlder(b, a); });
  QSet<QString> hours, days;
  QList<SafetyCopies::Name> outgrown;
  for (qsizetype i = 0; i < copies.size(); ++i) {
    const QDateTime &time = copies[i].time;
    const QString hour = time.toString(QStringLiteral("yyyyMMddHH")), day = hour.left(8);
    const bool keptForHour = time.secsTo(now) < SecondsOfDay && !hours.contains(hour);
    const bool keptForDay = time.daysTo(now) < DaysKept && !days.contains(day);
    hours.insert(hour);
    days.insert(day);
    if (i >= NewestKept && !keptForHour && !keptForDay)
      outgrown.append(copies[i]);
  }
  return outgrown;
}
