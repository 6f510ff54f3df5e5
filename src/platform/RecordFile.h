#pragma once

#include <QByteArray>
#include <QFile>

/// Whether record n (from 1) of records of `length` bytes begins inside a file.
bool holdsRecord(const QByteArray &file, int n, int length);
/// Record n, which the file must hold; bytes beyond the end of the file are zero.
QByteArray recordIn(const QByteArray &file, int n, int length);

/// A file of records of fixed length, record n (from 1) at byte (n − 1) × length. The whole file stands in memory while
/// it is open, so that walking 30,000 records costs no system calls; each write goes to the file at once. Every
/// failure, also reading while it is closed, is a FileFault.
class RecordFile {
public:
  explicit RecordFile(int recordLength) : m_length(recordLength) {}

  /// Closes it if open, reads it whole, then opens it for writing; a missing file comes into being, empty.
  void open(const QString &path);
  void close();
  bool isOpen() const { return m_file.isOpen(); }
  QString path() const { return m_file.fileName(); }

  /// Whether record n begins inside the file.
  bool holds(int n) const { return holdsRecord(m_image, n, m_length); }
  /// Record n, which the file must hold; bytes beyond the end of the file are zero.
  QByteArray read(int n) const;
  /// The same without a copy, valid until the next write; shorter at the end of the file.
  QByteArrayView view(int n) const;
  /// Writes record n ≥ 1 of exactly the record length; a gap before it is filled with zero bytes. It is on the disk
  /// only after syncFile.
  void write(int n, const QByteArray &record);

private:
  void requireOpen(const QString &action) const;

  int m_length;
  QFile m_file;
  QByteArray m_image;
};
