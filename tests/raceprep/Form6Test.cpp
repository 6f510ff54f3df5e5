#include "raceprep/Form6.h"

#include "support/ScreenTest.h"

#include <QCheckBox>
#include <QComboBox>

namespace {

class Form6Test : public ScreenTest<Form6> {
protected:
  Form6Test() {
    store.VereinIdx = test.addClub(QStringLiteral("SC Alm"));
    test.addRace(QStringLiteral("Lauf"));
    store.MannschaftName[3] = QStringLiteral("Rot");
    store.KlasseName[2] = QStringLiteral("Schüler");
  }

  /// Participants in rows 1 to `count` with their row as number, in class 2.
  void enter(int count, bool numbered = true) {
    for (int row = 1; row <= count; ++row) {
      test.enter(test.addAthlete(QStringLiteral("LÄUFER %1").arg(row, 3), 2000 + row % 2, row % 2, 1),
                 numbered ? row : 0);
      store.Teilnehmer[row].KlasseNr = 2;
    }
  }
  QComboBox *combo(const char *name) { return find<QComboBox>(name); }
  QColor ground(const char *name, QPalette::ColorRole role) { return find(name)->palette().color(role); }
};

} // namespace

TEST_F(Form6Test, SelectionShowsTheParticipantAndKeysStoreHim) {
  enter(2);
  store.Teilnehmer[1].MannschaftNr = 3;
  store.Teilnehmer[2].MannschaftNr = 300; // not in the list
  store.Teilnehmer[1].KlasseGenau = 9;
  store.KlasseGenauName[9] = QStringLiteral("Schüler m");
  open();
  EXPECT_FALSE(shown("Combo1") || shown("Check1") || find("Text1")->isEnabled());
  key(Qt::Key_Down);
  EXPECT_EQ(label("Label2"), QStringLiteral("LÄUFER   1"));
  EXPECT_EQ(label("Label6") + label("Label8") + label("Label16") + label("Label13"),
            QStringLiteral("12001SchülerSchüler m"));
  EXPECT_EQ(ground("Label2", QPalette::Window), QColor(0xC0FFFF));
  EXPECT_EQ(combo("Combo3")->currentText(), QStringLiteral("Rot"));
  QStringList clubs;
  for (int i = 0; i < combo("Combo1")->count(); ++i)
    clubs.append(combo("Combo1")->itemText(i));
  EXPECT_EQ(clubs.join(QLatin1Char(',')), QStringLiteral("???,SC Alm,nicht belegt,nicht belegt,kein Verein"));
  key(Qt::Key_Tab); // start number
  QTest::keyClicks(find("Text1"), QStringLiteral("007"));
  key(Qt::Key_Tab);
  EXPECT_EQ(store.Teilnehmer[1].StartNr, 7);
  EXPECT_EQ(lines("List1").last(), QStringLiteral("    7  LÄUFER   1          1"));
  EXPECT_EQ(find<LineList>("List1")->chosenLine(), 1);
  key(Qt::Key_Tab);
  key(Qt::Key_End); // kein Verein
  for (int field = 0; field < 3; ++field)
    key(Qt::Key_Tab);
  key(Qt::Key_Space); // Gast
  key(Qt::Key_Tab);
  EXPECT_EQ(store.Teilnehmer[1].VereinNr, 4);
  EXPECT_EQ(store.Teilnehmer[1].Gast, 1);
  clickLine("List1", 0);
  combo("Combo3")->setFocus();
  form->close();
  EXPECT_EQ(store.Teilnehmer[2].MannschaftNr, 300);
  EXPECT_TRUE(test.file(QStringLiteral("R 1.dat")).startsWith(" 1 \r\n 7 \r\n 2 \r\n 4 \r\n"));
}

TEST_F(Form6Test, NumberInUseIsRedAndDropped) {
  enter(3);
  open();
  clickLine("List1", 0);
  for (const auto &[typed, ground_, stored] : {std::tuple{"3", 0xFF0000, 1},
                                               {"1", 0xFF0000, 1},
                                               {"0", 0xFF0000, 1},
                                               {"40000", 0xFF0000, 1},
                                               {"-5", 0xC0FFC0, -5}}) {
    type("Text1", typed);
    press("Command5");
    EXPECT_EQ(ground("Text1", QPalette::Base), QColor(QRgb(ground_))) << typed;
    EXPECT_EQ(store.Teilnehmer[1].StartNr, stored) << typed;
  }
  EXPECT_EQ(test.beeps, 1);
}

TEST_F(Form6Test, LineAimedAtIsChosenThoughTheNumberMovesIt) {
  enter(200);
  open();
  auto *list = find<LineList>("List1");
  clickLine("List1", 0);
  type("Text1", "999");
  list->scrollTo(list->model()->index(150, 0));
  const int aimed = list->indexAt({5, list->viewport()->height() / 2}).row();
  clickLine("List1", aimed);
  EXPECT_EQ(store.Teilnehmer[1].StartNr, 999);
  EXPECT_EQ(label("Label6"), QString::number(aimed + 1));
}

TEST_F(Form6Test, FlagsAfterTheDrawGoToTheRowBehindTheLastLine) {
  enter(4, false);
  store.Teilnehmer[4].LaeuferNr = test.addAthlete(QString(), 2000, 1);
  open();
  clickLine("List1", 0);
  press("Command2");
  type("Text2", "40000");
  press("Command3");
  EXPECT_EQ(test.beeps, 1);
  EXPECT_EQ(store.Teilnehmer[1].StartNr, 0);
  EXPECT_FALSE(shown("Command2") || shown("Text2"));
  open();
  clickLine("List1", 0);
  press("Command2");
  press("Command3");
  EXPECT_TRUE(find("List1")->hasFocus());
  EXPECT_EQ(lines("List1").size(), 3);
  EXPECT_EQ(lines("List1")[2].left(7), QStringLiteral("    3  "));
  press("Check2");
  combo("Combo4")->setFocus();
  QTest::keyClick(combo("Combo4"), Qt::Key_Down);
  press("Command5");
  EXPECT_EQ(store.Teilnehmer[3].Bezahlt, 1); // the row of the counter, seen from 0
  EXPECT_EQ(store.Teilnehmer[1].GruppeNr, 1);
}

TEST_F(Form6Test, ClassRunByKeysAndDeletion) {
  enter(3, false);
  store.Teilnehmer[60].StartNr = 9;
  open();
  EXPECT_FALSE(find("Command6")->isEnabled());
  find("Command9")->setFocus();
  key(Qt::Key_Return);
  EXPECT_TRUE(shown("Combo2") && shown("Text3") && shown("Text2") && !shown("Command11"));
  EXPECT_EQ(combo("Combo2")->currentIndex(), -1);
  key(Qt::Key_Tab);
  key(Qt::Key_Down);
  key(Qt::Key_Down); // row 2
  EXPECT_TRUE(shown("Command11"));
  key(Qt::Key_Tab);
  QTest::keyClicks(find("Text3"), QStringLiteral("100"));
  key(Qt::Key_Tab);
  key(Qt::Key_Return);
  EXPECT_FALSE(shown("Combo2") || shown("Command10"));
  EXPECT_EQ(lines("List1")[0], QStringLiteral("  100  LÄUFER   1          1"));
  press("Command1");
  open();
  press("Command6");
  press("Command7");
  EXPECT_TRUE(!find("Command6")->isEnabled() && !shown("Command7") && find("List1")->hasFocus());
  EXPECT_EQ(store.Teilnehmer[3].StartNr + store.Teilnehmer[60].StartNr, 0);
}

TEST_F(Form6Test, OnTopOfTheParticipantList) {
  enter(3);
  store.Rennen.WertKlassen = 0;
  open();
  EXPECT_EQ(find<QAbstractButton>("Command9")->text(), QStringLiteral("Nummern für best. Gruppen"));
  form->teilnehmerWaehlen(2);
  EXPECT_EQ(label("Label6"), QStringLiteral("2"));
  EXPECT_FALSE(shown("Label16") || shown("Label13") || shown("Label5") || shown("Label14"));
  find("Check1")->setFocus();
  desk.guard().flush(form.get());
  store.Teilnehmer[2] = store.Teilnehmer[3];
  store.Teilnehmer[3] = {};
  form->zeilenVerschoben();
  EXPECT_EQ(label("Label2"), QStringLiteral("bitte Teilnehmer anklicken !"));
  EXPECT_EQ(label("Label6"), QString());
  EXPECT_FALSE(find("Text1")->isEnabled() || shown("Check1") || shown("Combo1"));
  EXPECT_EQ(lines("List1").size(), 2);
  EXPECT_EQ(find<LineList>("List1")->chosenLine(), -1);
}
