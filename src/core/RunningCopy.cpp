#include "core/RunningCopy.h"

#include "platform/Faults.h"
#include "platform/Files.h"

#include <QCryptographicHash>
#include <QDir>

namespace {

const auto Manifest = QStringLiteral("/Inhalt.txt");
const auto RescueMark = QStringLiteral("/gerettet.txt");

QByteArray hashOf(const QByteArray &bytes) {
  return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex();
}

// The number of the race, then a line of hash and name for each file.
QByteArray manifestOf(const RaceImage &image) {
  QByteArray manifest = QByteArray::number(image.race) + '\n';
  for (const auto &file : image.files)
    manifest += hashOf(file.bytes) + ' ' + file.name.toUtf8() + '\n';
  return manifest;
}

std::optional<RaceImage> imageFrom(const QString &folder) {
  if (!QFile::exists(folder + Manifest))
    return {};
  QList<QByteArray> lines = readFile(folder + Manifest).trimmed().split('\n');
  RaceImage image{lines.takeFirst().toInt(), {}};
  for (const auto &line : lines) {
    const auto name = QString::fromUtf8(line.mid(line.indexOf(' ') + 1));
    image.files.append({name, readFile(folder + QLatin1Char('/') + name)});
    if (!line.startsWith(hashOf(image.files.last().bytes)))
      return {};
  }
  return image;
}

std::optional<RaceImage> wholeImageFrom(const QString &folder) {
  try {
    return imageFrom(folder);
  } catch (const Fault &) {
    return {};
  }
}

} // namespace

RunningCopy::RunningCopy(QString folder) : m_folder(std::move(folder)) {}

void RunningCopy::write(const RaceImage &image) {
  if (m_last == image)
    return;
  const QStringList before = folders();
  const int next = before.isEmpty() ? 1 : before.last().toInt() + 1;
  const QString number = QStringLiteral("%1").arg(next, 8, 10, QLatin1Char('0'));
  writeImage(image, path(number));
  replaceFile(path(number) + Manifest, manifestOf(image));
  m_last = image;
  keepOnly(number);
}

std::optional<RunningCopy::Found> RunningCopy::newest() const {
  QStringList all = folders();
  while (!all.isEmpty()) {
    const QString folder = path(all.takeLast());
    if (const auto image = wholeImageFrom(folder)) {
      const QString mark = folder + RescueMark;
      return Found{*image, folder, QFile::exists(mark) ? QString::fromUtf8(readFile(mark)) : QString()};
    }
  }
  return {};
}

void RunningCopy::markRescued(const QString &rescueFolder) const {
  try {
    if (const auto found = newest())
      replaceFile(found->folder + RescueMark, rescueFolder.toUtf8());
  } catch (const Fault &) {
  }
}

void RunningCopy::clear() {
  QDir(m_folder).removeRecursively();
  m_last.reset();
}

void RunningCopy::moveTo(const QString &folder) {
  const auto found = newest();
  if (!found || !QDir().rename(found->folder, folder))
    throw FileFault(folder, QStringLiteral("angelegt"));
  clear();
}

QStringList RunningCopy::folders() const {
  return QDir(m_folder).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
}

QString RunningCopy::path(const QString &number) const {
  return m_folder + QLatin1Char('/') + number;
}

void RunningCopy::keepOnly(const QString &number) {
  for (const auto &other : folders())
    if (other != number)
      QDir(path(other)).removeRecursively();
}
