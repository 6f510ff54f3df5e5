#include "platform/qt/Preview.h"

#include "platform/qt/PreviewPages.h"
#include "support/FakePrinters.h"
#include "support/Print.h"

#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

Recording document(const char *name, int pages) {
  Recording recording;
  recording.name = QString::fromLatin1(name);
  const PrintPage page{TextOperation{20, 20, PrintFont(), recording.name}, FillOperation{0, 100, 202, 150, 0xFF0000}};
  recording.pages = QList<PrintPage>(pages, page);
  return recording;
}

struct PreviewTest : testing::Test {
  PreviewTest() { preview.offer(*fake.printers); }
  void print(const Recording &recording) { preview.printer().print(recording); }
  QString position() { return preview.findChild<QLabel *>("Seite")->text(); }
  void press(const char *button) { QTest::mouseClick(preview.findChild<QPushButton *>(button), Qt::LeftButton); }
  PreviewPages *pages() { return preview.findChild<PreviewPages *>(); }

  QLabel *file() { return preview.findChild<QLabel *>("letzteDatei"); }

  FakePrinters fake;
  Preview preview;
};

} // namespace

TEST_F(PreviewTest, ShowsThePagesAndTurnsThem) {
  print(document("Liste", 3));
  EXPECT_TRUE(preview.isVisible());
  EXPECT_EQ(position(), "Seite 1 von 3");
  QTest::keyClick(pages(), Qt::Key_PageDown);
  EXPECT_EQ(position(), "Seite 2 von 3");
  press("vor");
  press("groesser");
  press("seite");
  EXPECT_EQ(position(), "Seite 3 von 3");
  EXPECT_EQ(pages()->horizontalScrollBar()->maximum(), 0);
  press("breite");
  EXPECT_EQ(position(), "Seite 3 von 3");
  QTest::keyClick(pages(), Qt::Key_Home);
  press("zurueck");
  EXPECT_EQ(position(), "Seite 1 von 3");
  const QImage seen = pages()->viewport()->grab().toImage();
  EXPECT_EQ(seen.pixelColor(seen.width() / 2, int(14 + (seen.width() - 28) / 210.0 * 129)), QColor(Qt::red));
}

TEST_F(PreviewTest, AppendsWhileItIsOpenAndStartsAnewAfterClosing) {
  print(document("Urkunde", 1));
  print(document("Urkunde", 1));
  EXPECT_EQ(position(), "Seite 1 von 2");
  QCoreApplication::processEvents(); // the printing is over
  print(document("Liste", 2));
  EXPECT_EQ(position(), "Seite 3 von 4");
  preview.findChild<QPushButton *>("vor")->setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_End);
  EXPECT_EQ(position(), "Seite 4 von 4");
  QTest::keyClick(pages(), Qt::Key_Escape);
  EXPECT_FALSE(preview.isVisible());
  print(document("Liste", 1));
  EXPECT_EQ(position(), "Seite 1 von 1");
}

TEST_F(PreviewTest, SendsEveryDocumentToAnotherPrinter) {
  print(document("Urkunde", 1));
  print(document("Liste", 2));
  auto *menu = preview.findChild<QMenu *>();
  Q_EMIT menu->aboutToShow();
  ASSERT_EQ(menu->actions().size(), 2);
  menu->actions()[1]->trigger();
  EXPECT_EQ(fake.usedPrinters, (QStringList{"Alt", "Alt"}));
  EXPECT_EQ(fake.documents[1].pages.size(), 2);
  EXPECT_EQ(file()->text(), "Liste.pdf");
  fake.refuse = true;
  QTimer::singleShot(100, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
  menu->actions()[1]->trigger();
  EXPECT_FALSE(file()->isVisible());
}

TEST_F(PreviewTest, MoreForTheRaceOfTheLastDocumentIsToldWhenItFails) {
  int asked = 0;
  preview.offer({"mehr", [](int race) { return race == 2; },
                 [&](int race) {
                   asked = race;
                   throw Fault("Geht nicht.");
                 }});
  auto *menu = preview.findChild<QMenu *>();
  for (const int race : {1, 2}) {
    Recording list = document("Liste", 1);
    list.race = race;
    print(list);
    Q_EMIT menu->aboutToShow();
    EXPECT_EQ(menu->actions().last()->isEnabled(), race == 2);
  }
  QTimer::singleShot(100, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return); });
  menu->actions().last()->trigger();
  EXPECT_EQ(asked, 2);
}
