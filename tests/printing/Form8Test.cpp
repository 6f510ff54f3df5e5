#include "printing/Form8.h"

#include "core/Classes.h"
#include "support/FakePrinters.h"
#include "support/ScreenTest.h"

#include <QComboBox>
#include <QFileInfo>
#include <QMessageBox>
#include <QTimer>

namespace {

struct Form8Test : ScreenTest<Form8> {
  Form8Test() {
    const int club = test.addClub("SK Übelbach"), other = test.addClub("TV");
    test.addRace("Riesentorlauf");
    for (const auto &[name, seconds, from] :
         {std::tuple("BERGER Anna", 40, club), std::tuple("ÖLLINGER Karl", 38, other),
          std::tuple("MOSER Hans", 41, club), std::tuple("STEINER Eva", 42, club)})
      store.Teilnehmer[test.enter(test.addAthlete(name, 1990, 1, from), 11)].Zeit1 = seconds;
    store.Teilnehmer[4].Status1 = 3;
    KlassenZuordnen(store);
  }
  void open() { ScreenTest::open(*fake.printers); }
  int choice(const char *combo) { return find<QComboBox>(combo)->currentIndex(); }
  void pick(const char *combo, int index) {
    find(combo)->setFocus();
    key(Qt::Key_Home);
    for (int i = 0; i < index; ++i)
      key(Qt::Key_Down);
  }
  /// Whether the last document has that text.
  bool printed(const char *text) { return asText(fake.documents.last()).join(u'\n').contains(text); }

  FakePrinters fake;
};

} // namespace

TEST_F(Form8Test, OpensWithTheStoredChoicesAndTheRankedParticipants) {
  store.KlasseGenauName.fill("Herren");
  store.Rennen.UrkundeBild = 9;
  store.Rennen.BestzeitText = 3;
  store.Rennen.BestzeitAbKlasse = 17;
  open();
  ASSERT_EQ(lines("List2").size(), 3);
  EXPECT_EQ(lines("List2")[0], QString("   1. ÖLLINGER Karl             Herren").leftJustified(64) + u'2');
  EXPECT_TRUE(choice("Combo1") == 0 && choice("Combo2") == 3 && choice("Combo4") == 17);
  EXPECT_EQ(store.Rennen.UrkundeBild, 9) << "a choice beyond the list stays until a pick";
  pick("Combo1", 2);
  pick("Combo4", 5);
  press("Command1");
  store.RennenIdx = 1;
  RennenLesen(store);
  open();
  EXPECT_TRUE(choice("Combo1") == 2 && choice("Combo2") == 3 && choice("Combo4") == 5);
}

// The club filter takes the chosen club, and nobody without a choice.
TEST_F(Form8Test, EachButtonPrintsItsDocumentAndIsUsableAgain) {
  open();
  for (const auto &[button, document] :
       {std::pair("Command3", "Ergebnisliste"), std::pair("Command4", "Teilnehmerliste"),
        std::pair("Command9", "Alphabetische Teilnehmerliste"), std::pair("Command2", "Startliste 2.Durchgang"),
        std::pair("Command7", "Nicht in der Wertung"), std::pair("Command8", "Titelblatt")}) {
    press(button);
    EXPECT_EQ(fake.documents.last().name, document);
    EXPECT_TRUE(find(button)->isEnabled());
    EXPECT_EQ(label("letzteDatei"), QLatin1String(document) + QString(".pdf"));
  }
  press("Check1");
  press("Command3");
  EXPECT_FALSE(printed("MOSER"));
  pick("Combo3", 0);
  press("Command3");
  EXPECT_TRUE(printed("|Ergebnisliste SK Übelbach|") && printed("MOSER") && !printed("ÖLLINGER"));
}

TEST_F(Form8Test, CertificatesOfTheMarkedLinesEachADocumentUntilThePrinterRefuses) {
  open();
  clickLine("List2", 0);
  clickLine("List2", 2);
  press("Command5");
  EXPECT_TRUE(printed("MOSER Hans") && printed("belegte den"));
  EXPECT_EQ(fake.documents.last().title, "Riesentorlauf – Urkunde – MOSER Hans");
  EXPECT_EQ(label("dateiTitel"), "2 Dateien, die letzte");
  press("Check2");
  type("Text2", "Meisterschaft");
  press("Command5");
  EXPECT_TRUE(printed("Meisterschaft") && !printed("belegte den"));
  EXPECT_EQ(fake.documents.size(), 4);
  fake.refuse = true;
  int reports = 0;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, [&] {
    if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
      reports += box->text().contains("Der Drucker ist nicht bereit.");
      box->accept();
    }
  });
  watch.start(1);
  press("Command5");
  press("Command2");
  EXPECT_EQ(reports, 2) << "one for each run";
  EXPECT_TRUE(find("Command2")->isEnabled());
}

TEST_F(Form8Test, TellsWhereTheFileIsAndWhichPictureIsMissing) {
  test.writeFile("werbung1.jpg", "no picture");
  Werbung werbung = loadBanners(store);
  werbung[0].chosen = true;
  saveBanners(store, werbung);
  open();
  EXPECT_FALSE(shown("ausgabe"));
  press("Command8");
  EXPECT_EQ(label("dateiOrdner").remove(QChar(0x200B)), QFileInfo("Ausdrucke").absoluteFilePath());
  EXPECT_TRUE(label("bilderFehlen").endsWith("fehlt: werbung1.jpg"));
  press("Command3");
  EXPECT_FALSE(shown("bilderFehlen"));
}

TEST_F(Form8Test, ClosingWritesTheBannersOfATitlePageAndNoRaceZero) {
  const QByteArray before = test.file("Rennen.rec");
  store.AktRennen = 0;
  open();
  pick("Combo1", 3);
  press("Command8");
  EXPECT_FALSE(test.hasFile("werbung.dat"));
  form->close();
  EXPECT_TRUE(test.hasFile("werbung.dat"));
  EXPECT_EQ(test.file("Rennen.rec"), before);
}
