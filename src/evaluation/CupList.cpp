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
constexpr double HeadY = 32, PageEnd = 160, LineHeight = 4;
// Lines are counted in tenths: a heading takes 2.7 of them.
constexpr int Line = 10, BehindHeading = 17, NearlyEmpty = 100, NoRoomForClass = 300, LastLine = 380;

QList<int> personsOf(const QStringList &keys) {
  QList<int> persons;
  for (const QString &key : keys)
    persons.append(numberAtEnd(key));
  return persons;
}

class CupPrinter {
public:
  CupPrinter(const Store &store, Druckschicht &druck, const CupPrint &print)
      : m_store(store), m_druck(druck), m_print(print), m_persons(personsOf(print.keys)),
        m_person(cupPersonColumns(store)), m_columns(store, druck, m_persons) {
    printHead();
  }

  void printPersons() {
    for (qsizetype i = 0; i < m_persons.size(); ++i) {
      printPerson(m_persons[i]);
      if (m_line > LastLine && double(m_druck.CurrentY) > PageEnd && i + 1 < m_persons.size())
        continueOnNewPage(m_persons[i + 1]);
    }
  }

private:
  const Column<CupLine> &column(PersonColumn which) const { return m_person[which]; }
  double y() const { return 40 + m_line * LineHeight / Line; }

  void printPerson(int person) {
    if (m_store.cup.CupKlasse[person] != m_klasse)
      startClass(m_store.cup.CupKlasse[person]);
    printLine(person, m_places.next(m_store.cup.CupPunkte(person, 0)));
    m_line += Line * m_columns.lines();
  }

  void startClass(int klasse) {
    m_klasse = klasse;
    m_places.beginClass();
    if (m_print.classesOnSeparatePages && m_line > NearlyEmpty)
      breakPage();
    if (m_line > NoRoomForClass)
      breakPage();
    printClassName(Druckschicht::End::Line);
    m_line += BehindHeading;
  }

  void printClassName(Druckschicht::End end) {
    m_druck.list().begin({QStringLiteral("Klasse")}, {m_store.cup.CupKlasseName.valueOrEmpty(m_klasse)});
    m_line += Line;
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
    m_line += BehindHeading;
  }

  void printLine(int person, int place) {
    const CupLine line{person, place, LaeuferLesen(m_store, m_store.cup.CupLaeufer[person])};
    printCell(m_druck, column(Rang), line, y());
    m_druck.FontBold = false;
    m_druck.list().add(cellTexts(m_person, line) + cellTexts(m_columns.columns(), line));
    printNameAndClub(line);
    printCell(m_druck, column(Jahrgang), line, y());
    m_columns.printRounds(line, y());
    m_druck.DrawWidth = 2;
    m_druck.Box(23, y() + 2 - 2.4, 272, y() + 2 + 1.6 + LineHeight * (m_columns.lines() - 1), FrameColor);
  }

  // In one line both share the room.
  void printNameAndClub(const CupLine &line) {
    const QString name = cellText(column(Name), line), club = cellText(column(Club), line);
    m_druck.FontSize = column(Name).size;
    if (m_columns.lines() == 1)
      return printInOneLine(name, club.left(std::max(0, NameAndClub - int(name.size()))));
    printItemAt(m_druck, column(Name).cellX, y(), name);
    printItemAt(m_druck, column(Club).cellX, y() + CupColumns::SecondLine, club.left(NameAndClub));
  }

  void printInOneLine(const QString &name, const QString &club) {
    m_druck.CurrentX = float(column(Name).cellX);
    m_druck.CurrentY = float(y());
    m_druck.Print(name, Druckschicht::End::Continued);
    if (!club.isEmpty())
      m_druck.Print(QStringLiteral(", ") + club, Druckschicht::End::Continued);
    m_druck.Print(QStringLiteral(" "));
  }

  void printHead() {
    ++m_page;
    m_line = 0;
    printTitle();
    m_druck.FontBold = false;
    text(260, 12, 8, QStringLiteral("Seite -") + plainText(m_page));
    text(260, 25, 7, shortDate(m_store.umgebung.today()));
    m_druck.DrawWidth = 5;
    Rahmen(m_druck, 20, 10, 275, 30);
    m_druck.DrawWidth = 1;
    m_druck.FontItalic = false;
    printLogo(m_druck, 205, 11);
    m_druck.FontSize = 11;
    m_druck.list().columns = recorded(m_person + m_columns.columns());
    printHeads(m_druck, m_person, HeadY);
    m_columns.printHeads(HeadY);
  }

  void printTitle() {
    const QString title = QStringLiteral("Ergebnisliste ") + m_print.name;
    m_druck.FontName = QStringLiteral("Arial");
    m_druck.FontBold = m_druck.FontItalic = true;
    fitTitle(m_druck, title, 190);
    printItemAt(m_druck, 22, 15, title);
  }

  void text(double x, double top, double size, const QString &what) {
    m_druck.FontSize = size;
    printItemAt(m_druck, x, top, what);
  }

  const Store &m_store;
  Druckschicht &m_druck;
  const CupPrint &m_print;
  QList<int> m_persons;
  CupListColumns m_person;
  CupColumns m_columns;
  CupPlaces m_places;
  int m_klasse = -1, m_page = 0;
  /// Tenths of a line.
  int m_line = 0;
};

} // namespace

void Cupliste(const Store &store, Druckschicht &druck, const CupPrint &print) {
  druck.Orientation = Druckschicht::Landscape;
  druck.ScaleMode = Druckschicht::Scale::Millimetres;
  druck.DocName(QStringLiteral("Cupliste"), 0, QStringLiteral("Cupliste ") + print.name);
  CupPrinter(store, druck, print).printPersons();
  druck.EndDoc();
  druck.Orientation = Druckschicht::Portrait; // the other lists assume it
}
