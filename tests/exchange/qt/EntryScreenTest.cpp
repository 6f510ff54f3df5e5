#include "exchange/qt/EntryScreen.h"

#include "support/ScreenTest.h"

#include <QComboBox>
#include <QSignalSpy>
#include <QTableView>

namespace {

struct EntryScreenTest : ScreenTest<EntryScreen> {
  EntryScreenTest() {
    test.addClub("SC Eins");
    test.addAthlete("HUBER Anna", 2012, 0, 1);
    test.addRace("Ortslauf");
  }
  void read(const char *csv) { show(std::make_unique<EntryScreen>(desk, store, tableFrom(csv, "M.csv"), true)); }
  QString words(int line) { return find<QTableView>("vorschau")->model()->index(line, 1).data().toString(); }
  void choose(const char *combo, int item) {
    find<QComboBox>(combo)->setCurrentIndex(item);
    Q_EMIT find<QComboBox>(combo)->activated(item);
  }
};

} // namespace

TEST_F(EntryScreenTest, DoubtfulLinesAndUnknownClubsWaitForAnAnswer) {
  read("Name;Jg;Verein\nHuber Ana;2012;SC Eins\nNeu Udo;2011;SC Drei\nAlt Ida;2010;SC Vier\n;;SC Eins\n");
  EXPECT_FALSE(enabled("uebernehmen"));
  EXPECT_TRUE(words(0).startsWith("? fast gleich"));
  press("dieselbe");
  find<QTableView>("vorschau")->selectRow(1);
  EXPECT_TRUE(enabled("verein") && !enabled("dieselbe"));
  choose("verein", 2); // the first of the register
  press("alleVereine");
  EXPECT_EQ(words(1) + words(2), QString("+ neu, kommt in das Rennen").repeated(2));
  EXPECT_TRUE(label("zusammen").contains("3: 2 neu, 1 aus dem Register. Neue Vereine: 1. Weg bleiben: 1."))
      << label("zusammen").toStdString();
  const QSignalSpy taken(form.get(), &EntryScreen::takenOver);
  press("uebernehmen");
  EXPECT_EQ(taken.count(), 1);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(store.LaeuferAnzahl, 3);
  EXPECT_EQ(LaeuferLesen(store, 2).Verein1, 1);
  EXPECT_EQ(store.VereinAnzahl, 2);
  EXPECT_EQ(store.Teilnehmer[3].LaeuferNr, 3);
}

TEST_F(EntryScreenTest, ColumnsAreCorrectedAndEscLeavesAllAsItWas) {
  read("a;b;c\nNeu;Udo;2012\n");
  EXPECT_FALSE(find<QComboBox>("spalte1")->currentText() == "Vorname");
  choose("spalte2", int(ColumnKind::Family));
  choose("spalte1", int(ColumnKind::First));
  press("ueberschrift");
  EXPECT_EQ(find<QTableView>("vorschau")->model()->index(0, 2).data().toString(), "UDO Neu");
  key(Qt::Key_Escape);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(store.LaeuferAnzahl, 1);
}
