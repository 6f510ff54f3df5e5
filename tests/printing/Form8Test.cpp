#include "printing/Form8.h"

#include "core/Classes.h"
#include "core/RecordFiles.h"
#include "platform/qt/Desk.h"
#include "platform/qt/LineList.h"
#include "support/FakePrinters.h"
#include "support/TestStore.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

class Form8Test : public testing::Test {
protected:
  Form8Test() {
    const int club = test.addClub(QStringLiteral("SK Übelbach")), other = test.addClub(QStringLiteral("TV"));
    test.addRace(QStringLiteral("Riesentorlauf"));
    addRunner(QStringLiteral("BERGER Anna"), 0, club, 40);
    addRunner(QStringLiteral("ÖLLINGER Karl"), 1, other, 38);
    addRunner(QStringLiteral("MOSER Hans"), 1, club, 41);
    addRunner(QStringLiteral("STEINER Eva"), 0, club, 42);
    test.store.Teilnehmer[4].Status1 = 3;
    KlassenZuordnen(test.store);
  }

  void addRunner(const QString &name, int sex, int club, double seconds) {
    const int row = test.enter(test.addAthlete(name, 1990, sex, club), 10 + test.store.LaeuferAnzahl);
    test.store.Teilnehmer[row].Zeit1 = seconds;
  }

  Form8 &open() {
    form = std::make_unique<Form8>(desk, test.store, *fake.printers);
    desk.show(*form);
    return *form;
  }
  template <typename Control> Control *find(const char *name) {
    return form->findChild<Control *>(QLatin1String(name));
  }
  void click(const char *button) { QTest::mouseClick(find<QWidget>(button), Qt::LeftButton); }
  void pick(const char *combo, int index) {
    auto *control = find<QComboBox>(combo);
    control->setFocus();
    QTest::keyClick(control, Qt::Key_Home);
    for (int i = 0; i < index; ++i)
      QTest::keyClick(control, Qt::Key_Down);
  }
  void mark(int line) {
    auto *list = find<MarkList>("List2");
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(list->model()->index(line, 0)).center());
  }
  static QString textOf(const Recording &recording) { return asText(recording).join(QLatin1Char('\n')); }

  TestStore test;
  FakePrinters fake;
  Desk desk{test.store.Fenster, [] {}};
  std::unique_ptr<Form8> form;
};

} // namespace

TEST_F(Form8Test, OpensInItsDesignStateWithTheRankedParticipants) {
  open();
  EXPECT_EQ(find<QLabel>("Label1")->text(), QStringLiteral("Riesentorlauf"));
  EXPECT_EQ(find<QLabel>("Label3")->text(), QStringLiteral("Laser"));
  EXPECT_EQ(find<QLineEdit>("Text2")->text(), QStringLiteral("Wintersportwoche 2015"));
  EXPECT_FALSE(find<QWidget>("Combo3")->isVisible());
  EXPECT_FALSE(find<QWidget>("Text1")->isVisible());
  EXPECT_EQ(find<QComboBox>("Combo3")->count(), 2);
  EXPECT_EQ(find<QComboBox>("Combo4")->count(), 20);
  const QStringList lines = find<MarkList>("List2")->lines();
  ASSERT_EQ(lines.size(), 3);
  EXPECT_EQ(lines[0].left(32), QStringLiteral("   1. ÖLLINGER Karl             "));
  EXPECT_EQ(lines[0].size(), 32 + 20 + 12 + 1);
  EXPECT_TRUE(lines[0].endsWith(QStringLiteral("            2")));
}

TEST_F(Form8Test, StoredChoicesBeyondTheListsStayUntilAPick) {
  test.store.Rennen.UrkundeBild = 9;
  test.store.Rennen.BestzeitText = 3;
  test.store.Rennen.BestzeitAbKlasse = 17;
  open();
  EXPECT_EQ(find<QComboBox>("Combo1")->currentIndex(), 0);
  EXPECT_EQ(find<QComboBox>("Combo2")->currentIndex(), 3);
  EXPECT_EQ(find<QComboBox>("Combo4")->currentIndex(), 17);
  EXPECT_EQ(test.store.Rennen.UrkundeBild, 9);
  pick("Combo1", 2);
  pick("Combo2", 1);
  pick("Combo4", 5);
  click("Command1");
  EXPECT_FALSE(form->isVisible());
  test.store.RennenIdx = 1;
  RennenLesen(test.store);
  EXPECT_EQ(test.store.Rennen.UrkundeBild, 2);
  EXPECT_EQ(test.store.Rennen.BestzeitText, 1);
  EXPECT_EQ(test.store.Rennen.BestzeitAbKlasse, 5);
}

TEST_F(Form8Test, EachButtonPrintsItsDocumentAndIsUsableAgain) {
  open();
  const struct {
    const char *button, *document, *content;
  } cases[] = {{"Command3", "Ergebnisliste", "ÖLLINGER"},
               {"Command4", "Teilnehmerliste", "STEINER"},
               {"Command9", "Alphabetische Teilnehmerliste", "STEINER"},
               {"Command2", "Startliste 2.Durchgang", "STEINER"},
               {"Command7", "Nicht in der Wertung", "STEINER"},
               {"Command8", "Titelblatt", "Offizielle"}};
  for (const auto &[button, document, content] : cases) {
    click(button);
    ASSERT_FALSE(fake.documents.isEmpty()) << button;
    const Recording printed = fake.documents.takeFirst();
    EXPECT_EQ(printed.name, QString::fromUtf8(document));
    EXPECT_EQ(printed.race, 1);
    EXPECT_TRUE(textOf(printed).contains(QString::fromUtf8(content))) << button;
    EXPECT_TRUE(find<QWidget>(button)->isEnabled());
    EXPECT_EQ(find<QLabel>("letzteDatei")->text(), printed.name + QStringLiteral(".pdf"));
  }
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(Form8Test, ClubFilterTakesTheChosenClubAndNobodyWithoutAChoice) {
  open();
  click("Check1");
  EXPECT_TRUE(find<QWidget>("Combo3")->isVisible());
  click("Command3");
  EXPECT_FALSE(textOf(fake.documents.last()).contains(QStringLiteral("BERGER")));
  pick("Combo3", 0);
  click("Command3");
  const QString list = textOf(fake.documents.last());
  EXPECT_TRUE(list.contains(QStringLiteral("|Ergebnisliste SK Übelbach|")));
  EXPECT_TRUE(list.contains(QStringLiteral("MOSER")));
  EXPECT_FALSE(list.contains(QStringLiteral("ÖLLINGER")));
  click("Check1");
  EXPECT_FALSE(find<QWidget>("Combo3")->isVisible());
}

TEST_F(Form8Test, CertificatesOfTheMarkedLinesEachADocument) {
  open();
  click("Command5");
  EXPECT_TRUE(fake.documents.isEmpty());
  mark(0);
  mark(2);
  click("Command5");
  ASSERT_EQ(fake.documents.size(), 2);
  EXPECT_TRUE(textOf(fake.documents[0]).contains(QStringLiteral("|ÖLLINGER Karl|")));
  EXPECT_TRUE(textOf(fake.documents[1]).contains(QStringLiteral("belegte den")));
  click("Check2");
  find<QLineEdit>("Text2")->selectAll();
  QTest::keyClicks(find<QLineEdit>("Text2"), QStringLiteral("Vereinsmeisterschaft"));
  click("Command5");
  ASSERT_EQ(fake.documents.size(), 4);
  const QString certificate = textOf(fake.documents[3]);
  EXPECT_TRUE(certificate.contains(QStringLiteral("|Vereinsmeisterschaft|")));
  EXPECT_FALSE(certificate.contains(QStringLiteral("belegte den")));
}

TEST_F(Form8Test, APrinterThatRefusesEndsTheRunWithAReport) {
  open();
  mark(0);
  mark(1);
  fake.refuse = true;
  int reports = 0;
  QString report;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, [&] {
    if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
      ++reports;
      report = box->text();
      box->accept();
    }
  });
  watch.start(1);
  click("Command5");
  EXPECT_EQ(reports, 1);
  EXPECT_TRUE(report.contains(QStringLiteral("Der Drucker ist nicht bereit.")));
  click("Command2");
  EXPECT_EQ(reports, 2);
  EXPECT_TRUE(find<QWidget>("Command2")->isEnabled());
  fake.refuse = false;
  click("Command5");
  EXPECT_EQ(fake.documents.size(), 2);
}

TEST_F(Form8Test, TheBannersOfATitlePageAreWrittenBackAtTheLatestOnClosing) {
  open();
  click("Command8");
  EXPECT_FALSE(test.hasFile(QStringLiteral("werbung.dat")));
  form->close();
  EXPECT_TRUE(test.hasFile(QStringLiteral("werbung.dat")));
}

TEST_F(Form8Test, WithoutRaceNothingIsWrittenOnClosing) {
  const QByteArray before = test.file(QStringLiteral("Rennen.rec"));
  test.store.AktRennen = 0;
  open();
  pick("Combo1", 3);
  form->close();
  EXPECT_EQ(test.file(QStringLiteral("Rennen.rec")), before);
}

TEST_F(Form8Test, WithoutPrinterNoneCanBeChosen) {
  FakePrinters none{QStringList()};
  Form8 screen(desk, test.store, *none.printers);
  desk.show(screen);
  EXPECT_FALSE(screen.findChild<QPushButton *>(QStringLiteral("Command6"))->isEnabled());
}
