#include "platform/TextFile.h"

#include "platform/CodePage.h"
#include "platform/Faults.h"
#include "platform/Files.h"
#include "platform/Numbers.h"

#include <limits>

TextReader::TextReader(QByteArray bytes, QString path) : m_bytes(std::move(bytes)), m_path(std::move(path)) {}

std::optional<TextReader> TextReader::ifThere(const QString &path) {
  auto bytes = readIfThere(path);
  if (!bytes)
    return {};
  return TextReader(*std::move(bytes), path);
}

QString TextReader::itemUpTo(bool comma) {
  if (m_at == 0 || m_bytes[m_at - 1] == '\n')
    ++m_line;
  qsizetype end = m_at;
  while (end < m_bytes.size() && m_bytes[end] != '\n' && !(comma && m_bytes[end] == ','))
    ++end;
  const bool lineEnds = end < m_bytes.size() && m_bytes[end] == '\n';
  QByteArrayView item = QByteArrayView(m_bytes).sliced(m_at, end - m_at);
  if (lineEnds && item.endsWith('\r'))
    item.chop(1);
  if (item.size() > LongestLine)
    throw ConversionFault(m_path, m_line, fromCodePage(item),
                          QStringLiteral("die Zeile ist zu lang für eine Datei von VEXT"));
  m_at = std::min(end + 1, m_bytes.size());
  return fromCodePage(item);
}

QString TextReader::line() {
  return itemUpTo(false);
}

QString TextReader::field() {
  return trimmedBlanks(itemUpTo(true));
}

qint64 TextReader::boundedNumber(qint64 lowest, qint64 highest) {
  const QString text = field();
  const qint64 value = wholeNumber(text);
  if (value < lowest || value > highest)
    throw ConversionFault(m_path, m_line, text, QStringLiteral("die Zahl ist zu groß für ihre Spalte"));
  return value;
}

void TextReader::numberInto(int &column, qint64 highest) {
  if (!atEnd())
    column = int(boundedNumber(std::numeric_limits<int>::min(), highest));
}

void TextReader::numberInto(qint16 &column) {
  if (!atEnd())
    column = qint16(boundedNumber(std::numeric_limits<qint16>::min(), std::numeric_limits<qint16>::max()));
}

void TextReader::leadingInto(float &column) {
  if (!atEnd())
    column = float(leadingNumber(field()));
}

void TextReader::regionalLineInto(double &column) {
  if (atEnd())
    return;
  const QString text = line();
  const auto value = regionalNumber(text);
  if (!value)
    throw ConversionFault(m_path, m_line, text, QStringLiteral("das ist keine Zeit in Sekunden"));
  column = *value;
}

void TextReader::lineInto(QString &column) {
  if (!atEnd())
    column = line();
}

void TextWriter::number(int value) {
  text(spacedText(value) + QLatin1Char(' '));
}

void TextWriter::text(const QString &line) {
  m_bytes += toCodePage(line).replace('\n', ' ') + "\r\n";
}

void TextWriter::decimal(double value) {
  text(fileText(value));
}

void TextWriter::decimal(float value) {
  text(plainText(value));
}
