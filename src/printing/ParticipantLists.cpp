#include "core/Classes.h"
#include "core/RecordFiles.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"
#include "printing/Documents.h"
#include "printing/ListRows.h"
#include "printing/PrintHelpers.h"
#include "printing/Seitenkopf.h"
#include "printing/SortierListe.h"

namespace {

/// One printing of "Teilnehmerliste": sections by class, each in the order of the start numbers.
class ClassedList {
public:
  ClassedList(Store &store, Druckschicht &druck) : m_store(store), m_druck(druck) {}

  void print(const QStringList &lines) {
    printHead();
    for (const QString &line : lines) {
      auto &participant = m_store.Teilnehmer[sortierReihe(line)];
      markSection(participant, line);
      if (participant.StartNr == 0)
        break;
      if (participant.KlasseKopf != 0)
        startSection(participant);
      printRow(participant, LaeuferLesen(m_store, participant.LaeuferNr));
    }
    m_druck.EndDoc();
  }

private:
  void printHead() {
    Seitenkopf(m_store, m_druck, Listenkoepfe::teilnehmerliste(),
               {{20, QStringLiteral("St.Nr.")},
                {34, QStringLiteral("Name")},
                {79, QStringLiteral("Verein/Mannschaft")},
                {113, QStringLiteral("Jahrg.")},
                {133, QStringLiteral("Status")}},
               m_page);
  }

  // The number starts at 0, so a first section 000 has no band; this is meant.
  void markSection(TeilnehmerZeile &participant, const QString &line) {
    const int section = abschnittOf(line);
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

  // A continued class shows no name on the new page; this is meant.
  void breakIfFull(double limit) {
    if (!seiteVoll(m_druck, m_line, limit))
      return;
    m_line = 1;
    m_druck.NewPage();
    printHead();
  }

  void printRow(const TeilnehmerZeile &participant, const LaeuferSatz &athlete) {
    ++m_line;
    breakIfFull(RowLimit);
    const double y = gitterY(m_line);
    m_druck.FontSize = 9;
    Zelle(m_druck, 20, y, rechtsbuendig(participant.StartNr, 4));
    Zelle(m_druck, 34, y, athlete.Name.left(26));
    Zelle(m_druck, 79, y, Vereinstext(m_store, athlete, participant, true).left(20));
    Zelle(m_druck, 113, y, yearOf(athlete.Geburtsdatum));
    m_druck.FontSize = 8;
    m_druck.CurrentX = 133;
    m_druck.CurrentY = float(y);
    m_druck.Print({m_store.StatusText[participant.Status1], m_store.StatusText[participant.Status2]});
  }

  Store &m_store;
  Druckschicht &m_druck;
  int m_page = 0, m_line = 0, m_bands = 0, m_section = 0;
};

void printAlphabeticHead(const Store &store, Druckschicht &druck, int &page) {
  Seitenkopf(store, druck, Listenkoepfe::alphabetischeListe(),
             {{20, QStringLiteral("St.Nr.")},
              {34, QStringLiteral("Name")},
              {79, QStringLiteral("Verein/Mannschaft")},
              {130, Klassenspalte(store)}},
             page);
}

void printAlphabeticRow(const Store &store, Druckschicht &druck, const TeilnehmerZeile &participant, int zeilenNr) {
  const LaeuferSatz athlete = LaeuferLesen(store, participant.LaeuferNr);
  const double y = gitterY(zeilenNr);
  druck.FontSize = 9;
  Zelle(druck, 20, y, rechtsbuendig(participant.StartNr, 4));
  Zelle(druck, 34, y, athlete.Name.left(26));
  Zelle(druck, 79, y, Vereinstext(store, athlete, participant, true).left(25));
  Zelle(druck, 130, y, Klassentext(store, participant));
  druck.DrawWidth = 2;
  druck.Box(20, gitterY(zeilenNr) - 0.5, 190, gitterY(zeilenNr + 1) - 0.5);
}

} // namespace

void Teilnehmerliste(Store &store, Druckschicht &druck) {
  Dokumentanfang(store, druck, Listenkoepfe::teilnehmerliste().name);
  ClassedList(store, druck).print(SortierListe(store, [&store](int row, const LaeuferSatz &athlete) {
    const auto &participant = store.Teilnehmer[row];
    return Reihungsschluessel(store, participant) + masked(participant.StartNr, "0###") + athlete.Name;
  }));
}

void AlphabetischeListe(const Store &store, Druckschicht &druck) {
  Dokumentanfang(store, druck, Listenkoepfe::alphabetischeListe().name);
  int page = 0, zeilenNr = 0;
  const QStringList lines = SortierListe(store, [](int, const LaeuferSatz &athlete) { return athlete.Name; });
  printAlphabeticHead(store, druck, page);
  for (const QString &line : lines) {
    const auto &participant = store.Teilnehmer[sortierReihe(line)];
    if (participant.StartNr == 0)
      break;
    if (seiteVoll(druck, ++zeilenNr, RowLimit)) {
      zeilenNr = 1;
      druck.NewPage();
      printAlphabeticHead(store, druck, page);
    }
    printAlphabeticRow(store, druck, participant, zeilenNr);
  }
  druck.EndDoc();
}
