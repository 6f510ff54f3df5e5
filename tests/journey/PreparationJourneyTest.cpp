#include "support/RoofTest.h"

#include <QLabel>
#include <QTimer>

#include <map>

namespace {

/// What is typed of an athlete, what is chosen for his start, and his class's number in the order.
struct Athlete {
  const char *name, *born;
  bool male;
  int club, team;
  bool guest;
  int order;
};

// A year from 1998 to 2004 stands in no class, and 1986 to 1988 in two, until the classes are put in order.
constexpr Athlete Athletes[] = {
    {"ADAM Lena", "1.2.2012", false, 1, 1, false, 1},  {"BERG Max", "13.04.2012", true, 1, 0, false, 2},
    {"CERNY Ida", "5.12.2012", false, 2, 1, false, 1}, {"DORN Uwe", "31.12.2011", true, 2, 0, false, 2},
    {"EDER Nora", "29.2.2012", false, 3, 1, false, 1}, {"FUCHS Lea", "01.01.1996", false, 3, 0, false, 3},
    {"GRUBER Jan", "7.7.1999", true, 1, 2, false, 4},  {"HAAS Ben", "31.12.2004", true, 2, 2, false, 4},
    {"IRL Paul", "31.12.1985", true, 3, 0, false, 8},  {"JOST Eva", "1.1.1986", false, 1, 0, false, 7},
    {"KERN Tom", "08.08.2000", true, 0, 0, true, 6},   {"LÄNDER Sara", "9.9.2001", false, 0, 0, true, 5},
};
constexpr int Count = std::size(Athletes), Columns = 8; // of the grid of classes

/// A start number falls to somebody of its class, whoever draws it, with this time and place.
struct Number {
  int order;
  const char *time;
  int place;
};
const std::map<int, Number> Numbers = {{1, {1, "61.5", 3}},  {2, {1, "60,93", 2}},  {3, {1, "60.9", 1}},
                                       {7, {2, "58", 2}},    {8, {2, "57,99", 1}},  {12, {3, "55", 1}},
                                       {16, {4, "51.2", 1}}, {17, {4, "51,20", 1}}, {21, {5, "59", 1}},
                                       {25, {6, "52.5", 1}}, {29, {7, "64", 1}},    {33, {8, "70,01", 1}}};

struct PreparationJourneyTest : RoofTest {
  ~PreparationJourneyTest() override { programm.reset(); }

  void startOnFolder() {
    programm.reset();
    store = std::make_unique<Store>(test.umgebung);
    store->DatenOrdner = folder.path() + u'/';
    startStore(*store);
    start(*store);
  }
  /// Without the mouse, as all that is done here.
  void press(const char *button) {
    tabTo(button);
    key(Qt::Key_Space);
  }
  void open(const char *button, const char *screen) {
    press(button);
    arriveAt(screen);
  }
  void close(const char *button, const char *opener = "Form4") { open(button, opener); }

  void enterClub(const char *name) {
    tabTo("Text2");
    type(name);
    key(Qt::Key_Tab);
    type(name);
    tabTo("Command3");
  }
  void enterAthlete(const Athlete &athlete) {
    tabTo("Text2");
    type(athlete.name);
    key(Qt::Key_Tab);
    type(athlete.born);
    tabTo("Option1");
    key(athlete.male ? Qt::Key_Space : Qt::Key_Right);
    tabTo("Combo1");
    chooseEntry(athlete.club);
    tabTo("Command3");
  }
  void chooseEntry(int entry) {
    for (int i = 0; i < entry; ++i)
      key(Qt::Key_Down);
  }
  void fillRegisters() {
    arriveAt("Form1");
    open("Command2", "Form2");
    enterClub("SC Alm");
    for (const char *club : {"TV Berg", "Union Öd"}) {
      key(Qt::Key_Space);
      enterClub(club);
    }
    close("Command1", "Form1");
    open("Command1", "Form3");
    enterAthlete(Athletes[0]);
    for (int i = 1; i < Count; ++i) {
      key(Qt::Key_Space);
      enterAthlete(Athletes[i]);
    }
    close("Command1", "Form1");
  }

  // The first race is open as number 0, with a beep at each look at it, until one comes back from the menu; it is
  // meant.
  void createRace() {
    open("Command3", "Form4");
    tabTo("Text2");
    type("Vereinslauf");
    press("Command7");
    EXPECT_EQ(lines("Form4", "List1"), QStringList{QStringLiteral(" 1    Vereinslauf")});
    EXPECT_EQ(store->AktRennen, 0);
    close("Command1", "Form1");
    open("Command3", "Form4");
    EXPECT_EQ(store->AktRennen, 1);
    test.beeps = 0;
  }
  void makeUpField() {
    open("Command4", "Form5");
    for (int i = 0; i < Count; ++i)
      keys({Qt::Key_Down, Qt::Key_Tab, Qt::Key_Space});
    close("Command1");
  }
  // A first race has no criteria to inherit: it is by groups and by points until then.
  void chooseCriteriaAndClasses() {
    open("Command14", "Form14");
    for (const char *check : {"Check1", "Check3", "Check4", "Check6"})
      press(check);
    close("Command1");
    open("Command13", "Form10");
    press("Command2");
    press("Command3");
    close("Command1");
  }

  int cell() { return QApplication::focusWidget()->objectName().section(QLatin1Char('_'), 1).toInt(); }
  void pressCells(std::initializer_list<int> cells) {
    for (const int wanted : cells) {
      for (int steps = 0; cell() != wanted; ++steps) {
        ASSERT_LT(steps, 40) << wanted << " is not reached by the arrow keys";
        const bool otherRow = cell() / Columns != wanted / Columns;
        key(otherRow ? Qt::Key_Down : cell() < wanted ? Qt::Key_Right : Qt::Key_Left);
      }
      key(Qt::Key_Space);
    }
  }
  // "Schüler U14" w and m, "Schüler U15" m merged with the latter; "Allg. Kl." w, m, G-w, G-m; "AK 1" w; "AK 2" m.
  void orderClasses() {
    open("Command15", "Form15");
    pressCells({64, 65, 73});
    tabTo("Text2");
    type("2");
    press("Command2");
    tabTo("Label3_73");
    pressCells({104, 105, 106, 107, 112, 121});
    close("Command1");
  }

  void chooseTeamsAndGuests() {
    open("Command10", "Form11");
    type("1");
    for (const char *team : {"Die Schnellen", "Die Älteren"}) {
      key(Qt::Key_Return);
      type(team);
      key(Qt::Key_Return);
    }
    close("Command4");
    open("Command5", "Form6");
    for (int i = 0; i < Count; ++i) {
      tabTo("List1");
      key(Qt::Key_Home); // no numbers yet: by name
      for (int line = 0; line < i; ++line)
        key(Qt::Key_Down);
      tabTo("Combo3");
      chooseEntry(Athletes[i].team);
      tabTo("Check1");
      if (Athletes[i].guest)
        key(Qt::Key_Space);
    }
    close("Command1");
  }
  // On the screen opened anew, so that the guests stand in their classes.
  void drawNumbers() {
    open("Command5", "Form6");
    tabTo("Command2");
    keys({Qt::Key_Space, Qt::Key_Tab});
    type("3");
    keys({Qt::Key_Tab, Qt::Key_Space});
    close("Command1");
  }
  void typeTimes() {
    open("Command6", "Form7");
    for (const auto &[startNr, number] : Numbers) {
      key(Qt::Key_Down);
      EXPECT_EQ(control<QLabel>("Form7", "Label5")->text().toInt(), startNr);
      type(number.time);
      key(Qt::Key_Return);
    }
    press("Check1");
    ASSERT_EQ(visible(), "Form13 Form7");
    QTest::keyClick(window("Form13"), Qt::Key_Escape);
    close("Command3");
  }
  // The other printer by Enter, the list by its key, certificates of the first and the third.
  void print() {
    open("Command8", "Form8");
    open("Command6", "Form28");
    keys({Qt::Key_Down, Qt::Key_Down, Qt::Key_Return});
    arriveAt("Form8");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_P, Qt::ControlModifier);
    tabTo("List2");
    keys({Qt::Key_Space, Qt::Key_Down, Qt::Key_Down, Qt::Key_Space});
    press("Command5");
    EXPECT_EQ(printers.usedPrinters, QStringList(3, QStringLiteral("Alt")));
    EXPECT_EQ(printers.documents.first().name, QStringLiteral("Ergebnisliste"));
    close("Command1");
  }

  void expectField() {
    std::map<int, int> rows;
    for (int row = 1; row <= Count; ++row) {
      const auto &[name, born, male, club, team, guest, order] = Athletes[row - 1];
      const auto &line = store->Teilnehmer[row];
      SCOPED_TRACE(name);
      EXPECT_EQ(line.LaeuferNr, row);
      EXPECT_EQ(line.VereinNr, club > 0);
      EXPECT_EQ(line.MannschaftNr, team);
      EXPECT_EQ(line.Gast, guest);
      EXPECT_EQ(line.KlasseReihe, order);
      ASSERT_TRUE(Numbers.contains(line.StartNr)) << line.StartNr;
      EXPECT_EQ(Numbers.at(line.StartNr).order, order);
      EXPECT_EQ(Numbers.at(line.StartNr).place, line.Rang);
      rows[line.StartNr] = row;
    }
    EXPECT_EQ(rows.size(), Numbers.size()); // each number once
    EXPECT_EQ(store->Teilnehmer[Count + 1].LaeuferNr, 0);
  }

  QTemporaryDir folder;
  std::unique_ptr<Store> store;
};

} // namespace

TEST_F(PreparationJourneyTest, FromAnEmptyFolderToPlacesThatLast) {
  startOnFolder();
  fillRegisters();
  createRace();
  makeUpField();
  chooseCriteriaAndClasses();
  orderClasses();
  chooseTeamsAndGuests();
  drawNumbers();
  typeTimes();
  print();
  close("Command1", "Form1");
  QTimer::singleShot(0, [this] { press("Command4"); });
  QApplication::exec();
  EXPECT_EQ(test.beeps, 0);

  startOnFolder();
  arriveAt("Form1");
  open("Command3", "Form4");
  open("Command6", "Form7");
  expectField();
  EXPECT_EQ(store->VereinAnzahl, 3);
  EXPECT_EQ(store->LaeuferAnzahl, Count);
  EXPECT_EQ(store->KlasseVon[14], 1996);
  EXPECT_EQ(store->KlasseBis[14], 2004);
  EXPECT_EQ(store->MannschaftName[2], "Die Älteren");
}
