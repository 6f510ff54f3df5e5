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
// Lines are counted in tenths, as members stand a little below the grid of the bands.
constexpr int Line = 10, BandStep = 20, BandGap = 3, LastEarlyLine = 100;

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
    return QStringLiteral("Zeitsumme der besten") + plainText(wertung.bestCount);
  return wertung.art == WertungsArt::Bestzeit ? QStringLiteral("Bestzeit") : QStringLiteral("Durchschnitt");
}

QString nameOf(const Store &store, Einheit einheit, int unit) {
  if (einheit != Einheit::Verein)
    return unitName(store, einheit, unit);
  const VereinSatz club = VereinLesen(store, store.mannschaften.WertVerein[unit]);
  return trimmedBlanks(club.VereinKurz) + QStringLiteral("     ") + trimmedBlanks(club.VereinName);
}

Column<ListLine> timeColumn(const char *head, double headAt, double x, double TeilnehmerZeile::*time) {
  return {QString::fromUtf8(head),
          x,
          Alignment::Time,
          8,
          [time](const ListLine &line) { return ZeitText(line.participant.*time); },
          headAt};
}

class TeamPrinter {
public:
  TeamPrinter(const Store &store, Druckschicht &druck, const TeamPrint &print)
      : m_store(store), m_druck(druck), m_print(print), m_names(namesOf(print.wertung)),
        m_units(unitColumns(store, print.wertung)), m_members(memberColumns(store)) {
    printHead();
  }

  void printUnit(const UnitLine &unit) {
    advance(BandStep);
    m_druck.FilledBox(20, y() - 0.5, 190, y() + 4.5, Grey);
    m_druck.list().begin(headsOf(m_units), cellTexts(m_units, unit));
    printCells(m_druck, m_units, unit, y());
    m_line += BandGap;
  }

  void printMember(const QString &line) {
    advance(Line);
    const int row = numberAtEnd(line);
    m_druck.FontBold = m_store.mannschaften.WertGezaehlt[row] == 1;
    printListLine(m_druck, m_members, lineForRow(m_store, row), y());
    m_druck.FontBold = false;
  }

private:
  double y() const { return 42 + m_line * 0.45; }

  void advance(int step) {
    m_line += step;
    if (m_line <= LastEarlyLine || double(m_druck.CurrentY) <= PageEnd)
      return;
    m_line = Line;
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
    printLogo(m_druck, 120, 11);
  }

  // Quirk: italic head of the unit list. It stays on down to the web address.
  void printTitle() {
    const auto &race = m_store.Rennen;
    const QString &title = race.RennenKurz.isEmpty() ? race.RennenName : race.RennenKurz;
    m_druck.FontName = QStringLiteral("Arial");
    m_druck.FontBold = m_druck.FontItalic = true;
    fitTitle(m_druck, title, 98);
    printItemAt(m_druck, 22, 12, title);
    m_druck.FontBold = false;
    text(22, 22, 18, m_names.list);
    text(22, 30, 12, QStringLiteral("Auswertung nach: ") + kindOf(m_print.wertung));
    text(175, 12, 8, QStringLiteral("Seite -") + plainText(m_page));
    text(175, 32, 7, shortDate(m_store.umgebung.today()));
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
    printItemAt(m_druck, x, top, what);
  }

  const Store &m_store;
  Druckschicht &m_druck;
  const TeamPrint &m_print;
  Names m_names;
  QList<Column<UnitLine>> m_units;
  ListColumns m_members;
  int m_page = 0;
  /// Tenths of a line.
  int m_line = 0;
};

} // namespace

UnitLine unitFromLine(int place, const QString &line) {
  double value = regionalNumber(QStringView(line).left(ValueLength)).value_or(0);
  while (value >= MissingMember)
    value -= MissingMember;
  return {place, numberAtEnd(line), value};
}

QList<Column<UnitLine>> unitColumns(const Store &store, const Wertung &wertung) {
  using UnitColumn = Column<UnitLine>;
  using enum Alignment;
  const Names names = namesOf(wertung);
  const auto place = [](const UnitLine &line) { return line.place; };
  const auto name = [&store, wertung](const UnitLine &line) { return nameOf(store, wertung.einheit, line.unit); };
  const auto value = [](const UnitLine &line) { return ZeitText(line.value); };
  UnitColumn values = withoutHead(UnitColumn(names.value, 100, Time, 10, value));
  values.prefix = names.value + QLatin1Char(':');
  return {inBold(UnitColumn(QStringLiteral("Rang"), 20, Left, 10, place)),
          inBold(UnitColumn(names.column, 38, Left, 10, name)), inBold(values)};
}

ListColumns memberColumns(const Store &store) {
  const auto name = [](const ListLine &line) { return trimmedBlanks(line.athlete.Name); };
  ListColumns columns{{QStringLiteral("Läufer"), 60, Alignment::Left, 8, name},
                      timeColumn("Zeit", 108, 100, &TeilnehmerZeile::WertSumme)};
  if (store.Rennen.ZweiDurchgaenge != 0)
    columns << timeColumn("1.DG", 144, 138, &TeilnehmerZeile::Zeit1)
            << timeColumn("2.DG", 181, 175, &TeilnehmerZeile::Zeit2);
  return columns;
}

void Mannschaftsliste(const Store &store, Druckschicht &druck, const TeamPrint &print,
                      const std::function<QStringList(int line)> &members) {
  beginDocument(store, druck, QStringLiteral("Mannschaftsliste"));
  TeamPrinter printer(store, druck, print);
  for (int line = 0; line < print.units.size(); ++line) {
    printer.printUnit(unitFromLine(line + 1, print.units[line]));
    for (const QString &member : members(line))
      printer.printMember(member);
  }
  druck.EndDoc();
}
