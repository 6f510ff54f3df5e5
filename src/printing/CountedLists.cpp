#include "core/Classes.h"
#include "core/Participants.h"
#include "core/RecordFiles.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"
#include "printing/Documents.h"
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
  CountedPages(const Store &store, Druckschicht &druck, const Listenkopf &kopf, QList<Spaltenkopf> spalten)
      : m_store(store), m_druck(druck), m_kopf(kopf), m_spalten(std::move(spalten)) {
    printHead();
  }

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
  void printHead() { Seitenkopf(m_store, m_druck, m_kopf, m_spalten, m_page); }

  const Store &m_store;
  Druckschicht &m_druck;
  const Listenkopf &m_kopf;
  QList<Spaltenkopf> m_spalten;
  int m_page = 0, m_line = 0;
};

QString sexText(const LaeuferSatz &athlete) {
  return athlete.Geschlecht == 1 ? QStringLiteral("m") : QStringLiteral("w");
}

// Number, name, sex and year, which both lists begin with.
void printPerson(const Store &store, Druckschicht &druck, const TeilnehmerZeile &participant, double y, double sexX) {
  const LaeuferSatz athlete = LaeuferLesen(store, participant.LaeuferNr);
  druck.FontSize = 9;
  druck.FontBold = false;
  Zelle(druck, 20, y, participant.StartNr);
  Zelle(druck, 45, y, athlete.Name);
  Zelle(druck, sexX, y, sexText(athlete));
  Zelle(druck, sexX + 10, y, yearOf(athlete.Geburtsdatum));
}

void printStarter(const Store &store, Druckschicht &druck, const TeilnehmerZeile &participant, int zeilenNr) {
  const double y = gitterY(zeilenNr);
  printPerson(store, druck, participant, y, 90);
  Zelle(druck, 110, y, Klassentext(store, participant));
  Zelle(druck, 170, y, store.StatusText[participant.Status1]);
}

void printUnranked(const Store &store, Druckschicht &druck, const TeilnehmerZeile &participant, int zeilenNr) {
  const double y = gitterY(zeilenNr);
  printPerson(store, druck, participant, y, 100);
  // The plain class stands here, not the exact one of the other lists; this is meant.
  Zelle(druck, 125, y,
        store.Rennen.WertKlassen == 0 ? store.GruppeName[participant.GruppeNr]
                                      : store.KlasseName[participant.KlasseNr]);
  Zelle(druck, 145, y, participant.Gast == 1 ? QStringLiteral("G") : QStringLiteral("-"));
  druck.FontBold = true;
  if (participant.Status1 > 0)
    Zelle(druck, 155, y, store.StatusText[participant.Status1]);
  if (participant.Status2 > 0)
    Zelle(druck, 175, y, store.StatusText[participant.Status2]);
  druck.FontBold = false;
}

QList<Spaltenkopf> starterHeads(const Store &store) {
  return {{20, QStringLiteral("StartNr.")}, {45, QStringLiteral("Name")}, {90, QStringLiteral("m/w")},
          {100, QStringLiteral("Jahr")},    {110, Klassenspalte(store)},  {170, QStringLiteral("Status")}};
}

QList<Spaltenkopf> unrankedHeads(const Store &store) {
  const bool two = store.Rennen.ZweiDurchgaenge == 1;
  QList<Spaltenkopf> heads{
      {20, QStringLiteral("StartNr.")}, {45, QStringLiteral("Name")},
      {100, QStringLiteral("m/w")},     {110, QStringLiteral("Jahr")},
      {125, Klassenspalte(store)},      {155, two ? QStringLiteral("1.Dg.") : QStringLiteral("Grund")}};
  if (two)
    heads << Spaltenkopf{175, QStringLiteral("2.Dg.")};
  return heads;
}

} // namespace

void StartlisteZweiterDurchgang(Store &store, Druckschicht &druck) {
  const Listenkopf &kopf = Listenkoepfe::startlisteZweiterDurchgang();
  Dokumentanfang(store, druck, kopf.name);
  Rangfolge1(store);
  const QStringList lines = SortierListe(store, [&store](int row, const LaeuferSatz &athlete) {
    const auto &participant = store.Teilnehmer[row];
    return Reihungsschluessel(store, participant) + QLatin1Char(' ') + secondRunKey(participant) + athlete.Name;
  });
  CountedPages pages(store, druck, kopf, starterHeads(store));
  int lastSection = 0;
  for (const QString &line : lines) {
    const auto &participant = store.Teilnehmer[sortierReihe(line)];
    if (participant.StartNr == 0)
      break;
    if (const int section = abschnittOf(line); section != lastSection) {
      lastSection = section;
      const double y = gitterY(pages.next()) + 2;
      druck.Line(20, y, 190, y);
    }
    printStarter(store, druck, participant, pages.next());
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
    CountedPages pages(store, druck, kopf, unrankedHeads(store));
    for (const QString &line : lines) {
      const auto &participant = store.Teilnehmer[sortierReihe(line)];
      if (participant.StartNr == 0)
        break;
      printUnranked(store, druck, participant, pages.next());
    }
  }
  druck.EndDoc();
}
