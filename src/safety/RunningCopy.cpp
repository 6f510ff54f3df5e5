#include "safety/RunningCopy.h"

#include "platform/Faults.h"
#include "platform/Files.h"

#include <QCryptographicHash>
#include <QFileInfo>

#include <algorithm>
#include <utility>

namespace {

const auto Manifest = QStringLiteral("/Inhalt.txt");
const auto RescueMark = QStringLiteral("/gerettet.txt");
const auto AnsweredMark = QStringLiteral("/beantwortet.txt");
const auto Unfinished = QStringLiteral("unfertig");
const auto Before = QStringLiteral("ersetzt ");
constexpr qsizetype HashLength = 40;

QByteArray hashOf(const QByteArray &bytes) {
  return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex();
}

QByteArray lineOf(const SavedFile &file) {
  return hashOf(file.bytes) + ' ' + file.name.toUtf8() + '\n';
}

/// All files of an image in one list; those that it replaces have a word in front of their names.
QList<SavedFile> allFiles(const RaceImage &image) {
  QList<SavedFile> files = image.files;
  if (image.before)
    for (const auto &file : *image.before)
      files.append({Before + file.name, file.bytes});
  return files;
}

// The number of the race, with a word if it replaces what was there; then a line of hash and name for each file. Its
// own hash comes last, so that a manifest that was cut off is not taken for a whole one.
QByteArray manifestOf(const RaceImage &image) {
  QByteArray manifest = QByteArray::number(image.race) + (image.before ? " ersetzt\n" : "\n");
  for (const auto &file : allFiles(image))
    manifest += lineOf(file);
  return manifest + hashOf(manifest) + '\n';
}

/// The lines of a whole manifest; none otherwise.
QList<QByteArray> readManifest(const QString &copy) {
  const auto bytes = readIfThere(copy + Manifest);
  if (!bytes || bytes->size() <= HashLength)
    return {};
  const QByteArray lines = bytes->first(bytes->size() - HashLength - 1);
  return bytes->mid(lines.size()).trimmed() == hashOf(lines) ? lines.trimmed().split('\n') : QList<QByteArray>();
}

std::optional<QByteArray> bytesMatching(const QByteArray &line, const QString &path) {
  try {
    auto bytes = readIfThere(path, LargestRecordFile);
    return bytes && line.startsWith(hashOf(*bytes)) ? bytes : std::nullopt;
  } catch (const Fault &) {
    return {};
  }
}

void take(RunningCopy::Found &found, const QByteArray &line) {
  const auto name = QString::fromUtf8(line.mid(HashLength + 1));
  const auto bytes = bytesMatching(line, found.folder + QLatin1Char('/') + name);
  const bool replaced = name.startsWith(Before);
  if (!bytes || (replaced && !found.image.before))
    found.unreadable << name;
  else if (replaced)
    found.image.before->append({name.mid(Before.size()), *bytes});
  else
    found.image.files.append({name, *bytes});
}

QString markIn(const QString &copy, const QString &mark) {
  try {
    return QString::fromUtf8(readIfThere(copy + mark).value_or(QByteArray()));
  } catch (const Fault &) {
    return {};
  }
}

RunningCopy::Found readCopy(const QString &copy) {
  RunningCopy::Found found{{}, copy, {}, markIn(copy, RescueMark), QFileInfo(copy + Manifest).lastModified()};
  QList<QByteArray> lines;
  try {
    lines = readManifest(copy);
  } catch (const Fault &) {
  }
  if (lines.isEmpty()) {
    found.unreadable << Manifest.mid(1);
    return found;
  }
  const QByteArray first = lines.takeFirst();
  found.image.race = first.split(' ').first().toInt();
  if (first.endsWith(" ersetzt"))
    found.image.before.emplace();
  for (const auto &line : lines)
    take(found, line);
  return found;
}

// What the operator has answered about a damaged copy; if more of it can be read, that is another question.
QString answerTo(const RunningCopy::Found &found) {
  QStringList names{QStringLiteral("Beantwortet ist:")};
  for (const auto &file : found.image.files)
    names << file.name;
  return names.join(QLatin1Char('\n'));
}

} // namespace

RunningCopy::RunningCopy(const QString &folder)
    : m_folder(folder + QStringLiteral("/Laufend")), m_aside(folder + QStringLiteral("/Beschaedigt")),
      m_done(folder + QStringLiteral("/Erledigt")) {}

QList<RunningCopy::Found> RunningCopy::leftBehind() {
  QList<Found> copies, left;
  try {
    removeFolder(m_folder + QLatin1Char('/') + Unfinished);
    copies = copiesIn(m_folder);
  } catch (const Fault &) {
    putAside(m_folder);
  }
  for (const auto &copy : std::as_const(copies))
    if (!copy.isWhole())
      putAside(copy.folder);
    else if (left.isEmpty() || (left.last().image.ofRegisters() && !copy.image.ofRegisters()))
      left << copy;
    else
      discard(copy.folder);
  for (const auto &copy : copiesIn(m_aside))
    if (copy.isWhole() || markIn(copy.folder, AnsweredMark) != answerTo(copy))
      left << copy;
  return left;
}

void RunningCopy::settle(const Found &found) {
  if (found.isWhole())
    discard(found.folder);
  else
    replaceFile(found.folder + AnsweredMark, answerTo(found).toUtf8(), Access::Private);
}

void RunningCopy::write(const RaceImage &image) {
  const QString unfinished = m_folder + QLatin1Char('/') + Unfinished;
  QStringList before = foldersIn(m_folder);
  before.removeAll(Unfinished);
  const int next = before.isEmpty() ? 1 : before.last().toInt() + 1;
  removeFolder(unfinished);
  try {
    writeImage({image.race, allFiles(image), {}}, unfinished);
    writeFile(unfinished + Manifest, manifestOf(image), Access::Private);
    syncFile(unfinished + Manifest);
    syncFile(unfinished);
  } catch (const Fault &) { // half a copy must not keep the room that a save needs
    removeFolder(unfinished);
    throw;
  }
  const QString copy = QStringLiteral("%1/%2").arg(m_folder).arg(next, 8, 10, QLatin1Char('0'));
  moveFolder(unfinished, copy);
  m_last = copy;
  if (image.ofRegisters())
    return;
  for (const auto &name : std::as_const(before))
    discardIfPossible(m_folder + QLatin1Char('/') + name);
}

void RunningCopy::markRescued(const QString &copy, const QString &rescueFolder) {
  try {
    replaceFile(copy + RescueMark, rescueFolder.toUtf8(), Access::Private);
  } catch (const Fault &) {
  }
}

void RunningCopy::clear() {
  discard(m_folder);
  m_last.clear();
}

void RunningCopy::moveTo(const Found &found, const QString &folder) {
  moveFolder(found.folder, folder);
}

// Newest first; a folder that was put aside as a whole holds several.
QList<RunningCopy::Found> RunningCopy::copiesIn(const QString &folder) const {
  QStringList names = foldersIn(folder);
  std::reverse(names.begin(), names.end());
  QList<Found> copies;
  for (const auto &name : std::as_const(names)) {
    const QString copy = folder + QLatin1Char('/') + name;
    const auto several = copiesWithin(copy);
    copies << (several.isEmpty() ? QList<Found>{readCopy(copy)} : several);
  }
  return copies;
}

QList<RunningCopy::Found> RunningCopy::copiesWithin(const QString &folder) const {
  try {
    return copiesIn(folder);
  } catch (const Fault &) {
    return {};
  }
}

void RunningCopy::putAside(const QString &folder) const {
  makeFolder(m_aside, Access::Private);
  moveFolder(folder, QStringLiteral("%1/%2 %3")
                         .arg(m_aside, QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH-mm-ss-zzz")),
                              folder.section(QLatin1Char('/'), -1)));
}

// One that stays is covered by the newer one beside it.
void RunningCopy::discardIfPossible(const QString &folder) const {
  try {
    discard(folder);
  } catch (const Fault &) {
  }
}

// A rename is done at once or not at all; so no kill leaves half a copy that would count as damaged.
void RunningCopy::discard(const QString &folder) const {
  removeFolder(m_done);
  if (fileExists(folder))
    moveFolder(folder, m_done);
  removeFolder(m_done);
}
