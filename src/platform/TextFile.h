#pragma once

#include <QByteArray>
#include <QString>

#include <limits>
#include <optional>

/// Reads the items of a text file: lines end in CR LF or LF; a field goes up to the next comma or the end of the line,
/// the comma is eaten and the rest of the line is the next item. Text is Windows-1252.
class TextReader {
public:
  static constexpr qsizetype LongestLine = 65'536;

  /// `path` is only for reports.
  TextReader(QByteArray bytes, QString path);
  /// The file at `path`; nothing if it is absent, a FileFault if it cannot be read.
  static std::optional<TextReader> ifThere(const QString &path);

  bool atEnd() const { return m_at >= m_bytes.size(); }
  /// The rest of the line, as it stands. One of more than LongestLine bytes is none of ours: a ConversionFault.
  QString line();
  /// A field without the blanks around it.
  QString field();

  // The same as numbers; at the end of the file `column` keeps its value. A field that is no number is 0; a number too
  // large for its column, or a line that is no number, is a ConversionFault.
  void numberInto(int &column, qint64 highest = std::numeric_limits<int>::max());
  void numberInto(qint16 &column);
  void leadingInto(float &column);
  void regionalLineInto(double &column);
  void lineInto(QString &column);

private:
  QString itemUpTo(bool comma);
  qint64 boundedNumber(qint64 lowest, qint64 highest);

  QByteArray m_bytes;
  QString m_path;
  qsizetype m_at = 0;
  int m_line = 0;
};

/// Builds the lines of a text file in memory; every line ends in CR LF.
class TextWriter {
public:
  /// Blank (or minus sign), plain decimal text, blank.
  void number(int value);
  /// The text as it stands, but for line feeds, as a pasted one may have: each becomes a blank.
  void text(const QString &line);
  /// Shortest decimal text with a comma, no blanks; 0 for a time that could not be read again.
  void decimal(double value);
  void decimal(float value);
  const QByteArray &bytes() const { return m_bytes; }

private:
  QByteArray m_bytes;
};
