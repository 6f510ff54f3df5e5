#pragma once

#include <QByteArray>
#include <QFile>

/// A file of records of fixed length, record n (from 1) at byte (n − 1) × length. The whole file stands in memory while
/// it is open, so that walking 30,000 records costs no system calls; each write goes to the disk at once. Every
/// failure, also reading while it is closed, is a FileFault.
class RecordFile {
public:
  explicit RecordFile(int recordLength) : m_length(recordLength) {}

  /// Closes it if open, then opens for reading and writing; a missing file comes into being, empty.
  void open(const QString &path);
  void close();
  bool isOpen() const { return m_file.isOpen(); }

  /// Whether record n begins inside the file.
  bool holds(int n) const { return n >= 1 && qint64(n - 1) * m_length < m_image.size(); }
  /// Record n, which the file must hold; bytes beyond the end of the file are zero.
  QByteArray read(int n) const;
  /// Writes record n ≥ 1 of exactly the record length; a gap before it is filled with zero bytes.
  void write(int n, const QByteArray &record);

private:
  void requireOpen(const QString &action) const;

  int m_length;
  QFile m_file;
  QByteArray m_image;
};
