#include "core/Participants.h"
#include "core/RecordFiles.h"
#include "core/SingleTimes.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"
#include "printing/Documents.h"
#include "printing/ListRows.h"
#include "printing/PrintHelpers.h"
#include "printing/Seitenkopf.h"
#include "timing/Ranking.h"

namespace {

constexpr double BandX = 79, CombinedBandX = 65;
constexpr double RemarkX = 180;

/// One printing of the result list, plain or combined.
class ResultList {
public:
  ResultList(const Store &store, Druckschicht &druck, bool combined, QString club)
      : m_store(store), m_druck(druck), m_combined(combined), m_club(std::move(club)) {}

  void print() {
    Dokumentanfang(m_store, m_druck, listHead().name);
    printHead();
    for (int k = 1; k <= 1000; ++k) {
      const auto &participant = m_store.Teilnehmer[m_store.RangListe[k]];
      if (participant.StartNr == 0)
        break;
      if (statusSum(participant) > 0)
        continue;
      if (participant.KlasseKopf != 0)
        startSection(participant);
      printRow(m_store.RangListe[k]);
    }
    m_druck.EndDoc();
  }

private:
  bool twoRuns() const { return m_store.Rennen.ZweiDurchgaenge != 0; }
  const Listenkopf &listHead() const {
    return m_combined ? Listenkoepfe::ergebnislisteKombination() : Listenkoepfe::ergebnisliste();
  }

  void printHead() {
    Seitenkopf(m_store, m_druck, listHead(), m_combined ? combinedHeads() : plainHeads(), m_page, m_club);
  }

  QList<Spaltenkopf> plainHeads() const {
    QList<Spaltenkopf> heads{{6, QStringLiteral("Rang")},     {20, QStringLiteral("St.Nr.")},
                             {34, QStringLiteral("Name")},    {79, QStringLiteral("Verein/Mannschaft")},
                             {113, QStringLiteral("Jahrg.")}, {133, QStringLiteral("Zeit")}};
    if (twoRuns())
      heads << Spaltenkopf{150, QStringLiteral("Zeit2")} << Spaltenkopf{166, QStringLiteral("Summe")};
    return heads;
  }

  QList<Spaltenkopf> combinedHeads() const {
    return {{6, QStringLiteral("Rang")},
            {20, QStringLiteral("Name")},
            {65, QStringLiteral("Verein/Mannschaft")},
            {98, QStringLiteral("Jahrg.")},
            {114, m_store.ZeitsummeRennenKurz[1]},
            {140, m_store.ZeitsummeRennenKurz[2]},
            {166, QStringLiteral("Summe")}};
  }

  // One empty row stands above each band but the first. On the combined list a band that broke the page is drawn a
  // second time on the row below; this is meant.
  void startSection(const TeilnehmerZeile &participant) {
    if (m_bands++ == 0)
      --m_line;
    m_line += 2;
    if (seiteVoll(m_druck, m_line, BandLimit)) {
      breakPage(participant);
      if (!m_combined)
        return;
    }
    printBand(participant, m_combined ? CombinedBandX : BandX);
  }

  void printBand(const TeilnehmerZeile &participant, double textX) {
    Klassenbalken(m_store, m_druck, participant, m_line, 4, 200, textX);
  }

  // The band on top of a new page stands at the place of the plain list on both lists; this is meant.
  void breakPage(const TeilnehmerZeile &participant) {
    m_line = 1;
    m_druck.NewPage();
    printHead();
    printBand(participant, BandX);
    ++m_line;
  }

  void printRow(int row) {
    const auto &participant = m_store.Teilnehmer[row];
    const LaeuferSatz athlete = LaeuferLesen(m_store, participant.LaeuferNr);
    ++m_line;
    if (seiteVoll(m_druck, m_line, RowLimit))
      breakPage(participant);
    m_druck.FontSize = 10;
    cell(6, rechtsbuendig(participant.Rang, 3) + QLatin1Char('.'));
    if (m_combined)
      printCombined(row, athlete);
    else
      printPlain(participant, athlete);
    printRemark(participant, athlete.Geschlecht);
  }

  void printPlain(const TeilnehmerZeile &participant, const LaeuferSatz &athlete) {
    cell(20, rechtsbuendig(participant.StartNr, 4));
    printPerson(participant, athlete, 34, 79, 113);
    cell(125, ZeitDruckText(m_druck, participant.WertZeit1));
    if (!twoRuns())
      return;
    cell(144, ZeitDruckText(m_druck, participant.WertZeit2));
    cell(165, ZeitDruckText(m_druck, participant.WertSumme));
  }

  // Only two races are shown, however many the sum holds.
  void printCombined(int row, const LaeuferSatz &athlete) {
    const auto &participant = m_store.Teilnehmer[row];
    printPerson(participant, athlete, 20, 65, 98);
    cell(114, ZeitDruckText(m_druck, m_store.CupZeit(row, 1)));
    cell(140, ZeitDruckText(m_druck, m_store.CupZeit(row, 2)));
    cell(165, ZeitDruckText(m_druck, participant.WertSumme));
  }

  void printPerson(const TeilnehmerZeile &participant, const LaeuferSatz &athlete, double nameX, double clubX,
                   double yearX) {
    cell(nameX, athlete.Name.left(26));
    cell(clubX, Vereinstext(m_store, athlete, participant, false).left(20));
    m_druck.FontSize = 9;
    cell(yearX, yearOf(athlete.Geburtsdatum));
  }

  // The time alone decides; a person without sex gets the remark too, and where no text fits the last one again. This
  // is meant.
  void printRemark(const TeilnehmerZeile &participant, int sex) {
    if ((sex == 0 && participant.WertSumme != m_store.BestzeitDamen) ||
        (sex == 1 && participant.WertSumme != m_store.BestzeitHerren) || m_store.Rennen.BestzeitText == 0)
      return;
    const QString text = Bestzeittext(m_store.Rennen.BestzeitText, sex);
    if (!text.isNull())
      m_remark = text;
    if (m_remark.isEmpty())
      return;
    m_druck.FontSize = m_store.Rennen.BestzeitText == 4 ? 6.5 : 8;
    cell(RemarkX, m_remark);
  }

  void cell(double x, const PrintItem &item) { Zelle(m_druck, x, gitterY(m_line), item); }

  const Store &m_store;
  Druckschicht &m_druck;
  bool m_combined;
  QString m_club;
  QString m_remark;
  int m_page = 0, m_line = 0, m_bands = 0;
};

QString clubSuffix(const Store &store, std::optional<int> club) {
  if (!club || *club < 1 || *club > store.VereinAnzahl)
    return {};
  return QLatin1Char(' ') + trimmedBlanks(VereinLesen(store, *club).VereinKurz);
}

} // namespace

QString Bestzeittext(int choice, int sex) {
  const bool known = sex == 0 || sex == 1;
  switch (choice) {
  case 1:
    return QStringLiteral("Bestzeit");
  case 2:
    return QStringLiteral("Tagesbestzeit");
  case 3:
    return known ? (sex == 0 ? QStringLiteral("Ortsmeisterin") : QStringLiteral("Ortsmeister")) : QString();
  case 4:
    return known ? (sex == 0 ? QStringLiteral("Vereinsmeisterin") : QStringLiteral("Vereinsmeister")) : QString();
  default:
    return {};
  }
}

void Ergebnisliste(Store &store, Druckschicht &druck, std::optional<int> club) {
  ErgebnisRechnen(store, club);
  const bool combined = hatSingleTimes(store);
  if (combined)
    singleTimesLaden(store);
  ResultList(store, druck, combined, clubSuffix(store, club)).print();
}
