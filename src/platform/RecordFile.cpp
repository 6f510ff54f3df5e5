#include "platform/RecordFile.h"

#include "platform/Faults.h"

void RecordFile::open(const QString &path) {
  close();
  m_file.setFileName(path);
  if (!m_file.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
    throw FileFault(path, QStringLiteral("geöffnet"));
  m_image = m_file.readAll();
  if (m_file.error() != QFileDevice::NoError)
    throw FileFault(path, QStringLiteral("gelesen"));
}

void RecordFile::close() {
  m_file.close();
  m_image.clear();
}

QByteArray RecordFile::read(int n) const {
  requireOpen(QStringLiteral("gelesen"));
  return m_image.mid(qsizetype(n - 1) * m_length, m_length).leftJustified(m_length, '\0');
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
