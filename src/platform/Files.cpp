#include "platform/Files.h"

#include "platform/Faults.h"

#include <QFile>
#include <QSaveFile>

QByteArray readFile(const QString &path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly))
    throw FileFault(path, QStringLiteral("geöffnet"));
  QByteArray bytes = file.readAll();
  if (file.error() != QFileDevice::NoError)
    throw FileFault(path, QStringLiteral("gelesen"));
  return bytes;
}

// A short write shows only in the count, a full disk sometimes only in the flush: both are asked.
void writeFile(const QString &path, const QByteArray &bytes) {
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
    throw FileFault(path, QStringLiteral("geöffnet"));
  if (file.write(bytes) != bytes.size() || !file.flush())
    throw FileFault(path, QStringLiteral("geschrieben"));
}

// commit() would put a cut-off file in place after a flush that failed.
void replaceFile(const QString &path, const QByteArray &bytes) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly))
    throw FileFault(path, QStringLiteral("geöffnet"));
  if (file.write(bytes) != bytes.size() || !file.flush() || !file.commit())
    throw FileFault(path, QStringLiteral("geschrieben"));
}

void removeFile(const QString &path) {
  if (QFile::exists(path) && !QFile::remove(path))
    throw FileFault(path, QStringLiteral("gelöscht"));
}
