#include "core/Classes.h"
#include "core/RecordFiles.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"
#include "printing/Documents.h"
#include "printing/ListColumns.h"
#include "printing/ListLines.h"
#include "printing/PrintHelpers.h"
#include "printing/Seitenkopf.h"
#include "printing/SortierListe.h"

namespace {

/// One printing of "Teilnehmerliste": sections by class, each in the order of the start numbers.
class ClassedList {
public:
  ClassedList(Store &store, Druckschicht &druck)
      : m_store(store), m_druck(druck), m_columns(participantColumns(store)) {}

  void print(const QStringList &lines) {
    printHead();
    for (const QString &line : lines) {
      const int row = numberAtEnd(line);
      auto &participant = m_store.Teilnehmer[row];
      markSection(participant, line);
      // Quirk: number 0 ends the list. Whoever stands behind it is left out.
      if (participant.StartNr == 0)
        break;
      if (participant.KlasseKopf != 0)
        startSection(participant);
      printRow(row);
    }
    m_druck.EndDoc();
  }

private:
  void printHead() { Seitenkopf(m_store, m_druck, ListHeads::participants(), m_columns, m_page); }

  // Quirk: no band for section 000. The number starts at 0.
  void markSection(TeilnehmerZeile &participant, const QString &line) {
    const int section = sectionOfLine(line);
    participant.KlasseKopf = section != m_section ? 1 : 0;
    m_section = section;
  }

  void startSection(const TeilnehmerZeile &participant) {
    if (m_bands++ == 0)
      --m_line;
    m_line += 2;
    breakIfFull(BandLimit);
    Klassenbalken(m_store, m_druck, participant, m_line, 20, 170, 79);
  }

  // Quirk: continued class without a name. The new page begins with its lines.
  void breakIfFull(double limit) {
    if (!isPageFull(m_druck, m_line, limit))
      return;
    m_line = 1;
    m_druck.NewPage();
    printHead();
  }

  void printRow(int row) {
    ++m_line;
    breakIfFull(LineLimit);
    printListLine(m_druck, m_columns, lineForRow(m_store, row), gridY(m_line));
  }

  Store &m_store;
  Druckschicht &m_druck;
  ListColumns m_columns;
  int m_page = 0, m_line = 0, m_bands = 0, m_section = 0;
};

} // namespace

void Teilnehmerliste(Store &store, Druckschicht &druck) {
  beginDocument(store, druck, ListHeads::participants().name);
  ClassedList(store, druck).print(SortierListe(store, [&store](int row, const LaeuferSatz &athlete) {
    const auto &participant = store.Teilnehmer[row];
    return Reihungsschluessel(store, participant) + masked(participant.StartNr, "0###") + athlete.Name;
  }));
}

void AlphabetischeListe(const Store &store, Druckschicht &druck) {
  beginDocument(store, druck, ListHeads::alphabetic().name);
  const ListColumns columns = alphabeticColumns(store);
  int page = 0, pageLine = 0;
  const auto printHead = [&] { Seitenkopf(store, druck, ListHeads::alphabetic(), columns, page); };
  const QStringList lines = SortierListe(store, [](int, const LaeuferSatz &athlete) { return athlete.Name; });
  printHead();
  for (const QString &line : lines) {
    const int row = numberAtEnd(line);
    if (store.Teilnehmer[row].StartNr == 0) // Quirk: number 0 ends the list.
      break;
    if (isPageFull(druck, ++pageLine, LineLimit)) {
      pageLine = 1;
      druck.NewPage();
      printHead();
    }
    printListLine(druck, columns, lineForRow(store, row), gridY(pageLine));
    druck.DrawWidth = 2;
    druck.Box(20, gridY(pageLine) - 0.5, 190, gridY(pageLine + 1) - 0.5);
  }
  druck.EndDoc();
}
