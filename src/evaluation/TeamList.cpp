#include "evaluation/TeamList.h"

#include "core/RecordFiles.h"
#include "core/WebAdresse.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"
#include "printing/ListRows.h"
#include "printing/PrintHelpers.h"

namespace {

constexpr int ValueLength = 10, RowLength = 6;
constexpr unsigned Grey = 0xD0D0D0;
/// What each missing member added to the value.
constexpr double MissingMember = 100000;
constexpr double PageEnd = 240;
// Rows are counted in tenths, as members stand a little below the grid of the bands.
constexpr int Row = 10, BandStep = 20, BandGap = 3, LastEarlyRow = 100;

struct Names {
  QString list, column, value;
};

Names namesOf(const Wertung &wertung) {
  Names names;
  if (wertung.einheit == Einheit::Verein)
    names = {QStringLiteral("Vereinswertung"), QStringLiteral("Verein"), {}};
  if (wertung.einheit == Einheit::Mannschaft)
    names = {QStringLiteral("Mannschaftswertung"), QStringLiteral("Mannschaft"), {}};
  if (wertung.einheit == Einheit::Gruppe)
    names = {QStringLiteral("Gruppenwertung"), QStringLiteral("Gruppe"), {}};
  names.value = wertung.art == WertungsArt::Bestzeit       ? QStringLiteral("Bestzeit:")
                : wertung.art == WertungsArt::Durchschnitt ? QStringLiteral("Durchschnittszeit:")
                                                           : QStringLiteral("Zeitsumme:");
  return names;
}

QString kindOf(const Wertung &wertung) {
  if (wertung.art == WertungsArt::ZeitsummeDerBesten)
    return QStringLiteral("Zeitsumme der besten") + plainText(wertung.anzahlBeste);
  return wertung.art == WertungsArt::Bestzeit ? QStringLiteral("Bestzeit") : QStringLiteral("Durchschnitt");
}

class TeamPrinter {
public:
  TeamPrinter(const Store &store, Druckschicht &druck, const TeamListe &liste)
      : m_store(store), m_druck(druck), m_liste(liste), m_names(namesOf(liste.wertung)) {
    printHead();
  }

  void printUnit(int place, const QString &line) {
    advance(BandStep);
    m_druck.FilledBox(20, y() - 0.5, 190, y() + 4.5, Grey);
    m_druck.FontSize = 10;
    m_druck.FontBold = true;
    Zelle(m_druck, 20, y(), place);
    Zelle(m_druck, 38, y(), unitName(einheitAmEnde(line)));
    Zelle(m_druck, 100, y(), m_names.value + ZeitDruckText(m_druck, valueOf(line)));
    m_row += BandGap;
  }

  void printMember(const QString &line) {
    advance(Row);
    const int row = rowAtEnd(line, RowLength);
    const auto &participant = m_store.Teilnehmer[row];
    m_druck.FontSize = 8;
    m_druck.FontBold = m_store.WertGezaehlt[row] == 1;
    Zelle(m_druck, 60, y(), trimmedBlanks(LaeuferLesen(m_store, participant.LaeuferNr).Name));
    printTime(100, participant.WertSumme);
    if (m_store.Rennen.ZweiDurchgaenge != 0) {
      printTime(138, participant.Zeit1);
      printTime(175, participant.Zeit2);
    }
    m_druck.FontBold = false;
  }

private:
  double y() const { return 42 + m_row * 0.45; }

  void printTime(double x, double seconds) { Zelle(m_druck, x, y(), ZeitDruckText(m_druck, seconds)); }

  void advance(int step) {
    m_row += step;
    if (m_row <= LastEarlyRow || double(m_druck.CurrentY) <= PageEnd)
      return;
    m_row = Row;
    m_druck.NewPage();
    printHead();
  }

  QString unitName(int unit) {
    if (m_liste.wertung.einheit != Einheit::Verein)
      return einheitName(m_store, m_liste.wertung.einheit, unit);
    const VereinSatz club = VereinLesen(m_store, m_store.WertVerein[unit]);
    return trimmedBlanks(club.VereinKurz) + QStringLiteral("     ") + trimmedBlanks(club.VereinName);
  }

  static double valueOf(const QString &line) {
    double value = regionalNumber(QStringView(line).left(ValueLength)).value_or(0);
    while (value >= MissingMember)
      value -= MissingMember;
    return value;
  }

  void printHead() {
    ++m_page;
    m_druck.ScaleMode = Druckschicht::Scale::Millimetres;
    printTitle();
    m_druck.DrawWidth = 5;
    Rahmen(m_druck, 20, 10, 190, 37);
    m_druck.DrawWidth = 1;
    text(174, 22, 7, QString::fromLatin1(WebAdresse));
    m_druck.FontItalic = false;
    printColumnHeads();
    LogoDrucken(m_druck, 120, 11);
  }

  // Italic stays on down to the web address: that is meant.
  void printTitle() {
    const auto &race = m_store.Rennen;
    const QString &title = race.RennenKurz.isEmpty() ? race.RennenName : race.RennenKurz;
    m_druck.FontName = QStringLiteral("Arial");
    m_druck.FontBold = m_druck.FontItalic = true;
    TitelAnpassen(m_druck, title, 98);
    Zelle(m_druck, 22, 12, title);
    m_druck.FontBold = false;
    text(22, 22, 18, m_names.list);
    text(22, 30, 12, QStringLiteral("Auswertung nach: ") + kindOf(m_liste.wertung));
    text(175, 12, 8, QStringLiteral("Seite -") + plainText(m_page));
    text(175, 32, 7, shortDate(m_store.umgebung.heute()));
  }

  void printColumnHeads() {
    m_druck.FontBold = true;
    text(20, 43, 10, QStringLiteral("Rang"));
    text(38, 43, 10, m_names.column);
    text(60, 43, 10, QStringLiteral("Läufer"));
    text(108, 43, 10, QStringLiteral("Zeit"));
    if (m_store.Rennen.ZweiDurchgaenge != 0) {
      text(144, 43, 10, QStringLiteral("1.DG"));
      text(181, 43, 10, QStringLiteral("2.DG"));
    }
    m_druck.FontBold = false;
  }

  void text(double x, double top, double size, const QString &what) {
    m_druck.FontSize = size;
    Zelle(m_druck, x, top, what);
  }

  const Store &m_store;
  Druckschicht &m_druck;
  const TeamListe &m_liste;
  Names m_names;
  int m_page = 0;
  /// Tenths of a row.
  int m_row = 0;
};

} // namespace

void Mannschaftsliste(const Store &store, Druckschicht &druck, const TeamListe &liste,
                      const std::function<QStringList(int line)> &mitglieder) {
  Dokumentanfang(store, druck, QStringLiteral("Mannschaftsliste"));
  TeamPrinter printer(store, druck, liste);
  for (int line = 0; line < liste.einheiten.size(); ++line) {
    printer.printUnit(line + 1, liste.einheiten[line]);
    for (const QString &member : mitglieder(line))
      printer.printMember(member);
  }
  druck.EndDoc();
}
