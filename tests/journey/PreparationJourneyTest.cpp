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
constexpr int Count = std::size(Athletes);

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
    storeStarten(*store);
    start(*store);
  }
  void open(const char *button, const char *screen) {
    arriveAt("Form4");
    press("Form4", button);
    arriveAt(screen);
  }

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
    press("Form1", "Command2");
    arriveAt("Form2");
    enterClub("SC Alm");
    for (const char *club : {"TV Berg", "Union Öd"}) {
      key(Qt::Key_Space);
      enterClub(club);
    }
    window("Form2")->close();
    press("Form1", "Command1");
    arriveAt("Form3");
    enterAthlete(Athletes[0]);
    for (int i = 1; i < Count; ++i) {
      key(Qt::Key_Space);
      enterAthlete(Athletes[i]);
    }
    window("Form3")->close();
  }

  // The first race is open as number 0, with a beep at each look at it, until one comes back from the menu; it is
  // meant.
  void createRace() {
    press("Form1", "Command3");
    arriveAt("Form4");
    tabTo("Text2");
    type("Vereinslauf");
    press("Form4", "Command7");
    EXPECT_EQ(lines("Form4", "List1"), QStringList{" 1    Vereinslauf"});
    EXPECT_EQ(store->AktRennen, 0);
    press("Form4", "Command1");
    press("Form1", "Command3");
    EXPECT_EQ(store->AktRennen, 1);
    test.beeps = 0;
  }
  void makeUpField() {
    open("Command4", "Form5");
    for (int i = 0; i < Count; ++i)
      keys({Qt::Key_Down, Qt::Key_Tab, Qt::Key_Space});
    press("Form5", "Command1");
  }
  // A first race has no criteria to inherit: it is by groups and by points until then.
  void chooseCriteriaAndClasses() {
    open("Command14", "Form14");
    press("Form14", {"Check1", "Check3", "Check4", "Check6", "Command1"});
    open("Command13", "Form10");
    press("Form10", {"Command2", "Command3", "Command1"});
  }

  void clickCells(std::initializer_list<const char *> cells) {
    for (const char *cell : cells)
      QTest::mouseClick(control<QLabel>("Form15", cell), Qt::LeftButton);
  }
  // "Schüler U14" w and m, "Schüler U15" m merged with the latter; "Allg. Kl." w, m, G-w, G-m; "AK 1" w; "AK 2" m.
  void orderClasses() {
    open("Command15", "Form15");
    clickCells({"Label3_64", "Label3_65", "Label3_73"});
    tabTo("Text2");
    type("2");
    press("Form15", "Command2");
    clickCells({"Label3_104", "Label3_105", "Label3_106", "Label3_107", "Label3_112", "Label3_121"});
    press("Form15", "Command1");
  }

  void chooseTeamsAndGuests() {
    open("Command10", "Form11");
    type("1");
    for (const char *team : {"Die Schnellen", "Die Älteren"}) {
      key(Qt::Key_Return);
      type(team);
      key(Qt::Key_Return);
    }
    press("Form11", "Command4");
    open("Command5", "Form6");
    for (int i = 0; i < Count; ++i) {
      chooseLine("Form6", "List1", i); // no numbers yet: by name
      tabTo("Combo3");
      chooseEntry(Athletes[i].team);
      tabTo("Check1");
      if (Athletes[i].guest)
        key(Qt::Key_Space);
    }
    press("Form6", "Command1");
  }
  // On the screen opened anew, so that the guests stand in their classes.
  void drawNumbers() {
    open("Command5", "Form6");
    tabTo("Command2");
    keys({Qt::Key_Space, Qt::Key_Tab});
    type("3");
    keys({Qt::Key_Tab, Qt::Key_Space});
    press("Form6", "Command1");
  }
  void typeTimes() {
    open("Command6", "Form7");
    for (const auto &[startNr, number] : Numbers) {
      key(Qt::Key_Down);
      EXPECT_EQ(control<QLabel>("Form7", "Label5")->text().toInt(), startNr);
      type(number.time);
      key(Qt::Key_Return);
    }
    press("Form7", "Command3");
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
  window("Form4")->close();
  QTimer::singleShot(0, [this] { press("Form1", "Command4"); });
  QApplication::exec();
  EXPECT_EQ(test.beeps, 0);

  startOnFolder();
  press("Form1", "Command3");
  open("Command6", "Form7");
  expectField();
  EXPECT_EQ(store->VereinAnzahl, 3);
  EXPECT_EQ(store->LaeuferAnzahl, Count);
  EXPECT_EQ(store->KlasseVon[14], 1996);
  EXPECT_EQ(store->KlasseBis[14], 2004);
  EXPECT_EQ(store->MannschaftName[2], "Die Älteren");
}
