#include "evaluation/TeamList.h"

#include "core/RecordFiles.h"
#include "core/ValueFormats.h"
#include "core/WebAdresse.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"
#include "printing/PrintHelpers.h"

namespace {

constexpr int ValueLength = 10;
constexpr unsigned Grey = 0xD0D0D0;
constexpr double HeadY = 43, PageEnd = 240;
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
  names.value = wertung.art == WertungsArt::Bestzeit       ? QStringLiteral("Bestzeit")
                : wertung.art == WertungsArt::Durchschnitt ? QStringLiteral("Durchschnittszeit")
                                                           : QStringLiteral("Zeitsumme");
  return names;
}

QString kindOf(const Wertung &wertung) {
  if (wertung.art == WertungsArt::ZeitsummeDerBesten)
    return QStringLiteral("Zeitsumme der besten") + plainText(wertung.anzahlBeste);
  return wertung.art == WertungsArt::Bestzeit ? QStringLiteral("Bestzeit") : QStringLiteral("Durchschnitt");
}

QString nameOf(const Store &store, Einheit einheit, int unit) {
  if (einheit != Einheit::Verein)
    return einheitName(store, einheit, unit);
  const VereinSatz club = VereinLesen(store, store.mannschaften.WertVerein[unit]);
  return trimmedBlanks(club.VereinKurz) + QStringLiteral("     ") + trimmedBlanks(club.VereinName);
}

Spalte<ListRow> timeColumn(const char *head, double headAt, double x, double TeilnehmerZeile::*time) {
  return {QString::fromUtf8(head),
          x,
          Ausrichtung::Zeit,
          8,
          [time](const ListRow &row) { return ZeitText(row.participant.*time); },
          headAt};
}

class TeamPrinter {
public:
  TeamPrinter(const Store &store, Druckschicht &druck, const TeamListe &liste)
      : m_store(store), m_druck(druck), m_liste(liste), m_names(namesOf(liste.wertung)),
        m_units(einheitSpalten(store, liste.wertung)), m_members(mitgliederSpalten(store)) {
    printHead();
  }

  void printUnit(const EinheitRow &unit) {
    advance(BandStep);
    m_druck.FilledBox(20, y() - 0.5, 190, y() + 4.5, Grey);
    m_druck.list().begin(headsOf(m_units), cellTexts(m_units, unit));
    printCells(m_druck, m_units, unit, y());
    m_row += BandGap;
  }

  void printMember(const QString &line) {
    advance(Row);
    const int row = numberAtEnd(line);
    m_druck.FontBold = m_store.mannschaften.WertGezaehlt[row] == 1;
    printListRow(m_druck, m_members, listRow(m_store, row), y());
    m_druck.FontBold = false;
  }

private:
  double y() const { return 42 + m_row * 0.45; }

  void advance(int step) {
    m_row += step;
    if (m_row <= LastEarlyRow || double(m_druck.CurrentY) <= PageEnd)
      return;
    m_row = Row;
    m_druck.NewPage();
    printHead();
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
    m_druck.list().columns = recorded(m_members);
    m_druck.FontBold = true;
    m_druck.FontSize = 10;
    printHeads(m_druck, m_units, HeadY);
    printHeads(m_druck, m_members, HeadY);
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
  QList<Spalte<EinheitRow>> m_units;
  ListColumns m_members;
  int m_page = 0;
  /// Tenths of a row.
  int m_row = 0;
};

} // namespace

EinheitRow einheitRow(int place, const QString &line) {
  double value = regionalNumber(QStringView(line).left(ValueLength)).value_or(0);
  while (value >= MissingMember)
    value -= MissingMember;
  return {place, numberAtEnd(line), value};
}

QList<Spalte<EinheitRow>> einheitSpalten(const Store &store, const Wertung &wertung) {
  using Column = Spalte<EinheitRow>;
  using enum Ausrichtung;
  const Names names = namesOf(wertung);
  const auto place = [](const EinheitRow &row) { return row.place; };
  const auto name = [&store, wertung](const EinheitRow &row) { return nameOf(store, wertung.einheit, row.einheit); };
  const auto value = [](const EinheitRow &row) { return ZeitText(row.value); };
  Column values = withoutHead(Column(names.value, 100, Zeit, 10, value));
  values.davor = names.value + QLatin1Char(':');
  return {inBold(Column(QStringLiteral("Rang"), 20, Links, 10, place)),
          inBold(Column(names.column, 38, Links, 10, name)), inBold(values)};
}

ListColumns mitgliederSpalten(const Store &store) {
  const auto name = [](const ListRow &row) { return trimmedBlanks(row.athlete.Name); };
  ListColumns columns{{QStringLiteral("Läufer"), 60, Ausrichtung::Links, 8, name},
                      timeColumn("Zeit", 108, 100, &TeilnehmerZeile::WertSumme)};
  if (store.Rennen.ZweiDurchgaenge != 0)
    columns << timeColumn("1.DG", 144, 138, &TeilnehmerZeile::Zeit1)
            << timeColumn("2.DG", 181, 175, &TeilnehmerZeile::Zeit2);
  return columns;
}

void Mannschaftsliste(const Store &store, Druckschicht &druck, const TeamListe &liste,
                      const std::function<QStringList(int line)> &mitglieder) {
  Dokumentanfang(store, druck, QStringLiteral("Mannschaftsliste"));
  TeamPrinter printer(store, druck, liste);
  for (int line = 0; line < liste.einheiten.size(); ++line) {
    printer.printUnit(einheitRow(line + 1, liste.einheiten[line]));
    for (const QString &member : mitglieder(line))
      printer.printMember(member);
  }
  druck.EndDoc();
}
