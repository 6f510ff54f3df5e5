#include "platform/print/CsvFile.h"

#include "platform/Csv.h"

#include <QMap>

#include <variant>

namespace {

QStringList headsOf(const RecordedList &list) {
  QStringList heads = list.sections.isEmpty() ? QStringList() : list.sections.first().names;
  for (const RecordedColumn &column : list.columns)
    heads << column.head;
  return heads;
}

QByteArray listLines(const RecordedList &list) {
  QByteArray lines = csvLine(headsOf(list));
  for (const RecordedSection &section : list.sections)
    for (const QStringList &row : section.rows)
      lines += csvLine(section.values + row);
  return lines;
}

// Texts on one height are a line.
QByteArray textLines(const PrintPage &page) {
  QMap<int, QMap<double, QString>> lines;
  for (const PrintOperation &operation : page)
    if (const auto *text = std::get_if<TextOperation>(&operation))
      lines[int(text->y)][text->x] = text->text.trimmed();
  QByteArray bytes;
  for (const auto &line : lines)
    bytes += csvLine(line.values());
  return bytes;
}

} // namespace

QByteArray csvOf(const Recording &recording) {
  QByteArray bytes = Utf8Mark;
  if (!recording.list.columns.isEmpty())
    return bytes + listLines(recording.list);
  for (const PrintPage &page : recording.pages)
    bytes += textLines(page);
  return bytes;
}

Printer csvPrinter(const QString &folder, std::function<QDateTime()> now) {
  return filePrinter(QStringLiteral("Tabelle (CSV)"), folder, QStringLiteral("csv"), std::move(now),
                     [](const Recording &recording) { return csvOf(recording); });
}
