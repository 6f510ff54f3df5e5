#include "evaluation/CupList.h"

#include "core/RecordFiles.h"
#include "evaluation/CupColumns.h"
#include "evaluation/CupScoring.h"
#include "platform/Dates.h"
#include "platform/Numbers.h"
#include "printing/PrintHelpers.h"

#include <algorithm>

namespace {

constexpr unsigned FrameColor = 0x505050;
constexpr int NameAndClub = 38; // characters
/// The columns of a person.
enum PersonColumn { Rang, Name, Club, Jahrgang };
constexpr double HeadY = 32, PageEnd = 160, RowHeight = 4;
// Rows are counted in tenths: a heading takes 2.7 of them.
constexpr int Row = 10, BehindHeading = 17, NearlyEmpty = 100, NoRoomForClass = 300, LastRow = 380;

QList<int> personsOf(const QStringList &keys) {
  QList<int> persons;
  for (const QString &key : keys)
    persons.append(numberAtEnd(key));
  return persons;
}

class CupPrinter {
public:
  CupPrinter(const Store &store, Druckschicht &druck, const CupListe &liste)
      : m_store(store), m_druck(druck), m_liste(liste), m_persons(personsOf(liste.schluessel)),
        m_person(cupPersonSpalten(store)), m_columns(store, druck, m_persons) {
    printHead();
  }

  void printPersons() {
    for (qsizetype i = 0; i < m_persons.size(); ++i) {
      printPerson(m_persons[i]);
      if (m_row > LastRow && double(m_druck.CurrentY) > PageEnd && i + 1 < m_persons.size())
        continueOnNewPage(m_persons[i + 1]);
    }
  }

private:
  const Spalte<CupRow> &column(PersonColumn which) const { return m_person[which]; }
  double y() const { return 40 + m_row * RowHeight / Row; }

  void printPerson(int person) {
    if (m_store.cup.CupKlasse[person] != m_klasse)
      startClass(m_store.cup.CupKlasse[person]);
    printRow(person, m_places.naechster(m_store.cup.CupPunkte(person, 0)));
    m_row += Row * m_columns.lines();
  }

  void startClass(int klasse) {
    m_klasse = klasse;
    m_places.neueKlasse();
    if (m_liste.klassenAufGetrenntenSeiten && m_row > NearlyEmpty)
      breakPage();
    if (m_row > NoRoomForClass)
      breakPage();
    printClassName(Druckschicht::End::Line);
    m_row += BehindHeading;
  }

  void printClassName(Druckschicht::End end) {
    m_druck.list().begin({QStringLiteral("Klasse")}, {m_store.cup.CupKlasseName.valueOrEmpty(m_klasse)});
    m_row += Row;
    m_druck.CurrentX = 36;
    m_druck.CurrentY = float(y());
    m_druck.FontSize = 12;
    m_druck.FontBold = true;
    m_druck.Print(m_store.cup.CupKlasseName.valueOrEmpty(m_klasse), end);
  }

  void breakPage() {
    m_druck.NewPage();
    printHead();
  }

  void continueOnNewPage(int nextPerson) {
    breakPage();
    if (m_store.cup.CupKlasse[nextPerson] != m_klasse)
      return;
    printClassName(Druckschicht::End::Continued);
    m_druck.FontBold = false;
    m_druck.Print(QStringLiteral("  - Fortsetzung"));
    m_row += BehindHeading;
  }

  void printRow(int person, int place) {
    const CupRow row{person, place, LaeuferLesen(m_store, m_store.cup.CupLaeufer[person])};
    printCell(m_druck, column(Rang), row, y());
    m_druck.FontBold = false;
    m_druck.list().add(cellTexts(m_person, row) + cellTexts(m_columns.columns(), row));
    printNameAndClub(row);
    printCell(m_druck, column(Jahrgang), row, y());
    m_columns.printRounds(row, y());
    m_druck.DrawWidth = 2;
    m_druck.Box(23, y() + 2 - 2.4, 272, y() + 2 + 1.6 + RowHeight * (m_columns.lines() - 1), FrameColor);
  }

  // In one line both share the room.
  void printNameAndClub(const CupRow &row) {
    const QString name = cellText(column(Name), row), club = cellText(column(Club), row);
    m_druck.FontSize = column(Name).groesse;
    if (m_columns.lines() == 1)
      return printInOneLine(name, club.left(std::max(0, NameAndClub - int(name.size()))));
    Zelle(m_druck, column(Name).zelleX, y(), name);
    Zelle(m_druck, column(Club).zelleX, y() + CupColumns::SecondLine, club.left(NameAndClub));
  }

  void printInOneLine(const QString &name, const QString &club) {
    m_druck.CurrentX = float(column(Name).zelleX);
    m_druck.CurrentY = float(y());
    m_druck.Print(name, Druckschicht::End::Continued);
    if (!club.isEmpty())
      m_druck.Print(QStringLiteral(", ") + club, Druckschicht::End::Continued);
    m_druck.Print(QStringLiteral(" "));
  }

  void printHead() {
    ++m_page;
    m_row = 0;
    printTitle();
    m_druck.FontBold = false;
    text(260, 12, 8, QStringLiteral("Seite -") + plainText(m_page));
    text(260, 25, 7, shortDate(m_store.umgebung.heute()));
    m_druck.DrawWidth = 5;
    Rahmen(m_druck, 20, 10, 275, 30);
    m_druck.DrawWidth = 1;
    m_druck.FontItalic = false;
    LogoDrucken(m_druck, 205, 11);
    m_druck.FontSize = 11;
    m_druck.list().columns = recorded(m_person + m_columns.columns());
    printHeads(m_druck, m_person, HeadY);
    m_columns.printHeads(HeadY);
  }

  void printTitle() {
    const QString title = QStringLiteral("Ergebnisliste ") + m_liste.bezeichnung;
    m_druck.FontName = QStringLiteral("Arial");
    m_druck.FontBold = m_druck.FontItalic = true;
    TitelAnpassen(m_druck, title, 190);
    Zelle(m_druck, 22, 15, title);
  }

  void text(double x, double top, double size, const QString &what) {
    m_druck.FontSize = size;
    Zelle(m_druck, x, top, what);
  }

  const Store &m_store;
  Druckschicht &m_druck;
  const CupListe &m_liste;
  QList<int> m_persons;
  CupSpalten m_person;
  CupColumns m_columns;
  CupPlatz m_places;
  int m_klasse = -1, m_page = 0;
  /// Tenths of a row.
  int m_row = 0;
};

} // namespace

void Cupliste(const Store &store, Druckschicht &druck, const CupListe &liste) {
  druck.Orientation = Druckschicht::Landscape;
  druck.ScaleMode = Druckschicht::Scale::Millimetres;
  druck.DocName(QStringLiteral("Cupliste"), 0, QStringLiteral("Cupliste ") + liste.bezeichnung);
  CupPrinter(store, druck, liste).printPersons();
  druck.EndDoc();
  druck.Orientation = Druckschicht::Portrait; // the other lists assume it
}
