#include "printing/Protokoll.h"

#include "exchange/TableReader.h"
#include "platform/Files.h"
#include "platform/Numbers.h"
#include "printing/ListLines.h"
#include "printing/PrintHelpers.h"
#include "printing/Seitenkopf.h"

#include <QDate>

#include <algorithm>

namespace {

/// Columns of a journal file, and how many a line has.
enum Field { TimeOfDay, Race, StartNr, Name, What, Before, After, Fields };
constexpr int LinesAPage = 52, DateLength = 10;
constexpr qsizetype LongestCell = 34;

/// A line of the journal and its day.
struct Entry {
  QString day;
  QStringList fields;
};
using Columns = QList<Column<Entry>>;

Column<Entry> column(const char *head, double x, Field field) {
  return {QString::fromUtf8(head), x, Alignment::Left, 8,
          [field](const Entry &entry) { return entry.fields[field].left(LongestCell); }};
}

Columns columns() {
  const auto when = [](const Entry &entry) { return entry.day + QLatin1Char(' ') + entry.fields[TimeOfDay]; };
  return {{QStringLiteral("Zeitpunkt"), 6, Alignment::Left, 8, when},
          column("St.Nr.", 36, StartNr),
          column("Name", 48, Name),
          column("Was", 96, What),
          column("vorher", 132, Before),
          column("nachher", 168, After)};
}

// Each line for itself: one that was cut off has fewer fields, or cannot be read, and spoils no other.
QStringList fieldsOf(const QByteArray &line, const QString &name) {
  try {
    QStringList fields = tableFrom(line, name).lines.first();
    fields.resize(std::max<qsizetype>(fields.size(), Fields));
    return fields;
  } catch (const TableFault &) {
    return {};
  }
}

// The newest first, in the file and of the days.
QList<Entry> entriesOfDay(const QString &path, const QString &name, int race) {
  const QString day = QDate::fromString(name.left(DateLength), Qt::ISODate).toString(QStringLiteral("dd.MM."));
  QList<Entry> entries;
  for (const QByteArray &line : readFile(path).split('\n'))
    if (line.split(';').value(Race) == QByteArray::number(race))
      if (const QStringList fields = fieldsOf(line, name); fields.size() == Fields)
        entries.prepend({day, fields});
  return entries;
}

QList<Entry> entriesOf(const QString &folder, int race) {
  QStringList days = filesIn(folder);
  std::reverse(days.begin(), days.end());
  QList<Entry> entries;
  for (const QString &day : std::as_const(days))
    if (day.endsWith(QStringLiteral(".csv")))
      entries += entriesOfDay(folder + QLatin1Char('/') + day, day, race);
  return entries;
}

} // namespace

void Protokoll(const Store &store, Druckschicht &druck, int race) {
  static const ListHead head{QStringLiteral("Protokoll")};
  beginDocument(store, druck, head.name);
  const Columns all = columns();
  int page = 0, line = 0;
  Seitenkopf(store, druck, head, all, page);
  for (const Entry &entry : entriesOf(store.DatenOrdner + QStringLiteral("Protokoll"), race)) {
    if (++line > LinesAPage) {
      druck.NewPage();
      Seitenkopf(store, druck, head, all, page);
      line = 1;
    }
    printListLine(druck, all, entry, gridY(line));
  }
  druck.EndDoc();
}
