#include "platform/RecordFile.h"

#include "platform/Faults.h"
#include "platform/Files.h"

#include <algorithm>

void RecordFile::open(const QString &path) {
  close();
  m_image = readIfThere(path, LargestRecordFile).value_or(QByteArray());
  m_file.setFileName(path);
  if (!m_file.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
    throw FileFault(path, QStringLiteral("geöffnet"));
}

void RecordFile::close() {
  m_file.close();
  m_image.clear();
}

QByteArray RecordFile::read(int n) const {
  requireOpen(QStringLiteral("gelesen"));
  return recordIn(m_image, n, m_length);
}

QByteArrayView RecordFile::view(int n) const {
  return QByteArrayView(m_image)
      .sliced(qsizetype(n - 1) * m_length)
      .first(std::min<qsizetype>(m_length, m_image.size() - qsizetype(n - 1) * m_length));
}

void RecordFile::write(int n, const QByteArray &record) {
  requireOpen(QStringLiteral("geschrieben"));
  const qsizetype at = qsizetype(n - 1) * m_length;
  if (n < 1)
    throw FileFault(m_file.fileName(), QStringLiteral("geschrieben"),
                    QStringLiteral("einen Satz %1 gibt es nicht").arg(n));
  if (!m_file.seek(at) || m_file.write(record) != record.size())
    throw FileFault(m_file.fileName(), QStringLiteral("geschrieben"));
  if (m_image.size() < at + m_length)
    m_image.append(at + m_length - m_image.size(), '\0');
  m_image.replace(at, m_length, record);
}

void RecordFile::requireOpen(const QString &action) const {
  if (!m_file.isOpen())
    throw FileFault(m_file.fileName(), action, QStringLiteral("sie ist nicht geöffnet"));
}

bool holdsRecord(const QByteArray &file, int n, int length) {
  return n >= 1 && qint64(n - 1) * length < file.size();
}

QByteArray recordIn(const QByteArray &file, int n, int length) {
  return file.mid(qsizetype(n - 1) * length, length).leftJustified(length, '\0');
}
