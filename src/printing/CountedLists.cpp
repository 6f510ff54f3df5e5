#include "core/Classes.h"
#include "core/Participants.h"
#include "core/RecordFiles.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"
#include "printing/Documents.h"
#include "printing/ListColumns.h"
#include "printing/ListRows.h"
#include "printing/PrintHelpers.h"
#include "printing/Seitenkopf.h"
#include "printing/SortierListe.h"
#include "timing/Ranking.h"

// The two lists of plain rows whose pages break by count.

namespace {

constexpr int RowsAPage = 52;

/// Counts the rows of a list and breaks its pages; a new page begins in row 1.
class CountedPages {
public:
  CountedPages(const Store &store, Druckschicht &druck, const Listenkopf &kopf, ListColumns columns)
      : m_store(store), m_druck(druck), m_kopf(kopf), m_columns(std::move(columns)) {
    printHead();
  }

  void printRow(int row) { printListRow(m_druck, m_columns, listRow(m_store, row), gitterY(next())); }

  /// Goes on to the next row and gives its number.
  int next() {
    if (++m_line > RowsAPage) {
      m_druck.NewPage();
      printHead();
      m_line = 1;
    }
    return m_line;
  }

private:
  void printHead() { Seitenkopf(m_store, m_druck, m_kopf, m_columns, m_page); }

  const Store &m_store;
  Druckschicht &m_druck;
  const Listenkopf &m_kopf;
  ListColumns m_columns;
  int m_page = 0, m_line = 0;
};

} // namespace

void StartlisteZweiterDurchgang(Store &store, Druckschicht &druck) {
  const Listenkopf &kopf = Listenkoepfe::startlisteZweiterDurchgang();
  Dokumentanfang(store, druck, kopf.name);
  Rangfolge1(store);
  const QStringList lines = SortierListe(store, [&store](int row, const LaeuferSatz &athlete) {
    const auto &participant = store.Teilnehmer[row];
    return Reihungsschluessel(store, participant) + QLatin1Char(' ') + secondRunKey(participant) + athlete.Name;
  });
  CountedPages pages(store, druck, kopf, startlistenSpalten(store));
  int lastSection = 0;
  for (const QString &line : lines) {
    const int row = numberAtEnd(line);
    if (store.Teilnehmer[row].StartNr == 0)
      break;
    if (const int section = abschnittOf(line); section != lastSection) {
      lastSection = section;
      const double y = gitterY(pages.next()) + 2;
      druck.Line(20, y, 190, y);
    }
    pages.printRow(row);
  }
  druck.EndDoc();
}

void NichtInDerWertung(const Store &store, Druckschicht &druck) {
  const Listenkopf &kopf = Listenkoepfe::nichtInDerWertung();
  Dokumentanfang(store, druck, kopf.name);
  const QStringList lines = SortierListe(store, [&store](int row, const LaeuferSatz &athlete) {
    const auto &participant = store.Teilnehmer[row];
    return statusSum(participant) != 0 ? masked(participant.StartNr, "0###") + athlete.Name : QString();
  });
  if (!lines.isEmpty()) {
    CountedPages pages(store, druck, kopf, nichtGewertetSpalten(store));
    for (const QString &line : lines) {
      const int row = numberAtEnd(line);
      if (store.Teilnehmer[row].StartNr == 0)
        break;
      pages.printRow(row);
    }
  }
  druck.EndDoc();
}
