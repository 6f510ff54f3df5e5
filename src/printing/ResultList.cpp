#include "core/Participants.h"
#include "core/RecordFiles.h"
#include "core/SingleTimes.h"
#include "platform/Numbers.h"
#include "printing/Documents.h"
#include "printing/ListColumns.h"
#include "printing/PrintHelpers.h"
#include "printing/Seitenkopf.h"
#include "timing/Ranking.h"

namespace {

constexpr double BandX = 79, CombinedBandX = 65;

/// One printing of the result list, plain or combined.
class ResultList {
public:
  ResultList(const Store &store, Druckschicht &druck, bool combined, QString club)
      : m_store(store), m_druck(druck), m_combined(combined), m_club(std::move(club)),
        m_columns(combined ? combinedColumns(store) : resultColumns(store)) {}

  void print() {
    beginDocument(m_store, m_druck, listHead().name);
    printHead();
    for (const int place : m_store.ranking.RangListe.rows()) {
      const int row = m_store.ranking.RangListe[place];
      const auto &participant = m_store.Teilnehmer[row];
      if (participant.StartNr == 0) // Quirk: number 0 ends the list.
        break;
      if (statusSum(participant) > 0)
        continue;
      if (participant.KlasseKopf != 0)
        startSection(participant);
      printRow(row);
    }
    m_druck.EndDoc();
  }

private:
  const ListHead &listHead() const { return m_combined ? ListHeads::combinedResults() : ListHeads::results(); }

  void printHead() { Seitenkopf(m_store, m_druck, listHead(), m_columns, m_page, m_club); }

  // One empty line stands above each band but the first.
  // Quirk: band drawn twice. On the combined list a band that broke the page is drawn a second time on the line below.
  void startSection(const TeilnehmerZeile &participant) {
    if (m_bands++ == 0)
      --m_line;
    m_line += 2;
    if (isPageFull(m_druck, m_line, BandLimit)) {
      breakPage(participant);
      if (!m_combined)
        return;
    }
    printBand(participant, m_combined ? CombinedBandX : BandX);
  }

  void printBand(const TeilnehmerZeile &participant, double textX) {
    Klassenbalken(m_store, m_druck, participant, m_line, 4, 200, textX);
  }

  // Quirk: band on top of a page. It stands at the place of the plain list on both lists.
  void breakPage(const TeilnehmerZeile &participant) {
    m_line = 1;
    m_druck.NewPage();
    printHead();
    printBand(participant, BandX);
    ++m_line;
  }

  void printRow(int row) {
    ++m_line;
    if (isPageFull(m_druck, m_line, LineLimit))
      breakPage(m_store.Teilnehmer[row]);
    printListLine(m_druck, m_columns, lineForRow(m_store, row), gridY(m_line));
  }

  const Store &m_store;
  Druckschicht &m_druck;
  bool m_combined;
  QString m_club;
  ListColumns m_columns;
  int m_page = 0, m_line = 0, m_bands = 0;
};

QString clubSuffix(const Store &store, std::optional<int> club) {
  if (!club || *club < 1 || *club > store.VereinAnzahl)
    return {};
  return QLatin1Char(' ') + trimmedBlanks(VereinLesen(store, *club).VereinKurz);
}

} // namespace

void Ergebnisliste(Store &store, Druckschicht &druck, std::optional<int> club) {
  ErgebnisRechnen(store, club);
  const bool combined = hasSingleTimes(store);
  if (combined)
    loadSingleTimes(store);
  ResultList(store, druck, combined, clubSuffix(store, club)).print();
}
