#include "core/Classes.h"
#include "core/Participants.h"
#include "core/RecordFiles.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"
#include "printing/Documents.h"
#include "printing/ListColumns.h"
#include "printing/ListLines.h"
#include "printing/PrintHelpers.h"
#include "printing/Seitenkopf.h"
#include "printing/SortierListe.h"
#include "timing/Ranking.h"

// The two lists of plain lines whose pages break by count.

namespace {

constexpr int LinesAPage = 52;

/// Counts the lines of a list and breaks its pages; a new page begins with line 1.
class CountedPages {
public:
  CountedPages(const Store &store, Druckschicht &druck, const ListHead &head, ListColumns columns)
      : m_store(store), m_druck(druck), m_head(head), m_columns(std::move(columns)) {
    printHead();
  }

  void printRow(int row) { printListLine(m_druck, m_columns, lineForRow(m_store, row), gridY(next())); }

  /// Goes on to the next line and gives its number.
  int next() {
    if (++m_line > LinesAPage) {
      m_druck.NewPage();
      printHead();
      m_line = 1;
    }
    return m_line;
  }

private:
  void printHead() { Seitenkopf(m_store, m_druck, m_head, m_columns, m_page); }

  const Store &m_store;
  Druckschicht &m_druck;
  const ListHead &m_head;
  ListColumns m_columns;
  int m_page = 0, m_line = 0;
};

} // namespace

void StartlisteZweiterDurchgang(Store &store, Druckschicht &druck) {
  const ListHead &head = ListHeads::secondRun();
  beginDocument(store, druck, head.name);
  Rangfolge1(store);
  const QStringList lines = SortierListe(store, [&store](int row, const LaeuferSatz &athlete) {
    const auto &participant = store.Teilnehmer[row];
    return Reihungsschluessel(store, participant) + QLatin1Char(' ') + secondRunKey(participant) + athlete.Name;
  });
  CountedPages pages(store, druck, head, secondRunColumns(store));
  int lastSection = 0;
  for (const QString &line : lines) {
    const int row = numberAtEnd(line);
    if (store.Teilnehmer[row].StartNr == 0) // Quirk: number 0 ends the list.
      break;
    if (const int section = sectionOfLine(line); section != lastSection) {
      lastSection = section;
      const double y = gridY(pages.next()) + 2;
      druck.Line(20, y, 190, y);
    }
    pages.printRow(row);
  }
  druck.EndDoc();
}

void NichtInDerWertung(const Store &store, Druckschicht &druck) {
  const ListHead &head = ListHeads::unranked();
  beginDocument(store, druck, head.name);
  const QStringList lines = SortierListe(store, [&store](int row, const LaeuferSatz &athlete) {
    const auto &participant = store.Teilnehmer[row];
    return statusSum(participant) != 0 ? masked(participant.StartNr, "0###") + athlete.Name : QString();
  });
  if (!lines.isEmpty()) {
    CountedPages pages(store, druck, head, unrankedColumns(store));
    for (const QString &line : lines) {
      const int row = numberAtEnd(line);
      if (store.Teilnehmer[row].StartNr == 0) // Quirk: number 0 ends the list.
        break;
      pages.printRow(row);
    }
  }
  druck.EndDoc();
}
