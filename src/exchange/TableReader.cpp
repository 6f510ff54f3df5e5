#include "exchange/TableReader.h"

#include "platform/CodePage.h"
#include "platform/Csv.h"
#include "platform/Files.h"

#include <QFileInfo>
#include <QStringDecoder>

#include <algorithm>
#include <optional>

namespace {

constexpr int LinesToJudge = 20;
constexpr QChar Quote(u'"');

bool holdsAny(QByteArrayView bytes, QByteArrayView wanted) {
  return std::any_of(wanted.begin(), wanted.end(), [&](char c) { return bytes.contains(c); });
}

/// Bytes that Windows-1252 does not know; DOS and Mac files are full of them.
constexpr QByteArrayView Foreign("\x81\x8d\x8f\x90\x9d");

std::optional<QString> fromUtf8(QByteArrayView bytes) {
  QStringDecoder decoder(QStringDecoder::Utf8);
  QString text = decoder(bytes);
  return decoder.hasError() ? std::nullopt : std::optional(std::move(text));
}

// What begins like a packed or a picture file is told as such: most often a workbook was chosen.
void requireText(QByteArrayView bytes, const QString &name) {
  if (bytes.startsWith("PK") || bytes.startsWith("\xd0\xcf\x11\xe0"))
    throw TableFault(QStringLiteral("„%1“ ist eine Arbeitsmappe. Bitte in LibreOffice oder Excel öffnen und als „Text "
                                    "CSV“ speichern.")
                         .arg(name));
  if (bytes.contains('\0'))
    throw TableFault(QStringLiteral("„%1“ ist kein lesbarer Text. Bitte die Tabelle als „Text CSV“ mit dem Zeichensatz "
                                    "UTF-8 speichern.")
                         .arg(name));
}

QString decoded(QByteArrayView bytes, const QString &name) {
  requireText(bytes, name);
  if (bytes.startsWith(Utf8Mark))
    bytes = bytes.sliced(qstrlen(Utf8Mark));
  if (const auto text = fromUtf8(bytes))
    return *text;
  if (holdsAny(bytes, Foreign))
    throw TableFault(
        QStringLiteral("„%1“ hat einen fremden Zeichensatz, Umlaute gingen verloren. Bitte die Tabelle als "
                       "„Text CSV“ mit dem Zeichensatz UTF-8 speichern.")
            .arg(name));
  return fromCodePage(bytes);
}

// The one that occurs in most lines; inside quotes it is none.
QChar separatorOf(QStringView text) {
  const QString candidates = QStringLiteral(";\t,");
  QList<int> linesWith(candidates.size());
  QString seen;
  bool quoted = false;
  for (qsizetype at = 0, lines = 0; at < text.size() && lines < LinesToJudge; ++at) {
    if (text[at] == Quote)
      quoted = !quoted;
    else if (text[at] == QLatin1Char('\n') || text[at] == QLatin1Char('\r'))
      ++lines, seen.clear();
    else if (const auto which = candidates.indexOf(text[at]); which >= 0 && !quoted && !seen.contains(text[at]))
      ++linesWith[which], seen += text[at];
  }
  return candidates[std::max_element(linesWith.begin(), linesWith.end()) - linesWith.begin()];
}

/// Takes fields and lines off the text, one after the other.
class Parser {
public:
  Parser(QStringView text, const QString &name) : m_text(text), m_name(name), m_separator(separatorOf(text)) {}

  Table table() {
    Table table;
    qsizetype columns = 0;
    while (m_at < m_text.size()) {
      const int number = m_line;
      const QStringList fields = line();
      if (std::all_of(fields.begin(), fields.end(), [](const QString &field) { return field.isEmpty(); }))
        continue;
      table.lines << fields;
      table.numbers << number;
      if (table.lines.size() > MostLines)
        refuse(QStringLiteral("hat mehr als %1 Zeilen").arg(MostLines));
      columns = std::max(columns, fields.size());
      if (table.lines.size() * columns > MostFields)
        refuse(QStringLiteral("hat mehr als %1 Felder").arg(MostFields));
    }
    return table;
  }

private:
  QStringList line() {
    QStringList fields;
    do {
      fields << field();
      if (fields.size() > MostColumns)
        refuse(QStringLiteral("hat in Zeile %1 mehr als %2 Spalten").arg(m_line).arg(MostColumns));
    } while (takes(m_separator));
    takes(QLatin1Char('\r'));
    takes(QLatin1Char('\n'));
    ++m_line;
    return fields;
  }

  QString field() {
    QString text;
    const int begun = m_line;
    while (m_at < m_text.size() && !endsField(m_text[m_at])) {
      if (m_text[m_at] == Quote && text.trimmed().isEmpty())
        text = quoted(begun);
      else
        text += m_text[m_at++];
      if (text.size() > LongestField)
        refuse(QStringLiteral("hat in Zeile %1 ein Feld von mehr als %2 Zeichen").arg(begun).arg(LongestField));
    }
    return withoutGuard(text.simplified());
  }

  QString quoted(int begun) {
    QString text;
    for (++m_at; m_at < m_text.size(); ++m_at) {
      if (m_text[m_at] == QLatin1Char('\n'))
        ++m_line;
      if (m_text[m_at] == Quote && !(m_at + 1 < m_text.size() && m_text[m_at + 1] == Quote)) {
        ++m_at;
        return text;
      }
      if (m_text[m_at] == Quote)
        ++m_at;
      text += m_text[m_at];
      if (text.size() > LongestField)
        break;
    }
    refuse(QStringLiteral("hat in Zeile %1 ein Anführungszeichen, das nicht geschlossen wird").arg(begun));
  }

  bool endsField(QChar c) const { return c == m_separator || c == QLatin1Char('\n') || c == QLatin1Char('\r'); }

  bool takes(QChar c) {
    const bool there = m_at < m_text.size() && m_text[m_at] == c;
    m_at += there;
    return there;
  }

  [[noreturn]] void refuse(const QString &what) const {
    throw TableFault(QStringLiteral("„%1“ %2; das ist keine Tabelle mit Meldungen.").arg(m_name, what));
  }

  QStringView m_text;
  QString m_name;
  QChar m_separator;
  qsizetype m_at = 0;
  int m_line = 1;
};

void makeEven(Table &table) {
  qsizetype columns = 0;
  for (const auto &line : table.lines)
    columns = std::max(columns, line.size());
  for (auto &line : table.lines)
    line.resize(columns);
}

} // namespace

Table readTable(const QString &path) {
  const QFileInfo file(path);
  if (file.size() > LargestTable)
    throw TableFault(QStringLiteral("„%1“ ist mit %2 MB zu groß für eine Tabelle mit Meldungen.")
                         .arg(file.fileName())
                         .arg(file.size() >> 20));
  return tableFrom(readFile(path, LargestTable), file.fileName());
}

Table tableFrom(const QByteArray &bytes, const QString &name) {
  Table table = Parser(decoded(bytes, name), name).table();
  if (table.lines.isEmpty())
    throw TableFault(QStringLiteral("„%1“ ist leer.").arg(name));
  makeEven(table);
  return table;
}
